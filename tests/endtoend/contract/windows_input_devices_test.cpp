#include "ui/windows/windows_input_devices.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "ui/windows/open_forms.h"

namespace korvale {
namespace {

TEST(WindowsInputDevicesTest, AnInputOfOurOwnNeitherMovesTheMouseNorPressesAnything) {
  POINT before{};
  ASSERT_TRUE(GetCursorPos(&before));
  const OpenForms forms;
  WindowsInputDevices input(GetModuleHandleW(nullptr), forms);

  input.SendMouseInput();

  POINT after{};
  ASSERT_TRUE(GetCursorPos(&after));
  EXPECT_EQ(after.x, before.x);
  EXPECT_EQ(after.y, before.y);
  for (const int button : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON, VK_MENU}) {
    EXPECT_EQ(GetAsyncKeyState(button) & 0x8000, 0) << button;
  }
}

}  // namespace
}  // namespace korvale
