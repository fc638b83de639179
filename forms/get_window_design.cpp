#include "forms/get_window_design.h"

namespace korvale {
namespace {

using enum ControlKind;

/// Leaves some room below the last row, which is close to the lower edge.
constexpr Twips kButtonHeight = 285;

// The order of the windows: each label before its control, and the Tab key from top to bottom.
enum WindowOrder : int {
  kOrderLblAssignHotKey,
  kOrderCboWindow,
  kOrderLblWindow,
  kOrderCmdRemove,
  kOrderLblIdentifyWindow,
  kOrderTxtWindow,
  kOrderLine2,
  kOrderLblWindowClass,
  kOrderTxtWindowClass,
  kOrderOptWindow0,
  kOrderOptWindow1,
  kOrderOptWindow2,
  kOrderLblChildWindow,
  kOrderCboChildWindow,
  kOrderChkChildWindow,
  kOrderCmdOK,
  kOrderCmdClose,
  kOrderLines,
};

constexpr ControlRow Row(ControlKind kind, const char* name, int index, const char* caption,
                         const char* toolTip, TwipsRect place, int tabIndex,
                         unsigned flags = kNoFlags, Color backColor = kButtonFaceColor) {
  ControlRow row = MakeRow(kind, name, index, caption, toolTip, place, flags, backColor);
  row.tabIndex = tabIndex;
  return row;
}

constexpr ControlRow kAddWindowControls[] = {
    Row(kTextBox, "txtWindowClass", -1, "",
        " Class of window:  the window will be matched based on Title and Class - if a Title/Class "
        "match is not found, then the match is made by Title alone ",
        {240, 1320, 7350, 300}, kOrderTxtWindowClass, kReadOnly),
    Row(kTextBox, "txtWindow", -1, "", " edit to Identify Window by partial Title  (Alt+P/Alt+P) ",
        {240, 975, 7350, 300}, kOrderTxtWindow, kNoFlags, kWindowColor),
    Row(kComboBox, "cboChildWindow", -1, "", " edit to identify Child Window by partial title ",
        {240, 2955, 7350, 315}, kOrderCboChildWindow, kNoFlags, kWindowColor),
    Row(kCheckBox, "chkChildWindow", -1, "assign this Hot Key to a Child window of the Parent",
        " TIP:  first identify the Parent Window by application name ", {240, 3330, 7350, 285},
        kOrderChkChildWindow),
    Row(kDropDownList, "cboWindow", -1, "", " Tag number ", {240, 330, 900, 315}, kOrderCboWindow,
        kNoFlags, kWindowColor),
    Row(kOptionButton, "optWindow", 0, "", " Identify Window by full or partial Title ",
        {240, 1695, 7350, 285}, kOrderOptWindow0, kNoPrefix),
    Row(kOptionButton, "optWindow", 1, "*Left*",
        " Identify Window by the left portion of the Title ", {240, 2000, 7350, 285},
        kOrderOptWindow1, kNoPrefix),
    Row(kOptionButton, "optWindow", 2, "*Right*",
        " Identify Window by the right portion of the Title ", {240, 2305, 7350, 285},
        kOrderOptWindow2, kNoPrefix),
    Row(kButton, "cmdOK", -1, "OK", " Add window to the Window menu  (Enter) ",
        {5085, 3735, 1215, kButtonHeight}, kOrderCmdOK, kDefaultButton),
    Row(kButton, "cmdClose", -1, "Close", " Close  (Esc) ", {6375, 3735, 1215, kButtonHeight},
        kOrderCmdClose, kCancelButton),
    Row(kButton, "cmdRemove", -1, "&Remove",
        " clears the specified Tag/window from the Window menu ", {6375, 345, 1215, kButtonHeight},
        kOrderCmdRemove),
    Row(kLabel, "lblChildWindow", -1, "&Child Window", "", {120, 2715, 1800, 225},
        kOrderLblChildWindow),
    Row(kLine, "Line3", -1, "", "", {1980, 2820, 5610, 15}, kOrderLines),
    Row(kLabel, "lblWindow", -1, "*window caption here*",
        " Red text: means a window is already associated with this Tag     Blue text: means this "
        "Tag is available ",
        {1260, 390, 4905, 225}, kOrderLblWindow, kNoPrefix),
    // Stands before the second text box: screen readers take a box's access key from the last
    // static control that is seen before it, and that of the first box is not for this one.
    Row(kLine, "Line2", -1, "", "", {2340, 840, 5250, 15}, kOrderLine2),
    Row(kLine, "Line1", -1, "", "", {1500, 195, 6090, 15}, kOrderLines),
    Row(kLabel, "lblIdentifyWindow", -1, "Identify &Window  (Parent)", "", {120, 735, 2160, 225},
        kOrderLblIdentifyWindow),
    Row(kLabel, "lblAssignHotKey", -1, "Assign a &Tag", "", {120, 90, 1320, 225},
        kOrderLblAssignHotKey),
    // A screen reader calls the text box by the label before it; nobody sees this one.
    Row(kLabel, "lblWindowClass", -1, "Class of Window", "", {}, kOrderLblWindowClass,
        kHidden | kNoPrefix),
};

constexpr FormDesign kGetWindowDesign = {.name = "frmGetWindow",
                                         .caption = "Add Window",
                                         .place = {0, 0, 7800, 4500},
                                         .controls = kAddWindowControls};

}  // namespace

const FormDesign& GetWindowDesign() { return kGetWindowDesign; }

}  // namespace korvale
