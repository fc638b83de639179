#pragma once

#include "tests/contract/contract_fixture.h"

namespace korvale {

/// Keys that the program leaves to the controls.
inline constexpr int kPageUp = 0x21;
inline constexpr int kPageDown = 0x22;
/// A key that Windows leaves to programs also when the Windows key is held.
inline constexpr int kF8 = 0x77;
/// What comes instead of each key that an input method takes for itself (VK_PROCESSKEY), Enter and
/// Esc too.
inline constexpr int kTakenByInputMethod = 0xE5;

TEST_F(ShownFormContract, TheFirstTabStopHasTheFocusAtFirst) { EXPECT_EQ(Focus(), "txtName"); }

TEST_F(FormHostContract, AFocusChosenWhileLoadingHolds) {
  form_.onLoad = [&] { FocusOn("cmdStay"); };
  form_.Show();
  EXPECT_EQ(Focus(), "cmdStay");
}

TEST_F(ShownFormContract, TabGoesThroughTheStopsAndRoundAgain) {
  Lines stops;
  for (int i = 0; i < 11; ++i) {
    Press(win32::kVkTab);
    stops.push_back(Focus());
  }
  EXPECT_EQ(stops, (Lines{"txtFixed", "chkDaily", "optColor", "cboSize", "cboPlace", "cmdGo",
                          "cmdStay", "cmdClose", "cmdInside", "tabPages", "txtName"}));
  Press(win32::kVkTab, kShift);
  EXPECT_EQ(Focus(), "tabPages");
}

TEST_F(ShownFormContract, TabStopsAtTheChosenOptionAndSkipsAHiddenPage) {
  form_.Find("optColor", 1).SetValue(1);
  form_.Find("picPage", 0).SetVisible(false);
  FocusOn("chkDaily");
  Press(win32::kVkTab);
  EXPECT_EQ(User().Focus(Window()), Id("optColor", 1));
  FocusOn("cmdClose");
  Press(win32::kVkTab);
  EXPECT_EQ(Focus(), "tabPages");
}

TEST_F(ShownFormContract, EnterPressesTheDefaultButtonAndEscTheCancelButton) {
  Press(win32::kVkReturn);
  Press(win32::kVkEscape);
  EXPECT_EQ(form_.Take(), (Lines{"click cmdGo", "click cmdClose"}));
  EXPECT_EQ(Focus(), "txtName");
}

TEST_F(ShownFormContract, AKeyThatTheInputMethodTakesPressesNothing) {
  Press(kTakenByInputMethod);
  Press(kTakenByInputMethod, kShift);
  EXPECT_EQ(form_.Take(), Lines{});
  EXPECT_EQ(Focus(), "txtName");
  EXPECT_EQ(Text("txtName"), "");
  EXPECT_TRUE(form_.IsLoaded());
}

TEST_F(ShownFormContract, EnterPressesTheButtonThatHasTheFocus) {
  FocusOn("cmdStay");
  Press(win32::kVkReturn);
  EXPECT_EQ(form_.Take(), Lines{"click cmdStay"});
}

TEST_F(ShownFormContract, ADisabledDefaultButtonIsNotPressed) {
  form_.Find("cmdGo").SetEnabled(false);
  Press(win32::kVkReturn);
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(ShownFormContract, TheSpaceBarPressesWhatHasTheFocus) {
  FocusOn("cmdStay");
  Press(win32::kVkSpace);
  FocusOn("chkDaily");
  Press(win32::kVkSpace);
  EXPECT_EQ(Value("chkDaily"), 1);
  EXPECT_EQ(form_.Take(), (Lines{"click cmdStay", "click chkDaily"}));
}

TEST_F(ShownFormContract, AltAndTheAccessKeyReachesControlsOfEachKind) {
  FocusOn("cmdClose");
  Press('N', kAlt);
  EXPECT_EQ(Focus(), "txtName");
  Press('Y', kAlt);
  EXPECT_EQ(Focus(), "chkDaily");
  EXPECT_EQ(Value("chkDaily"), 1);
  Press('B', kAlt);
  EXPECT_EQ(Value("optColor", 1), 1);
  Press('S', kAlt);
  EXPECT_EQ(Focus(), "cmdStay");
  Press('I', kAlt);
  EXPECT_EQ(form_.Take(),
            (Lines{"click chkDaily", "click optColor(1)", "click cmdStay", "click cmdInside"}));
}

TEST_F(ShownFormContract, TheAccessKeyOfAFrameLeadsIntoIt) {
  form_.Find("optColor", 2).SetValue(1);
  Press('C', kAlt);
  EXPECT_EQ(User().Focus(Window()), Id("optColor", 2));
}

TEST_F(ShownFormContract, HiddenAndDisabledControlsHaveNoAccessKey) {
  form_.Find("cmdStay").SetEnabled(false);
  form_.Find("picPage", 0).SetVisible(false);
  Press('S', kAlt);
  Press('I', kAlt);
  EXPECT_EQ(form_.Take(), Lines{});
  EXPECT_EQ(Focus(), "txtName");
}

TEST_F(ShownFormContract, APlainLetterIsAnAccessKeyWhereNoTextIsTyped) {
  Type("s");
  EXPECT_EQ(Text("txtName"), "s");
  FocusOn("cmdGo");
  form_.Take();
  Type("s");
  EXPECT_EQ(form_.Take(), Lines{"click cmdStay"});
  EXPECT_EQ(Text("txtName"), "s");
}

TEST_F(ShownFormContract, AccessKeysWorkInAnyScript) {
  form_.Find("cmdStay").SetText("(&Ж) stay");
  TypeWithAlt("ж");
  EXPECT_EQ(form_.Take(), Lines{"click cmdStay"});
}

TEST_F(ShownFormContract, ArrowsMoveTheChoiceAmongOptions) {
  FocusOn("optColor", 0);
  Press(win32::kVkDown);
  EXPECT_EQ(Value("optColor", 1), 1);
  Press(win32::kVkUp);
  Press(win32::kVkLeft);
  EXPECT_EQ(Value("optColor", 2), 1);
  EXPECT_EQ(User().Focus(Window()), Id("optColor", 2));
  EXPECT_EQ(form_.Take(), (Lines{"click optColor(1)", "click optColor(0)", "click optColor(2)"}));
}

TEST_F(ShownFormContract, TheFormSeesEachKeyFirstAndMaySwallowIt) {
  std::vector<int> keys;
  form_.onKeyDown = [&](int& key, unsigned) {
    keys.push_back(key);
    if (key == 'Q' || key == win32::kVkReturn) key = 0;
  };
  Type("aqb");
  Press(win32::kVkReturn);
  EXPECT_EQ(Text("txtName"), "ab");
  EXPECT_EQ(keys, (std::vector<int>{'A', 'Q', 'B', win32::kVkReturn}));
  EXPECT_EQ(form_.Take(), (Lines{"click txtName", "click txtName"}));
}

TEST_F(ShownFormContract, TheShiftStateComesWithTheKey) {
  std::vector<unsigned> shifts;
  form_.onKeyDown = [&](int& key, unsigned shift) {
    if (key == kF8) shifts.push_back(shift);
  };
  Press(kF8);
  Press(kF8, kShift);
  Press(kF8, kCtrl);
  Press(kF8, kShift | kCtrl);
  Press(kF8, kWindows);
  EXPECT_EQ(shifts, (std::vector<unsigned>{kNoShift, kShift, kCtrl, kShift | kCtrl, kWindows}));
}

TEST_F(ShownFormContract, ReleasedKeysAreSeenToo) {
  std::vector<int> keys;
  form_.onKeyUp = [&](int& key, unsigned) { keys.push_back(key); };
  Press(win32::kVkHome);
  EXPECT_EQ(keys, std::vector<int>{win32::kVkHome});
}

TEST_F(ShownFormContract, AKeyThatIsHeldIsToldAsRepeated) {
  std::vector<bool> repeats;
  form_.onKeyDown = [&](int&, unsigned) { repeats.push_back(form_.KeyRepeats()); };
  User().HoldKey(Window(), 'A', 2);
  User().ReleaseKey(Window(), 'A');
  User().HoldKey(Window(), 'A', 0);
  User().ReleaseKey(Window(), 'A');
  EXPECT_EQ(repeats, (std::vector<bool>{false, true, true, false}));
  EXPECT_EQ(Text("txtName"), "aaaa");
}

TEST_F(ShownFormContract, AReleaseIsSeenWhereTheFocusIsByThen) {
  std::vector<int> released;
  form_.onKeyUp = [&](int& key, unsigned) { released.push_back(key); };
  FocusOn("cmdGo");
  User().HoldKey(Window(), win32::kVkHome, 0);
  FocusOn("cmdStay");
  User().ReleaseKey(Window(), win32::kVkHome);
  EXPECT_EQ(released, std::vector<int>{win32::kVkHome});
}

TEST_F(ShownFormContract, ATextOfOneLineGetsNoCharacterThatItWouldBeepAt) {
  form_.Find("cmdGo").SetEnabled(false);
  form_.Find("cmdClose").SetEnabled(false);
  const std::string given = User().CharactersFor(Window(), Id("txtName"), [&] {
    Press(win32::kVkReturn);
    Press(win32::kVkEscape);
    Type("a");
  });
  EXPECT_EQ(given, "a");
  EXPECT_EQ(Text("txtName"), "a");
}

TEST_F(ShownFormContract, AltF4AsksTheFormToCloseUnlessItDealsWithTheKey) {
  form_.onKeyDown = [](int& key, unsigned shift) {
    if (key == win32::kVkF4 && shift == kAlt) key = 0;
  };
  Press(win32::kVkF4, kAlt);
  EXPECT_TRUE(form_.IsLoaded());
  form_.onKeyDown = nullptr;
  Press(win32::kVkF4, kAlt);
  EXPECT_FALSE(form_.IsLoaded());
  EXPECT_EQ(form_.closeReasons, std::vector<CloseReason>{CloseReason::kUser});
}

TEST_F(ShownFormContract, AKeyMayUnloadTheForm) {
  form_.onKeyDown = [&](int&, unsigned) { form_.Unload(); };
  Press(win32::kVkEscape);
  EXPECT_FALSE(form_.IsLoaded());
}

TEST_F(ShownFormContract, ArrowsAndLettersChooseInADropDownList) {
  FocusOn("cboSize");
  Press(win32::kVkDown);
  Press(win32::kVkDown);
  EXPECT_EQ(Text("cboSize"), "Medium");
  Type("l");
  EXPECT_EQ(Text("cboSize"), "Large");
  EXPECT_EQ(form_.Find("cboSize").ListIndex(), 2);
}

TEST_F(ShownFormContract, PagingHomeAndEndChooseInADropDownList) {
  FocusOn("cboSize");
  form_.Find("cboSize").SetListIndex(0);
  std::vector<std::string> chosen;
  for (const int key : {kPageDown, kPageUp, win32::kVkEnd, win32::kVkHome}) {
    Press(key);
    chosen.push_back(Text("cboSize"));
  }
  EXPECT_EQ(chosen, (Lines{"Large", "Small", "Large", "Small"}));
  EXPECT_FALSE(User().IsListOpen(Window(), Id("cboSize")));
}

TEST_F(ShownFormContract, EscClosesAnOpenListAndNotTheForm) {
  int opened = 0;
  form_.WhenDroppedDown("cboSize", [&](int) { ++opened; });
  FocusOn("cboSize");
  Press(win32::kVkF4);
  EXPECT_EQ(opened, 1);
  Press(win32::kVkEscape);
  EXPECT_EQ(form_.Take(), Lines{});
  Press(win32::kVkEscape);
  EXPECT_EQ(form_.Take(), Lines{"click cmdClose"});
}

TEST_F(ShownFormContract, EnterTakesTheEntryOfAnOpenListAndPressesNoButton) {
  FocusOn("cboSize");
  form_.Find("cboSize").SetListIndex(0);
  form_.Take();
  Press(win32::kVkF4);
  Press(win32::kVkDown);
  Press(win32::kVkReturn);
  EXPECT_EQ(Text("cboSize"), "Medium");
  EXPECT_EQ(form_.Find("cboSize").ListIndex(), 1);
  const Lines told = form_.Take();
  EXPECT_EQ(std::ranges::count(told, "click cmdGo"), 0);
  EXPECT_GE(std::ranges::count(told, "click cboSize"), 1);
}

TEST_F(ShownFormContract, HomeEndAndShiftMoveTheSelection) {
  form_.Find("txtName").SetText("Жabc");
  Press(win32::kVkEnd);
  EXPECT_EQ(form_.Find("txtName").Selection().start, 4);
  Press(win32::kVkHome, kShift);
  EXPECT_EQ(form_.Find("txtName").Selection().start, 0);
  EXPECT_EQ(form_.Find("txtName").Selection().length, 4);
  Type("z");
  EXPECT_EQ(Text("txtName"), "z");
}

TEST_F(ShownFormContract, TheFocusMovesInAnInactiveFormWithoutActivatingIt) {
  dialog_.Show();
  FocusOn("cmdStay");
  EXPECT_EQ(User().Focus(Window()), 0);
  dialog_.Unload();
  EXPECT_EQ(Focus(), "cmdStay");
}

}  // namespace korvale
