#include <algorithm>

#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/harness/screen.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

class MainWindowBoxes : public KorvaleTest {
 protected:
  MainWindow window() { return MainWindow(main()); }

  /// Marks all of the box's text and copies it, with the keys that every text box knows.
  static std::string CopyAll(Window box) {
    const DWORD before = GetClipboardSequenceNumber();
    Click(box);
    Press({0, VK_HOME});
    Press({MOD_SHIFT, VK_END});
    Press({MOD_CONTROL, 'C'});
    // A program that reads the clipboard meanwhile keeps the box from writing.
    WaitFor([&] { return GetClipboardSequenceNumber() != before; });
    std::string text;
    WaitFor([&] { return !(text = ClipboardText()).empty(); });
    return text;
  }

  /// The box's place in the client area of the main window.
  RECT AreaIn(Window box) {
    RECT area{};
    GetWindowRect(box.handle(), &area);
    MapWindowPoints(nullptr, main().handle(), reinterpret_cast<POINT*>(&area), 2);
    return area;
  }

  /// The control before it in the order in which a screen reader goes.
  std::string NameOf(Window box) {
    const std::vector<Window> controls = main().Children();
    const auto found = std::find(controls.begin(), controls.end(), box);
    return found == controls.begin() || found == controls.end() ? "" : std::prev(found)->Text();
  }
};

TEST_F(MainWindowBoxes, GiveTheirTextToTheClipboardAndTakeNone) {
  Start();
  ASSERT_TRUE(WorkIn(Open("Rechnung № 7 日本")));
  ASSERT_TRUE(BringToFront(main()));
  EXPECT_EQ(CopyAll(window().TitleBox()), "Rechnung № 7 日本");
  EXPECT_EQ(CopyAll(window().ClassBox()), "Test.Window");
  Type("x");
  Press({0, VK_DELETE});
  EXPECT_TRUE(HoldsFor([this] { return korvale_->TargetClass() == "Test.Window"; }));
  for (const Window box : {window().TitleBox(), window().ClassBox()}) {
    EXPECT_NE(box.Style() & ES_READONLY, 0);
  }
}

TEST_F(MainWindowBoxes, HaveNamesAndToolTips) {
  Start();
  EXPECT_EQ(NameOf(window().TitleBox()), "Target Window");
  EXPECT_EQ(NameOf(window().ClassBox()), "Class of Target Window");
  EXPECT_TRUE(korvale_->ShowsToolTip(window().TitleBox(), " Target Window "));
  EXPECT_TRUE(korvale_->ShowsToolTip(window().ClassBox(), " Class of Target Window "));
}

TEST_F(MainWindowBoxes, ShareTheWidth) {
  Start();
  for (const int width : {176, 300, 900}) {
    window().Resize(width, window().Height());
    ASSERT_TRUE(WaitFor([&] { return window().Width() == width; }));
    EXPECT_TRUE(WaitFor([this] { return window().ShowsTextWhole(); })) << width;
    const RECT title = AreaIn(window().TitleBox());
    const RECT name = AreaIn(window().ClassBox());
    RECT client{};
    GetClientRect(main().handle(), &client);
    // Three pixels around them, and the title has three fifths of what is left.
    EXPECT_EQ(title.left, 3) << width;
    EXPECT_NEAR(name.left - title.right, 3, 1) << width;
    EXPECT_NEAR(client.right - name.right, 3, 1) << width;
    EXPECT_NEAR(title.right - title.left, (client.right - 9) * 3 / 5, 1) << width;
    EXPECT_LT(std::max(title.bottom, name.bottom), client.bottom) << width;
  }
}

}  // namespace
}  // namespace korvale::endtoend
