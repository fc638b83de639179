#include <algorithm>

#include "app/core/startup_settings.h"
#include "forms/main_form.h"
#include "forms/main_form_design.h"
#include "platform/win32_constants.h"
#include "ui/form_placement.h"

namespace korvale {

namespace {

/// The title needs more room than the class: three fifths of the width.
constexpr int kTitleShare = 3;
constexpr int kShares = 5;

Twips AsStored(Twips length) { return std::clamp(length, -kFarthestPlace, kFarthestPlace); }

}  // namespace

/// The classic heights hold for frames and menu bars that are no higher; a higher one, or a bar of
/// several rows, makes the window higher. What counts is the bar on the screen, even if it is shown
/// only for a moment.
Twips frmMain::HeightForContent(const TwipsRect& frame) {
  ScreenQueries& screen = Collection().Screen();
  const int dpi = screen.GetDpiOfForm(Handle());
  const Twips classic = kClassicFrameHeight + (State().menuShown ? kClassicMenuHeight : 0);
  // Bigger text makes the twips of the form larger, but not its frame.
  Twips height = classic * screen.GetDpiForWindow(Handle()) / dpi;
  const Twips higher = frame.height - height;
  // Rounding to twips may make a difference of less than half a pixel.
  if (2 * higher * dpi > kTwipsPerInch) height += higher;
  if (parts_.startup.WindowInfo) height += Find("txtWindow").Place().height + kRoomAroundFields;
  return height;
}

/// Making a topmost window topmost again would only activate it and take the foreground from the
/// window that the user has just selected.
bool frmMain::IsTopmostBehindAnother() const {
  WindowQueries& windows = platform_->windows;
  return Visible() && windows.GetForegroundWindow() != Handle() &&
         (windows.GetWindowLongA(Handle(), win32::kGwlExStyle) & win32::kWsExTopmost) != 0;
}

void frmMain::Form_Resize() {
  if (!IsLoaded() || !parts_.state.startUpFinished) return;
  if (WindowState() == ShowState::kMinimized) {
    RememberPlace();
    return;
  }
  if (parts_.startup.AlwaysOnTop && !IsTopmostBehindAnother()) {
    parts_.desktop.requests.SetTopmost(Handle(), true);
  }
  const TwipsRect frame = Collection().Host().AdjustWindowRectEx(State());
  LayOutFields(frame);
  TwipsRect place = Place();
  place.height = HeightForContent(frame);
  place.width = std::max(place.width, kMinimumWidth);
  SetSizeLimits({.minimumWidth = kMinimumWidth, .height = place.height});
  if (place != Place()) SetPlace(place);
  RememberPlace();
}

void frmMain::Form_Move() {
  if (parts_.state.startUpFinished) RememberPlace();
}

void frmMain::LayOutFields(const TwipsRect& frame) {
  Control& title = Find("txtWindow");
  Control& className = Find("txtWindowClass");
  const Twips width = std::max(Place().width, kMinimumWidth) - frame.width - 3 * kFieldMargin;
  const Twips titleWidth = width * kTitleShare / kShares;
  title.SetVisible(parts_.startup.WindowInfo);
  className.SetVisible(parts_.startup.WindowInfo);
  title.SetPlace({kFieldMargin, kFieldMargin, titleWidth, kFieldHeight});
  className.SetPlace(
      {2 * kFieldMargin + titleWidth, kFieldMargin, width - titleWidth, kFieldHeight});
}

void frmMain::RememberPlace() {
  StartupSettings& startup = parts_.startup;
  startup.WindowState = static_cast<std::int32_t>(WindowState());
  if (WindowState() == ShowState::kNormal) {
    const TwipsRect place = PlaceToKeep();
    startup.Left = AsStored(place.left);
    startup.Top = AsStored(place.top);
    startup.Width = AsStored(place.width);
    startup.Height = AsStored(Place().height);
  }
}

void frmMain::ApplyPlacement() {
  const StartupSettings& startup = parts_.startup;
  TwipsRect place = Place();
  if (startup.Left != -1) place.left = startup.Left;
  if (startup.Top != -1) place.top = startup.Top;
  place.width = std::max(startup.Width, kMinimumWidth);
  // The stored height may differ from the one that the window is going to have.
  place.height = HeightForContent(Collection().Host().AdjustWindowRectEx(State()));
  SetPlace(place);
  BringOntoMonitor(*this);
  // Bigger text must not take the end of a window that the user has put on the screen off it.
  if (IsWithin(Place(), Collection().Screen().GetMonitorInfoW(Handle()))) FitIntoWorkArea();
  place = Place();
  place.height = startup.Height;
  SetPlace(place);
  SetWindowState(static_cast<ShowState>(startup.WindowState));
}

void frmMain::mnuViewMenu_Click() {
  StartupSettings& startup = parts_.startup;
  if (startup.Menu) {
    const std::int16_t answer = parts_.messages.ShowMessageBox(
        "CAUTION:  This will hide the menu.  The only way of accessing the hidden menu is by "
        "(Alt+V), (Alt+T), (Alt+W) or (Alt+H).",
        win32::kMbOkCancel | win32::kMbDefButton2, kProductName);
    if (answer != win32::kIdOk) {
      RefreshMenus("mnu");
      return;
    }
  }
  startup.Menu = !startup.Menu;
  RefreshMenus("mnu");
  Form_Resize();
}

void frmMain::mnuViewWindowInfo_Click() {
  parts_.startup.WindowInfo = !parts_.startup.WindowInfo;
  RefreshMenus("mnu");
  Form_Resize();
}

void frmMain::mnuViewDefaultSettingsWindowInfoColor_Click() {
  parts_.startup.WI1BackColor = kDefaultTargetColor;
  parts_.startup.WI2BackColor = kDefaultClassColor;
  ApplyColors();
  RefreshMenus("mnu");
}

void frmMain::CloseAbout() {
  if (about_.IsLoaded()) about_.CloseAbout();
}

void frmMain::Form_KeyDown(int& key, unsigned shift) {
  CloseAbout();
  const bool alt = shift == kAlt;
  if (key == win32::kVkF1 && shift == kNoShift) {
    key = 0;
    platform_->input.SendInput(Handle(), 'H', kAlt);
  } else if (alt && key == win32::kVkF4) {
    key = 0;
    mnuFileExit_Click();
  } else if (key == win32::kVkReturn && FocusedControl() != 0) {
    if (!KeyRepeats() && customizing_.Enter(ColorOf(ById(FocusedControl())), shift)) ApplyColors();
  } else if (alt && !parts_.startup.Menu &&
             (key == 'H' || key == 'W' || key == 'T' || key == 'V')) {
    RefreshMenus("Form_KeyDown");
  }
}

void frmMain::Form_MouseMove(const MouseInput&) { CloseAbout(); }

void frmMain::Control_Mouse(Control& control, const MouseInput& input) {
  if (input.event == MouseEvent::kMove) CloseAbout();
  if (customizing_.Mouse(control, ColorOf(control), input)) ApplyColors();
}

Color& frmMain::ColorOf(const Control& field) {
  const bool title = field.Name() == "txtWindow";
  return title ? parts_.startup.WI1BackColor : parts_.startup.WI2BackColor;
}

}  // namespace korvale
