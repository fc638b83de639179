#include <gtest/gtest.h>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/real_program.h"
#include "tests/endtoend/harness/running_korvale.h"
#include "tests/endtoend/harness/settings.h"
#include "tests/endtoend/harness/test_program.h"
#include "tests/endtoend/harness/wait.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {
namespace {

TEST(Harness, OpensWindowsWithTheTitleClassAndStyleAskedFor) {
  TestProgram program;
  const Window window = program.Open({.title = "Отчёт 日本語 😀 & more",
                                      .class_name = "Harness.Class",
                                      .style = WS_CAPTION | WS_SYSMENU,
                                      .extended_style = WS_EX_TOOLWINDOW});
  EXPECT_EQ(window.Title(), "Отчёт 日本語 😀 & more");
  EXPECT_EQ(window.ClassName(), "Harness.Class");
  EXPECT_EQ(window.Style() & WS_MINIMIZEBOX, 0);
  EXPECT_NE(window.ExtendedStyle() & WS_EX_TOOLWINDOW, 0);
  EXPECT_EQ(window.Children().size(), 1U);
}

TEST(Harness, BringsEitherOfTwoProgramsToTheFront) {
  TestProgram one;
  TestProgram two;
  const Window alpha = one.Open("Alpha");
  const Window beta = two.Open("Beta");
  EXPECT_EQ(Foreground(), beta);
  EXPECT_TRUE(BringToFront(alpha));
  EXPECT_TRUE(BringToFront(beta));
}

TEST(Harness, MovesTheFrontWindowToTheTopOfTheOrder) {
  TestProgram program;
  const Window alpha = program.Open("Alpha");
  const Window beta = program.Open("Beta");
  const auto is_ours = [&](Window window) { return window == alpha || window == beta; };
  EXPECT_TRUE(WaitFor([&] { return FindTopLevel(is_ours) == beta; }));
  ASSERT_TRUE(BringToFront(alpha));
  EXPECT_TRUE(WaitFor([&] { return FindTopLevel(is_ours) == alpha; }));
}

TEST(Harness, SeesThatAHungProgramAnswersNoMessageButStillHasATitle) {
  TestProgram program;
  const Window window = program.Open("Stuck");
  program.Hang();
  EXPECT_FALSE(window.Responds());
  EXPECT_EQ(window.Title(), "Stuck");
  program.Recover();
  EXPECT_TRUE(WaitFor([&] { return window.Responds(); }));
}

TEST(Harness, NoticesAHotKeyThatAnotherProgramHolds) {
  const Chord chord{MOD_CONTROL | MOD_ALT, VK_F9};
  EXPECT_TRUE(HotKeyIsFree(chord));
  {
    TestProgram program;
    EXPECT_TRUE(program.TakeHotKey(chord));
    EXPECT_FALSE(HotKeyIsFree(chord));
    EXPECT_FALSE(TestProgram().TakeHotKey(chord));
  }
  EXPECT_TRUE(WaitFor([&] { return HotKeyIsFree(chord); }));
}

TEST(Harness, ClosesAWindowAndEndsItsProgram) {
  TestProgram program;
  const Window window = program.Open("Short-lived");
  EXPECT_TRUE(window.Close());
  EXPECT_FALSE(window.Exists());
}

TEST(Harness, RenamesAWindowOfAnotherProgram) {
  TestProgram program;
  const Window window = program.Open("Before");
  window.SetTitle("After — Після");
  EXPECT_EQ(window.Title(), "After — Після");
}

TEST(Harness, OpensDisabledHiddenAndOwnedWindows) {
  TestProgram program;
  const Window owner = program.Open("Owner");
  const Window owned = program.Open({.title = "Owned", .owner = owner});
  const Window off =
      program.Open({.title = "Disabled", .style = WS_OVERLAPPEDWINDOW | WS_DISABLED});
  const Window hidden = program.Open({.title = "Hidden", .show = SW_HIDE});
  EXPECT_EQ(GetWindow(owned.handle(), GW_OWNER), owner.handle());
  EXPECT_FALSE(off.Enabled());
  EXPECT_FALSE(hidden.Visible());
}

TEST(Harness, TypesIntoNotepadAndReadsItsText) {
  Process notepad("notepad.exe");
  const Window window =
      WaitForTopLevel([&](Window top) { return top.ProcessId() == notepad.id() && top.Visible(); });
  ASSERT_TRUE(BringToFront(window));
  Type("Grüße 日本");
  const auto typed = [&] {
    const std::vector<Window> edits = window.Controls("Edit");
    return !edits.empty() && edits.front().Text() == "Grüße 日本";
  };
  EXPECT_TRUE(WaitFor(typed));
}

TEST(Harness, OpensAMenuWithTheKeyboardAndClosesItAgain) {
  RealProgram notepad = StartNotepad();
  ASSERT_TRUE(BringToFront(notepad.window()));
  const auto menu_is_open = [] {
    return static_cast<bool>(FindTopLevel(
        [](Window window) { return window.Visible() && window.ClassName() == "#32768"; }));
  };
  Press({MOD_ALT, 'F'});
  EXPECT_TRUE(WaitFor(menu_is_open));
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(WaitFor([&] { return !menu_is_open(); }));
}

TEST(Harness, HoldsAKeyWhileFocusAndPointerMove) {
  TestProgram one;
  TestProgram two;
  const Window alpha = one.Open("Alpha");
  const Window beta = two.Open("Beta");
  // Not the Windows key, which opens the Start menu when it was held alone.
  constexpr UINT kKeys[] = {VK_MENU, VK_CONTROL, VK_SHIFT, 'W', VK_F4};
  for (const UINT key : kKeys) {
    const auto is_down = [&] { return IsDown(key); };
    {
      const HeldKeys held({0, key});
      for (const Window window : {alpha, beta}) {
        MoveMouse(window, {20, 10});
        ASSERT_TRUE(BringToFront(window));
        EXPECT_TRUE(HoldsFor(is_down, std::chrono::milliseconds(100))) << key;
      }
    }
    EXPECT_FALSE(is_down());
  }
}

TEST(Harness, KeepsThePointerWhereItWasPut) {
  TestProgram one;
  TestProgram two;
  const Window alpha = one.Open("Alpha");
  const Window beta = two.Open("Beta");
  for (int x = 100; x < 120; ++x) {
    MoveMouse(alpha, {20, 10});
    MoveMouse(beta, {x, 100});
    const POINT put = Pointer();
    const auto stays = [&] { return Pointer().x == put.x && Pointer().y == put.y; };
    EXPECT_TRUE(HoldsFor(stays, std::chrono::milliseconds(20))) << x;
  }
}

TEST(Harness, ReadsAndAnswersAMessageBoxOfAnotherProgram) {
  TestProgram program;
  const Window window = program.Open("Asking");
  for (const int button : {IDCANCEL, IDOK}) {
    const Window box = program.ShowMessage("Go on?");
    ASSERT_TRUE(box);
    EXPECT_EQ(LabelText(box), "Go on?");
    EXPECT_TRUE(AnswerBox(box, button));
    EXPECT_TRUE(WaitFor([&] { return !box.Exists(); }));
  }
  EXPECT_TRUE(window.Responds());
}

TEST(Harness, ReadsBackStoredSettings) {
  const StoredSettings settings("Korvale harness");
  settings.Set("Options", "Name", "Ключ & 鍵");
  EXPECT_EQ(settings.Get("Options", "Name"), "Ключ & 鍵");
  EXPECT_EQ(settings.Section("Options").size(), 1U);
  settings.DeleteAll();
  EXPECT_EQ(settings.Get("Options", "Name"), std::nullopt);
}

}  // namespace
}  // namespace korvale::endtoend
