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

struct KindCase {
  const char* name;
  const char* title;
  NewWindow window;
  bool basic;
  bool allowed;
  /// What allows a window that is not allowed otherwise.
  bool clsOptions::*option = nullptr;
};

void PrintTo(const KindCase& kind, std::ostream* out) { *out << kind.name; }

class WindowKind : public WindowFilterTest, public testing::WithParamInterface<KindCase> {};

TEST_P(WindowKind, PassesTheChecksThatItMay) {
  const KindCase& kind = GetParam();
  const WindowHandle hwnd = desktop.Open(kind.title, kind.window);
  EXPECT_EQ(Basic(hwnd), kind.basic);
  EXPECT_EQ(Allowed(hwnd), kind.allowed);
  EXPECT_EQ(filter.IsSelectableWindow(hwnd, true, false), kind.basic && kind.allowed);
  if (kind.option == nullptr) return;
  options.Get().*kind.option = true;
  EXPECT_TRUE(Allowed(hwnd));
}

INSTANTIATE_TEST_SUITE_P(
    Windows, WindowKind,
    testing::Values(
        KindCase{"Ordinary", "Alpha", {}, true, true},
        KindCase{"BareDesktop", "Program Manager", {.className = "Progman"}, false, true},
        KindCase{"TitledLikeIt", "Program Manager", {.className = "Notepad"}, true, true},
        KindCase{"ClassLikeIt", "Program Manager", {.className = "progman"}, true, true},
        KindCase{"OfItsClass", "program manager", {.className = "Progman"}, false, true},
        KindCase{"OtherBareDesktop", "Alpha", {.className = "WorkerW"}, false, true},
        KindCase{"Start", "Start", {.className = "Windows.UI.Core.CoreWindow"}, false, true},
        KindCase{"StoreProgram", "Mail", {.className = "ApplicationFrameWindow"}, true, true},
        KindCase{"Folder", "Documents", {.className = "CabinetWClass"}, true, true},
        KindCase{"TitledStatic", "Alpha", {.className = "Static"}, true, true},
        KindCase{"UntitledStatic", "", {.className = "Static"}, false, false},
        KindCase{"UntitledLikeStatic", "", {.className = "static"}, true, false},
        KindCase{"Untitled", "", {}, true, false, &clsOptions::booAllowNoTextWindow},
        KindCase{"Hidden", "Alpha", {.visible = false}, true, true},
        KindCase{"Disabled", "Alpha", {.enabled = false}, true, true},
        KindCase{"Iconic", "Alpha", {.iconic = true}, true, true},
        KindCase{"Tool",
                 "Alpha",
                 {.exStyle = win32::kWsExToolWindow},
                 true,
                 false,
                 &clsOptions::booAllowToolbarWindow},
        KindCase{"Topmost", "Alpha", {.exStyle = win32::kWsExTopmost}, true, true},
        KindCase{"ModalFrame",
                 "Alpha",
                 {.style = win32::kDsModalFrame},
                 true,
                 false,
                 &clsOptions::booAllowModalFrameWindow},
        KindCase{"SystemModal",
                 "Alpha",
                 {.style = win32::kDsSysModal},
                 true,
                 false,
                 &clsOptions::booAllowModalFrameWindow},
        KindCase{
            "AllOfThese",
            "Alpha",
            {.style = win32::kDsModalFrame | win32::kDsSysModal, .exStyle = win32::kWsExToolWindow},
            true,
            false},
        KindCase{"WithoutAnyStyle", "Alpha", {.style = 0, .visible = false}, true, true}),
    [](const auto& param) { return param.param.name; });

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

TEST_F(WindowFilterTest, BasicChecksReadTheClassAndTheOwnerOfTheMainWindow) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  EXPECT_EQ(CallsOf([&] { Basic(hwnd); }),
            (Calls{"GetClassNameA(Alpha, 255)", "GetWindow(Main, GW_OWNER)"}));
}

TEST_F(WindowFilterTest, BasicChecksReadTheTitleOfAStaticWindowAlone) {
  const WindowHandle hwnd = desktop.Open("Alpha", {.className = "Static"});
  EXPECT_EQ(CallsOf([&] { Basic(hwnd); }),
            (Calls{"GetClassNameA(Alpha, 255)", "GetWindowTextA(Alpha, 512)",
                   "GetWindow(Main, GW_OWNER)"}));
}

TEST_F(WindowFilterTest, BasicChecksOfAnEnumerationReadTheClassAlone) {
  const WindowHandle alpha = desktop.Open("Alpha");
  const OwnWindows own = filter.FindOwnWindows();
  SeenWindow seen(desktop, alpha);
  EXPECT_EQ(CallsOf([&] { EXPECT_TRUE(filter.PassesBasicChecks(seen, own)); }),
            Calls{"GetClassNameA(Alpha, 255)"});
  SeenWindow hidden(desktop, owner);
  EXPECT_EQ(CallsOf([&] { EXPECT_FALSE(filter.PassesBasicChecks(hidden, own)); }), Calls{});
}

TEST_F(WindowFilterTest, NothingIsReadOfNoWindow) {
  EXPECT_EQ(CallsOf([&] { EXPECT_FALSE(Basic(0)); }), Calls{});
}

TEST_F(WindowFilterTest, OnlyAWindowWithoutAClassIsAskedWhetherItExists) {
  EXPECT_EQ(CallsOf([&] { EXPECT_FALSE(Basic(0x7777)); }),
            (Calls{"GetClassNameA(0x7777, 255)", "IsWindow(0x7777)"}));
}

TEST_F(WindowFilterTest, OptionChecksReadInTheirOrder) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  EXPECT_EQ(CallsOf([&] { Allowed(hwnd); }),
            (Calls{"GetWindowTextA(Alpha, 512)", "GetWindowLongA(Alpha, GWL_EXSTYLE)",
                   "GetWindowLongA(Alpha, GWL_STYLE)"}));
}

TEST_F(WindowFilterTest, BothChecksInOneVisitReadEachFactOnce) {
  const WindowHandle hwnd = desktop.Open("Alpha", {.className = "Static"});
  EXPECT_EQ(
      CallsOf([&] {
        SeenWindow seen(desktop, hwnd);
        EXPECT_TRUE(filter.IsSelectableWindow(seen, false, false));
        EXPECT_TRUE(filter.IsSelectableWindow(seen, true, true));
      }),
      (Calls{"GetClassNameA(Alpha, 255)", "GetWindowTextA(Alpha, 512)", "GetWindow(Main, GW_OWNER)",
             "GetWindowLongA(Alpha, GWL_EXSTYLE)", "GetWindowLongA(Alpha, GWL_STYLE)"}));
}

TEST_F(WindowFilterTest, FailedOptionCheckEndsTheReading) {
  const WindowHandle hwnd =
      desktop.Open("Alpha", {.exStyle = win32::kWsExToolWindow, .extraTextLength = 9});
  EXPECT_EQ(CallsOf([&] { Allowed(hwnd); }).back(), "GetWindowLongA(Alpha, GWL_EXSTYLE)");
}

}  // namespace
}  // namespace korvale
