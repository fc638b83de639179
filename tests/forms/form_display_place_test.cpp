#include "tests/forms/form_display_test.h"

namespace korvale {
namespace {

TEST_F(FormDisplayTest, CentresTheFormOnItsOwner) {
  owner_.Show();
  EXPECT_EQ(PlaceWhenShown({}, &owner_), (TwipsRect{6500, 4500, 3000, 2000}));
}

TEST_F(FormDisplayTest, CentresTheFormOnTheWorkAreaWithoutAnOwner) {
  host_.SetWorkArea({-2000, 100, 10000, 8000});
  EXPECT_EQ(PlaceWhenShown(), (TwipsRect{1500, 3100, 3000, 2000}));
}

TEST_F(FormDisplayTest, CentresTheFormOnTheWorkAreaWhenTheOwnerCannotBeSeen) {
  host_.SetWorkArea({0, 0, 10000, 8000});
  const TwipsRect centred = {3500, 3000, 3000, 2000};
  EXPECT_EQ(PlaceWhenShown({}, &owner_), centred);
  owner_.Load();
  EXPECT_EQ(PlaceWhenShown({}, &owner_), centred);
  owner_.Show();
  owner_.SetWindowState(ShowState::kMinimized);
  EXPECT_EQ(PlaceWhenShown({}, &owner_), centred);
}

TEST_F(FormDisplayTest, CentresTheFormOnTheWorkAreaWhenToldSo) {
  host_.SetWorkArea({0, 0, 10000, 8000});
  owner_.Show();
  EXPECT_EQ(PlaceWhenShown({}, &owner_, {.centerOnOwner = 0}), (TwipsRect{3500, 3000, 3000, 2000}));
}

TEST_F(FormDisplayTest, FollowsEachPositionHint) {
  owner_.Show();
  EXPECT_EQ(PlaceWhenShown({.left = 120, .top = 240}), (TwipsRect{120, 240, 3000, 2000}));
  EXPECT_EQ(PlaceWhenShown({.left = 120}, &owner_), (TwipsRect{120, 4500, 3000, 2000}));
  EXPECT_EQ(PlaceWhenShown({.top = 240}, &owner_), (TwipsRect{6500, 240, 3000, 2000}));
}

TEST_F(FormDisplayTest, KeepsTheFormInsideTheWorkArea) {
  host_.SetWorkArea({100, 200, 10000, 8000});
  EXPECT_EQ(PlaceWhenShown({.left = 9000, .top = 7000}), (TwipsRect{7100, 6200, 3000, 2000}));
  EXPECT_EQ(PlaceWhenShown({.left = -500, .top = -500}), (TwipsRect{100, 200, 3000, 2000}));
}

TEST_F(FormDisplayTest, BeginsWithTheWorkAreaWhenTheFormIsLarger) {
  host_.SetWorkArea({100, 200, 2000, 1000});
  EXPECT_EQ(PlaceWhenShown(), (TwipsRect{100, 200, 3000, 2000}));
}

TEST_F(FormDisplayTest, LeavesTheFormOutsideWhenToldSo) {
  EXPECT_EQ(PlaceWhenShown({.left = 90000, .top = 0}, nullptr, {.keepInWorkArea = 0}),
            (TwipsRect{90000, 0, 3000, 2000}));
}

TEST_F(FormDisplayTest, BringsAFormThatIsOnNoMonitorOntoTheNearestOne) {
  host_.SetWorkArea({0, 0, 10000, 8000});
  owner_.Load();
  const auto brought = [&](Twips left, Twips top) {
    owner_.SetPlace({left, top, 3000, 2000});
    display_.BringOntoMonitor(owner_);
    return owner_.Place();
  };
  EXPECT_EQ(brought(30000, -20000), (TwipsRect{7000, 0, 3000, 2000}));
  EXPECT_EQ(brought(-2800, 8000), (TwipsRect{0, 6000, 3000, 2000}));
  EXPECT_EQ(brought(9700, 7700), (TwipsRect{9700, 7700, 3000, 2000}));
  EXPECT_EQ(brought(9701, 7700), (TwipsRect{7000, 6000, 3000, 2000}));
  EXPECT_EQ(brought(-2700, -1700), (TwipsRect{-2700, -1700, 3000, 2000}));
}

/// A screen of two monitors side by side.
class TwoMonitors : public HeadlessFormHost {
 public:
  using HeadlessFormHost::HeadlessFormHost;

  TwipsRect GetMonitorInfoW(WindowHandle hwnd) override {
    const HeadlessWindow* const window = FindWindow(hwnd);
    const bool right = hwnd == onTheRight || (window != nullptr && window->place.left >= 10000);
    return right ? TwipsRect{10000, 0, 8000, 6000} : TwipsRect{0, 0, 10000, 8000};
  }

  WindowHandle onTheRight = 0;
};

TEST_F(FormDisplayTest, ComesUpOnTheMonitorWhereTheUserWorks) {
  CallLog log;
  FakeDesktop desktop(log);
  DesktopBridge windows(desktop.Windows(), 1);
  TwoMonitors host(windows, log);
  FormCollection forms(host, clock_);
  Dialog dialog(kDialogDesign, forms);
  FormDisplay display(forms, desktop, desktop, suspension_, alwaysOnTop_);
  TwipsRect place;
  const auto look = [&](Form& form) {
    place = host.Window(form.Handle()).place;
    form.Unload();
  };
  host.onTheRight = desktop.Open("Editor");
  host.WhenModal("frmDialog", look);
  display.ShowFormModal(dialog, {}, 1000, {}, nullptr);
  EXPECT_EQ(place, (TwipsRect{12500, 2000, 3000, 2000}));
  host.WhenModal("frmDialog", look);
  display.ShowFormModal(dialog, {}, 1000, {.left = 17000, .top = 0}, nullptr);
  EXPECT_EQ(place, (TwipsRect{15000, 0, 3000, 2000}));
}

TEST_F(FormDisplayTest, CountsTheFrameThatTheWindowReallyHas) {
  host_.SetFrame({100, 600, 290, 800}, 300);
  host_.SetWorkArea({0, 0, 10000, 8000});
  EXPECT_EQ(PlaceWhenShown({.left = 9000, .top = 7000}), (TwipsRect{6800, 5600, 3200, 2400}));
}

}  // namespace
}  // namespace korvale
