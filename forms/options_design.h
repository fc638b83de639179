#pragma once

#include <algorithm>
#include <array>

#include "app/core/operations.h"
#include "ui/form.h"

namespace korvale {

inline constexpr const char* kOptionsForm = "frmOptions";

/// The labels lblLegend, which explain how a hot key is shown.
inline constexpr int kDisabledLegend = 0;
inline constexpr int kEnabledLegend = 1;

/// The pages of the dialog, in the order of their tabs.
inline constexpr std::array kPageTitles = {"General", "Hot Keys", "Window Identification"};

/// The controls in which the hot keys of a group of operations are chosen: a frame with control
/// arrays, counted by OperationRow::index.
struct HotKeyControls {
  OperationGroup group;
  const char* frame;
  const char* caption;   ///< Of the frame.
  const char* firstTip;  ///< Tells the access key, which leads to the first list.
  const char* label;
  const char* modifiers;
  const char* plus;
  const char* keyName;
  const char* key;
  const char* note;
};

inline constexpr HotKeyControls kHotKeyControls[] = {
    {OperationGroup::kAction, "fraWindowActions", "Window Action&s", " key to hold down  (Alt+S) ",
     "lblAction", "cboHotKeyModAction", "lblPlusAction", "lblKeyAction", "cboHotKeyAction",
     "lblActionNote"},
    {OperationGroup::kGeneral, "fraGeneral", "&General", " key to hold down  (Alt+G) ",
     "lblGeneral", "cboHotKeyModGeneral", "lblPlusGeneral", "lblKeyGeneral", "cboHotKeyGeneral",
     "lblGeneralNote"},
};

constexpr const HotKeyControls& ControlsOf(const OperationRow& row) {
  return *std::ranges::find(kHotKeyControls, row.group, &HotKeyControls::group);
}

/// The controls and the place of frmOptions, with a line for each operation.
const FormDesign& OptionsDesign();

}  // namespace korvale
