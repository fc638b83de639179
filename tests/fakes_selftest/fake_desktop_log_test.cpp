#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_desktop.h"

namespace korvale {
namespace {

using Calls = std::vector<std::string>;

class FakeDesktopLogTest : public testing::Test {
 protected:
  CallLog log_;
  FakeDesktop desktop_{log_};
};

class RecordingObserver : public DesktopObserver {
 public:
  void OnForegroundChanged(WindowHandle hwnd) override { Note("foreground", hwnd); }
  void OnShown(WindowHandle hwnd) override { Note("shown", hwnd); }
  void OnDestroyed(WindowHandle hwnd) override { Note("destroyed", hwnd); }
  void OnMessagePosted(WindowHandle hwnd, std::uint32_t message) override {
    Note("posted " + std::to_string(message), hwnd);
  }

  Calls events;

 private:
  void Note(const std::string& what, WindowHandle hwnd) {
    events.push_back(what + " " + std::to_string(hwnd));
  }
};

TEST_F(FakeDesktopLogTest, LogsTheChangesOfTheProgramInTheirOrder) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.ShowWindow(alpha, win32::kSwMinimize);
  desktop_.ShowWindowAsync(alpha, win32::kSwRestore);
  desktop_.SetForegroundWindow(alpha);
  desktop_.SetWindowPos(alpha, win32::kHwndTopmost, 0, 0, 0, 0, 3);
  desktop_.SetWindowPos(alpha, win32::kHwndNoTopmost, 0, 0, 0, 0, 3);
  desktop_.SetWindowPos(alpha, win32::kHwndTop, 0, 0, 0, 0, 3);
  desktop_.PostMessageW(alpha, 0);

  EXPECT_EQ(log_.Calls(),
            (Calls{"ShowWindow(Alpha, SW_MINIMIZE)", "ShowWindowAsync(Alpha, SW_RESTORE)",
                   "SetForegroundWindow(Alpha)", "SetWindowPos(Alpha, HWND_TOPMOST, 0, 0, 0, 0, 3)",
                   "SetWindowPos(Alpha, HWND_NOTOPMOST, 0, 0, 0, 0, 3)",
                   "SetWindowPos(Alpha, HWND_TOP, 0, 0, 0, 0, 3)", "PostMessageW(Alpha, 0x0)"}));
}

TEST_F(FakeDesktopLogTest, DoesNotLogTheUserAndTheReads) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.UserMinimizes(alpha);
  desktop_.UserActivates(alpha);
  desktop_.IsIconic(alpha);
  desktop_.Close(alpha);

  EXPECT_EQ(log_.Calls(), Calls{});
}

TEST_F(FakeDesktopLogTest, LogsTheReadsWhenTheTestAsksForThem) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  std::array<char, 8> buffer{};
  log_.IncludeReads(true);

  desktop_.GetWindow(alpha, win32::kGwOwner);
  desktop_.GetWindowLongA(alpha, win32::kGwlExStyle);
  desktop_.GetWindowTextA(alpha, buffer);
  desktop_.IsWindow(0x77);
  desktop_.FindWindowA("Beta");
  desktop_.GetForegroundWindow();

  EXPECT_EQ(log_.Calls(), (Calls{"GetWindow(Alpha, GW_OWNER)", "GetWindowLongA(Alpha, GWL_EXSTYLE)",
                                 "GetWindowTextA(Alpha, 8)", "IsWindow(0x77)",
                                 "FindWindowA(\"Beta\")", "GetForegroundWindow()"}));
}

TEST_F(FakeDesktopLogTest, TakesCallsOutOfTheLog) {
  desktop_.SetForegroundWindow(desktop_.Open("Alpha"));

  EXPECT_EQ(log_.CallsOf("Show"), Calls{});
  EXPECT_EQ(log_.CallsOf("SetFore"), Calls{"SetForegroundWindow(Alpha)"});
  EXPECT_EQ(log_.Take(), Calls{"SetForegroundWindow(Alpha)"});
  EXPECT_EQ(log_.Calls(), Calls{});
}

TEST_F(FakeDesktopLogTest, WritesUntitledWindowsAsNumbers) {
  const WindowHandle untitled = desktop_.Open("");
  EXPECT_EQ(log_.Window(untitled), HexText(static_cast<std::uint32_t>(untitled)));
  EXPECT_EQ(log_.Window(0), "0");

  log_.NameWindow(untitled, "canvas");
  EXPECT_EQ(log_.Window(untitled), "canvas");
}

TEST_F(FakeDesktopLogTest, AWindowCanVanishInTheMiddleOfAnOperation) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  log_.WhenCalled("GetWindowTextA(Alpha", [&] { desktop_.Close(alpha); });
  std::array<char, 8> buffer{};

  EXPECT_TRUE(desktop_.IsWindow(alpha));
  EXPECT_EQ(desktop_.GetWindowTextA(alpha, buffer), 0);
  EXPECT_FALSE(desktop_.IsWindow(alpha));
}

TEST_F(FakeDesktopLogTest, AnActionRunsOnce) {
  int runs = 0;
  log_.WhenCalled("GetForegroundWindow", [&] { ++runs; });

  desktop_.GetForegroundWindow();
  desktop_.GetForegroundWindow();

  EXPECT_EQ(runs, 1);
}

TEST_F(FakeDesktopLogTest, ACallThatIsWaitedForAndNeverComesFailsTheTest) {
  auto log = std::make_unique<CallLog>();
  log->WhenCalled("IsIconic(Alpha", [] {});
  EXPECT_NONFATAL_FAILURE(log.reset(), "IsIconic(Alpha was never called");
}

TEST_F(FakeDesktopLogTest, AHandleCanBeUsedAgain) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  NewWindow options;
  options.reuseHandle = alpha;
  EXPECT_THROW(desktop_.Open("Beta", options), std::logic_error);
  desktop_.Close(alpha);

  EXPECT_EQ(desktop_.Open("Beta", options), alpha);

  EXPECT_EQ(desktop_.Title(alpha), "Beta");
  EXPECT_EQ(log_.Window(alpha), "Beta");
}

TEST_F(FakeDesktopLogTest, TheTestCannotActOnWindowsThatAreGone) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.Close(alpha);

  EXPECT_THROW(desktop_.UserActivates(alpha), std::logic_error);
  EXPECT_THROW(desktop_.Close(alpha), std::logic_error);
  EXPECT_THROW(desktop_.Open("Beta", {.owner = alpha}), std::logic_error);
}

TEST_F(FakeDesktopLogTest, TheTextLengthMayExceedTheTitle) {
  EXPECT_EQ(desktop_.GetWindowTextLengthA(desktop_.Open("Alpha", {.extraTextLength = 5})), 10);
}

TEST_F(FakeDesktopLogTest, AHungWindowMakesCallersWait) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.SetHung(alpha, true);

  EXPECT_TRUE(desktop_.IsHungAppWindow(alpha));
  EXPECT_TRUE(desktop_.ShowWindow(alpha, win32::kSwMinimize));
  desktop_.SetWindowPos(alpha, win32::kHwndTopmost, 0, 0, 0, 0, 3);

  EXPECT_FALSE(desktop_.IsIconic(alpha));
  EXPECT_EQ(desktop_.CallsThatWaited(), 2);
}

TEST_F(FakeDesktopLogTest, AHungWindowDoesLaterWhatNobodyWaitedFor) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.SetHung(alpha, true);
  EXPECT_TRUE(desktop_.ShowWindowAsync(alpha, win32::kSwMinimize));
  EXPECT_FALSE(desktop_.IsIconic(alpha));

  desktop_.SetHung(alpha, false);

  EXPECT_TRUE(desktop_.IsIconic(alpha));
  EXPECT_EQ(desktop_.CallsThatWaited(), 0);
}

TEST_F(FakeDesktopLogTest, ObserversHearWhatHappens) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle beta = desktop_.Open("Beta");
  RecordingObserver observer;
  desktop_.Windows().AddObserver(observer);

  desktop_.UserMinimizes(beta);
  desktop_.UserActivates(alpha);
  desktop_.PostMessageW(alpha, 7);
  desktop_.Close(alpha);
  desktop_.Windows().RemoveObserver(observer);
  desktop_.UserRestores(beta);

  const std::string a = std::to_string(alpha);
  EXPECT_EQ(observer.events, (Calls{"foreground " + a, "shown " + std::to_string(beta),
                                    "posted 7 " + a, "foreground 0", "destroyed " + a}));
}

}  // namespace
}  // namespace korvale
