#include "tests/endtoend/harness/color_dialog.h"
#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/harness/screen.h"
#include "tests/endtoend/harness/system_color.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kMovePointer[] = "position the mouse until the cursor has changed to a 'C'";

constexpr Rgb kYellow{255, 255, 159};
constexpr Rgb kRed{200, 30, 20};
constexpr Rgb kBlue{10, 40, 220};

/// In a box, a place where the mode's pointer is shown.
constexpr POINT kInside{20, 6};

class Colors : public KorvaleTest {
 protected:
  /// Starts the program, with the mode's tip silenced, and turns the mode on.
  void StartCustomizing() {
    installation_.settings().Set("Startup", "Tips", "0");
    Start();
    MoveMouseAside();
    ASSERT_TRUE(Choose('V', {'C'}));
  }

  MainWindow window() { return MainWindow(main()); }
  Window TitleBox() { return window().TitleBox(); }
  Window ClassBox() { return window().ClassBox(); }

  ::testing::AssertionResult Pick(Window box, Rgb color) {
    ClickAt(box, kInside);
    const ColorDialog dialog(*korvale_);
    if (!dialog.window()) return ::testing::AssertionFailure() << "no colour dialog";
    if (!dialog.Choose(color)) return ::testing::AssertionFailure() << "the colour is not taken";
    return InFront(main());
  }

  ::testing::AssertionResult Shows(Window box, Rgb color) {
    if (WaitFor([&] { return ColorOnScreen(box) == color; })) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "the box is " << StoredColor(ColorOnScreen(box));
  }

  ::testing::AssertionResult NothingOpens() {
    if (HoldsFor([this] { return !korvale_->HasMessageBox(); })) {
      return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << LabelText(korvale_->MessageBox());
  }
};

TEST_F(Colors, ChosenForABoxAreShownAtOnceAndStoredByTheNextMenuCommand) {
  StartCustomizing();
  ClickAt(TitleBox(), kInside);
  EXPECT_EQ(ColorDialog(*korvale_).Shown(), kYellow);
  EXPECT_TRUE(ColorDialog(*korvale_).Choose(kRed));
  EXPECT_TRUE(Shows(TitleBox(), kRed));
  EXPECT_FALSE(installation_.settings().Section("Startup").contains("WI1BackColor"));
  ASSERT_TRUE(Choose('V', {'C'}));
  EXPECT_TRUE(Stored("WI1BackColor", StoredColor(kRed)));
  EXPECT_TRUE(Stored("LastColorSelected", StoredColor(kRed)));
  EXPECT_TRUE(Stored("WI2BackColor", "11468718"));
  ASSERT_TRUE(Exit());
  Start();
  EXPECT_TRUE(Shows(TitleBox(), kRed));
}

TEST_F(Colors, OfTheTextStandOffFromThePaleBoxesUnderWhiteSystemText) {
  const SystemColor white(COLOR_WINDOWTEXT, RGB(255, 255, 255));
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(BringToFront(alpha));
  Start();
  ASSERT_TRUE(Target("Alpha"));
  const auto has_dark_text = [this] {
    RECT area{};
    GetWindowRect(TitleBox().handle(), &area);
    const HDC screen = GetDC(nullptr);
    int dark = 0;
    for (LONG y = area.top + 3; y < area.bottom - 3; ++y) {
      for (LONG x = area.left + 3; x < area.left + 40; ++x) {
        const COLORREF color = GetPixel(screen, x, y);
        if (GetRValue(color) + GetGValue(color) + GetBValue(color) < 200) ++dark;
      }
    }
    ReleaseDC(nullptr, screen);
    return dark > 10;
  };
  EXPECT_TRUE(WaitFor(has_dark_text));
}

TEST_F(Colors, AreLeftAloneByCancel) {
  installation_.settings().Set("Startup", "WI2BackColor", StoredColor(kBlue));
  StartCustomizing();
  ClickAt(ClassBox(), kInside);
  EXPECT_EQ(ColorDialog(*korvale_).Shown(), kBlue);
  EXPECT_TRUE(ColorDialog(*korvale_).Cancel());
  ASSERT_TRUE(Choose('V', {'C'}));
  EXPECT_TRUE(Shows(ClassBox(), kBlue));
  ASSERT_TRUE(Exit());
  EXPECT_TRUE(Stored("WI2BackColor", StoredColor(kBlue)));
  EXPECT_TRUE(Stored("LastColorSelected", "16777215"));
}

TEST_F(Colors, OfTheSecondBoxAreThoseOfTheFirstAfterAltClickAndReturnToTheDefaults) {
  StartCustomizing();
  ASSERT_TRUE(Pick(TitleBox(), kBlue));
  {
    const HeldKeys alt({0, VK_MENU});
    ClickAt(ClassBox(), kInside);
    EXPECT_TRUE(Shows(ClassBox(), kBlue));
  }
  EXPECT_TRUE(NothingOpens());
  ASSERT_TRUE(Choose('V', {'C'}));
  EXPECT_TRUE(Stored("WI1BackColor", StoredColor(kBlue)));
  EXPECT_TRUE(Stored("WI2BackColor", StoredColor(kBlue)));
  ASSERT_TRUE(Choose('V', {'D', 'T'}));
  EXPECT_TRUE(Stored("WI1BackColor", "10485759"));
  EXPECT_TRUE(Stored("WI2BackColor", "11468718"));
  EXPECT_TRUE(Shows(TitleBox(), kYellow));
  EXPECT_TRUE(Stored("LastColorSelected", StoredColor(kBlue)));
}

TEST_F(Colors, AreNotAskedForNearARightEdgeOrLowInABox) {
  StartCustomizing();
  RECT area{};
  GetWindowRect(TitleBox().handle(), &area);
  for (const POINT outside : {POINT{area.right - area.left - 5, 6}, POINT{20, 14}}) {
    ClickAt(TitleBox(), outside);
    const Window message = korvale_->MessageBox();
    EXPECT_EQ(message.Title(), "Korvale - Customize Colors");
    EXPECT_TRUE(Says(kMovePointer));
  }
  EXPECT_TRUE(Pick(TitleBox(), kRed));
}

TEST_F(Colors, AreNotAskedForOnceAnotherMenuCommandHasEndedTheMode) {
  StartCustomizing();
  ASSERT_TRUE(Choose('H', {'D'}));
  ASSERT_TRUE(Stored("DisplayTips", "False"));
  ClickAt(TitleBox(), kInside);
  EXPECT_TRUE(NothingOpens());
  ASSERT_TRUE(Choose('V', {'C'}));
  EXPECT_TRUE(Pick(TitleBox(), kRed));
}

TEST_F(Colors, AreChosenWithAPointerOfTheirOwn) {
  installation_.settings().Set("Startup", "Tips", "0");
  Start();
  const auto pointer_at = [this](POINT place) {
    MoveMouse(TitleBox(), {place.x + 1, place.y});
    MoveMouse(TitleBox(), place);
    return PointerOnScreen();
  };
  MoveMouse(TitleBox(), kInside);
  // Right after the start the screen may still show the pointer of another window.
  HCURSOR usual = nullptr;
  ASSERT_TRUE(WaitFor([&] {
    usual = pointer_at(kInside);
    return HoldsFor([&] { return pointer_at(kInside) == usual; });
  }));
  ASSERT_TRUE(Choose('V', {'C'}));
  EXPECT_TRUE(WaitFor([&] { return pointer_at(kInside) != usual; }));
  EXPECT_TRUE(WaitFor([&] { return pointer_at({20, 14}) == usual; }));
  EXPECT_TRUE(WaitFor([&] { return pointer_at(kInside) != usual; }));
  ASSERT_TRUE(Choose('V', {'C'}));
  EXPECT_TRUE(WaitFor([&] { return pointer_at(kInside) == usual; }));
}

}  // namespace
}  // namespace korvale::endtoend
