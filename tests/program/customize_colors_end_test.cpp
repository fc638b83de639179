#include <string>
#include <vector>

#include "tests/program/customize_colors_test.h"

namespace korvale {
namespace {

/// Customize Colors is on before each command, and must be off after it; what has changed before
/// the command must be stored after it.
class CustomizeColorsEndTest : public CustomizeColorsTest {
 protected:
  using Path = std::vector<std::string>;

  /// A started copy whose user has silenced the tips about colours and hot keys; they have come
  /// from Alpha, and Beta has Tag 1.
  KorvaleCopy& StartedAmongWindows() {
    Store("Tips", "01111111111110");
    const WindowHandle alpha = Open("Alpha");
    const WindowHandle beta = Open("Beta");
    KorvaleCopy& copy = StartedCopy();
    WorkIn(beta);
    WorkIn(copy.Handle());
    copy.TagPrevious();
    WorkIn(alpha);
    WorkIn(copy.Handle());
    return copy;
  }
  void ExpectEndedAndSavedBy(KorvaleCopy& copy, const Path& path) {
    WorkIn(copy.Handle());
    Toggle(copy);
    EXPECT_TRUE(IsOn(copy));
    EXPECT_EQ(copy.host.Pointer(), MousePointer::kCustom);
    const Color color = ++copy.Startup().LastColorSelected;
    Choose(copy, path);
    EXPECT_EQ(Stored("LastColorSelected"), std::to_string(color)) << path.back();
    EXPECT_FALSE(copy.Form().Menu("mnuViewCustomizeColors").checked) << path.back();
    EXPECT_EQ(copy.host.Pointer(), MousePointer::kDefault) << path.back();
  }
};

TEST_F(CustomizeColorsEndTest, CommandsOfTheViewMenuTurnItOffAndSave) {
  KorvaleCopy& korvale = StartedAmongWindows();
  ExpectEndedAndSavedBy(korvale, {"View", "Target Window"});
  ExpectEndedAndSavedBy(korvale, {"View", "Default Settings", "Target Window/Class Colors"});
  ExpectEndedAndSavedBy(korvale, {"View", "Options..."});
  korvale.host.AnswerNext(win32::kIdCancel);
  ExpectEndedAndSavedBy(korvale, {"View", "Menu"});
  EXPECT_TRUE(MenuIsShown(korvale));
  korvale.host.AnswerNext(win32::kIdOk);
  ExpectEndedAndSavedBy(korvale, {"View", "Menu"});
  EXPECT_FALSE(MenuIsShown(korvale));
}

TEST_F(CustomizeColorsEndTest, CommandsOfTheToolsMenuTurnItOffAndSave) {
  KorvaleCopy& korvale = StartedAmongWindows();
  ExpectEndedAndSavedBy(korvale, {"Tools", "Deactivate Hot Keys"});
  ExpectEndedAndSavedBy(korvale, {"Tools", "Activate Hot Keys"});
  ExpectEndedAndSavedBy(korvale, {"Tools", "Options..."});
}

TEST_F(CustomizeColorsEndTest, CommandsOfTheWindowMenuTurnItOffAndSave) {
  KorvaleCopy& korvale = StartedAmongWindows();
  ExpectEndedAndSavedBy(korvale, {"Window", "Korvale  Always On Top"});
  ExpectEndedAndSavedBy(korvale, {"Window", "[Alpha]  Always On Top"});
  ExpectEndedAndSavedBy(korvale, {"Window", "0  Previous Window"});
  ExpectEndedAndSavedBy(korvale, {"Window", "1  Beta"});
  ExpectEndedAndSavedBy(korvale, {"Window", "Minimize All"});
  ExpectEndedAndSavedBy(korvale, {"Window", "Restore All"});
  for (const char* const entry :
       {"Add  Korvale  to Window menu...", "Add  [Beta]  to Window menu..."}) {
    korvale.host.WhenModal("frmGetWindow", [](class Form& dialog) { dialog.Unload(); });
    ExpectEndedAndSavedBy(korvale, {"Window", entry});
  }
}

TEST_F(CustomizeColorsEndTest, EveryTagTurnsItOffAndSaves) {
  Store("Tips", "0");
  for (int tag = 1; tag <= 9; ++tag) {
    const std::string number = std::to_string(tag);
    store.SaveSetting("Korvale - Work", "ParentWindowList", number, "&" + number + "  Window");
  }
  Open("Window");
  KorvaleCopy& korvale = StartedCopy();
  for (int tag = 1; tag <= 9; ++tag) {
    ExpectEndedAndSavedBy(korvale, {"Window", std::to_string(tag) + "  Window"});
  }
}

TEST_F(CustomizeColorsEndTest, CommandsOfTheHelpMenuTurnItOffAndSave) {
  KorvaleCopy& korvale = StartedAmongWindows();
  ExpectEndedAndSavedBy(korvale, {"Help", "web:  Help"});
  ExpectEndedAndSavedBy(korvale, {"Help", "web:  Korvale Home Page"});
  ExpectEndedAndSavedBy(korvale, {"Help", "web:  Readme"});
  ExpectEndedAndSavedBy(korvale, {"Help", "Display Tip Messages"});
  ExpectEndedAndSavedBy(korvale, {"Help", "About Korvale"});
}

}  // namespace
}  // namespace korvale
