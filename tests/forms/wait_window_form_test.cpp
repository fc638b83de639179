#include "forms/wait_window_form.h"

#include "platform/win32_constants.h"
#include "tests/forms/dialog_test.h"

namespace korvale {
namespace {

class WaitWindowTest : public DialogTest {
 protected:
  void ShowWaitWindow() {
    form_.ShowWaitWindow("Korvale - Hot Keys (OFF)", "Hot Keys are now Deactivated", 800);
  }

  frmWaitWindow form_{forms_, display_, suspension_};
};

TEST_F(WaitWindowTest, ShowsItsTextForAsLongAsItIsTold) {
  const std::uint64_t start = clock_.GetTickCount64();
  ShowWaitWindow();
  EXPECT_EQ(clock_.GetTickCount64() - start, 800U);
  EXPECT_FALSE(form_.IsLoaded());
}

TEST_F(WaitWindowTest, ShowsCaptionAndText) {
  host_.WhenModal("frmWaitWindow", [&](Form& form) {
    EXPECT_EQ(user_.Title(form.Handle()), "Korvale - Hot Keys (OFF)");
    EXPECT_EQ(Text(form, "lblMessage"), "Hot Keys are now Deactivated");
  });
  ShowWaitWindow();
}

TEST_F(WaitWindowTest, SuspendsTheHotKeys) {
  host_.WhenModal("frmWaitWindow", [&](Form&) { EXPECT_TRUE(suspension_.DialogShown); });
  ShowWaitWindow();
  EXPECT_FALSE(suspension_.DialogShown);
}

TEST_F(WaitWindowTest, GivesTheForegroundBackToTheUsersWindow) {
  desktop_.Open("Editor");
  ShowWaitWindow();
  EXPECT_EQ(desktop_.ForegroundTitle(), "Editor");
}

TEST_F(WaitWindowTest, EndsEarlyWhenTheUserClosesIt) {
  const std::uint64_t start = clock_.GetTickCount64();
  host_.WhenModal("frmWaitWindow", [&](Form& form) { user_.PressCloseBox(form.Handle()); });
  ShowWaitWindow();
  host_.WhenModal("frmWaitWindow", [&](Form& form) { Press(form, win32::kVkEscape); });
  ShowWaitWindow();
  host_.WhenModal("frmWaitWindow", [&](Form& form) { Press(form, win32::kVkF4, kAlt); });
  ShowWaitWindow();
  EXPECT_EQ(clock_.GetTickCount64(), start);
}

TEST_F(WaitWindowTest, StaysForOtherKeys) {
  const std::uint64_t start = clock_.GetTickCount64();
  host_.WhenModal("frmWaitWindow", [&](Form& form) {
    Press(form, win32::kVkPause);
    Press(form, win32::kVkEscape, kCtrl);
    Press(form, win32::kVkF4);
  });
  ShowWaitWindow();
  EXPECT_EQ(clock_.GetTickCount64() - start, 800U);
}

TEST_F(WaitWindowTest, StaysUnderAMessageBoxUntilThatIsAnswered) {
  const std::uint64_t start = clock_.GetTickCount64();
  host_.WhenModal("frmWaitWindow", [&](Form& form) {
    suspension_.MessageBoxShown = true;
    clock_.Advance(2000);
    EXPECT_TRUE(form.IsLoaded());
    suspension_.MessageBoxShown = false;
  });
  ShowWaitWindow();
  EXPECT_EQ(clock_.GetTickCount64() - start, 2400U);
}

TEST_F(WaitWindowTest, LeavesNoTimerBehind) {
  WindowHandle handle = 0;
  host_.WhenModal("frmWaitWindow", [&](Form& form) { handle = form.Handle(); });
  ShowWaitWindow();
  EXPECT_FALSE(clock_.AnyTimerOf(handle));
}

}  // namespace
}  // namespace korvale
