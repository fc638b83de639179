#include "tests/program/customize_colors_test.h"

#include <optional>
#include <string>

namespace korvale {
namespace {

TEST_F(CustomizeColorsTest, IsOffAtEveryStart) {
  KorvaleCopy& first = Customizing();
  first.Exit();
  EndCopy(first);
  KorvaleCopy& second = StartedCopy();
  EXPECT_FALSE(IsOn(second));
  EXPECT_EQ(second.host.Pointer(), MousePointer::kDefault);
}

TEST_F(CustomizeColorsTest, TurnedOnItShowsCheckPointerAndTip) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.WhenModal("frmMsgTip", [&](class Form& tip) {
    EXPECT_EQ(tip.Caption(), "TIP - Korvale");
    EXPECT_EQ(tip.Place().height, 3400);
    EXPECT_EQ(tip.Find("lblTip").Text(),
              "To change the color of a Target Window/Class Label;  position the mouse over the "
              "Label, when the cursor has changed to a 'C' (the letter C within a black circle), "
              "click on the Label to change it's color.  To change the second Label to the same "
              "color, simply hold down the Alt key while clicking on the Label (Alt+Click).  When "
              "finished customizing colors, reselect this menu option to return the mouse cursor "
              "to normal.");
    EXPECT_EQ(korvale.host.Pointer(), MousePointer::kCustom);
    korvale.user.Click(tip.Handle(), tip.Find("chkStopMsg").Id());
    korvale.user.Click(tip.Handle(), tip.Find("cmdOK").Id());
  });
  Toggle(korvale);
  EXPECT_TRUE(IsOn(korvale));
  EXPECT_EQ(korvale.host.Pointer(), MousePointer::kCustom);
  EXPECT_EQ(Stored("Tips"), "0");
}

TEST_F(CustomizeColorsTest, ItsTipStandsOverTheMainWindowAndComesOnlyWhenItIsTurnedOn) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.WhenModal("frmMsgTip", [&](class Form& tip) {
    // 8400 by 3400 twips over a window of 4500 by 1100 at 3000, 1500.
    EXPECT_EQ(korvale.user.Place(tip.Handle()), (TwipsRect{1050, 350, 8400, 3400}));
    korvale.user.Click(tip.Handle(), tip.Find("cmdOK").Id());
  });
  Toggle(korvale);
  Toggle(korvale);
  EXPECT_FALSE(IsOn(korvale));
}

class CustomizingTest : public CustomizeColorsTest {
 protected:
  KorvaleCopy& korvale = Customizing();
};

TEST_F(CustomizingTest, ChosenAgainItIsTurnedOff) {
  Toggle(korvale);
  EXPECT_FALSE(IsOn(korvale));
  EXPECT_EQ(korvale.host.Pointer(), MousePointer::kDefault);
}

TEST_F(CustomizingTest, ThePointerIsItsOwnOnlyInTheUpperLeftOfAField) {
  for (const char* field : {"txtWindow", "txtWindowClass"}) {
    const int id = Field(korvale, field);
    const Twips right = korvale.user.Place(korvale.Handle(), id).width - 115;
    const auto pointerAt = [&](Twips x, Twips y) {
      korvale.user.MoveMouse(korvale.Handle(), id, x, y);
      return korvale.host.Pointer();
    };
    EXPECT_EQ(pointerAt(right - 1, 154), MousePointer::kCustom);
    EXPECT_EQ(pointerAt(right, 154), MousePointer::kDefault);
    EXPECT_EQ(pointerAt(0, 154), MousePointer::kCustom);
    EXPECT_EQ(pointerAt(0, 155), MousePointer::kDefault);
    EXPECT_EQ(pointerAt(0, 0), MousePointer::kCustom);
  }
}

TEST_F(CustomizeColorsTest, WhileItIsOffAFieldRestoresTheDefaultPointer) {
  KorvaleCopy& korvale = Started();
  korvale.Form().SetMousePointer(MousePointer::kHourglass);
  korvale.user.MoveMouse(korvale.Handle(), Field(korvale), 10, 10);
  EXPECT_EQ(korvale.host.Pointer(), MousePointer::kDefault);
}

TEST_F(CustomizingTest, AClickChoosesAColorForItsField) {
  korvale.host.WhenColorDialog([](Color initial) {
    EXPECT_EQ(initial, 0xAEFFAE);
    return std::optional<Color>(kRed);
  });
  ClickAt(korvale, "txtWindowClass", 10, 10);
  EXPECT_EQ(ColorOf(korvale, "txtWindowClass"), kRed);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0x9FFFFF);
  EXPECT_TRUE(IsOn(korvale));
}

TEST_F(CustomizingTest, CancelInTheDialogKeepsTheColor) {
  ChooseNext(korvale, std::nullopt);
  ClickAt(korvale, "txtWindow", 10, 10);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0x9FFFFF);
  EXPECT_EQ(korvale.Startup().LastColorSelected, 0xFFFFFF);
}

TEST_F(CustomizeColorsTest, AltClickGivesTheSecondFieldTheSameColor) {
  for (const auto& [first, second] :
       {std::pair("txtWindow", "txtWindowClass"), std::pair("txtWindowClass", "txtWindow")}) {
    KorvaleCopy& korvale = Customizing();
    ChooseNext(korvale, kRed);
    ClickAt(korvale, first, 10, 10);
    ClickAt(korvale, second, 10, 10, kAlt);
    EXPECT_EQ(ColorOf(korvale, first), kRed);
    EXPECT_EQ(ColorOf(korvale, second), kRed);
    korvale.Exit();
    EndCopy(korvale);
  }
}

TEST_F(CustomizingTest, AltCountsForItsOwnClickOnly) {
  ClickAt(korvale, "txtWindow", 10, 10, kAlt);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0xFFFFFF);
  ChooseNext(korvale, kRed);
  ClickAt(korvale, "txtWindow", 10, 10);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), kRed);
}

TEST_F(CustomizingTest, AltCountsAsItWasAtThePressNotAtTheRelease) {
  const MouseInput up = {MouseEvent::kUp, MouseButton::kLeft, kNoShift, 10, 10};
  const auto withAlt = [](MouseInput input, MouseEvent event) {
    input.event = event;
    input.shift = kAlt;
    return input;
  };
  MouseInput down = up;
  down.event = MouseEvent::kDown;
  for (const char* const field : {"txtWindow", "txtWindowClass"}) {
    Tell(korvale, withAlt(up, MouseEvent::kDown), field);
    Tell(korvale, up, field);
    EXPECT_EQ(ColorOf(korvale, field), 0xFFFFFF) << "the last colour, and nobody was asked";
    korvale.host.WhenColorDialog([](Color) { return std::optional<Color>(0x112233); });
    Tell(korvale, down, field);
    Tell(korvale, withAlt(up, MouseEvent::kUp), field);
    EXPECT_EQ(ColorOf(korvale, field), 0x112233);
    korvale.Startup().LastColorSelected = 0xFFFFFF;
  }
}

TEST_F(CustomizingTest, AltWithAnotherModifierAsksForTheColor) {
  for (const unsigned shift : {kAlt | kShift, kAlt | kCtrl, unsigned{kShift}, unsigned{kCtrl}}) {
    ChooseNext(korvale, kRed);
    ClickAt(korvale, "txtWindow", 10, 10, shift);
    EXPECT_EQ(ColorOf(korvale, "txtWindow"), kRed) << shift;
    korvale.Startup().LastColorSelected = 0xFFFFFF;
    Choose(korvale, {"View", "Default Settings", "Target Window/Class Colors"});
    Toggle(korvale);
  }
}

TEST_F(CustomizingTest, TheAltOfAClickBeforeDoesNotCountForAPressOutsideThePointersPlace) {
  ClickAt(korvale, "txtWindow", 10, 10, kAlt);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0xFFFFFF);
  bool asked = false;
  korvale.host.WhenColorDialog([&](Color) {
    asked = true;
    return std::optional<Color>(kRed);
  });
  const auto move = [](Twips y) {
    return MouseInput{MouseEvent::kMove, MouseButton::kNone, kNoShift, 10, y};
  };

  Tell(korvale, move(200));
  Tell(korvale, {MouseEvent::kDown, MouseButton::kLeft, kNoShift, 10, 200});
  Tell(korvale, move(10));
  Tell(korvale, {MouseEvent::kUp, MouseButton::kLeft, kNoShift, 10, 10});

  EXPECT_TRUE(asked);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), kRed);
}

TEST_F(CustomizingTest, TheAltOfAPressOutsideThePointersPlaceDoesNotCount) {
  ChooseNext(korvale, kRed);
  Tell(korvale, {MouseEvent::kMove, MouseButton::kNone, kAlt, 10, 200});
  Tell(korvale, {MouseEvent::kDown, MouseButton::kLeft, kAlt, 10, 200});
  Tell(korvale, {MouseEvent::kMove, MouseButton::kNone, kAlt, 10, 10});
  Tell(korvale, {MouseEvent::kUp, MouseButton::kLeft, kAlt, 10, 10});
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), kRed);
}

TEST_F(CustomizingTest, ColorsAreStoredByTheNextMenuCommand) {
  ChooseNext(korvale, kRed);
  ClickAt(korvale, "txtWindow", 10, 10);
  EXPECT_EQ(Stored("WI1BackColor"), "(missing)") << "nothing was stored so far";
  ClickAt(korvale, "txtWindowClass", 10, 10, kAlt);
  Toggle(korvale);
  EXPECT_EQ(Stored("WI1BackColor"), "255");
  EXPECT_EQ(Stored("WI2BackColor"), "255");
  EXPECT_EQ(Stored("LastColorSelected"), "255");
}

TEST_F(CustomizingTest, AClickWithoutThePointerSaysWhatToDo) {
  for (const char* field : {"txtWindow", "txtWindowClass"}) {
    korvale.host.WhenMessageBox([](const ShownMessage& box) {
      EXPECT_EQ(box.text, "position the mouse until the cursor has changed to a 'C'");
      EXPECT_EQ(box.title, "Korvale - Customize Colors");
      return win32::kIdOk;
    });
    const Twips width = korvale.user.Place(korvale.Handle(), Field(korvale, field)).width;
    ClickAt(korvale, field, width - 100, 10);
  }
  EXPECT_EQ(korvale.host.Messages().size(), 2U);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0x9FFFFF);
}

TEST_F(CustomizingTest, AltOutsideThePointersPlaceIsNotRemembered) {
  korvale.host.AnswerNext(win32::kIdOk);
  ClickAt(korvale, "txtWindow", 10, 200, kAlt);
  ChooseNext(korvale, kRed);
  ClickAt(korvale, "txtWindow", 10, 10);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), kRed);
}

TEST_F(CustomizeColorsTest, ClicksMeanNothingWhileItIsOff) {
  KorvaleCopy& korvale = Started();
  ClickAt(korvale, "txtWindow", 10, 10);
  ClickAt(korvale, "txtWindow", 10, 10, kAlt);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0x9FFFFF);
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(CustomizingTest, OnlyAWholeClickOfTheLeftButtonCounts) {
  ClickAt(korvale, "txtWindow", 10, 10, kAlt, MouseButton::kRight);
  const MouseInput down = {MouseEvent::kDown, MouseButton::kLeft, kAlt, 10, 10};
  const MouseInput up = {MouseEvent::kUp, MouseButton::kLeft, kAlt, 10, 10};
  MouseInput other = up;
  Tell(korvale, up);
  const TwipsRect field = korvale.user.Place(korvale.Handle(), Field(korvale));
  for (const auto& [x, y] : {std::pair(-1, 0), std::pair(0, -1), std::pair(field.width, 0),
                             std::pair(0, field.height)}) {
    other.x = x;
    other.y = y;
    Tell(korvale, down);
    Tell(korvale, other);
    Tell(korvale, up);
  }
  Tell(korvale, down, "txtWindowClass");
  Tell(korvale, up, "txtWindow");
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0x9FFFFF);
  other.x = other.y = 0;
  Tell(korvale, down);
  Tell(korvale, other);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0xFFFFFF) << "the corner is not outside";
}

TEST_F(CustomizingTest, GoesOnOverRefreshesThatAreNoOtherMenuCommand) {
  for (const char* source :
       {"mnuViewRemoveIndividualButtons", "mnuViewCustomizeColors",
        "mnuViewColorCodedButtons_SPECIAL", "Form_KeyDown", " Form_KeyDown ", "Form_Load"}) {
    korvale.Form().RefreshMenus(source);
    EXPECT_TRUE(IsOn(korvale)) << source;
    EXPECT_EQ(korvale.host.Pointer(), MousePointer::kCustom) << source;
  }
  korvale.Form().RefreshMenus("mnuViewColorCodedButtons");
  EXPECT_FALSE(IsOn(korvale));
}

TEST_F(CustomizeColorsTest, OnlyMenuCommandsSave) {
  KorvaleCopy& korvale = Started();
  korvale.Startup().Width = 5000;
  korvale.Form().RefreshMenus("Form_KeyDown");
  korvale.Form().RefreshMenus("Form_Load");
  EXPECT_EQ(Stored("Width"), "(missing)") << "nothing was stored so far";
  korvale.Form().RefreshMenus("mnuViewCustomizeColors");
  EXPECT_EQ(Stored("Width"), "5000");
}

TEST_F(CustomizeColorsTest, ItsCaptionIsAssignedAgainExceptOnThe9xFamily) {
  KorvaleCopy& korvale = Started();
  MenuItem& item = korvale.Form().Menu("mnuViewCustomizeColors");
  item.caption = "lost";
  korvale.system.osVersion.platformId = win32::kVerPlatformWin32Windows;
  korvale.Form().RefreshMenus("mnu");
  EXPECT_EQ(item.caption, "lost");
  korvale.system.osVersion.platformId = win32::kVerPlatformWin32Nt;
  korvale.Form().RefreshMenus("mnu");
  EXPECT_EQ(item.caption, "&Customize Colors - C");
}

TEST_F(CustomizeColorsTest, SpacesAroundFormKeyDownDoNotMatter) {
  Store("Menu", "False");
  KorvaleCopy& korvale = StartedCopy();
  korvale.Form().RefreshMenus(" Form_KeyDown ");
  EXPECT_TRUE(MenuIsShown(korvale));
  korvale.Form().RefreshMenus("Form_Load");
  EXPECT_FALSE(MenuIsShown(korvale));
}

}  // namespace
}  // namespace korvale
