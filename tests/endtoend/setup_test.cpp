#include "tests/endtoend/setup_test.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

#include "tests/endtoend/harness/environment.h"
#include "tests/endtoend/harness/text.h"

namespace korvale::endtoend {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

void SetupTest::SetUp() {
  if (SetupProgram().empty()) GTEST_SKIP() << "KORVALE_SETUP names no setup program";
}

void SetupTest::Use(const Installed& place) {
  place.MarkAsUsed();
  korvale_.emplace(installation_, OtherPath{"installed", place.folder()});
  if (!InFront(main())) throw std::runtime_error("the main window is not in front");
}

Window SetupTest::TagNew(const char* title, int tag) {
  const Window window = WorkInNew(title);
  const AddWindowDialog dialog = OpenAddWindow();
  EXPECT_TRUE(dialog.SelectTag(tag));
  EXPECT_TRUE(dialog.Confirm());
  EXPECT_TRUE(InFront(main()));
  return window;
}

AssertionResult SetupTest::Closed() {
  if (korvale_->process().WaitForExit() == 0U) return AssertionSuccess();
  return AssertionFailure() << "the copy still runs or did not end with code 0";
}

namespace {

namespace fs = std::filesystem;

/// The folder in which copies record errors when they cannot write into their own, with a record
/// and a dump.
class ErrorsElsewhere {
 public:
  ErrorsElsewhere() {
    if (!fs::create_directory(folder_)) {
      throw std::runtime_error("the user's own errors are in " + folder_.string());
    }
    for (const char* const file : {"Error.log", "Korvale 2026-01-31 09.05.07.dmp"}) {
      std::ofstream(folder_ / file) << "error";
    }
  }
  ErrorsElsewhere(const ErrorsElsewhere&) = delete;
  ErrorsElsewhere& operator=(const ErrorsElsewhere&) = delete;
  ~ErrorsElsewhere() { fs::remove_all(folder_); }

  void Put(const char* file) const { std::ofstream(folder_ / file) << "mine"; }

  std::set<std::string> Files() const {
    std::set<std::string> files;
    if (!fs::exists(folder_)) return files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
      files.insert(entry.path().filename().string());
    }
    return files;
  }

  bool Gone() const { return !fs::exists(folder_); }

 private:
  fs::path folder_ = fs::path(Wide(Environment(L"LOCALAPPDATA"))) / "Korvale";
};

/// What the register of all installations knows.
std::map<std::string, std::string> Registered() {
  return StoredSettings("Korvale Installations").Section("0");
}

using SilentSetup = SetupTest;

TEST_F(SilentSetup, InstallsForTheUserUnderTheNameOfTheFolder) {
  const Installed work;
  ASSERT_EQ(work.Install(), 0U);
  for (const char* const file : {"Korvale.exe", "README.txt", "LICENSE.txt", "web\\help.html"}) {
    EXPECT_TRUE(work.Has(file)) << file;
  }
  const std::string folder = work.folder().substr(0, work.folder().size() - 1);
  std::map<std::string, std::string> entry = work.Entry();
  EXPECT_GT(std::stoi(entry["EstimatedSize"]), 400);
  entry.erase("EstimatedSize");
  EXPECT_EQ(entry, (std::map<std::string, std::string>{
                       {"DisplayName", "Korvale - Work"},
                       {"DisplayVersion", KORVALE_VERSION},
                       {"DisplayIcon", work.program()},
                       {"Publisher", "The Korvale developers"},
                       {"InstallLocation", folder},
                       {"UninstallString", Quoted(folder + "\\Uninstall.exe")},
                       {"QuietUninstallString", Quoted(folder + "\\Uninstall.exe") + " /S"}}));
  EXPECT_TRUE(work.HasShortcut());
  EXPECT_EQ(work.StartedWithWindows(), "");
  EXPECT_FALSE(work.Runs());
  Use(work);
  EXPECT_EQ(main().Title(), "Korvale - Work");
}

TEST_F(SilentSetup, UpdatesARunningCopyThatKeepsItsTagsAndOptions) {
  const Installed work;
  ASSERT_EQ(work.Install(OlderSetupProgram()), 0U);
  EXPECT_EQ(work.Entry()["DisplayVersion"], "0.9.0");
  ASSERT_TRUE(work.Has("web\\older.html"));
  work.settings().Set("Options", "HotKeyModParent", "2");
  Use(work);
  const Window alpha = TagNew("Alpha", 3);
  ASSERT_EQ(work.Install(), 0U);
  EXPECT_TRUE(Closed());
  EXPECT_EQ(work.Entry()["DisplayVersion"], KORVALE_VERSION);
  EXPECT_FALSE(work.Has("web\\older.html"));
  EXPECT_TRUE(work.Has("web\\help.html"));
  const Window again = work.Main();
  ASSERT_TRUE(InFront(again));
  EXPECT_NE(again.ProcessId(), korvale_->process().id());
  Press({MOD_CONTROL, '3'});
  EXPECT_TRUE(InFront(alpha));
  EXPECT_EQ(work.settings().Get("Options", "HotKeyModParent"), "2");
}

TEST_F(SilentSetup, StartsNoCopyThatDidNotRun) {
  const Installed work;
  ASSERT_EQ(work.Install(OlderSetupProgram()), 0U);
  ASSERT_EQ(work.Install(), 0U);
  EXPECT_TRUE(HoldsFor([&] { return !work.Runs(); }));
}

TEST_F(SilentSetup, InASecondFolderMakesASecondInstallation) {
  const Installed work("Work");
  const Installed play("Игра & 遊び");
  ASSERT_EQ(work.Install(), 0U);
  ASSERT_EQ(play.Install(), 0U);
  EXPECT_EQ(play.Entry()["DisplayName"], "Korvale - Игра & 遊び");
  EXPECT_TRUE(play.HasShortcut());
  ASSERT_TRUE(play.Remove());
  EXPECT_FALSE(play.HasShortcut());
  EXPECT_TRUE(play.Gone());
  EXPECT_TRUE(work.HasShortcut());
  EXPECT_EQ(work.Entry()["DisplayName"], "Korvale - Work");
  EXPECT_TRUE(work.Has("Korvale.exe"));
}

TEST_F(SilentSetup, FindsTheInstallationNamedKorvaleByItself) {
  const Installed korvale("Korvale");
  ASSERT_EQ(korvale.Install(OlderSetupProgram()), 0U);
  EXPECT_EQ(korvale.Entry()["DisplayName"], "Korvale");
  EXPECT_TRUE(korvale.HasShortcut());
  const AsWindows10 supported(SetupProgram());
  EXPECT_EQ(Process(Quoted(SetupProgram()) + " /S").WaitForExit(), 0U);
  EXPECT_EQ(korvale.Entry()["DisplayVersion"], KORVALE_VERSION);
  EXPECT_EQ(korvale.Entry()["DisplayIcon"], korvale.program());
}

TEST_F(SilentSetup, UpdatesByEveryPathToTheFolder) {
  const Installed place("Folder With A Long Name");
  ASSERT_EQ(place.Install(OlderSetupProgram()), 0U);
  const AsWindows10 supported(SetupProgram());
  const OtherPaths paths(place.folder());
  for (const OtherPath& path : paths.All()) {
    if (path.what != "capitals" && path.what != "short names") continue;
    SCOPED_TRACE(path.what);
    EXPECT_EQ(Process(Quoted(SetupProgram()) + " /S /D=" + path.folder).WaitForExit(), 0U);
    EXPECT_EQ(place.Entry()["DisplayName"], "Korvale - Folder With A Long Name");
    EXPECT_EQ(place.Entry()["DisplayVersion"], KORVALE_VERSION);
  }
}

TEST_F(SilentSetup, RefusesASecondFolderOfTheSameName) {
  const Installed work;
  const Installed twin;
  ASSERT_EQ(work.Install(), 0U);
  EXPECT_EQ(twin.Install(), 2U);
  EXPECT_TRUE(twin.Gone());
  EXPECT_EQ(work.Entry()["DisplayIcon"], work.program());
}

TEST_F(SilentSetup, LeavesTheFilesOfOthersAlone) {
  const Installed work;
  work.Put("web\\help.html", "mine");
  EXPECT_EQ(work.Install(), 2U);
  EXPECT_EQ(work.Read("web\\help.html"), "mine");
  const Installed play("Play");
  play.Put("notes.txt", "mine");
  play.Put("Korvale.exe", "unpacked");
  ASSERT_EQ(play.Install(), 0U);
  play.Put("web\\notes.txt", "mine");
  ASSERT_TRUE(play.Remove());
  EXPECT_EQ(play.Read("notes.txt"), "mine");
  EXPECT_EQ(play.Read("web\\notes.txt"), "mine");
  EXPECT_FALSE(play.Has("Korvale.exe"));
  EXPECT_FALSE(play.Has("web\\help.html"));
}

TEST_F(SilentSetup, RefusesAWindowsThatIsTooOld) {
  if (!RunsUnderWine()) GTEST_SKIP() << "Windows does not pretend to be another one";
  const Installed work;
  // Wine says that it is Windows 7.
  EXPECT_EQ(Process(Quoted(SetupProgram()) + " /S /D=" + work.folder()).WaitForExit(), 2U);
  EXPECT_TRUE(work.Gone());
}

TEST_F(SilentSetup, KeepsTheSettingsOfWhatItRemoves) {
  const Installed work;
  ASSERT_EQ(work.Install(), 0U);
  Use(work);
  TagNew("Alpha", 3);
  work.Put("Error.log", "");
  const ErrorsElsewhere errors;
  ASSERT_TRUE(work.Remove());
  EXPECT_EQ(errors.Files().size(), 2U);
  EXPECT_TRUE(Closed());
  EXPECT_TRUE(work.Gone());
  EXPECT_FALSE(work.HasShortcut());
  EXPECT_EQ(work.settings().Get("ParentWindowList", "3"), "&3  Alpha");
  EXPECT_NE(work.RegisteredFolder(), std::nullopt);
}

TEST_F(SilentSetup, RemovesOnlyItsOwnSettingsWhenAskedTo) {
  const Installed work("Work");
  const Installed play("Play");
  ASSERT_EQ(work.Install(), 0U);
  Use(work);
  ASSERT_TRUE(Exit());
  play.settings().Set("Options", "SplashScreen", "False");
  StoredSettings("Korvale Installations").Set("0", play.name(), play.folder());
  const ErrorsElsewhere errors;
  ASSERT_TRUE(work.Remove(" /SETTINGS"));
  EXPECT_EQ(errors.Files().size(), 2U);
  EXPECT_EQ(work.settings().Sections(), std::vector<std::string>());
  EXPECT_EQ(work.RegisteredFolder(), std::nullopt);
  EXPECT_EQ(play.settings().Get("Options", "SplashScreen"), "False");
  EXPECT_EQ(play.RegisteredFolder(), play.folder());
}

TEST_F(SilentSetup, RemovesWithTheLastSettingsTheErrorsRecordedElsewhere) {
  if (!Registered().empty()) GTEST_SKIP() << "the user has Korvale installed";
  const Installed work;
  ASSERT_EQ(work.Install(), 0U);
  Use(work);
  ASSERT_TRUE(Exit());
  const ErrorsElsewhere errors;
  ASSERT_TRUE(work.Remove(" /SETTINGS"));
  EXPECT_TRUE(errors.Gone());
  EXPECT_EQ(Registered(), (std::map<std::string, std::string>()));
}

TEST_F(SilentSetup, LeavesTheFilesOfOthersWhereErrorsAreRecorded) {
  if (!Registered().empty()) GTEST_SKIP() << "the user has Korvale installed";
  const Installed work;
  ASSERT_EQ(work.Install(), 0U);
  const ErrorsElsewhere errors;
  errors.Put("notes.txt");
  ASSERT_TRUE(work.Remove(" /SETTINGS"));
  EXPECT_EQ(errors.Files(), std::set<std::string>{"notes.txt"});
}

TEST_F(SilentSetup, KeepsTheSettingsOfAnInstallationThatHasMoved) {
  const Installed work;
  const Installed moved;
  ASSERT_EQ(work.Install(), 0U);
  moved.Put("Korvale.exe", "moved");
  moved.settings().Set("Options", "SplashScreen", "False");
  StoredSettings("Korvale Installations").Set("0", moved.name(), moved.folder());
  const ErrorsElsewhere errors;
  ASSERT_TRUE(work.Remove(" /SETTINGS"));
  EXPECT_EQ(errors.Files().size(), 2U);
  EXPECT_EQ(moved.settings().Get("Options", "SplashScreen"), "False");
  EXPECT_EQ(moved.RegisteredFolder(), moved.folder());
}

}  // namespace
}  // namespace korvale::endtoend
