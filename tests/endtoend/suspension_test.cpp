#include <vector>

#include "tests/endtoend/harness/real_program.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";
constexpr char kNoticeTitle[] = "Korvale     ";
constexpr char kNotice[] =
    "Hot Keys are temporarily suspended when Korvale has a message box or a dialog box displayed.";

class Suspension : public KorvaleTest {
 protected:
  Window Notice() {
    WaitFor([&] { return !korvale_->MessageBoxes(kNoticeTitle).empty(); });
    const std::vector<Window> notices = korvale_->MessageBoxes(kNoticeTitle);
    return notices.empty() ? Window() : notices.front();
  }
};

TEST_F(Suspension, ShowsItsNoticeOnceHoweverOftenAKeyIsPressed) {
  installation_.StoreTag(1, "Nowhere", kClass);
  installation_.StoreTag(2, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press(TagKey(1));
  const Window message = korvale_->MessageBox();
  ASSERT_TRUE(message);
  Press(TagKey(2));
  const Window notice = Notice();
  ASSERT_TRUE(notice);
  EXPECT_EQ(LabelText(notice), kNotice);
  Press(TagKey(2));
  Press(TagKey(1));
  EXPECT_TRUE(HoldsFor([&] { return korvale_->MessageBoxes(kNoticeTitle).size() == 1; }));
  EXPECT_TRUE(AnswerBox(notice, IDOK));
  EXPECT_TRUE(Says("Window:  [Nowhere]  is not open."));
  Press(TagKey(2));
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(Suspension, TheDismissedNoticeLeadsBackToTheMessageBelowIt) {
  installation_.StoreTag(1, "Nowhere", kClass);
  installation_.StoreTag(2, "Alpha", kClass);
  Start();
  Open("Alpha");
  const Window beta = WorkInNew("Beta");
  Press(TagKey(1));
  const Window message = korvale_->MessageBox();
  ASSERT_TRUE(InFront(message));
  Press(TagKey(2));
  const Window notice = Notice();
  ASSERT_TRUE(InFront(notice));
  EXPECT_FALSE(message.Enabled());
  Press({0, VK_RETURN});
  ASSERT_TRUE(WaitFor([&] { return !notice.Exists(); }));
  EXPECT_TRUE(InFront(message));
  EXPECT_TRUE(HoldsFor([&] { return Foreground() == message && !main().Enabled(); }));
  Press({0, VK_RETURN});
  ASSERT_TRUE(WaitFor([&] { return !message.Exists(); }));
  EXPECT_TRUE(InFront(beta));
  EXPECT_TRUE(main().Enabled());
}

TEST_F(Suspension, TheDismissedNoticeLeadsBackToTheMessageAlsoFromTheMainWindow) {
  installation_.StoreTag(1, "Nowhere", kClass);
  Start();
  Open("Beta");
  ASSERT_TRUE(BringToFront(main()));
  Press(TagKey(1));
  const Window message = korvale_->MessageBox();
  ASSERT_TRUE(InFront(message));
  Press(TagKey(1));
  const Window notice = Notice();
  ASSERT_TRUE(InFront(notice));
  Press({0, VK_RETURN});
  ASSERT_TRUE(WaitFor([&] { return !notice.Exists(); }));
  EXPECT_TRUE(InFront(message));
  EXPECT_TRUE(HoldsFor([&] { return Foreground() == message && !main().Enabled(); }));
  Press({0, VK_RETURN});
  EXPECT_TRUE(InFront(main()));
}

TEST_F(Suspension, HoldsWhileTheAddWindowDialogIsOpen) {
  installation_.StoreTag(2, "Beta", kClass);
  Start();
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  const Window beta = WorkInNew("Beta");
  const AddWindowDialog dialog = OpenAddWindow();
  Press(TagKey(2));
  const Window notice = Notice();
  ASSERT_TRUE(notice);
  EXPECT_NE(Foreground(), beta);
  EXPECT_TRUE(AnswerBox(notice, IDOK));
  EXPECT_TRUE(dialog.Cancel());
  Press(TagKey(2));
  EXPECT_TRUE(InFront(beta));
}

class Toggle : public KorvaleTest {
 protected:
  void ExpectNotice(const std::string& title, const std::string& text) {
    const Window notice = korvale_->Form("frmWaitWindow");
    ASSERT_TRUE(notice);
    EXPECT_EQ(notice.Title(), title);
    EXPECT_EQ(LabelText(notice), text);
    EXPECT_TRUE(WaitFor([&] { return !korvale_->HasForm("frmWaitWindow"); }));
  }

  /// The top-level window that the user sees in the middle of that place.
  Window TopLevelAt(Window place) {
    RECT area{};
    GetWindowRect(place.handle(), &area);
    const POINT middle{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    return Window(GetAncestor(WindowFromPoint(middle), GA_ROOT));
  }

  void SwitchOff() {
    Press(kToggleKey);
    ExpectNotice("Korvale - Hot Keys (OFF)", "Hot Keys are now Deactivated");
  }

  void SwitchOn() {
    Press(kToggleKey);
    ExpectNotice("Korvale - Hot Keys (ON)", "Hot Keys are now Activated");
  }
};

TEST_F(Toggle, SwitchesTheOtherHotKeysOffAndOnAgain) {
  installation_.StoreTag(3, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  const Window beta = WorkInNew("Beta");
  SwitchOff();
  ASSERT_TRUE(BringToFront(beta));
  Press(TagKey(3));
  EXPECT_TRUE(StaysInFront(beta));
  SwitchOn();
  ASSERT_TRUE(BringToFront(beta));
  Press(TagKey(3));
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(Toggle, ItsNoticeLeavesTheKeyboardToTheUsersWindow) {
  Start();
  const RealProgram notepad = StartNotepad();
  ASSERT_TRUE(BringToFront(notepad.window()));
  const std::vector<Window> edits = notepad.window().Controls("Edit");
  ASSERT_FALSE(edits.empty());
  Press(kToggleKey);
  const Window notice = korvale_->Form("frmWaitWindow");
  ASSERT_TRUE(notice);
  EXPECT_EQ(TopLevelAt(notice), notice);
  Type("abc");
  EXPECT_EQ(Foreground(), notepad.window());
  EXPECT_TRUE(WaitFor([&] { return edits.front().Text() == "abc"; }));
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasForm("frmWaitWindow"); }));
  EXPECT_TRUE(InFront(notepad.window()));
}

TEST_F(Toggle, ItsNoticeLeavesTheKeyboardAlsoToTheUserWhoClicksOnIt) {
  Start();
  const Window beta = WorkInNew("Beta");
  for (const LONG from_top : {10L, 60L}) {
    Press(kToggleKey);
    const Window notice = korvale_->Form("frmWaitWindow");
    ASSERT_TRUE(notice);
    ClickAt(notice, {100, from_top});
    EXPECT_TRUE(WaitFor([&] { return !korvale_->HasForm("frmWaitWindow"); }));
    EXPECT_TRUE(StaysInFront(beta));
  }
}

TEST_F(Toggle, ItsNoticeGoesByItselfUnderTheSuspensionNotice) {
  Start();
  const Window beta = WorkInNew("Beta");
  Press(kToggleKey);
  ASSERT_TRUE(korvale_->Form("frmWaitWindow"));
  Press(kToggleKey);
  const Window suspended = korvale_->MessageBox();
  ASSERT_TRUE(suspended);
  EXPECT_EQ(LabelText(suspended), kNotice);
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasForm("frmWaitWindow"); }));
  EXPECT_TRUE(suspended.Visible());
  EXPECT_TRUE(AnswerBox(suspended, IDOK));
  EXPECT_TRUE(InFront(beta));
}

TEST_F(Toggle, LeavesTheKeysToOtherProgramsWhileTheyAreOff) {
  Start();
  SwitchOff();
  EXPECT_TRUE(HotKeyIsFree(TagKey(5)));
  EXPECT_TRUE(HotKeyIsFree(kMenuKey));
  EXPECT_FALSE(HotKeyIsFree(kToggleKey));
  SwitchOn();
  EXPECT_FALSE(HotKeyIsFree(TagKey(5)));
  EXPECT_FALSE(HotKeyIsFree(kMenuKey));
  EXPECT_FALSE(HotKeyIsFree(kToggleKey));
}

TEST_F(Toggle, TakesAKeyThatAnotherProgramHadAtTheStart) {
  installation_.StoreTag(5, "Alpha", kClass);
  const Window alpha = Open("Alpha");
  std::optional<TestProgram> holder(std::in_place);
  ASSERT_TRUE(holder->TakeHotKey(TagKey(5)));
  installation_.settings().Set("Startup", "DisplayTips", "False");
  Start();
  const Window beta = WorkInNew("Beta");
  Press(TagKey(5));
  EXPECT_TRUE(StaysInFront(beta));
  holder.reset();
  ASSERT_TRUE(WaitFor([] { return HotKeyIsFree(TagKey(5)); }));
  SwitchOff();
  SwitchOn();
  ASSERT_TRUE(BringToFront(beta));
  Press(TagKey(5));
  EXPECT_TRUE(InFront(alpha));
}

}  // namespace
}  // namespace korvale::endtoend
