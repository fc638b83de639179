#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "desktop/window_enumeration.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

class TopWindow : public DesktopCase {};

TEST_F(TopWindow, IsTheFirstBelowTheProgram) {
  desktop.OpenShell();
  desktop.Open("Lower");
  const WindowHandle upper = desktop.Open("Upper");
  desktop.UserActivates(mainWindow.handle);
  EXPECT_EQ(enumeration.FindTopWindow(), upper);
  EXPECT_EQ(enumeration.Fields().topWindowCount, 2);
}

TEST_F(TopWindow, PassesOverWhatCannotBeInFront) {
  const WindowHandle plain = desktop.Open("Plain");
  desktop.Open("Hidden", {.visible = false});
  desktop.Open("Disabled", {.enabled = false});
  desktop.Open("Iconic", {.iconic = true});
  desktop.Open("Topmost", {.exStyle = win32::kWsExTopmost});
  desktop.Open("Taskbar", {.className = "Shell_TrayWnd"});
  EXPECT_EQ(enumeration.FindTopWindow(), plain);
  EXPECT_EQ(enumeration.Fields().topWindowCount, 1);
}

TEST_F(TopWindow, TakesAWindowWithOtherExtendedStyles) {
  const WindowHandle tool = desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow});
  EXPECT_EQ(enumeration.FindTopWindow(), tool);
}

TEST_F(TopWindow, MeetsTheCallersConditionToo) {
  const WindowHandle lower = desktop.Open("Lower");
  desktop.Open("Upper");
  desktop.Open("Hidden", {.visible = false});
  std::vector<std::string> asked;
  const WindowHandle found = enumeration.FindTopWindow([&](WindowHandle hwnd) {
    asked.push_back(desktop.Title(hwnd));
    return hwnd == lower;
  });
  EXPECT_EQ(found, lower);
  EXPECT_EQ(asked, (std::vector<std::string>{"Upper", "Lower"}));
  EXPECT_EQ(enumeration.Fields().topWindowCount, 1);
}

TEST_F(TopWindow, ForgetsTheConditionOfTheLastSearch) {
  const WindowHandle alpha = desktop.Open("Alpha");
  EXPECT_EQ(enumeration.FindTopWindow([](WindowHandle) { return false; }), 0);
  EXPECT_EQ(enumeration.FindTopWindow(), alpha);
}

TEST_F(TopWindow, IsNoneOnAnEmptyDesktop) {
  enumeration.Fields().topWindowResult = 77;
  enumeration.Fields().topWindowCount = 5;
  EXPECT_EQ(enumeration.FindTopWindow(), 0);
  EXPECT_EQ(enumeration.Fields().topWindowCount, 0);
}

TEST_F(TopWindow, CounterOverflowsInsteadOfWidening) {
  desktop.Open("Alpha");
  enumeration.Fields().topWindowCount = std::numeric_limits<std::int16_t>::max();
  try {
    enumeration.EnumWindows(kTopWindow);
    ADD_FAILURE() << "no overflow";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), RunTimeError::kOverflow);
  }
}

TEST_F(TopWindow, ReadsInItsOrder) {
  const WindowHandle alpha = desktop.Open("Alpha", {.extraTextLength = 9});
  Calls calls = CallsOf([&] { enumeration.EnumWindowsProc(alpha, kTopWindow); });
  calls.erase(calls.begin(), calls.begin() + 5);
  EXPECT_EQ(calls, (Calls{"IsWindowVisible(Alpha)", "IsWindowEnabled(Alpha)", "IsIconic(Alpha)",
                          "GetClassNameA(Alpha, 255)", "GetWindowLongA(Alpha, GWL_EXSTYLE)"}));
}

}  // namespace
}  // namespace korvale
