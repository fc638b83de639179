#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "app/core/operations.h"
#include "app/core/startup_settings.h"
#include "ui/form.h"

namespace korvale {

/// The labels lblLegend, which explain how a hot key is shown.
inline constexpr int kDisabledLegend = 0;
inline constexpr int kEnabledLegend = 1;

/// A page of the dialog.
struct OptionsPage {
  std::int16_t number;
  const char* title;
  const char* firstControl;  ///< Where the focus goes when the page is turned.
};

/// In the order of the tabs.
inline constexpr std::array kOptionsPages = std::to_array<OptionsPage>({
    {kGeneralPage, "General", "chkSplashScreen"},
    {kHotKeysPage, "Hot Keys", "cboHotKeyModParent"},
    {kWindowIdentificationPage, "Window Identification", "chkAllowToolbarWindow"},
});
static_assert(
    [] {
      std::int16_t next = kGeneralPage;
      for (const OptionsPage& page : kOptionsPages) {
        if (page.number != next++) return false;
      }
      return next == kLastOptionsPage + 1;
    }(),
    "a row for each page, in the order of their numbers");

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
