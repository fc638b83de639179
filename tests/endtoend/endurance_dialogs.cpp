#include "tests/endtoend/endurance_test.h"
#include "tests/endtoend/harness/color_dialog.h"
#include "tests/endtoend/harness/main_window.h"

namespace korvale::endtoend {
namespace {

/// In a box of the main window, where a click asks for its colour.
constexpr POINT kInBox{20, 6};

}  // namespace

void EnduranceTest::WalkThroughOptions() {
  const OptionsDialog dialog = OpenOptions();
  for (const Page page : {Page::kGeneral, Page::kHotKeys, Page::kWindowIdentification}) {
    Need("the page comes", dialog.GoTo(page));
  }
  Leave(VK_ESCAPE, dialog.form());
  NeedInFront(Tagged(tag_));
}

void EnduranceTest::ConfirmOptions() {
  const OptionsDialog dialog = OpenOptions();
  Leave(VK_RETURN, dialog.form());
  NeedInFront(Tagged(tag_));
}

void EnduranceTest::ResetAndApplyOptions() {
  const OptionsDialog dialog = OpenOptions();
  Click(dialog.Button("Reset All Options to Default"));
  Need("the question goes", AnswerBox(korvale_->MessageBox(), IDOK));
  Need("the page comes", dialog.GoTo(Page::kHotKeys));
  Need(Pick(dialog, List::kOptionsModifier, 'C', "Ctrl"));
  Need(Pick(dialog, List::kOptionsKey, kOptionsKey.key, "F11"));
  Need(Pick(dialog, List::kMenuModifier, 'C', "Ctrl"));
  Need(Pick(dialog, List::kMenuKey, kMenuKey.key, "F12"));
  Need(Apply(dialog));
  Leave(VK_ESCAPE, dialog.form());
  NeedInFront(Tagged(tag_));
}

void EnduranceTest::ChooseInBar(UINT menu, UINT entry) {
  // The entry under the mouse would be the chosen one.
  MoveMouseAside();
  Need("the main window comes", BringToFront(main()));
  PressFor("the menu", {MOD_ALT, menu}, [this] { return korvale_->HasMenu(); });
  PressFor("the entry is chosen", {0, entry}, [this] { return !korvale_->HasMenu(); });
}

void EnduranceTest::LookAtAddWindow() {
  ChooseInBar('W', 'W');
  const AddWindowDialog dialog(korvale_->Form("frmGetWindow"));
  NeedInFront(dialog.form());
  Leave(VK_ESCAPE, dialog.form());
  NeedInFront(main());
  GoByTagKey();
}

void EnduranceTest::TagAndRemove() {
  constexpr int kFreeTag = 9;
  for (const bool adding : {true, false}) {
    ChooseInBar('W', 'W');
    const AddWindowDialog dialog(korvale_->Form("frmGetWindow"));
    NeedInFront(dialog.form());
    Need("the Tag is selected", dialog.SelectTag(kFreeTag));
    if (adding) {
      Leave(VK_RETURN, dialog.form());
    } else {
      Click(dialog.RemoveButton());
      NeedThat("the Tag goes", [&] { return !dialog.RemoveButton().Enabled(); });
      Leave(VK_ESCAPE, dialog.form());
    }
    NeedInFront(main());
  }
  GoByTagKey();
}

void EnduranceTest::LookAtAbout() {
  ChooseInBar('H', 'A');
  NeedInFront(korvale_->Form("frmMsgBox2"));
  Leave(VK_ESCAPE, korvale_->Form("frmMsgBox2"));
  GoByTagKey();
}

void EnduranceTest::ReadTipAndChooseColor() {
  ChooseInBar('V', 'C');
  NeedInFront(korvale_->Form("frmMsgTip"));
  Leave(VK_ESCAPE, korvale_->Form("frmMsgTip"));
  NeedInFront(main());
  const MainWindow window(main());
  ClickAt(window.TitleBox(), kInBox);
  Need("OK", ColorDialog(*korvale_).Pick(++color_ % 16));
  NeedInFront(main());
  ClickAt(window.ClassBox(), kInBox);
  Need("Cancel", ColorDialog(*korvale_).Cancel());
  ChooseInBar('V', 'C');
  GoByTagKey();
}

void EnduranceTest::PutTheColorsBack() {
  MoveMouseAside();
  Need(Choose('V', {'D', 'T'}));
  Need(Stored("WI1BackColor", "10485759"));
  GoByTagKey();
}

void EnduranceTest::HideAndShowTheTarget() {
  for (const bool shown : {false, true}) {
    ChooseInBar('V', 'T');
    NeedThat("boxes go and come", [&] { return MainWindow(main()).ShowsBoxes() == shown; });
  }
  GoByTagKey();
}

void EnduranceTest::HideAndShowTheMenu() {
  for (const bool shown : {false, true}) {
    ChooseInBar('V', 'M');
    if (!shown) Need("the message goes", AnswerBox(korvale_->MessageBox(), IDOK));
    NeedThat("menus go and come", [&] { return MainWindow(main()).HasMenuBar() == shown; });
  }
  GoByTagKey();
}

void EnduranceTest::SwitchAlwaysOnTop() {
  const Window window = Tagged(tag_);
  for (const bool topmost : {true, false}) {
    // Wine does not put the main window on top: it has a hidden owner.
    ChooseInBar('W', 'O');
    ChooseInBar('W', 'T');
    NeedThat("it goes on top and comes down", [&] { return window.Topmost() == topmost; });
    // The command brings the window forward, then Korvale again if the user worked there.
    NeedThat("one of the two is in front", [&] { return HasInput(window) || HasInput(main()); });
  }
  GoByTagKey();
}

void EnduranceTest::SizeTheMainWindow() {
  const MainWindow window(main());
  const int width = 300 + 40 * (++changes_ % 6);
  window.Resize(width, window.Height());
  NeedThat("it is sized", [&] { return window.Width() == width; });
}

void EnduranceTest::MinimizeTheMainWindow() {
  for (const bool minimized : {true, false}) {
    ShowWindow(main().handle(), minimized ? SW_MINIMIZE : SW_RESTORE);
    NeedThat("it goes and comes", [&] { return main().Minimized() == minimized; });
  }
  NeedInFront(main());
  GoByTagKey();
}

void EnduranceTest::ReadToolTip() {
  Need("the main window comes", BringToFront(main()));
  Need("the tool tip comes",
       korvale_->ShowsToolTip(MainWindow(main()).ClassBox(), " Class of Target Window "));
  MoveMouseAside();
  GoByTagKey();
}

/// Its installation has no pages, so no browser comes.
void EnduranceTest::LookForTheHelpPage() {
  ChooseInBar('H', 'H');
  NeedInFront(main());
  GoByTagKey();
}

void EnduranceTest::SwitchTipsOffAndOn() {
  ChooseInBar('H', 'D');
  Need(Stored("DisplayTips", "False"));
  ChooseInBar('H', 'D');
  Need("the question goes", AnswerBox(korvale_->MessageBox(), IDNO));
  Need(Stored("DisplayTips", "True"));
  GoByTagKey();
}

}  // namespace korvale::endtoend
