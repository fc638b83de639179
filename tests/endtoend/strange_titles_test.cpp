#include <windows.h>

#include <string>
#include <vector>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr size_t kWhole = 0;
constexpr size_t kLeft = 1;
constexpr size_t kRight = 2;

std::wstring Times(int count, const std::wstring& text) {
  std::wstring all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

struct StrangeTitle {
  std::wstring title;
  size_t choice;
  size_t choices = 3;
};

std::vector<StrangeTitle> AllTitles() {
  return {{Times(65536, L"x"), kWhole},
          {L"a\tb\nc\r\nd\x1f e", kLeft},
          // Halves of characters outside of the first plane.
          {L"\xD83Dx\xDE00 - high\xD83D", kRight},
          {L"&&&&", kLeft},
          {L" - ", kWhole, 1},
          {L"*** - ", kRight},
          {L" - ***", kLeft, 2},
          {L"\x05E9\x05DC\x05D5\x05DD - \x05E2\x05D5\x05DC\x05DD\x200F!", kRight},
          {Times(12, L"\xD83D\xDC68\x200D\xD83D\xDC69\x200D\xD83D\xDC67"), kRight}};
}

class StrangeTitles : public KorvaleTest {
 protected:
  /// A window of a class of its own, since the title is a part of others.
  Window OpenStrange(int tag, const std::wstring& title) {
    const Window window = Open({.title = "Strange", .class_name = "Strange" + std::to_string(tag)});
    window.Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(title.c_str()));
    EXPECT_TRUE(WaitFor([&] { return window.Title() == Utf8(title); }));
    return window;
  }

  void ExpectEachKeyToLeadToItsWindow() {
    for (size_t i = 0; i < windows_.size(); ++i) {
      ASSERT_TRUE(BringToFront(elsewhere_));
      ASSERT_TRUE(Target("Elsewhere"));
      Press(TagKey(static_cast<int>(i) + 1));
      EXPECT_TRUE(InFront(windows_[i])) << i;
      EXPECT_FALSE(korvale_->HasMessageBox());
    }
  }

  static bool IsOnScreen(Window window) {
    RECT place{};
    GetWindowRect(window.handle(), &place);
    return place.left >= 0 && place.top >= 0 && place.right <= GetSystemMetrics(SM_CXSCREEN) &&
           place.bottom <= GetSystemMetrics(SM_CYSCREEN);
  }

  std::vector<Window> windows_;
  Window elsewhere_;
};

TEST_F(StrangeTitles, AreTaggedFoundAgainAfterARestartAndToldOf) {
  Start();
  elsewhere_ = Open("Elsewhere");
  for (const StrangeTitle& each : AllTitles()) {
    windows_.push_back(OpenStrange(static_cast<int>(windows_.size()) + 1, each.title));
    // The new title is noticed when the user comes back.
    ASSERT_TRUE(WorkIn(elsewhere_));
    ASSERT_TRUE(WorkIn(windows_.back()));
    const AddWindowDialog dialog = OpenAddWindow();
    EXPECT_EQ(dialog.TitleBox().Text(), Utf8(each.title));
    size_t shown = 0;
    for (const Window choice : dialog.Choices()) shown += choice.Visible() ? 1 : 0;
    EXPECT_EQ(shown, each.choices) << windows_.size();
    ASSERT_TRUE(dialog.Choose(each.choice));
    ASSERT_TRUE(dialog.Confirm());
  }
  ExpectEachKeyToLeadToItsWindow();
  ASSERT_TRUE(OpenWindowMenu());
  TakePicture("StrangeTitles.Menu");
  Press({0, VK_ESCAPE});
  Press({0, VK_ESCAPE});
  ASSERT_TRUE(Exit());

  Start();
  ExpectEachKeyToLeadToItsWindow();
  ASSERT_TRUE(windows_.front().Close());
  ASSERT_TRUE(BringToFront(elsewhere_));
  Press(TagKey(1));
  const Window message = korvale_->MessageBox();
  ASSERT_TRUE(message);
  TakePicture("StrangeTitles.Message");
  EXPECT_TRUE(IsOnScreen(message));
  EXPECT_TRUE(Says("Window:  [" + std::string(100, 'x') + "...]  is not open."));
}

}  // namespace
}  // namespace korvale::endtoend
