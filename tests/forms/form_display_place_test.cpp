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
  const TwipsRect place = PlaceWhenShown();
  EXPECT_EQ(place.left, 100);
  EXPECT_EQ(place.top, 200);
}

TEST_F(FormDisplayTest, LeavesTheFormOutsideWhenToldSo) {
  EXPECT_EQ(PlaceWhenShown({.left = 90000, .top = 0}, nullptr, {.keepInWorkArea = 0}),
            (TwipsRect{90000, 0, 3000, 2000}));
}

/// A screen of two monitors side by side; the right one has twice as many dots per inch.
class TwoMonitors : public HeadlessFormHost {
 public:
  using HeadlessFormHost::HeadlessFormHost;

  TwipsRect GetMonitorInfoW(WindowHandle hwnd) override {
    return IsOnTheRight(hwnd) ? TwipsRect{10000, 0, 8000, 6000} : TwipsRect{0, 0, 10000, 8000};
  }
  TwipsRect GetWindowRect(WindowHandle hwnd) override {
    TwipsRect place = Window(hwnd).place;
    const Twips scale = IsOnTheRight(hwnd) ? 2 : 1;
    place.width *= scale;
    place.height *= scale;
    return place;
  }

  WindowHandle onTheRight = 0;

 private:
  bool IsOnTheRight(WindowHandle hwnd) {
    const HeadlessWindow* const window = FindWindow(hwnd);
    return hwnd == onTheRight || (window != nullptr && window->place.left >= 10000);
  }
};

class TwoMonitorsTest : public FormDisplayTest {
 protected:
  /// Where the dialog comes up while the user works in the editor on the right.
  TwipsRect PlaceOnTheRight(const PlaceHints& hints, Form* above) {
    TwipsRect place;
    host.WhenModal("frmDialog", [&](Form& form) {
      place = host.Window(form.Handle()).place;
      form.Unload();
    });
    display.ShowFormModal(dialog, {}, 1000, hints, above);
    return place;
  }

  CallLog log;
  FakeDesktop desktop{log};
  DesktopBridge windows{desktop.Windows(), 1};
  TwoMonitors host{windows, log};
  FormCollection forms{host, host, host, clock_};
  Dialog dialog{kDialogDesign, forms};
  Dialog owner{kOwnerDesign, forms};
  Desktop routines{{desktop, desktop, host, mainWindow_, forms, messages_, previous_, desktop},
                   clock_,
                   options_,
                   windowMenu_};
  FormDisplay display{forms, routines, suspension_, alwaysOnTop_};
};

TEST_F(TwoMonitorsTest, AFormComesUpWhereTheUserWorksWithTheSizeThatItHasThere) {
  host.onTheRight = desktop.Open("Editor");
  EXPECT_EQ(PlaceOnTheRight({}, nullptr), (TwipsRect{11000, 1000, 3000, 2000}));
  EXPECT_EQ(PlaceOnTheRight({.left = 17000, .top = 0}, nullptr), (TwipsRect{12000, 0, 3000, 2000}));
}

TEST_F(TwoMonitorsTest, AnOwnerOnAnotherMonitorDoesNotDrawTheFormThere) {
  owner.Show();
  host.onTheRight = desktop.Open("Editor");
  EXPECT_EQ(PlaceOnTheRight({}, &owner), (TwipsRect{11000, 1000, 3000, 2000}));
}

TEST_F(FormDisplayTest, CountsTheFrameThatTheWindowReallyHas) {
  host_.SetFrame({100, 600, 290, 800}, 300);
  host_.SetWorkArea({0, 0, 10000, 8000});
  EXPECT_EQ(PlaceWhenShown({.left = 9000, .top = 7000}), (TwipsRect{6800, 5600, 3200, 2400}));
}

}  // namespace
}  // namespace korvale
