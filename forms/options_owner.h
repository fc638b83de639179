#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/core/message_boxes.h"
#include "hotkeys/hot_key_table.h"
#include "platform/input_devices.h"
#include "platform/types.h"

namespace korvale {

/// What the Options dialog and Customize Colors ask of the main form.
class OptionsDialogOwner {
 public:
  virtual ~OptionsDialogOwner() = default;

  /// "LOAD_AND_OR_REFRESH" shows the options record in the dialog, "UPDATE_OPTIONS" takes the
  /// dialog's values into the record.
  virtual void udmOptions(const std::string& strMode) = 0;
  /// Reads the options record from the store.
  virtual void udmLoadOptions() = 0;
  /// Deletes the stored options, after which defaults are read; tells the user when the store
  /// refuses.
  virtual void udmDeleteOptions() = 0;
  /// Saves the options and the main window's state as one; tells the user when the store refuses.
  virtual void SaveOrTell() = 0;

  virtual HotKeyTable& HotKeys() = 0;
  virtual MessageBoxes& Messages() = 0;
  /// Lets the user choose a colour, starting with `initial`; nothing when they cancel.
  virtual std::optional<Color> udmShowColorPalette(Color initial) = 0;
  /// The pointer over all windows of the program.
  virtual void SetMousePointer(MousePointer pointer) = 0;

  /// The tab on which the dialog opens, counted from 1.
  virtual std::int16_t OptionsTab() const = 0;
  virtual void SetOptionsTab(std::int16_t tab) = 0;
  /// The dialog is being unloaded, for whatever reason.
  virtual void OptionsDialogClosed() = 0;
};

}  // namespace korvale
