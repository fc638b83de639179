#pragma once

#include "desktop/tag_list.h"
#include "platform/settings_store.h"

namespace korvale {

/// Replaces the Tag list by a stored one: key = Tag number text "1" .. "9", value = caption or
/// class. A pair with another key, a caption that does not begin with "&", its own digit and two
/// blanks, and a class without its caption are left out.
void RestoreTagList(TagList& tags, const SettingsStore::Pairs& captions,
                    const SettingsStore::Pairs& classes);

}  // namespace korvale
