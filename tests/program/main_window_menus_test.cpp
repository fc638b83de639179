#include <string>
#include <vector>

#include "tests/program/main_window_test.h"

namespace korvale {
namespace {

/// The menus as they are drawn; an access key stands in parentheses behind its caption.
class MainWindowMenusTest : public MainWindowTest {
 protected:
  using Lines = std::vector<std::string>;

  static Lines Drawn(const std::vector<ShownMenuItem>& items) {
    Lines lines;
    for (const ShownMenuItem& item : items) {
      lines.push_back(item.accessKey.empty() ? item.caption
                                             : item.caption + " (" + item.accessKey + ")");
    }
    return lines;
  }
  static Lines MenuOf(KorvaleCopy& copy, const std::vector<std::string>& path) {
    return Drawn(copy.user.MenuItems(copy.Handle(), path));
  }
};

TEST_F(MainWindowMenusTest, TheMenuBarStandsInItsOrder) {
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(Drawn(korvale.user.MenuBarItems(korvale.Handle())),
            (Lines{"File (F)", "View (V)", "Tools (T)", "Window (W)", "Help (H)"}));
}

TEST_F(MainWindowMenusTest, TheFileMenuHasExitAlone) {
  EXPECT_EQ(MenuOf(StartedCopy(), {"File"}), Lines{"Exit (x)"});
}

TEST_F(MainWindowMenusTest, TheViewMenuStandsInItsOrder) {
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(MenuOf(korvale, {"View"}),
            (Lines{"Menu (M)", "Target Window (T)", "-", "Customize Colors - C (C)",
                   "Default Settings (D)", "-", "Options... (p)"}));
  EXPECT_EQ(MenuOf(korvale, {"View", "Default Settings"}), Lines{"Target Window/Class Colors (T)"});
}

TEST_F(MainWindowMenusTest, TheToolsMenuStandsInItsOrder) {
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(MenuOf(korvale, {"Tools"}), (Lines{"Deactivate Hot Keys (H)", "Options... (O)"}));
  PressHotKey(0, win32::kVkPause);
  EXPECT_EQ(MenuOf(korvale, {"Tools"}), (Lines{"Activate Hot Keys (H)", "Options... (O)"}));
}

TEST_F(MainWindowMenusTest, TheHelpMenuStandsInItsOrder) {
  EXPECT_EQ(MenuOf(StartedCopy(), {"Help"}),
            (Lines{"Display Tip Messages (D)", "-", "web:  Help (H)", "web:  Korvale Home Page (P)",
                   "web:  Readme (R)", "-", "About Korvale (A)"}));
}

}  // namespace
}  // namespace korvale
