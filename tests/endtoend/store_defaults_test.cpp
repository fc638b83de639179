#include "tests/endtoend/harness/default_settings.h"
#include "tests/endtoend/store_test.h"

namespace korvale::endtoend {
namespace {

class Store : public StoreTest {};

TEST_F(Store, HoldsEveryDefaultFromTheFirstRunOn) {
  korvale_.emplace(installation_);
  ASSERT_TRUE(ReviewQuestion());
  EXPECT_TRUE(HoldsSections("Options", "Startup"));
  EXPECT_EQ(StoredOptions(), Defaults("Options"));
  EXPECT_EQ(StoredStartup(), Defaults("Startup"));
  EXPECT_EQ(settings().Section("Startup").size(), kAllStartupSettings);
}

TEST_F(Store, HoldsTheSameAfterAnExitAndARestart) {
  ASSERT_TRUE(StartFirstTime());
  const Pairs startup = settings().Section("Startup");
  ASSERT_TRUE(Exit());
  EXPECT_EQ(StoredOptions(), Defaults("Options"));
  EXPECT_EQ(settings().Section("Startup"), startup);
  installation_.MarkAsUsed();
  ASSERT_TRUE(StartAgain());
  EXPECT_TRUE(korvale_->MessageBoxes("Korvale - CAUTION").empty());
  ASSERT_TRUE(Exit());
  EXPECT_TRUE(HoldsSections("Options", "Startup"));
  EXPECT_EQ(settings().Section("Startup"), startup);
  Pairs options = Defaults("Options");
  options["SplashScreen"] = "False";
  EXPECT_EQ(StoredOptions(), options);
}

TEST_F(Store, DropsWhatNoSettingStandsForAnyMore) {
  installation_.MarkAsUsed();
  settings().Set("Startup", "ButtonBar", "True");
  settings().Set("ButtonTags", "1", "3");
  settings().Set("ButtonColors", "1", "255");
  settings().Set("ChildWindowList", "1", "&1  Old");
  settings().Set("Saving", "1\\D\\" + installation_.name() + "\\Options\\", "");
  ASSERT_TRUE(StartAgain());
  ASSERT_TRUE(Exit());
  EXPECT_TRUE(HoldsSections("Options", "Startup"));
  EXPECT_EQ(settings().Get("Startup", "ButtonBar"), std::nullopt);
  EXPECT_EQ(StoredStartup(), Defaults("Startup"));
  EXPECT_EQ(settings().Get("Options", "SplashScreen"), "False");
}

TEST_F(Store, FinishesASaveThatWasCutShort) {
  installation_.MarkAsUsed();
  installation_.StoreTag(4, "Before", "");
  const std::string own = "\\" + installation_.name() + "\\ParentWindowList\\";
  settings().Set("Saving", "1\\D" + own, "");
  settings().Set("Saving", "2\\S" + own + "7", "&7  After");
  settings().Set("Saving", "Complete", "2");
  ASSERT_TRUE(StartAgain());
  EXPECT_TRUE(settings().Section("Saving").empty());
  EXPECT_EQ(settings().Section("ParentWindowList"), (Pairs{{"7", "&7  After"}}));
}

TEST_F(Store, KeepsWhereTheMainWindowStands) {
  Start();
  const auto place = [this] {
    RECT area{};
    GetWindowRect(main().handle(), &area);
    return std::vector<LONG>{area.left, area.top, area.right, area.bottom};
  };
  for (const POINT at : {POINT{90, 90}, POINT{120, 150}, POINT{150, 210}}) {
    SetWindowPos(main().handle(), nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  }
  const std::vector<LONG> before = place();
  ASSERT_EQ(before[0], 150);
  ASSERT_EQ(before[1], 210);
  ASSERT_TRUE(Exit());
  ASSERT_TRUE(StartAgain());
  EXPECT_EQ(place(), before);
}

TEST_F(Store, BringsAMainWindowThatLiesOnNoMonitorBackOntoOne) {
  settings().Set("Startup", "Left", "-32000");
  settings().Set("Startup", "Top", "-32000");
  installation_.MarkAsUsed();
  ASSERT_TRUE(StartAgain());
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  GetMonitorInfoW(MonitorFromWindow(main().handle(), MONITOR_DEFAULTTOPRIMARY), &monitor);
  RECT area{};
  GetWindowRect(main().handle(), &area);
  EXPECT_GE(area.left, monitor.rcMonitor.left);
  EXPECT_GE(area.top, monitor.rcMonitor.top);
  EXPECT_LE(area.right, monitor.rcMonitor.right);
  EXPECT_LE(area.bottom, monitor.rcMonitor.bottom);
}

}  // namespace
}  // namespace korvale::endtoend
