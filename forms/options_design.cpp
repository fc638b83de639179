#include "forms/options_design.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "app/core/form_names.h"
#include "app/core/stored_tags.h"

namespace korvale {
namespace {

using enum ControlKind;

constexpr Twips kRowHeight = 360;
/// Everything below the frames of the hot keys is placed from the foot of the pages.
constexpr Twips kPageHeight = 3975 + kRowHeight * static_cast<Twips>(kOperations.size());

/// Collects the rows of the form; every row goes into the container that was opened last.
class Rows {
 public:
  void Page(int number) {
    ClosePages();
    // Nobody sees the caption; screen readers say it when the user gets to the page.
    const char* const title = kOptionsPages.at(static_cast<std::size_t>(number) - 1).title;
    Add(kPage, "picOptions", number, title, "", {210, 495, 13575, kPageHeight});
    page_ = number;
    CloseFrame();
  }
  void Frame(const char* name, const char* caption, Twips top, Twips height) {
    CloseFrame();
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
    if (kind == kPage || *container_ != '\0') {
      row.backColor = kWindowColor;
      row.foreColor = kWindowTextColor;
    }
    rows_.push_back(row);
  }
  /// What a screen reader calls the list that follows; nobody sees it.
  void NameOfNext(const char* name, int index, const char* text) {
    Add(kLabel, name, index, text, "", {}, kNoPrefix | kHidden);
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

/// The digit of a Tag, and what its hot key does.
struct TagText {
  char digit[2] = "0";
  char note[57] = " selects the window that has been assigned Tag number 0 ";
};

constexpr std::array kTags = [] {
  std::array<TagText, kTagCount + 1> tags;
  for (std::size_t tag = 0; tag < tags.size(); ++tag) {
    TagText& text = tags[tag];
    text.digit[0] = text.note[std::size(text.note) - 3] = static_cast<char>('0' + tag);
  }
  return tags;
}();
static_assert(kTags[7].note ==
              std::string_view{" selects the window that has been assigned Tag number 7 "});

constexpr const char* kModifierTip = " key to hold down ";
constexpr const char* kKeyTip =
    " key to press:  choose it from the list or press it here  (the Space bar clears it) ";

void AddGeneralPage(Rows& rows) {
  rows.Page(kGeneralPage);
  rows.CheckBox("chkSplashScreen", "&Display splash screen on startup",
                " shows the About box for a moment when the program starts  (Alt+D) ", 180);
  rows.CheckBox("chkSelectPrevWinOnStart", "Select the Previous &Window on startup",
                " goes back to the window in which you worked before the start  (Alt+W) ", 540);
}

void AddTag(Rows& rows, int tag) {
  constexpr Twips kTagRowHeight = 285;
  constexpr int kTagsInColumn = 5;
  const Twips left = tag < kTagsInColumn ? 1800 : 7560;
  const Twips top = 285 + kTagRowHeight * (tag % kTagsInColumn);
  const TagText& text = kTags.at(static_cast<std::size_t>(tag));
  const char* const note = tag == 0 ? " selects the Previous Window " : text.note;
  rows.Add(kLabel, "lblTagParent", tag, note, note, {left + 480, top + 22, 5190, 240},
           kNoPrefix | kClickable);
  rows.Add(kCheckBox, "chkHotKeyParent", tag, text.digit, note, {left, top, 450, 285});
}

/// The frame of a group of hot keys; returns where the next one goes.
Twips AddHotKeys(Rows& rows, const HotKeyControls& controls, Twips frameTop) {
  const Twips height = 300 + kRowHeight * static_cast<Twips>(OperationCount(controls.group));
  rows.Frame(controls.frame, controls.caption, frameTop, height);
  const char* modifierTip = controls.firstTip;
  Twips top = 270;
  for (const OperationRow& row : kOperations) {
    if (row.group != controls.group) continue;
    const int i = row.index;
    rows.Add(kLabel, controls.label, i, row.label, row.note, {180, top + 38, 2625, 240}, kNoPrefix);
    rows.Add(kDropDownList, controls.modifiers, i, "", modifierTip, {2880, top, 1380, 315});
    rows.Add(kLabel, controls.plus, i, "+", "", {4260, top + 38, 270, 240}, kCentered);
    rows.NameOfNext(controls.keyName, i, row.note);
    rows.Add(kDropDownList, controls.key, i, "", kKeyTip, {4530, top, 1500, 315});
    rows.Add(kLabel, controls.note, i, row.note, row.note, {6195, top + 38, 7080, 240}, kNoPrefix);
    modifierTip = kModifierTip;
    top += kRowHeight;
  }
  return frameTop + height + 60;
}

void AddLegend(Rows& rows) {
  rows.Add(kLabel, "lblLegendTitle", -1, "Legend:", "", {180, kPageHeight - 1050, 750, 240});
  constexpr const char* kEnabled =
      " indicates Hot Key is Enabled -- Click to change this color -- use Shift+Click to reset to "
      "default ";
  constexpr const char* kDisabled = " indicates Hot Key is Disabled ";
  constexpr const char* kEnabledTip =
      " changes the color of enabled Hot Keys, with Shift back to the default  "
      "(Alt+C/Shift+Alt+C) ";
  rows.Add(kLabel, "lblLegend", kEnabledLegend, kEnabled, kEnabledTip,
           {990, kPageHeight - 1065, 8700, 255}, kNoPrefix | kClickable | kSingleBorder);
  rows.Add(kLabel, "lblLegend", kDisabledLegend, kDisabled, kDisabled,
           {9810, kPageHeight - 1065, 3660, 255}, kNoPrefix);
  // Room for three lines: a long list of refused hot keys, and those chosen twice.
  rows.Add(kLabel, "lblConflicts", -1, "", "", {180, kPageHeight - 765, 13200, 750},
           kNoPrefix | kWordWrap | kHidden);
}

void AddHotKeysPage(Rows& rows) {
  rows.Page(kHotKeysPage);
  rows.Frame("fraWindowSelection", "&Window Selection", 60, 2055);
  rows.NameOfNext("lblModParent", -1, "Key to hold down with the number of a Tag");
  rows.Add(kDropDownList, "cboHotKeyModParent", -1, "",
           " key to hold down while pressing the number of a Tag  (Alt+W) ", {180, 285, 1380, 315});
  rows.Add(kLabel, "lblPlusParent", -1, "+", "", {1560, 323, 240, 240}, kCentered);
  for (int tag = 0; tag <= kTagCount; ++tag) AddTag(rows, tag);
  rows.Add(kLabel, "lblHotKeyTip", -1,
           "Tip: Alt+Tab and Alt+F4 are provided by the Windows® operating system.", "",
           {180, 1770, 12000, 240}, kNoPrefix);
  Twips top = 2175;
  for (const HotKeyControls& controls : kHotKeyControls) top = AddHotKeys(rows, controls, top);
  rows.CloseFrame();
  AddLegend(rows);
}

void AddWindowIdentificationPage(Rows& rows) {
  rows.Page(kWindowIdentificationPage);
  rows.Frame("fraWindowIdentification", "Window Identification  (Parent)", 60, 1125);
  rows.CheckBox("chkAllowToolbarWindow", "Recognize &Toolbar style windows",
                " lets small tool windows be the Previous Window and be tagged  (Alt+T) ", 300);
  rows.CheckBox("chkAllowNoTextWindow", "&Recognize windows that have no Title",
                " lets untitled windows be the Previous Window and be tagged  (Alt+R) ", 660);
}

void AddButtons(Rows& rows) {
  rows.ClosePages();
  constexpr Twips kTop = kPageHeight + 690;
  rows.Add(kButton, "cmdOK", -1, "OK", " Save and close  (Enter) ", {10110, kTop, 1215, 345},
           kDefaultButton);
  rows.Add(kButton, "cmdCancel", -1, "Cancel", " Close without saving  (Esc) ",
           {11400, kTop, 1215, 345}, kCancelButton);
  rows.Add(kButton, "cmdApply", -1, "&Apply", " Save  (Alt+A) ", {12690, kTop, 1215, 345});
  rows.Add(kButton, "cmdReset", -1, "Reset All Options to Default",
           " deletes the saved options and applies the default of every option ",
           {105, kTop, 3000, 345});
  rows.Add(kTabStrip, "tabOptions", -1, "Pages", " page of the options  (Ctrl+Tab) ",
           {105, 105, 13800, kPageHeight + 480});
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
  static const FormDesign design = {.name = kOptionsForm,
                                    .caption = "Options",
                                    .place = {0, 0, 14100, kPageHeight + 1560},
                                    .controls = rows};
  return design;
}

}  // namespace korvale
