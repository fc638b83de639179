#include "desktop/responsive_desktops.h"

#include <optional>

#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

class ResponsiveDesktopsTest : public DesktopCase {
 protected:
  ResponsiveDesktopsTest() {
    desktop.OpenShell();
    desktop.UserSwitchesDesktop(2);
  }

  const WindowHandle alpha = desktop.Open("Alpha", {.process = kOurProcess});
  ResponsiveDesktops desktops{desktop, desktop};
};

TEST_F(ResponsiveDesktopsTest, PassesEveryQuestionOn) {
  const VirtualDesktopId first = desktop.GetWindowDesktopId(alpha).value();
  EXPECT_EQ(desktops.IsWindowOnCurrentVirtualDesktop(alpha), false);
  EXPECT_EQ(desktops.GetWindowDesktopId(alpha), first);
  EXPECT_TRUE(desktops.MoveWindowToDesktop(alpha, first));
}

TEST_F(ResponsiveDesktopsTest, AsksNothingOfAShellThatHangs) {
  const VirtualDesktopId first = desktop.GetWindowDesktopId(alpha).value();
  desktop.SetHung(desktop.GetShellWindow(), true);
  const Calls calls = CallsOf([&] {
    EXPECT_EQ(desktops.IsWindowOnCurrentVirtualDesktop(alpha), std::nullopt);
    EXPECT_EQ(desktops.GetWindowDesktopId(alpha), std::nullopt);
    EXPECT_FALSE(desktops.MoveWindowToDesktop(alpha, first));
  });
  const Calls once = {"GetShellWindow()", "IsHungAppWindow(Program Manager)"};
  Calls expected;
  for (int question = 0; question < 3; ++question) {
    expected.insert(expected.end(), once.begin(), once.end());
  }
  EXPECT_EQ(calls, expected);
}

}  // namespace
}  // namespace korvale
