#include <string>
#include <string_view>

#include "tests/program/korvale_world.h"
#include "util/text.h"

namespace korvale {
namespace {

class LongClasses : public KorvaleWorld, public testing::WithParamInterface<std::string> {};

TEST_P(LongClasses, IdentifyTheirWindowAfterARestart) {
  // By its title alone, the lowest of them would be found.
  const WindowHandle lowest = Open("Alpha", {.className = "Other"});
  const WindowHandle window = Open("Alpha", {.className = GetParam()});
  KorvaleCopy& korvale = StartedAfter(window);
  EXPECT_TRUE(GetParam().starts_with(korvale.TargetClass()));
  EXPECT_GT(korvale.TargetClass().size(), 250U);
  EXPECT_FALSE(korvale.TargetClass().ends_with("\uFFFD"));
  korvale.TagPrevious();
  korvale.Exit();
  EndCopy(korvale);
  StartedCopy();
  Open("Alpha", {.className = "Other"});
  WorkIn(Open("Beta"));
  PressTag(1);
  EXPECT_EQ(desktop.GetForegroundWindow(), window);
  desktop.Close(window);
  WorkIn(desktop.FindWindowA("Beta"));
  PressTag(1);
  EXPECT_EQ(desktop.GetForegroundWindow(), lowest) << "the class decided nothing";
}

std::string Repeated(int count, std::string_view text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

INSTANTIATE_TEST_SUITE_P(OfAnyWriting, LongClasses,
                         testing::Values(Repeated(255, "c"), Repeated(256, "c"), Repeated(128, "Ж"),
                                         Repeated(256, "メ"), "c" + Repeated(100, "🦊")));

}  // namespace
}  // namespace korvale
