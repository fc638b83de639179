#include "tests/fakes/fake_settings_store.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/fakes/call_log.h"

namespace korvale {
namespace {

using Names = std::vector<std::string>;
using Pairs = SettingsStore::Pairs;

TEST(FakeSettingsStoreTest, KeepsValuesInTheOrderOfWriting) {
  FakeSettingsStore store;
  store.SaveSetting("App", "Options", "b", "1");
  store.SaveSetting("App", "Options", "a", "2");
  store.SaveSetting("App", "Options", "b", "3");

  EXPECT_EQ(store.GetAllSettings("App", "Options"), (Pairs{{"b", "3"}, {"a", "2"}}));
}

TEST(FakeSettingsStoreTest, IgnoresTheCaseOfNames) {
  FakeSettingsStore store;
  store.SaveSetting("App", "Options", "Key", "1");

  EXPECT_EQ(store.GetSetting("APP", "options", "KEY"), "1");
  store.SaveSetting("app", "OPTIONS", "key", "2");
  EXPECT_EQ(store.GetAllSettings("App", "Options"), (Pairs{{"Key", "2"}}));
  EXPECT_TRUE(store.DeleteSetting("app", "options", "KEY"));
}

TEST(FakeSettingsStoreTest, HasNothingForMissingNames) {
  FakeSettingsStore store;
  store.SaveSetting("App", "Options", "Key", "1");

  EXPECT_EQ(store.GetSetting("App", "Options", "Other"), std::nullopt);
  EXPECT_EQ(store.GetSetting("App", "Other", "Key"), std::nullopt);
  EXPECT_EQ(store.GetSetting("Other", "Options", "Key"), std::nullopt);
  EXPECT_EQ(store.GetAllSettings("App", "Other"), Pairs{});
  EXPECT_FALSE(store.DeleteSetting("App", "Options", "Other"));
  EXPECT_FALSE(store.DeleteSetting("App", "Other", "Key"));
  EXPECT_FALSE(store.DeleteSection("App", "Other"));
}

TEST(FakeSettingsStoreTest, ValuesOfOtherTypesHaveNoText) {
  FakeSettingsStore store;
  store.SaveSetting("App", "Options", "Text", "1");
  store.SetOtherType("App", "Options", "Number");

  EXPECT_EQ(store.GetSetting("App", "Options", "Number"), std::nullopt);
  EXPECT_EQ(store.GetAllSettings("App", "Options"), (Pairs{{"Text", "1"}, {"Number", ""}}));
  EXPECT_TRUE(store.SaveSetting("App", "Options", "Number", "2"));
  EXPECT_EQ(store.GetSetting("App", "Options", "Number"), "2");
}

TEST(FakeSettingsStoreTest, DeletesSections) {
  FakeSettingsStore store;
  store.SaveSetting("App", "Options", "a", "1");
  store.SaveSetting("App", "Startup", "a", "1");
  store.SaveSetting("Other", "Options", "a", "1");

  EXPECT_TRUE(store.DeleteSection("App", "Options"));

  EXPECT_EQ(store.Sections("App"), Names{"Startup"});
  EXPECT_EQ(store.Applications(), (Names{"App", "Other"}));
}

TEST(FakeSettingsStoreTest, ASectionStaysWhenItsLastValueGoes) {
  FakeSettingsStore store;
  store.SaveSetting("App", "Options", "a", "1");
  store.DeleteSetting("App", "Options", "a");

  EXPECT_EQ(store.Sections("App"), Names{"Options"});
  EXPECT_TRUE(store.DeleteSection("App", "Options"));
}

TEST(FakeSettingsStoreTest, RefusedWritesChangeNothing) {
  FakeSettingsStore store;
  store.SaveSetting("App", "Options", "a", "1");
  store.RefuseWrites(true);

  EXPECT_FALSE(store.SaveSetting("App", "Options", "a", "2"));
  EXPECT_FALSE(store.DeleteSetting("App", "Options", "a"));
  EXPECT_FALSE(store.DeleteSection("App", "Options"));

  EXPECT_EQ(store.GetSetting("App", "Options", "a"), "1");
}

TEST(FakeSettingsStoreTest, RefusesToSaveOneValueInAnyCaseAndNoOther) {
  FakeSettingsStore store;
  store.SaveSetting("App", "Options", "a", "1");
  store.RefuseValue("App", "Options", "a");

  EXPECT_FALSE(store.SaveSetting("APP", "options", "A", "2"));
  EXPECT_TRUE(store.SaveSetting("App", "Options", "b", "2"));
  EXPECT_TRUE(store.SaveSetting("App", "Startup", "a", "2"));
  EXPECT_TRUE(store.SaveSetting("Other", "Options", "a", "2"));
  EXPECT_EQ(store.GetSetting("App", "Options", "a"), "1");

  store.RefuseNothing();
  EXPECT_TRUE(store.SaveSetting("App", "Options", "a", "2"));
}

TEST(FakeSettingsStoreTest, KillsTheProgramBeforeTheNextWrite) {
  FakeSettingsStore store;
  store.KillAfterWrites(2);
  store.SaveSetting("App", "Options", "a", "1");
  store.DeleteSetting("App", "Options", "a");

  EXPECT_THROW(store.SaveSetting("App", "Options", "b", "1"), KilledBetweenWrites);
  EXPECT_THROW(store.DeleteSection("App", "Options"), KilledBetweenWrites);
  EXPECT_EQ(store.GetAllSettings("App", "Options"), Pairs{});

  store.KillAfterWrites(-1);
  EXPECT_TRUE(store.SaveSetting("App", "Options", "b", "1"));
}

TEST(FakeSettingsStoreTest, RefusesFromAnyWriteOnEverythingOneChangeOrOnlySaves) {
  using Refusal = FakeSettingsStore::Refusal;
  for (const Refusal refusal : {Refusal::kOne, Refusal::kAll, Refusal::kSaves}) {
    FakeSettingsStore store;
    store.RefuseAfterWrites(2, refusal);
    EXPECT_TRUE(store.SaveSetting("App", "Options", "a", "1"));
    EXPECT_TRUE(store.SaveSetting("App", "Options", "b", "1"));
    EXPECT_FALSE(store.CameToRefusal());
    EXPECT_FALSE(store.SaveSetting("App", "Options", "c", "1"));
    EXPECT_TRUE(store.CameToRefusal());
    EXPECT_EQ(store.SaveSetting("App", "Options", "d", "1"), refusal == Refusal::kOne);
    EXPECT_EQ(store.DeleteSetting("App", "Options", "a"), refusal != Refusal::kAll);
    EXPECT_EQ(store.DeleteSection("App", "Options"), refusal != Refusal::kAll);
    store.RefuseNothing();
    EXPECT_TRUE(store.SaveSetting("App", "Options", "c", "1"));
  }
}

TEST(FakeSettingsStoreTest, RefusesOnlyDeletionsFromAnyWriteOn) {
  FakeSettingsStore store;
  store.RefuseAfterWrites(1, FakeSettingsStore::Refusal::kDeletions);
  EXPECT_TRUE(store.SaveSetting("App", "Options", "a", "1"));
  EXPECT_FALSE(store.DeleteSetting("App", "Options", "a"));
  EXPECT_TRUE(store.CameToRefusal());
  EXPECT_TRUE(store.SaveSetting("App", "Options", "b", "1"));
  EXPECT_FALSE(store.DeleteSection("App", "Options"));
  store.RefuseNothing();
  EXPECT_TRUE(store.DeleteSection("App", "Options"));
}

TEST(FakeSettingsStoreTest, LogsChangesAndOnRequestReads) {
  CallLog log;
  FakeSettingsStore store(log);
  store.GetSetting("App", "Options", "a");
  store.SaveSetting("App", "Options", "a", "1");
  store.DeleteSetting("App", "Options", "a");
  store.DeleteSection("App", "Options");
  log.IncludeReads(true);
  store.GetSetting("App", "Options", "a");
  store.GetAllSettings("App", "Options");

  EXPECT_EQ(log.Calls(), (Names{"SaveSetting(App, Options, a, \"1\")",
                                "DeleteSetting(App, Options, a)", "DeleteSection(App, Options)",
                                "GetSetting(App, Options, a)", "GetAllSettings(App, Options)"}));
}

}  // namespace
}  // namespace korvale
