#include <ostream>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fakes/windows_numbers.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

struct Surface {
  const char* className;
  const char* title;
};

void PrintTo(const Surface& surface, std::ostream* out) { *out << surface.className; }

constexpr Surface kSurfaces[] = {
    {"Windows.UI.Core.CoreWindow", "Search"},
    {"ControlCenterWindow", ""},
    {"WindowsDashboard", "Widgets"},
    {"XamlExplorerHostIslandWindow", ""},
    {"MultitaskingViewFrame", "Task View"},
    {"TaskSwitcherWnd", "Task Switching"},
    {"#32771", ""},
    {"ForegroundStaging", ""},
    {"Shell_TrayWnd", ""},
    {"Shell_SecondaryTrayWnd", ""},
    {"NotifyIconOverflowWindow", ""},
    {"TopLevelWindowForOverflowXamlIsland", "System tray overflow window."},
    {"TaskListThumbnailWnd", ""},
    {"TaskListOverlayWnd", ""},
    {"LauncherTipWnd", ""},
    {"#32768", ""},
    {"Shell_InputSwitchTopLevelWindow", ""},
    {"Progman", "Program Manager"},
    {"Progman", "Desktop"},
    {"WorkerW", ""},
};

/// The user has come from Beta to Alpha, and looks into a part of the shell in between.
class ShellSurfaceTest : public KorvaleWorld, public testing::WithParamInterface<Surface> {
 protected:
  ShellSurfaceTest() {
    WorkIn(beta);
    WorkIn(alpha);
  }

  void SetUp() override {
    const Surface& surface = GetParam();
    surface_ = desktop.Open(surface.title, {.className = surface.className,
                                            .style = fakes::kWsOverlappedWindow | fakes::kWsPopup,
                                            .activate = false,
                                            .onEveryDesktop = true});
  }

  void AllowEveryKind() {
    korvale.Options().booAllowNoTextWindow = true;
    korvale.Options().booAllowToolbarWindow = true;
    korvale.Options().booAllowModalFrameWindow = true;
  }

  const WindowHandle beta = Open("Beta");
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedCopy();
  WindowHandle surface_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Windows, ShellSurfaceTest, testing::ValuesIn(kSurfaces));

TEST_P(ShellSurfaceTest, AVisitChangesNothing) {
  for (const bool everyKind : {false, true}) {
    if (everyKind) AllowEveryKind();
    WorkIn(surface_);
    EXPECT_EQ(korvale.TargetWindow(), "Alpha");
    WorkIn(alpha);
    ExpectTagLeadsTo(0, "Beta");
    ExpectTagLeadsTo(0, "Alpha");
  }
}

TEST_P(ShellSurfaceTest, TheWayBackLeadsOnFromThere) {
  AllowEveryKind();
  WorkIn(surface_);
  ExpectTagLeadsTo(0, "Beta");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_P(ShellSurfaceTest, ClosedByEscItChangesNothing) {
  AllowEveryKind();
  WorkIn(surface_);
  desktop.Hide(surface_);
  LetTick();
  EXPECT_EQ(Front(), "Alpha");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_P(ShellSurfaceTest, TheKeysThatMinimizeAndMaximizeLeaveItAlone) {
  AllowEveryKind();
  WorkIn(surface_);
  log.Clear();
  PressHotKey(win32::kModAlt, win32::kVkDown);
  PressHotKey(win32::kModAlt, win32::kVkUp);
  EXPECT_EQ(log.CallsOf("ShowWindow"), std::vector<std::string>{});
  EXPECT_EQ(desktop.GetForegroundWindow(), surface_);
}

TEST_P(ShellSurfaceTest, MinimizeAllLeavesItAlone) {
  AllowEveryKind();
  WorkIn(korvale.Handle());
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Minimize All"});
  EXPECT_TRUE(desktop.IsIconic(alpha));
  EXPECT_FALSE(desktop.IsIconic(surface_));
}

TEST_P(ShellSurfaceTest, NoTagStandsForIt) {
  if (std::string(GetParam().title).empty()) return;
  AllowEveryKind();
  WorkIn(alpha);
  AddTagEntry(korvale.Tags(), 3, "&3  " + std::string(GetParam().title));
  korvale.ExpectBox("Window:  [" + std::string(GetParam().title) + "]  is not open.", win32::kIdOk);
  PressTag(3);
  EXPECT_EQ(Front(), "Alpha");
}

TEST_P(ShellSurfaceTest, OnceOptionsClosesOverItTheUserIsBack) {
  AllowEveryKind();
  const std::string name = GetParam().className;
  const bool bareDesktop = name == "Progman" || name == "WorkerW";
  WorkIn(surface_);
  PressHotKey(win32::kModWin, 'O');
  korvale.user.PressCloseBox(korvale.Loaded("frmOptions").Handle());
  LetTick();
  EXPECT_EQ(desktop.GetForegroundWindow(), bareDesktop ? surface_ : alpha);
  WorkIn(alpha);
  ExpectTagLeadsTo(0, "Beta");
}

/// The user works in Alpha, then opens Start, which goes as soon as anything else comes forward.
class OverStart : public KorvaleWorld {
 protected:
  OverStart() {
    WorkIn(korvale.Handle());
    WorkIn(alpha);
    AddTagEntry(korvale.Tags(), 3, "&3  Nothing");
    desktop.UserActivates(desktop.FindWindowA("Start"));
  }

  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedCopy();
};

TEST_F(OverStart, TheUserIsBackInTheirWindowAfterAMessage) {
  for (const bool noticed : {false, true}) {
    desktop.UserActivates(desktop.FindWindowA("Start"));
    if (noticed) LetTick();
    korvale.ExpectBox("Window:  [Nothing]  is not open.", win32::kIdOk);
    PressTag(3);
    EXPECT_EQ(Front(), "Alpha") << noticed;
  }
}

TEST_F(OverStart, TheUserIsBackInOptionsAfterAMessageAboveIt) {
  PressHotKey(win32::kModWin, 'O');
  LetTick();
  const std::string options = Front();
  desktop.UserActivates(desktop.FindWindowA("Start"));
  LetTick();
  korvale.ExpectBox("Window:  [Nothing]  is not open.", win32::kIdOk);
  PressTag(3);
  EXPECT_EQ(options, "Korvale - Options");
  EXPECT_EQ(Front(), options);
}

TEST_F(OverStart, TheUserIsBackInTheirWindowAfterThePopUp) {
  korvale.host.WhenPopupMenu([](const std::vector<ShownMenuItem>&) { return ""; });
  PressHotKey(win32::kModWin, 'W');
  EXPECT_EQ(Front(), "Alpha");
}

class OverStartATip : public OverStart {
 protected:
  void SeeATip() {
    korvale.host.WhenModal("frmMsgTip", [&](class Form& tip) {
      korvale.user.PressKey(tip.Handle(), win32::kVkEscape);
    });
    korvale.Form().ShowTip(TipNumber::kCommandLine, "Text", "TIP", 3000);
  }
};

TEST_F(OverStartATip, TheUserIsBackInTheirWindow) {
  SeeATip();
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(OverStartATip, AUserWhoCameFromTheMainWindowIsBackThere) {
  WorkIn(korvale.Handle());
  desktop.UserActivates(desktop.FindWindowA("Start"));
  LetTick();
  SeeATip();
  EXPECT_EQ(desktop.GetForegroundWindow(), korvale.Handle());
}

}  // namespace
}  // namespace korvale
