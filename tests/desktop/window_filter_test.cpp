#include "desktop/window_filter.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

class WindowFilterTest : public DesktopCase {
 protected:
  bool Basic(WindowHandle hwnd) { return filter.IsSelectableWindow(hwnd, false, false); }
  bool Allowed(WindowHandle hwnd) { return filter.IsSelectableWindow(hwnd, true, true); }

  WindowHandle Styled(std::int32_t style, std::int32_t exStyle) {
    return desktop.Open("Alpha", {.style = style, .exStyle = exStyle});
  }
};

TEST_F(WindowFilterTest, OrdinaryWindowPassesAllChecks) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  EXPECT_TRUE(Basic(hwnd));
  EXPECT_TRUE(Allowed(hwnd));
  EXPECT_TRUE(filter.IsSelectableWindow(hwnd, true, false));
}

TEST_F(WindowFilterTest, NoWindowFailsTheBasicChecks) {
  EXPECT_FALSE(Basic(0));
  EXPECT_FALSE(Basic(0x7777));
}

TEST_F(WindowFilterTest, ClosedWindowFailsTheBasicChecks) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  desktop.Close(hwnd);
  EXPECT_FALSE(Basic(hwnd));
}

TEST_F(WindowFilterTest, HiddenOwnerOfTheMainWindowFailsTheBasicChecks) {
  EXPECT_FALSE(Basic(owner));
}

TEST_F(WindowFilterTest, MainWindowPassesTheBasicChecks) { EXPECT_TRUE(Basic(mainWindow.handle)); }

TEST_F(WindowFilterTest, DesktopWindowFailsTheBasicChecks) {
  EXPECT_FALSE(Basic(desktop.Open("Program Manager", {.className = "Progman"})));
}

TEST_F(WindowFilterTest, ProgramManagerOfAnotherClassPasses) {
  EXPECT_TRUE(Basic(desktop.Open("Program Manager", {.className = "Notepad"})));
  EXPECT_TRUE(Basic(desktop.Open("Program Manager", {.className = "progman"})));
}

TEST_F(WindowFilterTest, ProgmanWithAnotherTitlePasses) {
  EXPECT_TRUE(Basic(desktop.Open("program manager", {.className = "Progman"})));
}

TEST_F(WindowFilterTest, UntitledStaticFailsTheBasicChecks) {
  EXPECT_FALSE(Basic(desktop.Open("", {.className = "Static"})));
}

TEST_F(WindowFilterTest, UntitledWindowOfAnotherClassPassesTheBasicChecks) {
  EXPECT_TRUE(Basic(desktop.Open("", {.className = "Edit"})));
  EXPECT_TRUE(Basic(desktop.Open("", {.className = "static"})));
}

TEST_F(WindowFilterTest, TitledStaticPassesTheBasicChecks) {
  EXPECT_TRUE(Basic(desktop.Open("Alpha", {.className = "Static"})));
}

TEST_F(WindowFilterTest, AboutBoxFailsTheBasicChecksWhileItIsLoaded) {
  const WindowHandle about = desktop.Open("About");
  EXPECT_TRUE(Basic(about));
  forms.Load("FRMmsgbox2", about);
  EXPECT_FALSE(Basic(about));
  EXPECT_TRUE(Basic(desktop.Open("Alpha")));
}

TEST_F(WindowFilterTest, AboutBoxWithoutAWindowExcludesNothing) {
  forms.Load("frmMsgBox2", 0);
  EXPECT_TRUE(Basic(desktop.Open("Alpha")));
}

TEST_F(WindowFilterTest, HiddenDisabledAndIconicWindowsPassTheBasicChecks) {
  EXPECT_TRUE(Basic(desktop.Open("Hidden", {.visible = false})));
  EXPECT_TRUE(Basic(desktop.Open("Disabled", {.enabled = false})));
  EXPECT_TRUE(Basic(desktop.Open("Iconic", {.iconic = true})));
}

TEST_F(WindowFilterTest, BasicChecksIgnoreStylesAndOptions) {
  EXPECT_TRUE(Basic(Styled(win32::kDsModalFrame | win32::kDsSysModal, win32::kWsExToolWindow)));
}

TEST_F(WindowFilterTest, UntitledWindowNeedsTheOption) {
  const WindowHandle hwnd = desktop.Open("");
  EXPECT_FALSE(Allowed(hwnd));
  options.Get().booAllowNoTextWindow = true;
  EXPECT_TRUE(Allowed(hwnd));
}

TEST_F(WindowFilterTest, ToolWindowNeedsTheOption) {
  const WindowHandle hwnd = Styled(fakes::kWsOverlappedWindow, win32::kWsExToolWindow);
  EXPECT_FALSE(Allowed(hwnd));
  options.Get().booAllowToolbarWindow = true;
  EXPECT_TRUE(Allowed(hwnd));
}

TEST_F(WindowFilterTest, OtherExtendedStylesNeedNoOption) {
  EXPECT_TRUE(Allowed(Styled(fakes::kWsOverlappedWindow, 0)));
  EXPECT_TRUE(Allowed(Styled(fakes::kWsOverlappedWindow, win32::kWsExTopmost)));
}

TEST_F(WindowFilterTest, ModalFrameNeedsTheOption) {
  const WindowHandle hwnd = Styled(win32::kDsModalFrame, 0);
  EXPECT_FALSE(Allowed(hwnd));
  options.Get().booAllowModalFrameWindow = true;
  EXPECT_TRUE(Allowed(hwnd));
}

TEST_F(WindowFilterTest, SystemModalNeedsTheOption) {
  const WindowHandle hwnd = Styled(win32::kDsSysModal, 0);
  EXPECT_FALSE(Allowed(hwnd));
  options.Get().booAllowModalFrameWindow = true;
  EXPECT_TRUE(Allowed(hwnd));
}

TEST_F(WindowFilterTest, OptionsDialogIsAllowedWithItsModalFrame) {
  const WindowHandle dialog = Styled(win32::kDsModalFrame, 0);
  forms.Load("FRMOPTIONS", dialog);
  EXPECT_TRUE(Allowed(dialog));
  EXPECT_FALSE(Allowed(Styled(win32::kDsModalFrame, 0)));
}

TEST_F(WindowFilterTest, OptionsDialogIsNotAllowedWhenSystemModal) {
  const WindowHandle dialog = Styled(win32::kDsModalFrame | win32::kDsSysModal, 0);
  forms.Load("frmOptions", dialog);
  EXPECT_FALSE(Allowed(dialog));
}

TEST_F(WindowFilterTest, WindowWithoutAnyStyleIsAllowed) {
  EXPECT_TRUE(Allowed(desktop.Open("Alpha", {.style = 0, .visible = false})));
}

TEST_F(WindowFilterTest, OptionChecksAloneLetTheDesktopWindowPass) {
  EXPECT_TRUE(Allowed(desktop.Open("Program Manager", {.className = "Progman"})));
}

TEST_F(WindowFilterTest, BothChecksTogetherNeedBoth) {
  EXPECT_FALSE(filter.IsSelectableWindow(owner, true, false));
  EXPECT_FALSE(filter.IsSelectableWindow(desktop.Open(""), true, false));
}

TEST_F(WindowFilterTest, NoCheckAtAllPassesAnything) {
  EXPECT_TRUE(filter.IsSelectableWindow(owner, false, true));
  EXPECT_TRUE(filter.IsSelectableWindow(0, false, true));
}

TEST_F(WindowFilterTest, OptionChecksNeedTheOptions) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  options.Release();
  EXPECT_TRUE(Basic(hwnd));
  EXPECT_THROW(Allowed(hwnd), RunTimeError);
}

TEST_F(WindowFilterTest, BasicChecksReadInTheirOrder) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  EXPECT_EQ(
      CallsOf([&] { Basic(hwnd); }),
      (Calls{"GetWindowTextLengthA(Alpha)", "GetWindowTextA(Alpha, 6)", "GetWindowTextA(Alpha, 64)",
             "GetClassNameA(Alpha, 255)", "IsWindow(Alpha)", "GetWindow(Main, GW_OWNER)"}));
}

TEST_F(WindowFilterTest, ClassIsReadEvenOfNoWindow) {
  EXPECT_EQ(CallsOf([&] { Basic(0); }),
            (Calls{"GetWindowTextLengthA(0)", "GetWindowTextA(0, 1)", "GetClassNameA(0, 255)"}));
}

TEST_F(WindowFilterTest, OptionChecksReadInTheirOrder) {
  const WindowHandle hwnd = desktop.Open("Alpha", {.extraTextLength = 9});
  EXPECT_EQ(CallsOf([&] { Allowed(hwnd); }),
            (Calls{"GetWindowTextLengthA(Alpha)", "GetWindowTextA(Alpha, 15)",
                   "GetWindowLongA(Alpha, GWL_EXSTYLE)", "GetWindowLongA(Alpha, GWL_STYLE)"}));
}

TEST_F(WindowFilterTest, FailedOptionCheckEndsTheReading) {
  const WindowHandle hwnd =
      desktop.Open("Alpha", {.exStyle = win32::kWsExToolWindow, .extraTextLength = 9});
  EXPECT_EQ(CallsOf([&] { Allowed(hwnd); }).back(), "GetWindowLongA(Alpha, GWL_EXSTYLE)");
}

}  // namespace
}  // namespace korvale
