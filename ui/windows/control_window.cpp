#include "ui/windows/control_window.h"

// After windows.h, which it needs.
#include <commctrl.h>

#include "platform/windows/handles.h"
#include "platform/windows/text.h"

namespace korvale {
namespace {

struct WindowKind {
  const wchar_t* className;
  DWORD style;
  DWORD exStyle = 0;
};

bool Has(const ControlState& control, unsigned flag) { return (control.flags & flag) != 0; }

WindowKind LabelKind(const ControlState& control) {
  DWORD style = SS_LEFTNOWORDWRAP;
  if (Has(control, kWordWrap)) style = SS_LEFT;
  if (Has(control, kCentered)) style = SS_CENTER;
  if (Has(control, kNoPrefix)) style |= SS_NOPREFIX;
  if (Has(control, kClickable)) style |= SS_NOTIFY;
  if (control.border) style |= WS_BORDER;
  return {WC_STATICW, style};
}

WindowKind TextBoxKind(const ControlState& control) {
  DWORD style = Has(control, kWordWrap) ? ES_MULTILINE | ES_AUTOVSCROLL : ES_AUTOHSCROLL;
  if (Has(control, kReadOnly)) style |= ES_READONLY;
  if (Has(control, kCentered)) style |= ES_CENTER;
  if (control.border) return {WC_EDITW, style | WS_BORDER};
  return {WC_EDITW, style, WS_EX_CLIENTEDGE};
}

DWORD ButtonStyle(const ControlState& control) {
  DWORD style = Has(control, kWordWrap) ? BS_MULTILINE : 0;
  switch (control.kind) {
    case ControlKind::kCheckBox:
      return style | BS_CHECKBOX;
    case ControlKind::kOptionButton:
      return style | BS_RADIOBUTTON;
    default:
      return style | (Has(control, kDefaultButton) ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
  }
}

WindowKind KindOf(const ControlState& control, const wchar_t* pageClass) {
  constexpr DWORD kCombo = WS_VSCROLL | CBS_AUTOHSCROLL | CBS_HASSTRINGS;
  switch (control.kind) {
    case ControlKind::kLabel:
      return LabelKind(control);
    case ControlKind::kLine:
      return {WC_STATICW,
              static_cast<DWORD>(control.place.width >= control.place.height ? SS_ETCHEDHORZ
                                                                             : SS_ETCHEDVERT)};
    case ControlKind::kTextBox:
      return TextBoxKind(control);
    case ControlKind::kButton:
    case ControlKind::kCheckBox:
    case ControlKind::kOptionButton:
      return {WC_BUTTONW, ButtonStyle(control)};
    case ControlKind::kDropDownList:
      return {WC_COMBOBOXW, kCombo | CBS_DROPDOWNLIST};
    case ControlKind::kComboBox:
      return {WC_COMBOBOXW, kCombo | CBS_DROPDOWN};
    case ControlKind::kFrame:
      // Windows paints only the border; the page can paint what is inside only when it is not
      // clipped there.
      return {WC_BUTTONW, BS_GROUPBOX, WS_EX_TRANSPARENT};
    case ControlKind::kPage:
      return {pageClass, WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
    case ControlKind::kTabStrip:
      // The strip lies below the pages, which are its neighbours.
      return {WC_TABCONTROLW, WS_CLIPSIBLINGS};
    case ControlKind::kImage:
      return {WC_STATICW, static_cast<DWORD>(SS_ICON | SS_CENTERIMAGE) |
                              (Has(control, kClickable) ? SS_NOTIFY : 0U)};
    case ControlKind::kTimer:
      break;
  }
  return {nullptr, 0};
}

/// Fields with a text of their own show "&" as it is, and so does a label that is told to
/// (SS_NOPREFIX); the other kinds have no such style.
bool ShowsAmpersands(const ControlState& control) {
  switch (control.kind) {
    case ControlKind::kLabel:
      return Has(control, kNoPrefix);
    case ControlKind::kTextBox:
    case ControlKind::kDropDownList:
    case ControlKind::kComboBox:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool HasWindow(ControlKind kind) { return kind != ControlKind::kTimer; }

bool IsButtonKind(ControlKind kind) {
  return kind == ControlKind::kButton || kind == ControlKind::kCheckBox ||
         kind == ControlKind::kOptionButton;
}

bool IsComboKind(ControlKind kind) {
  return kind == ControlKind::kDropDownList || kind == ControlKind::kComboBox;
}

std::wstring WindowText(const ControlState& control) {
  std::wstring text = ToUtf16(control.text);
  if (!Has(control, kNoPrefix) || ShowsAmpersands(control)) return text;
  for (std::size_t at = text.find(L'&'); at != std::wstring::npos; at = text.find(L'&', at + 2)) {
    text.insert(at, 1, L'&');
  }
  return text;
}

HWND CreateControlWindow(const ControlState& control, HWND parent, HINSTANCE instance,
                         const wchar_t* pageClass) {
  const WindowKind kind = KindOf(control, pageClass);
  if (kind.className == nullptr) return nullptr;
  const bool text = !IsComboKind(control.kind) && control.kind != ControlKind::kImage;
  HWND window = CreateWindowExW(
      kind.exStyle, kind.className, text ? WindowText(control).c_str() : L"", kind.style | WS_CHILD,
      0, 0, 0, 0, parent, static_cast<HMENU>(LongToHandle(control.id)), instance, nullptr);
  if (window == nullptr) return nullptr;
  if (control.kind == ControlKind::kTextBox) SendMessageW(window, EM_SETLIMITTEXT, 0, 0);
  // An option button must not click itself when it gets the focus.
  if (control.kind == ControlKind::kOptionButton) SendMessageW(window, BM_SETDONTCLICK, TRUE, 0);
  if (control.kind == ControlKind::kTabStrip) {
    SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  return window;
}

}  // namespace korvale
