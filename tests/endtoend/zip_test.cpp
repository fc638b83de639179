#include <filesystem>
#include <string>
#include <system_error>

#include "tests/endtoend/harness/environment.h"
#include "tests/endtoend/harness/installed.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/harness/wait.h"
#include "tests/endtoend/store_test.h"

namespace korvale::endtoend {
namespace {

namespace fs = std::filesystem;

/// Folders that the zip was unpacked into, as script/test does it.
class Zip : public StoreTest {
 protected:
  void SetUp() override {
    if (Unpacked().empty()) GTEST_SKIP() << "KORVALE_UNPACKED names no unpacked zip";
  }

  static std::string Unpacked() { return Environment(L"KORVALE_UNPACKED"); }

  /// Unpacks into that place and name, over what is there already.
  static void UnpackTo(const Installed& place) {
    const fs::path zip(Wide(Unpacked() + "\\Korvale\\"));
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(zip)) {
      if (entry.is_directory()) continue;
      const fs::path to = Wide(place.folder()) / entry.path().lexically_relative(zip);
      fs::create_directories(to.parent_path());
      // MinGW-w64's fs::copy overwrites nothing. A program that ended a moment ago may hold its
      // file.
      EXPECT_TRUE(WaitFor([&] { return CopyFileW(entry.path().c_str(), to.c_str(), FALSE) != 0; }));
    }
  }

  static void MoveTo(const Installed& place) {
    UnpackTo(place);
    place.MarkAsUsed();
  }

  /// Deletes the folder and the registry key, as README.txt tells.
  static void Delete(const Installed& place) {
    std::error_code ignored;
    WaitFor([&] { return fs::remove_all(fs::path(Wide(place.folder())), ignored) == 0U; });
    place.settings().DeleteAll();
  }

  void StartIn(const Installed& place) {
    korvale_.emplace(installation_, OtherPath{"unpacked", place.folder()});
  }

  /// Starts the copy in that place, gives the window Tag 3, and ends the copy.
  void TagWithTheCopyIn(const Installed& place, Window window, Chord tag_key = TagKey(3)) {
    StartIn(place);
    ASSERT_TRUE(InFront(main()));
    EXPECT_EQ(main().Title(), place.name());
    ASSERT_TRUE(WorkIn(window));
    const AddWindowDialog dialog = OpenAddWindow();
    ASSERT_TRUE(dialog.SelectTag(3));
    ASSERT_TRUE(dialog.Confirm());
    ASSERT_TRUE(InFront(main()));
    Press(tag_key);
    EXPECT_TRUE(InFront(window));
    ASSERT_TRUE(Exit());
  }
};

TEST_F(Zip, HasWhatAUserNeeds) {
  const Installed place;
  MoveTo(place);
  for (const char* const file : {"Korvale.exe", "README.txt", "LICENSE.txt", "web\\help.html"}) {
    EXPECT_TRUE(place.Has(file)) << file;
  }
  EXPECT_TRUE(place.Read("README.txt").starts_with("Korvale " KORVALE_VERSION "\r\n"));
  EXPECT_TRUE(place.Read("LICENSE.txt").starts_with("MIT License\r\n"));
}

TEST_F(Zip, UnpackedIntoTwoFoldersIsTwoInstallations) {
  const Installed work("Work");
  const Installed play("Play");
  MoveTo(work);
  MoveTo(play);
  ASSERT_NO_FATAL_FAILURE(TagWithTheCopyIn(work, Open("Alpha")));
  ASSERT_NO_FATAL_FAILURE(TagWithTheCopyIn(play, Open("Beta")));
  EXPECT_EQ(work.settings().Get("ParentWindowList", "3"), "&3  Alpha");
  EXPECT_EQ(play.settings().Get("ParentWindowList", "3"), "&3  Beta");
  EXPECT_EQ(work.RegisteredFolder().value_or("") + "\\", work.folder());
  EXPECT_EQ(play.RegisteredFolder().value_or("") + "\\", play.folder());
}

TEST_F(Zip, UnpackedOverAnOlderCopyKeepsItsTagsAndOptions) {
  const Installed work;
  const Chord control_3{MOD_CONTROL, '3'};
  MoveTo(work);
  const std::string newer = work.Read("Korvale.exe");
  work.Put("Korvale.exe", newer + "older");
  work.Put("README.txt", "older");
  work.Put("web\\help.html", "older");
  work.settings().Set("Options", "HotKeyModParent", "2");
  const Window alpha = Open("Alpha");
  ASSERT_NO_FATAL_FAILURE(TagWithTheCopyIn(work, alpha, control_3));
  UnpackTo(work);
  EXPECT_TRUE(work.Read("Korvale.exe") == newer);
  EXPECT_NE(work.Read("README.txt"), "older");
  EXPECT_NE(work.Read("web\\help.html"), "older");
  StartIn(work);
  ASSERT_TRUE(InFront(main()));
  Press(control_3);
  EXPECT_TRUE(InFront(alpha));
  EXPECT_EQ(work.settings().Get("Options", "HotKeyModParent"), "2");
  EXPECT_EQ(work.settings().Get("ParentWindowList", "3"), "&3  Alpha");
}

TEST_F(Zip, DeletedWithItsSettingsAndUnpackedAgainStartsForTheFirstTime) {
  const Installed work;
  MoveTo(work);
  ASSERT_NO_FATAL_FAILURE(TagWithTheCopyIn(work, Open("Alpha")));
  Delete(work);
  ASSERT_TRUE(work.Gone());
  UnpackTo(work);
  StartIn(work);
  const Window question = ReviewQuestion();
  ASSERT_TRUE(question);
  EXPECT_EQ(work.settings().Section("Options"), Defaults("Options"));
  EXPECT_EQ(work.settings().Section("ParentWindowList"), Pairs());
  ASSERT_TRUE(AnswerBox(question, IDNO));
  EXPECT_TRUE(InFront(main()));
}

}  // namespace
}  // namespace korvale::endtoend
