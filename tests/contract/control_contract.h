#pragma once

#include "tests/contract/contract_fixture.h"

namespace korvale {

TEST_F(ShownFormContract, ControlsStandWhereTheDesignPutsThem) {
  const TwipsRect button = {4500, 600, 1200, 375};
  const TwipsRect inside = {105, 105, 1200, 375};
  EXPECT_EQ(User().Place(Window(), Id("cmdStay")), button);
  EXPECT_EQ(User().Place(Window(), Id("cmdInside")), inside);
  form_.Find("cmdStay").SetTop(750);
  form_.Find("cmdStay").SetWidth(900);
  const TwipsRect moved = {4500, 750, 900, 375};
  EXPECT_EQ(User().Place(Window(), Id("cmdStay")), moved);
}

TEST_F(ShownFormContract, CaptionsAreShownInAnyScript) {
  EXPECT_EQ(Text("cmdGo"), "&Go");
  for (const char* const caption : {"Ж && 日本語", "\U0001F600", "plain", ""}) {
    form_.Find("lblName").SetText(caption);
    EXPECT_EQ(Text("lblName"), caption);
  }
}

TEST_F(ShownFormContract, ClickingAButtonMovesTheFocusFirst) {
  std::string focus;
  form_.onClick = [&](const std::string&) { focus = Focus(); };
  Click("cmdStay");
  EXPECT_EQ(focus, "cmdStay");
  EXPECT_EQ(form_.Take(), Lines{"click cmdStay"});
}

TEST_F(ShownFormContract, ACheckBoxHasToggledWhenItsClickIsRaised) {
  std::vector<int> values;
  form_.onClick = [&](const std::string&) { values.push_back(form_.Find("chkDaily").Value()); };
  Click("chkDaily");
  EXPECT_EQ(Value("chkDaily"), 1);
  Click("chkDaily");
  EXPECT_EQ(Value("chkDaily"), 0);
  EXPECT_EQ(values, (std::vector<int>{1, 0}));
}

TEST_F(ShownFormContract, ChoosingAnOptionTakesTheMarkFromItsNeighbours) {
  Click("optColor", 1);
  Click("optColor", 2);
  EXPECT_EQ(Value("optColor", 0), 0);
  EXPECT_EQ(Value("optColor", 1), 0);
  EXPECT_EQ(Value("optColor", 2), 1);
  EXPECT_EQ(form_.Take(), (Lines{"click optColor(1)", "click optColor(2)"}));
}

TEST_F(ShownFormContract, ValuesSetByCodeAreShown) {
  form_.Find("chkDaily").SetValue(1);
  form_.Find("optColor", 0).SetValue(1);
  form_.Find("cboSize").SetListIndex(2);
  EXPECT_EQ(Value("chkDaily"), 1);
  EXPECT_EQ(Value("optColor", 0), 1);
  EXPECT_EQ(User().ListIndex(Window(), Id("cboSize")), 2);
  EXPECT_EQ(Text("cboSize"), "Large");
  form_.Find("cboSize").SetListIndex(-1);
  EXPECT_EQ(User().ListIndex(Window(), Id("cboSize")), -1);
}

TEST_F(ShownFormContract, TypedTextIsToldAndShown) {
  Click("txtName");
  Type("aB 1Ж日\U0001F600");
  EXPECT_EQ(Text("txtName"), "aB 1Ж日\U0001F600");
  EXPECT_EQ(form_.Find("txtName").Text(), "aB 1Ж日\U0001F600");
  EXPECT_EQ(form_.Take().back(), "click txtName");
}

TEST_F(ShownFormContract, TextOfEveryScriptIsTypedShownAndChosenCharacterForCharacter) {
  Click("txtName");
  for (const char* const text : kEveryScript) {
    form_.Find("txtName").SetText("");
    Type(text);
    EXPECT_EQ(Text("txtName"), text);
    EXPECT_EQ(form_.Find("txtName").Text(), text);
    form_.Find("lblClick").SetText(text);
    EXPECT_EQ(Text("lblClick"), text);
    form_.Find("cboSize").AddItem(text);
    form_.SetCaption(text);
    EXPECT_EQ(User().Title(Window()), text);
  }
  const std::vector<std::string> entries = User().ListEntries(Window(), Id("cboSize"));
  ASSERT_EQ(entries.size(), 3 + std::size(kEveryScript));
  EXPECT_TRUE(std::equal(entries.begin() + 3, entries.end(), std::begin(kEveryScript)));
}

TEST_F(ShownFormContract, TextSetByCodeIsShownWithoutAnEvent) {
  form_.Find("txtName").SetText("日本 Ж \U0001F600 & co");
  EXPECT_EQ(Text("txtName"), "日本 Ж \U0001F600 & co");
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(ShownFormContract, AReadOnlyTextBoxKeepsItsText) {
  Click("txtFixed");
  Type("more");
  EXPECT_EQ(Text("txtFixed"), "fixed");
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(ShownFormContract, SelectionsCountCharacters) {
  Control& box = form_.Find("txtName");
  box.SetText("aЖ日\U0001F600b");
  box.SetFocus();
  box.SetSelection({3, 1});
  EXPECT_EQ(box.Selection().start, 3);
  EXPECT_EQ(box.Selection().length, 1);
  Type("x");
  EXPECT_EQ(Text("txtName"), "aЖ日xb");
  EXPECT_EQ(box.Selection().start, 4);
  EXPECT_EQ(box.Selection().length, 0);
  box.SetSelection({0, 5});
  EXPECT_EQ(box.Selection().length, 5);
}

TEST_F(ShownFormContract, ChoosingFromAListIsToldAlsoForTheEntryThatIsChosen) {
  User().Pick(Window(), Id("cboSize"), 1);
  EXPECT_EQ(Text("cboSize"), "Medium");
  EXPECT_EQ(form_.Find("cboSize").ListIndex(), 1);
  EXPECT_EQ(form_.Take(), Lines{"click cboSize"});
  User().Pick(Window(), Id("cboSize"), 1);
  EXPECT_EQ(form_.Take(), Lines{"click cboSize"});
}

TEST_F(ShownFormContract, OpeningAListIsToldAndClosingItChoosesNothing) {
  int opened = 0;
  form_.WhenDroppedDown("cboSize", [&](int) {
    ++opened;
    form_.Find("cboSize").SetWidth(3000);
  });
  form_.Find("cboSize").SetListIndex(0);
  form_.Take();
  int closed = 0;
  form_.WhenClosedUp("cboSize", [&](int) { ++closed; });
  User().OpenAndCloseList(Window(), Id("cboSize"));
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(User().Place(Window(), Id("cboSize")).width, 3000);
  EXPECT_EQ(User().ListIndex(Window(), Id("cboSize")), 0);
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(ShownFormContract, ChangedEntriesAreShownAndTheChoiceStays) {
  Control& list = form_.Find("cboSize");
  list.SetListIndex(1);
  list.SetItemText(1, "2  日本 - Ж");
  list.AddItem("Huge", 7);
  EXPECT_EQ(User().ListEntries(Window(), list.Id()),
            (Lines{"Small", "2  日本 - Ж", "Large", "Huge"}));
  EXPECT_EQ(Text("cboSize"), "2  日本 - Ж");
  list.Clear();
  EXPECT_EQ(User().ListEntries(Window(), list.Id()), Lines{});
  EXPECT_EQ(User().ListIndex(Window(), list.Id()), -1);
}

TEST_F(ShownFormContract, AComboBoxTakesTypedTextAndChoices) {
  FocusOn("cboPlace");
  Type("Ж1");
  EXPECT_EQ(Text("cboPlace"), "Ж1");
  EXPECT_EQ(form_.Find("cboPlace").Text(), "Ж1");
  form_.Take();
  User().Pick(Window(), Id("cboPlace"), 1);
  EXPECT_EQ(Text("cboPlace"), "There");
  EXPECT_EQ(form_.Find("cboPlace").ListIndex(), 1);
}

TEST_F(ShownFormContract, ChoosingATabIsTold) {
  EXPECT_EQ(User().ListEntries(Window(), Id("tabPages")), (Lines{"One", "Two"}));
  EXPECT_EQ(User().ListIndex(Window(), Id("tabPages")), 0);
  User().Pick(Window(), Id("tabPages"), 1);
  EXPECT_EQ(form_.Take(), Lines{"click tabPages"});
  EXPECT_EQ(form_.Find("tabPages").ListIndex(), 1);
  form_.Find("tabPages").SetListIndex(0);
  EXPECT_EQ(User().ListIndex(Window(), Id("tabPages")), 0);
}

TEST_F(ShownFormContract, WhatAPageOrFrameHoldsIsHiddenAndDisabledWithIt) {
  EXPECT_TRUE(User().IsShown(Window(), Id("cmdInside")));
  form_.Find("picPage", 0).SetVisible(false);
  EXPECT_FALSE(User().IsShown(Window(), Id("cmdInside")));
  form_.Find("picPage", 0).SetVisible(true);
  EXPECT_TRUE(User().IsShown(Window(), Id("cmdInside")));
  form_.Find("fraColor").SetEnabled(false);
  EXPECT_FALSE(User().IsEnabled(Window(), Id("optColor", 1)));
}

TEST_F(ShownFormContract, TheFocusLeavesAControlThatIsDisabledOrHidden) {
  FocusOn("cmdStay");
  form_.Find("cmdStay").SetEnabled(false);
  EXPECT_EQ(Focus(), "cmdClose");
  form_.Find("cmdClose").SetVisible(false);
  EXPECT_EQ(Focus(), "cmdInside");
  form_.Find("picPage", 0).SetVisible(false);
  EXPECT_EQ(Focus(), "tabPages");
}

TEST_F(ShownFormContract, AClickableLabelReportsTheMouseThenTheClick) {
  form_.logsMouse = true;
  Click("lblClick");
  Lines told = form_.Take();
  std::erase_if(told, [](const std::string& line) { return line.starts_with("move"); });
  EXPECT_EQ(told, (Lines{"down on lblClick", "up on lblClick", "click lblClick"}));
  EXPECT_EQ(form_.lastMouse.button, MouseButton::kLeft);
}

TEST_F(ShownFormContract, TheMouseIsReportedInTwipsOfTheControlOrTheForm) {
  User().MoveMouse(Window(), Id("txtFixed"), 600, 150);
  EXPECT_EQ(form_.lastMouse.event, MouseEvent::kMove);
  EXPECT_EQ(form_.lastMouse.x, 600);
  EXPECT_EQ(form_.lastMouse.y, 150);
  User().MoveMouse(Window(), 0, 3000, 2100);
  EXPECT_EQ(form_.lastMouse.x, 3000);
  EXPECT_EQ(form_.lastMouse.y, 2100);
}

TEST_F(ShownFormContract, AnErrorInAClickReachesTheReporterAndTheFormGoesOn) {
  int reported = 0;
  forms_.SetUncaughtHandler([&] { ++reported; });
  form_.onClick = [](const std::string&) { throw std::runtime_error("click"); };
  Click("cmdGo");
  EXPECT_EQ(reported, 1);
  form_.onClick = nullptr;
  Click("cmdStay");
  EXPECT_EQ(form_.Take(), (Lines{"click cmdGo", "click cmdStay"}));
}

TEST_F(ShownFormContract, AButtonMayUnloadItsForm) {
  form_.onClick = [&](const std::string&) { form_.Unload(); };
  Click("cmdClose");
  EXPECT_FALSE(form_.IsLoaded());
}

}  // namespace korvale
