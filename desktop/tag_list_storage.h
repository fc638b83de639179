#pragma once

#include "app/core/stored_tags.h"
#include "desktop/tag_list.h"

namespace korvale {

/// What of the Tag list is kept between runs.
StoredTagList TagsToStore(const TagList& tags);

/// Replaces the Tag list by a stored one, all entries unresolved.
void RestoreTagList(TagList& tags, const StoredTagList& stored);

}  // namespace korvale
