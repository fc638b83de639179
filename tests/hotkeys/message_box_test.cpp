#include "hotkeys/message_box.h"

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>

#include "app/core/error_reporting.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/fakes/error_of.h"
#include "tests/hotkeys/message_box_fixture.h"

namespace korvale {
namespace {

TEST_F(MessageBoxTest, ShowsTheBoxAndReturnsTheButton) {
  host.answer = win32::kIdNo;

  EXPECT_EQ(messages.ShowMessageBox("Really?", 0x10004, "Korvale - CAUTION"), win32::kIdNo);

  EXPECT_EQ(log.Calls(), (Calls{"SetMainEnabled(false)",
                                "MessageBoxW(main, \"Really?\", \"Korvale - CAUTION\", 65540)",
                                "SetMainEnabled(true)"}));
}

TEST_F(MessageBoxTest, SuspendsHotKeysTrackingAndMainWindowWhileTheBoxIsShown) {
  ShowBoxWhile([this] {
    EXPECT_TRUE(suspension.MessageBoxShown);
    EXPECT_TRUE(suspension.Active());
    EXPECT_EQ(suspension.MessageBoxDepth, 1);
    EXPECT_FALSE(mainWindow.timer.enabled);
    EXPECT_EQ(mainWindow.timer.tag, "OFF");
    EXPECT_FALSE(mainWindow.mainEnabled);
  });

  ExpectAllGivenBack();
}

TEST_F(MessageBoxTest, TakesTheHotKeysThenTheTimerAndAtLastTheMainWindow) {
  bool seen = false;
  mainWindow.onCall = [&](const std::string& call) {
    if (call != "SetMainEnabled(false)") return;
    seen = true;
    EXPECT_FALSE(mainWindow.timer.enabled);
    EXPECT_EQ(mainWindow.timer.tag, "OFF");
    EXPECT_TRUE(suspension.MessageBoxShown);
  };

  ShowBox();

  EXPECT_TRUE(seen);
}

TEST_F(MessageBoxTest, GivesTheTimerThenTheMainWindowAndAtLastTheHotKeysBack) {
  bool seen = false;
  mainWindow.onCall = [&](const std::string& call) {
    if (call != "SetMainEnabled(true)") return;
    seen = true;
    EXPECT_TRUE(mainWindow.timer.enabled);
    EXPECT_EQ(mainWindow.timer.tag, "ON");
    EXPECT_TRUE(suspension.MessageBoxShown);
    EXPECT_EQ(suspension.MessageBoxDepth, 1);
  };

  ShowBox();

  EXPECT_TRUE(seen);
  ExpectAllGivenBack();
}

TEST_F(MessageBoxTest, LetsTheHotKeysWorkAgainWhenTheMainWindowCannotBeGivenBack) {
  mainWindow.onCall = [](const std::string& call) {
    if (call == "SetMainEnabled(true)") throw std::runtime_error("window gone");
  };

  EXPECT_THROW(ShowBox(), std::runtime_error);

  ExpectAllGivenBack();
}

TEST_F(MessageBoxTest, KeepsTheTrackingTimerStoppedWhenTheTimersAreStartedMeanwhile) {
  ShowBoxWhile([this] {
    mainWindow.udmTimersEnabled(true);
    EXPECT_FALSE(mainWindow.timer.enabled);
  });

  EXPECT_TRUE(mainWindow.timer.enabled);
}

TEST_F(MessageBoxTest, GivesAStoppedTimerBackStopped) {
  mainWindow.timer.enabled = false;
  mainWindow.timer.tag = "REST";

  ShowBox();

  EXPECT_FALSE(mainWindow.timer.enabled);
  EXPECT_EQ(mainWindow.timer.tag, "REST");
}

TEST_F(MessageBoxTest, OnlyCountsAnInnerBox) {
  host.whileShown = [this](const std::string& prompt) {
    if (prompt == "inner") {
      EXPECT_EQ(suspension.MessageBoxDepth, 2);
      return;
    }
    ShowBox("inner");
    EXPECT_EQ(suspension.MessageBoxDepth, 1);
    EXPECT_TRUE(suspension.MessageBoxShown);
    EXPECT_FALSE(mainWindow.timer.enabled);
    EXPECT_EQ(mainWindow.timer.tag, "OFF");
  };

  ShowBox("outer");

  EXPECT_EQ(log.Calls(),
            (Calls{"SetMainEnabled(false)", "MessageBoxW(main, \"outer\", \"Title\", 0)",
                   "MessageBoxW(main, \"inner\", \"Title\", 0)", "SetMainEnabled(true)"}));
  ExpectAllGivenBack();
}

TEST_F(MessageBoxTest, GivesEverythingBackWhenTheBoxFails) {
  host.whileShown = [](const std::string&) { throw std::runtime_error("no memory"); };

  EXPECT_THROW(ShowBox(), std::runtime_error);

  ExpectAllGivenBack();
}

TEST_F(MessageBoxTest, GivesEverythingBackWhenTheMainWindowFails) {
  bool failed = false;
  mainWindow.onCall = [&](const std::string&) {
    if (std::exchange(failed, true)) return;
    throw std::runtime_error("window gone");
  };

  EXPECT_THROW(ShowBox(), std::runtime_error);

  EXPECT_FALSE(suspension.MessageBoxShown);
  EXPECT_EQ(suspension.MessageBoxDepth, 0);
  EXPECT_TRUE(mainWindow.timer.enabled);
}

TEST_F(MessageBoxTest, KeepsTheOuterBoxSuspendedWhenAnInnerOneFails) {
  host.whileShown = [this](const std::string& prompt) {
    if (prompt == "inner") throw std::runtime_error("no memory");
    EXPECT_THROW(ShowBox("inner"), std::runtime_error);
    EXPECT_TRUE(suspension.MessageBoxShown);
    EXPECT_EQ(suspension.MessageBoxDepth, 1);
  };

  ShowBox("outer");

  EXPECT_EQ(suspension.MessageBoxDepth, 0);
}

TEST_F(MessageBoxTest, LetsTheEndOfTheProgramThrough) {
  host.whileShown = [](const std::string&) { throw ProgramEnded{}; };

  EXPECT_THROW(ShowBox(), ProgramEnded);

  EXPECT_EQ(suspension.MessageBoxDepth, 0);
}

TEST_F(MessageBoxTest, OverflowsBehindTheDeepestNesting) {
  suspension.MessageBoxDepth = std::numeric_limits<std::int16_t>::max();

  EXPECT_EQ(ErrorOf([this] { ShowBox(); }), RunTimeError::kOverflow);
  EXPECT_EQ(suspension.MessageBoxDepth, std::numeric_limits<std::int16_t>::max());
  EXPECT_TRUE(log.Calls().empty());
}

TEST_F(MessageBoxTest, HasNoOwnerBeforeTheMainWindowExists) {
  mainWindow.handle = 0;
  forms.forms.clear();

  ShowBox();

  EXPECT_EQ(log.CallsOf("MessageBoxW"), Calls{"MessageBoxW(0, \"Prompt\", \"Title\", 0)"});
}

TEST_F(MessageBoxTest, BelongsToTheBoxBelowIt) {
  modal = Open("Korvale - Options", "Korvale.frmOptions", kOurProcess);
  host.whileShown = [this](const std::string& prompt) {
    if (prompt == "inner") return;
    log.NameWindow(Open("Box", "#32770", kOurProcess), "outer box");
    Open("Box of another program", "#32770", kOtherProcess);
    ShowBox("inner");
  };

  ShowBox("outer");

  EXPECT_EQ(log.CallsOf("MessageBoxW").back(), "MessageBoxW(outer box, \"inner\", \"Title\", 0)");
}

TEST_F(MessageBoxTest, BelongsToTheModalDialogOnTop) {
  modal = Open("Korvale - Add Window", "Korvale.frmAddWindow", kOurProcess);
  log.NameWindow(modal, "dialog");
  forms.Load("frmAddWindow", modal);
  log.Clear();

  ShowBox();

  EXPECT_EQ(log.CallsOf("MessageBoxW"), Calls{"MessageBoxW(dialog, \"Prompt\", \"Title\", 0)"});
}

}  // namespace
}  // namespace korvale
