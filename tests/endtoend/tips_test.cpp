#include <vector>

#include "tests/endtoend/harness/menu_picture.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kColorTip[] =
    "To change the color of a Target Window/Class Label;  position the mouse over the Label, when "
    "the cursor has changed to a 'C' (the letter C within a black circle), click on the Label to "
    "change it's color.  To change the second Label to the same color, simply hold down the Alt "
    "key while clicking on the Label (Alt+Click).  When finished customizing colors, reselect this "
    "menu option to return the mouse cursor to normal.";

constexpr char kToggleTip[] =
    "This deactivates all hot keys except the hot key assigned to Activate/Deactivate Hot Keys.  "
    "When Korvale is installed, the default hot key to Activate/Deactivate Hot Keys is the Pause "
    "key.  If you wish, this hot key can be changed on the Hot Keys tab of the Options dialog box.";

constexpr char kResetQuestion[] =
    "Tip Messages are now set to be displayed.\r\rDo you want to Reset Tip Messages (show all "
    "messages that you have previously chosen not to show) ?";

class TipMessages : public KorvaleTest {
 protected:
  Window Tip() {
    const Window tip = korvale_->Form("frmMsgTip");
    EXPECT_TRUE(InFront(tip));
    EXPECT_EQ(tip.Title(), "TIP - Korvale");
    return tip;
  }

  /// Silences the tip by its check box and closes it by a key.
  ::testing::AssertionResult Silence(Window tip, Chord closing) {
    const std::vector<Window> buttons = tip.Controls("Button");
    if (buttons.empty()) return ::testing::AssertionFailure() << "no check box";
    Click(buttons.front());
    if (!WaitFor([&] { return buttons.front().Send(BM_GETCHECK) == BST_CHECKED; })) {
      return ::testing::AssertionFailure() << "the check box is not checked";
    }
    return Close(closing);
  }

  ::testing::AssertionResult Close(Chord closing = {0, VK_ESCAPE}) {
    Press(closing);
    if (WaitFor([this] { return !korvale_->HasForm("frmMsgTip"); })) {
      return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "the tip does not close";
  }

  /// Chooses Help, Display Tip Messages, and returns the question that follows when they are on.
  Window SwitchTipsOn() {
    EXPECT_TRUE(Choose('H', {'D'}));
    const Window question = korvale_->MessageBox();
    EXPECT_EQ(question.Title(), "Korvale");
    EXPECT_EQ(LabelText(question), kResetQuestion);
    EXPECT_TRUE(InFront(question));
    return question;
  }

  /// Waits for the notice of the hot keys' state, and until it has gone.
  ::testing::AssertionResult NoticeComesAndGoes(const char* text) {
    const Window notice = korvale_->Form("frmWaitWindow");
    if (!notice) return ::testing::AssertionFailure() << "no notice";
    if (LabelText(notice) != text) return ::testing::AssertionFailure() << LabelText(notice);
    WaitFor([this] { return !korvale_->HasForm("frmWaitWindow"); });
    return InFront(main());
  }

  /// Opens the View menu, which shows a check mark at Customize Colors or none, and closes it.
  ::testing::AssertionResult ColorsAreChecked(bool checked) {
    constexpr size_t kColors = 2;
    if (!BringToFront(main())) return ::testing::AssertionFailure() << "no main window";
    Press({MOD_ALT, 'V'});
    const std::vector<SeenEntry> seen = MenuEntries(korvale_->OpenMenu(), kViewEntries);
    for (int level = 0; level < 2; ++level) Press({0, VK_ESCAPE});
    if (!WaitFor([this] { return !korvale_->HasMenu(); })) {
      return ::testing::AssertionFailure() << "the menu does not close";
    }
    if (seen.size() != kViewEntries) {
      return ::testing::AssertionFailure() << seen.size() << " entries";
    }
    if (seen[kColors].checked == checked) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << (checked ? "no check mark" : "still a check mark");
  }
};

TEST_F(TipMessages, ExplainHowColorsAreCustomizedEachTimeTheModeIsTurnedOn) {
  Start();
  EXPECT_TRUE(ColorsAreChecked(false));
  for (int time = 0; time < 2; ++time) {
    ASSERT_TRUE(Choose('V', {'C'}));
    EXPECT_EQ(LabelText(Tip()), kColorTip);
    EXPECT_TRUE(Close());
    EXPECT_TRUE(ColorsAreChecked(true));
    ASSERT_TRUE(Choose('V', {'C'}));
    EXPECT_TRUE(StaysInFront(main()));
    EXPECT_TRUE(ColorsAreChecked(false));
  }
  EXPECT_TRUE(Stored("Tips", "1"));
}

TEST_F(TipMessages, AreSilencedOneByOne) {
  Start();
  ASSERT_TRUE(Choose('T', {'H'}));
  const Window tip = Tip();
  EXPECT_EQ(LabelText(tip), kToggleTip);
  ASSERT_TRUE(Silence(tip, {0, VK_RETURN}));
  EXPECT_TRUE(NoticeComesAndGoes("Hot Keys are now Deactivated"));
  EXPECT_TRUE(Stored("Tips", "11111111111110"));
  ASSERT_TRUE(Choose('T', {'H'}));
  EXPECT_TRUE(NoticeComesAndGoes("Hot Keys are now Activated"));
  ASSERT_TRUE(Choose('T', {'H'}));
  EXPECT_TRUE(NoticeComesAndGoes("Hot Keys are now Deactivated"));
  ASSERT_TRUE(Choose('V', {'C'}));
  ASSERT_TRUE(Silence(Tip(), {MOD_ALT, VK_F4}));
  EXPECT_TRUE(Stored("Tips", "01111111111110"));
}

TEST_F(TipMessages, StaySilencedAfterTheNextStart) {
  Start();
  ASSERT_TRUE(Choose('V', {'C'}));
  ASSERT_TRUE(Silence(Tip(), {0, VK_ESCAPE}));
  EXPECT_TRUE(Stored("Tips", "0"));
  ASSERT_TRUE(Exit());
  Start();
  ASSERT_TRUE(Choose('V', {'C'}));
  EXPECT_TRUE(StaysInFront(main()));
  EXPECT_FALSE(korvale_->HasForm("frmMsgTip"));
}

TEST_F(TipMessages, AreSwitchedOffAndOnAllTogether) {
  installation_.settings().Set("Startup", "Tips", "01111111111110");
  Start();
  ASSERT_TRUE(Choose('H', {'D'}));
  EXPECT_TRUE(Stored("DisplayTips", "False"));
  EXPECT_FALSE(korvale_->HasMessageBox());
  ASSERT_TRUE(Choose('T', {'H'}));
  EXPECT_TRUE(NoticeComesAndGoes("Hot Keys are now Deactivated"));
  EXPECT_TRUE(Stored("Tips", "01111111111110"));
  ASSERT_TRUE(SwitchTipsOn());
  Press({0, VK_RETURN});
  EXPECT_TRUE(Stored("DisplayTips", "True"));
  EXPECT_TRUE(Stored("Tips", "01111111111110"));
}

TEST_F(TipMessages, ComeAgainAfterTheyWereReset) {
  installation_.settings().Set("Startup", "Tips", "01111111111110");
  installation_.settings().Set("Startup", "DisplayTips", "False");
  Start();
  const Window question = SwitchTipsOn();
  ASSERT_TRUE(question);
  EXPECT_TRUE(AnswerBox(question, IDYES));
  EXPECT_TRUE(Stored("Tips", ""));
  ASSERT_TRUE(Choose('V', {'C'}));
  EXPECT_TRUE(Tip());
  EXPECT_TRUE(Close({MOD_ALT, VK_F4}));
  EXPECT_TRUE(Stored("Tips", "1"));
}

}  // namespace
}  // namespace korvale::endtoend
