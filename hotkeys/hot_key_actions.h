#pragma once

#include <cstdint>
#include <string>

#include "hotkeys/tip_number.h"
#include "platform/types.h"

namespace korvale {

/// What hot keys ask of the forms; implemented by the main form.
class HotKeyActions {
 public:
  virtual ~HotKeyActions() = default;

  /// A Tag's window has been selected, or the user told why not, or it has failed; refreshes the
  /// menus as after a click on the entry.
  virtual void TagSelected() = 0;
  /// Brings the loaded Options dialog to the front and activates it.
  virtual void BringOptionsToFront() = 0;
  virtual void udmOptions(const std::string& strMode) = 0;
  /// Pops the Window menu up at the mouse position and carries out what the user chooses. Returns
  /// the window that they selected with one of its entries, 0 = none.
  virtual WindowHandle PopUpWindowMenu() = 0;
  /// kHotKeyWindowMenuPopup before the Window menu is popped up, "" once it has closed.
  virtual void SetWindowMenuTag(const std::string& tag) = 0;
  /// The hot keys were registered again, so a list of refused ones is out of date.
  virtual void HotKeysRegistered() = 0;
  /// Shows a tip that the user can silence; `height` in twips.
  virtual void ShowTip(TipNumber number, const std::string& text, const std::string& title,
                       std::int16_t height) = 0;
  /// Shows a text for this many milliseconds.
  virtual void ShowWaitWindow(const std::string& caption, const std::string& text,
                              std::uint32_t milliseconds) = 0;
};

}  // namespace korvale
