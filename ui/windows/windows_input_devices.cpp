#include "ui/windows/windows_input_devices.h"

#include <utility>
#include <vector>

#include "platform/form_events.h"
#include "platform/windows/handles.h"
#include "ui/windows/window_classes.h"

namespace korvale {
namespace {

INPUT KeyInput(int virtualKey, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(virtualKey);
  input.ki.wScan =
      static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(virtualKey), MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  return input;
}

}  // namespace

void WindowsInputDevices::SetCursor(MousePointer pointer) {
  pointer_ = pointer;
  // Windows asks again only when the mouse moves.
  POINT at{};
  GetCursorPos(&at);
  if (forms_->Around(WindowFromPoint(at)) != nullptr) ::SetCursor(LoadPointer(instance_, pointer));
}

void WindowsInputDevices::SendInput(WindowHandle hwnd, int virtualKey, unsigned shift) {
  if (GetForegroundWindow() != ToHwnd(hwnd)) return;
  constexpr std::pair<unsigned, int> kShiftKeys[] = {
      {kShift, VK_SHIFT}, {kCtrl, VK_CONTROL}, {kAlt, VK_MENU}};
  std::vector<INPUT> inputs = {KeyInput(virtualKey, 0), KeyInput(virtualKey, KEYEVENTF_KEYUP)};
  for (const auto& [bit, key] : kShiftKeys) {
    if ((shift & bit) == 0) continue;
    inputs.insert(inputs.begin(), KeyInput(key, 0));
    inputs.push_back(KeyInput(key, KEYEVENTF_KEYUP));
  }
  ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void WindowsInputDevices::SendMouseInput() {
  INPUT input{};
  input.type = INPUT_MOUSE;
  ::SendInput(1, &input, sizeof(INPUT));
}

}  // namespace korvale
