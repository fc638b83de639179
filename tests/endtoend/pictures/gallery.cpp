#include "tests/endtoend/pictures/gallery.h"

#include <fstream>
#include <stdexcept>

#include "tests/endtoend/harness/add_window_dialog.h"
#include "tests/endtoend/harness/color_dialog.h"
#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/layout.h"
#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/harness/resting_screen.h"
#include "tests/endtoend/harness/stopped_thread.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

/// So that pop-ups at the mouse appear there.
void PutMouse(Window window, int left, int top) {
  RECT area{};
  GetWindowRect(window.handle(), &area);
  const auto dpi = static_cast<int>(GetDpiForSystem());
  const POINT at{MulDiv(left, dpi, 96), MulDiv(top, dpi, 96)};
  PutPointer({area.left + at.x, area.top + at.y});
}

void Need(bool holds, const std::string& what) {
  if (!holds) throw std::runtime_error(what);
}

/// Moves the window to the lower left corner of the other, once it has the size that it will have.
void PutBelow(Window window, Window other) {
  const auto keeps = [&](const SIZE& size) {
    const SIZE now = SizeOf(window);
    return now.cx == size.cx && now.cy == size.cy;
  };
  const auto still = [&] {
    const SIZE size = SizeOf(window);
    return HoldsFor([&] { return keeps(size); });
  };
  Need(WaitFor(still), window.Title() + " does not come to rest");
  RECT area{};
  GetWindowRect(other.handle(), &area);
  SetWindowPos(window.handle(), nullptr, area.left, area.bottom, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CloseForm(Window form) {
  BringToFront(form);
  Press({0, VK_ESCAPE});
  Need(WaitFor([&] { return !form.Exists(); }), form.ClassName() + " does not close");
}

}  // namespace

void Gallery::Run() {
  Prepare();
  TakeMainWindow();
  TakeMenus();
  TakePopUp();
  TakeAddWindow();
  TakeOptions();
  TakeNotice();
  TakeConflicts();
  TakeColors();
  TakeAbout();
  TakeMessages();
}

void Gallery::Prepare() {
  wordpad_.emplace(StartWordPad());
  Place(wordpad_->window(), 40, 150, 700, 440);
  const std::string notes = folder_.path() + "Notes.txt";
  std::ofstream(notes) << "Alt+1 comes here, from anywhere.\n";
  notepad_.emplace(std::vector<std::string>{"notepad.exe " + Quoted(notes)});
  Place(notepad_->window(), 120, 250, 600, 320);
  // The pictures show the hot keys as they are out of the box.
  installation_.SetOption("SplashScreen", "False");
  installation_.StoreTag(1, "*** - Notepad", "Notepad");
  installation_.StoreTag(2, "*** - Wine Wordpad", "WORDPAD");
  installation_.StoreTag(5, "Letters to Anna", "Journal");
  installation_.settings().Set("Startup", "Left", "1800");
  installation_.settings().Set("Startup", "Top", "900");
  installation_.settings().Set("Startup", "Width", "6600");
  korvale_.emplace(installation_);
  Need(static_cast<bool>(Main()), "Korvale does not start");
  WorkIn(notepad_->window());
}

Window Gallery::Main() const { return korvale_->Main(); }

void Gallery::WorkIn(Window window) const {
  const auto works = [&] {
    return Foreground() == window && korvale_->TargetTitle() == window.Title();
  };
  Need(BringToFront(window) && WaitFor(works), window.Title() + " does not come");
  // A slow program can still be on its way over what opens next.
  Need(WaitFor([&] { return window.Responds(); }), window.Title() + " does not answer");
}

Window Gallery::OpenMenu(UINT letter) const {
  BringToFront(Main());
  Press({MOD_ALT, letter});
  const Window menu = korvale_->OpenMenu();
  Need(static_cast<bool>(menu), "no menu opens");
  return menu;
}

void Gallery::CloseMenu() const {
  Press({0, VK_ESCAPE});
  Press({0, VK_ESCAPE});
  Need(WaitFor([&] { return !korvale_->HasMenu(); }), "the menu does not close");
}

void Gallery::Choose(UINT menu, std::initializer_list<UINT> entries) const {
  OpenMenu(menu);
  for (const UINT entry : entries) Press({0, entry});
  Need(WaitFor([&] { return !korvale_->HasMenu(); }), "the menu does not close");
}

Window Gallery::Form(const std::string& name) const {
  const Window form = korvale_->Form(name);
  Need(form && BringToFront(form), name + " does not come");
  return form;
}

void Gallery::TakeMainWindow() {
  const MainWindow main(Main());
  BringToFront(main.window());
  photographer_.Take("main-window", {main.window()});
  Choose('V', {'T'});
  photographer_.Take("main-window-menu-only", {main.window()});
  Choose('V', {'T'});
  Choose('V', {'M'});
  const Window caution = korvale_->MessageBox();
  photographer_.Take("caution", {caution});
  Need(AnswerBox(caution, IDOK), "the caution stays");
  BringToFront(main.window());
  photographer_.Take("main-window-without-menu", {main.window()});
  Choose('V', {'T'});
  photographer_.Take("main-window-title-bar-only", {main.window()});
  Choose('V', {'T'});
  Choose('V', {'M'});
  MoveWindow(main.window().handle(), 200, 100, 10, 10, TRUE);
  photographer_.Take("main-window-narrow", {main.window()});
  Place(main.window(), 120, 60, 700, 90);
  photographer_.Take("main-window-wide", {main.window()});
  Place(main.window(), 120, 60, 440, 90);
}

void Gallery::TakeMenus() {
  for (const char menu : {'F', 'V', 'T', 'W', 'H'}) {
    const Window open = OpenMenu(static_cast<UINT>(menu));
    photographer_.Take(std::string("menu-") + menu, {Main(), open});
    CloseMenu();
  }
}

void Gallery::TakePopUp() {
  WorkIn(wordpad_->window());
  WorkIn(notepad_->window());
  PutMouse(notepad_->window(), 150, 90);
  Press(kDefaultMenuKey);
  const Window menu = korvale_->OpenMenu();
  Need(static_cast<bool>(menu), "the menu does not pop up");
  photographer_.Take("pop-up", {notepad_->window(), menu});
  photographer_.Take("program", {Main(), notepad_->window(), wordpad_->window(), menu});
  CloseMenu();
}

void Gallery::TakeAddWindow() {
  WorkIn(wordpad_->window());
  Choose('W', {'W'});
  const AddWindowDialog dialog(Form("frmGetWindow"));
  photographer_.Take("add-window", {dialog.form()});
  Need(dialog.SelectTag(5), "Tag 5 cannot be chosen");
  photographer_.Take("add-window-taken", {dialog.form()});
  Need(dialog.SelectTag(3) && dialog.Choose(2), "Tag 3 cannot be chosen");
  // Its tool tip would lie over the buttons.
  PutPointer({});
  photographer_.Take("add-window-right-part", {dialog.form()});
  Need(dialog.Cancel(), "the dialog does not close");
}

OptionsDialog Gallery::OpenOptions() const {
  Press(kDefaultOptionsKey);
  return OptionsDialog(Form("frmOptions"));
}

void Gallery::TakeOptions() {
  using Page = OptionsDialog::Page;
  WorkIn(wordpad_->window());
  const OptionsDialog dialog = OpenOptions();
  const std::pair<Page, const char*> pages[] = {
      {Page::kGeneral, "options-general"},
      {Page::kHotKeys, "options-hot-keys"},
      {Page::kWindowIdentification, "options-identification"}};
  for (const auto& [page, name] : pages) {
    Need(dialog.GoTo(page), "the page does not come");
    photographer_.Take(name, {dialog.form()});
  }
  CloseForm(dialog.form());
}

void Gallery::TakeNotice() {
  Press(kToggleKey);
  const Window notice = Form("frmWaitWindow");
  Need(ComeToRest({notice}), "the notice does not come to rest");
  {
    // It goes by itself in less than a second, on a busy machine before its picture is taken.
    const StoppedThread stopped(notice);
    photographer_.TakeAtOnce("notice", {notice});
  }
  Need(WaitFor([&] { return !korvale_->HasForm("frmWaitWindow"); }), "the notice stays");
}

void Gallery::TakeConflicts() {
  Need(holder_.TakeHotKey(TagKey(3)) && holder_.TakeHotKey(kDefaultMenuKey),
       "the keys are not free");
  Press(kToggleKey);
  Need(WaitFor([&] { return korvale_->HasForm("frmWaitWindow"); }) &&
           WaitFor([&] { return !korvale_->HasForm("frmWaitWindow"); }),
       "the notice stays");
  const OptionsDialog dialog = OpenOptions();
  Need(dialog.GoTo(OptionsDialog::Page::kHotKeys), "the page does not come");
  Need(!dialog.ConflictLine().empty(), "no conflict is shown");
  photographer_.Take("options-conflicts", {dialog.form()});
  Click(dialog.Button("Reset All Options to Default"));
  const Window question = korvale_->MessageBox();
  photographer_.Take("reset", {question});
  Need(AnswerBox(question, IDCANCEL), "the question stays");
  CloseForm(dialog.form());
}

void Gallery::TakeColors() {
  WorkIn(notepad_->window());
  Choose('V', {'C'});
  const Window tip = Form("frmMsgTip");
  photographer_.Take("tip", {tip});
  CloseForm(tip);
  const MainWindow main(Main());
  BringToFront(main.window());
  ClickAt(main.TitleBox(), {20, 4});
  const ColorDialog dialog(*korvale_);
  PutBelow(dialog.window(), main.window());
  photographer_.Take("colors", {main.window(), dialog.window()});
  Need(dialog.Choose({255, 214, 165}), "the colour is not taken");
  Choose('V', {'C'});
  photographer_.Take("main-window-colors", {main.window()});
}

void Gallery::TakeAbout() {
  Choose('H', {'A'});
  const Window about = Form("frmMsgBox2");
  photographer_.Take("about", {about});
  CloseForm(about);
}

void Gallery::TakeMessages() {
  WorkIn(wordpad_->window());
  Press(TagKey(5));
  const Window message = korvale_->MessageBox();
  // Under Wine the title bar of a box that came up behind another program stays grey until the user
  // goes away and comes back.
  Need(BringToFront(wordpad_->window()) && BringToFront(message), "the message does not come");
  photographer_.Take("message", {message});
  Press(TagKey(1));
  const auto title = std::string("Korvale     ");
  Need(WaitFor([&] { return !korvale_->MessageBoxes(title).empty(); }), "no notice comes");
  const Window notice = korvale_->MessageBoxes(title).front();
  photographer_.Take("suspended", {notice});
  Need(AnswerBox(notice, IDOK) && AnswerBox(message, IDOK), "the messages stay");
}

}  // namespace korvale::endtoend
