#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

using SwitchingTest = KorvaleWorld;

TEST_F(SwitchingTest, Alt0GoesBackToTheWindowBeforeAndThereAgain) {
  const WindowHandle alpha = Open("Alpha");
  const WindowHandle beta = Open("Beta");
  StartedCopy();
  WorkIn(alpha);
  WorkIn(beta);

  ExpectTagLeadsTo(0, "Alpha");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(SwitchingTest, Alt0RightAfterTheStartGoesBackToWhereTheUserWorked) {
  Open("Alpha");
  StartedCopy();

  PressTag(0);

  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(SwitchingTest, ATagBringsItsWindowToTheFront) {
  const WindowHandle editor = Open("notes - Editor");
  const WindowHandle beta = Open("Beta");
  KorvaleCopy& korvale = StartedAfter(editor);
  korvale.TagPrevious();
  WorkIn(beta);

  PressTag(1);

  EXPECT_EQ(Front(), "notes - Editor");
}

TEST_F(SwitchingTest, AResizeOfTheTopmostMainWindowTakesTheForegroundFromNobody) {
  store.SaveSetting("Korvale - Work", "Startup", "AlwaysOnTop", "True");
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(alpha);

  korvale.Form().Form_Resize();

  EXPECT_EQ(Front(), "Alpha");
}

}  // namespace
}  // namespace korvale
