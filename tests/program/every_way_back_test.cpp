#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/dice.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

/// The number of things that a user does in a row; KORVALE_DEPTH sets another one.
constexpr std::int32_t kThingsInARow = 2;

/// Everything that a user may do between two keys, in every order. Whatever it was, Alt+0 must lead
/// to the window worked in last that is not the present one and still exists.
class EveryWayBackTest : public KorvaleWorld, public testing::WithParamInterface<int> {
 protected:
  struct Thing {
    const char* name;
    void (EveryWayBackTest::*happen)();
  };
  static const std::vector<Thing>& Things();

  void SetUp() override {
    tool = desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow, .activate = false});
    for (const char* const text : {"1  Alpha", "2  Beta", "3  Nowhere"}) {
      store.SaveSetting("Korvale - Work", "ParentWindowList", std::string(1, text[0]),
                        std::string("&") + text);
    }
    korvale = &StartedCopy();
    korvale->host.AnswerOtherBoxes([](const ShownMessage& /*box*/) { return win32::kIdOk; });
  }

  /// Three windows were worked in, Alpha last, and the main window before them.
  void StartAnew() {
    for (const WindowHandle hwnd : std::exchange(windows, {})) {
      if (Exists(hwnd)) desktop.Close(hwnd);
    }
    CloseOptions();
    order.clear();
    closed = dialog = 0;
    Visit(korvale->Handle());
    for (const char* const title : {"Gamma", "Beta", "Alpha"}) {
      windows.push_back(desktop.Open(title, {.className = title}));
      Look();
    }
  }

  /// What a bystander knows.
  void Look() {
    LetTick();
    Note();
  }
  void Note() {
    const WindowHandle front = desktop.Windows().Foreground();
    const WindowHandle in = front == dialog && Exists(dialog) ? BehindDialog() : front;
    const bool counts = std::ranges::find(windows, in) != windows.end() ||
                        in == korvale->Handle() || desktop.Title(in) == "Korvale - Options";
    if (!counts) return;
    std::erase(order, in);
    order.insert(order.begin(), in);
  }
  bool Exists(WindowHandle hwnd) { return hwnd != 0 && desktop.Windows().Find(hwnd) != nullptr; }
  WindowHandle BehindDialog() { return desktop.Windows().Find(dialog)->owner; }
  /// The dialog of the window that is expected, if it has one.
  WindowHandle Expected() {
    for (std::size_t i = 0; i < order.size(); ++i) {
      const bool present = i == 0 && Exists(order[i]);
      if (present || !Exists(order[i]) || !desktop.Windows().IsVisible(order[i])) continue;
      return Exists(dialog) && BehindDialog() == order[i] ? dialog : order[i];
    }
    return desktop.Windows().Foreground();
  }

  void PressAndExpect(const std::string& before) {
    const WindowHandle expected = Expected();
    hotKeys.Press(win32::kModAlt, '0');
    EXPECT_EQ(desktop.Windows().Foreground(), expected)
        << before << ": " << Front() << " instead of " << desktop.Title(expected);
    Note();
  }

  // The things.
  void Visit(WindowHandle hwnd) {
    if (Exists(hwnd) && desktop.Windows().IsVisible(hwnd)) desktop.UserActivates(hwnd);
    Look();
  }
  WindowHandle Window(const char* title) {
    const auto found = std::ranges::find(windows, title,
                                         [this](WindowHandle hwnd) { return desktop.Title(hwnd); });
    return found == windows.end() ? 0 : *found;
  }
  /// The window in front when it is one of the three, 0 otherwise.
  WindowHandle FrontOne() {
    const WindowHandle front = desktop.Windows().Foreground();
    return std::ranges::find(windows, front) == windows.end() ? 0 : front;
  }
  void ToAlpha() { Visit(Window("Alpha")); }
  void ToGamma() { Visit(Window("Gamma")); }
  void ToKorvale() { Visit(korvale->Handle()); }
  void ToTool() { Visit(tool); }
  void ToDesktop() { Visit(desktop.FindWindowA("Program Manager")); }
  void Close() {
    if (const WindowHandle front = FrontOne(); front != 0) {
      desktop.Close(front);
      std::erase(order, front);
      std::erase(windows, front);
      closed = front;
    }
    Look();
  }
  void Reopen() {
    if (closed != 0 && !Exists(closed)) {
      windows.push_back(desktop.Open("Again", {.className = "New", .reuseHandle = closed}));
    }
    Look();
  }
  void Minimize() {
    if (FrontOne() != 0) desktop.UserMinimizes(FrontOne());
    Look();
  }
  void Hide() {
    if (FrontOne() != 0) desktop.Hide(FrontOne());
    Look();
  }
  void Reveal() {
    for (const WindowHandle hwnd : windows) desktop.Reveal(hwnd);
    Look();
  }
  void OpenDialog() {
    if (FrontOne() != 0 && !Exists(dialog)) dialog = desktop.OpenModalDialog(FrontOne(), "Dialog");
    Look();
  }
  void CloseDialog() {
    if (Exists(dialog)) desktop.CloseModalDialog(dialog);
    Look();
  }
  void Key(std::uint32_t modifiers, std::uint32_t key) {
    EXPECT_TRUE(hotKeys.Press(modifiers, key));
    Note();
    Look();
  }
  void PressOne() { Key(win32::kModAlt, '1'); }
  void PressTwo() { Key(win32::kModAlt, '2'); }
  void PressTwoQuickly() {
    EXPECT_TRUE(hotKeys.Press(win32::kModAlt, '2'));
    Note();
  }
  void PressZero() {
    PressAndExpect("a key before the last");
    Look();
  }
  void PressZeroQuickly() { PressAndExpect("a quick key before the last"); }
  void PressMinimize() { Key(win32::kModAlt, win32::kVkDown); }
  void PressMinimizeQuickly() {
    EXPECT_TRUE(hotKeys.Press(win32::kModAlt, win32::kVkDown));
    Note();
  }
  /// Shows a message box.
  void PressTagOfNone() { Key(win32::kModAlt, '3'); }
  void PausesTwice() {
    hotKeys.Press(0, win32::kVkPause);
    Key(0, win32::kVkPause);
  }
  void PopUp(
      const std::string& beginning, const std::function<void()>& prepare = [] {}) {
    korvale->host.WhenPopupMenu([=](const std::vector<ShownMenuItem>& items) {
      const std::string entry = EntryThatBegins(items, beginning);
      if (!entry.empty()) prepare();
      return entry;
    });
    Key(win32::kModWin, 'W');
  }
  void PopUpAndEscape() { PopUp(""); }
  void PopUpAndSelect() { PopUp("2  "); }
  void PopUpAndAdd() {
    PopUp("Add  [", [this] {
      if (!desktop.IsWindowEnabled(korvale->Record().current.handle)) return;
      korvale->host.WhenModal("frmGetWindow", [this](class Form& form) {
        korvale->user.Click(form.Handle(), korvale->Id(form, "cmdClose"));
      });
    });
  }
  void OpenOptions() { Key(win32::kModWin, 'O'); }
  void CloseOptions() {
    if (class Form* const form = korvale->FindForm("frmOptions"); form != nullptr) {
      const WindowHandle hwnd = form->Handle();
      korvale->user.Click(hwnd, korvale->Id(*form, "cmdCancel"));
      std::erase(order, hwnd);
    }
    Look();
  }

  void TryAll(const std::vector<const Thing*>& before, int more) {
    StartAnew();
    std::string told;
    for (const Thing* const thing : before) {
      told += std::string(thing->name) + ", ";
      (this->*thing->happen)();
    }
    PressAndExpect(told);
    if (more == 0 || HasFailure()) return;
    for (const Thing& thing : Things()) {
      std::vector<const Thing*> longer = before;
      longer.push_back(&thing);
      TryAll(longer, more - 1);
      if (HasFailure()) return;
    }
  }

  KorvaleCopy* korvale = nullptr;
  WindowHandle tool = 0;
  WindowHandle dialog = 0;
  WindowHandle closed = 0;
  std::vector<WindowHandle> windows;
  /// The windows worked in, the last first.
  std::vector<WindowHandle> order;
};

const std::vector<EveryWayBackTest::Thing>& EveryWayBackTest::Things() {
  using T = EveryWayBackTest;
  static const std::vector<Thing> things = {{"goes to Alpha", &T::ToAlpha},
                                            {"goes to Gamma", &T::ToGamma},
                                            {"goes to Korvale", &T::ToKorvale},
                                            {"goes to the tool window", &T::ToTool},
                                            {"goes to the desktop", &T::ToDesktop},
                                            {"closes the window", &T::Close},
                                            {"opens one under its handle", &T::Reopen},
                                            {"minimizes the window", &T::Minimize},
                                            {"window hides", &T::Hide},
                                            {"windows come back", &T::Reveal},
                                            {"opens a dialog", &T::OpenDialog},
                                            {"closes the dialog", &T::CloseDialog},
                                            {"Alt+1", &T::PressOne},
                                            {"Alt+2", &T::PressTwo},
                                            {"quick Alt+2", &T::PressTwoQuickly},
                                            {"Alt+0", &T::PressZero},
                                            {"quick Alt+0", &T::PressZeroQuickly},
                                            {"Alt+Down", &T::PressMinimize},
                                            {"quick Alt+Down", &T::PressMinimizeQuickly},
                                            {"a Tag of no window", &T::PressTagOfNone},
                                            {"Pause twice", &T::PausesTwice},
                                            {"Windows+W, Esc", &T::PopUpAndEscape},
                                            {"Windows+W, 2", &T::PopUpAndSelect},
                                            {"Windows+W, Add", &T::PopUpAndAdd},
                                            {"Windows+O", &T::OpenOptions},
                                            {"closes the options", &T::CloseOptions}};
  return things;
}

TEST_P(EveryWayBackTest, IsTheWindowWorkedInBefore) {
  ASSERT_EQ(Things().size(), 26U) << "each must come first once";
  TryAll({&Things().at(static_cast<std::size_t>(GetParam()))},
         Setting("KORVALE_DEPTH", kThingsInARow) - 1);
}

INSTANTIATE_TEST_SUITE_P(First, EveryWayBackTest, testing::Range(0, 26));

}  // namespace
}  // namespace korvale
