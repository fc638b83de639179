#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"
#include "util/characters.h"
#include "util/text.h"

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
    {"LongEmoji", Times(30000, "👩‍💻"), "1  " + Times(40, "👩‍💻") + "👩\u200d..."},
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

constexpr int kWhole = 0;
constexpr int kRight = 2;

/// True when nothing in the text tears it apart or is only a part of a character.
bool IsOneLine(std::string_view text, bool utf8) {
  return std::ranges::all_of(SplitCharacters(text), [&](std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    return first >= 0x20 && first != 0x7F && (!utf8 || FirstCharacter(character).valid);
  });
}

bool IsUtf8(std::string_view text) {
  return std::ranges::all_of(SplitCharacters(text), [](std::string_view character) {
    return FirstCharacter(character).valid;
  });
}

void PrintTo(const StrangeTitle& title, std::ostream* out) { *out << title.name; }

class StrangeTitles : public KorvaleWorld,
                      public testing::WithParamInterface<std::tuple<StrangeTitle, int>> {
 protected:
  const StrangeTitle& Case() { return std::get<0>(GetParam()); }
  int Choice() { return std::get<1>(GetParam()); }
  bool Offered() { return Choice() == kWhole || (Choice() == kRight ? Case().right : Case().left); }

  /// Tags the window by the part under test.
  void Tag(KorvaleCopy& korvale) {
    korvale.TagPrevious([&](class Form& dialog) {
      EXPECT_EQ(dialog.Find("txtWindow").Text(), Case().title);
      for (int choice = kWhole; choice <= kRight; ++choice) {
        EXPECT_TRUE(IsOneLine(dialog.Find("optWindow", choice).Text(), IsUtf8(Case().title)));
      }
      EXPECT_EQ(korvale.user.IsShown(dialog.Handle(), korvale.Id(dialog, "optWindow", Choice())),
                Offered());
      if (Offered()) korvale.user.Click(dialog.Handle(), korvale.Id(dialog, "optWindow", Choice()));
    });
  }

  void ExpectMenuToShowIt(KorvaleCopy& korvale) {
    const std::vector<ShownMenuItem> items = korvale.WindowMenuItems();
    for (const ShownMenuItem& item : items) {
      EXPECT_TRUE(IsOneLine(item.caption, IsUtf8(Case().title))) << item.caption;
      EXPECT_LE(CharacterCount(item.caption), 129);
    }
    EXPECT_EQ(items[7].accessKey, "1");
    if (Choice() == kWhole) {
      EXPECT_EQ(items[7].caption, Case().entry);
    }
  }

  /// The user opens the dialog for another Tag, and then looks at the first.
  void ExpectDialogToShowItTaken(KorvaleCopy& korvale) {
    korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
      const int tags = korvale.Id(dialog, "cboWindow");
      EXPECT_EQ(dialog.Find("cboWindow").SelectedText(), "2");
      const std::string item = korvale.user.ListEntries(dialog.Handle(), tags).front();
      EXPECT_TRUE(item.starts_with("1  "));
      EXPECT_TRUE(IsOneLine(item, IsUtf8(Case().title)));
      EXPECT_NE(item.find_first_not_of(' ', 1), std::string::npos);
      korvale.user.Pick(dialog.Handle(), tags, 0);
      const std::string shown = dialog.Find("lblWindow").Text();
      EXPECT_NE(shown, "Available");
      EXPECT_NE(shown.find_first_not_of(' '), std::string::npos);
      EXPECT_TRUE(dialog.Find("cmdRemove").Enabled());
      korvale.user.Click(dialog.Handle(), korvale.Id(dialog, "cmdClose"));
    });
    korvale.ChooseLate("mnuWindowAddToList", 1);
  }

  void ExpectKeyToLeadToIt() {
    WorkIn(desktop.FindWindowA("Beta"));
    PressTag(1);
    EXPECT_EQ(desktop.GetForegroundWindow(), strange_);
    LetTick();
  }

  const WindowHandle strange_ = Open(Case().title, {.className = "Strange"});
};

TEST_P(StrangeTitles, AreTaggedFoundAgainAndToldOf) {
  KorvaleCopy& korvale = StartedAfter(strange_);
  EXPECT_EQ(korvale.TargetWindow(), Case().title);
  Open("Elsewhere");
  Open("Beta");
  WorkIn(strange_);
  WorkIn(korvale.Handle());
  Tag(korvale);
  if (!Offered()) return;
  ExpectMenuToShowIt(korvale);
  ExpectDialogToShowItTaken(korvale);
  ExpectKeyToLeadToIt();
  korvale.Exit();
  EndCopy(korvale);

  KorvaleCopy& next = StartedCopy();
  ExpectKeyToLeadToIt();
  ExpectMenuToShowIt(next);
  desktop.Close(strange_);
  WorkIn(desktop.FindWindowA("Beta"));
  if (!Case().unique) return;
  next.host.WhenMessageBox([&](const ShownMessage& box) {
    EXPECT_TRUE(box.text.starts_with("Window:  [")) << box.text;
    EXPECT_TRUE(box.text.ends_with("]  is not open.")) << box.text;
    EXPECT_TRUE(IsOneLine(box.text, IsUtf8(Case().title)));
    EXPECT_LE(CharacterCount(box.text), 300);
    return win32::kIdOk;
  });
  PressTag(1);
  EXPECT_EQ(Front(), "Beta");
}

std::string CaseName(const testing::TestParamInfo<std::tuple<StrangeTitle, int>>& test) {
  constexpr std::array kParts = {"Whole", "Left", "Right"};
  const auto& [title, choice] = test.param;
  return std::string(title.name) + "By" + kParts.at(static_cast<std::size_t>(choice));
}

INSTANTIATE_TEST_SUITE_P(Titles, StrangeTitles,
                         testing::Combine(testing::ValuesIn(kStrangeTitles),
                                          testing::Values(kWhole, 1, kRight)),
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
    EXPECT_EQ(dialog.Find("optWindow", kRight).Text(), "*** - Copying");
    korvale.user.Click(dialog.Handle(), korvale.Id(dialog, "optWindow", kRight));
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
