#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/menu_model.h"
#include "platform/settings_store.h"
#include "platform/types.h"
#include "platform/window_api.h"

namespace korvale {

inline constexpr int kTagCount = 9;
/// Characters of a Tag entry's caption before its identification text: "&" and the digit.
inline constexpr int kTagPrefixLength = 2;

/// The tag list: the Window menu's own entries 1-9 and the window class of each Tag.
struct TagList {
  /// Caption "&" + digit + two blanks + identification text; tag = decimal window handle or "0".
  MenuItemArray mnuWindowParentList;
  /// Element Tag-1: class of the window last matched, "" = any class.
  std::array<std::string, kTagCount> ParentWindowClass = {};
};

/// The identification text of a Tag entry's caption: what follows its first two characters,
/// trimmed.
std::string IdentificationText(const MenuItem& entry);

/// The window handle in a Tag entry's tag; 0 when unresolved or not a number.
WindowHandle TagHandle(const MenuItem& entry);

/// Whether the Tag has an entry whose caption marks an access key; Tag 0 is the Previous Window's.
bool HasTagCaption(const TagList& tags, int tag);

/// The class stored for a Tag entry, whose index must be 1-9.
std::string& TagClass(TagList& tags, const MenuItem& entry);

enum class TagListMode : std::int16_t {
  kExists = 1,     ///< 1 when Tag `tagNumber` has an entry (always for 0), else -1.
  kUnresolve = 2,  ///< Sets every entry's tag to "0".
  kMatch = 3,      ///< Matches window `hwnd` against every unresolved entry.
  kSave = 4,       ///< Writes every entry to the store under `appName`.
  kUnload = 5,     ///< Removes every entry from the menu.
};

/// Passes over the Tag entries 1-9.
class TagListPasses {
 public:
  TagListPasses(TagList& tags, WindowQueries& windows, SettingsStore& store);

  /// One pass in ascending order of the Tags; -1 unless `mode` says otherwise.
  std::int16_t TagListPass(TagListMode mode, std::int16_t tagNumber = 0,
                           const std::string& appName = "", WindowHandle hwnd = 0);

  /// Removes the entries whose window no longer exists (IsWindow).
  void RemoveClosed();

 private:
  void Match(MenuItem& entry, WindowHandle hwnd);
  void Save(const MenuItem& entry, const std::string& appName);

  TagList* tags_;
  WindowQueries* windows_;
  SettingsStore* store_;
};

}  // namespace korvale
