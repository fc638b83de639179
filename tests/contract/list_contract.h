#pragma once

#include "tests/contract/contract_fixture.h"

namespace korvale {

/// A drop-down list in the user's hands.
class ListContract : public FormHostContract {
 protected:
  void SetUp() override {
    ShowForm();
    FocusOn("cboSize");
    form_.Find("cboSize").SetListIndex(0);
    form_.Take();
  }
  bool IsOpen() { return User().IsListOpen(Window(), Id("cboSize")); }
  auto Count(const char* line) { return std::ranges::count(form_.log, line); }
};

TEST_F(ListContract, F4OpensAndClosesIt) {
  Press(win32::kVkF4);
  EXPECT_TRUE(IsOpen());
  EXPECT_TRUE(form_.Find("cboSize").Dropped());
  Press(win32::kVkF4);
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(form_.Find("cboSize").Dropped());
}

TEST_F(ListContract, AltDownOpensItAndAltUpClosesIt) {
  Press(win32::kVkDown, kAlt);
  EXPECT_TRUE(IsOpen());
  Press(win32::kVkUp, kAlt);
  EXPECT_FALSE(IsOpen());
}

TEST_F(ListContract, ArrowsChooseInItAndLeaveItOpen) {
  Press(win32::kVkF4);
  Press(win32::kVkDown);
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(form_.Find("cboSize").ListIndex(), 1);
  Press(win32::kVkDown);
  Press(win32::kVkUp);
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Text("cboSize"), "Medium");
}

TEST_F(ListContract, ArrowsChooseInItWhenTheMouseHasOpenedIt) {
  User().OpenList(Window(), Id("cboSize"));
  EXPECT_TRUE(IsOpen());
  Press(win32::kVkDown);
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(form_.Find("cboSize").ListIndex(), 1);
}

TEST_F(ListContract, TabClosesItKeepsTheChoiceAndGoesOn) {
  Press(win32::kVkF4);
  Press(win32::kVkDown);
  Press(win32::kVkTab);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Focus(), "cboPlace");
  EXPECT_EQ(Text("cboSize"), "Medium");
  EXPECT_EQ(form_.Find("cboSize").ListIndex(), 1);
  Press(win32::kVkEscape);
  EXPECT_EQ(Count("click cmdClose"), 1);
}

TEST_F(ListContract, EnterClosesItAndPressesTheDefaultButtonTheNextTime) {
  Press(win32::kVkF4);
  Press(win32::kVkDown);
  Press(win32::kVkReturn);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(form_.Find("cboSize").ListIndex(), 1);
  EXPECT_EQ(Count("click cmdGo"), 0);
  Press(win32::kVkReturn);
  EXPECT_EQ(Count("click cmdGo"), 1);
}

TEST_F(ListContract, EscClosesItAndFormAndScreenAgreeOnTheChoice) {
  Press(win32::kVkF4);
  Press(win32::kVkDown);
  Press(win32::kVkEscape);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(form_.Find("cboSize").ListIndex(), User().ListIndex(Window(), Id("cboSize")));
  EXPECT_EQ(Count("click cmdClose"), 0);
  Press(win32::kVkEscape);
  EXPECT_EQ(Count("click cmdClose"), 1);
}

TEST_F(ListContract, TheFormSeesTheKeysOfItFirst) {
  std::vector<int> keys;
  form_.onKeyDown = [&](int& key, unsigned) { keys.push_back(key); };
  Press(win32::kVkF4);
  Press(win32::kVkReturn);
  Press(win32::kVkF4);
  Press(win32::kVkEscape);
  EXPECT_EQ(keys,
            (std::vector<int>{win32::kVkF4, win32::kVkReturn, win32::kVkF4, win32::kVkEscape}));
  EXPECT_FALSE(IsOpen());
}

TEST_F(ListContract, AButtonWorksAtTheFirstClickOnceItIsClosed) {
  User().OpenList(Window(), Id("cboSize"));
  Press(win32::kVkDown);
  Press(win32::kVkReturn);
  Click("cmdStay");
  EXPECT_EQ(Count("click cmdStay"), 1);
}

TEST_F(ListContract, TheKeysOfTheFormWorkAfterItWasResizedWhileOpen) {
  form_.onClick = [this](const std::string& name) {
    if (name == "cboSize") form_.Find("cboSize").SetWidth(1500);
  };
  Press(win32::kVkF4);
  Press(win32::kVkDown);
  // Resizing it may have closed it without a notification.
  if (IsOpen()) Press(win32::kVkEscape);
  Press(win32::kVkEscape);
  EXPECT_EQ(Count("click cmdClose"), 1);
}

}  // namespace korvale
