#include <algorithm>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/harness/screen.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

class About : public KorvaleTest {
 protected:
  About() { MoveMouseAside(); }

  Window OpenAbout() {
    EXPECT_TRUE(Choose('H', {'A'}));
    const Window about = korvale_->Form("frmMsgBox2");
    EXPECT_TRUE(InFront(about));
    return about;
  }

  bool Gone() {
    return WaitFor([this] { return !korvale_->HasForm("frmMsgBox2"); });
  }

  static RECT PlaceOf(Window window) {
    RECT area{};
    GetWindowRect(window.handle(), &area);
    return area;
  }

  /// What the program's icon looks like on a dialog.
  static std::vector<COLORREF> ProgramIcon(int size) {
    const HMODULE program =
        LoadLibraryExW(Wide(KorvaleProgram()).c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const std::vector<COLORREF> picture =
        PictureOfProgramIcon(program, size, GetSysColor(COLOR_BTNFACE));
    FreeLibrary(program);
    return picture;
  }

  size_t CountOfBoxes() {
    const std::vector<Window> all = TopLevelWindows();
    return static_cast<size_t>(std::count_if(all.begin(), all.end(), [](Window window) {
      return window.ClassName() == "Korvale.frmMsgBox2";
    }));
  }
};

TEST_F(About, NamesTheProductItsVersionAndItsLegalNotice) {
  Start();
  const Window about = OpenAbout();
  EXPECT_EQ(about.Title(), "About Korvale");
  std::vector<std::string> lines;
  for (const Window label : about.Controls("Static")) {
    if (!label.Text().empty()) lines.push_back(label.Text());
  }
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], "Icon of Korvale");  // Not seen but said.
  EXPECT_EQ(lines[1], "Korvale 1.00.0000");
  EXPECT_EQ(lines[2], "Moves you between open windows with hot keys");
  EXPECT_EQ(lines[3], "Copyright (C) 2026 the Korvale developers");
  EXPECT_TRUE(lines[4].ends_with("index.html")) << lines[4];
}

TEST_F(About, ShowsTheIconOfTheProgramBesideTheTexts) {
  Start();
  const Window about = OpenAbout();
  std::vector<Window> pictures = about.Controls("Static");
  std::erase_if(pictures, [](Window label) { return (label.Style() & SS_TYPEMASK) != SS_ICON; });
  ASSERT_EQ(pictures.size(), 1U);
  const RECT place = PlaceOf(pictures.front());
  EXPECT_EQ(place.right - place.left, 40);
  EXPECT_EQ(place.bottom - place.top, 40);
  EXPECT_TRUE(WaitFor([&] { return PictureOf(pictures.front()) == ProgramIcon(40); }));
}

TEST_F(About, ClosesByItsButtonAndByKeys) {
  Start();
  const std::vector<Window> buttons = OpenAbout().Controls("Button");
  ASSERT_EQ(buttons.size(), 1U);
  Click(buttons.front());
  EXPECT_TRUE(Gone());
  for (const Chord chord : {Chord{0, VK_RETURN}, Chord{0, VK_ESCAPE}, Chord{MOD_ALT, VK_F4}}) {
    OpenAbout();
    Press(chord);
    EXPECT_TRUE(Gone()) << chord.key;
  }
  EXPECT_TRUE(main().Visible());
}

TEST_F(About, ClosesByAnyKeyInTheMainWindow) {
  Start();
  OpenAbout();
  ASSERT_TRUE(BringToFront(main()));
  EXPECT_TRUE(HoldsFor([this] { return korvale_->HasForm("frmMsgBox2"); }));
  Press({0, VK_F9});
  EXPECT_TRUE(Gone());
}

TEST_F(About, ClosesWhenTheMouseMovesOverTheMainWindow) {
  installation_.settings().Set("Startup", "Width", "15000");
  Start();
  const MainWindow window(main());
  // The About box lies over the middle of the main window.
  RECT area{};
  GetWindowRect(window.ClassBox().handle(), &area);
  const auto closes_over = [this](Window box, POINT place) {
    OpenAbout();
    EXPECT_TRUE(HoldsFor([this] { return korvale_->HasForm("frmMsgBox2"); }));
    MoveMouse(box, place);
    EXPECT_TRUE(Gone());
    MoveMouseAside();
  };
  closes_over(window.TitleBox(), {20, 8});
  closes_over(window.ClassBox(), {area.right - area.left - 20, 8});
  closes_over(window.ClassBox(), {area.right - area.left + 1, 8});
}

TEST_F(About, ExistsOnceAndClosesByItself) {
  Start();
  OpenAbout();
  OpenAbout();
  EXPECT_EQ(CountOfBoxes(), 1U);
  EXPECT_TRUE(WaitFor([this] { return CountOfBoxes() == 0; }, std::chrono::seconds(20)));
  EXPECT_TRUE(main().Visible());
}

}  // namespace
}  // namespace korvale::endtoend
