#pragma once

#include "tests/contract/contract_fixture.h"

namespace korvale {

TEST_F(ShownFormContract, TheMenuBarShowsTheMenusOfTheDesign) {
  EXPECT_EQ(User().MenuBarItems(Window()),
            (std::vector<ShownMenuItem>{{"File", "F"}, {"Window", "W"}}));
  EXPECT_EQ(User().MenuItems(Window(), {"File"}),
            (std::vector<ShownMenuItem>{{"Open", "O"}, {"-", ""}, {"More", "M"}, {"Exit", "x"}}));
}

TEST_F(ShownFormContract, ChoosingFromAMenuIsTold) {
  User().ChooseMenu(Window(), {"File", "Open"});
  User().ChooseMenu(Window(), {"File", "More", "Deep"});
  EXPECT_EQ(form_.Take(), (Lines{"menu mnuFileOpen", "menu mnuFileMoreDeep"}));
}

TEST_F(ShownFormContract, MarksAndDisabledAndHiddenEntriesAreShown) {
  form_.Menu("mnuFileOpen").checked = true;
  form_.Menu("mnuFileMore").visible = false;
  form_.Menu("mnuFileExit").enabled = false;
  EXPECT_EQ(User().MenuItems(Window(), {"File"}),
            (std::vector<ShownMenuItem>{
                {"Open", "O", true, true}, {"-", ""}, {"Exit", "x", false, false}}));
}

TEST_F(ShownFormContract, AMenuIsShownAsItStandsWhenItOpens) {
  form_.WhenMenuOpens("mnuWindow", [&](int) {
    MenuItem& window = form_.Menu("mnuWindow");
    const MenuItemArray list(window, "mnuList");
    if (list.Find(2) != nullptr) return;
    for (const int index : {2, 1}) {
      MenuItem& item = list.Load(index);
      item.caption = "&" + std::to_string(index) + "  Ж && 日本 - \U0001F600";
      item.visible = true;
    }
  });
  EXPECT_EQ(User().MenuItems(Window(), {"Window"}),
            (std::vector<ShownMenuItem>{{"0  First", "0"},
                                        {"1  Ж & 日本 - \U0001F600", "1"},
                                        {"2  Ж & 日本 - \U0001F600", "2"}}));
  User().ChooseMenu(Window(), {"Window", "2  Ж & 日本 - \U0001F600"});
  EXPECT_EQ(form_.Take(), Lines{"menu mnuList(2)"});
}

TEST_F(ShownFormContract, AMenuShowsEveryScriptCharacterForCharacter) {
  MenuItem& item = form_.Menu("mnuList", 0);
  item.literalFrom = 2;
  for (const char* const text : kEveryScript) {
    item.caption = std::string("&0  ") + text;
    EXPECT_EQ(User().MenuItems(Window(), {"Window"}),
              (std::vector<ShownMenuItem>{{std::string("0  ") + text, "0"}}));
  }
}

TEST_F(ShownFormContract, LiteralAmpersandsOfACaptionAreShown) {
  MenuItem& item = form_.Menu("mnuList", 0);
  item.caption = "&0  R&D && more";
  item.literalFrom = 2;
  EXPECT_EQ(User().MenuItems(Window(), {"Window"}),
            (std::vector<ShownMenuItem>{{"0  R&D && more", "0"}}));
}

TEST_F(ShownFormContract, AnEntryMayRemoveItself) {
  MenuItem& item = MenuItemArray(form_.Menu("mnuWindow"), "mnuList").Load(1);
  item.caption = "gone";
  item.visible = true;
  form_.onMenuClick = [&](const std::string&) {
    MenuItemArray(form_.Menu("mnuWindow"), "mnuList").Unload(1);
  };
  User().ChooseMenu(Window(), {"Window", "gone"});
  EXPECT_EQ(form_.Take(), Lines{"menu mnuList(1)"});
  EXPECT_EQ(User().MenuItems(Window(), {"Window"}),
            (std::vector<ShownMenuItem>{{"0  First", "0"}}));
}

TEST_F(ShownFormContract, TheMenuBarCanBeHiddenAndItsCaptionsChanged) {
  form_.SetMenuShown(false);
  EXPECT_TRUE(User().MenuBarItems(Window()).empty());
  form_.Menu("mnuFile").visible = false;
  form_.Menu("mnuWindow").caption = "&Ж";
  form_.SetMenuShown(true);
  EXPECT_EQ(User().MenuBarItems(Window()), (std::vector<ShownMenuItem>{{"Ж", "Ж"}}));
  form_.Menu("mnuFile").visible = true;
  Host().DrawMenuBar(Window());
  EXPECT_EQ(User().MenuBarItems(Window()).size(), 2U);
}

TEST_F(ShownFormContract, APopUpMenuShowsItsEntriesAndTellsTheChoice) {
  std::vector<ShownMenuItem> shown;
  User().WhenPopupMenu([&](const std::vector<ShownMenuItem>& items) {
    shown = items;
    return "Open";
  });
  Dialogs().TrackPopupMenuEx(Window(), form_.Menu("mnuFile"));
  EXPECT_EQ(shown,
            (std::vector<ShownMenuItem>{{"Open", "O"}, {"-", ""}, {"More", "M"}, {"Exit", "x"}}));
  EXPECT_EQ(form_.Take(), Lines{"menu mnuFileOpen"});
}

TEST_F(ShownFormContract, AClosedPopUpMenuTellsNothing) {
  int opened = 0;
  form_.WhenMenuOpens("mnuFile", [&](int) { ++opened; });
  User().WhenPopupMenu([](const std::vector<ShownMenuItem>&) { return ""; });
  Dialogs().TrackPopupMenuEx(Window(), form_.Menu("mnuFile"));
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(ShownFormContract, AnErrorInAMenuReachesTheReporter) {
  int reported = 0;
  forms_.SetUncaughtHandler([&] { ++reported; });
  form_.onMenuClick = [](const std::string&) { throw std::runtime_error("menu"); };
  User().ChooseMenu(Window(), {"File", "Open"});
  EXPECT_EQ(reported, 1);
}

TEST_F(FormHostContract, AltOpensNoMenuOnceAKeyWasTakenWithIt) {
  ShowForm();
  User().HoldKey(Window(), win32::kVkMenu, 0);
  User().HoldKey(Window(), 'S', 0);
  User().ReleaseKey(Window(), win32::kVkMenu);
  User().ReleaseKey(Window(), 'S');
  EXPECT_EQ(form_.Take(), Lines{"click cmdStay"});
  Press(win32::kVkSpace);
  EXPECT_EQ(form_.Take(), Lines{"click cmdStay"});
}

}  // namespace korvale
