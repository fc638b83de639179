#include <algorithm>
#include <chrono>

#include "tests/endtoend/harness/color_dialog.h"
#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/harness/spoken.h"
#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {
namespace {

/// What stands below each page of the Options dialog.
constexpr char kOptionsButtons[] = R"(
button 'OK', default
button 'Cancel'
button 'Apply', Alt+A
button 'Reset All Options to Default'
tabs 'Pages')";

/// What a screen reader says of each window.
class ScreenReader : public OptionsTest {
 protected:
  static std::string Read(Window window) { return Table(Spoken(window)); }

  /// A dialog that the system makes: it may stand in any order, and may have an empty picture.
  static std::string ReadSorted(Window dialog) {
    std::vector<std::string> lines = Spoken(dialog);
    std::erase(lines, "picture ''");
    std::ranges::sort(lines);
    return Table(lines);
  }

  Window OpenOptionsOn(Page page) { return StartWithOptions(page).form(); }
};

TEST_F(ScreenReader, ReadsTheMainWindow) {
  Start();
  WorkInNew("Notes");
  EXPECT_EQ(Read(main()), R"(
window 'Korvale - Probe'
text box 'Target Window' = 'Notes', read-only
text box 'Class of Target Window' = 'Test.Window', read-only)");
}

TEST_F(ScreenReader, ReadsTheAddWindowDialog) {
  Start();
  WorkInNew("Notes - Editor");
  EXPECT_EQ(Read(OpenAddWindow().form()), R"(
window 'Korvale - Add Window'
text 'Assign a Tag', Alt+T
list 'Assign a Tag' = '1', focused, Alt+T
text 'Available'
button 'Remove', unavailable, Alt+R
text 'Identify Window', Alt+W
text box 'Identify Window' = 'Notes - Editor', Alt+W
text box 'Class of Window' = 'Test.Window', read-only
option 'Notes - Editor', checked
option 'Notes - ***'
option '*** - Editor'
button 'OK', default
button 'Close')");
}

TEST_F(ScreenReader, ReadsTheGeneralPageOfTheOptions) {
  EXPECT_EQ(Read(OpenOptionsOn(Page::kGeneral)), std::string(R"(
window 'Korvale - Options'
page 'General'
check box 'Display splash screen on startup', focused, Alt+D
check box 'Select the Previous Window on startup', Alt+W)") +
                                                     kOptionsButtons + R"(
tab 'General', selected
tab 'Hot Keys'
tab 'Window Identification')");
}

TEST_F(ScreenReader, ReadsTheHotKeysPageOfTheOptions) {
  EXPECT_EQ(Read(OpenOptionsOn(Page::kHotKeys)), std::string(R"(
window 'Korvale - Options'
page 'Hot Keys'
group 'Window Selection', Alt+W
list 'Key to hold down with the number of a Tag' = 'Alt', focused
text '+'
text 'selects the Previous Window'
check box '0', checked
text 'selects the window that has been assigned Tag number 1'
check box '1', checked
text 'selects the window that has been assigned Tag number 2'
check box '2', checked
text 'selects the window that has been assigned Tag number 3'
check box '3', checked
text 'selects the window that has been assigned Tag number 4'
check box '4', checked
text 'selects the window that has been assigned Tag number 5'
check box '5', checked
text 'selects the window that has been assigned Tag number 6'
check box '6', checked
text 'selects the window that has been assigned Tag number 7'
check box '7', checked
text 'selects the window that has been assigned Tag number 8'
check box '8', checked
text 'selects the window that has been assigned Tag number 9'
check box '9', checked
text 'Tip: Alt+Tab and Alt+F4 are provided by the Windows® operating system.'
group 'Window Actions', Alt+S
text 'Minimize Window'
list 'Minimize Window' = 'Alt'
text '+'
list 'minimizes individual desktop windows' = 'DownArrow'
text 'minimizes individual desktop windows'
text 'Maximize/Restore Window'
list 'Maximize/Restore Window' = 'Alt'
text '+'
list 'alternately maximizes/restores individual desktop windows' = 'UpArrow'
text 'alternately maximizes/restores individual desktop windows'
group 'General', Alt+G
text 'Display Options'
list 'Display Options' = 'Ctrl'
text '+'
list 'displays the Options dialog box (this dialog box)' = 'F11'
text 'displays the Options dialog box (this dialog box)'
text 'Display Window Menu'
list 'Display Window Menu' = 'Ctrl'
text '+'
list 'displays the pop-up version of the Window menu anywhere on the desktop' = 'F12'
text 'displays the pop-up version of the Window menu anywhere on the desktop'
text 'Activate/Deactivate Hot Keys'
list 'Activate/Deactivate Hot Keys' = ''
text '+'
list 'toggles all system-wide Hot Keys ON/OFF (except this one)' = 'Pause'
text 'toggles all system-wide Hot Keys ON/OFF (except this one)'
text 'Legend:'
text 'indicates Hot Key is Enabled -- Click to change this color -- use Shift+Click to reset to default'
text 'indicates Hot Key is Disabled')") + kOptionsButtons +
                                                     R"(
tab 'General'
tab 'Hot Keys', selected
tab 'Window Identification')");
}

TEST_F(ScreenReader, IsToldWhichHotKeysAreDisabled) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  Click(dialog.TagBox(8));
  ASSERT_TRUE(WaitFor([&] { return !IsChecked(dialog.TagBox(8)); }));
  ASSERT_TRUE(Pick(dialog, List::kMinimizeKey, VK_SPACE, " "));
  ASSERT_TRUE(WaitFor([&] { return !HasBorder(dialog.Label(" Minimize Window")); }));
  const std::vector<std::string> lines = Spoken(dialog.form());
  for (const char* const line :
       {"check box '7', checked", "check box '8'", "check box '9', checked",
        "list 'minimizes individual desktop windows -- Hot Key is Disabled' = '', focused",
        "list 'alternately maximizes/restores individual desktop windows' = 'UpArrow'"}) {
    EXPECT_EQ(std::ranges::count(lines, line), 1) << line << Table(lines);
  }
}

TEST_F(ScreenReader, ReadsTheWindowIdentificationPageOfTheOptions) {
  EXPECT_EQ(Read(OpenOptionsOn(Page::kWindowIdentification)), std::string(R"(
window 'Korvale - Options'
page 'Window Identification'
group 'Window Identification (Parent)'
check box 'Recognize Toolbar style windows', focused, Alt+T
check box 'Recognize windows that have no Title', Alt+R)") + kOptionsButtons +
                                                                  R"(
tab 'General'
tab 'Hot Keys'
tab 'Window Identification', selected)");
}

TEST_F(ScreenReader, ReadsWhichHotKeysAnotherProgramHas) {
  ASSERT_TRUE(program_.TakeHotKey(TagKey(5)));
  ASSERT_TRUE(program_.TakeHotKey(kMenuKey));
  installation_.StoreTag(5, "Alpha", "Test.Window");
  installation_.settings().Set("Startup", "DisplayTips", "False");
  const std::vector<std::string> lines = Spoken(OpenOptionsOn(Page::kHotKeys));
  const char* const refused =
      "text 'Not available, in use by Windows or another program: Alt+5, Ctrl+F12'";
  EXPECT_EQ(std::ranges::count(lines, refused), 1) << Table(lines);
}

TEST_F(ScreenReader, ReadsAMessage) {
  const OptionsDialog dialog = StartWithOptions(Page::kGeneral);
  Click(dialog.Button("Reset All Options to Default"));
  const Window message = korvale_->MessageBox();
  ASSERT_TRUE(InFront(message));
  EXPECT_EQ(ReadSorted(message), R"(
button 'Cancel'
button 'OK', default, focused
text 'Reset all Options to default ? The default options will be Applied automatically. )"
                                 R"(Note: This operation will not effect any of the Settings )"
                                 R"(changed from the View menu.'
window 'Korvale - Options')");
  EXPECT_TRUE(AnswerBox(message, IDCANCEL));
}

TEST_F(ScreenReader, ReadsTheAboutBox) {
  Start();
  ASSERT_TRUE(Choose('H', {'A'}));
  const Window about = korvale_->Form("frmMsgBox2");
  ASSERT_TRUE(InFront(about));
  EXPECT_EQ(Read(about), R"(
window 'About Korvale'
picture 'Icon of Korvale'
text 'Korvale 1.00.0000'
text 'Moves you between open windows with hot keys'
text 'Copyright (C) 2026 the Korvale developers'
text 'web\index.html'
button 'OK', default, focused)");
}

TEST_F(ScreenReader, ReadsATipAndTheNoticeAfterIt) {
  Start();
  ASSERT_TRUE(Choose('T', {'H'}));
  const Window tip = korvale_->Form("frmMsgTip");
  ASSERT_TRUE(InFront(tip));
  EXPECT_EQ(Read(tip), R"(
window 'TIP - Korvale'
text 'This deactivates all hot keys except the hot key assigned to Activate/Deactivate Hot Keys. )"
                       R"(When Korvale is installed, the default hot key to Activate/Deactivate )"
                       R"(Hot Keys is the Pause key. If you wish, this hot key can be changed on )"
                       R"(the Hot Keys tab of the Options dialog box.'
check box 'In the future, do not show this message', focused, Alt+I
button 'OK', default)");
  Press({0, VK_RETURN});
  const std::vector<std::string> notice = Spoken(korvale_->Form("frmWaitWindow"));
  ASSERT_EQ(notice.size(), 2U);
  EXPECT_TRUE(notice.front().starts_with("window 'Korvale")) << notice.front();
  EXPECT_EQ(notice.back(), "text 'Hot Keys are now Deactivated'");
}

TEST_F(ScreenReader, FindsNamesInTheColorDialogOfTheSystem) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  Click(dialog.EnabledLegend());
  const ColorDialog colors(*korvale_);
  ASSERT_TRUE(InFront(colors.window()));
  const std::vector<std::string> lines = Spoken(colors.window());
  EXPECT_EQ(std::ranges::count(lines, "button 'OK', default"), 1);
  for (const std::string& line : lines) {
    for (const char* const nameless : {"window ''", "text box ''", "button ''"}) {
      EXPECT_FALSE(line.starts_with(nameless)) << line;
    }
  }
  EXPECT_TRUE(colors.Cancel());
}

TEST_F(ScreenReader, IsToldWhatChangesByItself) {
  installation_.StoreTag(2, "Alpha", "Test.Window");
  Start();
  const Window notes = WorkInNew("Notes");
  const Told of_notes(notes.ProcessId());
  const Told of_korvale(korvale_->process().id());
  notes.SetTitle("Letter");
  if (!of_notes.Change(notes, std::chrono::seconds(1))) {
    GTEST_SKIP() << "the system does not tell of texts that change, as Windows does";
  }
  EXPECT_TRUE(of_korvale.Change(MainWindow(main()).TitleBox()));
  const AddWindowDialog dialog = OpenAddWindow();
  const std::vector<Window> labels = dialog.form().Controls("Static");
  ASSERT_TRUE(dialog.SelectTag(2));
  EXPECT_TRUE(of_korvale.Change(labels.at(1)));
}

}  // namespace
}  // namespace korvale::endtoend
