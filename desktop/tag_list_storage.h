#pragma once

#include "app/core/stored_tags.h"
#include "desktop/tag_list.h"

namespace korvale {

/// The part of the Tag list that is kept between runs.
StoredTagList TagsToStore(const TagList& tags);

/// Replaces the Tag list by a stored one, all entries unresolved.
void RestoreTagList(TagList& tags, const StoredTagList& stored);

}  // namespace korvale
