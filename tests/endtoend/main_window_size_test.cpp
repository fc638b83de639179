#include <cstdlib>

#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

// The program counts in twips, 15 to a pixel at 96 dots per inch, and rounds to whole pixels.
constexpr int kTwipsPerPixel = 15;
constexpr int Pixels(int twips) { return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel; }

constexpr int kBare = 400;
constexpr int kWithMenu = 700;
constexpr int kAroundBoxes = 115;

class MainWindowSize : public KorvaleTest {
 protected:
  void StartWith(const char* menu, const char* boxes) {
    installation_.settings().Set("Startup", "Menu", menu);
    installation_.settings().Set("Startup", "WindowInfo", boxes);
    Start();
  }

  MainWindow window() { return MainWindow(main()); }

  ::testing::AssertionResult HasHeight(int pixels) {
    if (WaitFor([&] { return window().Height() == pixels; })) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << window().Height() << " pixels, not " << pixels;
  }

  /// The height is that of the boxes and the rest; both are known to the pixel only.
  ::testing::AssertionResult HoldsBoxesAnd(int twips) {
    const auto fits = [&] {
      const int around = (window().Height() - window().BoxHeight()) * kTwipsPerPixel;
      return window().ShowsTextWhole() && std::abs(around - twips) < kTwipsPerPixel;
    };
    if (WaitFor(fits)) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << window().Height() << " pixels around a box of " << window().BoxHeight();
  }
};

TEST_F(MainWindowSize, FollowsFromWhatIsShown) {
  Start();
  EXPECT_TRUE(HoldsBoxesAnd(kWithMenu + kAroundBoxes));
  ASSERT_TRUE(Choose('V', {'T'}));
  EXPECT_TRUE(HasHeight(Pixels(kWithMenu)));
  EXPECT_FALSE(window().ShowsBoxes());
  EXPECT_TRUE(Stored("WindowInfo", "False"));
  ASSERT_TRUE(Choose('V', {'T'}));
  EXPECT_TRUE(HoldsBoxesAnd(kWithMenu + kAroundBoxes));
  EXPECT_TRUE(window().ShowsBoxes());
  EXPECT_TRUE(Stored("WindowInfo", "True"));
}

TEST_F(MainWindowSize, IsThatOfTheBoxesWhenTheMenuIsHidden) {
  StartWith("False", "True");
  EXPECT_TRUE(HoldsBoxesAnd(kBare + kAroundBoxes));
  EXPECT_FALSE(window().HasMenuBar());
}

TEST_F(MainWindowSize, IsThatOfTheBareFrameWhenAllIsHidden) {
  StartWith("False", "False");
  EXPECT_TRUE(HasHeight(Pixels(kBare)));
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

TEST_F(MainWindowSize, OfAStoredWidthThatIsTooNarrowIsRaised) {
  installation_.settings().Set("Startup", "Width", "2000");
  Start();
  EXPECT_EQ(window().Width(), Pixels(2640));
}

}  // namespace
}  // namespace korvale::endtoend
