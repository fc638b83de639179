#include <filesystem>

#include "tests/endtoend/harness/environment.h"
#include "tests/endtoend/harness/installed.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

namespace fs = std::filesystem;

/// Folders that the zip was unpacked into, as script/test does it.
class Zip : public KorvaleTest {
 protected:
  void SetUp() override {
    if (Unpacked().empty()) GTEST_SKIP() << "KORVALE_UNPACKED names no unpacked zip";
  }

  static std::string Unpacked() { return Environment(L"KORVALE_UNPACKED"); }

  /// Gives the zip's only folder another place and name, as a user does.
  static void MoveTo(const Installed& place) {
    fs::copy(fs::path(Wide(Unpacked() + "\\Korvale")), fs::path(Wide(place.folder())),
             fs::copy_options::recursive);
    place.MarkAsUsed();
  }

  /// Starts the copy in that place, tags a window there, and ends the copy.
  void TagWithTheCopyIn(const Installed& place, const char* title) {
    korvale_.emplace(installation_, OtherPath{"unpacked", place.folder()});
    ASSERT_TRUE(InFront(main()));
    EXPECT_EQ(main().Title(), place.name());
    const Window window = WorkInNew(title);
    const AddWindowDialog dialog = OpenAddWindow();
    ASSERT_TRUE(dialog.SelectTag(3));
    ASSERT_TRUE(dialog.Confirm());
    ASSERT_TRUE(InFront(main()));
    Press(TagKey(3));
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
  ASSERT_NO_FATAL_FAILURE(TagWithTheCopyIn(work, "Alpha"));
  ASSERT_NO_FATAL_FAILURE(TagWithTheCopyIn(play, "Beta"));
  EXPECT_EQ(work.settings().Get("ParentWindowList", "3"), "&3  Alpha");
  EXPECT_EQ(play.settings().Get("ParentWindowList", "3"), "&3  Beta");
  EXPECT_EQ(work.RegisteredFolder().value_or("") + "\\", work.folder());
  EXPECT_EQ(play.RegisteredFolder().value_or("") + "\\", play.folder());
}

}  // namespace
}  // namespace korvale::endtoend
