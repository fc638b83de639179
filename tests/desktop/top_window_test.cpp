#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "desktop/window_enumeration.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/desktop/desktop_case.h"
#include "tests/fakes/error_of.h"

namespace korvale {
namespace {

/// More windows than the counter can count, all of them the same one.
class CrowdedDesktop : public FakeDesktop {
 public:
  using FakeDesktop::FakeDesktop;
  void EnumWindows(const std::function<bool(WindowHandle)>& visit) override {
    const WindowHandle hwnd = Windows().TopLevel().front();
    for (int i = 0; i <= std::numeric_limits<std::int16_t>::max(); ++i) visit(hwnd);
  }
};

class TopWindow : public DesktopCase {};

TEST_F(TopWindow, IsTheFirstBelowTheProgram) {
  desktop.OpenShell();
  desktop.Open("Lower");
  const WindowHandle upper = desktop.Open("Upper");
  desktop.UserActivates(mainWindow.handle);
  EXPECT_EQ(enumeration.FindTopWindow(), upper);
}

TEST_F(TopWindow, PassesOverWhatCannotBeInFront) {
  const WindowHandle plain = desktop.Open("Plain");
  desktop.Open("Hidden", {.visible = false});
  desktop.Open("Disabled", {.enabled = false});
  desktop.Open("Iconic", {.iconic = true});
  desktop.Open("Topmost", {.exStyle = win32::kWsExTopmost});
  desktop.Open("Taskbar", {.className = "Shell_TrayWnd"});
  EXPECT_EQ(enumeration.FindTopWindow(), plain);
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
  const WindowHandle found = enumeration.FindTopWindow([&](SeenWindow& window) {
    asked.emplace_back(window.Title());
    return window.Handle() == lower;
  });
  EXPECT_EQ(found, lower);
  EXPECT_EQ(asked, (std::vector<std::string>{"Upper", "Lower"}));
}

TEST_F(TopWindow, OnlyWhatMeetsTheConditionIsCounted) {
  CrowdedDesktop crowded(log);
  const WindowHandle alpha = crowded.Open("Alpha");
  const WindowFilter crowdedFilter(crowded, crowded, options, forms, mainWindow);
  WindowEnumeration counting(crowded, routines.requests, crowdedFilter, mainWindow, passes);
  bool first = true;
  EXPECT_EQ(counting.FindTopWindow([&](SeenWindow&) { return std::exchange(first, false); }),
            alpha);
}

TEST_F(TopWindow, ForgetsTheConditionOfTheLastSearch) {
  const WindowHandle alpha = desktop.Open("Alpha");
  EXPECT_EQ(enumeration.FindTopWindow([](SeenWindow&) { return false; }), 0);
  EXPECT_EQ(enumeration.FindTopWindow(), alpha);
}

TEST_F(TopWindow, IsNoneOnAnEmptyDesktop) {
  const WindowHandle alpha = desktop.Open("Alpha");
  EXPECT_EQ(enumeration.FindTopWindow(), alpha);
  desktop.Close(alpha);
  EXPECT_EQ(enumeration.FindTopWindow(), 0);
}

TEST_F(TopWindow, CounterOverflowsInsteadOfWidening) {
  CrowdedDesktop crowded(log);
  crowded.Open("Alpha");
  const WindowFilter crowdedFilter(crowded, crowded, options, forms, mainWindow);
  WindowEnumeration counting(crowded, routines.requests, crowdedFilter, mainWindow, passes);
  EXPECT_EQ(ErrorOf([&] { counting.FindTopWindow(); }), RunTimeError::kOverflow);
}

TEST_F(TopWindow, ReadsInItsOrder) {
  const WindowHandle alpha = desktop.Open("Alpha");
  const Calls calls = CallsOf([&] { enumeration.EnumWindowsProc(alpha, kTopWindow); });
  EXPECT_EQ(calls, (Calls{"GetWindow(Main, GW_OWNER)", "GetWindowLongA(Alpha, GWL_STYLE)",
                          "GetWindowLongA(Alpha, GWL_EXSTYLE)", "GetClassNameA(Alpha, 255)",
                          "DwmGetWindowAttribute(Alpha)"}));
}

}  // namespace
}  // namespace korvale
