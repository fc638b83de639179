#include <string>
#include <vector>

#include "tests/program/main_window_test.h"

namespace korvale {
namespace {

/// The menus as a screen reader says them: caption, (access key), state.
class MainWindowMenusTest : public MainWindowTest {
 protected:
  using Lines = std::vector<std::string>;

  static Lines Drawn(const std::vector<ShownMenuItem>& items) {
    Lines lines;
    for (const ShownMenuItem& item : items) {
      std::string line = item.caption;
      if (!item.accessKey.empty()) line += " (" + item.accessKey + ")";
      if (item.checked) line += ", checked";
      if (!item.enabled) line += ", unavailable";
      lines.push_back(line);
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
            (Lines{"Menu (M), checked", "Target Window (T), checked", "-",
                   "Customize Colors - C (C)", "Default Settings (D)", "-", "Options... (p)"}));
  EXPECT_EQ(MenuOf(korvale, {"View", "Default Settings"}), Lines{"Target Window/Class Colors (T)"});
}

TEST_F(MainWindowMenusTest, TheToolsMenuStandsInItsOrder) {
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(MenuOf(korvale, {"Tools"}), (Lines{"Deactivate Hot Keys (H)", "Options... (O)"}));
  PressHotKey(0, win32::kVkPause);
  EXPECT_EQ(MenuOf(korvale, {"Tools"}), (Lines{"Activate Hot Keys (H)", "Options... (O)"}));
}

TEST_F(MainWindowMenusTest, TheWindowMenuSaysWhatIsOnAndWhatCannotBeChosen) {
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(
      MenuOf(korvale, {"Window"}),
      (Lines{"Korvale  Always On Top (O)", "[]  Always On Top (T), unavailable", "-",
             "Minimize All (M)", "Restore All (R)", "-", "0  Previous Window (0), unavailable", "-",
             "Add  Korvale  to Window menu... (u)",
             "Add  []  to Window menu... (W), unavailable"}));
  WorkIn(Open("Alpha"));
  Choose(korvale, {"Window", "[Alpha]  Always On Top"});
  EXPECT_EQ(MenuOf(korvale, {"Window"}),
            (Lines{"Korvale  Always On Top (O)", "[Alpha]  Always On Top (T), checked", "-",
                   "Minimize All (M)", "Restore All (R)", "-", "0  Previous Window (0)", "-",
                   "Add  Korvale  to Window menu... (u)", "Add  [Alpha]  to Window menu... (W)"}));
}

TEST_F(MainWindowMenusTest, TheHelpMenuStandsInItsOrder) {
  EXPECT_EQ(MenuOf(StartedCopy(), {"Help"}),
            (Lines{"Display Tip Messages (D), checked", "-", "web:  Help (H)",
                   "web:  Korvale Home Page (P)", "web:  Readme (R)", "-", "About Korvale (A)"}));
}

TEST_F(MainWindowMenusTest, DefaultColorsGoToTheFieldsAndTheStore) {
  Store("WI1BackColor", "255");
  Store("WI2BackColor", "65280");
  KorvaleCopy& korvale = StartedCopy();
  Choose(korvale, {"View", "Default Settings", "Target Window/Class Colors"});
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0x9FFFFF);
  EXPECT_EQ(ColorOf(korvale, "txtWindowClass"), 0xAEFFAE);
  EXPECT_EQ(Stored("WI1BackColor"), "10485759");
  EXPECT_EQ(Stored("WI2BackColor"), "11468718");
}

}  // namespace
}  // namespace korvale
