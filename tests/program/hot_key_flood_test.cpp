#include <cstdint>

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

class HotKeyFlood : public KorvaleWorld {
 protected:
  static constexpr int kPresses = 10'000;

  void Flood(std::uint32_t modifiers, std::uint32_t key) {
    for (int i = 0; i < kPresses; ++i) hotKeys.PressWhileBusy(modifiers, key);
  }

  const WindowHandle alpha_ = Open("Alpha");
};

TEST_F(HotKeyFlood, OfATagLeadsToItsWindow) {
  StoreTag(1, "Alpha");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(Open("Beta"));
  for (int i = 0; i < 100; ++i) hotKeys.PressWhileBusy(win32::kModAlt, '1');
  hotKeys.DeliverQueued();
  LetTick();
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_TRUE(korvale.host.Messages().empty());
  ExpectTagLeadsTo(0, "Beta");
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
