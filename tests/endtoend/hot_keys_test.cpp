#include <algorithm>
#include <optional>

#include "tests/endtoend/harness/stopped_thread.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";

class HotKeys : public KorvaleTest {
 protected:
  static bool AllFree() {
    const std::vector<Chord> chords = AllHotKeys();
    return std::all_of(chords.begin(), chords.end(), HotKeyIsFree);
  }
};

TEST_F(HotKeys, AreAllTakenWhileTheProgramRunsAndFreeAfterwards) {
  ASSERT_EQ(AllHotKeys().size(), 15U);
  EXPECT_TRUE(AllFree());
  Start();
  for (const Chord chord : AllHotKeys()) EXPECT_FALSE(HotKeyIsFree(chord)) << chord.key;
  ASSERT_TRUE(Exit());
  EXPECT_TRUE(AllFree());
}

TEST_F(HotKeys, AreTakenByAnotherProgramAfterTheExit) {
  Start();
  EXPECT_FALSE(program_.TakeHotKey(TagKey(1)));
  ASSERT_TRUE(Exit());
  EXPECT_TRUE(program_.TakeHotKey(TagKey(1)));
}

TEST_F(HotKeys, OfDisabledTagsAreLeftToOthersAndTheRestStillSelectTheirWindows) {
  for (const int tag : {2, 4}) installation_.StoreTag(tag, "Window " + std::to_string(tag), kClass);
  installation_.SetOption("HotKeyParent1", "False");
  installation_.SetOption("HotKeyParent3", "False");
  Start();
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
  EXPECT_TRUE(HotKeyIsFree(TagKey(3)));
  const Window two = Open("Window 2");
  const Window four = Open("Window 4");
  Press(TagKey(2));
  EXPECT_TRUE(InFront(two));
  Press(TagKey(4));
  EXPECT_TRUE(InFront(four));
}

TEST_F(HotKeys, ThatWereTakenWorkOnceTheComputerWakesUpAndTheyAreFree) {
  installation_.StoreTag(1, "Alpha", kClass);
  installation_.settings().Set("Startup", "DisplayTips", "False");
  auto holder = std::make_optional<TestProgram>();
  ASSERT_TRUE(holder->TakeHotKey(TagKey(1)));
  Start();
  const Window alpha = Open("Alpha");
  const Window beta = Open("Beta");
  ASSERT_TRUE(WorkIn(beta));
  holder.reset();
  ASSERT_TRUE(WaitFor([] { return HotKeyIsFree(TagKey(1)); }));
  Press(TagKey(1));
  EXPECT_TRUE(StaysInFront(beta));

  PostMessageW(main().handle(), WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC, 0);

  // Trying the key meanwhile would get in the way of its registration. Korvale takes its messages
  // in order: a menu opens only after it knows.
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, VK_ESCAPE});
  Press({0, VK_ESCAPE});
  ASSERT_TRUE(WaitFor([this] { return !korvale_->HasMenu(); }));
  EXPECT_FALSE(HotKeyIsFree(TagKey(1)));
  ASSERT_TRUE(BringToFront(beta));
  Press(TagKey(1));
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(HotKeys, AreNotDisturbedByTenThousandClaimsThatTheSessionWasUnlocked) {
  installation_.StoreTag(1, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  for (int count = 0; count < 10'000; ++count) {
    PostMessageW(main().handle(), WM_WTSSESSION_CHANGE, WTS_SESSION_UNLOCK, -1);
  }
  Press(TagKey(1));
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(StaysInFront(alpha));
}

TEST_F(HotKeys, WithoutAKeyAreNotTaken) {
  installation_.SetOption("HotKeyGeneral1", "0");
  Start();
  EXPECT_TRUE(HotKeyIsFree(kMenuKey));
  EXPECT_FALSE(HotKeyIsFree(kOptionsKey));
}

TEST_F(HotKeys, OfTheTagsTakeTheModifierFromTheOptions) {
  installation_.StoreTag(1, "Alpha", kClass);
  installation_.SetOption("HotKeyModParent", "2");
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
  Press({MOD_CONTROL, '1'});
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(HotKeys, OpenTheOptionsDialog) {
  Start();
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  Press(kOptionsKey);
  const Window options = korvale_->Form("frmOptions");
  ASSERT_TRUE(options);
  EXPECT_EQ(options.Title(), "Korvale - Options");
}

TEST_F(HotKeys, BringTheOpenOptionsDialogForward) {
  Start();
  Press(kOptionsKey);
  const Window options = korvale_->Form("frmOptions");
  ASSERT_TRUE(options);
  ASSERT_TRUE(InFront(options));
  WorkInNew("Alpha");
  Press(kOptionsKey);
  EXPECT_TRUE(InFront(options));
  EXPECT_FALSE(korvale_->HasMessageBox());
}

TEST_F(HotKeys, PressedTwiceWhileTheProgramIsBusySwitchOnce) {
  Start();
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  {
    const StoppedThread stopped(main());
    Press(kToggleKey);
    Press(kToggleKey);
  }
  EXPECT_EQ(korvale_->Form("frmWaitWindow").Title(), "Korvale - Hot Keys (OFF)");
  EXPECT_TRUE(WaitFor([this] { return !korvale_->HasForm("frmWaitWindow"); }));
  EXPECT_TRUE(HoldsFor([this] { return !korvale_->HasMessageBox(); }));
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
  EXPECT_FALSE(HotKeyIsFree(kToggleKey));
  Press(kToggleKey);
  EXPECT_EQ(korvale_->Form("frmWaitWindow").Title(), "Korvale - Hot Keys (ON)");
  EXPECT_TRUE(WaitFor([this] { return !korvale_->HasForm("frmWaitWindow"); }));
  EXPECT_FALSE(HotKeyIsFree(TagKey(1)));
}

}  // namespace
}  // namespace korvale::endtoend
