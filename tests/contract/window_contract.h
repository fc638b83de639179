#pragma once

#include "tests/contract/contract_fixture.h"

namespace korvale {

TEST_F(FormHostContract, AFormIsHiddenUntilItIsShown) {
  form_.Load();
  EXPECT_FALSE(User().IsShown(Window()));
  form_.Show();
  EXPECT_TRUE(User().IsShown(Window()));
}

TEST_F(FormHostContract, AnUnloadedFormHasNoWindowAndCanBeLoadedAgain) {
  form_.Show();
  const WindowHandle first = Window();
  EXPECT_TRUE(form_.Unload());
  EXPECT_FALSE(User().IsShown(first));
  form_.Show();
  EXPECT_TRUE(User().IsShown(Window()));
}

TEST_F(FormHostContract, AWindowIsKnownByItsClassAndItsCaptionInAnyScript) {
  form_.Load();
  EXPECT_EQ(User().ClassName(Window()), "Korvale.frmContract");
  EXPECT_EQ(User().Title(Window()), "Contract");
  form_.SetCaption("Ж - 日本語 - \U0001F600 & more");
  EXPECT_EQ(User().Title(Window()), "Ж - 日本語 - \U0001F600 & more");
}

TEST_F(FormHostContract, AFormThatCountsTheClassicFrameGrowsWithTheRealOne) {
  form_.Show();
  const TwipsRect frame = Host().AdjustWindowRectEx(form_.State());
  const TwipsRect expected = {1500, 1500, 6000 + frame.width, 5100 + frame.height};
  EXPECT_EQ(User().Place(Window()), expected);
  EXPECT_EQ(form_.Place(), kContractDesign.place);
}

TEST_F(FormHostContract, AFormWithAnExactHeightIsAsLargeAsItSays) {
  strip_.Show();
  EXPECT_EQ(User().Place(strip_.Handle()), kStripDesign.place);
  const TwipsRect place = {900, 600, 4500, 1200};
  strip_.SetPlace(place);
  EXPECT_EQ(User().Place(strip_.Handle()), place);
}

TEST_F(FormHostContract, AFormIsToldWhereTheUserHasDraggedIt) {
  strip_.Show();
  const int before = strip_.resizes;
  const TwipsRect place = {1200, 1200, 7500, 1800};
  User().Drag(strip_.Handle(), place);
  EXPECT_EQ(strip_.Place(), place);
  EXPECT_EQ(User().Place(strip_.Handle()), place);
  EXPECT_GT(strip_.resizes, before);
}

TEST_F(FormHostContract, AFormOfAFixedHeightChangesInWidthOnly) {
  strip_.SetSizeLimits({.minimumWidth = 3000, .height = 1500});
  strip_.Show();
  User().Drag(strip_.Handle(), {1200, 1200, 7500, 1800});
  EXPECT_EQ(strip_.Place(), (TwipsRect{1200, 1200, 7500, 1500}));
  User().Drag(strip_.Handle(), {1200, 1200, 2400, 900});
  EXPECT_EQ(strip_.Place(), (TwipsRect{1200, 1200, 3000, 1500}));
  strip_.SetWindowState(ShowState::kMaximized);
  EXPECT_EQ(strip_.WindowState(), ShowState::kMaximized);
  EXPECT_GE(strip_.Place().width, Screen().GetMonitorInfoW(strip_.Handle()).width);
  EXPECT_EQ(strip_.Place().height, 1500);
}

TEST_F(FormHostContract, AFormThatInsistsOnARefusedPlaceHearsOfItOnce) {
  strip_.Load();
  strip_.SetSizeLimits({.minimumWidth = 3000});
  strip_.onResize = [&] { strip_.SetPlace({1200, 1200, 2250, 1500}); };
  strip_.Show();
  EXPECT_EQ(User().Place(strip_.Handle()), (TwipsRect{1200, 1200, 3000, 1500}));
  // Shown, refused, and resized twice by itself.
  EXPECT_EQ(strip_.resizes, 4);
}

TEST_F(FormHostContract, AMaximizedFormStaysSoUnderAnotherHeight) {
  strip_.SetSizeLimits({.height = 1500});
  strip_.Show();
  strip_.SetWindowState(ShowState::kMaximized);
  strip_.SetSizeLimits({.height = 1200});
  EXPECT_EQ(strip_.WindowState(), ShowState::kMaximized);
  EXPECT_EQ(User().Place(strip_.Handle()).height, 1200);
  EXPECT_GE(User().Place(strip_.Handle()).width, Screen().GetMonitorInfoW(strip_.Handle()).width);
  strip_.SetWindowState(ShowState::kNormal);
  EXPECT_EQ(User().Place(strip_.Handle()).width, kStripDesign.place.width);
}

TEST_F(FormHostContract, AHiddenFormKeepsTheStateInWhichItWillBeShown) {
  for (const ShowState state : {ShowState::kMaximized, ShowState::kMinimized}) {
    strip_.Load();
    strip_.SetPlace({1200, 1200, 4500, 1500});
    strip_.SetWindowState(state);
    strip_.SetSizeLimits({.height = 1200});
    Host().MoveWindow(strip_.Handle());
    Host().DrawMenuBar(strip_.Handle());
    EXPECT_EQ(strip_.WindowState(), state);
    strip_.Show();
    EXPECT_EQ(strip_.WindowState(), state);
    strip_.SetWindowState(ShowState::kNormal);
    EXPECT_EQ(strip_.Place(), (TwipsRect{1200, 1200, 4500, 1200}));
    strip_.Unload();
  }
}

TEST_F(FormHostContract, MinimizingAndRestoringIsTold) {
  strip_.Show();
  strip_.SetWindowState(ShowState::kMinimized);
  EXPECT_EQ(strip_.WindowState(), ShowState::kMinimized);
  EXPECT_EQ(strip_.Place(), kStripDesign.place);
  strip_.SetWindowState(ShowState::kNormal);
  EXPECT_EQ(strip_.WindowState(), ShowState::kNormal);
}

TEST_F(FormHostContract, TheCloseBoxUnloadsAFormThatAgrees) {
  form_.Show();
  const WindowHandle window = Window();
  User().PressCloseBox(window);
  EXPECT_FALSE(form_.IsLoaded());
  EXPECT_FALSE(User().IsShown(window));
  EXPECT_EQ(form_.closeReasons, std::vector<CloseReason>{CloseReason::kUser});
}

TEST_F(FormHostContract, AFormThatRefusesToCloseStays) {
  form_.refusesToClose = true;
  form_.Show();
  User().PressCloseBox(Window());
  EXPECT_TRUE(form_.IsLoaded());
  EXPECT_TRUE(User().IsShown(Window()));
}

TEST_F(FormHostContract, ClosingTheHiddenOwnerAsksTheMainFormToGo) {
  form_.refusesToClose = true;
  form_.Show();
  User().CloseOwner(Window());
  EXPECT_TRUE(User().IsShown(Window()));
  form_.refusesToClose = false;
  User().CloseOwner(Window());
  EXPECT_FALSE(form_.IsLoaded());
  EXPECT_EQ(form_.closeReasons,
            (std::vector<CloseReason>{CloseReason::kTaskManager, CloseReason::kTaskManager}));
}

TEST_F(FormHostContract, ClosingTheHiddenOwnerReachesAMainFormThatIsBlockedOrHidden) {
  form_.Load();
  User().WhenWaiting([&] {
    User().CloseOwner(Window());
    EXPECT_FALSE(form_.IsLoaded());
    dialog_.Unload();
  });
  dialog_.ShowModal();
  EXPECT_EQ(form_.closeReasons, std::vector<CloseReason>{CloseReason::kTaskManager});
}

TEST_F(FormHostContract, ShowingAFormActivatesIt) {
  form_.Show();
  EXPECT_EQ(form_.activations, 1);
  dialog_.Show();
  EXPECT_EQ(dialog_.activations, 1);
}

TEST_F(FormHostContract, AFormShownInactiveLeavesTheActiveOne) {
  form_.Show();
  dialog_.ShowInactive();
  EXPECT_TRUE(User().IsShown(dialog_.Handle()));
  EXPECT_EQ(dialog_.activations, 0);
}

TEST_F(FormHostContract, ADisabledFormIsDisabledOnTheScreen) {
  form_.Show();
  form_.SetEnabled(false);
  EXPECT_FALSE(User().IsEnabled(Window()));
  form_.SetEnabled(true);
  EXPECT_TRUE(User().IsEnabled(Window()));
}

TEST_F(FormHostContract, AModalFormKeepsTheOthersFromTakingInput) {
  form_.Show();
  dialog_.onClick = [&](const std::string&) { dialog_.Unload(); };
  bool blocked = false;
  User().WhenWaiting([&] {
    blocked = !User().IsEnabled(Window()) && User().IsEnabled(dialog_.Handle());
    User().Click(dialog_.Handle(), dialog_.Find("cmdOK").Id());
  });
  dialog_.ShowModal();
  EXPECT_TRUE(blocked);
  EXPECT_FALSE(dialog_.IsLoaded());
  EXPECT_TRUE(User().IsEnabled(Window()));
}

TEST_F(FormHostContract, TheFormBelowIsActiveAgainAfterAModalOne) {
  ShowForm();
  const int before = form_.activations;
  User().WhenWaiting([&] { User().PressCloseBox(dialog_.Handle()); });
  dialog_.ShowModal();
  EXPECT_GT(form_.activations, before);
  EXPECT_EQ(Focus(), "txtName");
}

TEST_F(FormHostContract, ModalFormsNest) {
  form_.Show();
  Lines order;
  dialog_.onClick = [&](const std::string&) {
    inner_.ShowModal();
    order.emplace_back("inner closed");
  };
  User().WhenWaiting([&] {
    User().WhenWaiting([&] {
      EXPECT_FALSE(User().IsEnabled(Window()));
      EXPECT_FALSE(User().IsEnabled(dialog_.Handle()));
      User().PressCloseBox(inner_.Handle());
    });
    User().Click(dialog_.Handle(), dialog_.Find("cmdOK").Id());
    EXPECT_FALSE(User().IsEnabled(Window()));
    EXPECT_TRUE(User().IsEnabled(dialog_.Handle()));
    User().PressCloseBox(dialog_.Handle());
  });
  dialog_.ShowModal();
  order.emplace_back("dialog closed");
  EXPECT_EQ(order, (Lines{"inner closed", "dialog closed"}));
  EXPECT_TRUE(User().IsEnabled(Window()));
}

TEST_F(FormHostContract, AMessageBoxShowsWhatItWasToldAndGivesTheButton) {
  form_.Show();
  ShownMessage shown;
  bool ownerEnabled = true;
  User().WhenMessageBox([&](const ShownMessage& message) {
    shown = message;
    ownerEnabled = User().IsEnabled(Window()) || Host().IsWindowEnabled(Window());
    return win32::kIdNo;
  });
  const std::int32_t style = win32::kMbYesNo + win32::kMbDefButton2;
  const std::string text = "Ж?\r\rWindow:  [日本 & \U0001F600]";
  const std::int16_t button = Dialogs().MessageBoxW(Window(), text, "Korvale - CAUTION", style);
  EXPECT_EQ(button, win32::kIdNo);
  EXPECT_EQ(shown.text, text);
  EXPECT_EQ(shown.title, "Korvale - CAUTION");
  EXPECT_EQ(shown.owner, Window());
  EXPECT_FALSE(ownerEnabled);
  EXPECT_TRUE(User().IsEnabled(Window()));
  EXPECT_TRUE(Host().IsWindowEnabled(Window()));
}

TEST_F(FormHostContract, TheWorkAreaHoldsTheForm) {
  form_.Show();
  const TwipsRect area = Screen().GetMonitorInfoW(Window());
  EXPECT_GE(area.width, 6000);
  EXPECT_GE(area.height, 5000);
  EXPECT_EQ(Screen().GetMonitorInfoW(0), area);
  EXPECT_EQ(Screen().GetWindowRect(Window()), User().Place(Window()));
}

TEST_F(FormHostContract, AThreadThatIsToldToQuitEndsEveryMessageLoop) {
  form_.Show();
  User().WhenWaiting([&] {
    User().QuitThread();
    EXPECT_TRUE(Loop().QuitPosted());
  });
  dialog_.ShowModal();
  EXPECT_TRUE(Loop().QuitPosted());
  EXPECT_TRUE(form_.IsLoaded());
}

TEST_F(FormHostContract, QuittingEndsEveryMessageLoop) {
  form_.Show();
  EXPECT_FALSE(Loop().QuitPosted());
  User().WhenWaiting([&] { Loop().PostQuitMessage(); });
  dialog_.ShowModal();
  EXPECT_TRUE(Loop().QuitPosted());
  EXPECT_TRUE(User().IsEnabled(Window()));
}

}  // namespace korvale
