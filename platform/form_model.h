#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/menu_model.h"
#include "platform/types.h"

namespace korvale {

enum class ControlKind {
  kLabel,
  kLine,
  kTextBox,
  kButton,
  kCheckBox,
  kOptionButton,
  kDropDownList,  ///< A combo box that offers its entries only.
  kComboBox,      ///< A combo box with a text field.
  kFrame,         ///< A group box; holds other controls.
  kPage,          ///< A bare surface that holds the controls of one tab.
  kTabStrip,      ///< `items` are the tabs, `listIndex` the chosen one.
  kImage,
  kTimer,
};

enum ControlFlags : unsigned {
  kNoFlags = 0,
  kDefaultButton = 1U << 0U,  ///< Enter presses it.
  kCancelButton = 1U << 1U,   ///< Esc presses it.
  kHidden = 1U << 2U,
  kDisabled = 1U << 3U,
  kReadOnly = 1U << 4U,
  kNoTabStop = 1U << 5U,
  kWordWrap = 1U << 6U,
  kNoPrefix = 1U << 7U,  ///< "&" in the caption is shown as it is.
  kSingleBorder = 1U << 8U,
  kCentered = 1U << 9U,
  kClickable = 1U << 10U,  ///< A label or image that reports the mouse.
};

/// One row of a form's control table. Rows are in the order of the windows, which is the order of
/// the Tab key, unless `tabIndex` says otherwise; a frame or page comes before what it holds.
struct ControlRow {
  ControlKind kind;
  const char* name;
  int index;  ///< Position in a control array, or -1.
  const char* caption;
  const char* toolTip;
  TwipsRect place;             ///< Within the container's client area.
  const char* container = "";  ///< Name of the frame or page that holds it; "" = the form.
  int containerIndex = -1;     ///< Its position in a control array, or -1.
  unsigned flags = kNoFlags;
  Color backColor = kButtonFaceColor;
  Color foreColor = kButtonTextColor;
  /// Place in the order of the windows, counted from 0; -1 = the row's own place in the table.
  int tabIndex = -1;
};

/// A row of a form that holds all its controls itself. On any background but the usual one the text
/// has the colour of documents.
constexpr ControlRow MakeRow(ControlKind kind, const char* name, int index, const char* caption,
                             const char* toolTip, TwipsRect place, unsigned flags = kNoFlags,
                             Color backColor = kButtonFaceColor) {
  const Color foreColor = backColor == kButtonFaceColor ? kButtonTextColor : kWindowTextColor;
  return {kind, name, index, caption, toolTip, place, "", -1, flags, backColor, foreColor};
}

/// An entry of a list with the number that stands for it.
struct ListItem {
  std::string text;
  std::int32_t itemData = 0;
};

/// The entries of an open list that can be seen without scrolling.
inline constexpr int kDroppedEntries = 9;

/// What a host needs to know about a control to show it. Changed only by the shared form code.
struct ControlState {
  int id = 0;  ///< 1-based position in the order of the windows; also the Windows control id.
  ControlKind kind = ControlKind::kLabel;
  std::string name;
  int index = -1;
  std::string text;  ///< Caption or typed text. In captions "&" marks the access key.
  std::string toolTip;
  TwipsRect place;
  int container = 0;  ///< Id of the frame or page that holds it, 0 = the form.
  unsigned flags = kNoFlags;
  bool visible = true;
  bool enabled = true;
  int value = 0;  ///< Check box and option button: 1 chosen, 0 not.
  Color backColor = kButtonFaceColor;
  Color foreColor = kButtonTextColor;
  bool border = false;
  std::vector<ListItem> items;
  int listIndex = -1;
  std::uint32_t interval = 0;  ///< Timer: milliseconds.
};

enum class ControlProperty {
  kText,
  kPlace,
  kVisible,
  kEnabled,
  kValue,
  kColors,
  kBorder,
  kItems,
  kListIndex,
  kDefault
};

enum class BorderStyle { kSizable, kFixedDialog, kNone };

enum class ShowState { kNormal = 0, kMinimized = 1, kMaximized = 2 };

/// What a form is to a screen reader: a window to work in; a dialog, whose texts are read out when
/// the user gets there; or an alert, which is read out when it appears, wherever the user works.
enum class FormRole { kWindow, kDialog, kAlert };

/// The sizes that the user, or maximizing, can give a form, in twips; 0 = any.
struct SizeLimits {
  Twips minimumWidth = 0;
  Twips height = 0;  ///< The only height that it can have.

  friend bool operator==(const SizeLimits&, const SizeLimits&) = default;
};

/// What a host needs to know about a form to show it. Changed only by the shared form code.
struct FormState {
  std::string name;  ///< Its window class is "Korvale." followed by this name.
  std::string caption;
  TwipsRect place;  ///< Place and size on the screen, frame included.
  SizeLimits limits;
  /// The client area that must stay on the screen: bigger text enlarges the form only as far as its
  /// work area has room for this. Nothing = the user sizes the form.
  TwipsSize content;
  BorderStyle border = BorderStyle::kFixedDialog;
  bool minimizeBox = false;
  bool maximizeBox = false;
  bool modalFrame = false;  ///< Carries DS_MODALFRAME.
  bool inTaskbar = false;
  /// Stands above all windows, and becomes active neither when shown nor when clicked
  /// (WS_EX_TOPMOST, WS_EX_NOACTIVATE).
  bool aside = false;
  FormRole role = FormRole::kDialog;
  bool visible = false;
  bool enabled = true;
  ShowState windowState = ShowState::kNormal;
  MenuBar menu;
  bool menuShown = true;  ///< The menu bar is visible.
  std::vector<ControlState> controls;

  /// The control of this number, which must be one.
  const ControlState& Control(int id) const {
    return controls.at(static_cast<std::size_t>(id) - 1);
  }
  /// The control and all that holds it are visible, or enabled.
  bool IsVisible(const ControlState& control) const {
    return control.visible && (control.container == 0 || IsVisible(Control(control.container)));
  }
  bool IsEnabled(const ControlState& control) const {
    return control.enabled && (control.container == 0 || IsEnabled(Control(control.container)));
  }
  /// The window has a menu bar; a bar without a visible menu does not count.
  bool ShowsMenuBar() const { return menuShown && menu.AnyVisible(); }
};

}  // namespace korvale
