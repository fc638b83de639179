#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

constexpr const char* kShellsTip =
    "These hot keys are not available, because Windows or another program has them:  Windows®+O, "
    "Windows®+W.\r\rIf you wish, other hot keys can be chosen on the Hot Keys tab of the Options "
    "dialog box  (Options... on the Tools menu).";

using RefusedHotKeys = StartTest;

TEST_F(RefusedHotKeys, AreNamedOnceTheyHaveBeenRegistered) {
  hotKeys.StartShell();
  StoreTag(1, "Alpha");
  Open("Alpha");
  KorvaleCopy& korvale = UsedCopy();
  std::string tip;
  Twips height = 0;
  ReadTip(korvale, tip, &height);

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(tip, kShellsTip);
  EXPECT_EQ(height, 3600);
  EXPECT_EQ(Front(), "Korvale - Work");
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(RefusedHotKeys, LeaveTheWindowBeforeAsThePreviousOneAndInFrontWhenItIsSelected) {
  hotKeys.StartShell();
  WorkIn(Open("Alpha"));
  KorvaleCopy& korvale = UsedCopy();
  StoreOption("SelectPrevWinOnStart", "True");
  std::string tip;
  ReadTip(korvale, tip);

  EXPECT_TRUE(korvale.Start());
  LetTick();

  EXPECT_EQ(tip, kShellsTip);
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
}

TEST_F(RefusedHotKeys, AreNamedBeforeTheFirstRunAsksToReviewThem) {
  hotKeys.StartShell();
  KorvaleCopy& korvale = NewCopy();
  std::string tip;
  ReadTip(korvale, tip);
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    EXPECT_EQ(tip, kShellsTip);
    return win32::kIdNo;
  });

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(RefusedHotKeys, AreTipNumber18WhichTheUserCanSilence) {
  hotKeys.StartShell();
  KorvaleCopy& korvale = UsedCopy();
  korvale.host.WhenModal("frmMsgTip", [&korvale](class Form& tip) {
    korvale.user.Click(tip.Handle(), tip.Find("chkStopMsg").Id());
    korvale.user.Click(tip.Handle(), tip.Find("cmdOK").Id());
  });
  EXPECT_TRUE(korvale.Start());
  korvale.Exit();
  EXPECT_EQ(Stored("Startup", "Tips"), "111111111111111110");
  EndCopy(korvale);

  EXPECT_TRUE(UsedCopy().Start());
}

TEST_F(RefusedHotKeys, AreNotWhatTheUserChoseTwice) {
  StoreOption("HotKeyModAction0", "0");
  StoreOption("HotKeyAction0", "19");
  EXPECT_TRUE(UsedCopy().Start());
}

TEST_F(RefusedHotKeys, WorkWhenTheyAreFreeAfterTheUserReturns) {
  hotKeys.RegisterForeign(win32::kModAlt, '1');
  KorvaleCopy& korvale = UsedCopy();
  std::string tip;
  ReadTip(korvale, tip);
  EXPECT_TRUE(korvale.Start());
  hotKeys.Press(win32::kModWin, 'O');
  class Form& options = korvale.Loaded("frmOptions");
  EXPECT_EQ(options.Find("lblConflicts").Text(),
            "Not available, in use by Windows or another program:  Alt+1");
  hotKeys.ReleaseForeign(win32::kModAlt, '1');
  EXPECT_FALSE(hotKeys.Press(win32::kModAlt, '1'));

  hotKeys.ChangeSession(win32::kWtsSessionUnlock);

  EXPECT_FALSE(options.Find("lblConflicts").Visible());
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, '1'));
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(RefusedHotKeys, StayOffAfterTheUserReturnsWhileTheyAreSwitchedOff) {
  hotKeys.RegisterForeign(win32::kModAlt, '1');
  KorvaleCopy& korvale = UsedCopy();
  std::string tip;
  ReadTip(korvale, tip);
  EXPECT_TRUE(korvale.Start());
  hotKeys.Press(0, win32::kVkPause);
  hotKeys.ReleaseForeign(win32::kModAlt, '1');

  hotKeys.EndSleep();
  EXPECT_EQ(hotKeys.Registered().size(), 1U);

  hotKeys.Press(0, win32::kVkPause);
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, '1'));
}

TEST_F(RefusedHotKeys, AreForgottenWhenTheProgramEnds) {
  KorvaleCopy& korvale = UsedCopy();
  EXPECT_TRUE(korvale.Start());
  const WindowHandle main = korvale.Handle();
  EXPECT_EQ(hotKeys.SessionWatches(main), 1U);
  EXPECT_TRUE(hotKeys.HearsOfSleep(main));
  korvale.Exit();
  EXPECT_EQ(hotKeys.SessionWatches(main), 0U);
  EXPECT_FALSE(log.CallsOf("UnregisterSuspendResumeNotification(frmMain)").empty());
  EXPECT_FALSE(log.CallsOf("WTSUnRegisterSessionNotification(frmMain)").empty());
}

TEST_F(RefusedHotKeys, EndTheStartWhenTheSessionEndsMeanwhile) {
  hotKeys.StartShell();
  KorvaleCopy& korvale = UsedCopy();
  korvale.host.WhenModal("frmMsgTip", [&korvale](class Form&) {
    korvale.Form().OnCloseRequested(CloseReason::kSession);
  });
  EXPECT_FALSE(korvale.Start());
  EXPECT_TRUE(hotKeys.Registered().empty());
}

}  // namespace
}  // namespace korvale
