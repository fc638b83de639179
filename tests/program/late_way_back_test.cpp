#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

/// What leads back somewhere right after Tag 2 was pressed in Alpha, before Windows has brought
/// Beta forward.
class LateWayBackTest : public KorvaleWorld {
 protected:
  void SetUp() override {
    alpha = Open("Alpha");
    beta = Open("Beta");
    StoreTag(2, "Beta");
    StoreTag(3, "Delta");
    korvale = &StartedCopy();
    for (const WindowHandle hwnd : {beta, alpha}) WorkIn(hwnd);
    desktop.DelayForeground(true);
    PressTagQuickly(2);
  }

  void LetItCome() {
    desktop.DelayForeground(false);
    LetTick();
  }

  KorvaleCopy* korvale = nullptr;
  WindowHandle alpha = 0;
  WindowHandle beta = 0;
};

TEST_F(LateWayBackTest, AMessageLeadsBackToTheSelectedWindow) {
  korvale->host.AnswerNext(win32::kIdOk);
  PressTagQuickly(3);
  LetItCome();
  EXPECT_EQ(Front(), "Beta");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(LateWayBackTest, AMessageLeadsBackToTheWindowLeftWhenTheSelectedOneHasGone) {
  desktop.DelayForeground(false);
  desktop.Close(beta);
  desktop.UserActivates(alpha);
  korvale->host.AnswerNext(win32::kIdOk);
  PressTagQuickly(2);
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(LateWayBackTest, EscInThePopUpLeadsBackToTheSelectedWindow) {
  korvale->host.WhenPopupMenu([](const auto& /*items*/) { return std::string(); });
  EXPECT_TRUE(hotKeys.Press(win32::kModWin, 'W'));
  LetItCome();
  EXPECT_EQ(Front(), "Beta");
  ExpectTagLeadsTo(0, "Alpha");
}

}  // namespace
}  // namespace korvale
