#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";

class AddWindow : public KorvaleTest {
 protected:
  void StoreTags(std::initializer_list<int> tags) {
    for (const int tag : tags) installation_.StoreTag(tag, "Window " + std::to_string(tag), kClass);
  }

  /// Opens a window of that title and the dialog for it.
  AddWindowDialog OpenFor(const char* title) {
    window_ = Open(title);
    EXPECT_TRUE(WorkIn(window_));
    return OpenAddWindow();
  }

  /// Works in another window, presses the Tag's key, and expects the tagged window.
  void ExpectTagSelects(int tag, Window window) {
    ASSERT_TRUE(InFront(main()));
    ASSERT_TRUE(StaysInFront(main()));
    ASSERT_TRUE(WorkIn(Open("Elsewhere")));
    Press(TagKey(tag));
    EXPECT_TRUE(InFront(window));
  }

  static bool IsListOpen(const AddWindowDialog& dialog) {
    return dialog.TagList().Send(CB_GETDROPPEDSTATE) != 0;
  }
  static bool ListOpens(const AddWindowDialog& dialog, bool open) {
    return WaitFor([&] { return IsListOpen(dialog) == open; });
  }

  /// Opens the list of Tags with the mouse out of its way: Wine chooses the entry that comes up
  /// under the pointer.
  static bool OpensList(const AddWindowDialog& dialog) {
    MoveMouse(dialog.RemoveButton(), {});
    Press({0, VK_F4});
    return ListOpens(dialog, true);
  }

  Window window_;
};

class AddWindowInStarted : public AddWindow {
 protected:
  void SetUp() override { Start(); }
};

TEST_F(AddWindowInStarted, ShowsThePreviousWindowAndItsClass) {
  const AddWindowDialog dialog = OpenFor("Alpha");
  EXPECT_EQ(dialog.form().Title(), "Korvale - Add Window");
  EXPECT_EQ(dialog.TitleBox().Text(), "Alpha");
  EXPECT_EQ(dialog.ClassBox().Text(), kClass);
  EXPECT_EQ(dialog.SelectedTag(), "1");
  EXPECT_EQ(dialog.State(), "Available");
  EXPECT_FALSE(dialog.RemoveButton().Enabled());
}

TEST_F(AddWindowInStarted, TagsAWindowByItsTitle) {
  const AddWindowDialog dialog = OpenFor("Alpha");
  ASSERT_TRUE(dialog.Confirm());
  ExpectTagSelects(1, window_);
}

TEST_F(AddWindowInStarted, TagsAWindowByTheRightPartOfItsTitle) {
  const AddWindowDialog dialog = OpenFor("one - two - three");
  ASSERT_EQ(dialog.Choices().size(), 3U);
  EXPECT_EQ(dialog.Choices()[1].Text(), "one - ***");
  EXPECT_EQ(dialog.Choices()[2].Text(), "*** - three");
  ASSERT_TRUE(dialog.SelectTag(3));
  ASSERT_TRUE(dialog.Choose(2));
  ASSERT_TRUE(dialog.Confirm());
  window_.SetTitle("four - three");
  ExpectTagSelects(3, window_);
  ASSERT_TRUE(Exit());
  EXPECT_EQ(installation_.settings().Get("ParentWindowList", "3"), "&3  *** - three");
  EXPECT_EQ(installation_.settings().Get("ParentWindowClass", "3"), kClass);
}

TEST_F(AddWindowInStarted, TagsAWindowByTheLeftPartOfItsTitle) {
  const AddWindowDialog dialog = OpenFor("one - two");
  ASSERT_TRUE(dialog.Choose(1));
  ASSERT_TRUE(dialog.Confirm());
  window_.SetTitle("one - something else");
  ExpectTagSelects(1, window_);
}

TEST_F(AddWindowInStarted, OffersTheWholeTitleAsItsPartsWhenThereIsNoSeparator) {
  const AddWindowDialog dialog = OpenFor("Alpha");
  ASSERT_EQ(dialog.Choices().size(), 3U);
  EXPECT_EQ(dialog.Choices()[1].Text(), "Alpha - ***");
  EXPECT_EQ(dialog.Choices()[2].Text(), "*** - Alpha");
}

TEST_F(AddWindow, OffersOnlyTheTitleOfAnUntitledWindow) {
  installation_.SetOption("AllowNoTextWindow", "True");
  Start();
  Open({.title = ""});
  ASSERT_TRUE(Target("(window without a title)"));
  const AddWindowDialog dialog = OpenAddWindow();
  EXPECT_EQ(dialog.Choices().size(), 1U);
}

TEST_F(AddWindowInStarted, TagsAWindowByATitleThatTheUserEdited) {
  const AddWindowDialog dialog = OpenFor("Report of Monday");
  Press({MOD_ALT, 'P'});
  Type("Report");
  ASSERT_TRUE(WaitFor([&] { return dialog.TitleBox().Text() == "Report"; }));
  ASSERT_TRUE(dialog.Confirm());
  window_.SetTitle("Report of Tuesday");
  ExpectTagSelects(1, window_);
  ASSERT_TRUE(Exit());
  EXPECT_EQ(installation_.settings().Get("ParentWindowList", "1"), "&1  Report");
}

TEST_F(AddWindow, OffersTheLowestFreeTag) {
  StoreTags({1, 2, 4});
  Start();
  const AddWindowDialog dialog = OpenFor("Alpha");
  EXPECT_EQ(dialog.SelectedTag(), "3");
  EXPECT_EQ(dialog.State(), "Available");
}

TEST_F(AddWindow, OffersTagOneWhenAllNineAreAssignedAndReplacesIt) {
  StoreTags({1, 2, 3, 4, 5, 6, 7, 8, 9});
  Start();
  const AddWindowDialog dialog = OpenFor("Alpha");
  EXPECT_EQ(dialog.SelectedTag(), "1  Window 1");
  EXPECT_EQ(dialog.State(), "Window 1");
  EXPECT_TRUE(dialog.RemoveButton().Enabled());
  ASSERT_TRUE(dialog.Confirm());
  ExpectTagSelects(1, window_);
}

TEST_F(AddWindow, RemovesATagAndStaysOpen) {
  StoreTags({2});
  Start();
  const AddWindowDialog dialog = OpenFor("Window 2");
  ASSERT_TRUE(dialog.SelectTag(2));
  EXPECT_EQ(dialog.State(), "Window 2");
  Click(dialog.RemoveButton());
  EXPECT_TRUE(WaitFor([&] { return dialog.State() == "Available"; }));
  EXPECT_EQ(dialog.SelectedTag(), "2");
  EXPECT_FALSE(dialog.RemoveButton().Enabled());
  ASSERT_TRUE(dialog.Cancel());
  ASSERT_TRUE(InFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  const Window elsewhere = WorkInNew("Elsewhere");
  Press(TagKey(2));
  EXPECT_TRUE(StaysInFront(elsewhere));
}

TEST_F(AddWindowInStarted, GoesThroughTheOpenListOfTagsWithTheArrowsAndTakesTheChosenOne) {
  const AddWindowDialog dialog = OpenFor("Alpha");
  ASSERT_TRUE(OpensList(dialog));
  Press({0, VK_DOWN});
  Press({0, VK_DOWN});
  EXPECT_TRUE(WaitFor([&] { return dialog.SelectedTag() == "3"; }));
  EXPECT_TRUE(HoldsFor([&] { return IsListOpen(dialog); }));
  Press({0, VK_RETURN});
  ASSERT_TRUE(ListOpens(dialog, false));
  EXPECT_EQ(dialog.SelectedTag(), "3");
  ASSERT_TRUE(dialog.Confirm());
  ExpectTagSelects(3, window_);
}

TEST_F(AddWindowInStarted, ClosesWithEscAfterTheListOfTagsWasOpen) {
  const AddWindowDialog dialog = OpenFor("Alpha");
  ASSERT_TRUE(OpensList(dialog));
  Press({0, VK_DOWN});
  Press({0, VK_ESCAPE});
  ASSERT_TRUE(ListOpens(dialog, false));
  EXPECT_TRUE(dialog.form().Exists());
  EXPECT_TRUE(dialog.Cancel());
}

TEST_F(AddWindow, LeavesTheOpenListOfTagsWithTab) {
  StoreTags({2});
  Start();
  const AddWindowDialog dialog = OpenFor("Alpha");
  ASSERT_TRUE(OpensList(dialog));
  Press({0, VK_DOWN});
  Press({0, VK_TAB});
  ASSERT_TRUE(ListOpens(dialog, false));
  EXPECT_TRUE(dialog.SelectedTag().starts_with("2"));
  EXPECT_TRUE(WaitFor([&] { return dialog.RemoveButton().Enabled(); }));
  EXPECT_TRUE(dialog.Cancel());
}

TEST_F(AddWindowInStarted, ClosesAtTheFirstClickAfterTheMouseHasOpenedTheListOfTags) {
  const AddWindowDialog dialog = OpenFor("Alpha");
  Click(dialog.TagList());
  ASSERT_TRUE(ListOpens(dialog, true));
  Press({0, VK_DOWN});
  Press({0, VK_RETURN});
  ASSERT_TRUE(ListOpens(dialog, false));
  Click(dialog.CloseButton());
  EXPECT_TRUE(WaitFor([&] { return !dialog.form().Exists(); }));
}

TEST_F(AddWindowInStarted, GivesTheFocusBackToTheMainWindow) {
  const AddWindowDialog first = OpenFor("Alpha");
  ASSERT_TRUE(first.Confirm());
  EXPECT_TRUE(InFront(main()));
  EXPECT_TRUE(StaysInFront(main()));
  const AddWindowDialog second = OpenAddWindow();
  ASSERT_TRUE(second.Cancel());
  EXPECT_TRUE(InFront(main()));
  EXPECT_TRUE(StaysInFront(main()));
}

TEST_F(AddWindowInStarted, ShowsItsButtons) {
  const AddWindowDialog dialog = OpenFor("Alpha");
  for (const Window button : {dialog.OkButton(), dialog.CloseButton(), dialog.RemoveButton()}) {
    RECT shown{};
    RECT client{};
    GetWindowRect(button.handle(), &shown);
    GetClientRect(dialog.form().handle(), &client);
    MapWindowPoints(HWND_DESKTOP, dialog.form().handle(), reinterpret_cast<POINT*>(&shown), 2);
    EXPECT_TRUE(button.Visible()) << button.Text();
    EXPECT_LE(shown.bottom, client.bottom) << button.Text();
    EXPECT_LE(shown.right, client.right) << button.Text();
  }
}

TEST_F(AddWindowInStarted, ChangesNothingOnEscape) {
  const AddWindowDialog dialog = OpenFor("Alpha");
  ASSERT_TRUE(dialog.Cancel());
  ASSERT_TRUE(InFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  const Window elsewhere = WorkInNew("Elsewhere");
  Press(TagKey(1));
  EXPECT_TRUE(StaysInFront(elsewhere));
}

TEST_F(AddWindowInStarted, TagsTheMainWindowItself) {
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, 'U'});
  const AddWindowDialog dialog(korvale_->Form("frmGetWindow"));
  ASSERT_TRUE(dialog.form());
  EXPECT_EQ(dialog.TitleBox().Text(), installation_.name());
  EXPECT_EQ(dialog.Choices().size(), 1U);
  ASSERT_TRUE(dialog.Confirm());
  ExpectTagSelects(1, main());
}

TEST_F(AddWindowInStarted, StoresAWindowWithoutChildWindowsWithoutItsClass) {
  WorkInNew({.title = "Bare", .with_child = false});
  const AddWindowDialog dialog = OpenAddWindow();
  ASSERT_TRUE(dialog.Confirm());
  ASSERT_TRUE(Exit());
  EXPECT_EQ(installation_.settings().Get("ParentWindowList", "1"), "&1  Bare");
  EXPECT_EQ(installation_.settings().Get("ParentWindowClass", "1").value_or(""), "");
}

TEST_F(AddWindowInStarted, KeepsATitleInAnyScript) {
  const AddWindowDialog dialog = OpenFor("Счёт №5 - 会計 🧮 & co");
  EXPECT_EQ(dialog.TitleBox().Text(), "Счёт №5 - 会計 🧮 & co");
  ASSERT_EQ(dialog.Choices().size(), 3U);
  EXPECT_EQ(dialog.Choices()[1].Text(), "Счёт №5 - ***");
  ASSERT_TRUE(dialog.Choose(1));
  ASSERT_TRUE(dialog.Confirm());
  ExpectTagSelects(1, window_);
  ASSERT_TRUE(Exit());
  EXPECT_EQ(installation_.settings().Get("ParentWindowList", "1"), "&1  Счёт №5 - ***");
}

}  // namespace
}  // namespace korvale::endtoend
