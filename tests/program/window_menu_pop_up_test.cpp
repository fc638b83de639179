#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/window_menu_test.h"

namespace korvale {
namespace {

using Items = std::vector<ShownMenuItem>;

/// The Window menu over another program's window, by its hot key.
class WindowMenuPopUpTest : public WindowMenuTest {
 protected:
  /// Alpha is Tag 1; the user works in Beta.
  WindowMenuPopUpTest() {
    korvale.TagPrevious();
    beta_ = Open("Beta");
  }

  void PopUp() { PressHotKey(win32::kModWin, 'W'); }

  void PopUpAndChoose(const std::string& caption) {
    korvale.host.WhenPopupMenu([caption](const Items&) { return caption; });
    PopUp();
  }

  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  WindowHandle beta_ = 0;
};

TEST_F(WindowMenuPopUpTest, LeftWithoutAChoiceGivesTheKeyboardBack) {
  PopUpAndChoose("");
  EXPECT_EQ(Front(), "Beta");

  desktop.UserActivates(korvale.Handle());
  PopUpAndChoose("");
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(WindowMenuPopUpTest, LeavesTheUserInTheWindowThatTheyClickInto) {
  const WindowHandle gamma = Open("Gamma");
  WorkIn(beta_);
  korvale.host.WhenPopupMenu([&](const Items&) {
    desktop.UserActivates(gamma);
    return "";
  });
  PopUp();
  EXPECT_EQ(Front(), "Gamma");
}

TEST_F(WindowMenuPopUpTest, LeadsToTheWindowBeforeWhenTheUsersOneHasGone) {
  korvale.host.WhenPopupMenu([&](const Items&) {
    desktop.Close(beta_);
    return "";
  });
  PopUp();
  EXPECT_EQ(Front(), "Alpha");

  korvale.host.WhenPopupMenu([&](const Items&) {
    desktop.Close(desktop.FindWindowA("Alpha"));
    return "";
  });
  PopUp();
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(WindowMenuPopUpTest, ItsSwitchesLeaveTheUserWhereTheyWork) {
  PopUpAndChoose("Korvale  Always On Top");
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(WindowMenuPopUpTest, RestoreAllEndsInTheMainWindow) {
  PopUpAndChoose("Restore All");
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(WindowMenuPopUpTest, TheAddWindowDialogLeadsBackToWhereTheUserCameFrom) {
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    korvale.user.PressKey(dialog.Handle(), win32::kVkEscape);
  });
  PopUpAndChoose(std::string(27, ' ') + "Add  Korvale  to Window menu...");
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(WindowMenuPopUpTest, TheMessageOfATagThatIsNotOpenLeadsBackToWhereTheUserCameFrom) {
  desktop.Close(desktop.FindWindowA("Alpha"));
  korvale.host.AnswerNext(win32::kIdOk);
  PopUpAndChoose("1  Alpha");
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(WindowMenuPopUpTest, AnEntryOfKorvaleItselfLeadsThere) {
  WorkIn(korvale.Handle());
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    korvale.user.Click(dialog.Handle(), dialog.Find("cmdOK").Id());
  });
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Add  Korvale  to Window menu..."});
  WorkIn(beta_);
  PopUpAndChoose("2  Korvale - Work");
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(WindowMenuPopUpTest, LeavesAMinimizedStripMinimized) {
  desktop.UserMinimizes(korvale.Handle());
  WorkIn(beta_);
  PopUpAndChoose("");
  EXPECT_TRUE(desktop.IsIconic(korvale.Handle()));
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(WindowMenuPopUpTest, OverAnOpenMenuOfTheBarClosesThatFirst) {
  WorkIn(korvale.Handle());
  korvale.user.PressKey(korvale.Handle(), 'W', kAlt);
  ASSERT_FALSE(korvale.user.OpenMenuItems().empty());
  Items shown;
  korvale.host.WhenPopupMenu([&](const Items& items) {
    EXPECT_TRUE(korvale.user.OpenMenuItems().empty());
    shown = items;
    return "";
  });
  PopUp();
  EXPECT_FALSE(shown.empty());
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(WindowMenuPopUpTest, PoppedUpAgainStandsAloneWithTheTimersAtRest) {
  int shown = 0;
  const auto show = [&](const Items&) {
    ++shown;
    EXPECT_FALSE(korvale.Form().tmrWindow().Enabled());
    if (shown == 1) hotKeys.Press(win32::kModWin, 'W');
    EXPECT_FALSE(korvale.Form().tmrWindow().Enabled());
    return "";
  };
  korvale.host.WhenPopupMenu(show);
  korvale.host.WhenPopupMenu([&](const Items& items) {
    EXPECT_EQ(shown, 1);
    return show(items);
  });
  PopUp();
  EXPECT_EQ(shown, 2);
  EXPECT_EQ(Front(), "Beta");
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

TEST_F(WindowMenuPopUpTest, ATagKeyClosesItAndSelectsItsWindow) {
  korvale.host.WhenPopupMenu([&](const Items&) {
    PressTag(1);
    EXPECT_FALSE(korvale.Form().tmrWindow().Enabled());
    return "";
  });
  PopUp();
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

TEST_F(WindowMenuPopUpTest, TheMinimizeKeyActsOnTheWindowBelowIt) {
  korvale.host.WhenPopupMenu([&](const Items&) {
    PressHotKey(win32::kModAlt, win32::kVkDown);
    return "";
  });
  PopUp();
  EXPECT_TRUE(desktop.IsIconic(beta_));
  EXPECT_FALSE(desktop.IsIconic(korvale.Handle()));
}

}  // namespace
}  // namespace korvale
