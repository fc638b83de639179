#include "platform/menu_model.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "platform/form_model.h"
#include "platform/run_time_error.h"
#include "tests/fakes/error_of.h"
#include "ui/menu_text.h"

namespace korvale {
namespace {

constexpr std::array kRows = {
    MenuRow{0, "mnuFile", -1, "&File"},
    MenuRow{1, "mnuFileExit", -1, "E&xit"},
    MenuRow{0, "mnuView", -1, "&View"},
    MenuRow{1, "mnuViewMore", -1, "&More"},
    MenuRow{2, "mnuViewMoreDeep", -1, "&Deep"},
    MenuRow{1, "mnuViewLine", -1, "-"},
    MenuRow{0, "mnuWindow", -1, "&Window"},
    MenuRow{1, "mnuAdd", -1, "&Add"},
    MenuRow{1, "mnuList", 0, "&0"},
    MenuRow{1, "mnuLast", -1, "Last"},
};

std::vector<std::string> NamesOf(const MenuItem& menu) {
  std::vector<std::string> names;
  for (const auto& item : menu.items) {
    names.push_back(item->index < 0 ? item->name : item->name + std::to_string(item->index));
  }
  return names;
}

TEST(MenuBarTest, RowsNestByTheirDepth) {
  MenuBar bar(kRows);
  EXPECT_EQ(NamesOf(bar.Root()), (std::vector<std::string>{"mnuFile", "mnuView", "mnuWindow"}));
  EXPECT_EQ(NamesOf(*bar.Find("mnuView")),
            (std::vector<std::string>{"mnuViewMore", "mnuViewLine"}));
  EXPECT_EQ(NamesOf(*bar.Find("mnuViewMore")), std::vector<std::string>{"mnuViewMoreDeep"});
}

TEST(MenuBarTest, AFormShowsItsMenuBarWhileOneOfTheMenusIsVisible) {
  FormState form;
  EXPECT_FALSE(form.ShowsMenuBar());
  form.menu = MenuBar(kRows);
  EXPECT_TRUE(form.ShowsMenuBar());
  form.menuShown = false;
  EXPECT_FALSE(form.ShowsMenuBar());
  form.menuShown = true;
  for (const char* const menu : {"mnuFile", "mnuView"}) form.menu.Find(menu)->visible = false;
  EXPECT_TRUE(form.ShowsMenuBar());
  form.menu.Find("mnuWindow")->visible = false;
  EXPECT_FALSE(form.ShowsMenuBar());
}

TEST(MenuBarTest, EntriesAreFoundAtAnyDepthByNameAndIndex) {
  MenuBar bar(kRows);
  EXPECT_EQ(bar.Find("mnuViewMoreDeep")->caption, "&Deep");
  EXPECT_EQ(bar.Find("mnuList", 0)->caption, "&0");
  EXPECT_EQ(bar.Find("mnuList"), nullptr);
  EXPECT_EQ(bar.Find("mnuList", 1), nullptr);
  EXPECT_EQ(bar.Find("mnufile"), nullptr);
  EXPECT_TRUE(bar.Find("mnuViewLine")->IsSeparator());
}

class MenuItemArrayTest : public testing::Test {
 protected:
  MenuBar bar_{kRows};
  MenuItem& window_ = *bar_.Find("mnuWindow");
  MenuItemArray list_{window_, "mnuList"};
};

TEST_F(MenuItemArrayTest, NewElementsStandInTheOrderOfTheirIndexes) {
  for (const int index : {5, 2, 9, 3}) list_.Load(index);
  EXPECT_EQ(NamesOf(window_),
            (std::vector<std::string>{"mnuAdd", "mnuList0", "mnuList2", "mnuList3", "mnuList5",
                                      "mnuList9", "mnuLast"}));
  EXPECT_EQ(list_.Indexes(), (std::vector<int>{0, 2, 3, 5, 9}));
}

TEST_F(MenuItemArrayTest, ANewElementIsInvisibleAndWithoutCaption) {
  const MenuItem& item = list_.Load(4);
  EXPECT_FALSE(item.visible);
  EXPECT_EQ(item.caption, "");
  EXPECT_EQ(list_.Find(4), &item);
}

TEST_F(MenuItemArrayTest, AnElementIsLoadedOnlyOnce) {
  list_.Load(4);
  EXPECT_EQ(ErrorOf([&] { list_.Load(4); }), 360);
  EXPECT_EQ(ErrorOf([&] { list_.Load(0); }), 360);
  EXPECT_EQ(list_.Indexes(), (std::vector<int>{0, 4}));
}

TEST_F(MenuItemArrayTest, AnElementThatDoesNotExistCannotBeUnloaded) {
  try {
    list_.Unload(7);
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), 340);
    EXPECT_STREQ(error.what(), "Control array element '7' doesn't exist");
  }
}

TEST_F(MenuItemArrayTest, TheElementOfTheDesignStays) {
  EXPECT_EQ(ErrorOf([&] { list_.Unload(0); }), 362);
  EXPECT_NE(list_.Find(0), nullptr);
}

TEST_F(MenuItemArrayTest, AnUnloadedElementIsGone) {
  list_.Load(1);
  list_.Load(2);
  list_.Unload(1);
  EXPECT_EQ(list_.Find(1), nullptr);
  EXPECT_EQ(list_.Indexes(), (std::vector<int>{0, 2}));
}

TEST_F(MenuItemArrayTest, ElementsAreVisitedInTheOrderOfTheirIndexes) {
  for (const int index : {3, 1}) list_.Load(index);
  std::vector<int> visited;
  list_.ForEach([&](MenuItem& item) { visited.push_back(item.index); });
  EXPECT_EQ(visited, (std::vector<int>{0, 1, 3}));
}

TEST(MenuItemArrayOrderTest, IndexesAscendWhateverTheDesign) {
  static constexpr std::array kUnsorted = {
      MenuRow{0, "mnuMenu", -1, "Menu"},
      MenuRow{1, "mnuList", 3, "3"},
      MenuRow{1, "mnuList", 0, "0"},
  };
  MenuBar bar(kUnsorted);
  EXPECT_EQ(MenuItemArray(*bar.Find("mnuMenu"), "mnuList").Indexes(), (std::vector<int>{0, 3}));
}

TEST(MenuItemArrayOrderTest, ElementsOfAnotherArrayAreNoNeighbours) {
  static constexpr std::array kTwoArrays = {
      MenuRow{0, "mnuMenu", -1, "Menu"},
      MenuRow{1, "mnuOther", 5, "5"},
      MenuRow{1, "mnuList", 0, "0"},
  };
  MenuBar bar(kTwoArrays);
  MenuItem& menu = *bar.Find("mnuMenu");
  MenuItemArray(menu, "mnuList").Load(1);
  EXPECT_EQ(NamesOf(menu), (std::vector<std::string>{"mnuOther5", "mnuList0", "mnuList1"}));
}

TEST_F(MenuItemArrayTest, AnArrayWithoutElementsGrowsAtTheEndOfItsMenu) {
  const MenuItemArray other(window_, "mnuOther");
  EXPECT_TRUE(other.Indexes().empty());
  EXPECT_EQ(ErrorOf([&] { other.Unload(0); }), 340);
  other.Load(1);
  EXPECT_EQ(NamesOf(window_).back(), "mnuOther1");
}

TEST(MenuTextTest, ShowsALiteralPartAsItIsAndOnOneLine) {
  MenuItem item;
  item.caption = "&1  R&D\tof\n& \x1f\x7f 日";
  item.literalFrom = 2;
  EXPECT_EQ(MenuText(item), "&1  R&&D of &&    日");
  item.literalFrom = 0;
  EXPECT_EQ(MenuText(item), "&&1  R&&D of &&    日");
  item.literalFrom = -1;
  EXPECT_EQ(MenuText(item), item.caption);
}

}  // namespace
}  // namespace korvale
