#include <gtest/gtest.h>

#include <string>

#include "app/core/settings.h"
#include "platform/run_time_error.h"
#include "tests/core/saves.h"
#include "tests/fakes/error_of.h"
#include "tests/fakes/fake_settings_store.h"

namespace korvale {
namespace {

/// The journal of a refused save vanishes after some reading of it, as when another copy finishes
/// it at that moment.
class VanishingJournal : public FakeSettingsStore {
 public:
  Pairs GetAllSettings(const std::string& appName, const std::string& section) override {
    Pairs pairs = FakeSettingsStore::GetAllSettings(appName, section);
    if (section == "Saving" && !pairs.empty() && readingsLeft > 0 && --readingsLeft == 0) {
      RefuseNothing();
      for (const auto& [key, value] : kept_) SaveSetting(kApp, "ParentWindowList", key, value);
      DeleteSection(kApp, "Saving");
    }
    return pairs;
  }

  /// How often the journal is still read; 0 = it stays.
  int readingsLeft = 0;

 private:
  Pairs kept_ = {{"1", "&1  Mail"}};
};

/// A store in which the save of Tag 1 was refused.
VanishingJournal WithARefusedTag() {
  VanishingJournal store;
  SaveTags(store, {2});
  store.RefuseValue(kApp, "ParentWindowList", "1");
  EXPECT_EQ(ErrorOf([&] { SaveTags(store, {1, 2}); }), 70);
  return store;
}

std::string LoadedTags(SettingsStore& store) {
  std::string numbers;
  for (const StoredTag& tag : Settings(store, kApp).LoadTagList()) {
    numbers += static_cast<char>('0' + tag.number);
  }
  return numbers;
}

TEST(SharedStoreTest, AJournalThatVanishesBetweenTwoReadingsIsNoHarmToLoading) {
  for (int readings = 1; readings <= 3; ++readings) {
    VanishingJournal store = WithARefusedTag();
    store.readingsLeft = readings;
    EXPECT_EQ(LoadedTags(store), "12") << readings;
  }
}

TEST(SharedStoreTest, AJournalThatVanishesBetweenTwoReadingsIsNoHarmToTheNextStart) {
  bool vanished = true;
  for (int readings = 1; vanished; ++readings) {
    VanishingJournal store = WithARefusedTag();
    store.readingsLeft = readings;
    Restart(store);
    vanished = store.readingsLeft == 0;
    EXPECT_EQ(LoadedTags(store), "12") << readings;
  }
}

TEST(SharedStoreTest, AJournalThatVanishesBetweenTwoReadingsIsNoHarmToTheNextSave) {
  bool vanished = true;
  for (int readings = 1; vanished; ++readings) {
    VanishingJournal store = WithARefusedTag();
    store.readingsLeft = readings;
    const bool refused = ErrorOf([&] { SaveTags(store, {1, 2, 3}); }) != 0;
    vanished = store.readingsLeft == 0;
    EXPECT_EQ(LoadedTags(store), "123") << readings;
    EXPECT_EQ(refused, !vanished) << readings;
  }
}

TEST(SharedStoreTest, WhatWasRefusedIsFoundUnderTheNameInAnotherCase) {
  VanishingJournal store = WithARefusedTag();
  Settings shouting(store, "Korvale - WORK");
  EXPECT_EQ(shouting.LoadTagList().size(), 2U);
  EXPECT_EQ(shouting.LoadTagList().front().caption, "&1  Mail");
}

TEST(SharedStoreTest, WhatWasRefusedIsReplacedUnderTheNameInAnotherCase) {
  VanishingJournal store = WithARefusedTag();
  EXPECT_EQ(ErrorOf([&] { Settings(store, "Korvale - WORK").SaveINI(StartupSettings(), {}); }), 0);
  store.RefuseNothing();
  Restart(store);
  EXPECT_EQ(LoadedTags(store), "");
}

/// Deletes only the end of the journal, as when the store breaks off in the middle of it.
class HalfDeletingStore : public FakeSettingsStore {
 public:
  bool DeleteSection(const std::string& appName, const std::string& section) override {
    if (section != halfDeleted) return FakeSettingsStore::DeleteSection(appName, section);
    DeleteSetting(appName, section, "Complete");
    return true;
  }

  std::string halfDeleted;
};

TEST(SharedStoreTest, NothingIsLostWithAJournalThatIsOnlyHalfDeleted) {
  HalfDeletingStore store;
  store.RefuseValue(kApp, "ParentWindowList", "1");
  EXPECT_EQ(ErrorOf([&] { SaveTags(store, {1}); }), 70);
  store.halfDeleted = "Saving";
  clsOptions options;
  options.intHotKeyModParent = 2;
  EXPECT_EQ(ErrorOf([&] { Settings(store, kApp).SaveOptions(options); }), 70);
  store.halfDeleted = "";
  store.RefuseNothing();
  Restart(store);
  EXPECT_EQ(LoadedTags(store), "1");
  EXPECT_EQ(store.GetSetting(kApp, "Options", "HotKeyModParent"), "2");
}

}  // namespace
}  // namespace korvale
