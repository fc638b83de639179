#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "app/core/save_scope.h"
#include "app/core/settings.h"
#include "tests/core/saves.h"
#include "tests/core/stored_values.h"
#include "tests/fakes/fake_settings_store.h"

namespace korvale {
namespace {

using Program = std::function<void(SettingsStore&)>;

void SaveNewOptions(SettingsStore& store) {
  clsOptions options;
  options.intHotKeyModParent = 2;
  options.booHotKeyParent[9] = false;
  Settings(store, kApp).SaveOptions(options);
}

void SaveBoth(SettingsStore& store) {
  Settings settings(store, kApp);
  SaveScope save(settings);
  clsOptions options;
  options.intHotKeyModParent = 2;
  settings.SaveOptions(options);
  settings.SaveINI(StartupSettings(), NewTags());
  save.Commit();
}

struct SaveCase {
  const char* name;
  Program save;
};

class KilledSaveTest : public testing::TestWithParam<SaveCase> {
 protected:
  KilledSaveTest() { SaveOld(old_); }

  FakeSettingsStore old_;
};

TEST_P(KilledSaveTest, LeavesAllOfTheOldStateOrAllOfTheNew) {
  FakeSettingsStore finished = old_;
  const StoredValues before = AllValues(finished);
  GetParam().save(finished);
  const StoredValues after = AllValues(finished);
  ASSERT_NE(before, after);

  bool ended = false;
  bool sawBefore = false;
  bool sawAfter = false;
  for (int writes = 0; !ended; ++writes) {
    FakeSettingsStore store = old_;
    ended = RunsToItsEnd(store, writes, GetParam().save);
    Restart(store);
    const StoredValues found = AllValues(store);
    ASSERT_TRUE(found == before || found == after) << "killed after " << writes << " writes";
    EXPECT_FALSE(sawAfter && found == before) << "killed after " << writes << " writes";
    sawBefore = sawBefore || found == before;
    sawAfter = sawAfter || found == after;
  }
  EXPECT_TRUE(sawBefore);
  EXPECT_TRUE(sawAfter);
}

TEST_P(KilledSaveTest, SurvivesAnotherKillWhileItIsBeingFinished) {
  FakeSettingsStore finished = old_;
  const StoredValues before = AllValues(finished);
  GetParam().save(finished);
  const StoredValues after = AllValues(finished);

  bool saveEnded = false;
  for (int writes = 0; !saveEnded; writes += 5) {
    bool restartEnded = false;
    for (int restartWrites = 0; !restartEnded; restartWrites += 3) {
      FakeSettingsStore store = old_;
      saveEnded = RunsToItsEnd(store, writes, GetParam().save);
      restartEnded = RunsToItsEnd(store, restartWrites, Restart);
      Restart(store);
      const StoredValues found = AllValues(store);
      ASSERT_TRUE(found == before || found == after)
          << "killed after " << writes << " and " << restartWrites << " writes";
    }
  }
}

TEST_P(KilledSaveTest, IsSettledBeforeTheNextSave) {
  FakeSettingsStore finished = old_;
  GetParam().save(finished);
  SaveOld(finished);
  const StoredValues expected = AllValues(finished);

  bool ended = false;
  for (int writes = 0; !ended; ++writes) {
    FakeSettingsStore store = old_;
    ended = RunsToItsEnd(store, writes, GetParam().save);
    SaveOld(store);
    Restart(store);
    ASSERT_EQ(AllValues(store), expected) << "killed after " << writes << " writes";
  }
}

INSTANTIATE_TEST_SUITE_P(Saves, KilledSaveTest,
                         testing::Values(SaveCase{"SaveINI", SaveNewINI},
                                         SaveCase{"SaveOptions", SaveNewOptions},
                                         SaveCase{"Both", SaveBoth},
                                         SaveCase{"DeleteOptions", DeleteTheOptions}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(FirstSaveTest, KilledBeforeItsEndLeavesAFirstRun) {
  FakeSettingsStore finished;
  SaveNewINI(finished);
  const StoredValues complete = AllValues(finished);
  // Fourteen of the state, and a Tag with its class.
  ASSERT_EQ(complete.size(), 16U);
  bool ended = false;
  for (int writes = 0; !ended; ++writes) {
    FakeSettingsStore store;
    ended = RunsToItsEnd(store, writes, SaveNewINI);
    Restart(store);
    const bool first = Settings(store, kApp).NothingStored();
    EXPECT_EQ(AllValues(store), first ? StoredValues() : complete) << writes;
    EXPECT_FALSE(ended && first);
  }
}

}  // namespace
}  // namespace korvale
