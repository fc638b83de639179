#include "tests/program/strange_title_world.h"

#include <algorithm>
#include <vector>

#include "platform/win32_constants.h"
#include "util/characters.h"
#include "util/text.h"

namespace korvale {
namespace {

bool IsUtf8(std::string_view text) {
  return std::ranges::all_of(SplitCharacters(text), [](std::string_view character) {
    return FirstCharacter(character).valid;
  });
}

}  // namespace

StrangeTitleWorld::StrangeTitleWorld(const std::string& title, const std::string& className)
    : title_(title), utf8_(IsUtf8(title)), strange_(Open(title, {.className = className})) {}

void StrangeTitleWorld::TagAndUse(int choice, const Known& known) {
  KorvaleCopy& korvale = StartedAfter(strange_);
  EXPECT_EQ(korvale.TargetWindow(), title_.empty() ? "(window without a title)" : title_);
  Open("Elsewhere");
  Open("Beta");
  WorkIn(strange_);
  WorkIn(korvale.Handle());
  Tag(korvale, choice, known.offered);
  if (!known.offered) return;
  ExpectMenuToShowIt(korvale, known.entry);
  ExpectDialogToShowItTaken(korvale);
  ExpectKeyToLeadToIt();
  korvale.Exit();
  EndCopy(korvale);

  KorvaleCopy& next = StartedCopy();
  ExpectKeyToLeadToIt();
  ExpectMenuToShowIt(next, known.entry);
  desktop.Close(strange_);
  WorkIn(desktop.FindWindowA("Beta"));
  if (known.unique) ExpectToBeToldThatItIsClosed(next);
}

bool StrangeTitleWorld::IsOneLine(std::string_view text) const {
  return std::ranges::all_of(SplitCharacters(text), [&](std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    return first >= 0x20 && first != 0x7F && (!utf8_ || FirstCharacter(character).valid);
  });
}

void StrangeTitleWorld::Tag(KorvaleCopy& korvale, int choice, bool offered) {
  korvale.TagPrevious([&](class Form& dialog) {
    EXPECT_EQ(dialog.Find("txtWindow").Text(), title_);
    for (int each = kWhole; each <= kRight; ++each) {
      EXPECT_TRUE(IsOneLine(dialog.Find("optWindow", each).Text()));
    }
    const int control = korvale.Id(dialog, "optWindow", choice);
    EXPECT_EQ(korvale.user.IsShown(dialog.Handle(), control), offered);
    if (offered) korvale.user.Click(dialog.Handle(), control);
  });
}

void StrangeTitleWorld::ExpectMenuToShowIt(KorvaleCopy& korvale, const std::string& entry) {
  const std::vector<ShownMenuItem> items = korvale.WindowMenuItems();
  for (const ShownMenuItem& item : items) {
    EXPECT_TRUE(IsOneLine(item.caption)) << item.caption;
    EXPECT_LE(CharacterCount(item.caption), 129);
  }
  EXPECT_EQ(items[7].accessKey, "1");
  if (!entry.empty()) {
    EXPECT_EQ(items[7].caption, entry);
  }
}

/// The user opens the dialog for another Tag, and then looks at the first.
void StrangeTitleWorld::ExpectDialogToShowItTaken(KorvaleCopy& korvale) {
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    const int tags = korvale.Id(dialog, "cboWindow");
    EXPECT_EQ(dialog.Find("cboWindow").SelectedText(), "2");
    const std::string item = korvale.user.ListEntries(dialog.Handle(), tags).front();
    EXPECT_TRUE(item.starts_with("1  "));
    EXPECT_TRUE(IsOneLine(item));
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

void StrangeTitleWorld::ExpectKeyToLeadToIt() {
  WorkIn(desktop.FindWindowA("Beta"));
  PressTag(1);
  EXPECT_EQ(desktop.GetForegroundWindow(), strange_);
  LetTick();
}

void StrangeTitleWorld::ExpectToBeToldThatItIsClosed(KorvaleCopy& korvale) {
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    EXPECT_TRUE(box.text.starts_with("Window:  [")) << box.text;
    EXPECT_TRUE(box.text.ends_with("]  is not open.")) << box.text;
    EXPECT_TRUE(IsOneLine(box.text));
    EXPECT_LE(CharacterCount(box.text), 300);
    return win32::kIdOk;
  });
  PressTag(1);
  EXPECT_EQ(Front(), "Beta");
}

}  // namespace korvale
