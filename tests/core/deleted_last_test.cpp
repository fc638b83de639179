#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "app/core/save_scope.h"
#include "app/core/settings.h"
#include "tests/core/saves.h"
#include "tests/fakes/error_of.h"
#include "tests/fakes/fake_settings_store.h"

namespace korvale {
namespace {

/// A save of the Tags "1" and "2" in which "1" is refused, then another installation is deleted.
class DeletedLastTest : public testing::Test {
 protected:
  DeletedLastTest() {
    store_.SaveSetting("Korvale - Old", "Options", "A", "1");
    store_.RefuseValue(kApp, "ParentWindowList", "1");
    Settings settings(store_, kApp);
    SaveScope save(settings);
    settings.SaveINI(StartupSettings(), {{1, "&1  Mail", ""}, {2, "&2  Mail", ""}});
    settings.DeletePlacement();
    save.DeleteLast();
    save.DeleteSection("Korvale - Old", "Options");
    EXPECT_EQ(ErrorOf([&] { save.Commit(); }), 70);
  }

  bool OldIsThere() { return store_.GetSetting("Korvale - Old", "Options", "A") == "1"; }
  bool NothingIsPending() { return store_.GetAllSettings(kApp, "Saving").empty(); }
  std::optional<std::string> Tag(const std::string& number) {
    return store_.GetSetting(kApp, "ParentWindowList", number);
  }

  FakeSettingsStore store_;
};

TEST_F(DeletedLastTest, WaitsUntilAllElseStands) {
  EXPECT_TRUE(OldIsThere());
  EXPECT_EQ(ErrorOf([&] { SaveTags(store_, {1, 2}); }), 70);
  EXPECT_TRUE(OldIsThere());
  store_.RefuseNothing();
  Restart(store_);
  EXPECT_EQ(Tag("1"), "&1  Mail");
  EXPECT_FALSE(OldIsThere());
  EXPECT_TRUE(NothingIsPending());
}

TEST_F(DeletedLastTest, HidesNothingOfTheOwnSectionOfThatName) {
  store_.SaveSetting(kApp, "Options", "HotKeyModParent", "2");
  clsOptions options;
  Settings(store_, kApp).LoadOptions(options);
  EXPECT_EQ(options.intHotKeyModParent, 2);
  EXPECT_FALSE(Settings(store_, kApp).NothingStored());
}

TEST_F(DeletedLastTest, IsDroppedWhenAValueThatWasRefusedIsNotToBeSavedAnyMore) {
  SaveTags(store_, {2});
  EXPECT_TRUE(OldIsThere());
  EXPECT_TRUE(NothingIsPending());
  store_.RefuseNothing();
  SaveTags(store_, {2});
  Restart(store_);
  EXPECT_EQ(Tag("1"), std::nullopt);
  EXPECT_TRUE(OldIsThere());
}

TEST_F(DeletedLastTest, IsDroppedWhenAValueThatWasRefusedBecomesAnother) {
  const StoredTagList other = {{1, "&1  Other", ""}};
  EXPECT_EQ(ErrorOf([&] { Settings(store_, kApp).SaveINI(StartupSettings(), other); }), 70);
  store_.RefuseNothing();
  Restart(store_);
  EXPECT_EQ(Tag("1"), "&1  Other");
  EXPECT_TRUE(OldIsThere());
  EXPECT_TRUE(NothingIsPending());
}

TEST_F(DeletedLastTest, StaysWhenAValueThatStandsBecomesAnother) {
  EXPECT_EQ(Tag("2"), "&2  Mail");
  EXPECT_EQ(ErrorOf([&] { SaveTags(store_, {1}); }), 70);
  store_.RefuseNothing();
  Restart(store_);
  EXPECT_EQ(Tag("1"), "&1  Mail");
  EXPECT_EQ(Tag("2"), std::nullopt);
  EXPECT_FALSE(OldIsThere());
}

}  // namespace
}  // namespace korvale
