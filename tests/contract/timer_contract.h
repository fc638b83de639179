#pragma once

#include "tests/contract/contract_fixture.h"

namespace korvale {

TEST_F(FormHostContract, ATimerTicksWhileItIsEnabledAndItsFormIsLoaded) {
  form_.Show();
  form_.Take();
  Control& timer = form_.Find("tmrTick");
  timer.SetInterval(50);
  User().LetPass(120);
  EXPECT_EQ(form_.Take(), Lines{});
  timer.SetEnabled(true);
  User().LetPass(120);
  EXPECT_GE(form_.Take().size(), 1U);
  timer.SetEnabled(false);
  User().LetPass(120);
  EXPECT_EQ(form_.Take(), Lines{});
  timer.SetEnabled(true);
  form_.Unload();
  form_.Take();
  User().LetPass(120);
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormHostContract, APausedTimerRestsUntilItIsEnabledAgain) {
  form_.Show();
  form_.Take();
  Control& timer = form_.Find("tmrTick");
  timer.SetInterval(50);
  timer.SetEnabled(true);
  timer.Pause();
  User().LetPass(120);
  EXPECT_EQ(form_.Take(), Lines{});
  timer.SetEnabled(true);
  User().LetPass(120);
  EXPECT_GE(form_.Take().size(), 1U);
}

TEST_F(FormHostContract, AnErrorInATimerReachesTheReporterAndTheLoopGoesOn) {
  int reported = 0;
  forms_.SetUncaughtHandler([&] { ++reported; });
  form_.Show();
  form_.onClick = [&](const std::string&) {
    form_.Find("tmrTick").SetEnabled(false);
    throw std::runtime_error("tick");
  };
  form_.Find("tmrTick").SetInterval(20);
  form_.Find("tmrTick").SetEnabled(true);
  User().LetPass(100);
  EXPECT_EQ(reported, 1);
  form_.onClick = nullptr;
  Click("cmdGo");
  EXPECT_EQ(form_.Take(), (Lines{"click tmrTick", "click cmdGo"}));
}

}  // namespace korvale
