#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cstdlib>

#include "tests/endtoend/contract/real_form.h"
#include "tests/endtoend/harness/layout.h"
#include "ui/windows/units.h"

namespace korvale {
namespace {

/// Real windows at the dots per inch that the system has, whatever these are; script/test runs them
/// at several scales. How they move between monitors of different dots only a
/// Windows with two of them can show.
class WindowsEveryScaleTest : public RealForm {
 protected:
  WindowsEveryScaleTest() {
    User().ChangeTextSize(100);
    ShowForm();
    // From its design's place it would reach beyond a screen of few pixels.
    form_.SetPlace({0, 0, kContractDesign.place.width, kContractDesign.place.height});
  }

  static RECT AreaOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return area;
  }
  static RECT WorkArea() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
  }
  static LONG WidthOf(const RECT& area) { return area.right - area.left; }
  static LONG HeightOf(const RECT& area) { return area.bottom - area.top; }

  UINT FormDpi() { return static_cast<UINT>(Screen().GetDpiOfForm(Window())); }
  int TextHeight() {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Control("cmdGo"), WM_GETFONT, 0, 0)),
               sizeof(font), &font);
    return static_cast<int>(std::abs(font.lfHeight));
  }
  std::string Flaw() { return endtoend::FlawOf(endtoend::Window(Hwnd()), TextHeight()); }

  /// Where the design puts the control, in twips of the form's client area.
  TwipsRect Designed(const ControlState& control) {
    TwipsRect place = control.place;
    for (int held = control.container; held != 0; held = form_.State().Control(held).container) {
      place.left += form_.State().Control(held).place.left;
      place.top += form_.State().Control(held).place.top;
    }
    return place;
  }
  /// Every control has its share of the form, to the rounding of its own place and its holders'.
  void ExpectDesignedPlaces() {
    for (const ControlState& control : form_.State().controls) {
      const HWND window = FindControl(Window(), control.id);
      if (window == nullptr) continue;
      RECT area = AreaOf(window);
      MapWindowPoints(nullptr, Hwnd(), reinterpret_cast<POINT*>(&area), 2);
      const PixelPlace wanted = ToPixels(Designed(control), FormDpi());
      EXPECT_NEAR(area.left, wanted.left, 1) << control.name;
      EXPECT_NEAR(area.top, wanted.top, 1) << control.name;
      EXPECT_NEAR(WidthOf(area), wanted.width, 1) << control.name;
      EXPECT_NEAR(HeightOf(area), wanted.height, 1) << control.name;
    }
  }
  /// What Windows sends when it finds the window on a monitor with so many dots.
  void TellDpi(HWND window, RECT place) {
    const UINT dpi = GetDpiForWindow(window);
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
  }
};

TEST_F(WindowsEveryScaleTest, EveryControlIsWholeAndItsTextFits) {
  EXPECT_EQ(Flaw(), "");
  ExpectDesignedPlaces();
}

TEST_F(WindowsEveryScaleTest, TheFormHasTheDotsOfItsMonitorWhereThereIsRoom) {
  const LONG dpi = static_cast<LONG>(GetDpiForWindow(Hwnd()));
  // 6000 by 5100 twips without the frame.
  const bool room = 6000 * dpi / kTwipsPerInch + 60 < WidthOf(WorkArea()) &&
                    5100 * dpi / kTwipsPerInch + dpi < HeightOf(WorkArea());
  if (room) {
    EXPECT_EQ(FormDpi(), static_cast<UINT>(dpi));
    EXPECT_EQ(TextHeight(), MulDiv(9, static_cast<int>(dpi), 72));
  } else {
    EXPECT_LE(FormDpi(), static_cast<UINT>(dpi));
  }
}

TEST_F(WindowsEveryScaleTest, BiggerTextAndBackLeavesEveryPixelWhereItWas) {
  const RECT before = AreaOf(Hwnd());
  const RECT list = AreaOf(Control("cboPlace"));
  for (int times = 0; times < 3; ++times) {
    User().ChangeTextSize(125);
    EXPECT_EQ(Flaw(), "");
    ExpectDesignedPlaces();
    User().ChangeTextSize(100);
  }
  const RECT after = AreaOf(Hwnd());
  const RECT listAfter = AreaOf(Control("cboPlace"));
  EXPECT_TRUE(EqualRect(&before, &after));
  EXPECT_TRUE(EqualRect(&list, &listAfter));
}

TEST_F(WindowsEveryScaleTest, AnOpenListShowsAllItsEntries) {
  EXPECT_GE(SendMessageW(OpenNineEntries(), LB_GETITEMHEIGHT, 0, 0), TextHeight());
  SendMessageW(Control("cboSize"), CB_SHOWDROPDOWN, FALSE, 0);
}

TEST_F(WindowsEveryScaleTest, WordOfDotsThatAreKnownChangesNothing) {
  const RECT before = AreaOf(Hwnd());
  for (int times = 0; times < 10; ++times) TellDpi(Hwnd(), before);
  const RECT after = AreaOf(Hwnd());
  EXPECT_TRUE(EqualRect(&before, &after));
  ExpectDesignedPlaces();
}

TEST_F(WindowsEveryScaleTest, AFormThatGetsOtherDotsAtTheEdgeStaysOnTheMonitor) {
  RECT place = AreaOf(Hwnd());
  const RECT work = WorkArea();
  OffsetRect(&place, work.right - place.left - 40, work.bottom - place.top - 40);
  TellDpi(Hwnd(), place);
  EXPECT_EQ(Flaw(), "");
}

TEST_F(WindowsEveryScaleTest, AFormThatTheUserSizesKeepsItsTwipsWhateverWindowsRounds) {
  strip_.Show();
  const TwipsRect place = strip_.Place();
  const HWND strip = ToHwnd(strip_.Handle());
  RECT rounded = AreaOf(strip);
  const LONG width = WidthOf(rounded);
  rounded.right += 1;
  for (int times = 0; times < 10; ++times) TellDpi(strip, rounded);
  EXPECT_EQ(WidthOf(AreaOf(strip)), width);
  EXPECT_EQ(strip_.Place(), place);
}

TEST_F(WindowsEveryScaleTest, BeforeAFormIsMovedToOtherDotsItTellsItsSizeThereToThePixel) {
  strip_.SetPlace({900, 900, 6007, 1500});
  strip_.Show();
  const HWND strip = ToHwnd(strip_.Handle());
  const RECT now = AreaOf(strip);
  for (const WPARAM dpi : {96, 120, 144, 168, 192, 240, 288}) {
    SIZE size = {WidthOf(now), HeightOf(now)};
    EXPECT_EQ(SendMessageW(strip, WM_GETDPISCALEDSIZE, dpi, reinterpret_cast<LPARAM>(&size)), TRUE);
    EXPECT_EQ(size.cx, MulDiv(6007, static_cast<int>(dpi), kTwipsPerInch));
  }
}

}  // namespace
}  // namespace korvale
