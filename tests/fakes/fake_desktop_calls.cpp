#include <algorithm>
#include <cstddef>
#include <string_view>

#include "platform/win32_constants.h"
#include "tests/fakes/fake_desktop.h"
#include "util/text.h"

namespace korvale {
namespace {

/// What a count of readings adds to a title at most.
constexpr int kLongestCount = 16;

int CopyText(std::string_view text, std::span<char> buffer) {
  if (buffer.empty()) return 0;
  const std::size_t length = std::min(text.size(), buffer.size() - 1);
  std::copy_n(text.begin(), length, buffer.begin());
  buffer[length] = '\0';
  return static_cast<int>(length);
}

std::int32_t LiveStyle(const FakeWindow& window) {
  std::int32_t style = window.style;
  if (window.IsShown()) style |= win32::kWsVisible;
  if (!window.enabled) style |= win32::kWsDisabled;
  if (window.iconic) style |= win32::kWsMinimize;
  if (window.zoomed) style |= fakes::kWsMaximize;
  return style;
}

}  // namespace

const FakeWindow* FakeDesktop::Read(const char* call, WindowHandle hwnd,
                                    const std::string& argument) {
  if (log_.TakesReads()) {
    const std::string rest = argument.empty() ? ")" : ", " + argument + ")";
    log_.AddRead(std::string(call) + "(" + log_.Window(hwnd) + rest);
  }
  return windows_.Find(hwnd);
}

void FakeDesktop::EnumWindows(const std::function<bool(WindowHandle)>& visit) {
  log_.AddRead("EnumWindows()");
  const std::vector<WindowHandle> windows = windows_.TopLevel();
  for (const WindowHandle hwnd : windows) {
    if (!visit(hwnd)) return;
  }
}

WindowHandle FakeDesktop::GetWindow(WindowHandle hwnd, std::uint32_t command) {
  const FakeWindow* const window =
      Read("GetWindow", hwnd, command == win32::kGwOwner ? "GW_OWNER" : "GW_CHILD");
  if (window == nullptr) return 0;
  if (command == win32::kGwOwner) return window->owner;
  if (command != win32::kGwChild || window->children.empty()) return 0;
  return window->children.front();
}

WindowHandle FakeDesktop::GetParent(WindowHandle hwnd) {
  const FakeWindow* const window = Read("GetParent", hwnd);
  if (window == nullptr) return 0;
  if (window->parent != 0) return window->parent;
  return (window->style & fakes::kWsPopup) != 0 ? window->owner : 0;
}

WindowHandle FakeDesktop::GetLastActivePopup(WindowHandle hwnd) {
  const FakeWindow* const window = Read("GetLastActivePopup", hwnd);
  if (window == nullptr) return 0;
  return windows_.LastActivePopupOf(hwnd);
}

std::int32_t FakeDesktop::GetWindowLongA(WindowHandle hwnd, int index) {
  const bool extended = index == win32::kGwlExStyle;
  const FakeWindow* const window =
      Read("GetWindowLongA", hwnd, extended ? "GWL_EXSTYLE" : "GWL_STYLE");
  if (window == nullptr) return 0;
  return extended ? window->exStyle : LiveStyle(*window);
}

int FakeDesktop::GetWindowTextLengthA(WindowHandle hwnd) {
  const FakeWindow* const window = Read("GetWindowTextLengthA", hwnd);
  if (window == nullptr) return 0;
  const int counted = window->titleReadings < 0 ? 0 : kLongestCount;
  return static_cast<int>(window->title.size()) + window->extraTextLength + counted;
}

int FakeDesktop::GetWindowTextA(WindowHandle hwnd, std::span<char> buffer) {
  Read("GetWindowTextA", hwnd, std::to_string(buffer.size()));
  FakeWindow* const window = windows_.Find(hwnd);
  if (window == nullptr) return CopyText("", buffer);
  if (window->titleReadings < 0) return CopyText(window->title, buffer);
  return CopyText(std::to_string(++window->titleReadings) + " % - " + window->title, buffer);
}

int FakeDesktop::GetClassNameA(WindowHandle hwnd, std::span<char> buffer) {
  const FakeWindow* const window = Read("GetClassNameA", hwnd, std::to_string(buffer.size()));
  return CopyText(window == nullptr ? std::string_view() : window->className, buffer);
}

bool FakeDesktop::IsWindow(WindowHandle hwnd) { return Read("IsWindow", hwnd) != nullptr; }

bool FakeDesktop::IsWindowVisible(WindowHandle hwnd) {
  return Read("IsWindowVisible", hwnd) != nullptr && windows_.IsVisible(hwnd);
}

std::uint32_t FakeDesktop::DwmGetWindowAttribute(WindowHandle hwnd) {
  return Read("DwmGetWindowAttribute", hwnd) == nullptr ? 0 : windows_.CloakOf(hwnd);
}

bool FakeDesktop::IsWindowEnabled(WindowHandle hwnd) {
  const FakeWindow* const window = Read("IsWindowEnabled", hwnd);
  return window != nullptr && window->enabled;
}

bool FakeDesktop::IsIconic(WindowHandle hwnd) {
  const FakeWindow* const window = Read("IsIconic", hwnd);
  return window != nullptr && window->iconic;
}

bool FakeDesktop::IsZoomed(WindowHandle hwnd) {
  const FakeWindow* const window = Read("IsZoomed", hwnd);
  return window != nullptr && window->zoomed;
}

std::uint32_t FakeDesktop::GetWindowThreadProcessId(WindowHandle hwnd) {
  constexpr std::uint32_t kFirstThread = 100;
  const FakeWindow* const window = Read("GetWindowThreadProcessId", hwnd);
  return window == nullptr ? 0 : kFirstThread + static_cast<std::uint32_t>(window->process);
}

bool FakeDesktop::IsHungAppWindow(WindowHandle hwnd) {
  const FakeWindow* const window = Read("IsHungAppWindow", hwnd);
  return window != nullptr && (window->hung || window->className == kGhostClass);
}

WindowHandle FakeDesktop::GetForegroundWindow() {
  if (log_.TakesReads()) log_.AddRead("GetForegroundWindow()");
  return windows_.Foreground();
}

WindowHandle FakeDesktop::GetShellWindow() {
  log_.AddRead("GetShellWindow()");
  for (const WindowHandle hwnd : windows_.TopLevel()) {
    if (windows_.Find(hwnd)->className == "Progman") return hwnd;
  }
  return 0;
}

WindowHandle FakeDesktop::FindWindowA(const std::string& title) {
  log_.AddRead("FindWindowA(\"" + title + "\")");
  for (const WindowHandle hwnd : windows_.TopLevel()) {
    if (EqualsIgnoreCase(windows_.Find(hwnd)->title, title)) return hwnd;
  }
  return 0;
}

bool FakeDesktop::ShowWindow(WindowHandle hwnd, int command) {
  log_.Add("ShowWindow(" + log_.Window(hwnd) + ", " + ShowCommandText(command) + ")");
  if (!CanChange(hwnd)) return false;
  const FakeWindow* const window = windows_.Find(hwnd);
  const bool was_visible = window->IsShown();
  if (WaitFor(hwnd)) windows_.Show(hwnd, command);
  return was_visible;
}

bool FakeDesktop::ShowWindowAsync(WindowHandle hwnd, int command) {
  log_.Add("ShowWindowAsync(" + log_.Window(hwnd) + ", " + ShowCommandText(command) + ")");
  if (!CanChange(hwnd)) return false;
  DoWhenFree(hwnd, [this, hwnd, command] { windows_.Show(hwnd, command); });
  return true;
}

bool FakeDesktop::SetWindowPos(WindowHandle hwnd, WindowHandle insertAfter, int x, int y, int width,
                               int height, std::uint32_t flags) {
  log_.Add("SetWindowPos(" + log_.Window(hwnd) + ", " + InsertAfterText(log_, insertAfter) + ", " +
           std::to_string(x) + ", " + std::to_string(y) + ", " + std::to_string(width) + ", " +
           std::to_string(height) + ", " + std::to_string(flags) + ")");
  if (!CanChange(hwnd)) return false;
  const PixelRect place{x, y, width, height};
  if ((flags & win32::kSwpAsyncWindowPos) != 0) {
    DoWhenFree(hwnd, [=, this] { Place(hwnd, insertAfter, place, flags); });
  } else if (WaitFor(hwnd)) {
    Place(hwnd, insertAfter, place, flags);
  }
  return true;
}

void FakeDesktop::Place(WindowHandle hwnd, WindowHandle insertAfter, const PixelRect& place,
                        std::uint32_t flags) {
  FakeWindow& window = Existing(hwnd);
  if ((flags & win32::kSwpNoMove) == 0) {
    window.place.x = place.x;
    window.place.y = place.y;
  }
  if ((flags & win32::kSwpNoSize) == 0) {
    window.place.width = place.width;
    window.place.height = place.height;
  }
  if (window.parent != 0) return;
  if ((flags & win32::kSwpNoZOrder) == 0) {
    if (insertAfter == win32::kHwndTop) windows_.Raise(hwnd);
    if (insertAfter == win32::kHwndTopmost) windows_.SetTopmost(hwnd, true);
    if (insertAfter == win32::kHwndNoTopmost) windows_.SetTopmost(hwnd, false);
  }
  // A hidden window of the program that calls is activated as well.
  const bool reachable = windows_.IsVisible(hwnd) || window.process != kOtherProcess;
  if ((flags & win32::kSwpNoActivate) == 0 && reachable) windows_.ActivateByProgram(hwnd);
}

bool FakeDesktop::SetForegroundWindow(WindowHandle hwnd) {
  log_.Add("SetForegroundWindow(" + log_.Window(hwnd) + ")");
  const FakeWindow* const window = windows_.Find(hwnd);
  if (window == nullptr || window->parent != 0 || windows_.IsForegroundLocked()) return false;
  if (foreground_delayed_ && window->process == kOtherProcess) {
    if (hwnd != windows_.Foreground()) coming_forward_.push_back(hwnd);
  } else {
    windows_.Activate(hwnd);
  }
  return true;
}

bool FakeDesktop::SendMessageTimeoutW(WindowHandle hwnd, std::uint32_t message,
                                      std::uint32_t milliseconds) {
  log_.AddRead("SendMessageTimeoutW(" + log_.Window(hwnd) + ", " + HexText(message) + ")");
  const FakeWindow* const window = windows_.Find(hwnd);
  if (!CanSend(hwnd, message) || window->hung) return false;
  if (!IsBusy(*window)) return true;
  const std::uint64_t busy = window->busyUntil - clock_->GetTickCount64();
  clock_->Sleep(static_cast<std::uint32_t>(std::min<std::uint64_t>(busy, milliseconds)));
  return busy <= milliseconds && windows_.Find(hwnd) != nullptr;
}

bool FakeDesktop::PostMessageW(WindowHandle hwnd, std::uint32_t message) {
  log_.Add("PostMessageW(" + log_.Window(hwnd) + ", " + HexText(message) + ")");
  if (!CanSend(hwnd, message)) return false;
  windows_.NotifyPosted(hwnd, message);
  return true;
}

}  // namespace korvale
