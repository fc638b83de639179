#include "app/core/save_scope.h"

#include <gtest/gtest.h>

#include <memory>

#include "app/core/settings.h"
#include "platform/run_time_error.h"
#include "tests/core/saves.h"
#include "tests/core/stored_values.h"
#include "tests/fakes/error_of.h"
#include "tests/fakes/fake_settings_store.h"

namespace korvale {
namespace {

/// An empty store.
class SaveScopeTest : public testing::Test {
 protected:
  FakeSettingsStore store_;
  Settings settings_{store_, kApp};
};

TEST_F(SaveScopeTest, MakesNothingUntilItIsCommitted) {
  SaveScope save(settings_);
  settings_.SaveOptions(clsOptions());
  save.SaveSetting("Korvale - Home", "Options", "A", "1");
  EXPECT_EQ(AllValues(store_), StoredValues());
  EXPECT_TRUE(settings_.NothingStored());
  save.Commit();
  EXPECT_FALSE(settings_.NothingStored());
  EXPECT_EQ(store_.GetSetting("Korvale - Home", "Options", "A"), "1");
}

TEST_F(SaveScopeTest, MakesNothingWhenItIsLeftWithout) {
  {
    const SaveScope save(settings_);
    settings_.SaveOptions(clsOptions());
  }
  EXPECT_TRUE(settings_.NothingStored());
  settings_.SaveOptions(clsOptions());
  EXPECT_FALSE(settings_.NothingStored());
}

TEST_F(SaveScopeTest, JoinsTheOneAroundIt) {
  SaveScope save(settings_);
  settings_.SaveINI(StartupSettings(), NewTags());
  {
    const SaveScope dropped(settings_);
    settings_.SaveOptions(clsOptions());
  }
  SaveScope inner(settings_);
  inner.SaveSetting(kApp, "Options", "A", "1");
  inner.Commit();
  EXPECT_EQ(AllValues(store_), StoredValues());
  save.Commit();
  EXPECT_EQ(settings_.LoadTagList(), NewTags());
  EXPECT_EQ(store_.GetAllSettings(kApp, "Options"), (SettingsStore::Pairs{{"A", "1"}}));
}

TEST_F(SaveScopeTest, IsOverWhenTheStoreHasRefusedIt) {
  store_.RefuseValue(kApp, "Options", "A");
  SaveScope save(settings_);
  save.SaveSetting(kApp, "Options", "A", "1");
  EXPECT_EQ(ErrorOf([&] { save.Commit(); }), 70);
  settings_.SaveINI(StartupSettings(), NewTags());
  EXPECT_EQ(settings_.LoadTagList(), NewTags());
}

TEST_F(SaveScopeTest, IsMadeOnce) {
  SaveScope save(settings_);
  save.SaveSetting(kApp, "Options", "A", "1");
  save.Commit();
  store_.SaveSetting(kApp, "Options", "A", "2");
  EXPECT_EQ(ErrorOf([&] { save.Commit(); }), RunTimeError::kInternalError);
  EXPECT_EQ(store_.GetSetting(kApp, "Options", "A"), "2");
}

TEST_F(SaveScopeTest, IsNotMadeAroundAnOpenOne) {
  SaveScope save(settings_);
  save.SaveSetting(kApp, "Options", "A", "1");
  {
    const SaveScope inner(settings_);
    EXPECT_EQ(ErrorOf([&] { save.Commit(); }), RunTimeError::kInternalError);
    EXPECT_EQ(AllValues(store_), StoredValues());
  }
  save.Commit();
  EXPECT_EQ(store_.GetSetting(kApp, "Options", "A"), "1");
}

TEST_F(SaveScopeTest, TakesThoseInsideAlongWhenItIsLeftFirst) {
  auto outer = std::make_unique<SaveScope>(settings_);
  SaveScope inner(settings_);
  inner.SaveSetting(kApp, "Options", "A", "1");
  outer.reset();
  EXPECT_EQ(ErrorOf([&] { inner.Commit(); }), RunTimeError::kInternalError);
  EXPECT_TRUE(settings_.NothingStored());
  settings_.SaveOptions(clsOptions());
  EXPECT_FALSE(settings_.NothingStored());
}

}  // namespace
}  // namespace korvale
