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

  std::string ShownFor(const std::string& caption) { return ShownOn(host_, form_, caption); }
  static std::string ShownOn(ScreenQueries& screen, Form& form, const std::string& caption) {
    MenuItem menu;
    MenuItem& entry = *menu.items.emplace_back(std::make_unique<MenuItem>());
    entry.caption = caption;
    FitMenuToScreen(screen, form.Handle(), menu);
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

TEST_F(MenuWidthTest, TheCutTearsNothingThatReadersTakeForOneCharacter) {
  const std::string letters(94, 'x');
  EXPECT_EQ(ShownFor(letters + "👨‍👩‍👧👨‍👩‍👧"), letters + "...");
  EXPECT_EQ(ShownFor(letters + "🇩🇪🇫🇷🇯🇵🇰🇷"), letters + "🇩🇪...");
}

TEST_F(MenuWidthTest, ACaptionThatWindowsCannotMeasureIsCut) {
  host_.MeasureUpTo(8192);
  EXPECT_EQ(ShownFor(std::string(65536, 'x')), std::string(97, 'x') + "...");
}

TEST_F(MenuWidthTest, BiggerTextTakesMoreRoomBesideIt) {
  host_.ChangeTextSize(200);
  // 46 characters of 200 twips, and what is as wide as 16 more.
  EXPECT_EQ(ShownFor(std::string(46, 'x')), std::string(46, 'x'));
  EXPECT_EQ(ShownFor(std::string(47, 'x')), std::string(43, 'x') + "...");
}

/// A screen whose pointer stands on another monitor than the window.
class PointerElsewhere : public HeadlessFormHost {
 public:
  using HeadlessFormHost::HeadlessFormHost;
  TwipsRect MonitorFromPoint() override { return {12400, 0, underPointer, 9000}; }
  Twips underPointer = 0;
};

TEST_F(MenuWidthTest, TheNarrowerOfTheMonitorsOfWindowAndPointerCounts) {
  PlainDesktop desktop;
  PointerElsewhere host{desktop, log_};
  FormCollection forms{host, host, host, clock_};
  RecordingForm form{kContractDesign, forms};
  host.SetWorkArea({0, 0, 12400, 9000});
  form.Load();
  host.underPointer = 7400;
  EXPECT_EQ(ShownOn(host, form, std::string(51, 'x')), std::string(47, 'x') + "...");
  host.underPointer = 20000;
  EXPECT_EQ(ShownOn(host, form, std::string(101, 'x')), std::string(97, 'x') + "...");
}

TEST_F(MenuWidthTest, ThePopUpHasTheDotsOfTheMonitorUnderThePointer) {
  // Room for 100 characters on either, since all is twice as large on the second.
  const HeadlessMonitor coarse{{0, 0, 12400, 9000}, {0, 0, 12400, 9000}, 96};
  HeadlessMonitor fine{{12400, 0, 24800, 18000}, {12400, 0, 24800, 18000}, 192};
  host_.SetMonitors({coarse, fine});
  host_.PointAtMonitor(1);
  EXPECT_EQ(ShownFor(std::string(100, 'x')), std::string(100, 'x'));
  fine.workArea.width = 14800;
  host_.SetMonitors({coarse, fine});
  EXPECT_EQ(ShownFor(std::string(51, 'x')), std::string(47, 'x') + "...");
}

TEST_F(MenuWidthTest, ACoarserMonitorUnderThePointerIsNoNarrowerForThat) {
  host_.SetMonitors({{{0, 0, 12400, 9000}, {0, 0, 12400, 9000}, 96},
                     {{12400, 0, 24800, 18000}, {12400, 0, 24800, 18000}, 192}});
  form_.SetPlace({14000, 900, 3000, 1500});
  host_.PointAtMonitor(0);
  // Beside 108 characters of 200 twips there is room for what is as wide as 16.
  EXPECT_EQ(ShownFor(std::string(108, 'x')), std::string(108, 'x'));
  EXPECT_EQ(ShownFor(std::string(109, 'x')), std::string(105, 'x') + "...");
}

}  // namespace
}  // namespace korvale
