#include <windows.h>

#include <string>
#include <vector>

#include "tests/endtoend/harness/gui_mode.h"
#include "tests/endtoend/harness/options_dialog.h"
#include "tests/endtoend/harness/real_program.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";
constexpr char kNoticeTitle[] = "Korvale     ";
/// As many messages as Windows keeps in a queue.
constexpr int kFlood = 10'000;

class HotKeyFlood : public KorvaleTest {
 protected:
  void StartBesideAlpha() {
    installation_.StoreTag(1, "Nowhere", kClass);
    installation_.StoreTag(2, "Alpha", kClass);
    Start();
    alpha_ = Open("Alpha");
    ASSERT_TRUE(WorkIn(Open("Beta")));
  }

  /// Posts the press of a Tag's hot key, as Windows does.
  void Flood(int tag, int presses) {
    for (int i = 0; i < presses; ++i) {
      PostMessageW(main().handle(), WM_HOTKEY, static_cast<WPARAM>(tag) + 1,
                   MAKELPARAM(MOD_ALT, '0' + tag));
    }
  }

  void ExpectKeysToWork() {
    ASSERT_TRUE(WorkIn(Open("Gamma")));
    Press(TagKey(2));
    EXPECT_TRUE(InFront(alpha_));
  }

  Window alpha_;
};

TEST_F(HotKeyFlood, OfATagWithoutAWindowShowsItsMessageAndOneNotice) {
  StartBesideAlpha();
  Flood(1, kFlood);
  ASSERT_TRUE(WaitFor([this] { return korvale_->MessageBoxes(kNoticeTitle).size() == 1; }));
  EXPECT_EQ(korvale_->MessageBoxes("Korvale").size(), 1U);
  const Window notice = korvale_->MessageBoxes(kNoticeTitle).front();
  ASSERT_TRUE(WaitFor([&] { return notice.Responds(); }));
  EXPECT_TRUE(HoldsFor([this] { return korvale_->MessageBoxes(kNoticeTitle).size() == 1; }));
  EXPECT_TRUE(AnswerBox(notice, IDOK));
  EXPECT_TRUE(Says("Window:  [Nowhere]  is not open."));
  EXPECT_TRUE(HoldsFor([this] { return !korvale_->HasMessageBox(); }));
  Press(TagKey(2));
  EXPECT_TRUE(InFront(alpha_));
}

TEST_F(HotKeyFlood, OfATagLeadsToItsWindowBeforeWhatIsPressedNext) {
  StartBesideAlpha();
  Flood(2, kFlood / 100);
  PressAtOnce(kOptionsKey);
  const Window options = korvale_->Form("frmOptions");
  ASSERT_TRUE(options);
  EXPECT_TRUE(InFront(options));
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(InFront(alpha_));
  EXPECT_FALSE(korvale_->HasMessageBox());
  ExpectKeysToWork();
}

TEST_F(HotKeyFlood, DuringADragOfTheMainWindowLetsItEnd) {
  StartBesideAlpha();
  ASSERT_TRUE(BringToFront(main()));
  RECT before{};
  GetWindowRect(main().handle(), &before);
  const POINT from{before.left + 60, before.top + 10};
  bool pressed = false;
  Drag(from, {from.x + 80, from.y + 60}, [&] {
    if (pressed) return;
    pressed = WaitFor([this] { return IsMovedOrSized(main()); });
    PressAtOnce(TagKey(2));
  });
  EXPECT_TRUE(pressed);
  EXPECT_TRUE(WaitFor([this] { return !IsMovedOrSized(main()); }));
  EXPECT_TRUE(main().Responds());
  EXPECT_FALSE(korvale_->HasMessageBox());
  ExpectKeysToWork();
}

TEST_F(HotKeyFlood, DuringAMoveOfTheMainWindowByTheKeyboardLeadsToTheWindow) {
  StartBesideAlpha();
  ASSERT_TRUE(BringToFront(main()));
  PostMessageW(main().handle(), WM_SYSCOMMAND, SC_MOVE, 0);
  ASSERT_TRUE(WaitFor([this] { return IsMovedOrSized(main()); }));
  PressAtOnce(TagKey(2));
  EXPECT_TRUE(InFront(alpha_));
  ASSERT_TRUE(BringToFront(main()));
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(WaitFor([this] { return !IsMovedOrSized(main()); }));
  EXPECT_FALSE(korvale_->HasMessageBox());
  ExpectKeysToWork();
}

class HotKeyElsewhere : public HotKeyFlood {
 protected:
  /// Works in a window of a program of its own: in such a loop it answers nobody.
  Window StartInElsewhere() {
    StartBesideAlpha();
    const Window window = elsewhere_.Open("Elsewhere");
    EXPECT_TRUE(WorkIn(window));
    return window;
  }

  TestProgram elsewhere_;
};

TEST_F(HotKeyElsewhere, DuringAMoveOfAnotherProgramsWindowByTheKeyboardLeadsToTheWindow) {
  const Window window = StartInElsewhere();
  PostMessageW(window.handle(), WM_SYSCOMMAND, SC_MOVE, 0);
  ASSERT_TRUE(WaitFor([&] { return IsMovedOrSized(window); }));
  PressAtOnce(TagKey(2));
  EXPECT_TRUE(InFront(alpha_));
  EXPECT_FALSE(korvale_->HasMessageBox());
  ExpectKeysToWork();
}

TEST_F(HotKeyElsewhere, InAnotherProgramsMenuLeadsToTheWindow) {
  StartBesideAlpha();
  const RealProgram notepad = StartNotepad();
  ASSERT_TRUE(WorkIn(notepad.window()));
  Press({MOD_ALT, 'F'});
  ASSERT_TRUE(WaitFor([&] { return IsInMenu(notepad.window()); }));
  PressAtOnce(TagKey(2));
  EXPECT_TRUE(InFront(alpha_));
  EXPECT_FALSE(korvale_->HasMessageBox());
  ExpectKeysToWork();
}

class FloodOfThePopUpKey : public HotKeyFlood {
 protected:
  /// The hot keys are registered in the order of their table: ten Tags, minimize, maximize,
  /// options, and the pop-up.
  static constexpr WPARAM kPopUpId = 14;

  void FloodPopUp(int presses) {
    for (int i = 0; i < presses; ++i) {
      PostMessageW(main().handle(), WM_HOTKEY, kPopUpId,
                   MAKELPARAM(kMenuKey.modifiers, kMenuKey.key));
    }
  }

  static size_t OpenMenus() {
    std::vector<Window> menus = TopLevelWindows();
    std::erase_if(
        menus, [](Window window) { return window.ClassName() != "#32768" || !window.Visible(); });
    return menus.size();
  }

  /// One menu is left at the end, and never were there two.
  void ExpectOneMenuThatGoes(Window front) {
    const auto rests = [this] {
      return HoldsFor([this] { return OpenMenus() == 1 && main().Responds(); });
    };
    bool stacked = false;
    EXPECT_TRUE(WaitFor([&] {
      stacked = stacked || OpenMenus() > 1;
      return OpenMenus() == 1 && rests();
    }));
    EXPECT_FALSE(stacked);
    EXPECT_FALSE(korvale_->HasMessageBox());
    Press({0, VK_ESCAPE});
    EXPECT_TRUE(WaitFor([] { return OpenMenus() == 0; }));
    EXPECT_TRUE(HoldsFor([] { return OpenMenus() == 0; }));
    EXPECT_TRUE(InFront(front));
  }
};

TEST_F(FloodOfThePopUpKey, LeavesOneMenuThatEscCloses) {
  StartBesideAlpha();
  const Window beta = Foreground();
  PutPointer({700, 300});
  FloodPopUp(200);
  ExpectOneMenuThatGoes(beta);
  ExpectKeysToWork();
}

TEST_F(FloodOfThePopUpKey, HeldDownLeavesOneMenuThatEscCloses) {
  StartBesideAlpha();
  const Window beta = Foreground();
  PutPointer({700, 300});
  {
    const HeldKeys held({kMenuKey.modifiers, 0});
    for (int repeats = 0; repeats < 30; ++repeats) Press({0, kMenuKey.key});
  }
  ExpectOneMenuThatGoes(beta);
  ExpectKeysToWork();
}

class RequestsBehindABox : public HotKeyFlood {
 protected:
  void PostCloseTo(Window window) {
    PostMessageW(window.handle(), WM_CLOSE, 0, 0);
    PostMessageW(window.handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
  }
};

TEST_F(RequestsBehindABox, ToCloseTheMainWindowLeaveTheMessageToTheUser) {
  StartBesideAlpha();
  Press(TagKey(1));
  ASSERT_TRUE(korvale_->MessageBox());
  PostCloseTo(main());
  EXPECT_TRUE(HoldsFor([this] { return korvale_->process().Running(); }));
  EXPECT_FALSE(korvale_->HasForm("frmOptions"));
  EXPECT_TRUE(Says("Window:  [Nowhere]  is not open."));
  Press(TagKey(2));
  EXPECT_TRUE(InFront(alpha_));
  EXPECT_TRUE(Exit());
}

TEST_F(RequestsBehindABox, ToCarryOutMenuCommandsLeaveTheMessageToTheUser) {
  StartBesideAlpha();
  for (int i = 0; i < 3; ++i) {
    Press(TagKey(1));
    ASSERT_TRUE(korvale_->MessageBox());
    for (WPARAM command = 0x1000; command < 0x1040; ++command) {
      PostMessageW(main().handle(), WM_COMMAND, command, 0);
    }
    PostCloseTo(main());
    ASSERT_TRUE(HoldsFor([this] { return korvale_->process().Running(); })) << i;
    EXPECT_FALSE(korvale_->HasForm("frmOptions"));
    ASSERT_TRUE(Says("Window:  [Nowhere]  is not open.")) << i;
    ASSERT_TRUE(korvale_->process().Running()) << i;
  }
}

TEST_F(RequestsBehindABox, ToUseTheOptionsLeaveTheQuestionToTheUser) {
  StartBesideAlpha();
  Press(kOptionsKey);
  const OptionsDialog options(korvale_->Form("frmOptions"));
  ASSERT_TRUE(InFront(options.form()));
  ASSERT_TRUE(options.GoTo(OptionsDialog::Page::kHotKeys));
  Click(options.Button("Reset All Options to Default"));
  const Window question = korvale_->MessageBox();
  ASSERT_TRUE(question);
  for (const char* const caption : {"Cancel", "OK"}) {
    const Window button = options.Button(caption);
    PostMessageW(options.form().handle(), WM_COMMAND,
                 MAKEWPARAM(GetDlgCtrlID(button.handle()), BN_CLICKED),
                 reinterpret_cast<LPARAM>(button.handle()));
  }
  PostCloseTo(options.form());
  PostMessageW(options.form().handle(), WM_SYSKEYDOWN, VK_F4, 1 << 29);
  EXPECT_TRUE(HoldsFor([&] { return korvale_->HasForm("frmOptions") && question.Exists(); }));
  EXPECT_EQ(korvale_->MessageBoxes("Korvale - Options").size(), 1U);
  ASSERT_TRUE(AnswerBox(question, IDCANCEL));
  EXPECT_TRUE(InFront(options.form()));
  EXPECT_TRUE(options.Cancel());
}

TEST_F(RequestsBehindABox, ToEndTheSessionThatAreWithdrawnLeaveAllAsItIs) {
  StartBesideAlpha();
  Press(TagKey(1));
  ASSERT_TRUE(korvale_->MessageBox());
  EXPECT_EQ(main().Send(WM_QUERYENDSESSION), TRUE);
  main().Send(WM_ENDSESSION, FALSE);
  EXPECT_TRUE(HoldsFor([this] { return korvale_->process().Running(); }));
  EXPECT_TRUE(Says("Window:  [Nowhere]  is not open."));
  Press(TagKey(2));
  EXPECT_TRUE(InFront(alpha_));
}

}  // namespace
}  // namespace korvale::endtoend
