#include "tests/fakes/headless_form_host.h"

#include <gtest/gtest-spi.h>

#include <memory>

#include "platform/win32_constants.h"
#include "tests/contract/contract_form.h"
#include "tests/fakes/desktop_bridge.h"
#include "tests/fakes/fake_desktop.h"
#include "tests/fakes/fake_message_boxes.h"
#include "tests/fakes/headless_user.h"

namespace korvale {
namespace {

#define EXPECT_TEST_FAILURE(action, message) \
  EXPECT_NONFATAL_FAILURE(EXPECT_THROW(action, HeadlessFailure), message)

/// Our forms on a desktop where another program's window is open.
class HeadlessFormHostTest : public testing::Test {
 protected:
  CallLog log_;
  FakeDesktop desktop_{log_};
  WindowHandle other_ = desktop_.Open("Other");
  DesktopBridge bridge_{desktop_.Windows(), 1};
  FakeClock clock_;
  HeadlessFormHost host_{bridge_, log_};
  HeadlessUser user_{host_, clock_};
  FormCollection forms_{host_, host_, host_, clock_};
  RecordingForm form_{kContractDesign, forms_};
  RecordingForm dialog_{DialogDesign("frmDialog"), forms_};
  RecordingForm strip_{kStripDesign, forms_};
};

TEST_F(HeadlessFormHostTest, AModalFormThatNobodyClosesFailsTheTest) {
  EXPECT_TEST_FAILURE(dialog_.ShowModal(),
                      "waits for the user with form \"frmDialog\" and nothing more is queued");
}

TEST_F(HeadlessFormHostTest, AMessageBoxThatNobodyAnswersFailsTheTestWithItsText) {
  EXPECT_TEST_FAILURE(host_.MessageBoxW(0, "Really?", "Korvale", win32::kMbOk),
                      "nobody answers the message box \"Korvale\": \"Really?\"");
}

TEST_F(HeadlessFormHostTest, AButtonThatTheMessageBoxLacksFailsTheTest) {
  for (const std::int32_t style : {win32::kMbOk, win32::kMbOkCancel}) {
    host_.AnswerNext(win32::kIdYes);
    EXPECT_TEST_FAILURE(host_.MessageBoxW(0, "text", "title", style), "button 6 is not on the");
  }
  host_.AnswerNext(win32::kIdCancel);
  EXPECT_TEST_FAILURE(host_.MessageBoxW(0, "text", "title", win32::kMbYesNo), "button 2");
}

TEST_F(HeadlessFormHostTest, APopUpMenuCanBeEndedAndIsRefusedInsideAnother) {
  form_.Show();
  EXPECT_FALSE(host_.EndMenu());
  host_.WhenPopupMenu([&](const auto&) {
    host_.TrackPopupMenuEx(form_.Handle(), form_.Menu("mnuFile"));
    EXPECT_TRUE(host_.EndMenu());
    return "";
  });
  host_.TrackPopupMenuEx(form_.Handle(), form_.Menu("mnuFile"));
  EXPECT_FALSE(host_.EndMenu());
  host_.WhenPopupMenu([&](const auto&) {
    host_.EndMenu();
    return "Open";
  });
  EXPECT_TEST_FAILURE(host_.TrackPopupMenuEx(form_.Handle(), form_.Menu("mnuFile")),
                      "the pop-up menu mnuFile has been closed");
}

TEST_F(HeadlessFormHostTest, APopUpMenuThatNobodyUsesFailsTheTest) {
  form_.Show();
  EXPECT_TEST_FAILURE(host_.TrackPopupMenuEx(form_.Handle(), form_.Menu("mnuFile")),
                      "nobody chooses from the pop-up menu mnuFile");
  host_.WhenPopupMenu([](const auto&) { return "Copy"; });
  EXPECT_TEST_FAILURE(host_.TrackPopupMenuEx(form_.Handle(), form_.Menu("mnuFile")),
                      "the pop-up menu has no entry \"Copy\"");
  form_.Menu("mnuFileOpen").enabled = false;
  host_.WhenPopupMenu([](const auto&) { return "Open"; });
  EXPECT_TEST_FAILURE(host_.TrackPopupMenuEx(form_.Handle(), form_.Menu("mnuFile")),
                      "the entry \"Open\" is disabled");
}

TEST_F(HeadlessFormHostTest, AnotherFormThanTheExpectedOneFailsTheTest) {
  host_.WhenModal("frmContract", [](Form&) {});
  EXPECT_TEST_FAILURE(dialog_.ShowModal(),
                      "expects form frmContract, but form \"frmDialog\" is in front");
}

TEST_F(HeadlessFormHostTest, WhatNeverCameFailsTheTestAtItsEnd) {
  FakeDesktop desktop(log_);
  DesktopBridge bridge(desktop.Windows(), 1);
  auto host = std::make_unique<HeadlessFormHost>(bridge, log_);
  host->WhenModal("frmDialog", [](Form&) {});
  EXPECT_NONFATAL_FAILURE(host.reset(), "never waited for the user with form frmDialog");
  auto boxes = std::make_unique<FakeMessageBoxes>();
  boxes->answers = {win32::kIdOk};
  EXPECT_NONFATAL_FAILURE(boxes.reset(), "1 expected message boxes did not come");
}

TEST_F(HeadlessFormHostTest, TheUserComesBetweenPostedMessagesAndIdling) {
  std::vector<std::string> order;
  host_.WhenModal("frmDialog", [&](Form&) { order.emplace_back("user"); });
  host_.SetIdle([&] {
    order.emplace_back("idle");
    dialog_.Unload();
    return true;
  });
  host_.Post([&] { order.emplace_back("posted"); });
  dialog_.ShowModal();
  EXPECT_EQ(order, (std::vector<std::string>{"posted", "user", "idle"}));
}

TEST_F(HeadlessFormHostTest, DoEventsRunsWhatIsPostedOnly) {
  int ran = 0;
  host_.Post([&] { ++ran; });
  host_.Post([&] { ++ran; });
  host_.DoEvents();
  EXPECT_EQ(ran, 2);
}

TEST_F(HeadlessFormHostTest, OurFormsStandAmongTheWindowsOfOthers) {
  strip_.Show();
  form_.Show();
  desktop_.UserActivates(other_);
  EXPECT_EQ(desktop_.VisibleTitles(), (std::vector<std::string>{"Other", "Contract", "Strip"}));
  EXPECT_EQ(host_.GetFocus(form_.Handle()), 0);
  desktop_.UserActivates(form_.Handle());
  EXPECT_EQ(host_.GetFocus(form_.Handle()), form_.Find("txtName").Id());
  EXPECT_EQ(form_.activations, 2);
}

TEST_F(HeadlessFormHostTest, OurWindowsHaveTheStylesAndTheOwnerOfTheirDesign) {
  strip_.Load();
  form_.Load();
  const auto style = [&](const Form& form) {
    return desktop_.GetWindowLongA(form.Handle(), win32::kGwlStyle);
  };
  EXPECT_NE(style(strip_) & win32::kWsMinimizeBox, 0);
  EXPECT_EQ(style(strip_) & win32::kDsModalFrame, 0);
  EXPECT_EQ(style(form_) & win32::kWsMinimizeBox, 0);
  EXPECT_NE(style(form_) & win32::kDsModalFrame, 0);
  const WindowHandle owner = desktop_.GetWindow(form_.Handle(), win32::kGwOwner);
  EXPECT_EQ(owner, bridge_.Owner());
  EXPECT_FALSE(desktop_.IsWindowVisible(owner));
  EXPECT_EQ(desktop_.GetWindow(strip_.Handle(), win32::kGwChild), 0);
  EXPECT_NE(desktop_.GetWindow(form_.Handle(), win32::kGwChild), 0);
}

TEST_F(HeadlessFormHostTest, WhatOthersDoToOurWindowsIsTold) {
  strip_.Show();
  desktop_.ShowWindow(strip_.Handle(), win32::kSwMinimize);
  EXPECT_EQ(strip_.WindowState(), ShowState::kMinimized);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Other");
  desktop_.ShowWindow(strip_.Handle(), win32::kSwRestore);
  EXPECT_EQ(strip_.WindowState(), ShowState::kNormal);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Strip");
}

TEST_F(HeadlessFormHostTest, AMessageBoxIsAWindowOnTheDesktopWhileItIsUp) {
  form_.Show();
  std::string foreground;
  std::string className;
  host_.WhenMessageBox([&](const ShownMessage&) {
    foreground = desktop_.ForegroundTitle();
    className = bridge_.ClassName(bridge_.Active());
    EXPECT_TRUE(host_.MessageBoxUp());
    return win32::kIdOk;
  });
  host_.MessageBoxW(form_.Handle(), "text", "Korvale - ERROR", win32::kMbOk);
  EXPECT_EQ(foreground, "Korvale - ERROR");
  EXPECT_EQ(className, "#32770");
  EXPECT_EQ(desktop_.ForegroundTitle(), "Contract");
  EXPECT_FALSE(host_.MessageBoxUp());
  EXPECT_EQ(host_.Messages().size(), 1U);
}

TEST_F(HeadlessFormHostTest, ADisabledOwnerStaysDisabledAfterAMessageBox) {
  form_.Show();
  form_.SetEnabled(false);
  host_.AnswerNext(win32::kIdOk);
  host_.MessageBoxW(form_.Handle(), "text", "title", win32::kMbOk);
  EXPECT_FALSE(user_.IsEnabled(form_.Handle()));
}

TEST_F(HeadlessFormHostTest, TheOwnerOfADialogOfWindowsIsDisabledMeanwhile) {
  form_.Show();
  host_.WhenColorDialog([&](Color) -> std::optional<Color> {
    EXPECT_FALSE(host_.IsWindowEnabled(form_.Handle()));
    return std::nullopt;
  });
  host_.ChooseColorW(form_.Handle(), 0);
  EXPECT_TRUE(host_.IsWindowEnabled(form_.Handle()));
}

TEST_F(HeadlessFormHostTest, CallsAreLoggedInTheirOrder) {
  dialog_.Show();
  dialog_.SetCaption("New");
  dialog_.SetPlace({0, 0, 3000, 1500});
  dialog_.Unload();
  host_.PostQuitMessage();
  EXPECT_EQ(log_.Calls(), (std::vector<std::string>{
                              "CreateWindowExW(frmDialog)", "ShowWindow(frmDialog, SW_SHOW)",
                              "SetWindowTextW(frmDialog, \"New\")", "MoveWindow(frmDialog)",
                              "DestroyWindow(frmDialog)", "PostQuitMessage()"}));
}

TEST_F(HeadlessFormHostTest, AFocusThatTheUserCouldNotReachFailsTheTest) {
  form_.Show();
  form_.Find("cmdStay").SetVisible(false);
  EXPECT_TEST_FAILURE(host_.SetFocus(form_.Handle(), form_.Find("cmdStay").Id()),
                      "the focus goes to cmdStay, which the user cannot reach");
}

}  // namespace
}  // namespace korvale
