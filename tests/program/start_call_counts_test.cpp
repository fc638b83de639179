#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "tests/program/start_test.h"

namespace korvale {
namespace {

/// How many calls to Windows a start makes.
class StartCallCounts : public StartTest {
 protected:
  /// The reads of a start that comes up, until its first hot key is registered.
  std::vector<std::string> ReadsUntilHotKeys(KorvaleCopy& korvale) {
    std::vector<std::string> calls = log.TakeAllOf([&] { EXPECT_TRUE(korvale.Start()); });
    const auto registered = std::ranges::find_if(
        calls, [](const std::string& call) { return call.starts_with("RegisterHotKey"); });
    EXPECT_NE(registered, calls.end());
    calls.erase(registered, calls.end());
    return calls;
  }

  static std::ptrdiff_t CountNaming(const std::vector<std::string>& calls,
                                    const std::string& window) {
    return std::ranges::count_if(
        calls, [&](const std::string& call) { return call.find(window) != std::string::npos; });
  }
};

TEST_F(StartCallCounts, AStartMakesTheseCallsAndNoOthersUntilTheHotKeysWork) {
  for (int window = 1; window <= 20; ++window) Open("Window " + std::to_string(window));
  KorvaleCopy& korvale = UsedCopy();
  for (int tag = 1; tag <= 9; ++tag) StoreTag(tag, "Window " + std::to_string(tag));
  std::map<std::string, int> counts;
  for (const std::string& call : ReadsUntilHotKeys(korvale)) {
    ++counts[call.substr(0, call.find('('))];
  }
  // One pass reads the class of each window. The shell and the dialogs must wait.
  const std::map<std::string, int> expected = {
      {"GetFinalPathNameByHandleW", 1},
      {"CreateMutexA", 2},
      {"CreateWindowExW", 1},
      {"SetWindowTextW", 1},
      {"UpdateControl", 2},
      {"GetSetting", static_cast<int>(kAllSettings)},
      {"GetAllSettings", 17},
      {"SaveSetting", 1},
      {"EnumWindows", 1},
      {"GetClassNameA", 26},
      {"GetWindowLongA", 1},
      {"SetTimer", 1},
      {"SetWindowLongPtrA", 1},
      {"WTSRegisterSessionNotification", 1},
      {"RegisterSuspendResumeNotification", 1},
  };
  EXPECT_EQ(counts, expected);
}

TEST_F(StartCallCounts, AStartLooksOnceOverTheDesktopForOtherCopies) {
  constexpr int kWindows = 200;
  for (int i = 0; i < kWindows; ++i) Open("Document");
  KorvaleCopy& korvale = UsedCopy();
  const std::vector<std::string> calls = ReadsUntilHotKeys(korvale);
  EXPECT_EQ(std::ranges::count(calls, "EnumWindows()"), 1);
  EXPECT_EQ(std::ranges::count(calls, "GetClassNameA(Document, 255)"), kWindows);
  EXPECT_EQ(std::ranges::count(calls, "GetWindowTextA(Document, 512)"), 0);
  EXPECT_EQ(std::ranges::count(calls, "IsWindowVisible(Document)"), 0);
}

/// Each window that could be in front is looked at once, and the one that was becomes the Previous
/// Window.
TEST_F(StartCallCounts, TheFirstActivationLooksOnceOverTheDesktop) {
  constexpr int kWindows = 20;
  for (int i = 0; i < kWindows; ++i) Open("Document");
  Open("Alpha");
  KorvaleCopy& korvale = UsedCopy();
  const std::vector<std::string> calls = log.TakeAllOf([&] { EXPECT_TRUE(korvale.Start()); });
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  EXPECT_EQ(std::ranges::count(calls, "EnumWindows()"), 2) << "with that for other copies";
  constexpr int kClassForOtherCopies = 1;
  // Style, extended style, class, cloak, title.
  constexpr int kLook = 5;
  EXPECT_EQ(CountNaming(calls, "(Document"), (kClassForOtherCopies + kLook) * kWindows);
  // What accepts it, its class last.
  constexpr int kFollow = 4;
  // Whether it can be reached, its title, and whether it is always on top.
  constexpr int kRecord = 5;
  EXPECT_EQ(CountNaming(calls, "(Alpha"), kClassForOtherCopies + kLook + kFollow + kRecord);
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
