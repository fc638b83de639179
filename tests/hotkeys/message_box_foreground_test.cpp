#include <functional>
#include <string>

#include "tests/hotkeys/message_box_fixture.h"

namespace korvale {
namespace {

class MessageBoxForegroundTest : public MessageBoxTest {
 protected:
  /// The Options dialog, in front.
  WindowHandle OpenOptions() {
    const WindowHandle options = Open("Korvale - Options", "Korvale.frmOptions", kOurProcess);
    forms.Load("frmOptions", options);
    desktop.UserActivates(options);
    return options;
  }
};

TEST_F(MessageBoxForegroundTest, GivesTheForegroundBackToTheMainWindow) {
  desktop.UserActivates(main);
  log.Clear();
  ShowBoxWhile([this] { desktop.UserActivates(other); });

  EXPECT_EQ(log.Calls().back(), "SetForegroundWindow(main)");
  EXPECT_EQ(desktop.GetForegroundWindow(), main);
}

TEST_F(MessageBoxForegroundTest, GivesTheForegroundBackToAnotherFormOfTheProgram) {
  const WindowHandle options = OpenOptions();
  ShowBoxWhile([this] { desktop.UserActivates(other); });

  EXPECT_EQ(desktop.GetForegroundWindow(), options);
}

TEST_F(MessageBoxForegroundTest, GivesTheForegroundBackToTheDialogWhenTheMainWindowGotIt) {
  const WindowHandle options = OpenOptions();
  ShowBoxWhile([this] { desktop.UserActivates(main); });

  EXPECT_EQ(desktop.GetForegroundWindow(), options);
}

TEST_F(MessageBoxForegroundTest, ActivatesNoMainWindowThatIsStillHidden) {
  desktop.Hide(main);
  log.Clear();

  ShowBox();

  EXPECT_EQ(log.CallsOf("MessageBoxW"), Calls{"MessageBoxW(0, \"Prompt\", \"Title\", 0)"});
}

TEST_F(MessageBoxForegroundTest, LeavesTheForegroundToTheProgramThatHadIt) {
  desktop.UserActivates(other);
  const WindowHandle third = Open("Third", "Third", kOtherProcess);
  log.Clear();
  ShowBoxWhile([&] { desktop.UserActivates(third); });

  EXPECT_TRUE(log.CallsOf("SetForegroundWindow").empty());
  EXPECT_EQ(desktop.GetForegroundWindow(), third);
}

TEST_F(MessageBoxForegroundTest, GivesTheForegroundBackToTheProgramThatHadItAfterAHotKey) {
  desktop.UserActivates(other);
  log.Clear();
  ShowBoxWhile([this] { desktop.UserActivates(main); });

  EXPECT_EQ(log.Calls().back(), "SetForegroundWindow(other)");
  EXPECT_EQ(desktop.GetForegroundWindow(), other);
}

TEST_F(MessageBoxForegroundTest, LeavesTheForegroundToAnotherFormOfTheProgram) {
  desktop.UserActivates(main);
  log.Clear();
  ShowBoxWhile([this] {
    const WindowHandle about = Open("About", "Korvale.frmMsgBox2", kOurProcess);
    forms.Load("frmMsgBox2", about);
  });

  EXPECT_TRUE(log.CallsOf("SetForegroundWindow").empty());
}

TEST_F(MessageBoxForegroundTest, GivesTheForegroundBackWhenNobodyHasIt) {
  forms.Load("frmMsgTip", 0);
  desktop.UserActivates(main);
  ShowBoxWhile([this] { desktop.LoseForeground(); });

  EXPECT_EQ(desktop.GetForegroundWindow(), main);
}

TEST_F(MessageBoxForegroundTest, GivesTheForegroundBackOnlyAfterTheOutermostBox) {
  desktop.UserActivates(main);
  log.Clear();
  host.whileShown = [this](const std::string& prompt) {
    if (prompt == "inner") return;
    desktop.UserActivates(other);
    ShowBox("inner");
    EXPECT_EQ(desktop.GetForegroundWindow(), other);
  };

  ShowBox("outer");

  EXPECT_EQ(log.CallsOf("SetForegroundWindow"), Calls{"SetForegroundWindow(main)"});
}

class LostWindowTest : public MessageBoxTest {
 protected:
  void ExpectTheForegroundStaysAfter(const std::function<void()>& happening) {
    desktop.UserActivates(main);
    log.Clear();
    ShowBoxWhile([&] {
      desktop.UserActivates(other);
      happening();
    });

    EXPECT_TRUE(log.CallsOf("SetForegroundWindow").empty());
    EXPECT_EQ(desktop.GetForegroundWindow(), other);
  }
};

TEST_F(LostWindowTest, GetsNoForegroundWhenItIsGone) {
  ExpectTheForegroundStaysAfter([this] { desktop.Close(main); });
}

TEST_F(LostWindowTest, GetsNoForegroundWhenItIsHidden) {
  ExpectTheForegroundStaysAfter([this] { desktop.Hide(main); });
}

TEST_F(LostWindowTest, GetsNoForegroundWhenItIsDisabled) {
  ExpectTheForegroundStaysAfter([this] { desktop.SetEnabled(main, false); });
}

}  // namespace
}  // namespace korvale
