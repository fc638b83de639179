#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

class MainWindowState : public KorvaleTest {
 protected:
  /// Starts without waiting for the main window to come to the front.
  Window StartBehind() {
    installation_.MarkAsUsed();
    korvale_.emplace(installation_);
    return main();
  }

  /// What the close box and the taskbar's menu do.
  ::testing::AssertionResult CloseMain() {
    PostMessageW(main().handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
    if (korvale_->process().WaitForExit() == 0U) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "the program does not end";
  }

  void Store(const char* key, const char* value) {
    installation_.settings().Set("Startup", key, value);
  }
};

TEST_F(MainWindowState, MaximizedIsKeptOverEveryRestart) {
  Start();
  const int width = MainWindow(main()).Width();
  const int height = MainWindow(main()).Height();
  PostMessageW(main().handle(), WM_SYSCOMMAND, SC_MAXIMIZE, 0);
  ASSERT_TRUE(WaitFor([this] { return main().Maximized(); }));
  for (int start = 0; start < 2; ++start) {
    ASSERT_TRUE(CloseMain());
    ASSERT_TRUE(Stored("WindowState", "2"));
    Start();
    EXPECT_TRUE(WaitFor([this] { return main().Maximized(); }));
    EXPECT_EQ(MainWindow(main()).Height(), height);
    EXPECT_GE(MainWindow(main()).Width(), GetSystemMetrics(SM_CXSCREEN));
  }
  ASSERT_TRUE(Choose('V', {'T'}));
  EXPECT_TRUE(WaitFor([&] { return MainWindow(main()).Height() < height; }));
  EXPECT_TRUE(main().Maximized());
  PostMessageW(main().handle(), WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_TRUE(WaitFor([&] { return MainWindow(main()).Width() == width; }));
}

TEST_F(MainWindowState, MinimizedIsKeptAndLeavesTheUserInTheirWindow) {
  Start();
  SetWindowPos(main().handle(), nullptr, 120, 150, 440, 80, SWP_NOZORDER);
  PostMessageW(main().handle(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  ASSERT_TRUE(WaitFor([this] { return main().Minimized(); }));
  ASSERT_TRUE(CloseMain());
  EXPECT_TRUE(Stored("WindowState", "1"));
  EXPECT_TRUE(Stored("Left", "1800"));
  EXPECT_TRUE(Stored("Width", "6600"));

  const Window alpha = Open("Alpha");
  ASSERT_TRUE(BringToFront(alpha));
  ASSERT_TRUE(StartBehind());
  EXPECT_TRUE(main().Minimized());
  EXPECT_TRUE(StaysInFront(alpha));
  EXPECT_TRUE(Target("Alpha"));
  WorkInNew("Beta");
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(StaysInFront(alpha));

  PostMessageW(main().handle(), WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_TRUE(InFront(main()));
  EXPECT_TRUE(StaysInFront(main()));
  EXPECT_EQ(MainWindow(main()).Width(), 440);
  EXPECT_TRUE(MainWindow(main()).ShowsTextWhole());
}

TEST_F(MainWindowState, MinimizedStaysBehindBelowTheSplashWindow) {
  Store("WindowState", "1");
  installation_.MarkAsUsed();
  installation_.settings().Set("Options", "SplashScreen", "True");
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(BringToFront(alpha));
  korvale_.emplace(installation_);
  ASSERT_TRUE(main());
  EXPECT_TRUE(WaitFor([this] { return !korvale_->HasForm("frmMsgBox2"); }));
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(StaysInFront(alpha));
}

TEST_F(MainWindowState, APlaceBeyondSixteenBitsIsReadAndBroughtOntoAMonitor) {
  Store("Left", "60000");
  Start();
  EXPECT_EQ(MainWindow(main()).Width(), 300);
  RECT area{};
  GetWindowRect(main().handle(), &area);
  EXPECT_EQ(area.right, GetSystemMetrics(SM_CXSCREEN));
}

}  // namespace
}  // namespace korvale::endtoend
