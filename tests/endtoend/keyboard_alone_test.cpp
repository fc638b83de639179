#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/harness/menu_picture.h"
#include "tests/endtoend/keyboard_user.h"

namespace korvale::endtoend {
namespace {

/// Windows 10 and 11 keep the Windows key with W for themselves.
constexpr Chord kPopUpKey{MOD_CONTROL, VK_F9};

constexpr Rgb kYellow{255, 255, 159};
constexpr Rgb kGreen{10, 255, 159};

Window ButtonOf(Window box, int button) { return Window(GetDlgItem(box.handle(), button)); }

/// The whole use of Korvale by somebody who has no mouse.
class KeyboardAlone : public KeyboardUser {
 public:
  using Step = void (KeyboardAlone::*)();

  void Do(std::initializer_list<Step> steps) {
    for (const Step step : steps) {
      (this->*step)();
      if (HasFailure()) return;
    }
  }

  void StartForTheFirstTime() {
    alpha_ = Open("Alpha");
    korvale_.emplace(installation_);
    const Window question = ReviewQuestion();
    ASSERT_TRUE(FocusIs(question, ButtonOf(question, IDYES)));
    ASSERT_TRUE(TabTo(question, ButtonOf(question, IDNO)));
    Press({0, VK_LEFT});
    ASSERT_TRUE(FocusIs(question, ButtonOf(question, IDYES)));
    Press({0, VK_SPACE});
  }

  void ReviewTheHotKeys() {
    const OptionsDialog options(korvale_->Form("frmOptions"));
    ASSERT_TRUE(FocusIs(options.form(), options.ListBox(List::kTagModifier)));
    EXPECT_FALSE(HotKeyIsFree(kDefaultOptionsKey));
    for (int tag = 0; tag <= 8; ++tag) ASSERT_TRUE(TabTo(options.form(), options.TagBox(tag)));
    Press({0, VK_SPACE});
    EXPECT_TRUE(WaitFor([&] { return !IsChecked(options.TagBox(8)); }));
    EXPECT_TRUE(WaitFor([&] { return !HasBorder(options.TagLabel(8)); }));
    Press({MOD_ALT, 'G'});
    ASSERT_TRUE(FocusIs(options.form(), options.ListBox(List::kOptionsModifier)));
    const Window optionsKey = options.ListBox(List::kOptionsKey);
    ASSERT_TRUE(TabTo(options.form(), optionsKey));
    Press({0, VK_SPACE});
    EXPECT_TRUE(WaitFor([&] { return optionsKey.Text() == " "; }));
    const Window name(GetWindow(optionsKey.handle(), GW_HWNDPREV));
    EXPECT_EQ(name.Text(),
              " displays the Options dialog box (this dialog box) -- Hot Key is Disabled ");
    ASSERT_TRUE(TabTo(options.form(), options.ListBox(List::kMenuModifier)));
    Press({0, 'C'});
    EXPECT_TRUE(Shows(options, List::kMenuModifier, "Ctrl"));
    ASSERT_TRUE(TabTo(options.form(), options.ListBox(List::kMenuKey)));
    Press({0, kPopUpKey.key});
    EXPECT_TRUE(Shows(options, List::kMenuKey, "F9"));
    ASSERT_TRUE(Leave(options.form(), VK_RETURN));
    EXPECT_FALSE(HotKeyIsFree(kPopUpKey));
    EXPECT_TRUE(HotKeyIsFree(TagKey(8)));
    EXPECT_EQ(HotKeyIsFree(kDefaultOptionsKey), !windows_keeps_options_key_);
  }

  void TagThreeWindows() {
    // The window in front before the start, from the menu bar.
    ASSERT_TRUE(Target("Alpha"));
    ASSERT_TRUE(OpenWindowMenu());
    Press({0, 'W'});
    const AddWindowDialog first = AddWindow();
    EXPECT_EQ(first.SelectedTag(), "1");
    ASSERT_TRUE(Leave(first.form(), VK_RETURN));
    // One that is started now, from the pop-up: the last entry is the first upwards.
    beta_ = Open("Beta");
    ASSERT_TRUE(Target("Beta"));
    ASSERT_TRUE(OpenPopUp(kPopUpKey));
    Press({0, VK_UP});
    Press({0, VK_RETURN});
    const AddWindowDialog second = AddWindow();
    EXPECT_EQ(second.TitleBox().Text(), "Beta");
    EXPECT_EQ(second.SelectedTag(), "2");
    ASSERT_TRUE(TabTo(second.form(), second.TitleBox()));
    Press({0, VK_APPS});
    ASSERT_TRUE(korvale_->OpenMenu()) << "the context menu of a text box";
    Press({0, VK_ESCAPE});
    ASSERT_TRUE(WaitFor([this] { return !korvale_->HasMenu(); }));
    ASSERT_TRUE(LeaveTo(beta_, second.form(), VK_RETURN));
    // Another one by the right part of its title.
    letter_ = Open("Letter - Writer");
    ASSERT_TRUE(Target("Letter - Writer"));
    ASSERT_TRUE(OpenPopUp(kPopUpKey));
    Press({0, 'W'});
    const AddWindowDialog third = AddWindow();
    for (const Window next : {third.TitleBox(), third.ClassBox(), third.Choices()[0]}) {
      ASSERT_TRUE(TabTo(third.form(), next));
    }
    Press({0, VK_UP});
    ASSERT_TRUE(FocusIs(third.form(), third.Choices()[2]));
    EXPECT_TRUE(IsChecked(third.Choices()[2]));
    ASSERT_TRUE(LeaveTo(letter_, third.form(), VK_RETURN));
  }

  void TagKorvaleItself() {
    ASSERT_TRUE(OpenPopUp(kPopUpKey));
    Press({0, 'U'});
    const AddWindowDialog dialog = AddWindow();
    EXPECT_EQ(dialog.TitleBox().Text(), installation_.name());
    Press({0, '9'});
    EXPECT_TRUE(WaitFor([&] { return dialog.SelectedTag() == "9"; }));
    ASSERT_TRUE(LeaveTo(letter_, dialog.form(), VK_RETURN));
  }

  void GoToThemAndBack() {
    ASSERT_TRUE(GoTo(1, alpha_));
    ASSERT_TRUE(GoTo(2, beta_));
    letter_.SetTitle("Note - Writer");
    ASSERT_TRUE(GoTo(3, letter_));
    ASSERT_TRUE(Target("Note - Writer"));
    ASSERT_TRUE(GoTo(0, beta_));
    ASSERT_TRUE(Target("Beta"));
    ASSERT_TRUE(GoTo(0, letter_));
    ASSERT_TRUE(GoTo(9, main()));
    ASSERT_TRUE(GoTo(0, letter_));
  }

  void MinimizeAndMaximize() {
    ASSERT_TRUE(GoTo(1, alpha_));
    ASSERT_TRUE(Target("Alpha"));
    Press(kMinimizeKey);
    EXPECT_TRUE(WaitFor([this] { return alpha_.Minimized(); }));
    ASSERT_TRUE(WaitFor([this] { return Foreground() && Foreground() != alpha_; }));
    ASSERT_TRUE(GoTo(1, alpha_));
    EXPECT_TRUE(WaitFor([this] { return !alpha_.Minimized(); }));
    for (const bool maximized : {true, false}) {
      Press(kMaximizeKey);
      EXPECT_TRUE(WaitFor([&] { return alpha_.Maximized() == maximized; }));
    }
    EXPECT_TRUE(InFront(alpha_));
  }

  void UseThePopUp() {
    // Four switches and Tags 0 to 2.
    constexpr int kEntriesToTag2 = 7;
    ASSERT_TRUE(OpenPopUp(kPopUpKey));
    for (int entry = 0; entry < kEntriesToTag2; ++entry) Press({0, VK_DOWN});
    Press({0, VK_RETURN});
    ASSERT_TRUE(InFront(beta_));
    ASSERT_TRUE(Target("Beta"));
    ASSERT_TRUE(OpenPopUp(kPopUpKey));
    Press({0, VK_ESCAPE});
    ASSERT_TRUE(InFront(beta_));
  }

  void LetToolWindowsIn() {
    ASSERT_TRUE(GoTo(9, main()));
    const OptionsDialog options = OpenOptionsPage('T', 'O', Page::kWindowIdentification);
    const Window box = options.Button("Recognize &Toolbar style windows");
    ASSERT_TRUE(FocusIs(options.form(), box));
    ASSERT_TRUE(ShowsFocusFrame(box));
    Press({0, VK_SPACE});
    EXPECT_TRUE(WaitFor([&] { return IsChecked(box); }));
    ASSERT_TRUE(Leave(options.form(), VK_RETURN));
    Open({.title = "Palette", .extended_style = WS_EX_TOOLWINDOW});
    EXPECT_TRUE(Target("Palette"));
  }

  void ExcludeToolWindows() {
    ASSERT_TRUE(GoTo(9, main()));
    const OptionsDialog options = OpenOptionsPage('V', 'P', Page::kWindowIdentification);
    Press({MOD_ALT, 'T'});
    const Window box = options.Button("Recognize &Toolbar style windows");
    EXPECT_TRUE(WaitFor([&] { return !IsChecked(box); }));
    ASSERT_TRUE(FocusIs(options.form(), box));
    ASSERT_TRUE(Leave(options.form(), VK_RETURN));
    ASSERT_TRUE(GoTo(1, alpha_));
    ASSERT_TRUE(Target("Alpha"));
    Open({.title = "Tools", .extended_style = WS_EX_TOOLWINDOW});
    EXPECT_TRUE(HoldsFor([this] { return korvale_->TargetTitle() == "Alpha"; }));
  }

  void ChangeTheColors() {
    ASSERT_TRUE(GoTo(9, main()));
    const MainWindow window(main());
    ASSERT_TRUE(Choose('V', {'C'}));
    const Window tip = korvale_->Form("frmMsgTip");
    const std::vector<Window> buttons = tip.Controls("Button");
    ASSERT_EQ(buttons.size(), 2U);
    ASSERT_TRUE(FocusIs(tip, buttons[0]));
    ASSERT_TRUE(TabTo(tip, buttons[1]));
    ASSERT_TRUE(Leave(tip, VK_SPACE));
    EXPECT_EQ(Checked('V', kViewEntries), 3) << "Menu, Target Window and Customize Colors";
    Press({0, VK_RETURN});
    const ColorDialog dialog(*korvale_);
    ASSERT_TRUE(InFront(dialog.window()));
    EXPECT_EQ(dialog.Shown(), kYellow);
    Press({MOD_ALT, 'R'});
    Type(std::to_string(kGreen.red));
    EXPECT_TRUE(WaitFor([&] { return dialog.Shown() == kGreen; }));
    ASSERT_TRUE(Leave(dialog.window(), VK_RETURN));
    EXPECT_TRUE(HasColor(window.TitleBox(), kGreen));
    ASSERT_TRUE(TabTo(main(), window.ClassBox()));
    Press({MOD_ALT, VK_RETURN});
    EXPECT_TRUE(HasColor(window.ClassBox(), kGreen));
  }

  void PutTheColorsBack() {
    ASSERT_TRUE(Choose('V', {'D', 'T'}));
    EXPECT_TRUE(HasColor(MainWindow(main()).TitleBox(), kYellow));
    EXPECT_EQ(Checked('V', kViewEntries), 2) << "Menu and Target Window";
    Press({MOD_SHIFT, VK_TAB});
    EXPECT_TRUE(FocusIs(main(), MainWindow(main()).TitleBox()));
  }

  void LookAtHelpAndAbout() {
    Press({0, VK_F1});
    ASSERT_TRUE(korvale_->OpenMenu());
    Press({0, 'A'});
    const Window about = korvale_->Form("frmMsgBox2");
    ASSERT_EQ(about.Controls("Button").size(), 1U);
    ASSERT_TRUE(FocusIs(about, about.Controls("Button").front()));
    Press({0, VK_ESCAPE});
    EXPECT_TRUE(WaitFor([this] { return !korvale_->HasForm("frmMsgBox2"); }));
    ASSERT_TRUE(InFront(main()));
    // The help page, which this installation does not have.
    ASSERT_TRUE(Choose('H', {'H'}));
    EXPECT_TRUE(StaysInFront(main()));
  }

  void HideTheMenu() {
    const MainWindow window(main());
    ASSERT_TRUE(Choose('V', {'M'}));
    const Window caution = korvale_->MessageBox();
    ASSERT_TRUE(FocusIs(caution, ButtonOf(caution, IDCANCEL)));
    Press({0, VK_LEFT});
    ASSERT_TRUE(FocusIs(caution, ButtonOf(caution, IDOK)));
    Press({0, VK_RETURN});
    EXPECT_TRUE(WaitFor([&] { return !window.HasMenuBar(); }));
    ASSERT_TRUE(InFront(main()));
    EXPECT_EQ(Checked('V', kViewEntries), 1) << "Target Window";
    ASSERT_TRUE(Choose('V', {'M'}));
    EXPECT_TRUE(WaitFor([&] { return window.HasMenuBar(); }));
  }

  void KeepOnTop() {
    constexpr size_t kTags = 4;
    for (const bool topmost : {true, false}) {
      ASSERT_TRUE(OpenWindowMenu());
      Press({0, 'O'});
      EXPECT_TRUE(WaitFor([&] { return main().Topmost() == topmost && !korvale_->HasMenu(); }));
      EXPECT_EQ(Checked('W', kWindowEntries + kTags), topmost ? 1 : 0);
    }
  }

  void Untag() {
    ASSERT_TRUE(OpenWindowMenu());
    Press({0, 'W'});
    const AddWindowDialog dialog = AddWindow();
    Press({0, '2'});
    EXPECT_TRUE(WaitFor([&] { return dialog.SelectedTag() == "2  Beta"; }));
    EXPECT_EQ(dialog.State(), "Beta");
    Press({MOD_ALT, 'R'});
    EXPECT_TRUE(WaitFor([&] { return dialog.State() == "Available"; }));
    EXPECT_EQ(dialog.SelectedTag(), "2");
    EXPECT_TRUE(FocusIs(dialog.form(), dialog.TitleBox()));
    ASSERT_TRUE(Leave(dialog.form(), VK_ESCAPE));
  }

  void StartAgainAndExit() {
    Press({MOD_ALT, VK_F4});
    ASSERT_EQ(korvale_->process().WaitForExit(), 0U);
    ASSERT_TRUE(StartAgain());
    ASSERT_TRUE(GoTo(1, alpha_));
    ASSERT_TRUE(GoTo(3, letter_));
    ASSERT_TRUE(GoTo(9, main()));
    Press({MOD_ALT, 'F'});
    ASSERT_TRUE(korvale_->OpenMenu());
    Press({0, VK_DOWN});
    Press({0, VK_RETURN});
    EXPECT_EQ(korvale_->process().WaitForExit(), 0U);
    EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
  }
};

TEST_F(KeyboardAlone, IsEnoughFromTheFirstStartToTheExit) {
  Do({&KeyboardAlone::StartForTheFirstTime, &KeyboardAlone::ReviewTheHotKeys,
      &KeyboardAlone::TagThreeWindows, &KeyboardAlone::TagKorvaleItself,
      &KeyboardAlone::GoToThemAndBack, &KeyboardAlone::MinimizeAndMaximize,
      &KeyboardAlone::UseThePopUp, &KeyboardAlone::LetToolWindowsIn,
      &KeyboardAlone::ExcludeToolWindows, &KeyboardAlone::ChangeTheColors,
      &KeyboardAlone::PutTheColorsBack, &KeyboardAlone::LookAtHelpAndAbout,
      &KeyboardAlone::HideTheMenu, &KeyboardAlone::KeepOnTop, &KeyboardAlone::Untag,
      &KeyboardAlone::StartAgainAndExit});
}

}  // namespace
}  // namespace korvale::endtoend
