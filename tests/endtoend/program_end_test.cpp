#include "tests/endtoend/harness/refusing_store.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

/// The program is ended from outside, and can be started again.
class ProgramEnd : public KorvaleTest {
 protected:
  /// Starts with a stored Tag that only a save brings back.
  void StartWithTag() {
    installation_.StoreTag(2, "Gone", "Test.Window");
    Start();
    installation_.settings().DeleteValue("ParentWindowList", "2");
  }
  void CloseOwner() { PostMessageW(korvale_->HiddenOwner().handle(), WM_CLOSE, 0, 0); }

  ::testing::AssertionResult HasEndedAndSaved() {
    if (korvale_->process().WaitForExit() != 0U) {
      return ::testing::AssertionFailure() << "the program does not end with code 0";
    }
    if (installation_.settings().Get("ParentWindowList", "2") != "&2  Gone") {
      return ::testing::AssertionFailure() << "the Tag is not saved";
    }
    return StartsAgain();
  }
  ::testing::AssertionResult StartsAgain() {
    korvale_.emplace(installation_);
    return InFront(main());
  }
};

TEST_F(ProgramEnd, ByItsHiddenOwnerSavesAndLetsTheNextOneStart) {
  StartWithTag();
  CloseOwner();
  EXPECT_TRUE(HasEndedAndSaved());
}

TEST_F(ProgramEnd, ByItsHiddenOwnerDuringADialogSavesAndLetsTheNextOneStart) {
  StartWithTag();
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  OpenAddWindow();
  CloseOwner();
  EXPECT_TRUE(HasEndedAndSaved());
}

TEST_F(ProgramEnd, ByItsHiddenOwnerDuringAMessageSavesAndLetsTheNextOneStart) {
  StartWithTag();
  Press(TagKey(2));
  ASSERT_TRUE(korvale_->MessageBox());
  CloseOwner();
  EXPECT_TRUE(HasEndedAndSaved());
}

TEST_F(ProgramEnd, ByItsHiddenOwnerDuringATipOfTheStartLetsTheNextOneStart) {
  installation_.MarkAsUsed();
  korvale_.emplace(installation_, " /anything");
  ASSERT_TRUE(korvale_->Form("frmMsgTip"));
  CloseOwner();
  EXPECT_EQ(korvale_->process().WaitForExit(), 0U);
  EXPECT_TRUE(StartsAgain());
}

TEST_F(ProgramEnd, ByAllItsWindowsAtOnceSavesAndLetsTheNextOneStart) {
  StartWithTag();
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  OpenAddWindow();
  int closed = 0;
  for (const Window window : TopLevelWindows()) {
    if (window.ProcessId() != korvale_->process().id()) continue;
    PostMessageW(window.handle(), WM_CLOSE, 0, 0);
    ++closed;
  }
  // The main window, the hidden one that owns it, and the dialog.
  ASSERT_GE(closed, 3);
  EXPECT_TRUE(HasEndedAndSaved());
}

TEST_F(ProgramEnd, ByItsThreadSavesAndLetsTheNextOneStart) {
  StartWithTag();
  PostThreadMessageW(GetWindowThreadProcessId(main().handle(), nullptr), WM_QUIT, 0, 0);
  EXPECT_TRUE(HasEndedAndSaved());
}

TEST_F(ProgramEnd, ByItsThreadDuringAMessageSavesAndLetsTheNextOneStart) {
  StartWithTag();
  Press(TagKey(2));
  ASSERT_TRUE(korvale_->MessageBox());
  PostThreadMessageW(GetWindowThreadProcessId(main().handle(), nullptr), WM_QUIT, 0, 0);
  EXPECT_TRUE(HasEndedAndSaved());
}

/// The store refuses every save.
class RefusingStore : public ProgramEnd {
 protected:
  RefusingStore() { MakeStoreRefuse(installation_.name()); }

  bool TellsNothing() {
    return HoldsFor([this] { return !korvale_->HasMessageBox(); });
  }
};

TEST_F(RefusingStore, IsToldOnceARun) {
  Start();
  ASSERT_TRUE(Choose('V', {'T'}));
  const Window box = korvale_->MessageBox();
  EXPECT_EQ(box.Title(), "Korvale - ERROR");
  ASSERT_TRUE(AnswerBox(box, IDOK));
  ASSERT_TRUE(Choose('V', {'T'}));
  EXPECT_TRUE(TellsNothing());
  EXPECT_TRUE(Exit());
}

TEST_F(RefusingStore, HoldsUpNoEndOfTheSession) {
  Start();
  main().Send(WM_ENDSESSION, TRUE);
  EXPECT_EQ(korvale_->process().WaitForExit(), 0U);
}

TEST_F(RefusingStore, HoldsUpNoTaskKiller) {
  Start();
  CloseOwner();
  EXPECT_EQ(korvale_->process().WaitForExit(), 0U);
}

}  // namespace
}  // namespace korvale::endtoend
