#include "ui/windows/key_filter.h"

namespace korvale {
namespace {

/// In a key message: the key was down before.
constexpr LPARAM kWasDown = 1L << 30;

/// Keys and characters are no greater, whatever another program posts.
constexpr WPARAM kHighestUnit = 0xFFFF;

/// Half of a character, which the form is not asked about: no access key is one of those that come
/// in halves, and the control puts them together itself.
bool IsSurrogate(WPARAM unit) { return unit >= 0xD800 && unit <= 0xDFFF; }

}  // namespace

unsigned HeldShiftState() {
  unsigned shift = kNoShift;
  if (GetKeyState(VK_SHIFT) < 0) shift |= kShift;
  if (GetKeyState(VK_CONTROL) < 0) shift |= kCtrl;
  if (GetKeyState(VK_MENU) < 0) shift |= kAlt;
  if (GetKeyState(VK_LWIN) < 0 || GetKeyState(VK_RWIN) < 0) shift |= kWindows;
  return shift;
}

bool KeyFilter::Filter(const MSG& message) {
  if (message.wParam > kHighestUnit) return false;
  const int control = controls_->IdOf(message.hwnd);
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      return FilterDown(control, message);
    case WM_KEYUP:
    case WM_SYSKEYUP:
      return FilterUp(control, message);
    case WM_CHAR:
    case WM_SYSCHAR:
      return FilterCharacter(control, message);
    default:
      return false;
  }
}

bool KeyFilter::FilterDown(int control, const MSG& message) {
  const auto key = static_cast<int>(message.wParam);
  ShowCues(key);
  const bool repeated = (message.lParam & kWasDown) != 0;
  return events_->Ask([&](FormEvents& events) {
    return events.OnKeyDown(control, key, HeldShiftState(), repeated);
  });
}

bool KeyFilter::FilterUp(int control, const MSG& message) {
  const auto key = static_cast<int>(message.wParam);
  return events_->Ask(
      [&](FormEvents& events) { return events.OnKeyUp(control, key, HeldShiftState()); });
}

bool KeyFilter::FilterCharacter(int control, const MSG& message) {
  if (IsSurrogate(message.wParam)) return false;
  return events_->Ask([&](FormEvents& events) {
    return events.OnCharacter(control, static_cast<char32_t>(message.wParam), HeldShiftState());
  });
}

/// Dialogs of Windows do the same: using the keyboard shows the underlines.
void KeyFilter::ShowCues(int virtualKey) const {
  const bool keyboardWay = virtualKey == VK_MENU || virtualKey == VK_F10 || virtualKey == VK_TAB ||
                           (virtualKey >= VK_LEFT && virtualKey <= VK_DOWN);
  if (keyboardWay) {
    SendMessageW(form_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL | UISF_HIDEFOCUS),
                 0);
  }
}

}  // namespace korvale
