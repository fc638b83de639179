#include "platform/run_time_error.h"
#include "tests/desktop/desktop_case.h"
#include "tests/desktop/title_rule.h"
#include "tests/fuzz/fuzz.h"

namespace korvale {
namespace {

/// This byte of an input stands for more characters than half of what 16 bits can count.
constexpr char kMany = '\x01';
constexpr std::size_t kManyCharacters = 20000;
constexpr std::size_t kLongestTitle = 60000;

std::string TitleFrom(std::string_view input) {
  std::string title;
  for (const char byte : input) {
    if (title.size() > kLongestTitle) break;
    // Windows ends a title there.
    if (byte != '\0') {
      title += byte == kMany ? std::string(kManyCharacters, 'm') : std::string(1, byte);
    }
  }
  return title;
}

/// A class is read up to 254 bytes, of whole characters.
void CheckClass(FakeDesktop& desktop, const std::string& className) {
  const WindowHandle window = desktop.Open("", {.className = className, .activate = false});
  const std::string read = GetWindowClass(desktop, window);
  EXPECT_TRUE(className.starts_with(read));
  EXPECT_LE(read.size(), 254U);
  EXPECT_TRUE(read == className || read.size() > 250 || !IsWhole(className));
  EXPECT_TRUE(IsWhole(read) || !IsWhole(className));
  desktop.Close(window);
}

/// How many characters there are behind the last " - ", in 16 bits.
void CheckPlaceOfSeparator(const std::string& title) {
  const std::size_t last = title.rfind(" - ");
  const int behind = last == std::string::npos ? -1 : CharacterCount(title.substr(last + 3));
  if (behind >= 32767) {
    EXPECT_THROW(ReverseFind(title, " - ", 1, true), RunTimeError);
  } else {
    EXPECT_EQ(ReverseFind(title, " - ", 1, true), behind + 1);
  }
}

class DesktopWithTitle : public DesktopCase {
 public:
  /// A window of this title, above the main window, is looked for by this text.
  void Check(const std::string& text, const std::string& title) {
    CheckClass(desktop, LeftCharacters(title, 300));
    AddTag(3, text);
    const WindowHandle window = desktop.Open(title, {.className = "One"});
    EXPECT_EQ(GetWindowTitle(desktop, window), title);
    enumeration.RefreshTags(3);
    const bool found = Identifies(WithoutBlanksAtItsEnds(text), title);
    EXPECT_EQ(HandleOfTag(3) == window, found) << text << "|" << title;
    if (found) {
      EXPECT_EQ(ClassOfTag(3), "One");
    }
  }

 private:
  void TestBody() override {}
};

}  // namespace

/// A line that identifies a window, and the title of one.
void Fuzz(std::string_view input) {
  const std::string text = TitleFrom(TakeLine(input));
  const std::string title = TitleFrom(input);
  ExpectMatchedByTheRule(text, title);
  ExpectMatchedByTheRule(text, text + title);
  ExpectToFindItself(title);
  ExpectPartsToFindIt(title);
  ExpectNamedOnOneLine(title);
  CheckPlaceOfSeparator(title);
  DesktopWithTitle().Check(text, title);
}

}  // namespace korvale
