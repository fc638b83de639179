#include "app/other_copy.h"

#include <algorithm>
#include <iterator>

#include "app/core/installation.h"
#include "desktop/foreground_return.h"
#include "desktop/waiting_window.h"
#include "desktop/window_readers.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"

namespace korvale {
namespace {

/// How long a copy that is just starting may take to show its main window, in ms.
constexpr std::uint32_t kCopyPatience = 5000;
/// How long one without any window may take to let the next one run, in ms.
constexpr std::uint32_t kEndPatience = 200;
constexpr std::uint32_t kCopyPoll = 50;

}  // namespace

void OtherCopy::WaitFor(frmMain& form) {
  lock_ = std::make_unique<InstanceLock>(platform_->system, form.Parts().identity.installation);
  alone_ = lock_->TryHold(0);
  captions_ = {form.Caption()};
  if (!alone_) {
    std::ranges::copy(RegisteredNames(form.Parts().identity, platform_->store, platform_->system),
                      std::back_inserter(captions_));
  }
  for (std::uint32_t waited = 0; !alone_ && Find(form) == 0 && waited < Patience(form);
       waited += kCopyPoll) {
    alone_ = lock_->TryHold(kCopyPoll);
  }
}

void OtherCopy::RefuseToRunBeside(frmMain& form) {
  MainParts& parts = form.Parts();
  if (Find(form) == 0 && alone_) {
    return;
  }
  platform_->loop.DoEvents();
  parts.messages.ShowMessageBox("'" + form.Caption() + "' is already open.", win32::kMbOk,
                                parts.identity.messageTitle);
  BringForward(form, Find(form));
  form.udmUnload(false);
  throw ProgramEnded{};
}

WindowHandle OtherCopy::FindByCaption(frmMain& form, const InstanceSearch& search) {
  WindowEnumeration& enumeration = form.Parts().desktop.enumeration;
  const std::string className = GetWindowClass(platform_->windows, form.Handle());
  for (const std::string& caption : captions_) {
    const WindowHandle found = search(enumeration, className, caption);
    if (found != 0) return found;
  }
  return 0;
}

/// Also a copy whose main window is still hidden while a box or tip of its start-up is shown.
WindowHandle OtherCopy::Find(frmMain& form) {
  const WindowHandle shown = FindByCaption(
      form,
      [](WindowEnumeration& enumeration, const std::string& className, const std::string& caption) {
        return enumeration.FindInstance(className, caption);
      });
  if (shown != 0 || alone_) return shown;
  return FindHidden(
      form, [this](WindowHandle hwnd) { return FindWaitingWindow(platform_->windows, hwnd) != 0; });
}

WindowHandle OtherCopy::FindHidden(frmMain& form, const WindowEnumeration::Test& qualifies) {
  return FindByCaption(form, [&](WindowEnumeration& enumeration, const std::string& className,
                                 const std::string& caption) {
    return enumeration.FindHiddenInstance(className, caption, qualifies);
  });
}

std::uint32_t OtherCopy::Patience(frmMain& form) {
  return FindHidden(form, WindowEnumeration::Any) != 0 ? kCopyPatience : kEndPatience;
}

void OtherCopy::BringForward(frmMain& form, WindowHandle copy) {
  WindowQueries& windows = platform_->windows;
  if (!windows.IsWindowVisible(copy) || !windows.IsWindowEnabled(copy)) {
    // Something of its own waits for the user's answer first.
    ReturnForegroundTo(windows, platform_->commands, FindWaitingWindow(windows, copy));
    return;
  }
  WindowTriple window{copy, GetWindowTitle(windows, copy), GetWindowClass(windows, copy)};
  form.Parts().desktop.actions.ActivateWindow(window, false, true);
}

}  // namespace korvale
