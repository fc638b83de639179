#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

#include "platform/win32_constants.h"
#include "tests/fakes/disabled_owner.h"
#include "tests/fakes/headless_form_host.h"
#include "ui/form.h"
#include "util/raised_flag.h"

namespace korvale {
namespace {

constexpr std::int32_t kButtonsMask = 0xF;

bool Offers(std::int32_t style, std::int16_t button) {
  switch (style & kButtonsMask) {
    case win32::kMbOk:
      return button == win32::kIdOk;
    case win32::kMbOkCancel:
      return button == win32::kIdOk || button == win32::kIdCancel;
    case win32::kMbYesNo:
      return button == win32::kIdYes || button == win32::kIdNo;
    default:
      return true;
  }
}

std::string Quote(const ShownMessage& message) {
  return "message box \"" + message.title + "\": \"" + message.text + "\"";
}

/// Removes the box also when the answer fails.
class BoxOnScreen {
 public:
  BoxOnScreen(std::vector<ShownMessage>& boxes, const ShownMessage& box) : boxes_(&boxes) {
    boxes.push_back(box);
  }
  ~BoxOnScreen() { boxes_->pop_back(); }
  BoxOnScreen(const BoxOnScreen&) = delete;
  BoxOnScreen& operator=(const BoxOnScreen&) = delete;

 private:
  std::vector<ShownMessage>* boxes_;
};

}  // namespace

void HeadlessFormHost::WhenModal(std::string formName, std::function<void(Form&)> action) {
  auto step = [this, formName, action = std::move(action)] {
    auto* const form = dynamic_cast<Form*>(FindForm(formName)->events);
    if (form == nullptr) FailTest(formName + " is no form of the shared form code");
    action(*form);
  };
  steps_.push_back({std::move(formName), std::move(step)});
}

void HeadlessFormHost::WhenWaiting(std::function<void()> action) {
  steps_.push_back({"", std::move(action)});
}

void HeadlessFormHost::WhenMessageBox(Answer answer) { answers_.push_back(std::move(answer)); }

void HeadlessFormHost::AnswerNext(std::int16_t button) {
  WhenMessageBox([button](const ShownMessage&) { return button; });
}

void HeadlessFormHost::WhenPopupMenu(Choose choose) { choices_.push_back(std::move(choose)); }

void HeadlessFormHost::ForgetQueued() {
  steps_.clear();
  answers_.clear();
  choices_.clear();
  colors_.clear();
}

HeadlessFormHost::Answer HeadlessFormHost::TakeAnswer(const ShownMessage& message) {
  if (answers_.empty() && otherAnswer_) return otherAnswer_;
  if (answers_.empty()) {
    const std::string complaint = "nobody answers the " + Quote(message);
    // The program may catch what fails the test and tell its user in another box, at last where it
    // must not throw: failing there once more would end all tests.
    if (!testing::Test::HasFailure() || !Offers(message.style, win32::kIdOk)) FailTest(complaint);
    ADD_FAILURE() << complaint;
    return [](const ShownMessage&) { return win32::kIdOk; };
  }
  Answer answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

std::int16_t HeadlessFormHost::MessageBoxW(WindowHandle owner, const std::string& text,
                                           const std::string& title, std::int32_t style) {
  const ShownMessage message = {owner, text, title, style};
  messages_.push_back(message);
  log_->Add("MessageBoxW(" + log_->Window(owner) + ", \"" + text + "\", \"" + title + "\", " +
            std::to_string(style) + ")");
  const Answer answer = TakeAnswer(message);
  WindowHandle box = 0;
  std::int16_t button = 0;
  {
    const DisabledOwner below(*desktop_, owner);
    box = desktop_->OpenBox(owner, title);
    const BoxOnScreen shown(boxes_, message);
    button = answer(message);
  }
  if (!Offers(style, button)) {
    FailTest("button " + std::to_string(button) + " is not on the " + Quote(message));
  }
  desktop_->Destroy(box);
  return button;
}

void HeadlessFormHost::TrackPopupMenuEx(WindowHandle hwnd, MenuItem& menu) {
  log_->Add("TrackPopupMenuEx(" + log_->Window(hwnd) + ", " + menu.name + ")");
  if (poppedUp_ || !openMenus_.empty()) return;
  Tell(hwnd, [&](FormEvents& events) { events.OnMenuOpened(menu); });
  if (choices_.empty()) FailTest("nobody chooses from the pop-up menu " + menu.name);
  const Choose choose = std::move(choices_.front());
  choices_.pop_front();
  popUpEnded_ = false;
  std::string caption;
  {
    const RaisedFlag shown(poppedUp_);
    caption = choose(DrawItems(menu));
  }
  if (caption.empty()) return;
  if (popUpEnded_) FailTest("the pop-up menu " + menu.name + " has been closed");
  const auto found = std::ranges::find_if(menu.items, [&](const auto& item) {
    return item->visible && DrawItem(*item).caption == caption;
  });
  if (found == menu.items.end()) FailTest("the pop-up menu has no entry \"" + caption + "\"");
  if (!(*found)->enabled) FailTest("the entry \"" + caption + "\" is disabled");
  Tell(hwnd, [&](FormEvents& events) { events.OnMenuClicked(**found); });
}

bool HeadlessFormHost::EndMenu() {
  const bool open = poppedUp_ || !openMenus_.empty();
  if (!open) return false;
  log_->Add("EndMenu()");
  popUpEnded_ = poppedUp_;
  openMenus_.clear();
  return true;
}

std::string HeadlessFormHost::ActiveFormName() {
  const HeadlessWindow* const window = FindWindow(desktop_->Active());
  return window == nullptr ? "" : window->form->name;
}

bool HeadlessFormHost::RunPosted() {
  if (posted_.empty()) return false;
  const std::function<void()> message = std::move(posted_.front());
  posted_.pop_front();
  message();
  return true;
}

bool HeadlessFormHost::RunStep() {
  if (steps_.empty()) return false;
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  if (!step.formName.empty() && step.formName != ActiveFormName()) {
    FailTest("the user expects form " + step.formName + ", but form \"" + ActiveFormName() +
             "\" is in front");
  }
  step.action();
  return true;
}

void HeadlessFormHost::RunMessageLoop(const std::function<bool()>& done) {
  while (!quit_ && !done()) {
    if (RunPosted() || RunStep() || (idle_ && idle_())) continue;
    FailTest("the program waits for the user with form \"" + ActiveFormName() +
             "\" and nothing more is queued");
  }
}

void HeadlessFormHost::DoEvents() {
  while (RunPosted()) {
  }
}

void HeadlessFormHost::PostQuitMessage() {
  log_->Add("PostQuitMessage()");
  quit_ = true;
}

void HeadlessFormHost::DeliverTimer(WindowHandle hwnd, int id) {
  if (FindWindow(hwnd) != nullptr) Tell(hwnd, [&](FormEvents& events) { events.OnTimer(id); });
}

}  // namespace korvale
