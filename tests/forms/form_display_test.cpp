#include "tests/forms/form_display_test.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace korvale {
namespace {

TEST_F(FormDisplayTest, ReturnsTheTagThatTheFormHasWhenItCloses) {
  host_.WhenModal("frmDialog", [&](Form& form) { Click(form, "cmdOK"); });
  EXPECT_EQ(ShowDialogModal(), "OK");
  EXPECT_FALSE(dialog_.IsLoaded());
}

TEST_F(FormDisplayTest, SuspendsTheHotKeysOnlyWhileTheFormIsShown) {
  bool suspended = false;
  WhileShown([&](Form& /*form*/) { suspended = suspension_.DialogShown; });
  EXPECT_TRUE(suspended);
  EXPECT_FALSE(suspension_.DialogShown);
}

TEST_F(FormDisplayTest, KeepsTheHotKeysSuspendedWhenANestedFormCloses) {
  WhileShown([&](Form& form) {
    host_.WhenModal("frmSecond", [](Form& second) { second.Unload(); });
    display_.ShowFormModal(second_, {}, 1000, {}, &form);
    EXPECT_TRUE(suspension_.DialogShown);
  });
  EXPECT_FALSE(suspension_.DialogShown);
}

TEST_F(FormDisplayTest, EndsTheSuspensionWhenAnErrorLeavesTheMessageLoop) {
  host_.WhenModal("frmDialog", [](Form&) { throw std::runtime_error("lost"); });
  EXPECT_THROW(ShowDialogModal(), std::runtime_error);
  EXPECT_FALSE(suspension_.DialogShown);
}

TEST_F(FormDisplayTest, DisablesTheOtherFormsMeanwhile) {
  owner_.Show();
  bool enabled = true;
  WhileShown([&](Form& /*form*/) { enabled = user_.IsEnabled(owner_.Handle()); });
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(user_.IsEnabled(owner_.Handle()));
}

TEST_F(FormDisplayTest, DoesNotLoadAFormAgainThatClosedWhenItWasActivated) {
  dialog_.whenActivated = [&] { dialog_.Unload(); };
  ShowDialogModal();
  EXPECT_FALSE(dialog_.IsLoaded());
  EXPECT_EQ(log_.CallsOf("CreateWindowExW(frmDialog").size(), 1U);
}

TEST_F(FormDisplayTest, ShowsAFormModallyOnlyOnceAtATime) {
  WhileShown([&](Form& form) {
    EXPECT_EQ(ShowDialogModal(), "");
    EXPECT_TRUE(form.Visible());
  });
  EXPECT_FALSE(dialog_.IsLoaded());
}

TEST_F(FormDisplayTest, MakesTheFormTopmostWhileTheMainWindowIs) {
  alwaysOnTop_ = true;
  PlaceWhenShown();
  EXPECT_EQ(log_.CallsOf("SetWindowPos("),
            (std::vector<std::string>{"SetWindowPos(frmDialog, HWND_TOPMOST, 0, 0, 0, 0, 3)"}));
}

TEST_F(FormDisplayTest, LeavesTheOrderOfTheWindowsAloneOtherwise) {
  PlaceWhenShown();
  EXPECT_TRUE(log_.CallsOf("SetWindowPos(").empty());
  alwaysOnTop_ = true;
  PlaceWhenShown({}, nullptr, {.followTopmost = 0});
  EXPECT_TRUE(log_.CallsOf("SetWindowPos(").empty());
}

TEST_F(FormDisplayTest, MakesTheFormTheForegroundWindow) {
  desktop_.Open("Editor");
  std::string front;
  WhileShown([&](Form& /*form*/) { front = desktop_.ForegroundTitle(); });
  EXPECT_EQ(front, "Dialog");
  EXPECT_EQ(log_.CallsOf("SetForegroundWindow(frmDialog").size(), 1U);
}

TEST_F(FormDisplayTest, LeavesTheForegroundAloneWhenToldSo) {
  PlaceWhenShown({}, nullptr, {.takeForeground = 0});
  EXPECT_TRUE(log_.CallsOf("SetForegroundWindow(").empty());
}

TEST_F(FormDisplayTest, GivesTheForegroundBackToTheProgramThatHadIt) {
  owner_.Show();
  const WindowHandle editor = desktop_.Open("Editor");
  host_.WhenModal("frmDialog", [&](Form& form) {
    form.Unload();
    desktop_.Windows().Activate(owner_.Handle());
  });
  ShowDialogModal();
  EXPECT_EQ(desktop_.Windows().Foreground(), editor);
}

TEST_F(FormDisplayTest, GivesTheForegroundBackWhenNothingTookIt) {
  const WindowHandle editor = desktop_.Open("Editor");
  host_.WhenModal("frmDialog", [&](Form& form) {
    form.Unload();
    desktop_.LoseForeground();
  });
  ShowDialogModal();
  EXPECT_EQ(desktop_.Windows().Foreground(), editor);
}

TEST_F(FormDisplayTest, LeavesTheForegroundToTheProgramThatTheUserWentTo) {
  owner_.Show();
  desktop_.Open("Editor");
  const WindowHandle mail = desktop_.Open("Mail");
  desktop_.UserActivates(owner_.Handle());
  WhileShown([&](Form& /*form*/) { desktop_.UserActivates(mail); });
  EXPECT_EQ(desktop_.Windows().Foreground(), mail);
}

TEST_F(FormDisplayTest, GivesNoForegroundToAWindowThatIsGone) {
  owner_.Show();
  const WindowHandle editor = desktop_.Open("Editor");
  log_.Clear();
  WhileShown([&](Form& /*form*/) { desktop_.Close(editor); });
  EXPECT_EQ(desktop_.ForegroundTitle(), "Owner");
  EXPECT_EQ(log_.CallsOf("SetForegroundWindow(").size(), 1U);
}

TEST_F(FormDisplayTest, PlacesAndShowsALoadedFormWithoutWaitingForIt) {
  host_.SetWorkArea({0, 0, 10000, 8000});
  dialog_.Load();
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  EXPECT_TRUE(user_.IsShown(dialog_.Handle()));
  EXPECT_EQ(user_.Place(dialog_.Handle()), (TwipsRect{3500, 3000, 3000, 2000}));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Dialog");
  EXPECT_FALSE(suspension_.DialogShown);
}

TEST_F(FormDisplayTest, LoadsNoFormByItself) {
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  EXPECT_FALSE(dialog_.IsLoaded());
}

TEST_F(FormDisplayTest, LeavesAShownFormWhereTheUserPutIt) {
  dialog_.Show();
  user_.Drag(dialog_.Handle(), {700, 800, 3000, 2000});
  desktop_.Open("Editor");
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  EXPECT_EQ(user_.Place(dialog_.Handle()), (TwipsRect{700, 800, 3000, 2000}));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Dialog");
}

TEST_F(FormDisplayTest, FetchesAShownFormBackIntoTheWorkArea) {
  dialog_.Show();
  user_.Drag(dialog_.Handle(), {90000, 800, 3000, 2000});
  display_.ShowFormNonModal(dialog_, {.keepInWorkArea = 0}, nullptr);
  EXPECT_EQ(user_.Place(dialog_.Handle()).left, 90000);
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  EXPECT_EQ(user_.Place(dialog_.Handle()), (TwipsRect{12360, 800, 3000, 2000}));
}

TEST_F(FormDisplayTest, RestoresAMinimizedForm) {
  owner_.Show();
  owner_.SetWindowState(ShowState::kMinimized);
  display_.ShowFormNonModal(owner_, {}, nullptr);
  EXPECT_EQ(owner_.WindowState(), ShowState::kNormal);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Owner");
}

TEST_F(FormDisplayTest, TakesAFormOutOfTheTopmostOnesWhenTheMainWindowIsNoLongerOne) {
  alwaysOnTop_ = true;
  dialog_.Load();
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  alwaysOnTop_ = false;
  log_.Clear();
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  EXPECT_EQ(log_.CallsOf("SetWindowPos("),
            (std::vector<std::string>{"SetWindowPos(frmDialog, HWND_NOTOPMOST, 0, 0, 0, 0, 3)"}));
}

}  // namespace
}  // namespace korvale
