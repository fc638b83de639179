#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <map>
#include <string>
#include <vector>

#include "tests/endtoend/harness/color_dialog.h"
#include "tests/endtoend/harness/default_settings.h"
#include "tests/endtoend/harness/gui_mode.h"
#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/korvale_test.h"
#include "tests/endtoend/rude_messages.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";
constexpr char kToolTips[] = "tooltips_class32";
/// The main window and its two boxes.
constexpr std::size_t kFewestWindows = 3;

/// What the program shows; the system keeps windows of its own in every program as well.
bool IsShownByProgram(Window window) {
  const std::string name = window.ClassName();
  return name.starts_with("Korvale.") || name == kToolTips || name == "ComboLBox" ||
         name == "#32770";
}

bool IsControl(Window window) { return (window.Style() & WS_CHILD) != 0; }

BOOL CALLBACK CollectChild(HWND child, LPARAM windows) {
  reinterpret_cast<std::vector<Window>*>(windows)->emplace_back(child);
  return TRUE;
}

std::vector<Window> ControlsOf(Window form) {
  std::vector<Window> controls;
  EnumChildWindows(form.handle(), CollectChild, reinterpret_cast<LPARAM>(&controls));
  return controls;
}

/// What the user has chosen in a control, beside its text.
LRESULT ChoiceIn(Window control) {
  const std::string kind = control.ClassName();
  if (kind == "Button") return control.Send(BM_GETCHECK);
  if (kind == "ComboBox") return control.Send(CB_GETCURSEL);
  return kind == "SysTabControl32" ? control.Send(TCM_GETCURSEL) : 0;
}

/// The text and the choice of every control, whichever page is on the screen.
std::vector<std::string> ContentsOf(Window form) {
  std::vector<std::string> contents;
  for (const Window control : ControlsOf(form)) {
    contents.push_back(control.ClassName() + " [" + control.Text() + "] " +
                       std::to_string(ChoiceIn(control)));
  }
  return contents;
}

class RudePrograms : public KorvaleTest {
 protected:
  /// Every window of the program, including those that are never shown and all controls.
  std::vector<Window> AllWindows() {
    std::vector<Window> all;
    for (const Window window : TopLevelWindows()) {
      if (window.ProcessId() != main().ProcessId() || !IsShownByProgram(window)) continue;
      all.push_back(window);
      const std::vector<Window> controls = ControlsOf(window);
      all.insert(all.end(), controls.begin(), controls.end());
    }
    EXPECT_FALSE(all.empty());
    return all;
  }

  void Post() {
    const std::vector<Window> windows = AllWindows();
    ASSERT_GE(windows.size(), kFewestWindows);
    for (const Window window : windows) {
      for (const Rude& rude : WithEachValue(Queued(), IsControl(window))) {
        PostMessageW(window.handle(), rude.message, rude.wparam, rude.lparam);
      }
      ASSERT_TRUE(window.Responds()) << Describe(window);
    }
  }

  void Send() {
    const std::vector<Window> windows = AllWindows();
    ASSERT_GE(windows.size(), kFewestWindows);
    for (const Window window : windows) {
      for (const Rude& rude : WithEachValue(Sent(), IsControl(window))) {
        window.Send(rude.message, rude.wparam, rude.lparam);
        ASSERT_TRUE(window.Exists()) << rude.message;
      }
      ASSERT_TRUE(window.Responds()) << Describe(window);
    }
  }

  void PostAndSend() {
    Post();
    Send();
    EXPECT_TRUE(main().Responds());
    EXPECT_FALSE(korvale_->HasMessageBox());
  }

  /// Two tagged windows, the first of them in front.
  void StartWithTags() {
    installation_.StoreTag(1, "Alpha", kClass);
    installation_.StoreTag(2, "Beta", kClass);
    Start();
    beta_ = WorkInNew("Beta");
    alpha_ = WorkInNew("Alpha");
    options_ = installation_.settings().Section("Options");
    ASSERT_FALSE(options_.empty());
  }

  void ExpectAllToWork() {
    ASSERT_TRUE(korvale_->process().Running());
    Press(TagKey(2));
    EXPECT_TRUE(InFront(beta_));
    Press(TagKey(1));
    EXPECT_TRUE(InFront(alpha_));
    Press(TagKey(0));
    EXPECT_TRUE(InFront(beta_));
    ASSERT_TRUE(OpenWindowMenu());
    Press({0, VK_ESCAPE});
    Press({0, VK_ESCAPE});
    EXPECT_TRUE(WaitFor([&] { return !korvale_->HasMenu(); }));
    EXPECT_TRUE(Exit());
    EXPECT_EQ(installation_.settings().Section("Options"), options_);
  }

  Window alpha_;
  Window beta_;
  std::map<std::string, std::string> options_;
};

TEST_F(RudePrograms, ChangeNothingInTheMainWindow) {
  Start();
  ASSERT_TRUE(Exit());
  const auto startup = installation_.settings().Section("Startup");
  ASSERT_EQ(startup.size(), kAllStartupSettings);
  StartWithTags();
  PostAndSend();
  EXPECT_TRUE(InFront(alpha_));
  EXPECT_EQ(MainWindow(main()).TitleBox().Text(), "Alpha");
  EXPECT_EQ(MainWindow(main()).ClassBox().Text(), kClass);
  ExpectAllToWork();
  EXPECT_EQ(installation_.settings().Section("Startup"), startup);
}

TEST_F(RudePrograms, ChangeNothingInTheOptionsDialog) {
  StartWithTags();
  Press(kOptionsKey);
  const Window options = korvale_->Form("frmOptions");
  ASSERT_TRUE(options);
  ASSERT_TRUE(InFront(options));
  const std::vector<std::string> contents = ContentsOf(options);
  ASSERT_GT(contents.size(), 70U);
  PostAndSend();
  EXPECT_TRUE(InFront(options));
  EXPECT_EQ(ContentsOf(options), contents);
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasForm("frmOptions"); }));
  ASSERT_TRUE(WorkIn(alpha_));
  ExpectAllToWork();
}

TEST_F(RudePrograms, ChangeNothingInTheAddWindowDialog) {
  StartWithTags();
  const AddWindowDialog dialog = OpenAddWindow();
  const std::vector<std::string> contents = ContentsOf(dialog.form());
  ASSERT_GT(contents.size(), 10U);
  EXPECT_EQ(dialog.SelectedTag(), "3");
  EXPECT_EQ(dialog.TitleBox().Text(), "Alpha");
  PostAndSend();
  EXPECT_EQ(ContentsOf(dialog.form()), contents);
  // The text box looks for the words of its title.
  Press({MOD_ALT, 'P'});
  Press({MOD_CONTROL, VK_LEFT});
  EXPECT_TRUE(HoldsFor([&] { return !korvale_->HasMessageBox(); }));
  EXPECT_TRUE(dialog.Cancel());
  ASSERT_TRUE(WorkIn(alpha_));
  ExpectAllToWork();
}

TEST_F(RudePrograms, AddNothingToTheListOfTags) {
  StartWithTags();
  const AddWindowDialog dialog = OpenAddWindow();
  const Window list = dialog.TagList();
  list.Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Z"));
  list.Send(CB_SETCURSEL, 9);
  PostMessageW(dialog.form().handle(), WM_COMMAND,
               MAKEWPARAM(GetDlgCtrlID(list.handle()), CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(list.handle()));
  EXPECT_TRUE(WaitFor([&] { return dialog.SelectedTag() == "3"; }));
  EXPECT_EQ(list.Send(CB_GETCOUNT), 9);
  ASSERT_TRUE(dialog.Confirm());
  EXPECT_FALSE(korvale_->HasMessageBox());
}

TEST_F(RudePrograms, LeaveAMessageToTheUser) {
  installation_.StoreTag(3, "Nowhere", kClass);
  StartWithTags();
  Press(TagKey(3));
  const Window message = korvale_->MessageBox();
  ASSERT_TRUE(message);
  Post();
  Send();
  EXPECT_TRUE(Says("Window:  [Nowhere]  is not open."));
  ASSERT_TRUE(WorkIn(alpha_));
  ExpectAllToWork();
}

TEST_F(RudePrograms, LeaveTheColorDialogToTheUser) {
  installation_.settings().Set("Startup", "Tips", "0");
  StartWithTags();
  ASSERT_TRUE(BringToFront(main()));
  ASSERT_TRUE(Choose('V', {'C'}));
  ClickAt(MainWindow(main()).TitleBox(), {20, 6});
  const ColorDialog dialog(*korvale_);
  ASSERT_TRUE(dialog.window());
  const Rgb color = dialog.Shown();
  Post();
  Send();
  EXPECT_EQ(dialog.Shown(), color);
  Click(dialog.window().Controls("Edit").front());
  Press({MOD_CONTROL, VK_LEFT});
  EXPECT_TRUE(dialog.Cancel());
  ASSERT_TRUE(Choose('V', {'C'}));
  ASSERT_TRUE(WorkIn(alpha_));
  ExpectAllToWork();
}

TEST_F(RudePrograms, ReachNoMenuAndNoMoveThatFollowsAQuietTime) {
  StartWithTags();
  const auto postTimer = [&] {
    PostMessageW(main().handle(), WM_TIMER, 1, 64);  // Windows would call this address.
    return WaitFor([&] { return main().Responds(); }) && korvale_->process().Running();
  };
  ASSERT_TRUE(PopUpWindowMenu());
  ASSERT_TRUE(postTimer());
  Press({0, VK_ESCAPE});
  ASSERT_TRUE(WaitFor([&] { return !korvale_->HasMenu(); }));

  ASSERT_TRUE(BringToFront(main()));
  PostMessageW(main().handle(), WM_SYSCOMMAND, SC_MOVE, 0);
  ASSERT_TRUE(WaitFor([&] { return IsMovedOrSized(main()); }) && postTimer());
  Press({0, VK_ESCAPE});
  ASSERT_TRUE(WaitFor([&] { return !IsMovedOrSized(main()); }) && WorkIn(alpha_));
  ExpectAllToWork();
}

TEST_F(RudePrograms, DoNotSwitchToolTipsOff) {
  Start();
  ASSERT_TRUE(korvale_->ShowsToolTip(MainWindow(main()).ClassBox(), " Class of Target Window "));
  int tool_tips = 0;
  for (const Window window : AllWindows()) {
    if (window.ClassName() != kToolTips) continue;
    ++tool_tips;
    PostMessageW(window.handle(), TTM_ACTIVATE, FALSE, 0);
    window.Send(TTM_ACTIVATE, FALSE);
    window.Send(TTM_SETDELAYTIME, TTDT_INITIAL, 30000);
  }
  ASSERT_GT(tool_tips, 0);
  EXPECT_TRUE(korvale_->ShowsToolTip(MainWindow(main()).TitleBox(), " Target Window "));
}

}  // namespace
}  // namespace korvale::endtoend
