#include "tests/endtoend/harness/window.h"

#include <algorithm>
#include <cstring>
#include <set>

#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

constexpr UINT kAnswerMs = 1000;

BOOL CALLBACK Collect(HWND handle, LPARAM windows) {
  reinterpret_cast<std::vector<Window>*>(windows)->emplace_back(handle);
  return TRUE;
}

// Windows lets a process take the foreground only after it made or received input.
void EarnForeground() {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = MOUSEEVENTF_MOVE;
  SendInput(1, &input, sizeof(input));
}

}  // namespace

std::string Window::Title() const {
  for (size_t size = 2048;; size *= 8) {
    std::wstring buffer(size, L'\0');
    const int length = InternalGetWindowText(handle_, buffer.data(), static_cast<int>(size));
    if (static_cast<size_t>(length) + 1 >= size) continue;
    buffer.resize(static_cast<size_t>(length));
    return Utf8(buffer);
  }
}

std::string Window::ClassName() const {
  std::wstring buffer(256, L'\0');
  const int length = GetClassNameW(handle_, buffer.data(), static_cast<int>(buffer.size()));
  buffer.resize(static_cast<size_t>(length));
  return Utf8(buffer);
}

std::string Window::Text() const {
  std::wstring buffer(static_cast<size_t>(Send(WM_GETTEXTLENGTH)) + 4096, L'\0');
  const LRESULT length = Send(WM_GETTEXT, buffer.size(), reinterpret_cast<LPARAM>(buffer.data()));
  buffer.resize(static_cast<size_t>(length));
  return Utf8(buffer);
}

DWORD Window::ProcessId() const {
  DWORD process = 0;
  GetWindowThreadProcessId(handle_, &process);
  return process;
}

std::vector<Window> Window::Children() const {
  std::vector<Window> children;
  for (HWND child = GetWindow(handle_, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    children.emplace_back(child);
  }
  return children;
}

std::vector<Window> Window::Controls(const std::string& class_name) const {
  std::vector<Window> controls = Children();
  std::erase_if(controls, [&](Window child) {
    return (child.Style() & WS_VISIBLE) == 0 ||
           _stricmp(child.ClassName().c_str(), class_name.c_str()) != 0;
  });
  return controls;
}

bool Window::Responds() const {
  DWORD_PTR result = 0;
  return SendMessageTimeoutW(handle_, WM_NULL, 0, 0, SMTO_NORMAL, kAnswerMs, &result) != 0;
}

LRESULT Window::Send(UINT message, WPARAM wparam, LPARAM lparam) const {
  DWORD_PTR result = 0;
  if (SendMessageTimeoutW(handle_, message, wparam, lparam, SMTO_NORMAL, kAnswerMs, &result) == 0) {
    return 0;
  }
  return static_cast<LRESULT>(result);
}

void Window::SetTitle(const std::string& title) const {
  const std::wstring wide = Wide(title);
  Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide.c_str()));
}

bool Window::Close() const {
  PostMessageW(handle_, WM_CLOSE, 0, 0);
  return WaitFor([this] { return !Exists(); });
}

Window Foreground() { return Window(GetForegroundWindow()); }

Window FocusOf(Window window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  GetGUIThreadInfo(GetWindowThreadProcessId(window.handle(), nullptr), &info);
  return Window(info.hwndFocus);
}

bool HasInput(Window window) {
  const auto in_front = [&] { return Foreground() == window; };
  const bool takes_focus = window.Enabled() && !window.Minimized();
  // What the program was told before, it has taken notice of once it answers.
  return in_front() && window.Responds() && in_front() && (!takes_focus || FocusOf(window));
}

void LetProgramsFinish() {
  std::set<DWORD> threads;
  for (const Window window : TopLevelWindows()) {
    const DWORD thread = GetWindowThreadProcessId(window.handle(), nullptr);
    if (window.Visible() && threads.insert(thread).second) window.Responds();
  }
}

bool BringToFront(Window window) {
  LetProgramsFinish();
  if (HasInput(window)) return true;
  EarnForeground();
  SetForegroundWindow(window.handle());
  return WaitFor([&] { return HasInput(window); });
}

std::vector<Window> TopLevelWindows() {
  std::vector<Window> windows;
  EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

Window FindTopLevel(const std::function<bool(Window)>& test) {
  const std::vector<Window> windows = TopLevelWindows();
  const auto found = std::find_if(windows.begin(), windows.end(), test);
  return found == windows.end() ? Window() : *found;
}

Window WaitForTopLevel(const std::function<bool(Window)>& test) {
  Window found;
  WaitFor([&] { return static_cast<bool>(found = FindTopLevel(test)); });
  return found;
}

}  // namespace korvale::endtoend
