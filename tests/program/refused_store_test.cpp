#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

/// The store refuses what the program saves.
using RefusalTest = StartTest;

TEST_F(RefusalTest, ARefusedSaveIsToldAndTheHotKeysAreGivenBackAllTheSame) {
  KorvaleCopy& korvale = StartedCopy();
  store.RefuseWrites(true);
  korvale.ExpectBox("VB ERROR 70 - Permission denied\r\rKorvale Error #5", win32::kIdOk);
  korvale.Exit();
  ExpectEnded(korvale);
}

TEST_F(RefusalTest, ARefusedSaveHoldsUpNoSessionAndNoTaskKiller) {
  for (const CloseReason reason : {CloseReason::kSession, CloseReason::kTaskManager}) {
    store.RefuseWrites(false);
    KorvaleCopy& korvale = StartedCopy();
    store.RefuseWrites(true);
    korvale.Form().OnCloseRequested(reason);
    EXPECT_TRUE(korvale.host.Messages().empty());
    ExpectEnded(korvale);
    EndCopy(korvale);
  }
}

TEST_F(RefusalTest, ARefusalIsToldOnceARun) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  store.RefuseWrites(true);
  korvale.host.AnswerNext(win32::kIdOk);
  for (int press = 0; press < 3; ++press) {
    WorkIn(Open("Beta"));
    ExpectTagLeadsTo(1, "Alpha");
  }
  korvale.Exit();
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(RefusalTest, ASaveThatSucceedsInBetweenMakesNoSecondMessage) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.Form().mnuToolsOptions_Click();
  class Form& options = korvale.Loaded("frmOptions");
  store.RefuseWrites(true);
  korvale.host.AnswerNext(win32::kIdOk);
  korvale.user.ChooseMenu(korvale.Handle(), {"View", "Target Window"});
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  store.RefuseWrites(false);
  korvale.user.Click(options.Handle(), korvale.Id(options, "cmdApply"));
  store.RefuseWrites(true);
  korvale.user.ChooseMenu(korvale.Handle(), {"View", "Target Window"});
  korvale.Exit();
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(RefusalTest, ARefusalIsToldForEachSaveThatTheUserAsksFor) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.Form().mnuToolsOptions_Click();
  store.RefuseWrites(true);
  class Form& options = korvale.Loaded("frmOptions");
  for (int press = 0; press < 2; ++press) {
    korvale.host.AnswerNext(win32::kIdOk);
    korvale.user.Click(options.Handle(), korvale.Id(options, "cmdApply"));
  }
  korvale.Exit();
  EXPECT_EQ(korvale.host.Messages().size(), 2U);
}

TEST_F(RefusalTest, AnErrorBeforeAnythingIsStoredIsToldToo) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.Form().udmUnload(false);
  korvale.host.WhenMessageBox([](const ShownMessage& box) {
    EXPECT_EQ(box.text,
              "VB ERROR 91 - Object variable or With block variable not set\r\rKorvale Error #5");
    return win32::kIdOk;
  });
  korvale.Form().SaveOrTell();
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(RefusalTest, TheEndOfTheProgramDuringASaveIsNoRefusal) {
  KorvaleCopy& korvale = StartedCopy();
  log.WhenCalled("SaveSetting", [] { throw ProgramEnded{}; });
  korvale.user.ChooseMenu(korvale.Handle(), {"View", "Target Window"});
  EXPECT_TRUE(korvale.host.Messages().empty());
}

}  // namespace
}  // namespace korvale
