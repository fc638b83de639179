#include <map>

#include "tests/program/start_test.h"

namespace korvale {
namespace {

/// What a start asks of Windows before the user can use the hot keys, at most.
class StartCallsTest : public StartTest {
 protected:
  /// Starts among `windows` windows, nine of which have a Tag, and counts the calls by name until
  /// all hot keys are registered.
  std::map<std::string, int> CallsUntilHotKeys(int windows) {
    for (int window = 1; window <= windows; ++window) Open("Window " + std::to_string(window));
    KorvaleCopy& korvale = UsedCopy();
    for (int tag = 1; tag <= 9; ++tag) StoreTag(tag, "Window " + std::to_string(tag));
    log.Clear();
    log.IncludeReads(true);
    EXPECT_TRUE(korvale.Start());
    log.IncludeReads(false);
    std::map<std::string, int> counts;
    int keys = 0;
    for (const std::string& call : log.Calls()) {
      const std::string name = call.substr(0, call.find('('));
      ++counts[name];
      if (name == "RegisterHotKey" && ++keys == 15) break;
    }
    EXPECT_EQ(keys, 15);
    return counts;
  }
};

TEST_F(StartCallsTest, AreTheseUntilTheHotKeysWork) {
  // One pass reads the class of each window. A name that is missing here, as of the shell and of
  // the dialogs, must wait.
  const std::map<std::string, int> calls = {
      {"GetFinalPathNameByHandleW", 1},
      {"CreateMutexA", 2},
      {"CreateWindowExW", 1},
      {"SetWindowTextW", 1},
      {"UpdateControl", 2},
      {"GetSetting", 40},
      {"GetAllSettings", 17},
      {"SaveSetting", 1},
      {"EnumWindows", 1},
      {"GetClassNameA", 26},
      {"GetWindowLongA", 1},
      {"SetTimer", 1},
      {"SetWindowLongPtrA", 1},
      {"WTSRegisterSessionNotification", 1},
      {"RegisterSuspendResumeNotification", 1},
      {"RegisterHotKey", 15},
  };
  for (const auto& [name, count] : CallsUntilHotKeys(20)) {
    const auto found = calls.find(name);
    EXPECT_EQ(count, found == calls.end() ? 0 : found->second) << name;
  }
}

}  // namespace
}  // namespace korvale
