#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <tuple>

#include "app/core/save_scope.h"
#include "app/core/settings.h"
#include "platform/run_time_error.h"
#include "tests/core/saves.h"
#include "tests/core/stored_values.h"
#include "tests/fakes/error_of.h"
#include "tests/fakes/fake_settings_store.h"

namespace korvale {
namespace {

using Refusal = FakeSettingsStore::Refusal;

/// What a program that starts now works with.
struct Loaded {
  clsOptions options;
  StartupSettings startup;
  StoredTagList tags;

  friend bool operator==(const Loaded&, const Loaded&) = default;
};

Loaded LoadedFrom(SettingsStore& store) {
  Restart(store);
  Settings settings(store, kApp);
  Loaded loaded;
  settings.LoadOptions(loaded.options);
  loaded.startup = settings.LoadStartup();
  loaded.tags = settings.LoadTagList();
  EXPECT_FALSE(settings.NothingStored());
  return loaded;
}

void SaveChangedOptions(SettingsStore& store) {
  clsOptions options;
  options.intHotKeyModParent = 2;
  options.booSplashScreen = false;
  Settings(store, kApp).SaveOptions(options);
}

/// All settings, none of them as any other save leaves it.
void SaveAll(SettingsStore& store) {
  Settings settings(store, kApp);
  SaveScope save(settings);
  clsOptions options;
  options.intHotKeyModParent = 4;
  settings.SaveOptions(options);
  StartupSettings startup;
  startup.Top = 77;
  settings.SaveINI(startup, {{1, "&1  Mail", "MailFrame"}, {9, "&9  Last", ""}});
  save.Commit();
}

struct RefusedSave {
  const char* name;
  std::function<void(SettingsStore&)> save;
};

void PrintTo(const RefusedSave& save, std::ostream* out) { *out << save.name; }

class RefusedWrites : public testing::TestWithParam<std::tuple<RefusedSave, Refusal>> {
 protected:
  RefusedWrites() {
    SaveOld(old_);
    SaveChangedOptions(old_);
    before_ = LoadedFrom(old_);
    FakeSettingsStore finished = old_;
    Save(finished);
    after_ = LoadedFrom(finished);
    SaveAll(finished);
    all_ = LoadedFrom(finished);
  }

  static void Save(SettingsStore& store) { std::get<0>(GetParam()).save(store); }

  /// The old state with every write from this one on refused; true while that made a difference.
  bool Refuse(FakeSettingsStore& store, int writes) {
    store = old_;
    store.RefuseAfterWrites(writes, std::get<1>(GetParam()));
    return ErrorOf([&] { Save(store); }) == RunTimeError::kPermissionDenied;
  }

  FakeSettingsStore old_;
  Loaded before_;
  Loaded after_;
  Loaded all_;
};

TEST_P(RefusedWrites, LeaveAllOfTheOldStateOrAllOfTheNewToTheNextStart) {
  int refusals = 0;
  bool reached = true;
  for (int writes = 0; reached; ++writes) {
    FakeSettingsStore store;
    refusals += Refuse(store, writes) ? 1 : 0;
    reached = store.CameToRefusal();
    const Loaded next = LoadedFrom(store);
    ASSERT_TRUE(next == after_ || (reached && next == before_))
        << "refused after " << writes << " writes";
    store.RefuseNothing();
    ASSERT_EQ(LoadedFrom(store), next) << "refused after " << writes << " writes";
    ASSERT_TRUE(store.GetAllSettings(kApp, "Saving").empty());
    ASSERT_TRUE(store.GetAllSettings(kApp, "Saving2").empty());
  }
  // A deletion needs no room.
  const bool deletes = std::string_view(std::get<0>(GetParam()).name) == "DeleteOptions";
  EXPECT_EQ(refusals > 0, !deletes || std::get<1>(GetParam()) != Refusal::kSaves);
}

TEST_P(RefusedWrites, LoseNothingWhenTheNextSavesAreRefusedToo) {
  bool reached = true;
  for (int writes = 0; reached; writes += 11) {
    bool reachedAgain = true;
    for (int more = 0; reachedAgain; more += 13) {
      FakeSettingsStore store;
      Refuse(store, writes);
      reached = store.CameToRefusal();
      store.RefuseAfterWrites(more, std::get<1>(GetParam()));
      const bool refused = ErrorOf([&] { SaveAll(store); }) != 0;
      reachedAgain = store.CameToRefusal();
      const Loaded next = LoadedFrom(store);
      const std::string when =
          "refused after " + std::to_string(writes) + " and " + std::to_string(more) + " writes";
      ASSERT_TRUE(reachedAgain || !refused) << when;
      ASSERT_TRUE(next == all_ || (refused && (next == before_ || next == after_))) << when;
      store.RefuseNothing();
      ASSERT_EQ(LoadedFrom(store), next) << when;
    }
  }
}

TEST_P(RefusedWrites, AreMadeUpForByTheNextSaveThatIsTaken) {
  bool reached = true;
  for (int writes = 0; reached; ++writes) {
    FakeSettingsStore store;
    Refuse(store, writes);
    reached = store.CameToRefusal();
    store.RefuseNothing();
    SaveAll(store);
    ASSERT_EQ(LoadedFrom(store), all_) << "refused after " << writes << " writes";
    ASSERT_TRUE(store.GetAllSettings(kApp, "Saving").empty());
    ASSERT_TRUE(store.GetAllSettings(kApp, "Saving2").empty());
  }
}

TEST_P(RefusedWrites, LoseNothingWhenTheProgramIsKilledDuringTheNextSave) {
  bool reached = true;
  for (int writes = 0; reached; writes += 17) {
    bool ended = false;
    for (int kill = 0; !ended; kill += 19) {
      FakeSettingsStore store;
      Refuse(store, writes);
      reached = store.CameToRefusal();
      store.RefuseNothing();
      ended = RunsToItsEnd(store, kill, SaveAll);
      const Loaded next = LoadedFrom(store);
      ASSERT_TRUE(next == all_ || (!ended && (next == before_ || next == after_)))
          << "refused after " << writes << ", killed after " << kill << " writes";
    }
  }
}

std::string RefusedSaveName(const testing::TestParamInfo<std::tuple<RefusedSave, Refusal>>& test) {
  const char* const kinds[] = {"OfOne", "OfAll", "OfSaves"};
  const auto& [save, refusal] = test.param;
  return std::string(save.name) + kinds[static_cast<int>(refusal)];
}

INSTANTIATE_TEST_SUITE_P(
    Saves, RefusedWrites,
    testing::Combine(testing::Values(RefusedSave{"SaveINI", SaveNewINI},
                                     RefusedSave{"All", SaveAll},
                                     RefusedSave{"DeleteOptions", DeleteTheOptions}),
                     testing::Values(Refusal::kOne, Refusal::kAll, Refusal::kSaves)),
    RefusedSaveName);

}  // namespace
}  // namespace korvale
