#include <functional>
#include <string>

#include "platform/run_time_error.h"
#include "tests/core/installation_test.h"
#include "tests/core/stored_values.h"

namespace korvale {
namespace {

/// A deletion of the import, and what it deletes.
struct Deletion {
  const char* appName;
  const char* section;
  const char* key;
};

constexpr Deletion kDeletions[] = {
    {"Korvale Installations", "0", kOld},
    {kWork, "Startup", "WindowState"},
    {kWork, "Startup", "Left"},
    {kWork, "Startup", "DisplayTips"},
};

/// Settings are taken over while one of the deletions fails.
class InstallationDeletionsTest : public InstallationTest {
 protected:
  using Disturbance = std::function<void(FakeSettingsStore&)>;

  InstallationDeletionsTest() {
    StoreSettings(store_, kOld);
    Register(store_, kOld, "D:\\Tools\\Old");
  }

  /// What is stored after the import when `disturb` runs right before the deletion.
  StoredValues Import(const std::string& deletion, const Disturbance& disturb) {
    FakeSettingsStore store = store_;
    messages_.answers = {kYes};
    bool came = false;
    log_.WhenCalled(deletion, [&] {
      came = true;
      disturb(store);
    });
    EXPECT_EQ(RunOn(store).lastAnswer, kYes);
    EXPECT_TRUE(came) << deletion;
    return AllValues(store);
  }
  StoredValues UndisturbedImport() {
    return Import("DeleteS", [](FakeSettingsStore& /*store*/) {});
  }
  static std::string Call(const Deletion& deletion) {
    return std::string("DeleteSetting(") + deletion.appName + ", " + deletion.section + ", " +
           deletion.key + ")";
  }
};

TEST_F(InstallationDeletionsTest, OneThatFailsLeavesItsValueAndStopsNoOther) {
  const StoredValues complete = UndisturbedImport();
  for (const Deletion& deletion : kDeletions) {
    std::string left;
    const StoredValues found = Import(Call(deletion), [&](FakeSettingsStore& store) {
      left = store.GetSetting(deletion.appName, deletion.section, deletion.key).value_or("");
      throw RunTimeError(RunTimeError::kInvalidCall);
    });
    EXPECT_NE(left, "");
    StoredValues expected = complete;
    expected[std::string(deletion.appName) + "/" + deletion.section + "/" + deletion.key] = left;
    EXPECT_EQ(found, expected) << deletion.key;
  }
}

TEST_F(InstallationDeletionsTest, OneWhoseSectionCannotBeDeletedStopsNoOther) {
  StoredValues expected = UndisturbedImport();
  expected["Korvale - Old/ButtonTags/1"] = "old";
  EXPECT_EQ(
      Import("DeleteSection(Korvale - Old, ButtonTags)",
             [](FakeSettingsStore& /*store*/) { throw RunTimeError(RunTimeError::kInvalidCall); }),
      expected);
}

TEST_F(InstallationDeletionsTest, OneOfAKeyThatIsMissingStopsNoOther) {
  const StoredValues complete = UndisturbedImport();
  for (const Deletion& deletion : kDeletions) {
    const StoredValues found = Import(Call(deletion), [&](FakeSettingsStore& store) {
      EXPECT_TRUE(store.DeleteSetting(deletion.appName, deletion.section, deletion.key));
    });
    EXPECT_EQ(found, complete) << deletion.key;
  }
}

}  // namespace
}  // namespace korvale
