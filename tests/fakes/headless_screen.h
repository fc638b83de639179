#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form_host.h"
#include "platform/form_model.h"
#include "tests/contract/user_hands.h"
#include "tests/fakes/headless_text_box.h"

namespace korvale {

/// The test asked for something that no user could do, or nobody answers the program.
class HeadlessFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Fails the running test and leaves it with HeadlessFailure.
[[noreturn]] void FailTest(const std::string& message);

/// A control as the screen shows it: what the program has told the host, and no more.
struct HeadlessControl {
  ControlState shown;
  TextCursor cursor;
  bool dropped = false;
  int chosenBefore = -1;  ///< The entry that Esc brings back into an open list.
};

/// A menu of the bar as last drawn.
struct DrawnMenu {
  MenuItem* menu = nullptr;
  ShownMenuItem drawn;
};

/// A monitor of the headless host. The first one is the primary monitor. Its rectangles count the
/// dots per inch that the system had when the program started, as Windows' own do.
struct HeadlessMonitor {
  TwipsRect area;
  TwipsRect workArea;
  int dpi = 96;
};

/// How large a form is shown on its monitor.
struct HeadlessScale {
  int dots = 0;  ///< Those per inch of the monitor.
  int dpi = 0;   ///< That of the form.

  friend bool operator==(const HeadlessScale&, const HeadlessScale&) = default;
};

/// The monitor that shows most of the place, or else the nearest one (MonitorFromWindow).
std::size_t FindMonitor(const std::vector<HeadlessMonitor>& monitors, const TwipsRect& place);

/// A window of the headless host.
struct HeadlessWindow {
  WindowHandle handle = 0;
  const FormState* form = nullptr;
  FormEvents* events = nullptr;
  TwipsRect place;
  TwipsRect restored;       ///< Where it stands when it is neither minimized nor maximized.
  TwipsRect frame;          ///< What frame and menu bar add.
  std::size_t monitor = 0;  ///< The one whose dots per inch it has.
  std::vector<HeadlessControl> controls;
  std::vector<DrawnMenu> bar;
  int focus = 0;

  HeadlessControl& Control(int id);
  const HeadlessControl& Control(int id) const;
  /// "cmdOK" or "optWindow(2)".
  std::string Describe(int id) const;
  /// The control and all that holds it are visible.
  bool IsShown(int id) const;
  bool IsEnabled(int id) const;
  /// Why the mouse cannot reach the middle of a control; "" when it can.
  std::string WhyOutOfReach(int id) const;
  void DrawMenuBar();

 private:
  void CheckControl(int id) const;
  bool IsCovered(int id, Twips x, Twips y) const;
};

/// What Windows makes of a place that a window of these limits is given (WM_GETMINMAXINFO).
TwipsRect Limited(const TwipsRect& place, const SizeLimits& limits);

/// A caption as Windows draws it: without the mark of the access key and with "&&" as "&".
std::string ShownCaption(std::string_view caption);
/// The entry as it is drawn.
ShownMenuItem DrawItem(const MenuItem& item);
/// The visible entries of a menu as they are drawn.
std::vector<ShownMenuItem> DrawItems(const MenuItem& menu);

}  // namespace korvale
