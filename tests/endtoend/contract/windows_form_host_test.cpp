#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include "platform/windows/handles.h"
#include "platform/windows/text.h"
#include "platform/windows/windows_hot_key_api.h"
#include "tests/endtoend/contract/real_form.h"

namespace korvale {
namespace {

/// Events of which only the typed texts matter.
struct TypedTexts final : FormEvents {
  void OnTextTyped(int, const std::string& text) override { texts.push_back(text); }
  void OnClick(int) override {}
  void OnListPicked(int, int) override {}
  void OnListDropDown(int) override {}
  void OnListClosedUp(int) override {}
  bool OnKeyDown(int, int, unsigned, bool) override { return false; }
  bool OnKeyUp(int, int, unsigned) override { return false; }
  bool OnCharacter(int, char32_t, unsigned) override { return false; }
  void OnMouse(int, const MouseInput&) override {}
  void OnFocusMoved(int) override {}
  void OnMenuOpened(MenuItem&) override {}
  void OnMenuClicked(MenuItem&) override {}
  void OnActivated() override {}
  void OnPlaced(ShowState, const TwipsRect&) override {}
  void OnDpiChanged() override {}
  void OnMetricsChanged() override {}
  void OnSysColorChange() override {}
  void OnCloseRequested(CloseReason) override {}
  void OnTimer(int) override {}
  void OnUncaught() noexcept override {}

  std::vector<std::string> texts;
};

/// What only real windows do.
class WindowsFormHostTest : public RealForm {
 protected:
  static bool HasStyle(HWND window, int index, LONG_PTR bits) {
    return (GetWindowLongPtrW(window, index) & bits) == bits;
  }
  static std::string ClassName(HWND window) {
    wchar_t name[64];
    return ToUtf8({name, static_cast<std::size_t>(GetClassNameW(window, name, 64))});
  }
};

TEST_F(WindowsFormHostTest, AHiddenTopLevelWindowOwnsTheMainWindow) {
  form_.Load();
  const HWND owner = GetWindow(Hwnd(), GW_OWNER);
  EXPECT_EQ(ClassName(owner), "Korvale.Owner");
  EXPECT_EQ(User().Title(ToWindowHandle(owner)), "Korvale");
  EXPECT_EQ(GetAncestor(owner, GA_PARENT), GetDesktopWindow());
  EXPECT_FALSE(IsWindowVisible(owner));
  EXPECT_TRUE(HasStyle(Hwnd(), GWL_EXSTYLE, WS_EX_APPWINDOW));
}

TEST_F(WindowsFormHostTest, TheMainWindowOwnsTheOtherForms) {
  form_.Load();
  dialog_.Load();
  EXPECT_EQ(GetWindow(ToHwnd(dialog_.Handle()), GW_OWNER), Hwnd());
  EXPECT_FALSE(HasStyle(ToHwnd(dialog_.Handle()), GWL_EXSTYLE, WS_EX_APPWINDOW));
}

TEST_F(WindowsFormHostTest, StylesFollowTheDesign) {
  form_.Load();
  strip_.Load();
  const HWND strip = ToHwnd(strip_.Handle());
  EXPECT_TRUE(HasStyle(Hwnd(), GWL_STYLE, WS_CAPTION | WS_SYSMENU | DS_MODALFRAME));
  EXPECT_FALSE(HasStyle(Hwnd(), GWL_STYLE, WS_THICKFRAME));
  EXPECT_FALSE(HasStyle(Hwnd(), GWL_STYLE, WS_MINIMIZEBOX));
  EXPECT_TRUE(HasStyle(strip, GWL_STYLE, WS_THICKFRAME | WS_MINIMIZEBOX));
  EXPECT_FALSE(HasStyle(strip, GWL_STYLE, WS_MAXIMIZEBOX));
  EXPECT_FALSE(HasStyle(strip, GWL_STYLE, DS_MODALFRAME));
}

TEST_F(WindowsFormHostTest, TheFormItselfDecidesHowSmallItIs) {
  strip_.Show();
  const TwipsRect place = {900, 600, 750, 300};
  strip_.SetPlace(place);
  EXPECT_EQ(User().Place(strip_.Handle()), place);
}

TEST_F(WindowsFormHostTest, TheEndOfTheSessionClosesTheMainWindow) {
  form_.Load();
  EXPECT_EQ(SendMessageW(Hwnd(), WM_QUERYENDSESSION, 0, 0), TRUE);
  SendMessageW(Hwnd(), WM_ENDSESSION, FALSE, 0);
  EXPECT_TRUE(form_.IsLoaded());
  SendMessageW(Hwnd(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(form_.closeReasons, std::vector<CloseReason>{CloseReason::kSession});
  EXPECT_FALSE(form_.IsLoaded());
}

TEST_F(WindowsFormHostTest, TextBoxesAndLabelsShowTheirColors) {
  ShowForm();
  for (const char* const name : {"txtName", "txtFixed", "lblClick"}) {
    form_.Find(name).SetBackColor(0x9FFFFF);
    EXPECT_EQ(ColorOf(Control(name)), 0x9FFFFFU) << name;
    form_.Find(name).SetBackColor(kButtonFaceColor);
    EXPECT_EQ(ColorOf(Control(name)), GetSysColor(COLOR_BTNFACE)) << name;
  }
}

TEST_F(WindowsFormHostTest, AMenuBarUnderACaptionHookStaysUnicode) {
  struct PassingOn : WindowProcedure {
    std::intptr_t Call(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                       std::intptr_t lParam) override {
      return api.CallWindowProcA(previous, hwnd, message, wParam, lParam);
    }
    void OnUncaught() noexcept override {}
    WindowsHotKeyApi api;
    PreviousProcedure previous = 0;
  } hook;
  ShowForm();
  hook.previous = hook.api.SetWindowLongPtrA(Window(), hook);
  form_.SetCaption("Ж 日本 \U0001F600");
  form_.Menu("mnuFileOpen").caption = "&Ж 日本";
  EXPECT_EQ(User().Title(Window()), "Ж 日本 \U0001F600");
  User().ChooseMenu(Window(), {"File", "Ж 日本"});
  EXPECT_EQ(form_.Take(), Lines{"menu mnuFileOpen"});
  hook.api.SetWindowLongPtrA(Window(), hook.previous);
}

TEST_F(WindowsFormHostTest, TheDefaultButtonIsDrawnAsSuchWhereTheFocusIs) {
  ShowForm();
  EXPECT_TRUE(HasStyle(Control("cmdGo"), GWL_STYLE, BS_DEFPUSHBUTTON));
  FocusOn("cmdStay");
  EXPECT_TRUE(HasStyle(Control("cmdStay"), GWL_STYLE, BS_DEFPUSHBUTTON));
  EXPECT_FALSE(HasStyle(Control("cmdGo"), GWL_STYLE, BS_DEFPUSHBUTTON));
}

TEST_F(WindowsFormHostTest, AnOpenListShowsNineEntries) {
  ShowForm();
  EXPECT_EQ(SendMessageW(OpenNineEntries(), LB_GETTOPINDEX, 0, 0), 0);
  SendMessageW(Control("cboSize"), CB_SHOWDROPDOWN, FALSE, 0);
}

TEST_F(WindowsFormHostTest, AChoiceThatChangesAsAListClosesIsTold) {
  ShowForm();
  const HWND combo = Control("cboSize");
  SendMessageW(combo, CB_SETCURSEL, 2, 0);
  SendMessageW(Hwnd(), WM_COMMAND, MAKEWPARAM(Id("cboSize"), CBN_CLOSEUP),
               reinterpret_cast<LPARAM>(combo));
  User().LetPass(20);
  EXPECT_EQ(form_.Find("cboSize").ListIndex(), 2);
  EXPECT_EQ(form_.Take(), Lines{"click cboSize"});
}

TEST_F(WindowsFormHostTest, OnlyTypedTextIsTold) {
  FormState state;
  state.controls.emplace_back();
  state.controls[0].id = 1;
  state.controls[0].kind = ControlKind::kTextBox;
  TypedTexts events;
  const WindowHandle window = Host().CreateWindowExW(state, events);
  SendMessageW(FindControl(window, 1), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"typed"));
  state.controls[0].text = "by code";
  Host().UpdateControl(window, 1, ControlProperty::kText);
  EXPECT_EQ(User().Text(window, 1), "by code");
  EXPECT_EQ(events.texts, Lines{"typed"});
  Host().DestroyWindow(window);
}

TEST_F(WindowsFormHostTest, AltAndALetterOfTheBarOpensItsMenu) {
  ShowForm();
  int opened = 0;
  form_.WhenMenuOpens("mnuFile", [&](int) { ++opened; });
  User().WhenPopupMenu([](const std::vector<ShownMenuItem>&) { return "Open"; });
  Press('F', kAlt);
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(form_.Take(), Lines{"menu mnuFileOpen"});
}

TEST_F(WindowsFormHostTest, AHiddenMenuBarOpensWhenItIsShownByItsKey) {
  ShowForm();
  form_.SetMenuShown(false);
  form_.onKeyDown = [&](int& key, unsigned shift) {
    if (key == 'F' && shift == kAlt) form_.SetMenuShown(true);
  };
  User().WhenPopupMenu([](const std::vector<ShownMenuItem>&) { return "Open"; });
  Press('F', kAlt);
  EXPECT_EQ(form_.Take(), Lines{"menu mnuFileOpen"});
}

TEST_F(WindowsFormHostTest, AMenuBarChangedWhileAMenuIsOpenChangesAfterwards) {
  ShowForm();
  form_.WhenMenuOpens("mnuFile", [&](int) {
    form_.Menu("mnuWindow").visible = false;
    Host().DrawMenuBar(Window());
  });
  User().ChooseMenu(Window(), {"File", "Open"});
  EXPECT_EQ(form_.Take(), Lines{"menu mnuFileOpen"});
  EXPECT_EQ(User().MenuBarItems(Window()), (std::vector<ShownMenuItem>{{"File", "F"}}));
}

TEST_F(WindowsFormHostTest, AFormMayUnloadItselfFromItsMenuAndWhileAMenuOpens) {
  ShowForm();
  form_.onMenuClick = [&](const std::string&) { form_.Unload(); };
  User().ChooseMenu(Window(), {"File", "Exit"});
  EXPECT_FALSE(form_.IsLoaded());
}

TEST_F(WindowsFormHostTest, AWindowThatComesUpUnderTheMouseIsNoMovement) {
  form_.Load();
  User().MoveMouse(Window(), 0, 3000, 2100);
  form_.logsMouse = true;
  form_.Show();
  User().LetPass(100);
  EXPECT_EQ(form_.Take(), Lines{});
}

}  // namespace
}  // namespace korvale
