#include "forms/wait_window_form.h"

#include "tests/forms/dialog_test.h"

namespace korvale {
namespace {

class WaitWindowTest : public DialogTest {
 protected:
  void ShowWaitWindow() {
    form_.ShowWaitWindow("Korvale - Hot Keys (OFF)", "Hot Keys are now Deactivated", 800);
  }

  frmWaitWindow form_{forms_, display_};
};

TEST_F(WaitWindowTest, ShowsItsTextForAsLongAsItIsTold) {
  const std::uint64_t start = clock_.GetTickCount64();
  ShowWaitWindow();
  EXPECT_EQ(clock_.GetTickCount64() - start, 800U);
  EXPECT_FALSE(form_.IsLoaded());
}

TEST_F(WaitWindowTest, ShowsCaptionAndText) {
  host_.WhenWaiting([&] {
    EXPECT_EQ(user_.Title(form_.Handle()), "Korvale - Hot Keys (OFF)");
    EXPECT_EQ(Text(form_, "lblMessage"), "Hot Keys are now Deactivated");
  });
  ShowWaitWindow();
}

TEST_F(WaitWindowTest, IsReadOutToThoseWhoDoNotSeeIt) {
  EXPECT_EQ(form_.State().role, FormRole::kAlert);
  host_.WhenWaiting([] {});
  ShowWaitWindow();
  EXPECT_EQ(host_.Announced(),
            (std::vector<std::string>{"Korvale - Hot Keys (OFF): Hot Keys are now Deactivated"}));
}

TEST_F(WaitWindowTest, IsReadOutAgainWithAnotherText) {
  host_.WhenWaiting(
      [&] { form_.ShowWaitWindow("Korvale - Hot Keys (ON)", "Hot Keys are now Activated", 800); });
  ShowWaitWindow();
  ASSERT_EQ(host_.Announced().size(), 2U);
  EXPECT_EQ(host_.Announced().back(), "Korvale - Hot Keys (ON): Hot Keys are now Activated");
}

TEST_F(WaitWindowTest, SuspendsTheHotKeys) {
  host_.WhenWaiting([&] { EXPECT_TRUE(suspension_.DialogShown); });
  ShowWaitWindow();
  EXPECT_FALSE(suspension_.DialogShown);
}

TEST_F(WaitWindowTest, IsSeenAboveTheUsersWindowWhichKeepsTheKeyboard) {
  desktop_.Open("Editor");
  host_.WhenWaiting([&] {
    EXPECT_EQ(desktop_.ForegroundTitle(), "Editor");
    EXPECT_EQ(desktop_.VisibleTitles().front(), "Korvale - Hot Keys (OFF)");
  });
  ShowWaitWindow();
  EXPECT_EQ(desktop_.ForegroundTitle(), "Editor");
  EXPECT_TRUE(log_.CallsOf("SetForegroundWindow").empty());
}

TEST_F(WaitWindowTest, LeavesTheOtherFormsToTheUser) {
  frmWaitWindow other(forms_, display_);
  other.Show();
  host_.WhenWaiting([&] { EXPECT_TRUE(user_.IsEnabled(other.Handle())); });
  ShowWaitWindow();
}

TEST_F(WaitWindowTest, EndsEarlyWhenTheUserClosesIt) {
  const std::uint64_t start = clock_.GetTickCount64();
  host_.WhenWaiting([&] { form_.OnCloseRequested(CloseReason::kUser); });
  ShowWaitWindow();
  EXPECT_EQ(clock_.GetTickCount64(), start);
}

TEST_F(WaitWindowTest, GoesInItsTimeUnderAMessageBox) {
  host_.WhenWaiting([&] {
    suspension_.MessageBoxShown = true;
    clock_.Advance(800);
    EXPECT_FALSE(form_.IsLoaded());
    suspension_.MessageBoxShown = false;
  });
  ShowWaitWindow();
}

TEST_F(WaitWindowTest, ANewTextTakesThePlaceOfTheOneShownAndHasItsFullTime) {
  const std::uint64_t start = clock_.GetTickCount64();
  host_.WhenWaiting([&] {
    clock_.Advance(500);
    form_.ShowWaitWindow("Korvale - Hot Keys (ON)", "Hot Keys are now Activated", 800);
    EXPECT_EQ(Text(form_, "lblMessage"), "Hot Keys are now Activated");
  });
  ShowWaitWindow();
  EXPECT_EQ(clock_.GetTickCount64() - start, 1300U);
}

TEST_F(WaitWindowTest, LeavesNoTimerBehind) {
  WindowHandle handle = 0;
  host_.WhenWaiting([&] { handle = form_.Handle(); });
  ShowWaitWindow();
  EXPECT_FALSE(clock_.AnyTimerOf(handle));
}

}  // namespace
}  // namespace korvale
