#include "tests/endtoend/tour/tour.h"

#include <algorithm>
#include <fstream>

#include "tests/endtoend/harness/layout.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

constexpr size_t kOpenWindows = 20;
/// The four programs of the tour and Korvale are among them.
constexpr size_t kOtherWindows = kOpenWindows - 5;

size_t CountOpenWindows() {
  const std::vector<Window> all = TopLevelWindows();
  return static_cast<size_t>(std::count_if(all.begin(), all.end(), [](Window window) {
    return window.Visible() && !window.Title().empty();
  }));
}

}  // namespace

void Tour::Run() {
  OpenPrograms();
  if (!StartKorvale()) return;
  TagNotepad();
  UseTheTag();
  MinimizeAndMaximize();
  UseThePopUp();
  CloseAndReopen();
  SwitchOffAndOn();
  TagMineGame();
  GoRound();
  StartAgain();
  ChangeTheModifier();
  HideTheMenu();
  CustomizeColors();
  OpenAbout();
}

void Tour::OpenPrograms() {
  report_.Headline("Programs");
  OpenOthers();
  wordpad_.emplace(StartWordPad());
  report_.Step("WordPad", BringToFront(wordpad_->window()));
  regedit_.emplace(StartRegistryEditor());
  report_.Step("Registry Editor", BringToFront(regedit_->window()));
  mines_.emplace(StartMineGame());
  report_.Step("a program without child windows",
               BringToFront(mines_->window()) && mines_->window().Children().empty());
  OpenNotepad("Notes", "Alt+3 comes here, from anywhere.");
  report_.Step("Notepad", BringToFront(notepad_->window()));
  // Every one of them can be seen behind the others.
  Place(regedit_->window(), 30, 250, 560, 360);
  Place(wordpad_->window(), 60, 60, 560, 330);
  Place(mines_->window(), 760, 50, 160, 220);
}

/// They end up behind WordPad: the pictures show what the tour is about.
void Tour::OpenOthers() {
  others_.emplace();
  for (size_t number = 1; number <= kOtherWindows; ++number) {
    const Window window = others_->Open({.title = "Window " + std::to_string(number)});
    const int shift = 8 * static_cast<int>(number);
    Place(window, 65 + shift, 65 + shift, 300, 180);
  }
}

void Tour::OpenNotepad(const std::string& name, const std::string& text) {
  const std::string document = documents_.path() + name + ".txt";
  std::ofstream(document) << text << "\n";
  notepad_.emplace(StartNotepad(document));
  Place(notepad_->window(), 390, 260, 540, 330);
}

bool Tour::StartKorvale() {
  report_.Headline("Korvale's first start");
  korvale_.emplace(installation_);
  const bool started = static_cast<bool>(korvale_->Main());
  report_.Step("Korvale starts", started);
  if (!started) return false;
  const Window question = korvale_->MessageBox();
  report_.Step("it offers to review the hot keys", question.Title() == "Korvale - CAUTION");
  report_.Step("No closes the question", question && AnswerBox(question, IDNO));
  report_.Step("with " + std::to_string(CountOpenWindows()) + " windows open",
               CountOpenWindows() >= kOpenWindows);
  return true;
}

bool Tour::Seen(Window window) const {
  return WaitFor([&] { return HasInput(window) && korvale_->TargetTitle() == window.Title(); }) &&
         HoldsFor([&] { return Foreground() == window; });
}

void Tour::WorkIn(const std::string& name, Window window) {
  report_.Step("work in " + name, BringToFront(window) && Seen(window));
}

AddWindowDialog Tour::OpenAddWindow(const std::string& picture) {
  BringToFront(korvale_->Main());
  Press({MOD_ALT, 'W'});
  report_.Step("Alt+W opens the Window menu", static_cast<bool>(korvale_->OpenMenu()));
  report_.Picture(picture + "menu");
  Press({0, 'W'});
  const AddWindowDialog dialog(korvale_->Form("frmGetWindow"));
  report_.Step("W opens the Add Window dialog",
               static_cast<bool>(dialog.form()) && BringToFront(dialog.form()));
  return dialog;
}

void Tour::TagNotepad() {
  report_.Headline("Tag 3 for Notepad, by the right part of its title");
  WorkIn("Notepad", notepad_->window());
  report_.Picture("notepad");
  BringToFront(korvale_->Main());
  report_.Picture("main-window");
  const AddWindowDialog dialog = OpenAddWindow("");
  report_.Step("3 selects Tag 3", dialog.SelectTag(3));
  report_.Step("*** - Notepad is chosen: whatever its document", dialog.Choose(2));
  report_.Picture("dialog");
  report_.Step("Enter adds it", dialog.Confirm());
  const auto main_is_back = [&] { return Foreground() == korvale_->Main(); };
  report_.Step("the main window is in front again",
               WaitFor(main_is_back) && HoldsFor(main_is_back));
}

void Tour::UseTheTag() {
  report_.Headline("Work elsewhere, come back with a key");
  WorkIn("WordPad", wordpad_->window());
  report_.Picture("wordpad");
  report_.KeyToFront("Alt+3: Notepad", TagKey(3), notepad_->window());
  Seen(notepad_->window());
  report_.Picture("tag");
  report_.KeyToFront("Alt+0: back to WordPad", TagKey(0), wordpad_->window());
  Seen(wordpad_->window());
  report_.Picture("way-back");
  report_.KeyToFront("Alt+0: and to Notepad again", TagKey(0), notepad_->window());
  Seen(notepad_->window());
}

void Tour::MinimizeAndMaximize() {
  report_.Headline("Minimize and maximize");
  const Window wordpad = wordpad_->window();
  report_.KeyToFront("Alt+Down: Notepad goes, WordPad comes", kMinimizeKey, wordpad);
  report_.Step("Notepad is minimized", notepad_->window().Minimized());
  Seen(wordpad);
  Press(kMaximizeKey);
  report_.Step("Alt+Up: WordPad fills the screen", WaitFor([&] { return wordpad.Maximized(); }));
  Seen(wordpad);
  Press(kMaximizeKey);
  report_.Step("Alt+Up: and is as before", WaitFor([&] { return !wordpad.Maximized(); }));
  Seen(wordpad);
}

void Tour::UseThePopUp() {
  report_.Headline("The Window menu anywhere");
  WorkIn("Registry Editor", regedit_->window());
  PutPointer({400, 300});
  report_.KeyUntil("Windows+W: the menu pops up", kDefaultMenuKey,
                   [&] { return korvale_->HasMenu(); });
  report_.Picture("pop-up");
  report_.KeyToFront("3: Notepad", {0, '3'}, notepad_->window());
  report_.Step("Notepad is no longer minimized",
               WaitFor([&] { return !notepad_->window().Minimized(); }));
  Seen(notepad_->window());
  report_.Picture("from-pop-up");
}

void Tour::CloseAndReopen() {
  report_.Headline("Close Notepad, open it again with another document");
  const Window closed = notepad_->window();
  Press({MOD_ALT, VK_F4});
  report_.Step("Alt+F4 closes Notepad", WaitFor([&] { return !closed.Exists(); }));
  // Windows passes the foreground on to the next window, which can take a moment.
  WorkIn("WordPad", wordpad_->window());
  report_.KeyUntil("Alt+3: Notepad is not open", TagKey(3), [&] {
    return korvale_->HasMessageBox() && Foreground() == korvale_->MessageBox();
  });
  const Window message = korvale_->MessageBox();
  report_.Picture("message");
  const std::string said = LabelText(message);
  report_.Step(said, AnswerBox(message, IDOK));
  OpenNotepad("Letter", "Another document: Tag 3 finds it all the same.");
  WorkIn("Registry Editor", regedit_->window());
  report_.KeyToFront("Alt+3: Notepad with its new document", TagKey(3), notepad_->window());
  Seen(notepad_->window());
  report_.Picture("reopened");
}

void Tour::Toggle(const std::string& what) {
  const Window before = Foreground();
  Press(kToggleKey);
  const Window notice = korvale_->Form("frmWaitWindow");
  report_.Step(what + ": " + LabelText(notice), static_cast<bool>(notice));
  // Korvale gives the foreground back once the notice has gone, which takes effect a moment later.
  WaitFor([&] { return !korvale_->HasForm("frmWaitWindow") && Foreground() == before; });
}

void Tour::SwitchOffAndOn() {
  report_.Headline("Hot keys off and on");
  Toggle("Pause");
  BringToFront(regedit_->window());
  report_.KeyDoesNothing("Alt+3 does nothing", TagKey(3));
  Toggle("Pause");
  WorkIn("WordPad", wordpad_->window());
  report_.KeyToFront("Alt+3: Notepad", TagKey(3), notepad_->window());
  Seen(notepad_->window());
}

void Tour::TagMineGame() {
  report_.Headline("Tag 4 for a window without child windows");
  WorkIn("the game", mines_->window());
  const AddWindowDialog dialog = OpenAddWindow("second-");
  report_.Step("4 selects Tag 4", dialog.SelectTag(4));
  report_.Step("Enter adds it", dialog.Confirm());
  const auto main_is_back = [&] { return Foreground() == korvale_->Main(); };
  report_.Step("the main window is in front again",
               WaitFor(main_is_back) && HoldsFor(main_is_back));
}

void Tour::GoRound() {
  report_.Headline("Round and round");
  for (int round = 0; round < 3; ++round) {
    report_.KeyToFront("Alt+4: the game", TagKey(4), mines_->window());
    Seen(mines_->window());
    report_.KeyToFront("Alt+3: Notepad", TagKey(3), notepad_->window());
    Seen(notepad_->window());
    report_.KeyToFront("Alt+0: back to the game", TagKey(0), mines_->window());
    Seen(mines_->window());
    report_.KeyToFront("Alt+0: and to Notepad again", TagKey(0), notepad_->window());
    Seen(notepad_->window());
  }
}

}  // namespace korvale::endtoend
