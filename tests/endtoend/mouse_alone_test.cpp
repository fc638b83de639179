#include "tests/endtoend/harness/color_dialog.h"
#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/mouse_user.h"

namespace korvale::endtoend {
namespace {

/// The whole use of Korvale by somebody who has only a mouse. What only the keyboard can do: the
/// hot keys themselves, a menu bar that was hidden, Alt and a click, and an edited title.
class MouseAlone : public MouseUser {
 public:
  using Step = void (MouseAlone::*)();

  void Do(std::initializer_list<Step> steps) {
    for (const Step step : steps) {
      (this->*step)();
      if (HasFailure()) return;
    }
  }

  void StartForTheFirstTime();
  void ReviewTheHotKeys();
  void LeaveMenusByAClickElsewhere();
  void TagThreeWindows();
  void GoToThemAndBack();
  void MinimizeAndRestoreThemAll();
  void LetToolWindowsInAndExcludeThem();
  void ChangeTheColors();
  void PutTheColorsBack();
  void LookAtAbout();
  void KeepTheMenu();
  void KeepOnTop();
  void Untag();
  void SwitchTheHotKeysOffAndOn();
  void StartAgainAndExit();
};

void MouseAlone::StartForTheFirstTime() {
  alpha_ = OpenAt(20, {.title = "Alpha"});
  beta_ = OpenAt(300, {.title = "Beta"});
  letter_ = OpenAt(580, {.title = "Letter - Writer"});
  korvale_.emplace(installation_);
  const Window question = ReviewQuestion();
  ASSERT_TRUE(InFront(question));
  Click(Window(GetDlgItem(question.handle(), IDYES)));
}

void MouseAlone::ReviewTheHotKeys() {
  const OptionsDialog options(korvale_->Form("frmOptions"));
  ASSERT_TRUE(InFront(options.form()));
  EXPECT_EQ(options.CurrentPage(), Page::kHotKeys);
  ASSERT_TRUE(Toggle(options.TagBox(8), false));
  EXPECT_TRUE(WaitFor([&] { return !HasBorder(options.TagLabel(8)); }));
  Click(options.TagLabel(9));
  EXPECT_TRUE(WaitFor([&] { return !IsChecked(options.TagBox(9)); }));
  const Window modifiers = options.ListBox(List::kMenuModifier);
  ASSERT_TRUE(PickEntry(modifiers, 2));
  EXPECT_EQ(modifiers.Text(), "Ctrl");
  TurnWheel(modifiers, -1);
  EXPECT_TRUE(Shows(options, List::kMenuModifier, "Shift"));
  TurnWheel(modifiers, 1);
  EXPECT_TRUE(Shows(options, List::kMenuModifier, "Ctrl"));
  Click(options.Button("&Apply"));
  EXPECT_TRUE(WaitFor([] { return HotKeyIsFree(TagKey(8)); }));
  EXPECT_TRUE(WaitFor([] { return !HotKeyIsFree({MOD_CONTROL, 'W'}); }));
  ASSERT_TRUE(LeaveBy(options.form(), options.Button("OK")));
  EXPECT_FALSE(HotKeyIsFree({MOD_CONTROL, 'W'}));
}

/// No title twice in a row: Wine forgets the click that closed the menu, and so takes the next one
/// on the same title for a double click, in every program.
void MouseAlone::LeaveMenusByAClickElsewhere() {
  const auto leave = [this](Window window) {
    ClickAt(window, {150, 13});
    return WaitFor([this] { return !korvale_->HasMenu(); });
  };
  for (const Window window : {main(), alpha_}) {
    ASSERT_EQ(OpenMenuOf(kView, kViewEntries).size(), kViewEntries);
    ASSERT_TRUE(leave(window));
    ASSERT_EQ(OpenMenuOf(kTools, kToolsEntries).size(), kToolsEntries);
    ASSERT_TRUE(leave(window));
  }
}

void MouseAlone::TagThreeWindows() {
  for (const Window window : {alpha_, beta_}) {
    ASSERT_TRUE(GoToByClick(window));
    const AddWindowDialog dialog = AddPrevious();
    EXPECT_EQ(dialog.TitleBox().Text(), window.Title());
    EXPECT_EQ(dialog.SelectedTag(), std::to_string(tags_ + 1));
    ASSERT_TRUE(LeaveBy(dialog.form(), dialog.OkButton()));
    ++tags_;
  }
  ASSERT_TRUE(GoToByClick(letter_));
  const AddWindowDialog dialog = AddPrevious();
  ASSERT_TRUE(PickEntry(dialog.TagList(), 4));
  EXPECT_EQ(dialog.SelectedTag(), "5");
  ASSERT_TRUE(dialog.Choose(2));
  ASSERT_TRUE(LeaveBy(dialog.form(), dialog.OkButton()));
  ++tags_;
}

void MouseAlone::GoToThemAndBack() {
  ASSERT_TRUE(ChooseFromWindowMenu(kTag1));
  ASSERT_TRUE(InFront(alpha_));
  ASSERT_TRUE(Target("Alpha"));
  letter_.SetTitle("Note - Writer");
  ASSERT_TRUE(ChooseFromWindowMenu(kTag2 + 1));
  ASSERT_TRUE(InFront(letter_));
  ASSERT_TRUE(Target("Note - Writer"));
  // From the main window Tag 0 leads back to where the user has come from.
  ASSERT_TRUE(ChooseFromWindowMenu(kTag0));
  ASSERT_TRUE(InFront(letter_));
}

void MouseAlone::MinimizeAndRestoreThemAll() {
  ASSERT_TRUE(ChooseFromWindowMenu(kMinimizeAll));
  for (const Window window : {alpha_, beta_, letter_}) {
    EXPECT_TRUE(WaitFor([&] { return window.Minimized(); })) << Describe(window);
  }
  // Korvale's own window, too: what a click on its button in the taskbar does, which Wine lacks.
  EXPECT_TRUE(WaitFor([this] { return main().Minimized(); }));
  PostMessageW(main().handle(), WM_SYSCOMMAND, SC_RESTORE, 0);
  ASSERT_TRUE(WaitFor([this] { return !main().Minimized(); }));
  ASSERT_TRUE(InFront(main()));
  ASSERT_TRUE(ChooseFromWindowMenu(kRestoreAll));
  for (const Window window : {alpha_, beta_, letter_}) {
    EXPECT_TRUE(WaitFor([&] { return !window.Minimized(); })) << Describe(window);
  }
}

void MouseAlone::LetToolWindowsInAndExcludeThem() {
  constexpr char kToolbars[] = "Recognize &Toolbar style windows";
  const OptionsDialog first = OpenOptionsOn(Page::kWindowIdentification);
  ASSERT_TRUE(Toggle(first.Button(kToolbars), true));
  ASSERT_TRUE(LeaveBy(first.form(), first.Button("OK")));
  const Window palette = OpenAt(860, {.title = "Palette", .extended_style = WS_EX_TOOLWINDOW});
  ASSERT_TRUE(GoToByClick(palette));
  const OptionsDialog second = OpenOptionsOn(Page::kWindowIdentification);
  ASSERT_TRUE(Toggle(second.Button(kToolbars), false));
  ASSERT_TRUE(LeaveBy(second.form(), second.Button("OK")));
  ASSERT_TRUE(GoToByClick(beta_));
  Click(palette);
  ASSERT_TRUE(InFront(palette));
  EXPECT_TRUE(HoldsFor([this] { return korvale_->TargetTitle() == "Beta"; }))
      << korvale_->TargetTitle();
}

void MouseAlone::ChangeTheColors() {
  ASSERT_TRUE(ChooseByMouse(kView, kViewColors, kViewEntries));
  const Window tip = korvale_->Form("frmMsgTip");
  ASSERT_TRUE(InFront(tip));
  const std::vector<Window> buttons = tip.Controls("Button");
  ASSERT_EQ(buttons.size(), 2U);
  ASSERT_TRUE(Toggle(buttons[0], true));
  ASSERT_TRUE(LeaveBy(tip, buttons[1]));
  ClickAt(MainWindow(main()).TitleBox(), {20, 6});
  const ColorDialog dialog(*korvale_);
  ASSERT_TRUE(dialog.Pick(9));
  ASSERT_TRUE(InFront(main()));
  ASSERT_TRUE(ChooseByMouse(kView, kViewColors, kViewEntries));
  EXPECT_TRUE(WaitFor([this] {
    const auto stored = settings().Get("Startup", "WI1BackColor");
    return stored && stored != "10485759";
  }));
  EXPECT_TRUE(Stored("Tips", "0"));
}

void MouseAlone::PutTheColorsBack() {
  const std::vector<SeenEntry> seen = OpenMenuOf(kView, kViewEntries);
  ASSERT_EQ(seen.size(), kViewEntries);
  const Window menu = korvale_->OpenMenu();
  ClickOnScreen(seen[kViewDefaults].middle);
  const Window second = WaitForTopLevel([&](Window window) {
    return window.ClassName() == menu.ClassName() && window.Visible() && window != menu;
  });
  ASSERT_TRUE(second);
  ASSERT_EQ(MenuEntries(second, 1).size(), 1U);
  // Its only entry fills the menu.
  Click(second);
  EXPECT_TRUE(Stored("WI1BackColor", "10485759"));
}

void MouseAlone::LookAtAbout() {
  ASSERT_TRUE(ChooseByMouse(kHelp, kHelpEntries - 1, kHelpEntries));
  const Window about = korvale_->Form("frmMsgBox2");
  ASSERT_TRUE(InFront(about));
  ASSERT_TRUE(LeaveBy(about, about.Controls("Button").front()));
}

/// Nothing but keys would bring the menu back, as the caution says.
void MouseAlone::KeepTheMenu() {
  const MainWindow window(main());
  ASSERT_TRUE(ChooseByMouse(kView, kViewTarget, kViewEntries));
  EXPECT_TRUE(WaitFor([&] { return !window.ShowsBoxes(); }));
  ASSERT_TRUE(ChooseByMouse(kView, kViewTarget, kViewEntries));
  EXPECT_TRUE(WaitFor([&] { return window.ShowsBoxes(); }));
  ASSERT_TRUE(ChooseByMouse(kView, kViewMenu, kViewEntries));
  const Window caution = korvale_->MessageBox();
  ASSERT_TRUE(InFront(caution));
  ASSERT_TRUE(LeaveBy(caution, Window(GetDlgItem(caution.handle(), IDCANCEL))));
  EXPECT_TRUE(window.HasMenuBar());
}

/// That the window is on top is not looked at: it owns a tool tip by now, and Wine makes no window
/// topmost that owns another one above it, whoever asks for it.
void MouseAlone::KeepOnTop() {
  ASSERT_TRUE(ChooseFromWindowMenu(kOnTop));
  EXPECT_TRUE(Stored("AlwaysOnTop", "True"));
}

void MouseAlone::Untag() {
  ASSERT_TRUE(GoToByClick(beta_));
  const AddWindowDialog dialog = AddPrevious();
  ASSERT_TRUE(PickEntry(dialog.TagList(), 1));
  EXPECT_EQ(dialog.SelectedTag(), "2  Beta");
  EXPECT_EQ(dialog.State(), "Beta");
  Click(dialog.RemoveButton());
  EXPECT_TRUE(WaitFor([&] { return dialog.State() == "Available"; }));
  EXPECT_FALSE(dialog.RemoveButton().Enabled());
  ASSERT_TRUE(LeaveBy(dialog.form(), dialog.CloseButton()));
  --tags_;
}

void MouseAlone::SwitchTheHotKeysOffAndOn() {
  ASSERT_TRUE(ChooseByMouse(kTools, 0, kToolsEntries));
  const Window tip = korvale_->Form("frmMsgTip");
  ASSERT_TRUE(InFront(tip));
  Click(tip.Controls("Button").at(1));
  EXPECT_EQ(LabelText(korvale_->Form("frmWaitWindow")), "Hot Keys are now Deactivated");
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
  EXPECT_TRUE(WaitFor([this] { return !korvale_->HasForm("frmWaitWindow"); }));
  ASSERT_TRUE(ChooseByMouse(kTools, 0, kToolsEntries));
  EXPECT_EQ(LabelText(korvale_->Form("frmWaitWindow")), "Hot Keys are now Activated");
  EXPECT_FALSE(HotKeyIsFree(TagKey(1)));
  EXPECT_TRUE(WaitFor([this] { return !korvale_->HasForm("frmWaitWindow"); }));
}

void MouseAlone::StartAgainAndExit() {
  ASSERT_TRUE(ChooseByMouse(kFile, 0, 1));
  ASSERT_EQ(korvale_->process().WaitForExit(), 0U);
  ASSERT_TRUE(StartAgain());
  // The splash would cover entries of the menu.
  ASSERT_TRUE(WaitFor([this] { return !korvale_->HasForm("frmMsgBox2"); }));
  ASSERT_TRUE(ChooseFromWindowMenu(kTag1));
  ASSERT_TRUE(InFront(alpha_));
  // The close box.
  ClickAt(main(), {MainWindow(main()).Width() - 14, 13});
  EXPECT_EQ(korvale_->process().WaitForExit(), 0U);
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
}

TEST_F(MouseAlone, IsEnoughFromTheFirstStartToTheExit) {
  Do({&MouseAlone::StartForTheFirstTime, &MouseAlone::ReviewTheHotKeys,
      &MouseAlone::LeaveMenusByAClickElsewhere, &MouseAlone::TagThreeWindows,
      &MouseAlone::GoToThemAndBack, &MouseAlone::MinimizeAndRestoreThemAll,
      &MouseAlone::LetToolWindowsInAndExcludeThem, &MouseAlone::ChangeTheColors,
      &MouseAlone::PutTheColorsBack, &MouseAlone::LookAtAbout, &MouseAlone::KeepTheMenu,
      &MouseAlone::KeepOnTop, &MouseAlone::Untag, &MouseAlone::SwitchTheHotKeysOffAndOn,
      &MouseAlone::StartAgainAndExit});
}

/// The other window stands between the main window and its hidden owner: right above that one, Wine
/// would keep it topmost.
TEST_F(MouseAlone, PutsTheMainWindowOnTopAndTakesItDown) {
  Start();
  ASSERT_TRUE(GoToByClick(OpenAt(20, {.title = "Alpha"})));
  for (const bool topmost : {true, false, true, false}) {
    ASSERT_TRUE(ChooseFromWindowMenu(kOnTop));
    EXPECT_TRUE(WaitFor([&] { return main().Topmost() == topmost; }));
    EXPECT_TRUE(Stored("AlwaysOnTop", topmost ? "True" : "False"));
  }
}

TEST_F(MouseAlone, PutsThePreviousWindowOnTopAndTakesItDown) {
  Start();
  alpha_ = OpenAt(20, {.title = "Alpha"});
  ASSERT_TRUE(GoToByClick(alpha_));
  for (const bool topmost : {true, false, true, false}) {
    ASSERT_TRUE(ChooseFromWindowMenu(kOtherOnTop));
    EXPECT_TRUE(WaitFor([&] { return alpha_.Topmost() == topmost; }));
    EXPECT_TRUE(InFront(main()));
  }
}

}  // namespace
}  // namespace korvale::endtoend
