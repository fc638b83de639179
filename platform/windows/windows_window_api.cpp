#include "platform/windows/windows_window_api.h"

#include <windows.h>

#include <array>
#include <exception>
#include <span>
#include <string>
#include <string_view>

#include "platform/windows/handles.h"
#include "platform/windows/text.h"

namespace korvale {
namespace {

constexpr int kBytesPerUnit = 3;  // The most UTF-8 bytes that one UTF-16 unit becomes.
constexpr std::size_t kLongestClassName = 257;

struct Enumeration {
  const std::function<bool(WindowHandle)>* visit;
  std::exception_ptr error;
};

BOOL CALLBACK VisitWindow(HWND hwnd, LPARAM parameter) {
  auto& enumeration = *reinterpret_cast<Enumeration*>(parameter);
  try {
    return (*enumeration.visit)(ToWindowHandle(hwnd)) ? TRUE : FALSE;
  } catch (...) {
    enumeration.error = std::current_exception();
    return FALSE;
  }
}

/// Copies as much of `text` as fits before a NUL; returns the bytes copied. A text that fits is
/// converted on the spot.
int CopyAsUtf8(std::wstring_view text, std::span<char> buffer) {
  if (text.empty() || buffer.size() < 2) return CopyText("", buffer.data(), buffer.size());
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), buffer.data(),
                          static_cast<int>(buffer.size() - 1), nullptr, nullptr);
  if (length == 0) return CopyText(ToUtf8(text), buffer.data(), buffer.size());
  buffer[static_cast<std::size_t>(length)] = '\0';
  return length;
}

}  // namespace

WindowsWindowApi::WindowsWindowApi() = default;
WindowsWindowApi::~WindowsWindowApi() = default;

void WindowsWindowApi::EnumWindows(const std::function<bool(WindowHandle)>& visit) {
  Enumeration enumeration{&visit, nullptr};
  ::EnumWindows(VisitWindow, reinterpret_cast<LPARAM>(&enumeration));
  if (enumeration.error) std::rethrow_exception(enumeration.error);
}

WindowHandle WindowsWindowApi::GetWindow(WindowHandle hwnd, std::uint32_t command) {
  return ToWindowHandle(::GetWindow(ToHwnd(hwnd), command));
}

WindowHandle WindowsWindowApi::GetParent(WindowHandle hwnd) {
  return ToWindowHandle(::GetParent(ToHwnd(hwnd)));
}

WindowHandle WindowsWindowApi::GetLastActivePopup(WindowHandle hwnd) {
  return ToWindowHandle(::GetLastActivePopup(ToHwnd(hwnd)));
}

std::int32_t WindowsWindowApi::GetWindowLongA(WindowHandle hwnd, int index) {
  return ::GetWindowLongA(ToHwnd(hwnd), index);
}

int WindowsWindowApi::GetWindowTextLengthA(WindowHandle hwnd) {
  return ::GetWindowTextLengthW(ToHwnd(hwnd)) * kBytesPerUnit;
}

int WindowsWindowApi::GetWindowTextA(WindowHandle hwnd, std::span<char> buffer) {
  if (buffer.empty()) return 0;
  std::array<wchar_t, kOrdinaryTitle> ordinary;
  std::wstring longer;
  if (buffer.size() > ordinary.size()) longer.resize(buffer.size());
  const std::span<wchar_t> text =
      longer.empty() ? std::span(ordinary.data(), buffer.size()) : std::span<wchar_t>(longer);
  const int length = ::GetWindowTextW(ToHwnd(hwnd), text.data(), static_cast<int>(text.size()));
  return CopyAsUtf8({text.data(), static_cast<std::size_t>(length)}, buffer);
}

int WindowsWindowApi::GetClassNameA(WindowHandle hwnd, std::span<char> buffer) {
  std::array<wchar_t, kLongestClassName> name;
  const int length = ::GetClassNameW(ToHwnd(hwnd), name.data(), static_cast<int>(name.size()));
  return CopyAsUtf8({name.data(), static_cast<std::size_t>(length)}, buffer);
}

bool WindowsWindowApi::IsWindow(WindowHandle hwnd) { return ::IsWindow(ToHwnd(hwnd)) != FALSE; }

bool WindowsWindowApi::IsWindowVisible(WindowHandle hwnd) {
  return ::IsWindowVisible(ToHwnd(hwnd)) != FALSE;
}

std::uint32_t WindowsWindowApi::DwmGetWindowAttribute(WindowHandle hwnd) {
  DWORD value = 0;
  const bool known =
      dwmGetWindowAttribute_ != nullptr &&
      SUCCEEDED(dwmGetWindowAttribute_(ToHwnd(hwnd), DWMWA_CLOAKED, &value, sizeof(value)));
  return known ? value : 0;
}

bool WindowsWindowApi::IsWindowEnabled(WindowHandle hwnd) {
  return ::IsWindowEnabled(ToHwnd(hwnd)) != FALSE;
}

bool WindowsWindowApi::IsIconic(WindowHandle hwnd) { return ::IsIconic(ToHwnd(hwnd)) != FALSE; }

bool WindowsWindowApi::IsZoomed(WindowHandle hwnd) { return ::IsZoomed(ToHwnd(hwnd)) != FALSE; }

std::uint32_t WindowsWindowApi::GetWindowThreadProcessId(WindowHandle hwnd) {
  return ::GetWindowThreadProcessId(ToHwnd(hwnd), nullptr);
}

bool WindowsWindowApi::IsHungAppWindow(WindowHandle hwnd) {
  return ::IsHungAppWindow(ToHwnd(hwnd)) != FALSE;
}

WindowHandle WindowsWindowApi::GetForegroundWindow() {
  return ToWindowHandle(::GetForegroundWindow());
}

WindowHandle WindowsWindowApi::GetShellWindow() { return ToWindowHandle(::GetShellWindow()); }

WindowHandle WindowsWindowApi::FindWindowA(const std::string& title) {
  return ToWindowHandle(::FindWindowW(nullptr, ToUtf16(title).c_str()));
}

bool WindowsWindowApi::ShowWindow(WindowHandle hwnd, int command) {
  return ::ShowWindow(ToHwnd(hwnd), command) != FALSE;
}

bool WindowsWindowApi::ShowWindowAsync(WindowHandle hwnd, int command) {
  return ::ShowWindowAsync(ToHwnd(hwnd), command) != FALSE;
}

bool WindowsWindowApi::SetWindowPos(WindowHandle hwnd, WindowHandle insertAfter, int x, int y,
                                    int width, int height, std::uint32_t flags) {
  return ::SetWindowPos(ToHwnd(hwnd), ToHwnd(insertAfter), x, y, width, height, flags) != FALSE;
}

bool WindowsWindowApi::SetForegroundWindow(WindowHandle hwnd) {
  return ::SetForegroundWindow(ToHwnd(hwnd)) != FALSE;
}

bool WindowsWindowApi::SendMessageTimeoutW(WindowHandle hwnd, std::uint32_t message,
                                           std::uint32_t milliseconds) {
  return ::SendMessageTimeoutW(ToHwnd(hwnd), message, 0, 0, SMTO_ABORTIFHUNG | SMTO_BLOCK,
                               milliseconds, nullptr) != 0;
}

bool WindowsWindowApi::PostMessageW(WindowHandle hwnd, std::uint32_t message) {
  return ::PostMessageW(ToHwnd(hwnd), message, 0, 0) != FALSE;
}

}  // namespace korvale
