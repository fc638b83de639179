#include "hotkeys/suspension.h"

#include <stdexcept>
#include <string>
#include <vector>

#include "hotkeys/message_box.h"
#include "tests/hotkeys/dispatch_fixture.h"
#include "tests/hotkeys/message_box_host.h"

namespace korvale {
namespace {

const ShownMessageBox kNotice{
    "Hot Keys are temporarily suspended when Korvale has a message box or a dialog box displayed.",
    0, "Korvale     "};

TEST(SuspensionTest, LastsWhileAMessageBoxOrADialogIsShown) {
  EXPECT_FALSE(Suspension{}.Active());
  EXPECT_TRUE((Suspension{.MessageBoxShown = true}.Active()));
  EXPECT_TRUE((Suspension{.DialogShown = true}.Active()));
}

class SuspendedHotKeyTest : public HotKeyDispatchTest {};

TEST_F(SuspendedHotKeyTest, IsDroppedWithANoticeWhileADialogIsShown) {
  suspension.DialogShown = true;
  AddTag(3, "Other", other);

  EXPECT_EQ(Press("HOTKEY_PARENT3"), "");

  EXPECT_EQ(messages.shown, std::vector<ShownMessageBox>{kNotice});
  EXPECT_EQ(log.Calls(), Calls{"ShowMessageBox"});
}

TEST_F(SuspendedHotKeyTest, IsDroppedWithANoticeWhileAMessageBoxIsShown) {
  suspension.MessageBoxShown = true;

  EXPECT_EQ(Press("HOTKEY_MINIMIZE_PARENT"), "");

  EXPECT_EQ(messages.shown, std::vector<ShownMessageBox>{kNotice});
  EXPECT_FALSE(desktop.IsIconic(target));
}

TEST_F(SuspendedHotKeyTest, ShowsNoSecondNotice) {
  suspension.DialogShown = true;
  Open("Korvale     ", "#32770", "notice");
  log.Clear();

  EXPECT_EQ(Press("HOTKEY_PARENT3"), "");

  EXPECT_TRUE(messages.shown.empty());
  EXPECT_TRUE(log.Calls().empty());
}

TEST_F(SuspendedHotKeyTest, TakesNoOtherMessageBoxOfTheProgramForTheNotice) {
  suspension.MessageBoxShown = true;
  Open("Korvale", "#32770", "message");
  Open("Korvale    ", "#32770", "message");

  Press("HOTKEY_PARENT3");

  EXPECT_EQ(messages.shown, std::vector<ShownMessageBox>{kNotice});
}

TEST_F(SuspendedHotKeyTest, IsNotDescribedEither) {
  suspension.DialogShown = true;

  EXPECT_EQ(Describe("HOTKEY_PARENT7"), "");
  EXPECT_EQ(dispatch.udmProcessHotKey("HOTKEY_PARENT7", false, true, "Supplied"), "");
}

TEST_F(SuspendedHotKeyTest, WorksAgainOnceTheDialogIsClosed) {
  suspension.DialogShown = true;
  Press("HOTKEY_DISPLAY_OPTIONS");
  suspension.DialogShown = false;

  Press("HOTKEY_DISPLAY_OPTIONS");

  EXPECT_EQ(actions.log, Calls{"udmOptions(\"LOAD_AND_OR_REFRESH\")"});
}

TEST_F(SuspendedHotKeyTest, IsSuspendedWhileTheOptionsAreShownAsADialog) {
  forms.Load("frmOptions", Open("Korvale - Options", "Korvale.frmOptions", "options"));
  suspension.DialogShown = true;

  Press("HOTKEY_DISPLAY_OPTIONS");

  EXPECT_TRUE(actions.log.empty());
  EXPECT_EQ(messages.shown, std::vector<ShownMessageBox>{kNotice});
}

TEST_F(SuspendedHotKeyTest, ReportsAFailedNoticeAndLeavesTheTimersAlone) {
  suspension.DialogShown = true;
  messages.whileShown = [](const ShownMessageBox&) { throw std::runtime_error("no box"); };

  EXPECT_EQ(Press("HOTKEY_PARENT3"), "");

  EXPECT_EQ(errors.reported, (std::vector<ReportedError>{{ErrorPlace::kProcessHotKey, 51}}));
  EXPECT_EQ(log.Calls(), Calls{"udmNonFatalError"});
}

class HotKeyDuringMessageBoxTest : public HotKeyDispatchTest {
 protected:
  MessageBoxHost host{log};
  SuspendingMessageBoxes boxes{withBoxes, host, suspension, [] { return 0; }};
  Desktop withBoxes{{desktop, desktop, input, mainWindow, forms, boxes, previous, desktop},
                    clock,
                    options,
                    windowMenu};
  HotKeyDispatch live{withBoxes, suspension, actions, toggle, errors};
};

TEST_F(HotKeyDuringMessageBoxTest, ShowsOneNoticeHoweverOftenTheKeyIsPressed) {
  int notices = 0;
  host.whileShown = [&](const std::string& prompt) {
    if (prompt == kNotice.prompt) {
      ++notices;
      const WindowHandle notice = Open(kNotice.title, "#32770", "notice");
      live.udmProcessHotKey("HOTKEY_PARENT3", true, false, "");
      live.udmProcessHotKey("HOTKEY_MINIMIZE_PARENT", true, false, "");
      desktop.Close(notice);
    } else {
      live.udmProcessHotKey("HOTKEY_PARENT3", true, false, "");
    }
  };

  boxes.ShowMessageBox("Something else", 0, "Title");

  EXPECT_EQ(notices, 1);
  EXPECT_FALSE(suspension.Active());
  EXPECT_TRUE(mainWindow.timer.enabled);
  EXPECT_TRUE(mainWindow.mainEnabled);
}

}  // namespace
}  // namespace korvale
