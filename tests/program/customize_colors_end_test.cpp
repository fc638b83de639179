#include <string>
#include <vector>

#include "tests/program/customize_colors_test.h"

namespace korvale {
namespace {

/// Customize Colors is on before each command, and must be off after it.
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
  void ExpectEndedBy(KorvaleCopy& copy, const Path& path) {
    WorkIn(copy.Handle());
    Toggle(copy);
    EXPECT_TRUE(IsOn(copy));
    EXPECT_EQ(copy.host.Pointer(), MousePointer::kCustom);
    Choose(copy, path);
    EXPECT_FALSE(copy.Form().Menu("mnuViewCustomizeColors").checked) << path.back();
    EXPECT_EQ(copy.host.Pointer(), MousePointer::kDefault) << path.back();
  }
};

TEST_F(CustomizeColorsEndTest, CommandsOfTheViewMenuTurnItOff) {
  KorvaleCopy& korvale = StartedAmongWindows();
  ExpectEndedBy(korvale, {"View", "Target Window"});
  ExpectEndedBy(korvale, {"View", "Default Settings", "Target Window/Class Colors"});
  ExpectEndedBy(korvale, {"View", "Options..."});
  korvale.host.AnswerNext(win32::kIdCancel);
  ExpectEndedBy(korvale, {"View", "Menu"});
  EXPECT_TRUE(MenuIsShown(korvale));
  korvale.host.AnswerNext(win32::kIdOk);
  ExpectEndedBy(korvale, {"View", "Menu"});
  EXPECT_FALSE(MenuIsShown(korvale));
}

TEST_F(CustomizeColorsEndTest, CommandsOfTheToolsMenuTurnItOff) {
  KorvaleCopy& korvale = StartedAmongWindows();
  ExpectEndedBy(korvale, {"Tools", "Deactivate Hot Keys"});
  ExpectEndedBy(korvale, {"Tools", "Activate Hot Keys"});
  ExpectEndedBy(korvale, {"Tools", "Options..."});
}

TEST_F(CustomizeColorsEndTest, CommandsOfTheWindowMenuTurnItOff) {
  KorvaleCopy& korvale = StartedAmongWindows();
  ExpectEndedBy(korvale, {"Window", "Korvale  Always On Top"});
  ExpectEndedBy(korvale, {"Window", "[Alpha]  Always On Top"});
  ExpectEndedBy(korvale, {"Window", "0  Previous Window"});
  ExpectEndedBy(korvale, {"Window", "1  Beta"});
  ExpectEndedBy(korvale, {"Window", "Minimize All"});
  ExpectEndedBy(korvale, {"Window", "Restore All"});
  for (const char* const entry :
       {"Add  Korvale  to Window menu...", "Add  [Beta]  to Window menu..."}) {
    korvale.host.WhenModal("frmGetWindow", [](class Form& dialog) { dialog.Unload(); });
    ExpectEndedBy(korvale, {"Window", entry});
  }
}

TEST_F(CustomizeColorsEndTest, EveryTagTurnsItOff) {
  Store("Tips", "0");
  for (int tag = 1; tag <= 9; ++tag) {
    const std::string number = std::to_string(tag);
    store.SaveSetting("Korvale - Work", "ParentWindowList", number, "&" + number + "  Window");
  }
  Open("Window");
  KorvaleCopy& korvale = StartedCopy();
  for (int tag = 1; tag <= 9; ++tag) {
    ExpectEndedBy(korvale, {"Window", std::to_string(tag) + "  Window"});
  }
}

TEST_F(CustomizeColorsEndTest, CommandsOfTheHelpMenuTurnItOff) {
  KorvaleCopy& korvale = StartedAmongWindows();
  ExpectEndedBy(korvale, {"Help", "web:  Help"});
  ExpectEndedBy(korvale, {"Help", "web:  Korvale Home Page"});
  ExpectEndedBy(korvale, {"Help", "web:  Readme"});
  ExpectEndedBy(korvale, {"Help", "Display Tip Messages"});
  ExpectEndedBy(korvale, {"Help", "About Korvale"});
}

}  // namespace
}  // namespace korvale
