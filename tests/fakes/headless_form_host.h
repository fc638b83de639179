#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/form_host.h"
#include "platform/input_devices.h"
#include "platform/message_loop.h"
#include "platform/screen_queries.h"
#include "platform/system_dialogs.h"
#include "tests/contract/user_hands.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/desktop_windows.h"
#include "tests/fakes/headless_screen.h"

namespace korvale {

class Form;

/// Shows forms on no screen, and is everything that a form meets there, since its user is one as
/// well. It keeps what it was told to show, so that a change that the program forgot to show is
/// missing here, too. What waits for the user (a modal form, a message box, a pop-up menu) takes
/// the next queued answer; without one the test fails instead of hanging.
class HeadlessFormHost : public FormHost,
                         public MessageLoop,
                         public ScreenQueries,
                         public SystemDialogs,
                         public InputDevices,
                         private DesktopListener {
 public:
  using Answer = std::function<std::int16_t(const ShownMessage&)>;
  using Choose = std::function<std::string(const std::vector<ShownMenuItem>&)>;
  using Keyboard = std::function<void(WindowHandle hwnd, int virtualKey, unsigned shift)>;

  /// Both must outlive the host.
  HeadlessFormHost(DesktopWindows& desktop, CallLog& log);
  /// Fails the test when something queued was never asked for.
  ~HeadlessFormHost() override;

  /// Queues what the user does when this form is shown modally.
  void WhenModal(std::string formName, std::function<void(Form&)> action);
  /// Queues what the user does when a message loop waits for them.
  void WhenWaiting(std::function<void()> action);
  void WhenMessageBox(Answer answer);
  /// Answers from now on every message box for which nothing is queued.
  void AnswerOtherBoxes(Answer answer) { otherAnswer_ = std::move(answer); }
  /// Presses this button of the next message box.
  void AnswerNext(std::int16_t button);
  void WhenPopupMenu(Choose choose);
  /// What the user does with the next colour dialog; nothing = cancels it.
  void WhenColorDialog(std::function<std::optional<Color>(Color initial)> choose);
  /// The user goes away: drops everything that is still queued.
  void ForgetQueued();
  MousePointer Pointer() const { return pointer_; }
  /// Gets the keys that the program sends by itself.
  void SetKeyboard(Keyboard keyboard) { keyboard_ = std::move(keyboard); }
  /// Windows refuses the next window of this form, or one of its controls.
  void RefuseNextWindow(std::string formName) { refused_ = std::move(formName); }
  /// Called when a message loop waits and nothing is queued: lets something happen, such as time
  /// pass, and returns true; false when there is nothing left, which fails the test.
  void SetIdle(std::function<bool()> idle) { idle_ = std::move(idle); }
  /// Puts a message of the program itself into the queue.
  void Post(std::function<void()> message) { posted_.push_back(std::move(message)); }
  /// The frame of a form with a border, as AdjustWindowRectEx returns it, and the height of a menu.
  void SetFrame(const TwipsRect& frame, Twips menuHeight);
  /// All of the screen has so many dots per inch.
  void SetDpi(int dpi);
  /// The monitors that the program finds when it starts.
  void SetMonitors(std::vector<HeadlessMonitor> monitors);
  /// The user changes, adds or takes away monitors, or moves a taskbar; tells every form. Counts
  /// the dots per inch that the system had before.
  void ChangeMonitors(std::vector<HeadlessMonitor> monitors);
  const std::vector<HeadlessMonitor>& Monitors() const { return monitors_; }
  /// Puts a window of another program on a monitor.
  void PutOnMonitor(WindowHandle hwnd, std::size_t monitor) { elsewhere_[hwnd] = monitor; }
  /// Puts the mouse pointer on a monitor.
  void PointAtMonitor(std::size_t monitor) { underPointer_ = monitor; }
  /// The user, or the program, has moved the window: it takes on the dots of its monitor.
  void Place(HeadlessWindow& window, const TwipsRect& place);
  HeadlessScale ScaleOf(WindowHandle hwnd) { return {GetDpiForWindow(hwnd), GetDpiOfForm(hwnd)}; }
  /// The user makes all text so many percent of its usual size; tells every form. Frame and menus
  /// keep their size until SetFrame gives another.
  void ChangeTextSize(int percent);
  /// Longer texts cannot be measured from now on.
  void MeasureUpTo(std::int32_t characters) { measurable_ = characters; }
  /// The user changes a system colour; tells every form.
  void ChangeSysColor(Color system, Color shown);
  /// The user turns high contrast on or off; tells every form.
  void ChangeHighContrast(bool on);
  /// There is one monitor, and nothing beside its work area.
  void SetWorkArea(const TwipsRect& workArea);
  /// As above; tells every form.
  void ChangeWorkArea(const TwipsRect& workArea);

  /// Another program tells the thread to quit.
  void PostThreadQuit() { quit_ = true; }

  /// Every message box so far.
  const std::vector<ShownMessage>& Messages() const { return messages_; }
  bool MessageBoxUp() const { return !boxes_.empty(); }
  /// The texts of the alerts that a screen reader has been told of.
  const std::vector<std::string>& Announced() const { return announced_; }
  /// Drops the message boxes and alerts so far.
  void ForgetWhatWasTold() {
    messages_.clear();
    announced_.clear();
  }
  /// A tick of a timer, as the clock gives it.
  void DeliverTimer(WindowHandle hwnd, int id);

  HeadlessWindow* FindWindow(WindowHandle hwnd);
  /// The window of a form; null when the form is not loaded.
  HeadlessWindow* FindForm(std::string_view name);
  HeadlessWindow& Window(WindowHandle hwnd);
  DesktopWindows& Desktop() { return *desktop_; }
  /// Reports an event to the form; its errors go to OnUncaught.
  void Tell(WindowHandle hwnd, const std::function<void(FormEvents&)>& event);
  /// The menus that the keyboard has opened: the one of the bar, then its submenus.
  std::vector<MenuItem*>& OpenMenus() { return openMenus_; }
  /// Gives the focus as the mouse does, the window being active.
  void MoveFocus(HeadlessWindow& window, int control);

  WindowHandle CreateWindowExW(const FormState& form, FormEvents& events) override;
  void DestroyWindow(WindowHandle hwnd) override;
  void UpdateControl(WindowHandle hwnd, int control, ControlProperty property) override;
  void SetWindowTextW(WindowHandle hwnd) override;
  void MoveWindow(WindowHandle hwnd) override;
  void DrawMenuBar(WindowHandle hwnd) override;
  void EnableWindow(WindowHandle hwnd, bool enable) override;
  bool IsWindowEnabled(WindowHandle hwnd) override { return desktop_->IsEnabled(hwnd); }
  void ShowWindow(WindowHandle hwnd, int command) override;
  void SetFocus(WindowHandle hwnd, int control) override;
  /// The control of the form that has the focus, 0 = none.
  int GetFocus(WindowHandle hwnd);
  bool GetDroppedState(WindowHandle hwnd, int control) override;
  TextSelection GetSelection(WindowHandle hwnd, int control) override;
  void SetSelection(WindowHandle hwnd, int control, TextSelection selection) override;
  TwipsRect AdjustWindowRectEx(const FormState& form) override;
  Color GetSysColor(Color color) override;
  bool HighContrast() override { return highContrast_; }
  int GetDpiForWindow(WindowHandle hwnd) override { return monitors_[Window(hwnd).monitor].dpi; }
  int GetDpiOfForm(WindowHandle hwnd) override { return DpiOf(*Window(hwnd).form); }
  TwipsRect GetMonitorInfoW(WindowHandle hwnd) override;
  TwipsRect MonitorFromPoint() override { return monitors_.at(underPointer_).workArea; }
  int GetDpiForMonitor() override { return monitors_.at(underPointer_).dpi; }
  /// Every character is 100 twips wide, more where the text is bigger or the dots are finer.
  Twips GetTextExtentPoint32W(WindowHandle hwnd, const std::string& text) override;
  TwipsRect GetWindowRect(WindowHandle hwnd) override { return OnScreen(Window(hwnd)); }
  std::int16_t MessageBoxW(WindowHandle owner, const std::string& text, const std::string& title,
                           std::int32_t style) override;
  /// Refused while a menu is open, as Windows does.
  void TrackPopupMenuEx(WindowHandle hwnd, MenuItem& menu) override;
  bool EndMenu() override;
  std::optional<Color> ChooseColorW(WindowHandle owner, Color initial) override;
  void SetCursor(MousePointer pointer) override { pointer_ = pointer; }
  void SendInput(WindowHandle hwnd, int virtualKey, unsigned shift) override;
  void SendMouseInput() override;
  void RunMessageLoop(const std::function<bool()>& done) override;
  void DoEvents() override;
  void PostQuitMessage() override;
  bool QuitPosted() override { return quit_; }

 private:
  /// What the user does next, and the form that they expect to see then ("" = any).
  struct Step {
    std::string formName;
    std::function<void()> action;
  };

  /// Tells the screen reader of an alert that is shown; no other form is one.
  void Announce(const HeadlessWindow& window);
  void TellColorsChanged();
  void TellMetricsChanged();
  void CloseLists(WindowHandle hwnd);
  /// The frame of a form in twips of the usual text.
  TwipsRect FrameOf(const FormState& form) const;
  int DpiOf(const FormState& form) const;
  /// The window's place with its size in twips of the usual text, as the work area counts them.
  TwipsRect OnScreen(const HeadlessWindow& window) const;
  /// The window's place, moved so that it stays on its monitor if it has become larger there.
  TwipsRect Kept(const HeadlessWindow& window) const;
  /// The window's place when the screen around it has changed.
  TwipsRect Rescaled(const HeadlessWindow& window, ShowState state) const;
  /// The whole work area, in the twips of the window.
  TwipsRect Maximized(const HeadlessWindow& window) const;
  /// The monitor whose dots per inch a form has; the primary one while it has no window.
  const HeadlessMonitor& MonitorOf(const FormState& form) const;
  void WindowActivated(WindowHandle hwnd) override;
  void WindowStateChanged(WindowHandle hwnd, ShowState state) override;
  bool RunPosted();
  bool RunStep();
  std::string ActiveFormName();
  Answer TakeAnswer(const ShownMessage& message);

  DesktopWindows* desktop_;
  CallLog* log_;
  std::vector<std::unique_ptr<HeadlessWindow>> windows_;
  std::deque<Step> steps_;
  std::deque<Answer> answers_;
  Answer otherAnswer_;
  std::deque<Choose> choices_;
  std::deque<std::function<std::optional<Color>(Color)>> colors_;
  MousePointer pointer_ = MousePointer::kDefault;
  std::deque<std::function<void()>> posted_;
  std::function<bool()> idle_;
  Keyboard keyboard_;
  std::vector<MenuItem*> openMenus_;
  bool poppedUp_ = false;
  bool popUpEnded_ = false;
  std::vector<ShownMessage> messages_;
  std::vector<ShownMessage> boxes_;
  std::vector<std::string> announced_;
  TwipsRect frame_ = {45, 355, 90, 400};
  Twips menuHeight_ = 300;
  std::vector<HeadlessMonitor> monitors_ = {{{0, 0, 15360, 11100}, {0, 0, 15360, 11100}, 96}};
  int dpi_ = 96;  ///< Of the system.
  std::map<WindowHandle, std::size_t> elsewhere_;
  std::size_t underPointer_ = 0;
  int textPercent_ = 100;
  std::int32_t measurable_ = std::numeric_limits<std::int32_t>::max();
  std::map<Color, Color> sysColors_ = {
      {kButtonFaceColor, 0xF0F0F0}, {kButtonTextColor, 0x000000}, {kWindowColor, 0xFFFFFF},
      {kWindowTextColor, 0x000000}, {kHighlightColor, 0xD77800},  {kHighlightTextColor, 0xFFFFFF}};
  bool highContrast_ = false;
  std::string refused_;
  bool quit_ = false;
};

}  // namespace korvale
