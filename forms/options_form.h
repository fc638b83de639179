#pragma once

#include <cstdint>
#include <string_view>

#include "app/core/options.h"
#include "forms/hot_key_lists.h"
#include "forms/options_owner.h"
#include "ui/form.h"

namespace korvale {

/// The Options dialog. It edits a copy of the options record and is modeless.
class frmOptions : public Form {
 public:
  frmOptions(FormCollection& forms, OptionsDialogOwner& owner);
  ~frmOptions() override;

  /// Shows the record in the loaded dialog, on the remembered tab.
  void LoadFrom(const clsOptions& options);
  /// Takes the dialog's values into the record. A list without a choice leaves its field unchanged,
  /// since the stored value is none of its entries.
  void UpdateInto(clsOptions& options) const;

  /// Paints the label of each hot key: enabled ones in the legend's colour with a border.
  void udmRefreshHotKeyLabels();
  /// Names the hot keys that are not available since the last registration, and those that the user
  /// chose twice; hides the line when there are none.
  void RefreshConflictLine();

 protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Activate() override;
  void Form_SysColorChange() override;
  void Form_KeyDown(int& key, unsigned shift) override;
  void Form_KeyUp(Control* focused, int& key, unsigned shift) override;
  void Control_Mouse(Control& control, const MouseInput& input) override;

 private:
  void cmdOK_Click();
  void cmdCancel_Click();
  void cmdApply_Click();
  void cmdReset_Click();
  void tabOptions_Click();

  void TurnPage(bool backwards);
  void Save();
  /// A check that always passes: combinations that clash are left to the user.
  static bool Validate() { return true; }
  void RegisterHotKeysAnew();
  void Select(std::string_view list, int index, std::int32_t value);
  std::int16_t Chosen(std::string_view list, int index, std::int16_t otherwise) const;
  void PaintLabel(std::string_view label, int index, bool enabled);
  /// The user has clicked the legend of enabled hot keys, or pressed its key, with these modifiers.
  void PressLegend(unsigned shift);
  void SetEnabledColor(Color color);
  void ShowPage(std::int16_t tab);
  void HotKeyChanged();

  OptionsDialogOwner* owner_;
  /// The record as last shown: what a list without a choice means.
  clsOptions shown_;
  KeyListKeys keyListKeys_;
  Color colHotKeyEnabled_ = kDefaultHotKeyEnabledColor;
  /// The controls are being filled; events raised while filling are not the user's.
  bool loading_ = false;
};

}  // namespace korvale
