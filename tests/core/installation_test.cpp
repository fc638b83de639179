#include "tests/core/installation_test.h"

#include <optional>
#include <string>
#include <vector>

#include "platform/run_time_error.h"
#include "tests/core/stored_values.h"

namespace korvale {
namespace {

TEST_F(InstallationTest, FirstRunIsSeenAndRegistered) {
  const InstallationResult result = Run();
  EXPECT_TRUE(result.firstRun);
  EXPECT_FALSE(result.mustEnd);
  EXPECT_EQ(result.lastAnswer, 0);
  EXPECT_EQ(Registered(kWork), "D:\\Tools\\Work");
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(InstallationTest, LaterRunIsNoFirstRun) {
  StoreSettings(store_, kWork);
  Register(store_, kWork, "D:\\Tools\\Work");
  EXPECT_FALSE(Run().firstRun);
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(InstallationTest, FolderNameOfALivingInstallationIsTaken) {
  system_.files.insert("C:\\Other\\WORK\\Korvale.exe");
  Register(store_, "Korvale - WORK", "C:\\Other\\WORK");
  const StoredValues before = AllValues(store_);
  EXPECT_TRUE(Run().mustEnd);
  EXPECT_EQ(messages_.shown,
            (std::vector<ShownMessageBox>{
                {"An installation in a folder named 'Work' already exists.  Korvale does not "
                 "support two installations with the same folder name.  Please rename the folder "
                 "then re-run Korvale.",
                 0, "Korvale"}}));
  EXPECT_EQ(AllValues(store_), before);
}

TEST_F(InstallationTest, FolderThatWasMovedKeepsItsSettings) {
  StoreSettings(store_, kWork);
  Register(store_, kWork, "C:\\Other\\Work");
  const InstallationResult result = Run();
  EXPECT_FALSE(result.mustEnd);
  EXPECT_FALSE(result.firstRun);
  EXPECT_EQ(Registered(kWork), "D:\\Tools\\Work");
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(InstallationTest, OwnFolderInAnotherSpellingIsNoOtherInstallation) {
  Register(store_, kWork, "d:\\TOOLS\\work\\");
  EXPECT_FALSE(Run().mustEnd);
}

TEST_F(InstallationTest, OwnFolderUnderAnotherPathIsNoOtherInstallation) {
  system_.links = {{"C:\\Junction", "D:\\Tools"}};
  system_.shares = {{"\\\\server\\tools", "D:\\Tools"}};
  StoreSettings(store_, kWork);
  for (const char* folder :
       {"C:\\Junction\\Work", "\\\\server\\tools\\Work", "\\\\?\\D:\\Tools\\Work"}) {
    Register(store_, kWork, folder);
    EXPECT_FALSE(Run().mustEnd) << folder;
    EXPECT_EQ(Registered(kWork), "D:\\Tools\\Work");
  }
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(InstallationTest, StartUnderAnotherPathIsTheSameInstallation) {
  StoreSettings(store_, kWork);
  Register(store_, kWork, "D:\\Tools\\Work");
  system_.links = {{"W:", "D:\\Tools\\Work"}};
  system_.executablePath = "W:\\Korvale.exe";
  identity_ = ReadProgramIdentity(system_);
  EXPECT_FALSE(Run().firstRun);
  EXPECT_EQ(Registered(kWork), "D:\\Tools\\Work");
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(InstallationTest, SettingsOfAFolderThatIsAwayAreNotOffered) {
  constexpr std::uint32_t kNotReady = 21;
  constexpr std::uint32_t kBadNetPath = 53;
  StoreSettings(store_, kOld);
  system_.unreachable = {{"E:", kNotReady}, {"\\\\server", kBadNetPath}};
  for (const char* folder : {"E:\\Old", "Q:\\Old", "\\\\server\\tools\\Old"}) {
    Register(store_, kOld, folder);
    EXPECT_EQ(Run().lastAnswer, 0) << folder;
    EXPECT_EQ(Registered(kOld), folder);
  }
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(InstallationTest, SettingsOfTheOwnFolderUnderAnotherNameAreOffered) {
  StoreSettings(store_, "Korvale - WORK~1");
  system_.links = {{"D:\\TOOLS\\WORK~1", "D:\\Tools\\Work"}};
  Register(store_, "Korvale - WORK~1", "D:\\TOOLS\\WORK~1");
  messages_.answers = {kYes};
  EXPECT_EQ(Run().lastAnswer, kYes);
  EXPECT_EQ(Registered("Korvale - WORK~1"), std::nullopt);
}

/// The folder was D:\Tools\Old before.
class RenamedInstallationTest : public InstallationTest {
 protected:
  RenamedInstallationTest() {
    StoreSettings(store_, kOld);
    Register(store_, kOld, "D:\\Tools\\Old");
  }
};

TEST_F(RenamedInstallationTest, ImportThatIsRefusedAValueLeavesTheOtherInstallationAsItIs) {
  const StoredValues old = ValuesOf(store_, kOld);
  store_.RefuseValue(kWork, "Startup", "Tips");
  messages_.answers = {kYes};
  EXPECT_THROW(Run(), RunTimeError);
  EXPECT_EQ(ValuesOf(store_, kOld), old);
  EXPECT_EQ(Registered(kOld), "D:\\Tools\\Old");

  store_.RefuseNothing();
  Settings(store_, kWork).FinishInterruptedSave();
  EXPECT_EQ(store_.GetSetting(kWork, "Startup", "Tips"), "11");
  EXPECT_EQ(ValuesOf(store_, kOld), StoredValues());
  EXPECT_EQ(Registered(kOld), std::nullopt);
}

TEST_F(InstallationTest, RootOfADriveIsAnInstallation) {
  StartFrom("C:\\");
  EXPECT_TRUE(Run().firstRun);
  EXPECT_EQ(Registered("Korvale - C:"), "C:");
  EXPECT_FALSE(Run().mustEnd);
}

TEST_F(RenamedInstallationTest, SettingsOfARenamedFolderAreOffered) {
  messages_.answers = {kNo};
  std::optional<std::string> registered;
  messages_.whileShown = [&](const ShownMessageBox& /*box*/) { registered = Registered(kWork); };
  const InstallationResult result = Run();
  EXPECT_EQ(registered, "D:\\Tools\\Work") << "recorded before the question";
  EXPECT_EQ(messages_.shown,
            (std::vector<ShownMessageBox>{
                {"Do you want to import common settings and options from Korvale - Old into this "
                 "installation of Korvale ?",
                 4, "Korvale"}}));
  EXPECT_EQ(result.lastAnswer, kNo);
  EXPECT_EQ(result.takeOverFrom, "");
  EXPECT_TRUE(result.firstRun);
}

TEST_F(RenamedInstallationTest, NoLeavesBothInstallationsAlone) {
  StoredValues expected = AllValues(store_);
  expected["Korvale Installations/0/Korvale - Work"] = "D:\\Tools\\Work";
  messages_.answers = {kNo};
  Run();
  EXPECT_EQ(AllValues(store_), expected);
}

TEST_F(RenamedInstallationTest, YesTakesTheSettingsOverAndRemovesTheOtherInstallation) {
  messages_.answers = {kYes};
  const InstallationResult result = Run();
  EXPECT_TRUE(result.firstRun);
  EXPECT_EQ(result.lastAnswer, kYes);
  EXPECT_EQ(result.takeOverFrom, kOld);
  EXPECT_EQ(Registered(kOld), std::nullopt);
  EXPECT_EQ(Registered(kWork), "D:\\Tools\\Work");
  EXPECT_EQ(ValuesOf(store_, kOld), StoredValues());
  Settings settings(store_, kWork);
  clsOptions options;
  settings.LoadOptions(options);
  EXPECT_EQ(options.intHotKeyModParent, 2);
  EXPECT_EQ(settings.LoadTagList(),
            (StoredTagList{{1, "&1  Mail", ""}, {4, "&4  *** - Notepad", "Notepad"}}));
  EXPECT_EQ(taken_.options, options);
  EXPECT_EQ(taken_.tags, settings.LoadTagList());
  EXPECT_EQ(settings.LoadStartup().Tips, "11");
  EXPECT_FALSE(settings.LoadStartup().Menu);
}

TEST_F(RenamedInstallationTest, PlacementIsNotTakenOver) {
  messages_.answers = {kYes};
  Run();
  for (const char* key : {"WindowState", "Left", "Top", "Width", "Height", "DisplayTips"}) {
    EXPECT_EQ(store_.GetSetting(kWork, "Startup", key), std::nullopt) << key;
  }
  EXPECT_EQ(store_.GetAllSettings(kWork, "Startup").size(), 8U);
  StartupSettings expected;
  expected.Tips = "11";
  expected.Menu = false;
  EXPECT_EQ(taken_.startup, expected);
}

TEST_F(RenamedInstallationTest, LivingInstallationNeverLosesItsSettings) {
  system_.files.insert("D:\\Tools\\Old\\Korvale.exe");
  const StoredValues old = ValuesOf(store_, kOld);
  EXPECT_EQ(Run().lastAnswer, 0);
  EXPECT_TRUE(messages_.shown.empty());
  EXPECT_EQ(ValuesOf(store_, kOld), old);
  EXPECT_EQ(Registered(kOld), "D:\\Tools\\Old");
}

TEST_F(InstallationTest, InstallationWithoutSettingsIsNotOffered) {
  Register(store_, kOld, "D:\\Tools\\Old");
  Register(store_, "", "D:\\Tools\\Older");
  StoreSettings(store_, "");
  Run();
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(InstallationTest, InstallationWithSettingsOfItsOwnIsOfferedNothing) {
  StoreSettings(store_, kWork);
  StoreSettings(store_, kOld);
  Register(store_, kOld, "D:\\Tools\\Old");
  Run();
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(InstallationTest, FirstOfSeveralInTheRegisterIsOffered) {
  for (const char* name : {"Korvale - Empty", "Korvale - B", "Korvale - A"}) {
    Register(store_, name, std::string("D:\\") + name);
  }
  StoreSettings(store_, "Korvale - A");
  StoreSettings(store_, "Korvale - B");
  const auto registered = store_.GetAllSettings("Korvale Installations", "0");
  ASSERT_EQ(registered.size(), 3U);
  std::string first;
  for (const auto& [name, folder] : registered) {
    if (first.empty() && name != "Korvale - Empty") first = name;
  }
  messages_.answers = {kNo};
  Run();
  ASSERT_EQ(messages_.shown.size(), 1U);
  EXPECT_NE(messages_.shown[0].prompt.find("options from " + first + " into"), std::string::npos);
}

TEST_F(InstallationTest, GarbageInTheRegisterDoesNoHarm) {
  Register(store_, "\xff\xfe", "");
  StoreSettings(store_, "\xff\xfe");
  Register(store_, "Korvale - Odd", "\\\\\\");
  Register(store_, "x", "Work");
  EXPECT_FALSE(Run().mustEnd);
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(RenamedInstallationTest, KilledImportLeavesTheSettingsWhollyUnderOneName) {
  FakeSettingsStore finished = store_;
  const StoredValues initial = AllValues(finished);
  Register(finished, kWork, "D:\\Tools\\Work");
  const StoredValues registered = AllValues(finished);
  messages_.answers = {kYes};
  RunOn(finished);
  const StoredValues after = AllValues(finished);

  bool ended = false;
  int befores = 0;
  int afters = 0;
  for (int writes = 0; !ended; ++writes) {
    FakeSettingsStore store = store_;
    messages_.answers = {kYes};
    ended = RunsToItsEnd(store, writes, [this](SettingsStore& stopping) { RunOn(stopping); });
    Settings(store, kWork).FinishInterruptedSave();
    const StoredValues found = AllValues(store);
    const bool isBefore = found == initial || found == registered;
    ASSERT_TRUE(isBefore || found == after) << "killed after " << writes << " writes";
    ASSERT_FALSE(isBefore && afters > 0) << "killed after " << writes << " writes";
    ++(isBefore ? befores : afters);
  }
  EXPECT_GT(befores, 1);
  EXPECT_GT(afters, 1);
}

TEST_F(RenamedInstallationTest, SaveOfTheOtherInstallationIsFinishedBeforeItIsTakenOver) {
  store_.SaveSetting(kOld, "Saving", "1\\S\\Korvale - Old\\ParentWindowList\\9", "&9  Late");
  store_.SaveSetting(kOld, "Saving", "Complete", "1");
  messages_.answers = {kYes};
  Run();
  EXPECT_EQ(store_.GetSetting(kWork, "ParentWindowList", "9"), "&9  Late");
  EXPECT_EQ(ValuesOf(store_, kOld), StoredValues());
}

TEST_F(RenamedInstallationTest, WhatTheStoreRefusedTheOtherInstallationIsTakenOverWithTheRest) {
  for (const char* const journal : {"Saving", "Saving2"}) {
    FakeSettingsStore store = store_;
    store.RefuseValue(kOld, "ParentWindowList", "9");
    store.SaveSetting(kOld, journal, "1\\S\\Korvale - Old\\ParentWindowList\\9", "&9  Late");
    store.SaveSetting(kOld, journal, "Complete", "1");
    messages_.answers = {kYes};
    RunOn(store);
    EXPECT_EQ(store.GetSetting(kWork, "ParentWindowList", "9"), "&9  Late");
    EXPECT_EQ(ValuesOf(store, kOld), StoredValues());
    store.RefuseNothing();
    Settings(store, kOld).FinishInterruptedSave();
    EXPECT_EQ(ValuesOf(store, kOld), StoredValues());
  }
}

}  // namespace
}  // namespace korvale
