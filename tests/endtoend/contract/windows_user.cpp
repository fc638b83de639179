#include "tests/endtoend/contract/windows_user.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include "platform/windows/text.h"
#include "tests/endtoend/contract/input.h"
#include "tests/endtoend/harness/keyboard.h"
#include "ui/windows/units.h"

namespace korvale {
namespace {

std::wstring ReadText(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::wstring ReadClassName(HWND window) {
  wchar_t name[257];
  return {name, static_cast<std::size_t>(GetClassNameW(window, name, 257))};
}

bool IsTabStrip(HWND window) { return ReadClassName(window) == WC_TABCONTROLW; }

std::string ReadTab(HWND strip, int position) {
  wchar_t text[256];
  TCITEMW tab{};
  tab.mask = TCIF_TEXT;
  tab.pszText = text;
  tab.cchTextMax = 256;
  SendMessageW(strip, TCM_GETITEMW, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&tab));
  return ToUtf8(tab.pszText);
}

std::string ReadEntry(HWND combo, int position) {
  std::wstring text(1024, L'\0');
  const LRESULT length = SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(position),
                                      reinterpret_cast<LPARAM>(text.data()));
  return ToUtf8(text.substr(0, static_cast<std::size_t>(length)));
}

POINT MiddleOf(const RECT& rect) {
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

COMBOBOXINFO ComboInfo(HWND combo) {
  COMBOBOXINFO info{};
  info.cbSize = sizeof(info);
  GetComboBoxInfo(combo, &info);
  return info;
}

}  // namespace

HWND FindControl(WindowHandle hwnd, int control) {
  struct Search {
    int id;
    HWND found;
  } search{control, nullptr};
  const auto visit = [](HWND window, LPARAM parameter) -> BOOL {
    auto& wanted = *reinterpret_cast<Search*>(parameter);
    if (GetDlgCtrlID(window) == wanted.id) wanted.found = window;
    return wanted.found == nullptr ? TRUE : FALSE;
  };
  EnumChildWindows(ToHwnd(hwnd), visit, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

bool WindowsUser::IsShown(WindowHandle hwnd) { return IsWindowVisible(ToHwnd(hwnd)) != FALSE; }

bool WindowsUser::IsEnabled(WindowHandle hwnd) { return IsWindowEnabled(ToHwnd(hwnd)) != FALSE; }

std::string WindowsUser::Title(WindowHandle hwnd) { return ToUtf8(ReadText(ToHwnd(hwnd))); }

std::string WindowsUser::ClassName(WindowHandle hwnd) {
  return ToUtf8(ReadClassName(ToHwnd(hwnd)));
}

TwipsRect WindowsUser::Place(WindowHandle hwnd) {
  RECT rect{};
  GetWindowRect(ToHwnd(hwnd), &rect);
  return ToScreenTwips(rect, GetDpiForWindow(ToHwnd(hwnd)));
}

void WindowsUser::PressCloseBox(WindowHandle hwnd) {
  ASSERT_TRUE(IsShown(hwnd) && IsEnabled(hwnd));
  PostMessageW(ToHwnd(hwnd), WM_SYSCOMMAND, SC_CLOSE, 0);
  Settle();
}

void WindowsUser::CloseOwner(WindowHandle hwnd) {
  PostMessageW(GetWindow(ToHwnd(hwnd), GW_OWNER), WM_CLOSE, 0, 0);
  Settle();
}

void WindowsUser::QuitThread() { PostThreadMessageW(GetCurrentThreadId(), WM_QUIT, 0, 0); }

void WindowsUser::Drag(WindowHandle hwnd, const TwipsRect& place) {
  ASSERT_TRUE(IsShown(hwnd) && IsEnabled(hwnd));
  const PixelPlace to = ToScreenPixels(place, GetDpiForWindow(ToHwnd(hwnd)));
  SetWindowPos(ToHwnd(hwnd), nullptr, to.left, to.top, to.width, to.height, SWP_NOZORDER);
  Settle();
}

std::string WindowsUser::Text(WindowHandle hwnd, int control) {
  return ToUtf8(ReadText(FindControl(hwnd, control)));
}

bool WindowsUser::IsShown(WindowHandle hwnd, int control) {
  return IsWindowVisible(FindControl(hwnd, control)) != FALSE;
}

bool WindowsUser::IsEnabled(WindowHandle hwnd, int control) {
  HWND window = FindControl(hwnd, control);
  while (window != ToHwnd(hwnd) && IsWindowEnabled(window) != FALSE) window = GetParent(window);
  return window == ToHwnd(hwnd);
}

int WindowsUser::Value(WindowHandle hwnd, int control) {
  return SendMessageW(FindControl(hwnd, control), BM_GETCHECK, 0, 0) == BST_CHECKED ? 1 : 0;
}

std::vector<std::string> WindowsUser::ListEntries(WindowHandle hwnd, int control) {
  const HWND window = FindControl(hwnd, control);
  const bool tabs = IsTabStrip(window);
  const LRESULT count = SendMessageW(window, tabs ? TCM_GETITEMCOUNT : CB_GETCOUNT, 0, 0);
  std::vector<std::string> entries;
  for (int position = 0; position < count; ++position) {
    entries.push_back(tabs ? ReadTab(window, position) : ReadEntry(window, position));
  }
  return entries;
}

int WindowsUser::ListIndex(WindowHandle hwnd, int control) {
  const HWND window = FindControl(hwnd, control);
  const UINT message = IsTabStrip(window) ? TCM_GETCURSEL : CB_GETCURSEL;
  return static_cast<int>(SendMessageW(window, message, 0, 0));
}

bool WindowsUser::IsListOpen(WindowHandle hwnd, int control) {
  return IsWindowVisible(ComboInfo(FindControl(hwnd, control)).hwndList) != FALSE;
}

int WindowsUser::Focus(WindowHandle hwnd) {
  HWND focus = GetFocus();
  if (IsChild(ToHwnd(hwnd), focus) == FALSE) return 0;
  // The text field of a combo box belongs to the combo box.
  if (ReadClassName(GetParent(focus)) == WC_COMBOBOXW) focus = GetParent(focus);
  return GetDlgCtrlID(focus);
}

TwipsRect WindowsUser::Place(WindowHandle hwnd, int control) {
  const HWND window = FindControl(hwnd, control);
  RECT rect{};
  GetWindowRect(window, &rect);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
  const UINT dpi = GetDpiForWindow(window);
  return {ToTwips(rect.left, dpi), ToTwips(rect.top, dpi), ToTwips(rect.right - rect.left, dpi),
          ToTwips(rect.bottom - rect.top, dpi)};
}

bool WindowsUser::IsActive(WindowHandle hwnd) {
  Settle();
  if (GetForegroundWindow() == ToHwnd(hwnd)) return true;
  ADD_FAILURE() << "\"" << Title(hwnd) << "\" is not in front, but \""
                << Title(ToWindowHandle(GetForegroundWindow())) << "\" is";
  return false;
}

void WindowsUser::ClickReachable(HWND window, POINT at) {
  const HWND there = WindowFromPoint(at);
  const bool reachable = there == window || IsChild(window, there) != FALSE;
  ASSERT_TRUE(reachable) << "\"" << ToUtf8(ReadClassName(there)) << "\" is in the way";
  ASSERT_NE(IsWindowEnabled(window), FALSE);
  ClickAt(at);
  Settle();
}

void WindowsUser::ClickAt(POINT at) {
  // Two clicks must not become a double click.
  const ULONGLONG again = lastClick_ + GetDoubleClickTime() + 1;
  if (const ULONGLONG now = GetTickCount64(); now < again) {
    LetPass(static_cast<std::uint32_t>(again - now));
  }
  MoveTo(at);
  ClickLeft();
  lastClick_ = GetTickCount64();
}

void WindowsUser::MoveTo(POINT at) {
  endtoend::PutPointer(at);
  Settle();
}

void WindowsUser::Click(WindowHandle hwnd, int control) {
  Settle();
  RECT rect{};
  GetWindowRect(FindControl(hwnd, control), &rect);
  ClickReachable(FindControl(hwnd, control), MiddleOf(rect));
}

void WindowsUser::MoveMouse(WindowHandle hwnd, int control, Twips x, Twips y) {
  Settle();
  const HWND window = control == 0 ? ToHwnd(hwnd) : FindControl(hwnd, control);
  const UINT dpi = GetDpiForWindow(window);
  POINT at{ToPixels(x, dpi), ToPixels(y, dpi)};
  ClientToScreen(window, &at);
  MoveTo(at);
}

void WindowsUser::PressKey(WindowHandle hwnd, int virtualKey, unsigned shift) {
  if (!IsActive(hwnd)) return;
  PressAndRelease(virtualKey, shift);
  Settle();
}

void WindowsUser::HoldKey(WindowHandle hwnd, int virtualKey, int repeats) {
  if (!IsActive(hwnd)) return;
  // A keyboard repeats a key by pressing it again.
  for (int i = 0; i <= repeats; ++i) PutKey(virtualKey, true);
  Settle();
}

void WindowsUser::ReleaseKey(WindowHandle hwnd, int virtualKey) {
  if (!IsActive(hwnd)) return;
  PutKey(virtualKey, false);
  Settle();
}

void WindowsUser::TypeText(WindowHandle hwnd, std::string_view text, bool alt) {
  if (!IsActive(hwnd)) return;
  for (const wchar_t character : ToUtf16(text)) {
    if (HasKey(character)) {
      PressKeyOf(character, alt ? kAlt : kNoShift);
    } else if (alt) {
      TypeWithAlt(character);
    } else {
      PutCharacter(character);
    }
  }
  Settle();
}

void WindowsUser::TypeWithAlt(wchar_t character) {
  // Input of this kind cannot be combined with Alt, so the message comes without its key.
  constexpr LPARAM kAltHeld = 1L << 29;
  HoldAlt(true);
  Settle();
  PostMessageW(GetFocus(), WM_SYSCHAR, character, kAltHeld);
  Settle();
  HoldAlt(false);
}

void WindowsUser::DropDown(HWND combo) {
  RECT button = ComboInfo(combo).rcButton;
  MapWindowPoints(combo, nullptr, reinterpret_cast<POINT*>(&button), 2);
  ClickReachable(combo, MiddleOf(button));
}

void WindowsUser::Pick(WindowHandle hwnd, int control, int listIndex) {
  Settle();
  HWND window = FindControl(hwnd, control);
  const auto position = static_cast<WPARAM>(listIndex);
  RECT entry{};
  if (IsTabStrip(window)) {
    SendMessageW(window, TCM_GETITEMRECT, position, reinterpret_cast<LPARAM>(&entry));
  } else {
    DropDown(window);
    window = ComboInfo(window).hwndList;
    SendMessageW(window, LB_GETITEMRECT, position, reinterpret_cast<LPARAM>(&entry));
  }
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&entry), 2);
  ClickReachable(window, MiddleOf(entry));
}

void WindowsUser::OpenList(WindowHandle hwnd, int control) {
  Settle();
  DropDown(FindControl(hwnd, control));
}

void WindowsUser::OpenAndCloseList(WindowHandle hwnd, int control) {
  OpenList(hwnd, control);
  PressKey(hwnd, VK_ESCAPE, kNoShift);
}

}  // namespace korvale
