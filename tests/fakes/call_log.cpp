#include "tests/fakes/call_log.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/win32_constants.h"
#include "tests/fakes/windows_numbers.h"
#include "util/raised_flag.h"
#include "util/text.h"

namespace korvale {

CallLog::~CallLog() {
  if (testing::Test::HasFailure()) return;
  for (const Action& action : actions_) ADD_FAILURE() << action.prefix << " was never called";
}

void CallLog::Add(std::string call) {
  RunActions(call);
  calls_.push_back(std::move(call));
}

void CallLog::AddRead(std::string call) {
  RunActions(call);
  if (include_reads_) calls_.push_back(std::move(call));
}

void CallLog::NameWindow(WindowHandle hwnd, std::string name) {
  if (name.empty()) {
    names_.erase(hwnd);
  } else {
    names_[hwnd] = std::move(name);
  }
}

void CallLog::WhenCalled(std::string prefix, std::function<void()> action) {
  actions_.push_back({std::move(prefix), std::move(action)});
}

void CallLog::BeforeEachCall(std::function<void(const std::string& call)> action) {
  before_call_ = std::move(action);
}

void CallLog::RunActions(const std::string& call) {
  if (before_call_ && !told_) {
    const RaisedFlag telling(told_);
    before_call_(call);
  }
  std::vector<Action> due;
  std::erase_if(actions_, [&](const Action& action) {
    if (!call.starts_with(action.prefix)) return false;
    due.push_back(action);
    return true;
  });
  for (const Action& action : due) action.run();
}

std::vector<std::string> CallLog::Take() { return std::exchange(calls_, {}); }

std::vector<std::string> CallLog::TakeAllOf(const std::function<void()>& action) {
  Clear();
  IncludeReads(true);
  action();
  IncludeReads(false);
  return Take();
}

std::vector<std::string> CallLog::CallsOf(const std::string& prefix) const {
  std::vector<std::string> found;
  std::ranges::copy_if(calls_, std::back_inserter(found),
                       [&](const std::string& call) { return call.starts_with(prefix); });
  return found;
}

std::string CallLog::Window(WindowHandle hwnd) const {
  const auto name = names_.find(hwnd);
  if (name != names_.end()) return name->second;
  return hwnd == 0 ? "0" : HexText(static_cast<std::uint32_t>(hwnd));
}

std::string HexText(std::uint32_t value) { return "0x" + HexadecimalText(value); }

std::string ShowCommandText(int command) {
  static const std::map<int, std::string> kNames = {
      {win32::kSwHide, "SW_HIDE"},
      {win32::kSwShowNormal, "SW_SHOWNORMAL"},
      {fakes::kSwShowMinimized, "SW_SHOWMINIMIZED"},
      {win32::kSwMaximize, "SW_MAXIMIZE"},
      {win32::kSwShowNoActivate, "SW_SHOWNOACTIVATE"},
      {win32::kSwShow, "SW_SHOW"},
      {win32::kSwMinimize, "SW_MINIMIZE"},
      {win32::kSwShowMinNoActive, "SW_SHOWMINNOACTIVE"},
      {win32::kSwShowNa, "SW_SHOWNA"},
      {win32::kSwRestore, "SW_RESTORE"},
  };
  const auto name = kNames.find(command);
  return name == kNames.end() ? std::to_string(command) : name->second;
}

std::string InsertAfterText(const CallLog& log, WindowHandle insertAfter) {
  switch (insertAfter) {
    case win32::kHwndTopmost:
      return "HWND_TOPMOST";
    case win32::kHwndNoTopmost:
      return "HWND_NOTOPMOST";
    case win32::kHwndTop:
      return "HWND_TOP";
    default:
      return log.Window(insertAfter);
  }
}

}  // namespace korvale
