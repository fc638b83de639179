#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/program/start_test.h"

namespace korvale {
namespace {

/// How many calls to Windows the search for other copies makes, at most.
class StartCallCounts : public StartTest {
 protected:
  /// The reads of a start that comes up, until its first hot key is registered.
  std::vector<std::string> ReadsUntilHotKeys(KorvaleCopy& korvale) {
    log.Clear();
    log.IncludeReads(true);
    EXPECT_TRUE(korvale.Start());
    log.IncludeReads(false);
    std::vector<std::string> calls = log.Take();
    const auto registered = std::ranges::find_if(
        calls, [](const std::string& call) { return call.starts_with("RegisterHotKey"); });
    EXPECT_NE(registered, calls.end());
    calls.erase(registered, calls.end());
    return calls;
  }
};

TEST_F(StartCallCounts, AStartLooksOnceOverTheDesktopForOtherCopies) {
  constexpr int kWindows = 200;
  for (int i = 0; i < kWindows; ++i) Open("Document");
  KorvaleCopy& korvale = UsedCopy();
  const std::vector<std::string> calls = ReadsUntilHotKeys(korvale);
  EXPECT_EQ(std::ranges::count(calls, "EnumWindows()"), 1);
  EXPECT_LE(std::ranges::count(calls, "GetClassNameA(Document, 255)"), kWindows);
  EXPECT_EQ(std::ranges::count(calls, "GetWindowTextA(Document, 512)"), 0);
  EXPECT_EQ(std::ranges::count(calls, "IsWindowVisible(Document)"), 0);
}

TEST_F(StartCallCounts, AnotherInstallationThatRunsTakesNoSecondLook) {
  StartedCopy("Home");
  KorvaleCopy& korvale = UsedCopy();
  std::string tip;
  ReadTip(korvale, tip);
  std::string refusedHotKeys;
  ReadTip(korvale, refusedHotKeys);
  EXPECT_EQ(std::ranges::count(ReadsUntilHotKeys(korvale), "EnumWindows()"), 1);
  EXPECT_TRUE(tip.starts_with("Another instance of Korvale"));
}

}  // namespace
}  // namespace korvale
