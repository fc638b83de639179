#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

using Calls = std::vector<std::string>;

constexpr std::int32_t kNoMinimizeBox = fakes::kWsOverlappedWindow & ~win32::kWsMinimizeBox;
constexpr std::int32_t kNoMaximizeBox = fakes::kWsOverlappedWindow & ~win32::kWsMaximizeBox;

/// Alpha, then Beta have been worked in; Alt+Down and Alt+Up are pressed.
class ForegroundKeysTest : public KorvaleWorld {
 protected:
  ForegroundKeysTest() {
    log.NameWindow(korvale.Handle(), "Korvale");
    WorkIn(alpha);
    WorkIn(beta);
  }

  /// The calls that the key made on the windows of the desktop.
  Calls Press(int key) {
    log.Clear();
    PressHotKey(win32::kModAlt, static_cast<std::uint32_t>(key));
    Calls calls = log.Take();
    std::erase_if(calls,
                  [](const std::string& call) { return call.starts_with("CallWindowProc"); });
    return calls;
  }
  Calls PressMinimize() { return Press(win32::kVkDown); }
  Calls PressMaximize() { return Press(win32::kVkUp); }

  const WindowHandle alpha = Open("Alpha");
  const WindowHandle beta = Open("Beta");
  KorvaleCopy& korvale = StartedCopy();
};

TEST_F(ForegroundKeysTest, MinimizeGoesBackToTheWindowBefore) {
  const WindowHandle gamma = Open("Gamma");
  WorkIn(alpha);
  desktop.Open("", {.className = "Untitled"});
  WorkIn(gamma);
  EXPECT_EQ(PressMinimize(),
            (Calls{"ShowWindowAsync(Gamma, SW_MINIMIZE)", "SetForegroundWindow(Alpha)"}));
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

TEST_F(ForegroundKeysTest, MinimizeSendsNoWindowForwardThatWindowsHasChosenItself) {
  EXPECT_EQ(PressMinimize(), Calls{"ShowWindowAsync(Beta, SW_MINIMIZE)"});
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(ForegroundKeysTest, MinimizeInKorvaleGoesBackToThePreviousWindow) {
  desktop.Open("", {.className = "Untitled"});
  WorkIn(korvale.Handle());
  EXPECT_EQ(PressMinimize(),
            (Calls{"ShowWindow(Korvale, SW_MINIMIZE)", "SetForegroundWindow(Beta)"}));
  EXPECT_TRUE(desktop.IsIconic(korvale.Handle()));
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(ForegroundKeysTest, MinimizeInADialogTakesItsProgramDown) {
  desktop.Open("Find", {.owner = beta, .style = kNoMaximizeBox});
  LetTick();
  EXPECT_EQ(PressMinimize().front(), "ShowWindowAsync(Beta, SW_MINIMIZE)");
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_FALSE(desktop.IsWindowVisible(desktop.FindWindowA("Find")));
}

TEST_F(ForegroundKeysTest, MinimizeLeavesAWindowWithoutMinimizeBoxInFront) {
  WorkIn(desktop.Open("Fixed", {.style = kNoMinimizeBox}));
  EXPECT_EQ(PressMinimize(), Calls{});
  EXPECT_EQ(Front(), "Fixed");
}

TEST_F(ForegroundKeysTest, MinimizeLeavesADisabledWindowInFront) {
  desktop.SetEnabled(beta, false);
  EXPECT_EQ(PressMinimize(), Calls{});
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(ForegroundKeysTest, MinimizeDoesNotUnfoldAMinimizedWindowBefore) {
  desktop.UserMinimizes(alpha);
  EXPECT_EQ(PressMinimize(), Calls{"ShowWindowAsync(Beta, SW_MINIMIZE)"});
  EXPECT_TRUE(desktop.IsIconic(alpha));
}

TEST_F(ForegroundKeysTest, MinimizeWithTheWindowBeforeClosedSaysNothing) {
  desktop.Close(alpha);
  EXPECT_EQ(PressMinimize(), Calls{"ShowWindowAsync(Beta, SW_MINIMIZE)"});
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(ForegroundKeysTest, KeysDoNotWaitForAHungWindow) {
  desktop.SetHung(beta, true);
  EXPECT_EQ(PressMaximize(), Calls{"ShowWindowAsync(Beta, SW_MAXIMIZE)"});
  EXPECT_EQ(PressMinimize().front(), "ShowWindowAsync(Beta, SW_MINIMIZE)");
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
}

TEST_F(ForegroundKeysTest, MaximizeTogglesTheWindowInFront) {
  EXPECT_EQ(PressMaximize(), Calls{"ShowWindowAsync(Beta, SW_MAXIMIZE)"});
  EXPECT_TRUE(desktop.IsZoomed(beta));
  EXPECT_EQ(PressMaximize(), Calls{"ShowWindowAsync(Beta, SW_RESTORE)"});
  EXPECT_FALSE(desktop.IsZoomed(beta));
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(ForegroundKeysTest, MaximizeLeavesOtherWindowsAlone) {
  desktop.SetEnabled(beta, false);
  EXPECT_EQ(PressMaximize(), Calls{});
  WorkIn(desktop.Open("Fixed", {.style = kNoMaximizeBox}));
  EXPECT_EQ(PressMaximize(), Calls{});
  desktop.LoseForeground();
  EXPECT_EQ(PressMaximize(), Calls{});
}

TEST_F(ForegroundKeysTest, TimersRestWhileAKeyWorks) {
  bool running = true;
  log.WhenCalled("ShowWindowAsync(Beta", [&] { running = korvale.Form().tmrWindow().Enabled(); });
  PressMinimize();
  EXPECT_FALSE(running);
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

}  // namespace
}  // namespace korvale
