#pragma once

#include <span>
#include <string>

#include "hotkeys/hot_key_table.h"
#include "ui/form.h"

namespace korvale {

/// True for a list whose name begins with "cboHotKey", but not with "cboHotKeyMod": a key is chosen
/// in it.
bool IsKeyList(const Control& control);

/// Fills every list of the form whose name begins with "cboHotKeyMod" with the modifiers and every
/// other one whose name begins with "cboHotKey" with the keys. The number of an entry is what
/// RegisterHotKey gets.
void FillHotKeyLists(Form& form);

/// Chooses in the key lists with the keys themselves: a key that is pressed and released in a list
/// selects its entry, the space bar the blank one. Does nothing for a key that is not in the list,
/// while Shift, Ctrl or Alt is held, or for the arrow keys in an open list. PrintScrn takes a
/// picture of the screen, and Windows reports only its release: it is chosen with the mouse or the
/// arrow keys.
class KeyListKeys {
 public:
  /// A key went down in a key list; `repeated` while it is held. Sets `key` to 0 when the list must
  /// not see it: a closed list takes keys for its entries in its own way, and opens with F4.
  void Down(const Control& list, int& key, unsigned shift, bool repeated);
  /// A key came up in a key list: selects its entry and sets `key` to 0 when the list saw it
  /// pressed.
  void Up(Control& list, int& key, unsigned shift);
  /// Forgets what was pressed before: the dialog has just come forward.
  void Forget() { pressed_ = {}; }

 private:
  struct Press {
    int list = 0;
    int key = 0;
    friend bool operator==(const Press&, const Press&) = default;
  };
  Press pressed_;
};

/// The combinations that Windows refused because it has them itself or another program does, each
/// once, as the user reads them: "Alt+3, Windows®+W". "" when there are none.
std::string NotAvailableText(std::span<const RegisteredHotKey> registered);
/// The combinations that more than one hot key has, in the same form.
std::string ChosenTwiceText(std::span<const RegisteredHotKey> registered);

}  // namespace korvale
