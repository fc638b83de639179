#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "platform/run_time_error.h"
#include "tests/core/installation_test.h"
#include "tests/core/stored_values.h"

namespace korvale {
namespace {

using Refusal = FakeSettingsStore::Refusal;
using Steps = std::vector<std::string>;

/// The folder was D:\Tools\Old before, and the user wants its settings.
class ImportSteps : public InstallationTest {
 protected:
  ImportSteps() {
    StoreSettings(store_, kOld);
    Register(store_, kOld, "D:\\Tools\\Old");
    log_.Clear();
    messages_.answers = {kYes};
  }

  /// The changes without their values, and without those of the journal.
  Steps Changes() {
    Steps steps;
    for (const std::string& call : log_.Take()) {
      if (call.find("Korvale - Work, Saving") == std::string::npos) {
        steps.push_back(call.substr(0, call.find(", \"")));
      }
    }
    return steps;
  }
  /// What stands under the new name but for the journal and the place, whose deletion is a step.
  static StoredValues Taken(FakeSettingsStore& store) {
    StoredValues values = ValuesOf(store, kWork);
    std::erase_if(
        values, [](const auto& value) { return value.first.starts_with("Korvale - Work/Saving"); });
    for (const char* const key : {"WindowState", "Left", "Top", "Width", "Height", "DisplayTips"}) {
      values.erase(std::string("Korvale - Work/Startup/") + key);
    }
    return values;
  }
};

Steps AllOf(const std::string& section, const Steps& keys) {
  const std::string beginning = "SaveSetting(" + section + ", ";
  Steps steps;
  for (const std::string& key : keys) steps.push_back(beginning + key);
  return steps;
}

TEST_F(ImportSteps, AreOfferedForWhatOnlyAnInterruptedSaveHolds) {
  for (const std::string& section : store_.Sections(kOld)) store_.DeleteSection(kOld, section);
  store_.SaveSetting(kOld, "Saving", "1\\S\\Korvale - Old\\ParentWindowList\\9", "&9  Late");
  store_.SaveSetting(kOld, "Saving", "Complete", "1");
  Run();
  EXPECT_EQ(store_.GetSetting(kWork, "ParentWindowList", "9"), "&9  Late");
}

TEST_F(ImportSteps, ChangeTheStoreInTheirOrder) {
  Run();

  Steps expected = {"SaveSetting(Korvale Installations, 0, Korvale - Work"};
  for (const Steps& steps :
       {AllOf(
            "Korvale - Work, Options",
            {"SplashScreen",      "SelectPrevWinOnStart", "AllowNoTextWindow", "AllowToolbarWindow",
             "HotKeyEnabled",     "HotKeyModParent",      "HotKeyParent0",     "HotKeyParent1",
             "HotKeyParent2",     "HotKeyParent3",        "HotKeyParent4",     "HotKeyParent5",
             "HotKeyParent6",     "HotKeyParent7",        "HotKeyParent8",     "HotKeyParent9",
             "HotKeyModAction0",  "HotKeyModAction1",     "HotKeyAction0",     "HotKeyAction1",
             "HotKeyModGeneral0", "HotKeyModGeneral1",    "HotKeyModGeneral2", "HotKeyGeneral0",
             "HotKeyGeneral1",    "HotKeyGeneral2"}),
        AllOf("Korvale - Work, Startup",
              {"WindowState", "Left", "Top", "Width", "Height", "AlwaysOnTop", "WI1BackColor",
               "WI2BackColor", "Tips", "DisplayTips", "LastColorSelected", "Menu", "OptionsTab",
               "WindowInfo"}),
        Steps{"SaveSetting(Korvale - Work, ParentWindowList, 1",
              "SaveSetting(Korvale - Work, ParentWindowList, 4",
              "SaveSetting(Korvale - Work, ParentWindowClass, 4",
              "DeleteSetting(Korvale Installations, 0, Korvale - Old)",
              "DeleteSection(Korvale - Old, Startup)", "DeleteSection(Korvale - Old, ButtonTags)",
              "DeleteSection(Korvale - Old, ParentWindowList)",
              "DeleteSection(Korvale - Old, ParentWindowClass)",
              "DeleteSection(Korvale - Old, Options)",
              "DeleteSetting(Korvale - Work, Startup, WindowState)",
              "DeleteSetting(Korvale - Work, Startup, Left)",
              "DeleteSetting(Korvale - Work, Startup, Top)",
              "DeleteSetting(Korvale - Work, Startup, Width)",
              "DeleteSetting(Korvale - Work, Startup, Height)",
              "DeleteSetting(Korvale - Work, Startup, DisplayTips)"}}) {
    expected.insert(expected.end(), steps.begin(), steps.end());
  }
  EXPECT_EQ(Changes(), expected);
}

TEST_F(ImportSteps, ReadOptionsStateAndTagsBeforeTheFirstOfThemIsSaved) {
  log_.IncludeReads(true);
  Run();
  const Steps order = {"GetSetting(Korvale - Old, Options, SplashScreen",
                       "GetSetting(Korvale - Old, Options, HotKeyGeneral2",
                       "GetSetting(Korvale - Old, Startup, WindowState",
                       "GetSetting(Korvale - Old, Startup, WindowInfo",
                       "GetAllSettings(Korvale - Old, ParentWindowList",
                       "GetAllSettings(Korvale - Old, ParentWindowClass"};
  const Steps& calls = log_.Calls();
  const auto find = [&](auto from, std::string_view step) {
    return std::find_if(from, calls.end(),
                        [&](const std::string& call) { return call.starts_with(step); });
  };
  auto last = calls.begin();
  for (const std::string& step : order) {
    last = find(last, step);
    ASSERT_NE(last, calls.end()) << step;
  }
  EXPECT_LT(last, find(calls.begin(), "SaveSetting(Korvale - Work, "));
}

class RefusedImportSteps : public ImportSteps, public testing::WithParamInterface<Refusal> {
 protected:
  /// What the user is told of an import into this store, "" when nothing.
  std::string ToldOfImport(FakeSettingsStore& store) {
    messages_.answers = {kYes};
    try {
      RunOn(store);
    } catch (const RunTimeError& error) {
      return error.what();
    }
    return "";
  }
  /// How much is left of the old installation: its entry and its sections.
  static int LeftOfOld(FakeSettingsStore& store) {
    int left = store.GetSetting("Korvale Installations", "0", kOld) ? 1 : 0;
    for (const std::string& section : store.Sections(kOld)) {
      if (!store.GetAllSettings(kOld, section).empty()) ++left;
    }
    return left;
  }
};

TEST_P(RefusedImportSteps, LeaveEverythingUnderOneNameAndTell) {
  FakeSettingsStore finished = store_;
  RunOn(finished);
  const StoredValues old = ValuesOf(store_, kOld);
  const StoredValues complete = Taken(finished);
  // A deletion that fails leaves its value and stops no other.
  const int mostLeft = GetParam() == Refusal::kOne ? 1 : 0;
  int untold = 0;
  int told = 0;
  for (int writes = 0; writes < 150; ++writes) {
    FakeSettingsStore store = store_;
    store.RefuseAfterWrites(writes, GetParam());
    const std::string text = ToldOfImport(store);
    const bool refused = !text.empty();
    ASSERT_EQ(text, refused ? "Permission denied" : "") << "refused after " << writes << " writes";
    const bool lost = Taken(store) != complete && ValuesOf(store, kOld) != old;
    ASSERT_FALSE(lost) << "refused after " << writes << " writes";
    ASSERT_TRUE(refused || Taken(store) == complete) << "refused after " << writes << " writes";
    store.RefuseNothing();
    Settings(store, kWork).FinishInterruptedSave();
    const bool none = ValuesOf(store, kWork).empty() && ValuesOf(store, kOld) == old;
    const bool all = Taken(store) == complete && LeftOfOld(store) <= mostLeft;
    ASSERT_TRUE((refused && none) || all) << "refused after " << writes << " writes";
    ++(refused ? told : untold);
  }
  if (GetParam() == Refusal::kDeletions) {
    EXPECT_EQ(told, 0);
  } else {
    EXPECT_GT(told, 40);
  }
  EXPECT_GT(untold, 0);
}

std::string RefusalName(const testing::TestParamInfo<Refusal>& test) {
  const char* const names[] = {"OfOne", "OfAll", "OfSaves", "OfDeletions"};
  return names[static_cast<int>(test.param)];
}

INSTANTIATE_TEST_SUITE_P(Writes, RefusedImportSteps,
                         testing::Values(Refusal::kOne, Refusal::kAll, Refusal::kSaves,
                                         Refusal::kDeletions),
                         RefusalName);

}  // namespace
}  // namespace korvale
