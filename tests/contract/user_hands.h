#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "platform/form_host.h"
#include "platform/message_loop.h"
#include "platform/screen_queries.h"
#include "platform/system_dialogs.h"
#include "platform/types.h"

namespace korvale {

/// A menu entry as it is drawn; hidden entries do not appear.
struct ShownMenuItem {
  std::string caption;    ///< As drawn: no mark of the access key, "&&" is "&". Separator: "-".
  std::string accessKey;  ///< The underlined character, or "".
  bool checked = false;
  bool enabled = true;

  friend bool operator==(const ShownMenuItem&, const ShownMenuItem&) = default;
};

/// A message box as it stands on the screen.
struct ShownMessage {
  WindowHandle owner = 0;
  std::string text;
  std::string title;
  std::int32_t style = 0;
};

/// The hands and eyes of a user in front of a host's screen. Hands act on what can be reached: a
/// hidden or disabled target fails the running test. Each method returns after the host has dealt
/// with everything that follows from it; so the next actions of one that runs a message loop (a
/// click that shows a modal form or a message box) must be queued with WhenWaiting beforehand.
class UserHands {
 public:
  virtual ~UserHands() = default;

  // Windows as the screen shows them.
  virtual bool IsShown(WindowHandle hwnd) = 0;
  virtual bool IsEnabled(WindowHandle hwnd) = 0;
  virtual std::string Title(WindowHandle hwnd) = 0;
  virtual std::string ClassName(WindowHandle hwnd) = 0;
  /// In twips, frame included.
  virtual TwipsRect Place(WindowHandle hwnd) = 0;
  /// Presses the close box.
  virtual void PressCloseBox(WindowHandle hwnd) = 0;
  /// Closes the hidden window that owns this one, the main form's, as task killers do.
  virtual void CloseOwner(WindowHandle hwnd) = 0;
  /// Tells the program's thread to quit, as task killers do.
  virtual void QuitThread() = 0;
  /// Drags the window to a new place and size.
  virtual void Drag(WindowHandle hwnd, const TwipsRect& place) = 0;

  // Controls as the screen shows them.
  /// Caption as set (access key marked with "&"), typed text, or text of the chosen entry.
  virtual std::string Text(WindowHandle hwnd, int control) = 0;
  /// The control and everything that holds it are visible.
  virtual bool IsShown(WindowHandle hwnd, int control) = 0;
  /// The control and everything that holds it are enabled.
  virtual bool IsEnabled(WindowHandle hwnd, int control) = 0;
  /// 1 when a check box or option button shows its mark.
  virtual int Value(WindowHandle hwnd, int control) = 0;
  virtual std::vector<std::string> ListEntries(WindowHandle hwnd, int control) = 0;
  /// The chosen entry or tab, -1 = none.
  virtual int ListIndex(WindowHandle hwnd, int control) = 0;
  /// The list of a combo box is open.
  virtual bool IsListOpen(WindowHandle hwnd, int control) = 0;
  /// The control with the focus, 0 = none of this form.
  virtual int Focus(WindowHandle hwnd) = 0;
  /// Place in twips within what holds it.
  virtual TwipsRect Place(WindowHandle hwnd, int control) = 0;

  // Hands.
  /// Clicks the middle of a control with the left mouse button.
  virtual void Click(WindowHandle hwnd, int control) = 0;
  /// Moves the mouse to a point of a control in twips, of the form's client area for control 0.
  virtual void MoveMouse(WindowHandle hwnd, int control, Twips x, Twips y) = 0;
  /// Presses and releases a key in the control that has the focus. `shift` keys are held.
  virtual void PressKey(WindowHandle hwnd, int virtualKey, unsigned shift = kNoShift) = 0;
  /// The ASCII characters that a control is given by the keyboard while `doing` runs.
  virtual std::string CharactersFor(WindowHandle hwnd, int control,
                                    const std::function<void()>& doing) = 0;
  /// Presses a key and holds it until it has been repeated so many times. A menu that nobody has
  /// asked for fails the test when Alt is released.
  virtual void HoldKey(WindowHandle hwnd, int virtualKey, int repeats) = 0;
  /// Releases a key in the control that has the focus by now.
  virtual void ReleaseKey(WindowHandle hwnd, int virtualKey) = 0;
  /// Types characters that the keyboard gives directly, with Alt held when `alt` is true.
  virtual void TypeText(WindowHandle hwnd, std::string_view text, bool alt = false) = 0;
  /// Opens a drop-down list with the mouse and clicks an entry; clicks a tab of a tab strip.
  virtual void Pick(WindowHandle hwnd, int control, int listIndex) = 0;
  /// Opens a drop-down list with the mouse.
  virtual void OpenList(WindowHandle hwnd, int control) = 0;
  /// Opens a drop-down list and closes it without a choice.
  virtual void OpenAndCloseList(WindowHandle hwnd, int control) = 0;

  // Menus. A path names entries by their drawn captions, the menu of the bar first.
  virtual std::vector<ShownMenuItem> MenuBarItems(WindowHandle hwnd) = 0;
  /// Opens the menu at `path`, reads its entries and closes it again.
  virtual std::vector<ShownMenuItem> MenuItems(WindowHandle hwnd,
                                               const std::vector<std::string>& path) = 0;
  virtual void ChooseMenu(WindowHandle hwnd, const std::vector<std::string>& path) = 0;

  // The settings of the system. They return to what they were with the user.
  /// Makes all text so many percent of its usual size.
  virtual void ChangeTextSize(int percent) = 0;
  /// Takes so many twips from the right of the work area, as a taskbar does; false when the system
  /// does not let that be seen.
  virtual bool NarrowWorkArea(Twips by) = 0;

  // What happens inside the host's own loops.
  /// Queues something to do the next time that a message loop of the host waits for the user, with
  /// all earlier actions done. One waiting loop takes one action at a time.
  virtual void WhenWaiting(std::function<void()> action) = 0;
  /// Queues the answer to the next message box: it gets what is shown and returns the button to
  /// press. A message box without a queued answer fails the test.
  virtual void WhenMessageBox(std::function<std::int16_t(const ShownMessage&)> answer) = 0;
  /// Queues the answer to the next pop-up menu: it gets the entries and returns the caption of the
  /// one to choose, "" to close the menu with Esc.
  virtual void WhenPopupMenu(
      std::function<std::string(const std::vector<ShownMenuItem>&)> choose) = 0;
  /// Lets this much time pass, timers ticking.
  virtual void LetPass(std::uint32_t milliseconds) = 0;
};

/// A host with its timers and a user, alone on its desktop.
class HostUnderTest {
 public:
  virtual ~HostUnderTest() = default;

  virtual FormHost& Host() = 0;
  virtual MessageLoop& Loop() = 0;
  virtual ScreenQueries& Screen() = 0;
  virtual SystemDialogs& Dialogs() = 0;
  virtual TimerApi& Timers() = 0;
  virtual UserHands& User() = 0;
};

/// Every test program that includes a contract defines this once.
std::unique_ptr<HostUnderTest> MakeHostUnderTest();

}  // namespace korvale
