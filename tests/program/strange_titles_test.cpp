#include <array>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "app/core/stored_tags.h"
#include "tests/program/strange_title_world.h"

namespace korvale {
namespace {

std::string Times(int count, std::string_view text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

struct StrangeTitle {
  const char* name;
  std::string title;
  /// The Tag's entry in the Window menu when the whole title identifies the window.
  std::string entry;
  /// Whether the left and the right part of the title find the window again.
  bool left = true;
  bool right = true;
  /// Whether no other window has the text in its title.
  bool unique = true;
};

const StrangeTitle kStrangeTitles[] = {
    {"Long", Times(65536, "x"), "1  " + Times(122, "x") + "..."},
    {"LongWithSeparators", Times(20000, "a - "), "1  " + Times(30, "a - ") + "a ...", true, false},
    {"LongEmoji", Times(30000, "👩‍💻"), "1  " + Times(40, "👩‍💻") + "..."},
    {"ControlCharacters", "a\tb\nc\r\nd\x1f - e\x7f", "1  a b c  d  - e "},
    {"OnlyControlCharacters", "\t", "1   "},
    {"NulInside", std::string("a\0b - c", 7), "1  a b - c"},
    // What is left of half a surrogate pair.
    {"HalfCharacters", "\uFFFDa - b\uFFFD", "1  \uFFFDa - b\uFFFD"},
    {"NoUtf8", "\xff\xfe - \xc3", "1  \xff\xfe - \xc3"},
    {"OneAmpersand", "&", "1  &"},
    {"OnlyAmpersands", "&&&&", "1  &&&&"},
    {"AmpersandsInBothParts", "&O - R&&D&", "1  &O - R&&D&"},
    {"OnlyASeparator", " - ", "1   - ", false, false, false},
    {"OnlyTheRightMark", "*** - ", "1  *** - "},
    {"OnlyTheLeftMark", " - ***", "1   - ***", true, false},
    {"OnlyStars", "***", "1  ***"},
    {"BothMarks", "*** - ***", "1  *** - ***"},
    {"RightMarkAndTwoParts", "*** - a - b", "1  *** - a - b"},
    {"TwoPartsAndLeftMark", "a - b - ***", "1  a - b - ***", true, false},
    {"RightMarkBehindBlanks", "  *** - a - b", "1    *** - a - b", false, true},
    {"NothingLeft", " - Editor", "1   - Editor", false, true},
    {"NothingRight", "Editor - ", "1  Editor - ", true, false},
    {"BlanksAtItsEnds", "  a - b  ", "1    a - b  ", false, false},
    {"Hebrew", "שלום - עולם\u200f!", "1  שלום - עולם\u200f!"},
    {"ArabicEmbedded", "\u202bمرحبا\u202c - x", "1  \u202bمرحبا\u202c - x"},
    {"CombiningMarks", "e" + Times(40, "\u0301") + " - x", "1  e" + Times(40, "\u0301") + " - x"},
    {"Families", Times(12, "👨‍👩‍👧‍👦"),
     "1  " + Times(12, "👨‍👩‍👧‍👦")},
};

void PrintTo(const StrangeTitle& title, std::ostream* out) { *out << title.name; }

class StrangeTitles : public StrangeTitleWorld,
                      public testing::WithParamInterface<std::tuple<StrangeTitle, int>> {
 protected:
  StrangeTitles() : StrangeTitleWorld(std::get<0>(GetParam()).title) {}
};

TEST_P(StrangeTitles, AreTaggedFoundAgainAndToldOf) {
  const auto& [title, choice] = GetParam();
  const bool offered = choice == kWhole || (choice == kRight ? title.right : title.left);
  TagAndUse(choice, {offered, choice == kWhole ? title.entry : "", title.unique});
}

std::string CaseName(const testing::TestParamInfo<std::tuple<StrangeTitle, int>>& test) {
  constexpr std::array kParts = {"Whole", "Left", "Right"};
  const auto& [title, choice] = test.param;
  return std::string(title.name) + "By" + kParts.at(static_cast<std::size_t>(choice));
}

INSTANTIATE_TEST_SUITE_P(Titles, StrangeTitles,
                         testing::Combine(testing::ValuesIn(kStrangeTitles), testing::Range(0, 3)),
                         CaseName);

class RestlessTitle : public KorvaleWorld {
 protected:
  /// A window whose title is another one each time that it is read.
  WindowHandle OpenRestless() {
    const WindowHandle hwnd = Open("Copying");
    desktop.CountReadings(hwnd);
    return hwnd;
  }
};

TEST_F(RestlessTitle, TagZeroLeadsBackAndForth) {
  const WindowHandle restless = OpenRestless();
  KorvaleCopy& korvale = StartedAfter(restless);
  EXPECT_TRUE(korvale.TargetWindow().ends_with(" % - Copying"));
  WorkIn(restless);
  WorkIn(Open("Beta"));
  for (int round = 0; round < 3; ++round) {
    PressTag(0);
    EXPECT_EQ(desktop.GetForegroundWindow(), restless);
    ExpectTagLeadsTo(0, "Beta");
  }
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(RestlessTitle, TagZeroLeadsToItsDialog) {
  const WindowHandle restless = OpenRestless();
  StartedAfter(restless);
  WorkIn(restless);
  const WindowHandle dialog = desktop.OpenModalDialog(restless, "Replace");
  desktop.CountReadings(dialog);
  LetTick();
  WorkIn(Open("Beta"));
  PressTag(0);
  EXPECT_EQ(desktop.GetForegroundWindow(), dialog);
}

TEST_F(RestlessTitle, ThePartThatStaysIdentifiesTheWindow) {
  const WindowHandle restless = OpenRestless();
  KorvaleCopy& korvale = StartedAfter(restless);
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    EXPECT_EQ(dialog.Find("optWindow", 2).Text(), "*** - Copying");
    korvale.user.Click(dialog.Handle(), korvale.Id(dialog, "optWindow", 2));
    korvale.user.Click(dialog.Handle(), korvale.Id(dialog, "cmdOK"));
  });
  korvale.ChooseLate("mnuWindowAddToList", 2);
  korvale.Exit();
  EndCopy(korvale);
  KorvaleCopy& next = StartedCopy();
  WorkIn(Open("Elsewhere"));
  WorkIn(Open("Beta"));
  PressTag(1);
  EXPECT_EQ(desktop.GetForegroundWindow(), restless);
  EXPECT_TRUE(next.host.Messages().empty());
}

class ThousandWindows : public KorvaleWorld {
 protected:
  static constexpr int kWindows = 1000;
  /// Of one window during one search: the filter, and for each Tag its class, title and child.
  static constexpr std::size_t kQuestions = 80;

  ThousandWindows() {
    for (int i = 0; i < kWindows; ++i) {
      windows_.push_back(desktop.Open("Same", {.className = "Same", .activate = false}));
    }
    for (int tag = 1; tag <= kTagCount; ++tag) StoreTag(tag, "Same", tag == 9 ? "Gone" : "Same");
    StartedCopy();
    WorkIn(Open("Beta"));
    log.IncludeReads(true);
    log.Clear();
  }

  std::vector<WindowHandle> windows_;
};

TEST_F(ThousandWindows, OfOneTitleAndClassTheTopmostIsFoundWithoutAskingEachForEver) {
  PressTag(1);
  EXPECT_EQ(desktop.GetForegroundWindow(), windows_.back());
  EXPECT_LT(log.Calls().size(), kQuestions * kWindows);
}

TEST_F(ThousandWindows, OfOneTitleAloneTheLowestIsFoundWithoutAskingEachForEver) {
  PressTag(9);
  EXPECT_EQ(desktop.GetForegroundWindow(), windows_.front());
  EXPECT_LT(log.Calls().size(), kQuestions * kWindows);
}

}  // namespace
}  // namespace korvale
