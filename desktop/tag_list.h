#pragma once

#include <array>
#include <string>

#include "app/core/stored_tags.h"
#include "platform/menu_model.h"
#include "platform/types.h"

namespace korvale {

/// The tag list: the Window menu's own entries 1-9 and the window class of each Tag.
struct TagList {
  /// The captions are TagCaption's; tag = decimal window handle or "0".
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

/// The class stored for a Tag, 1-9, or for the entry of one.
std::string& TagClass(TagList& tags, int tag);
std::string& TagClass(TagList& tags, const MenuItem& entry);
const std::string& TagClass(const TagList& tags, const MenuItem& entry);

/// Adds the entry of Tag `number`, which must have none: visible and unresolved.
MenuItem& AddTagEntry(TagList& tags, int number, const std::string& caption);

}  // namespace korvale
