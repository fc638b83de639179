#include "app/core/save_journal.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/core/save_scope.h"
#include "app/core/settings.h"
#include "platform/run_time_error.h"
#include "tests/core/saves.h"
#include "tests/core/stored_values.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/error_of.h"
#include "tests/fakes/fake_settings_store.h"

namespace korvale {
namespace {

class SaveJournalTest : public testing::Test {
 protected:
  void Entry(const std::string& name, const std::string& value) {
    store_.SaveSetting(kApp, "Saving", name, value);
  }
  StoredValues AfterRestart() {
    Restart(store_);
    return AllValues(store_);
  }

  FakeSettingsStore store_;
};

TEST_F(SaveJournalTest, CompleteJournalIsMadeInItsOrderAndGone) {
  Entry("2\\S\\Korvale - Work\\Options\\A", "new");
  Entry("10\\K\\Korvale - Work\\Options\\B", "");
  for (const char* number : {"4", "5", "6", "7", "8", "9"}) {
    Entry(std::string(number) + "\\S\\Korvale - Work\\Options\\B", number);
  }
  Entry("3\\S\\Korvale - Work\\Startup\\C\\D", "");
  Entry("1\\D\\Korvale - Work\\Options\\", "");
  Entry("Complete", "10");
  store_.SaveSetting(kApp, "Options", "Old", "1");
  EXPECT_EQ(AfterRestart(), (StoredValues{{"Korvale - Work/Options/A", "new"},
                                          {"Korvale - Work/Startup/C\\D", ""}}));
}

TEST_F(SaveJournalTest, JournalThatIsNotCompleteIsDropped) {
  const std::string good = "1\\S\\Korvale - Work\\Options\\A";
  const std::vector<SettingsStore::Pairs> journals = {
      {{good, "x"}},
      {{good, "x"}, {"Complete", "2"}},
      {{good, "x"}, {"Complete", ""}},
      {{good, "x"}, {"Complete", "one"}},
      {{good, "x"}, {"3\\S\\Korvale - Work\\Options\\B", "x"}, {"Complete", "2"}},
      {{"2\\S\\Korvale - Work\\Options\\B", "x"}, {"Complete", "1"}},
      {{"Complete", "1"}},
  };
  for (const auto& journal : journals) {
    for (const auto& [name, value] : journal) Entry(name, value);
    EXPECT_EQ(AfterRestart(), StoredValues());
  }
}

TEST_F(SaveJournalTest, GarbageInTheJournalIsDropped) {
  for (const char* name : {"", "1", "1\\", "1\\X\\a\\b\\c", "1\\SS\\a\\b\\c", "x\\S\\a\\b\\c",
                           "\\\\\\\\", "99999999999\\S\\a\\b\\c", "\xff\xfe"}) {
    Entry(name, "x");
    Entry("Complete", "1");
    EXPECT_EQ(AfterRestart(), StoredValues()) << name;
  }
}

TEST_F(SaveJournalTest, LeftoverNeverUndoesALaterSave) {
  Entry("1\\S\\Korvale - Work\\Options\\A", "old");
  Entry("Complete", "1");
  store_.SaveSetting(kApp, "Options", "A", "");
  DeleteTheOptions(store_);
  EXPECT_EQ(AfterRestart(), StoredValues());
}

TEST_F(SaveJournalTest, NothingOfItIsLeftAfterASave) {
  SaveOld(store_);
  SaveNewINI(store_);
  EXPECT_TRUE(store_.GetAllSettings(kApp, "Saving").empty());
}

TEST_F(SaveJournalTest, NothingIsWrittenWhenThereIsNothingToChange) {
  EXPECT_TRUE(RunsToItsEnd(store_, 0, DeleteTheOptions));
  EXPECT_TRUE(RunsToItsEnd(store_, 0, Restart));
}

/// The calls of a save of this many values.
std::vector<std::string> CallsOfASaveOf(int values) {
  CallLog log;
  FakeSettingsStore store(log);
  Settings settings(store, kApp);
  SaveScope save(settings);
  for (int value = 0; value < values; ++value) save.SaveSetting(kApp, "S", "K", "V");
  save.Commit();
  return log.Take();
}

TEST_F(SaveJournalTest, OneChangeNeedsNoJournalButTwoDo) {
  const std::string change = "SaveSetting(Korvale - Work, S, K, \"V\")";
  EXPECT_EQ(CallsOfASaveOf(1), std::vector<std::string>{change});
  const std::string entry = "SaveSetting(Korvale - Work, Saving, ";
  EXPECT_EQ(CallsOfASaveOf(2),
            (std::vector<std::string>{entry + "1\\S\\Korvale - Work\\S\\K, \"V\")",
                                      entry + "2\\S\\Korvale - Work\\S\\K, \"V\")",
                                      entry + "Complete, \"2\")", change, change,
                                      "DeleteSection(Korvale - Work, Saving)"}));
}

TEST_F(SaveJournalTest, ADeletionIsNotedWithoutAValue) {
  CallLog log;
  FakeSettingsStore store(log);
  store.SaveSetting(kApp, "S", "K", "V");
  log.Clear();
  Settings settings(store, kApp);
  SaveScope save(settings);
  save.DeleteSection(kApp, "S");
  save.DeleteSetting(kApp, "T", "K");
  save.Commit();
  EXPECT_EQ(log.Calls().at(0),
            "SaveSetting(Korvale - Work, Saving, 1\\D\\Korvale - Work\\S\\, \"\")");
  EXPECT_EQ(log.Calls().at(1),
            "SaveSetting(Korvale - Work, Saving, 2\\K\\Korvale - Work\\T\\K, \"\")");
}

/// Refuses to save the keys of one section that end with `key`, and cannot delete that section.
class RefusingStore : public FakeSettingsStore {
 public:
  RefusingStore(std::string section, std::string key)
      : section_(std::move(section)), key_(std::move(key)) {}

  bool SaveSetting(const std::string& appName, const std::string& section, const std::string& key,
                   const std::string& value) override {
    if (refusing && section == section_ && key.ends_with(key_)) return false;
    return FakeSettingsStore::SaveSetting(appName, section, key, value);
  }
  bool DeleteSection(const std::string& appName, const std::string& section) override {
    if (refusing && section == section_ && section != "Saving") {
      throw RunTimeError(RunTimeError::kInvalidCall);
    }
    return FakeSettingsStore::DeleteSection(appName, section);
  }

  bool refusing = false;

 private:
  std::string section_;
  std::string key_;
};

TEST(RefusedSaveTest, ChangesNothingWhenItCannotBePrepared) {
  for (const char* key : {"Tips", "Complete"}) {
    RefusingStore store("Saving", key);
    SaveOld(store);
    const StoredValues before = AllValues(store);
    store.refusing = true;
    EXPECT_EQ(ErrorOf([&] { SaveNewINI(store); }), 70);
    EXPECT_EQ(AllValues(store), before);
  }
}

TEST(RefusedSaveTest, IsReportedAfterTheOtherValuesAreSaved) {
  RefusingStore store("Startup", "Tips");
  store.refusing = true;
  EXPECT_EQ(ErrorOf([&] { SaveNewINI(store); }), 70);
  EXPECT_EQ(store.GetSetting(kApp, "Startup", "WindowInfo"), "True");
  EXPECT_EQ(store.GetSetting(kApp, "ParentWindowList", "3"), "&3  New\\Tag");
}

TEST(RefusedSaveTest, IsTriedAgainByTheNextRun) {
  RefusingStore store("Startup", "Tips");
  store.refusing = true;
  EXPECT_EQ(ErrorOf([&] { SaveNewINI(store); }), 70);
  Settings(store, kApp).FinishInterruptedSave();
  EXPECT_FALSE(store.GetAllSettings(kApp, "Saving").empty()) << "still refused";
  store.refusing = false;
  Settings(store, kApp).FinishInterruptedSave();
  EXPECT_EQ(store.GetSetting(kApp, "Startup", "Tips"), "10");
  EXPECT_TRUE(store.GetAllSettings(kApp, "Saving").empty());
}

TEST(RefusedSaveTest, ANewerSaveNeverMixesWithAJournalThatCannotBeDeleted) {
  class KeepingStore : public FakeSettingsStore {
   public:
    bool DeleteSection(const std::string& appName, const std::string& section) override {
      return section != "Saving" && FakeSettingsStore::DeleteSection(appName, section);
    }
  };
  KeepingStore store;
  EXPECT_EQ(ErrorOf([&] { SaveOld(store); }), 70);
  const auto journal = store.GetAllSettings(kApp, "Saving");
  ASSERT_FALSE(journal.empty());
  EXPECT_EQ(ErrorOf([&] { SaveNewINI(store); }), 70);
  EXPECT_EQ(store.GetAllSettings(kApp, "Saving"), journal);
}

TEST(RefusedSaveTest, IsMadeAfterAllBeforeANewerOneOfOtherSettings) {
  RefusingStore store("Options", "HotKeyModParent");
  store.refusing = true;
  clsOptions options;
  options.intHotKeyModParent = 2;
  EXPECT_EQ(ErrorOf([&] { Settings(store, kApp).SaveOptions(options); }), 70);
  EXPECT_EQ(ErrorOf([&] { SaveNewINI(store); }), 70);
  store.refusing = false;
  Settings(store, kApp).FinishInterruptedSave();
  EXPECT_EQ(store.GetSetting(kApp, "Options", "HotKeyModParent"), "2");
  EXPECT_EQ(store.GetSetting(kApp, "Startup", "Tips"), "10");
  EXPECT_TRUE(store.GetAllSettings(kApp, "Saving").empty());
}

TEST(RefusedSaveTest, FailingDeletionDoesNotStopTheOthers) {
  RefusingStore store("ButtonTags", "");
  SaveOld(store);
  store.refusing = true;
  EXPECT_EQ(ErrorOf([&] { SaveNewINI(store); }), 70);
  EXPECT_EQ(store.GetSetting(kApp, "ButtonTags", "1"), "old");
  EXPECT_EQ(store.GetSetting(kApp, "ParentWindowList", "1"), std::nullopt);
  EXPECT_EQ(store.GetSetting(kApp, "ParentWindowList", "3"), "&3  New\\Tag");
}

TEST(RefusedSaveTest, ATagThatWasRemovedMeanwhileDoesNotComeBack) {
  for (const std::vector<int>& left : {std::vector<int>{1}, {}}) {
    RefusingStore store("ParentWindowList", "");
    store.refusing = true;
    EXPECT_EQ(ErrorOf([&] { SaveTags(store, {1, 2}); }), 70);
    EXPECT_EQ(ErrorOf([&] { SaveTags(store, left); }), left.empty() ? 0 : 70);
    store.refusing = false;
    Restart(store);
    const SettingsStore::Pairs expected =
        left.empty() ? SettingsStore::Pairs() : SettingsStore::Pairs{{"1", "&1  Mail"}};
    EXPECT_EQ(store.GetAllSettings(kApp, "ParentWindowList"), expected);
    EXPECT_TRUE(store.GetAllSettings(kApp, "Saving").empty());
  }
}

TEST(RefusedSaveTest, TheLastTagWhoseRemovalIsRefusedIsRemovedLater) {
  RefusingStore store("ParentWindowList", "");
  SaveTags(store, {2});
  store.refusing = true;
  EXPECT_EQ(ErrorOf([&] { SaveTags(store, {}); }), 70);
  EXPECT_EQ(store.GetSetting(kApp, "ParentWindowList", "2"), "&2  Mail");
  store.refusing = false;
  Restart(store);
  EXPECT_EQ(store.GetSetting(kApp, "ParentWindowList", "2"), std::nullopt);
}

}  // namespace
}  // namespace korvale
