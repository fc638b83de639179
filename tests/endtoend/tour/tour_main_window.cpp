#include <algorithm>
#include <vector>

#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/harness/screen.h"
#include "tests/endtoend/harness/wait.h"
#include "tests/endtoend/tour/tour.h"

namespace korvale::endtoend {
namespace {

constexpr Rgb kOutOfTheBox{255, 255, 159};
constexpr Rgb kOther{255, 214, 165};

/// Where a box may be clicked to change its colour, and where it may not.
constexpr POINT kUpperLeft{20, 4};
constexpr POINT kLower{20, 14};

bool HasColor(Window box, Rgb color) {
  // A pixel of a picture holds red above green above blue.
  const auto pixel = static_cast<COLORREF>(0x10000 * color.red + 0x100 * color.green + color.blue);
  return WaitFor([&] {
    const std::vector<COLORREF> picture = PictureOf(box);
    const auto same =
        std::ranges::count_if(picture, [&](COLORREF each) { return (each & 0xFFFFFFU) == pixel; });
    return static_cast<size_t>(same) > picture.size() / 2;
  });
}

/// The pointer that is on the screen after the mouse has come to that place.
HCURSOR PointerAt(Window box, POINT at) {
  MoveMouse(box, at);
  box.Responds();
  return PointerOnScreen();
}

}  // namespace

bool Tour::Choose(UINT menu, std::initializer_list<UINT> entries) {
  BringToFront(korvale_->Main());
  Press({MOD_ALT, menu});
  if (!korvale_->OpenMenu()) return false;
  for (const UINT entry : entries) Press({0, entry});
  return WaitFor([&] { return !korvale_->HasMenu(); });
}

void Tour::HideTheMenu() {
  report_.Headline("The main window with and without its menu");
  const MainWindow main(korvale_->Main());
  const int height = main.Height();
  report_.Step("both fields are whole", main.ShowsTextWhole());
  report_.Step("View, Menu", Choose('V', {'M'}));
  const Window caution = korvale_->MessageBox();
  report_.Picture("caution");
  report_.Step("it warns, and OK hides the menu",
               AnswerBox(caution, IDOK) && WaitFor([&] { return !main.HasMenuBar(); }));
  report_.Step("the window is lower, both fields are whole",
               WaitFor([&] { return main.Height() < height; }) && main.ShowsTextWhole());
  report_.Picture("main-window-without-menu");
  report_.Step("Alt+V opens the menu all the same; Target Window",
               Choose('V', {'T'}) && WaitFor([&] { return !main.ShowsBoxes(); }));
  report_.Picture("main-window-title-bar-only");
  report_.Step("Target Window again",
               Choose('V', {'T'}) && WaitFor([&] { return main.ShowsBoxes(); }));
  report_.Step(
      "Menu again: all is as it was",
      Choose('V', {'M'}) && WaitFor([&] { return main.HasMenuBar() && main.Height() == height; }));
}

void Tour::BeginCustomizing() {
  report_.Step("View, Customize Colors", Choose('V', {'C'}));
  const Window tip = korvale_->Form("frmMsgTip");
  report_.Step("a tip tells how: " + LabelText(tip).substr(0, 37), BringToFront(tip));
  report_.Picture("tip");
  Press({0, VK_RETURN});
  report_.Step("Enter closes the tip", WaitFor([&] { return !tip.Exists(); }));
}

bool Tour::PointsWithC(Window box) {
  if (!BringToFront(korvale_->Main())) return false;
  // The screen may lag behind; there and back again it is the same only once it does not.
  return WaitFor([&] {
    const HCURSOR letter = PointerAt(box, kUpperLeft);
    const HCURSOR arrow = PointerAt(box, kLower);
    return letter != arrow && PointerAt(box, kUpperLeft) == letter;
  });
}

bool Tour::AltClick(Window box) {
  const HeldKeys alt({0, VK_MENU});
  ClickAt(box, kUpperLeft);
  return HoldsFor([&] { return !korvale_->HasMessageBox(); });
}

void Tour::ColorTheBoxes(Rgb color) {
  const MainWindow main(korvale_->Main());
  report_.Step("the mouse pointer becomes a C", PointsWithC(main.TitleBox()));
  ClickAt(main.TitleBox(), kUpperLeft);
  const ColorDialog dialog(*korvale_);
  report_.Picture("colors");
  report_.Step("a click chooses another colour",
               dialog.Choose(color) && HasColor(main.TitleBox(), color));
  report_.Step("it is a C over the other field too", PointsWithC(main.ClassBox()));
  report_.Step("Alt and a click give it the same colour",
               AltClick(main.ClassBox()) && HasColor(main.ClassBox(), color));
}

void Tour::CustomizeColors() {
  report_.Headline("Colours");
  BeginCustomizing();
  ColorTheBoxes(kOther);
  report_.Step("Customize Colors again ends it", Choose('V', {'C'}));
  report_.Picture("main-window-colors");
  report_.Step(
      "Default Settings puts the colours back",
      Choose('V', {'D', 'T'}) && HasColor(MainWindow(korvale_->Main()).TitleBox(), kOutOfTheBox));
}

void Tour::OpenAbout() {
  report_.Headline("About");
  report_.Step("Help, About", Choose('H', {'A'}));
  const Window about = korvale_->Form("frmMsgBox2");
  report_.Step("it shows " + LabelText(about), BringToFront(about));
  report_.Picture("about");
  Press({0, VK_ESCAPE});
  report_.Step("Esc closes it", WaitFor([&] { return !about.Exists(); }));
}

}  // namespace korvale::endtoend
