#include "ui/menu_width.h"

#include <memory>
#include <string>

#include "tests/ui/form_test.h"
#include "ui/menu_text.h"

namespace korvale {
namespace {

/// A menu of one entry on a screen with room for 100 characters.
class MenuWidthTest : public FormTest {
 protected:
  MenuWidthTest() {
    host_.SetWorkArea({0, 0, 12400, 9000});
    form_.Show();
  }

  std::string ShownFor(const std::string& caption) {
    MenuItem menu;
    MenuItem& entry = *menu.items.emplace_back(std::make_unique<MenuItem>());
    entry.caption = caption;
    FitMenuToScreen(host_, form_.Handle(), menu);
    EXPECT_EQ(entry.caption, caption);
    return MenuText(entry);
  }
};

TEST_F(MenuWidthTest, ACaptionThatFitsStaysWhole) {
  EXPECT_EQ(ShownFor(std::string(100, 'x')), std::string(100, 'x'));
  EXPECT_EQ(ShownFor(""), "");
}

TEST_F(MenuWidthTest, ALongerOneIsCut) {
  EXPECT_EQ(ShownFor(std::string(101, 'x')), std::string(97, 'x') + "...");
}

TEST_F(MenuWidthTest, SoIsOneThatWindowsCannotMeasure) {
  host_.MeasureUpTo(8192);
  EXPECT_EQ(ShownFor(std::string(65536, 'x')), std::string(97, 'x') + "...");
}

}  // namespace
}  // namespace korvale
