#include <stdexcept>

#include "tests/endtoend/endurance_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";

constexpr int kTags = 3;
constexpr int kTagWithoutWindow = 4;

std::string TitleOf(int tag) { return "Window " + std::to_string(tag); }

}  // namespace

void EnduranceTest::StartWithTags() {
  for (int tag = 1; tag <= kTagWithoutWindow; ++tag) {
    installation_.StoreTag(tag, TitleOf(tag), kClass);
  }
  Start();
  other_ = Open("Page 0");
  for (int tag = 1; tag <= kTags; ++tag) tagged_.push_back(OpenTagged(tag, SW_SHOWNORMAL));
  tag_ = kTags;
}

int EnduranceTest::NextTag() { return tag_ = tag_ % kTags + 1; }

Window EnduranceTest::OpenTagged(int tag, int show) {
  return Open({.title = TitleOf(tag), .class_name = kClass, .show = show});
}

void EnduranceTest::Need(const ::testing::AssertionResult& held) {
  if (!held) throw std::runtime_error(held.message());
}

void EnduranceTest::Need(const char* what, bool held) {
  if (!held) throw std::runtime_error(std::string("not so: ") + what);
  LetProgramsFinish();
}

void EnduranceTest::NeedThat(const char* what, const std::function<bool()>& condition) {
  Need(what, WaitFor(condition));
}

void EnduranceTest::PressFor(const char* what, Chord chord, const std::function<bool()>& outcome) {
  if (chord.modifiers == 0 && !korvale_->HasMenu()) ForgetKeys(Foreground());
  Press(chord);
  NeedThat(what, outcome);
}

void EnduranceTest::PressForWindow(Chord chord, Window window) {
  PressFor("the window comes forward", chord, [&] { return Foreground() == window; });
  NeedInFront(window);
}

void EnduranceTest::NeedInFront(Window window) { Need(InFront(window)); }

void EnduranceTest::Leave(UINT key, Window form) {
  PressFor("the form goes", {0, key}, [&] { return !form.Exists() || !form.Visible(); });
}

void EnduranceTest::Dismiss(Window message) {
  NeedInFront(message);
  PressFor("the message goes", {0, VK_RETURN}, [&] { return !message.Exists(); });
}

void EnduranceTest::GoByTagKey() {
  // Where Alt goes down in one program and up in another, Wine tells the first one with its next
  // key that Alt is still down: Korvale would not take that key for Enter.
  if (Foreground() == main()) Need("another window comes", BringToFront(Tagged(tag_)));
  const Window window = Tagged(NextTag());
  PressForWindow(TagKey(tag_), window);
}

void EnduranceTest::GoByTagKeyToAReopenedWindow() {
  GoByTagKey();
  const int tag = NextTag();
  Need("the window closes", Tagged(tag).Close());
  tagged_.at(static_cast<size_t>(tag - 1)) = OpenTagged(tag, SW_SHOWNOACTIVATE);
  PressForWindow(TagKey(tag), Tagged(tag));
}

void EnduranceTest::BeToldThatATagIsNotOpen() {
  PressFor("a message", TagKey(kTagWithoutWindow), [this] { return korvale_->HasMessageBox(); });
  Dismiss(korvale_->MessageBox());
  NeedInFront(Tagged(tag_));
}

void EnduranceTest::BeToldThatHotKeysAreSuspended() {
  const auto notices = [this] { return korvale_->MessageBoxes("Korvale     "); };
  PressFor("a message", TagKey(kTagWithoutWindow), [this] { return korvale_->HasMessageBox(); });
  const Window message = korvale_->MessageBox();
  NeedInFront(message);
  PressFor("the notice", TagKey(tag_), [&] { return !notices().empty(); });
  Dismiss(notices().front());
  Dismiss(message);
  NeedInFront(Tagged(tag_));
}

void EnduranceTest::GoToThePreviousWindow() {
  const Window before = Tagged(tag_);
  GoByTagKey();
  PressForWindow(TagKey(0), before);
  tag_ = (tag_ + 1) % kTags + 1;
}

void EnduranceTest::PopUp() { Need(PopUpWindowMenu()); }

void EnduranceTest::PopUpAndEscape() {
  PopUp();
  PressFor("the menu goes", {0, VK_ESCAPE}, [this] { return !korvale_->HasMenu(); });
  NeedInFront(Tagged(tag_));
}

void EnduranceTest::ChooseInPopUp(UINT entry) {
  PopUp();
  PressFor("the entry is chosen", {0, entry}, [this] { return !korvale_->HasMenu(); });
}

void EnduranceTest::PopUpAndChoose() {
  const int tag = NextTag();
  ChooseInPopUp(static_cast<UINT>('0' + tag));
  NeedInFront(Tagged(tag));
}

void EnduranceTest::MaximizeAndRestore() {
  const Window window = Tagged(tag_);
  for (const bool maximized : {true, false}) {
    PressFor("maximized or restored", kMaximizeKey,
             [&] { return window.Maximized() == maximized; });
  }
}

void EnduranceTest::MinimizeAndComeBack() {
  const Window window = Tagged(tag_);
  PressFor("minimized", kMinimizeKey, [&] { return window.Minimized(); });
  NeedThat("another comes", [&] { return Foreground() && Foreground() != window; });
  PressFor("restored", TagKey(tag_), [&] { return !window.Minimized(); });
  NeedInFront(window);
}

void EnduranceTest::MinimizeAllAndRestoreAll() {
  for (const UINT entry : {'M', 'R'}) {
    ChooseInPopUp(entry);
    for (const Window window : tagged_) {
      NeedThat("all are minimized and restored",
               [&] { return window.Minimized() == (entry == 'M'); });
    }
  }
  GoByTagKey();
}

void EnduranceTest::ToggleHotKeys() {
  for (int times = 0; times < 2; ++times) {
    Press(kToggleKey);
    const Window notice = korvale_->Form("frmWaitWindow");
    Need("the notice comes and goes", notice && notice.Close());
  }
}

}  // namespace korvale::endtoend
