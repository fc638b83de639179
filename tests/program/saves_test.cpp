#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

/// What the program writes into the store, and when.
class SavesTest : public StartTest {
 protected:
  SavesTest() {
    StoreTag(1, "Alpha");
    StoreTag(2, "Beta");
  }

  using Calls = std::vector<std::string>;

  /// What `action` asks of the store and tells it.
  Calls StoreCallsOf(const std::function<void()>& action) {
    Calls calls = log.TakeAllOf(action);
    std::erase_if(calls, [](const std::string& call) {
      return !call.starts_with("GetSetting") && !call.starts_with("GetAllSettings") &&
             !call.starts_with("SaveSetting") && !call.starts_with("Delete");
    });
    return calls;
  }

  /// The keys of both Tags and the way back.
  Calls StoreCallsOfTags() {
    return StoreCallsOf([this] {
      for (int press = 0; press < 3; ++press) {
        ExpectTagLeadsTo(1, "Alpha");
        ExpectTagLeadsTo(2, "Beta");
        ExpectTagLeadsTo(0, "Alpha");
      }
    });
  }

  void StoreStartup(const std::string& key, const std::string& value) {
    store.SaveSetting("Korvale - Work", "Startup", key, value);
  }

  static void Drag(KorvaleCopy& korvale) {
    korvale.user.Drag(korvale.Handle(), {4005, 2010, 4500, 1100});
  }

  const WindowHandle alpha = Open("Alpha");
  const WindowHandle beta = Open("Beta");
};

TEST_F(SavesTest, ASelectedTagLeavesTheStoreAlone) {
  StartedCopy();
  EXPECT_EQ(StoreCallsOfTags(), Calls());
}

TEST_F(SavesTest, ASelectedTagLeavesTheStoreAloneAtEveryScale) {
  for (const int dpi : {120, 144, 192}) {
    KorvaleCopy& korvale = UsedCopy();
    korvale.host.SetDpi(dpi);
    ASSERT_TRUE(korvale.Start());
    EXPECT_EQ(StoreCallsOfTags(), Calls()) << dpi;
    korvale.Exit();
    EndCopy(korvale);
  }
}

TEST_F(SavesTest, ASelectedTagLeavesTheStoreAloneAfterAMinimizedStart) {
  StoreStartup("WindowState", "1");
  StartedCopy();
  EXPECT_EQ(StoreCallsOfTags(), Calls());
}

TEST_F(SavesTest, ASelectedTagLeavesTheStoreAloneAfterAMaximizedStart) {
  StoreStartup("WindowState", "2");
  StartedCopy();
  EXPECT_EQ(StoreCallsOfTags(), Calls());
}

TEST_F(SavesTest, ASelectedTagLeavesTheStoreAloneAfterAStartFromAPlaceOffTheScreen) {
  StoreStartup("Left", "480000");
  StoreStartup("Top", "-90000");
  StartedCopy();
  EXPECT_EQ(StoreCallsOfTags(), Calls());
}

TEST_F(SavesTest, ASelectedTagLeavesTheStoreAloneAfterAStartWithoutTheMenuBar) {
  StoreStartup("Menu", "False");
  StoreStartup("Left", "480000");
  StartedCopy();
  EXPECT_EQ(StoreCallsOfTags(), Calls());
}

TEST_F(SavesTest, ATipSilencedAtTheStartIsSavedWithTheFirstCommand) {
  KorvaleCopy& korvale = UsedCopy();
  korvale.system.commandLine = "/x";
  korvale.host.WhenModal("frmMsgTip", [&](class Form& tip) {
    korvale.user.Click(tip.Handle(), tip.Find("chkStopMsg").Id());
    korvale.user.Click(tip.Handle(), tip.Find("cmdOK").Id());
  });
  ASSERT_TRUE(korvale.Start());
  EXPECT_EQ(Stored("Startup", "Tips"), "(missing)");
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(Stored("Startup", "Tips"), "11111111111111110");
}

TEST_F(SavesTest, AFullSaveOfNineTagsMakesEachChangeOnceBehindItsJournal) {
  for (int tag = 3; tag <= 9; ++tag) StoreTag(tag, "Gamma " + std::to_string(tag));
  KorvaleCopy& korvale = StartedCopy();
  Drag(korvale);
  const Calls calls = StoreCallsOf([this] { ExpectTagLeadsTo(1, "Alpha"); });
  constexpr std::size_t kTags = 2 * 9;
  constexpr std::size_t kDeletions = 2;
  // What earlier saves have left, which sections hold anything, and the end of the journal.
  constexpr std::size_t kAroundIt = 21;
  EXPECT_EQ(calls.size(), 2 * (kAllStartupSettings + kTags + kDeletions) + kAroundIt)
      << testing::PrintToString(calls);
  std::vector<std::string> changes = calls;
  std::erase_if(changes, [](const std::string& call) {
    return call.starts_with("Get") || call.find("Korvale - Work, Saving") != std::string::npos;
  });
  EXPECT_EQ(changes.size(), kAllStartupSettings + kTags + kDeletions);
  EXPECT_EQ(std::set(changes.begin(), changes.end()).size(), changes.size()) << "one made twice";
}

TEST_F(SavesTest, ATagThatIsFoundAgainOrMissingLeavesTheStoreAlone) {
  KorvaleCopy& korvale = StartedCopy();
  ExpectTagLeadsTo(1, "Alpha");
  desktop.Close(alpha);
  korvale.ExpectBox("Window:  [Alpha]  is not open.", win32::kIdOk);
  EXPECT_EQ(StoreCallsOf([this] { PressTag(1); }), Calls());
  Open("Alpha");
  WorkIn(beta);
  EXPECT_EQ(StoreCallsOf([this] { ExpectTagLeadsTo(1, "Alpha"); }), Calls());
}

TEST_F(SavesTest, AFirstRunHasSavedEverythingBeforeTheFirstTag) {
  store.DeleteSection("Korvale - Work", "ParentWindowList");
  store.DeleteSection("Korvale - Work", "ParentWindowClass");
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdNo);
  ASSERT_TRUE(korvale.Start());
  LetTick();
  WorkIn(alpha);
  EXPECT_EQ(StoreCallsOf([this] { ExpectTagLeadsTo(0, "Korvale - Work"); }), Calls());
}

TEST_F(SavesTest, AClassThatATagHasLearntIsSavedAtOnce) {
  StoreTag(1, "Alpha", "");
  StartedCopy();
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(Stored("ParentWindowClass", "1"), "Window");
  WorkIn(beta);
  EXPECT_EQ(StoreCallsOf([this] { ExpectTagLeadsTo(1, "Alpha"); }), Calls());
}

TEST_F(SavesTest, AWindowThatTheUserHasMovedIsSavedWithTheNextTag) {
  KorvaleCopy& korvale = StartedCopy();
  Drag(korvale);
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(Stored("Startup", "Left"), "4005");
  EXPECT_EQ(StoreCallsOf([this] { ExpectTagLeadsTo(2, "Beta"); }), Calls());
}

TEST_F(SavesTest, ARefusedSaveIsTriedAgainWithTheNextTag) {
  KorvaleCopy& korvale = StartedCopy();
  Drag(korvale);
  store.RefuseWrites(true);
  korvale.host.AnswerNext(win32::kIdOk);
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(Stored("Startup", "Left"), "(missing)");
  store.RefuseWrites(false);
  ExpectTagLeadsTo(2, "Beta");
  EXPECT_EQ(Stored("Startup", "Left"), "4005");
}

TEST_F(SavesTest, TheEndSavesEverythingEvenUnchanged) {
  KorvaleCopy& korvale = StartedCopy();
  store.DeleteSection("Korvale - Work", "Startup");
  store.SaveSetting("Korvale - Work", "ParentWindowList", "2", "another program's");
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(Stored("ParentWindowList", "2"), "another program's");
  korvale.Exit();
  EXPECT_EQ(Stored("ParentWindowList", "2"), "&2  Beta");
  EXPECT_EQ(Stored("Startup", "WindowInfo"), "True");
}

}  // namespace
}  // namespace korvale
