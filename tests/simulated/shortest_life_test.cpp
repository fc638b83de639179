#include <gtest/gtest.h>

#include <algorithm>

#include "tests/simulated/life_run.h"
#include "tests/simulated/shrink.h"

namespace korvale {
namespace {

using Numbers = std::vector<int>;

bool Holds(const Numbers& numbers, int sought) {
  return std::ranges::find(numbers, sought) != numbers.end();
}

TEST(ShortestLife, OfAListOnlyWhatTheFailureNeedsIsLeft) {
  Numbers all;
  for (int i = 0; i < 1000; ++i) all.push_back(i);
  int tries = 0;
  const Numbers shortest = Shrunk<int>(all, [&](const Numbers& numbers) {
    ++tries;
    return Holds(numbers, 3) && Holds(numbers, 500) && Holds(numbers, 999);
  });
  EXPECT_EQ(shortest, (Numbers{3, 500, 999}));
  EXPECT_LT(tries, 200);
}

TEST(ShortestLife, AListThatAlwaysFailsIsLeftEmpty) {
  EXPECT_TRUE(Shrunk<int>({1, 2, 3}, [](const Numbers&) { return true; }).empty());
  EXPECT_TRUE(Shrunk<int>({}, [](const Numbers&) { return true; }).empty());
}

/// Windows takes the hot keys away when a window that hangs is called Alphabet.
void LoseHotKeys(SimulatedLife& life) {
  for (const WindowHandle hwnd : life.desktop.Windows().TopLevel()) {
    const FakeWindow& window = *life.desktop.Windows().Find(hwnd);
    if (window.hung && window.title == "Alphabet") life.hotKeys.ForgetWindow(life.Main());
  }
}

TEST(ShortestLife, OfALifeWithABrokenRuleAFewStepsAreLeft) {
  const LifeScript script = WriteLife(1, 2'500);
  const LifeOutcome whole = RunLife(script, LoseHotKeys);
  ASSERT_FALSE(whole.failedCheck.empty());
  ASSERT_GT(whole.steps, 20);

  const LifeScript shortest = ShortestLife(script, LoseHotKeys);

  const LifeOutcome outcome = RunLife(shortest, LoseHotKeys);
  EXPECT_EQ(outcome.failedCheck, whole.failedCheck);
  // Which windows come up depends on those before them, so no single step may be left out.
  EXPECT_LE(shortest.size(), 15U) << Told(outcome);
  EXPECT_NE(Told(outcome).find("[Alphabet]"), std::string::npos) << Told(outcome);
  EXPECT_NE(Told(outcome).find("hangs"), std::string::npos) << Told(outcome);
  EXPECT_EQ(RunLife(shortest).failedCheck, "");
}

TEST(ShortestLife, ALifeRepeatsItself) {
  const LifeScript script = WriteLife(7, 300);
  EXPECT_EQ(RunLife(script).journal, RunLife(script).journal);
}

}  // namespace
}  // namespace korvale
