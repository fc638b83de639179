#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "app/core/settings.h"
#include "tests/core/saves.h"
#include "tests/fakes/error_of.h"
#include "tests/fakes/fake_settings_store.h"

namespace korvale {
namespace {

/// What the program takes for stored without reading the store.
class HeldINITest : public testing::Test {
 protected:
  bool HoldsNew() const { return settings_.HoldsINI(StartupSettings(), NewTags()); }
  void SaveNew() { settings_.SaveINI(StartupSettings(), NewTags()); }

  FakeSettingsStore store_;
  Settings settings_{store_, kApp};
};

TEST_F(HeldINITest, IsNothingAtFirst) { EXPECT_FALSE(HoldsNew()); }

TEST_F(HeldINITest, IsWhatWasSavedLast) {
  SaveNew();
  EXPECT_TRUE(HoldsNew());
  settings_.SaveINI(StartupSettings(), {});
  EXPECT_FALSE(HoldsNew());
}

TEST_F(HeldINITest, DiffersInAnyValue) {
  SaveNew();
  const std::vector<std::function<void(StartupSettings&)>> changes = {
      [](StartupSettings& startup) { startup.WindowState = 2; },
      [](StartupSettings& startup) { startup.Left = 100; },
      [](StartupSettings& startup) { startup.Top = 100; },
      [](StartupSettings& startup) { startup.Width = 6000; },
      [](StartupSettings& startup) { startup.Height = 700; },
      [](StartupSettings& startup) { startup.AlwaysOnTop = true; },
      [](StartupSettings& startup) { startup.WI1BackColor = 1; },
      [](StartupSettings& startup) { startup.WI2BackColor = 1; },
      [](StartupSettings& startup) { startup.Tips = "0"; },
      [](StartupSettings& startup) { startup.DisplayTips = false; },
      [](StartupSettings& startup) { startup.LastColorSelected = 1; },
      [](StartupSettings& startup) { startup.Menu = false; },
      [](StartupSettings& startup) { startup.OptionsTab = 2; },
      [](StartupSettings& startup) { startup.WindowInfo = false; }};
  for (const auto& change : changes) {
    StartupSettings startup;
    change(startup);
    EXPECT_FALSE(settings_.HoldsINI(startup, NewTags())) << &change - changes.data();
  }
  const StoredTagList others[] = {{},
                                  {{4, "&3  New\\Tag", "\\New\\"}},
                                  {{3, "&3  Tag", "\\New\\"}},
                                  {{3, "&3  New\\Tag", "New"}}};
  for (const StoredTagList& tags : others) {
    EXPECT_FALSE(settings_.HoldsINI(StartupSettings(), tags)) << &tags - others;
  }
  EXPECT_TRUE(HoldsNew());
  settings_.SetAppName("Korvale - Home");
  EXPECT_FALSE(HoldsNew());
}

TEST_F(HeldINITest, IsNothingOnceTheStoreHasRefusedAny) {
  SaveNew();
  store_.RefuseWrites(true);
  EXPECT_EQ(ErrorOf([&] { settings_.SaveOptions(clsOptions()); }), 70);
  EXPECT_FALSE(HoldsNew());
  EXPECT_EQ(ErrorOf([&] { SaveNew(); }), 70);
  EXPECT_FALSE(HoldsNew());
  store_.RefuseNothing();
  store_.RefuseWrites(false);
  SaveNew();
  EXPECT_TRUE(HoldsNew());
}

TEST_F(HeldINITest, IsNothingWhenTheSaveAroundItIsRefusedOrGivenUp) {
  {
    SaveScope givenUp(settings_);
    SaveNew();
  }
  EXPECT_FALSE(HoldsNew());
  SaveScope refused(settings_);
  SaveNew();
  store_.RefuseWrites(true);
  EXPECT_EQ(ErrorOf([&] { refused.Commit(); }), 70);
  EXPECT_FALSE(HoldsNew());
}

TEST_F(HeldINITest, IsNothingOnceItWasDeleted) {
  SaveNew();
  settings_.DeleteINI();
  EXPECT_FALSE(HoldsNew());
  SaveNew();
  settings_.DeletePlacement();
  EXPECT_FALSE(HoldsNew());
}

TEST_F(HeldINITest, IsWhatWasLoadedUnlessASaveIsStillToBeMade) {
  settings_.KeepINI(StartupSettings(), NewTags());
  EXPECT_TRUE(HoldsNew());

  store_.RefuseAfterWrites(20, FakeSettingsStore::Refusal::kAll);
  EXPECT_EQ(ErrorOf([&] { settings_.SaveINI(StartupSettings(), {}); }), 70);
  Settings nextRun(store_, kApp);
  nextRun.FinishInterruptedSave();
  nextRun.KeepINI(StartupSettings(), NewTags());
  EXPECT_FALSE(nextRun.HoldsINI(StartupSettings(), NewTags()));
}

}  // namespace
}  // namespace korvale
