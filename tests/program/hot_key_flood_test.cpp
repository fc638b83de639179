#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

class HotKeyFlood : public KorvaleWorld {
 protected:
  static constexpr int kPresses = 10'000;
  /// Each choice of a Tag is saved, which takes its time.
  static constexpr int kPressesThatSave = 1000;
  static constexpr std::size_t kCallsOfAPress = 50;
  /// How long a command may wait for other programs, in milliseconds.
  static constexpr std::uint64_t kPatience = 200;

  void Flood(std::uint32_t modifiers, std::uint32_t key, int presses = kPresses) {
    for (int i = 0; i < presses; ++i) hotKeys.PressWhileBusy(modifiers, key);
  }

  /// Each press costs the same, however many wait behind it.
  void DeliverAll(int presses = kPresses) {
    log.Clear();
    hotKeys.DeliverQueued();
    LetTick();
    EXPECT_LE(log.Calls().size(), static_cast<std::size_t>(presses) * kCallsOfAPress);
  }

  const WindowHandle alpha_ = Open("Alpha");
};

TEST_F(HotKeyFlood, OfATagLeadsToItsWindow) {
  StoreTag(1, "Alpha");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(Open("Beta"));
  Flood(win32::kModAlt, '1', kPressesThatSave);
  DeliverAll(kPressesThatSave);
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_TRUE(korvale.host.Messages().empty());
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(HotKeyFlood, OfATagWhoseWindowIsBusyHoldsTheUserUpNoLongerThanOnePress) {
  StoreTag(1, "Alpha");
  StartedCopy();
  WorkIn(Open("Beta"));
  desktop.SetBusy(alpha_, 100'000);
  const std::uint64_t before = clock.GetTickCount64();
  Flood(win32::kModAlt, '1', kPressesThatSave);
  DeliverAll(kPressesThatSave);
  EXPECT_LE(clock.GetTickCount64() - before, kPatience);
}

TEST_F(HotKeyFlood, OfTheOptionsOpensThemOnce) {
  KorvaleCopy& korvale = StartedCopy();
  Flood(win32::kModWin, 'O');
  DeliverAll();
  EXPECT_EQ(Front(), "Korvale - Options");
  EXPECT_EQ(log.CallsOf("CreateWindowExW(frmOptions)").size(), 1U);
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(HotKeyFlood, OfThePopUpPopsUpAgainOnce) {
  StoreTag(1, "Alpha");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(Open("Beta"));
  Flood(win32::kModWin, 'W');
  hotKeys.PressWhileBusy(win32::kModAlt, '1');
  const auto stays = [this](const std::vector<ShownMenuItem>&) {
    hotKeys.DeliverQueued();
    return "";
  };
  korvale.host.WhenPopupMenu(stays);
  korvale.host.WhenPopupMenu(stays);
  DeliverAll();
  EXPECT_EQ(log.CallsOf("TrackPopupMenuEx").size(), 2U);
  // Behind the first pop-up one key for the second and the Tag's, behind that the Tag's alone, and
  // one message after each pop-up.
  EXPECT_EQ(log.CallsOf("PostMessageW").size(), 2U + 1U + 2U);
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(HotKeyFlood, OfMinimizeEndsWhenAllAreMinimized) {
  KorvaleCopy& korvale = StartedCopy();
  const WindowHandle beta = Open("Beta");
  Flood(win32::kModAlt, win32::kVkDown);
  DeliverAll();
  EXPECT_TRUE(desktop.IsIconic(alpha_));
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(HotKeyFlood, OfMaximizeActsOnTheWindowInFrontOnly) {
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(Open("Beta"));
  constexpr int kOddPresses = kPresses + 1;
  Flood(win32::kModAlt, win32::kVkUp, kOddPresses);
  DeliverAll(kOddPresses);
  EXPECT_EQ(Front(), "Beta");
  EXPECT_TRUE(desktop.IsZoomed(desktop.GetForegroundWindow())) << "after an odd number of presses";
  EXPECT_FALSE(desktop.IsZoomed(alpha_));
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(HotKeyFlood, OfATagWithoutAWindowShowsItsMessageAndOneNotice) {
  StoreTag(1, "Nowhere");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(Open("Beta"));
  Flood(win32::kModAlt, '1');
  korvale.host.WhenMessageBox([&](const ShownMessage& message) {
    EXPECT_EQ(message.text, "Window:  [Nowhere]  is not open.");
    korvale.host.WhenMessageBox([&](const ShownMessage& notice) {
      EXPECT_EQ(notice.title, "Korvale     ");
      hotKeys.DeliverQueued();
      return win32::kIdOk;
    });
    hotKeys.DeliverQueued();
    return win32::kIdOk;
  });
  hotKeys.DeliverQueued();
  EXPECT_EQ(korvale.host.Messages().size(), 2U);
  EXPECT_FALSE(korvale.Suspended());
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(HotKeyFlood, OfTheToggleTogglesOnceAndIsHeldByOneNotice) {
  KorvaleCopy& korvale = StartedCopy();
  Flood(0, win32::kVkPause);
  korvale.host.WhenWaiting([&] {
    // Turning the hot keys off takes the presses out of the queue.
    Flood(0, win32::kVkPause);
    korvale.host.WhenMessageBox([&](const ShownMessage&) {
      hotKeys.DeliverQueued();
      return win32::kIdOk;
    });
    hotKeys.DeliverQueued();
  });
  hotKeys.DeliverQueued();
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_FALSE(korvale.HotKeys().HotKeysActive());
  EXPECT_FALSE(korvale.Suspended());
}

TEST_F(HotKeyFlood, DuringTheStartIsCarriedOutAfterIt) {
  StoreTag(1, "Alpha");
  StoreOption("SplashScreen", "False");
  Open("Beta");
  KorvaleCopy& korvale = NewCopy();
  log.WhenCalled("ShowWindow(frmMain", [&] { Flood(win32::kModAlt, '1', 3); });
  EXPECT_TRUE(korvale.Start());
  DeliverAll();
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(HotKeyFlood, IsGoneWithTheHotKeys) {
  StoreTag(1, "Alpha");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(Open("Beta"));
  const WindowHandle main = korvale.Handle();
  Flood(win32::kModAlt, '1');
  korvale.Exit();
  ExpectEnded(korvale);
  log.IncludeReads(true);
  hotKeys.DeliverQueued();
  EXPECT_TRUE(log.CallsOf("SetForegroundWindow").empty());
  EXPECT_FALSE(hotKeys.IsHooked(main));
}

}  // namespace
}  // namespace korvale
