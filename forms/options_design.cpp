#include "forms/options_design.h"

#include <array>
#include <span>
#include <utility>
#include <vector>

namespace korvale {
namespace {

using enum ControlKind;

constexpr Twips kRowHeight = 360;

/// Collects the rows of the form; every row goes into the container that was opened last.
class Rows {
 public:
  void Page(int index) {
    ControlRow page{kPage, "picOptions", index, "", "", {210, 495, 13575, 5775}};
    page.backColor = kWindowColor;
    page.foreColor = kWindowTextColor;
    rows_.push_back(page);
    container_ = "picOptions";
    containerIndex_ = page_ = index;
  }
  void Frame(const char* name, const char* caption, Twips top, Twips height) {
    container_ = "picOptions";
    containerIndex_ = page_;
    Add(kFrame, name, -1, caption, "", {105, top, 13365, height});
    container_ = name;
    containerIndex_ = -1;
  }
  void CloseFrame() {
    container_ = "picOptions";
    containerIndex_ = page_;
  }
  void ClosePages() {
    container_ = "";
    containerIndex_ = -1;
  }
  void Add(ControlKind kind, const char* name, int index, const char* caption, const char* toolTip,
           TwipsRect place, unsigned flags = kNoFlags) {
    ControlRow row{kind, name, index, caption, toolTip, place, container_, containerIndex_, flags};
    // Windows paints the body of a tab strip in the colour of a document.
    if (*container_ != '\0') {
      row.backColor = kWindowColor;
      row.foreColor = kWindowTextColor;
    }
    rows_.push_back(row);
  }
  void CheckBox(const char* name, const char* caption, const char* toolTip, Twips top) {
    Add(kCheckBox, name, -1, caption, toolTip, {180, top, 7500, 285});
  }
  std::vector<ControlRow> Take() { return std::move(rows_); }

 private:
  std::vector<ControlRow> rows_;
  const char* container_ = "";
  int containerIndex_ = -1;
  int page_ = 0;
};

struct TagText {
  const char* caption;
  const char* explanation;
};

constexpr std::array<TagText, 10> kTags = {{
    {"0", " selects the Previous Window "},
    {"1", " selects the window that has been assigned Tag number 1 "},
    {"2", " selects the window that has been assigned Tag number 2 "},
    {"3", " selects the window that has been assigned Tag number 3 "},
    {"4", " selects the window that has been assigned Tag number 4 "},
    {"5", " selects the window that has been assigned Tag number 5 "},
    {"6", " selects the window that has been assigned Tag number 6 "},
    {"7", " selects the window that has been assigned Tag number 7 "},
    {"8", " selects the window that has been assigned Tag number 8 "},
    {"9", " selects the window that has been assigned Tag number 9 "},
}};

constexpr const char* kActionNotes[] = {" minimizes individual desktop windows ",
                                        " alternately maximizes/restores individual desktop "
                                        "windows "};
constexpr const char* kGeneralNotes[] = {
    " displays the Options dialog box (this dialog box) ",
    " displays the pop-up version of the Window menu anywhere on the desktop ",
    " toggles all system-wide Hot Keys ON/OFF (except this one) "};

constexpr const char* kModifierTip = " key to hold down ";
constexpr const char* kKeyTip =
    " key to press:  choose it from the list or press it here  (the Space bar clears it) ";

void AddGeneralPage(Rows& rows) {
  rows.Page(1);
  rows.CheckBox("chkSplashScreen", "&Display splash screen on startup",
                " shows the About box for a moment when the program starts  (Alt+D) ", 180);
  rows.CheckBox("chkSelectPrevWinOnStart", "Select the Previous &Window on startup",
                " goes back to the window in which you worked before the start  (Alt+W) ", 540);
}

void AddTag(Rows& rows, int tag) {
  constexpr Twips kTagRowHeight = 285;
  const Twips left = tag < 5 ? 1800 : 7560;
  const Twips top = 285 + kTagRowHeight * (tag % 5);
  const TagText& text = kTags.at(static_cast<std::size_t>(tag));
  rows.Add(kLabel, "lblTagParent", tag, text.explanation, text.explanation,
           {left + 480, top + 22, 5190, 240}, kNoPrefix);
  rows.Add(kCheckBox, "chkHotKeyParent", tag, text.caption, text.explanation,
           {left, top, 450, 285});
}

/// The names of the controls of one kind of hot key, and what is said of it.
struct HotKeyGroup {
  const char* label;
  const char* modifier;
  const char* plus;
  const char* keyName;
  const char* key;
  const char* note;
  std::span<const char* const> notes;
  const char* firstModifierTip;
};

void AddHotKeys(Rows& rows, const HotKeyGroup& group) {
  Twips top = 270;
  for (int i = 0; i < static_cast<int>(group.notes.size()); ++i, top += kRowHeight) {
    const char* const note = group.notes[static_cast<std::size_t>(i)];
    rows.Add(kLabel, group.label, i, "", note, {180, top + 38, 2625, 240}, kNoPrefix);
    rows.Add(kDropDownList, group.modifier, i, "", i == 0 ? group.firstModifierTip : kModifierTip,
             {2880, top, 1380, 315});
    rows.Add(kLabel, group.plus, i, "+", "", {4260, top + 38, 270, 240}, kCentered);
    // A screen reader calls the list by the label before it; nobody sees this one.
    rows.Add(kLabel, group.keyName, i, note, "", {}, kNoPrefix | kHidden);
    rows.Add(kDropDownList, group.key, i, "", kKeyTip, {4530, top, 1500, 315});
    rows.Add(kLabel, group.note, i, note, note, {6195, top + 38, 7080, 240}, kNoPrefix);
  }
}

void AddLegend(Rows& rows) {
  rows.Add(kLabel, "lblLegendTitle", -1, "Legend:", "", {180, 4725, 750, 240});
  constexpr const char* kEnabled =
      " indicates Hot Key is Enabled -- Click to change this color -- use Shift+Click to reset to "
      "default ";
  constexpr const char* kDisabled = " indicates Hot Key is Disabled ";
  rows.Add(kLabel, "lblLegend", 1, kEnabled, kEnabled, {990, 4710, 8700, 255},
           kNoPrefix | kClickable | kSingleBorder);
  rows.Add(kLabel, "lblLegend", 0, kDisabled, kDisabled, {9810, 4710, 3660, 255}, kNoPrefix);
  // Room for three lines: a long list of refused hot keys, and what was chosen twice.
  rows.Add(kLabel, "lblConflicts", -1, "", "", {180, 5010, 13200, 750},
           kNoPrefix | kWordWrap | kHidden);
}

void AddHotKeysPage(Rows& rows) {
  rows.Page(2);
  rows.Frame("fraWindowSelection", "&Window Selection", 60, 2055);
  rows.Add(kDropDownList, "cboHotKeyModParent", -1, "",
           " key to hold down while pressing the number of a Tag  (Alt+W) ", {180, 285, 1380, 315});
  rows.Add(kLabel, "lblPlusParent", -1, "+", "", {1560, 323, 240, 240}, kCentered);
  for (int tag = 0; tag < 10; ++tag) AddTag(rows, tag);
  rows.Add(kLabel, "lblHotKeyTip", -1,
           "Tip: Alt+Tab and Alt+F4 are provided by the Windows® operating system.", "",
           {180, 1770, 12000, 240}, kNoPrefix);
  rows.Frame("fraWindowActions", "Window Action&s", 2175, 1020);
  AddHotKeys(rows,
             {"lblAction", "cboHotKeyModAction", "lblPlusAction", "lblKeyAction", "cboHotKeyAction",
              "lblActionNote", kActionNotes, " key to hold down  (Alt+S) "});
  rows.Frame("fraGeneral", "&General", 3255, 1380);
  AddHotKeys(rows,
             {"lblGeneral", "cboHotKeyModGeneral", "lblPlusGeneral", "lblKeyGeneral",
              "cboHotKeyGeneral", "lblGeneralNote", kGeneralNotes, " key to hold down  (Alt+G) "});
  rows.CloseFrame();
  AddLegend(rows);
}

void AddWindowIdentificationPage(Rows& rows) {
  rows.Page(3);
  rows.Frame("fraWindowIdentification", "Window Identification  (Parent)", 60, 1125);
  rows.CheckBox("chkAllowToolbarWindow", "Recognize &Toolbar style windows",
                " lets small tool windows be the Previous Window and be tagged  (Alt+T) ", 300);
  rows.CheckBox("chkAllowNoTextWindow", "&Recognize windows that have no Title",
                " lets untitled windows be the Previous Window and be tagged  (Alt+R) ", 660);
}

void AddButtons(Rows& rows) {
  rows.ClosePages();
  constexpr Twips kTop = 6465;
  rows.Add(kButton, "cmdOK", -1, "OK", " Save and close  (Enter) ", {10110, kTop, 1215, 345},
           kDefaultButton);
  rows.Add(kButton, "cmdCancel", -1, "Cancel", " Close without saving  (Esc) ",
           {11400, kTop, 1215, 345}, kCancelButton);
  rows.Add(kButton, "cmdApply", -1, "&Apply", " Save  (Alt+A) ", {12690, kTop, 1215, 345});
  rows.Add(kButton, "cmdReset", -1, "Reset All Options to Default",
           " deletes the saved options and applies the default of every option ",
           {105, kTop, 3000, 345});
  rows.Add(kTabStrip, "tabOptions", -1, "", " page of the options  (Ctrl+Tab) ",
           {105, 105, 13800, 6255});
}

std::vector<ControlRow> MakeRows() {
  Rows rows;
  AddGeneralPage(rows);
  AddHotKeysPage(rows);
  AddWindowIdentificationPage(rows);
  AddButtons(rows);
  return rows.Take();
}

}  // namespace

const FormDesign& OptionsDesign() {
  static const std::vector<ControlRow> rows = MakeRows();
  static const FormDesign design = {
      .name = kOptionsForm, .caption = "Options", .place = {0, 0, 14100, 7335}, .controls = rows};
  return design;
}

}  // namespace korvale
