#include <cstdlib>

#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

// The program counts in twips, 15 to a pixel at 96 dots per inch, and rounds to whole pixels.
constexpr int kTwipsPerPixel = 15;
constexpr int Pixels(int twips) { return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel; }

constexpr int kClassicFrame = 400;
constexpr int kClassicFrameAndMenu = 700;
constexpr int kAroundBoxes = 115;

class MainWindowSize : public KorvaleTest {
 protected:
  void StartWith(const char* menu, const char* boxes) {
    installation_.settings().Set("Startup", "Menu", menu);
    installation_.settings().Set("Startup", "WindowInfo", boxes);
    Start();
  }

  MainWindow window() { return MainWindow(main()); }

  /// What the frame takes of the height, without and with the menu bar, in twips: the classic
  /// height, or the system's where that is higher.
  int Bare() { return HeightOf(kClassicFrame, FALSE); }
  int WithMenu() { return HeightOf(kClassicFrameAndMenu, TRUE); }

  ::testing::AssertionResult HasHeight(int pixels) {
    if (WaitFor([&] { return window().Height() == pixels; })) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << window().Height() << " pixels, not " << pixels;
  }

  /// The boxes plus the rest make up the height; both are known only to the pixel.
  ::testing::AssertionResult HoldsBoxesAnd(int twips) {
    const auto fits = [&] {
      const int around = (window().Height() - window().BoxHeight()) * kTwipsPerPixel;
      return window().ShowsTextWhole() && std::abs(around - twips) < kTwipsPerPixel;
    };
    if (WaitFor(fits)) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << window().Height() << " pixels around a box of " << window().BoxHeight();
  }

 private:
  int HeightOf(int classic, BOOL menu) {
    RECT frame{};
    AdjustWindowRectEx(&frame, static_cast<DWORD>(main().Style()), menu,
                       static_cast<DWORD>(main().ExtendedStyle()));
    const int system = (frame.bottom - frame.top) * kTwipsPerPixel;
    // Less than half a pixel comes from rounding.
    return 2 * (system - classic) > kTwipsPerPixel ? system : classic;
  }
};

TEST_F(MainWindowSize, FollowsFromWhatIsShown) {
  Start();
  EXPECT_TRUE(HoldsBoxesAnd(WithMenu() + kAroundBoxes));
  ASSERT_TRUE(Choose('V', {'T'}));
  EXPECT_TRUE(HasHeight(Pixels(WithMenu())));
  EXPECT_FALSE(window().ShowsBoxes());
  EXPECT_TRUE(Stored("WindowInfo", "False"));
  ASSERT_TRUE(Choose('V', {'T'}));
  EXPECT_TRUE(HoldsBoxesAnd(WithMenu() + kAroundBoxes));
  EXPECT_TRUE(window().ShowsBoxes());
  EXPECT_TRUE(Stored("WindowInfo", "True"));
}

TEST_F(MainWindowSize, IsThatOfTheBoxesWhenTheMenuIsHidden) {
  StartWith("False", "True");
  EXPECT_TRUE(HoldsBoxesAnd(Bare() + kAroundBoxes));
  EXPECT_FALSE(window().HasMenuBar());
}

TEST_F(MainWindowSize, IsThatOfTheBareFrameWhenAllIsHidden) {
  StartWith("False", "False");
  EXPECT_TRUE(HasHeight(Pixels(Bare())));
  EXPECT_FALSE(window().ShowsBoxes());
  EXPECT_FALSE(window().HasMenuBar());
}

TEST_F(MainWindowSize, CannotBeChangedInHeightNorMadeTooNarrow) {
  Start();
  const int height = window().Height();
  window().Resize(500, height + 100);
  EXPECT_TRUE(WaitFor([&] { return window().Width() == 500; }));
  EXPECT_TRUE(HasHeight(height));
  window().Resize(500, height - 10);
  EXPECT_TRUE(HasHeight(height));
  window().Resize(Pixels(2000), height);
  EXPECT_TRUE(WaitFor([&] { return window().Width() == Pixels(2640); }));
  EXPECT_TRUE(window().ShowsTextWhole());
}

TEST_F(MainWindowSize, IsTheSameAfterTheNextStart) {
  Start();
  const int height = window().Height();
  window().Resize(440, height);
  ASSERT_TRUE(WaitFor([&] { return window().Width() == 440; }));
  ASSERT_TRUE(Exit());
  EXPECT_TRUE(Stored("Width", std::to_string(440 * kTwipsPerPixel)));
  Start();
  EXPECT_EQ(window().Width(), 440);
  EXPECT_TRUE(HasHeight(height));
}

TEST_F(MainWindowSize, HasRoomForAMenuOfAMoment) {
  for (const char* const boxes : {"True", "False"}) {
    StartWith("False", boxes);
    const int height = window().Height();
    Press({MOD_ALT, 'V'});
    ASSERT_TRUE(korvale_->OpenMenu());
    EXPECT_TRUE(HasHeight(height + Pixels(WithMenu() - Bare())));
    EXPECT_TRUE(window().ShowsMenusWhole());
    EXPECT_TRUE(!window().ShowsBoxes() || window().ShowsTextWhole());
    Press({0, 'C'});
    const Window tip = korvale_->Form("frmMsgTip");
    ASSERT_TRUE(tip.Close());
    EXPECT_TRUE(HasHeight(height));
    EXPECT_FALSE(window().HasMenuBar());
    ASSERT_TRUE(Exit());
  }
}

TEST_F(MainWindowSize, HasRoomForAMenuOfAMomentAlsoWhereItIsNarrow) {
  installation_.settings().Set("Startup", "Width", "2640");
  StartWith("False", "True");
  const int height = window().Height();
  Press({MOD_ALT, 'V'});
  ASSERT_TRUE(korvale_->OpenMenu());
  EXPECT_GT(window().Height(), height + Pixels(WithMenu() - Bare()));
  EXPECT_TRUE(window().ShowsMenusWhole());
  EXPECT_TRUE(window().ShowsTextWhole());
  Press({0, 'C'});
  const Window tip = korvale_->Form("frmMsgTip");
  ASSERT_TRUE(tip.Close());
  EXPECT_TRUE(HasHeight(height));
}

TEST_F(MainWindowSize, ShowsEveryMenuAndBothBoxesWhereItIsNarrow) {
  Start();
  const int height = window().Height();
  window().Resize(Pixels(2640), height);
  ASSERT_TRUE(WaitFor([&] { return window().Width() == Pixels(2640); }));
  EXPECT_TRUE(WaitFor([&] { return window().ShowsMenusWhole(); }));
  EXPECT_TRUE(window().ShowsTextWhole());
  EXPECT_EQ(window().BoxHeight(), Pixels(285));
  ASSERT_TRUE(Choose('V', {'T'}));
  EXPECT_TRUE(WaitFor([&] { return !window().ShowsBoxes(); }));
  EXPECT_TRUE(window().ShowsMenusWhole());
  ASSERT_TRUE(Choose('V', {'T'}));
  window().Resize(400, height);
  EXPECT_TRUE(HasHeight(height));
}

TEST_F(MainWindowSize, StaysWhereItIsWhenItsEdgesAreDraggedUpOrDown) {
  Start();
  const RECT before = window().Place();
  const auto middle = (before.left + before.right) / 2;
  const auto same = [&] {
    const RECT now = window().Place();
    return EqualRect(&now, &before) != 0;
  };
  const auto unmoved = [&] { EXPECT_TRUE(same()); };
  for (const LONG edge : {before.top + 1, before.bottom - 2}) {
    for (const LONG by : {-40L, 40L}) {
      Drag({middle, edge}, {middle, edge + by}, unmoved);
      EXPECT_TRUE(HoldsFor(same));
    }
  }
}

TEST_F(MainWindowSize, StopsAtTheLeastWidthWithoutMoving) {
  Start();
  const RECT before = window().Place();
  const LONG middle = (before.top + before.bottom) / 2;
  const auto right_stays = [&] { EXPECT_EQ(window().Place().right, before.right); };
  Drag({before.left + 1, middle}, {before.right - 20, middle}, right_stays);
  // Wine lets a dragged edge come within a pixel of the limit.
  EXPECT_TRUE(WaitFor([&] { return std::abs(window().Width() - Pixels(2640)) <= 1; }));
  EXPECT_EQ(window().Place().right, before.right);
  EXPECT_EQ(window().Place().top, before.top);
}

/// Title bars and menus of another height, for what starts from now on.
class Metrics {
 public:
  Metrics(int caption, int menu) {
    before_.cbSize = sizeof(before_);
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(before_), &before_, 0);
    NONCLIENTMETRICSW metrics = before_;
    metrics.iCaptionHeight = caption;
    metrics.iMenuHeight = menu;
    Apply(metrics);
  }
  Metrics(const Metrics&) = delete;
  Metrics& operator=(const Metrics&) = delete;
  ~Metrics() { Apply(before_); }

 private:
  static void Apply(NONCLIENTMETRICSW metrics) {
    SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof(metrics), &metrics,
                          SPIF_UPDATEINIFILE | SPIF_SENDCHANGE);
  }

  NONCLIENTMETRICSW before_{};
};

TEST_F(MainWindowSize, IsGreaterByWhatAHigherFrameNeeds) {
  const Metrics high(36, 38);
  Start();
  EXPECT_TRUE(window().ShowsTextWhole());
  EXPECT_TRUE(window().ShowsMenusWhole());
  EXPECT_EQ(window().BoxHeight(), Pixels(285));
  RECT client{};
  GetClientRect(main().handle(), &client);
  EXPECT_NEAR(client.bottom, Pixels(285 + 115), 1);
  ASSERT_TRUE(Choose('V', {'T'}));
  EXPECT_TRUE(WaitFor([&] { return !window().ShowsBoxes(); }));
  EXPECT_TRUE(window().ShowsMenusWhole());
}

TEST_F(MainWindowSize, OfAStoredWidthThatIsTooNarrowIsRaised) {
  installation_.settings().Set("Startup", "Width", "2000");
  Start();
  EXPECT_EQ(window().Width(), Pixels(2640));
  EXPECT_TRUE(window().ShowsMenusWhole());
  EXPECT_TRUE(window().ShowsTextWhole());
}

}  // namespace
}  // namespace korvale::endtoend
