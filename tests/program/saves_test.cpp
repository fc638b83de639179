#include <algorithm>
#include <string>

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

  /// How often the store has been changed since the last call.
  std::size_t Writes() {
    const std::vector<std::string> calls = log.Take();
    return static_cast<std::size_t>(std::ranges::count_if(calls, [](const std::string& call) {
      return call.starts_with("SaveSetting") || call.starts_with("Delete");
    }));
  }

  const WindowHandle alpha = Open("Alpha");
  const WindowHandle beta = Open("Beta");
};

TEST_F(SavesTest, ASelectedTagWritesNothing) {
  StartedCopy();
  for (int press = 0; press < 3; ++press) {
    ExpectTagLeadsTo(1, "Alpha");
    ExpectTagLeadsTo(2, "Beta");
    ExpectTagLeadsTo(0, "Alpha");
  }
  EXPECT_EQ(Writes(), 0U);
}

TEST_F(SavesTest, ATagThatIsFoundAgainOrMissingWritesNothing) {
  KorvaleCopy& korvale = StartedCopy();
  ExpectTagLeadsTo(1, "Alpha");
  desktop.Close(alpha);
  korvale.ExpectBox("Window:  [Alpha]  is not open.", win32::kIdOk);
  PressTag(1);
  Open("Alpha");
  WorkIn(beta);
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(Writes(), 0U);
}

TEST_F(SavesTest, AFirstRunHasSavedEverythingBeforeTheFirstTag) {
  store.DeleteSection("Korvale - Work", "ParentWindowList");
  store.DeleteSection("Korvale - Work", "ParentWindowClass");
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdNo);
  ASSERT_TRUE(korvale.Start());
  LetTick();
  WorkIn(alpha);
  log.Clear();
  ExpectTagLeadsTo(0, "Korvale - Work");
  EXPECT_EQ(Writes(), 0U);
}

TEST_F(SavesTest, AClassThatATagHasLearntIsSavedAtOnce) {
  StoreTag(1, "Alpha", "");
  StartedCopy();
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(Stored("ParentWindowClass", "1"), "Window");
  log.Clear();
  WorkIn(beta);
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(Writes(), 0U);
}

TEST_F(SavesTest, AWindowThatTheUserHasMovedIsSavedWithTheNextTag) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.user.Drag(korvale.Handle(), {4005, 2010, 4500, 1100});
  log.Clear();
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(Stored("Startup", "Left"), "4005");
  EXPECT_GT(Writes(), 0U);
  ExpectTagLeadsTo(2, "Beta");
  EXPECT_EQ(Writes(), 0U);
}

TEST_F(SavesTest, ARefusedSaveIsTriedAgainWithTheNextTag) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.user.Drag(korvale.Handle(), {4005, 2010, 4500, 1100});
  store.RefuseWrites(true);
  korvale.host.AnswerNext(win32::kIdOk);
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_NE(Stored("Startup", "Left"), "4005");
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
