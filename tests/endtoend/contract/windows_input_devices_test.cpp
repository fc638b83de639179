#include "ui/windows/windows_input_devices.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "tests/endtoend/harness/keyboard.h"
#include "ui/windows/open_forms.h"

namespace korvale {
namespace {

TEST(WindowsInputDevicesTest, AnInputOfOurOwnNeitherMovesTheMouseNorPressesAnything) {
  // Until somebody has put it somewhere, Wine and the display may not agree where the mouse is.
  endtoend::PutPointer({300, 200});
  const POINT before = endtoend::Pointer();
  const OpenForms forms;
  WindowsInputDevices input(GetModuleHandleW(nullptr), forms);

  input.SendMouseInput();

  const POINT after = endtoend::Pointer();
  EXPECT_EQ(after.x, before.x);
  EXPECT_EQ(after.y, before.y);
  for (const int button : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON, VK_MENU}) {
    EXPECT_EQ(GetAsyncKeyState(button) & 0x8000, 0) << button;
  }
}

}  // namespace
}  // namespace korvale
