#include "app/core/stored_tags.h"
#include "forms/options_design.h"
#include "forms/options_form.h"
#include "util/lists.h"

namespace korvale {
namespace {

/// A check box and the option that it stands for.
struct CheckBoxField {
  const char* name;
  bool clsOptions::*field;
};

constexpr CheckBoxField kCheckBoxes[] = {
    {"chkSplashScreen", &clsOptions::booSplashScreen},
    {"chkSelectPrevWinOnStart", &clsOptions::booSelectPrevWinOnStart},
    {"chkAllowToolbarWindow", &clsOptions::booAllowToolbarWindow},
    {"chkAllowNoTextWindow", &clsOptions::booAllowNoTextWindow},
};

/// Calls `visit` for each drop-down list with its array index and its option.
template <typename Options, typename Visit>
void ForEachList(Options& options, Visit visit) {
  visit("cboHotKeyModParent", -1, options.intHotKeyModParent);
  for (const OperationRow& row : kOperations) {
    const auto [modifiers, key] = OperationFields(options, row);
    visit(ControlsOf(row).modifiers, row.index, modifiers);
    visit(ControlsOf(row).key, row.index, key);
  }
}

}  // namespace

void frmOptions::LoadFrom(const clsOptions& options) {
  loading_ = true;
  for (const CheckBoxField& box : kCheckBoxes) Find(box.name).SetValue(options.*box.field ? 1 : 0);
  for (int tag = 0; tag <= kTagCount; ++tag) {
    Find("chkHotKeyParent", tag)
        .SetValue(options.booHotKeyParent[static_cast<std::size_t>(tag)] ? 1 : 0);
  }
  ForEachList(options,
              [&](const char* list, int index, std::int16_t value) { Select(list, index, value); });
  shown_ = options;
  colHotKeyEnabled_ = options.colHotKeyEnabled;
  ShowPage(owner_->OptionsTab());
  loading_ = false;
  udmRefreshHotKeyLabels();
  RefreshConflictLine();
}

void frmOptions::UpdateInto(clsOptions& options) const {
  for (const CheckBoxField& box : kCheckBoxes) options.*box.field = Find(box.name).Value() == 1;
  for (int tag = 0; tag <= kTagCount; ++tag) {
    options.booHotKeyParent[static_cast<std::size_t>(tag)] =
        Find("chkHotKeyParent", tag).Value() == 1;
  }
  ForEachList(options, [&](const char* list, int index, std::int16_t& value) {
    value = Chosen(list, index, value);
  });
  options.colHotKeyEnabled = colHotKeyEnabled_;
}

void frmOptions::Select(std::string_view list, int index, std::int32_t value) {
  Control& control = Find(list, index);
  control.SetListIndex(FindListIndex(control.Items(), value, "ITEM_DATA"));
}

std::int16_t frmOptions::Chosen(std::string_view list, int index, std::int16_t otherwise) const {
  const Control& control = Find(list, index);
  return control.ListIndex() < 0 ? otherwise : ToInt16(control.SelectedItemData());
}

}  // namespace korvale
