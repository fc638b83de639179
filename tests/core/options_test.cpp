#include "app/core/options.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/run_time_error.h"
#include "tests/fakes/error_of.h"

namespace korvale {
namespace {

TEST(OptionsTest, NewRecordHoldsTheDefaults) {
  const clsOptions options;
  EXPECT_TRUE(options.booSplashScreen);
  EXPECT_FALSE(options.booSelectPrevWinOnStart);
  EXPECT_FALSE(options.booAllowNoTextWindow);
  EXPECT_FALSE(options.booAllowToolbarWindow);
  EXPECT_EQ(options.colHotKeyEnabled, 255 + 255 * 0x100 + 128 * 0x10000);
  EXPECT_FALSE(options.booAllowModalFrameWindow);
  EXPECT_EQ(options.intHotKeyModParent, 1);
  EXPECT_EQ(std::ranges::count(options.booHotKeyParent, true), 10);
  EXPECT_EQ(options.intHotKeyModAction, (std::array<std::int16_t, 2>{1, 1}));
  EXPECT_EQ(options.intHotKeyAction, (std::array<std::int16_t, 2>{40, 38}));
  EXPECT_EQ(options.intHotKeyModGeneral, (std::array<std::int16_t, 3>{8, 8, 0}));
  EXPECT_EQ(options.intHotKeyGeneral, (std::array<std::int16_t, 3>{79, 87, 19}));
}

TEST(OptionsHolderTest, HasNoRecordBeforeCreate) {
  OptionsHolder holder;
  const OptionsHolder& reader = holder;
  EXPECT_FALSE(holder.Exists());
  EXPECT_THROW(holder.Get(), RunTimeError);
  EXPECT_THROW(reader.Get(), RunTimeError);
}

TEST(OptionsHolderTest, KeepsOneRecordUntilRelease) {
  OptionsHolder holder;
  const OptionsHolder& reader = holder;
  holder.Create();
  holder.Get().intHotKeyModParent = 2;
  EXPECT_TRUE(holder.Exists());
  EXPECT_EQ(reader.Get().intHotKeyModParent, 2);
  holder.Release();
  EXPECT_FALSE(holder.Exists());
  EXPECT_EQ(ErrorOf([&] { holder.Get(); }), 91);
}

TEST(OptionsHolderTest, CreateGivesAFreshRecord) {
  OptionsHolder holder;
  holder.Create();
  holder.Get().booAllowModalFrameWindow = true;
  holder.Create();
  EXPECT_EQ(holder.Get(), clsOptions());
}

}  // namespace
}  // namespace korvale
