#include <algorithm>
#include <vector>

#include "tests/desktop/title_rule.h"
#include "tests/fuzz/fuzz.h"
#include "tests/program/strange_title_world.h"
#include "util/graphemes.h"

namespace korvale {
namespace {

constexpr std::int32_t kLongestClass = 60;
/// A menu of the fake screen has room for more than this.
constexpr std::int32_t kSurelyWhole = 125;

/// Whether a text is shown as it is: no character in it tears lines or turns the direction.
bool IsPlain(const std::string& text) {
  return std::ranges::all_of(SplitCharacters(text), [](std::string_view bytes) {
    const char32_t character = FirstCharacter(bytes).codePoint;
    return !FirstCharacter(bytes).valid ||
           ((character >= 0x20 && character < 0x7F) || (character >= 0xA0 && character < 0x2000) ||
            character >= 0x2070);
  });
}

class Captions : public StrangeTitleWorld {
 public:
  Captions(const std::string& title, const std::string& className)
      : StrangeTitleWorld(title, className), title_(title) {}

  void Check(int choice) {
    StoreOption("AllowNoTextWindow", "True");
    const std::string text = Identification(choice);
    const std::string kept = WithoutBlanksAtItsEnds(text);
    std::vector<std::string> others = desktop.VisibleTitles();
    std::erase(others, title_);
    others.insert(others.end(), {"Beta", "Elsewhere", "Korvale - Work"});
    Known known;
    known.offered = choice == kWhole || (!title_.empty() && Identifies(kept, title_));
    if (IsPlain(text) && CharacterCount(text) < kSurelyWhole) known.entry = "1  " + text;
    known.unique = std::ranges::none_of(
        others, [&](const std::string& other) { return Identifies(kept, other); });
    TagAndUse(choice, known);
  }

  /// The menu names the window that the user has come from.
  void CheckShortTitle() {
    KorvaleCopy& korvale = StartedAfter(Strange());
    const std::vector<ShownMenuItem> items = korvale.WindowMenuItems();
    const std::int32_t length = CharacterCount(title_);
    const std::string shown = length <= 30 ? title_ : LeftClusters(title_, 27) + "...";
    if (IsPlain(shown)) {
      EXPECT_EQ(items[1].caption, "[" + shown + "]  Always On Top");
      EXPECT_EQ(items.back().caption, "Add  [" + shown + "]  to Window menu...");
    }
    EXPECT_EQ(items[1].accessKey, "T");
    EXPECT_EQ(items.back().accessKey, "W");
  }

 private:
  void TestBody() override {}

  std::string Identification(int choice) const {
    const std::string separator = " - ";
    if (choice == kLeft) return title_.substr(0, title_.find(separator)) + " - ***";
    if (choice == kWhole) return title_;
    const std::size_t last = title_.rfind(separator);
    return "*** - " + (last == std::string::npos ? title_ : title_.substr(last + 3));
  }

  std::string title_;
};

}  // namespace

/// A line with the class of a window, and its title.
void Fuzz(std::string_view input) {
  const std::string className = "F" + LeftCharacters(TakeLine(input), kLongestClass);
  const std::string title(input);
  // The user works in a window of this title meanwhile.
  if (title == "Beta") return;
  Captions(title, className).CheckShortTitle();
  for (const int choice : {0, 1, 2}) Captions(title, className).Check(choice);
}

}  // namespace korvale
