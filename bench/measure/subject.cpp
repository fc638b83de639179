#include "bench/measure/subject.h"

#include <filesystem>
#include <stdexcept>

#include "bench/measure/processors.h"
#include "bench/measure/stop_watch.h"
#include "bench/measure/targets.h"
#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/running_korvale.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::bench {
namespace {

using endtoend::Quoted;
using endtoend::WaitFor;
using endtoend::Window;

/// What a program may have left to do behind a switch, two ticks of its timer included.
constexpr DWORD kBehindSwitchMs = 220;

/// How often a start that lacks a hot key is tried again.
constexpr int kAttempts = 5;

std::string TitlesForFloor() {
  std::string titles = " ";
  for (int tag = 1; tag <= kTags; ++tag) titles.append("|").append(Targets::Title(tag));
  return titles;
}

/// A program that asks for a key at the moment when it is tried here does not get it.
bool AllKeysTaken() {
  for (int tag = kTags; tag >= 1; --tag) {
    if (endtoend::HotKeyIsFree(endtoend::TagKey(tag))) return false;
  }
  return true;
}

}  // namespace

Subject::Subject(std::string name, std::string program, std::string arguments)
    : name_(std::move(name)), program_(std::move(program)), arguments_(std::move(arguments)) {}

Subject Subject::Floor(const std::string& program) { return {"floor", program, TitlesForFloor()}; }

Subject Subject::Korvale(const std::string& name, const std::string& program) {
  Subject subject(name, program, "");
  subject.installation_ = std::make_unique<endtoend::Installation>(name, program);
  subject.installation_->MarkAsUsed();
  subject.program_ = subject.installation_->program();
  // Its first run stores every setting.
  subject.StoreTags();
  subject.StartAndRest();
  subject.End();
  return subject;
}

double Subject::Size() const {
  return static_cast<double>(std::filesystem::file_size(endtoend::Wide(program_)));
}

std::string Subject::StoredIn() const {
  return IsFloor() ? "" : "Software\\VB and VBA Program Settings\\" + installation_->name();
}

std::optional<double> Subject::Start() {
  if (installation_) StoreTags();
  if (!WaitFor([] { return endtoend::HotKeyIsFree(endtoend::TagKey(1)); })) {
    throw std::runtime_error("another program has the hot keys");
  }
  const StopWatch watch;
  process_.emplace(Quoted(program_) + arguments_);
  KeepOn(Side::kSubject, process_->id());
  const bool complete = WaitFor(AllKeysTaken);
  const double took = watch.Milliseconds();
  Rest();
  return complete && !MessageBox() ? std::optional(took) : std::nullopt;
}

double Subject::StartAndRest() {
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (const std::optional<double> took = Start()) return *took;
    ++repeatedStarts_;
    End();
  }
  throw std::runtime_error(name_ + " lacks hot keys at each start");
}

void Subject::Rest() const {
  Sleep(kBehindSwitchMs);
  for (const Window window : endtoend::TopLevelWindows()) {
    if (window.ProcessId() == process_->id()) window.Responds();
  }
}

Window Subject::MessageBox() const {
  for (HWND box = nullptr;
       (box = FindWindowExW(nullptr, box, MAKEINTRESOURCEW(32770), nullptr)) != nullptr;) {
    const Window window(box);
    if (window.Visible() && window.ProcessId() == process_->id()) return window;
  }
  return {};
}

void Subject::End() {
  const Window main(FindWindowW(L"Korvale.frmMain", nullptr));
  if (main && main.ProcessId() == process_->id()) {
    PostMessageW(main.handle(), WM_CLOSE, 0, 0);
    process_->WaitForExit();
  }
  process_.reset();
}

void Subject::StoreTags() const {
  for (int tag = 1; tag <= kTags; ++tag) {
    installation_->StoreTag(tag, Targets::Title(tag), Targets::ClassName(tag));
  }
}

}  // namespace korvale::bench
