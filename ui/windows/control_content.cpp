#include "ui/windows/control_content.h"

// After windows.h, which it needs.
#include <commctrl.h>

#include <algorithm>

#include "platform/windows/text.h"
#include "ui/windows/control_window.h"

namespace korvale {
namespace {

std::wstring ReadWideText(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

bool IsSecondHalf(wchar_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// How many characters start before this unit of the text.
int CharactersBefore(const std::wstring& text, std::size_t unit) {
  const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(unit, text.size()));
  return static_cast<int>(
      std::count_if(text.begin(), end, [](wchar_t each) { return !IsSecondHalf(each); }));
}

/// The unit of the text where this character starts; the length of the text when it is shorter.
std::size_t UnitOfCharacter(const std::wstring& text, int character) {
  std::size_t unit = 0;
  for (int left = std::max(character, 0); left > 0 && unit < text.size(); --left) {
    ++unit;
    if (unit < text.size() && IsSecondHalf(text[unit])) ++unit;
  }
  return unit;
}

void ShowTabs(HWND window, const ControlState& control) {
  SendMessageW(window, TCM_DELETEALLITEMS, 0, 0);
  int position = 0;
  for (const ListItem& item : control.items) {
    std::wstring text = ToUtf16(item.text);
    TCITEMW tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = text.data();
    SendMessageW(window, TCM_INSERTITEMW, static_cast<WPARAM>(position++),
                 reinterpret_cast<LPARAM>(&tab));
  }
}

bool SameEntries(HWND window, const ControlState& control) {
  const auto count = static_cast<std::size_t>(SendMessageW(window, CB_GETCOUNT, 0, 0));
  if (count != control.items.size()) return false;
  for (std::size_t index = 0; index < count; ++index) {
    const LRESULT length = SendMessageW(window, CB_GETLBTEXTLEN, index, 0);
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(window, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    const ListItem& item = control.items[index];
    const LRESULT data = SendMessageW(window, CB_GETITEMDATA, index, 0);
    if (text != ToUtf16(item.text) || data != item.itemData) return false;
  }
  return true;
}

}  // namespace

void ShowText(HWND window, const ControlState& control) {
  const std::wstring text = WindowText(control);
  if (control.kind == ControlKind::kImage) {
    // For screen readers; the control itself would take it for the name of an icon.
    DefWindowProcW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
  } else if (text != ReadWideText(window)) {
    // Setting a text moves the caret, so a text that is there already is left alone.
    SetWindowTextW(window, text.c_str());
  }
}

void ShowItems(HWND window, const ControlState& control) {
  if (control.kind == ControlKind::kTabStrip) {
    ShowTabs(window, control);
  } else if (!SameEntries(window, control)) {
    SendMessageW(window, CB_RESETCONTENT, 0, 0);
    for (const ListItem& item : control.items) {
      const LRESULT index = SendMessageW(window, CB_ADDSTRING, 0,
                                         reinterpret_cast<LPARAM>(ToUtf16(item.text).c_str()));
      SendMessageW(window, CB_SETITEMDATA, static_cast<WPARAM>(index), item.itemData);
    }
  }
  ShowListIndex(window, control);
}

void ShowListIndex(HWND window, const ControlState& control) {
  if (ReadListIndex(window, control.kind) == control.listIndex) return;
  const UINT message = control.kind == ControlKind::kTabStrip ? TCM_SETCURSEL : CB_SETCURSEL;
  SendMessageW(window, message, static_cast<WPARAM>(control.listIndex), 0);
}

void ShowBorder(HWND window, const ControlState& control) {
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE) & ~static_cast<LONG_PTR>(WS_BORDER);
  SetWindowLongPtrW(window, GWL_STYLE, control.border ? style | WS_BORDER : style);
  if (control.kind == ControlKind::kTextBox) {
    const LONG_PTR exStyle = GetWindowLongPtrW(window, GWL_EXSTYLE) & ~WS_EX_CLIENTEDGE;
    SetWindowLongPtrW(window, GWL_EXSTYLE, control.border ? exStyle : exStyle | WS_EX_CLIENTEDGE);
  }
  SetWindowPos(
      window, nullptr, 0, 0, 0, 0,
      SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED | SWP_NOCOPYBITS);
  // What the border covered now belongs to the control, or the reverse.
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

void ShowDefault(HWND window, const ControlState& control) {
  // The lower half of a style belongs to the window's class.
  constexpr LONG_PTR kButtonStyles = 0xFFFF;
  const bool wanted = (control.flags & kDefaultButton) != 0;
  const LONG_PTR others = GetWindowLongPtrW(window, GWL_STYLE) & kButtonStyles & ~BS_TYPEMASK;
  const LONG_PTR type = wanted ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  SendMessageW(window, BM_SETSTYLE, static_cast<WPARAM>(others | type), TRUE);
}

std::string ReadText(HWND window) { return ToUtf8(ReadWideText(window)); }

int ReadListIndex(HWND window, ControlKind kind) {
  const UINT message = kind == ControlKind::kTabStrip ? TCM_GETCURSEL : CB_GETCURSEL;
  return static_cast<int>(SendMessageW(window, message, 0, 0));
}

TextSelection ReadSelection(HWND window, ControlKind kind) {
  DWORD start = 0;
  DWORD end = 0;
  const UINT message = IsComboKind(kind) ? CB_GETEDITSEL : EM_GETSEL;
  SendMessageW(window, message, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  const std::wstring text = ReadWideText(window);
  const int first = CharactersBefore(text, start);
  return {first, CharactersBefore(text, end) - first};
}

void ShowSelection(HWND window, ControlKind kind, TextSelection selection) {
  const std::wstring text = ReadWideText(window);
  const std::size_t start = UnitOfCharacter(text, selection.start);
  const std::size_t end = UnitOfCharacter(text, selection.start + selection.length);
  if (IsComboKind(kind)) {
    SendMessageW(window, CB_SETEDITSEL, 0, MAKELPARAM(start, end));
  } else {
    SendMessageW(window, EM_SETSEL, start, static_cast<LPARAM>(end));
    SendMessageW(window, EM_SCROLLCARET, 0, 0);
  }
}

}  // namespace korvale
