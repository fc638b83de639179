#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "tests/endtoend/harness/color_dialog.h"
#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";
constexpr char kToolTips[] = "tooltips_class32";

struct Rude {
  UINT message;
  WPARAM wparam;
  LPARAM lparam;
};

/// What other programs must not send. Not listed is what they may send: asking a window to close,
/// to paint, to take a text or a key, ending the session, and messages that stand for the user's
/// own menu entry or button.
std::vector<UINT> Queued() {
  std::vector<UINT> messages = {
      WM_CREATE,          WM_DESTROY,        WM_MOVE,          WM_SIZE,
      WM_ACTIVATE,        WM_SETFOCUS,       WM_GETMINMAXINFO, WM_DRAWITEM,
      WM_MEASUREITEM,     WM_DELETEITEM,     WM_COMPAREITEM,   WM_WINDOWPOSCHANGING,
      WM_COPYDATA,        WM_NOTIFY,         WM_HELP,          WM_NCCREATE,
      WM_NCDESTROY,       WM_COMMAND,        WM_TIMER,         WM_HOTKEY,
      WM_INITMENUPOPUP,   WM_MENUSELECT,     WM_ENTERMENULOOP, WM_CTLCOLOREDIT,
      WM_CTLCOLORBTN,     WM_CTLCOLORSTATIC, WM_SIZING,        WM_DPICHANGED,
      WM_SETCURSOR,       WM_SYSCOLORCHANGE, WM_APP,           WM_APP + 1,
      TTM_ADDTOOLW,       TTM_RELAYEVENT,    TCM_INSERTITEMW,  TCM_SETITEMW,
      BCM_GETIDEALSIZE,   EM_SETCUEBANNER,   CB_SETCUEBANNER,  EM_SETWORDBREAKPROC,
      WM_INITDIALOG,      CB_SETITEMHEIGHT,  CB_INITSTORAGE,   CB_GETCOMBOBOXINFO,
      CB_SETDROPPEDWIDTH, STM_SETICON,       STM_SETIMAGE,     LB_INITSTORAGE};
  messages.push_back(RegisterWindowMessageW(L"Korvale.ListClosed"));
  return messages;
}

/// Those whose parameters the system hands on as they are.
std::vector<UINT> Sent() {
  std::vector<UINT> messages = {
      WM_DESTROY,        WM_NCDESTROY,       WM_ACTIVATE,     WM_SETFOCUS,      WM_COMMAND,
      WM_TIMER,          WM_HOTKEY,          WM_MENUSELECT,   WM_ENTERMENULOOP, WM_CTLCOLOREDIT,
      WM_CTLCOLORSTATIC, WM_DPICHANGED,      WM_APP,          WM_APP + 1,       TCM_INSERTITEMW,
      TCM_SETITEMW,      BCM_GETIDEALSIZE,   EM_SETCUEBANNER, TTM_ADDTOOLW,     TTM_GETTEXTW,
      WM_INITDIALOG,     EM_SETWORDBREAKPROC};
  messages.push_back(RegisterWindowMessageW(L"Korvale.ListClosed"));
  return messages;
}

/// A message that has the same effect as an action of the user.
bool MayBeMeant(const Rude& rude) {
  const bool button = rude.message == WM_COMMAND && LOWORD(rude.wparam) >= IDOK &&
                      LOWORD(rude.wparam) <= IDCONTINUE;
  const bool menuEntry = rude.message == WM_COMMAND && rude.lparam == 0 &&
                         LOWORD(rude.wparam) >= 0x1000 && LOWORD(rude.wparam) < 0xE000;
  return button || menuEntry;
}

/// Controls get fewer values than the windows that hold them: there are many.
std::vector<Rude> WithEachValue(const std::vector<UINT>& messages, bool control) {
  std::vector<std::uint64_t> values = {64, ~std::uint64_t{0}};
  if (!control) {
    std::mt19937_64 dice(20);
    for (const std::uint64_t more : {0ULL, 1ULL, 19ULL, 0x7FFFFFFFULL, dice() >> 32U, dice()}) {
      values.push_back(more);
    }
  }
  std::vector<Rude> all;
  for (const UINT message : messages) {
    for (const std::uint64_t first : values) {
      for (const std::uint64_t second : values) {
        const Rude rude{message, first, static_cast<LPARAM>(second)};
        if (!MayBeMeant(rude)) all.push_back(rude);
      }
    }
  }
  return all;
}

/// What the program shows; the system keeps windows of its own in every program as well.
bool IsShownByProgram(Window window) {
  const std::string name = window.ClassName();
  return name.starts_with("Korvale.") || name == kToolTips || name == "ComboLBox" ||
         name == "#32770";
}

/// The user moves or sizes a window of this one's thread.
bool IsMoved(Window window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  const DWORD thread = GetWindowThreadProcessId(window.handle(), nullptr);
  return GetGUIThreadInfo(thread, &info) != FALSE && (info.flags & GUI_INMOVESIZE) != 0;
}

bool IsControl(Window window) { return (window.Style() & WS_CHILD) != 0; }

BOOL CALLBACK CollectChild(HWND child, LPARAM windows) {
  reinterpret_cast<std::vector<Window>*>(windows)->emplace_back(child);
  return TRUE;
}

class RudePrograms : public KorvaleTest {
 protected:
  /// Every window of the program, including those that are never shown and all controls.
  std::vector<Window> AllWindows() {
    std::vector<Window> all;
    for (const Window window : TopLevelWindows()) {
      if (window.ProcessId() != main().ProcessId() || !IsShownByProgram(window)) continue;
      all.push_back(window);
      EnumChildWindows(window.handle(), CollectChild, reinterpret_cast<LPARAM>(&all));
    }
    EXPECT_FALSE(all.empty());
    return all;
  }

  void Post() {
    for (const Window window : AllWindows()) {
      for (const Rude& rude : WithEachValue(Queued(), IsControl(window))) {
        PostMessageW(window.handle(), rude.message, rude.wparam, rude.lparam);
      }
      ASSERT_TRUE(window.Responds()) << Describe(window);
    }
  }

  void Send() {
    for (const Window window : AllWindows()) {
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
  StartWithTags();
  PostAndSend();
  EXPECT_TRUE(InFront(alpha_));
  ExpectAllToWork();
}

TEST_F(RudePrograms, ChangeNothingInTheOptionsDialog) {
  StartWithTags();
  Press(kOptionsKey);
  const Window options = korvale_->Form("frmOptions");
  ASSERT_TRUE(options);
  ASSERT_TRUE(InFront(options));
  PostAndSend();
  EXPECT_TRUE(InFront(options));
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasForm("frmOptions"); }));
  ASSERT_TRUE(WorkIn(alpha_));
  ExpectAllToWork();
}

TEST_F(RudePrograms, ChangeNothingInTheAddWindowDialog) {
  StartWithTags();
  const AddWindowDialog dialog = OpenAddWindow();
  const std::string tag = dialog.SelectedTag();
  PostAndSend();
  EXPECT_EQ(dialog.SelectedTag(), tag);
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
  ASSERT_TRUE(WaitFor([&] { return IsMoved(main()); }) && postTimer());
  Press({0, VK_ESCAPE});
  ASSERT_TRUE(WaitFor([&] { return !IsMoved(main()); }) && WorkIn(alpha_));
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
