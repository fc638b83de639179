#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace korvale {

// A grapheme cluster is what readers take for one character: a letter with its marks, a Hangul or
// Indic syllable, a flag, an emoji with all that it is made of. Where a text is shown shortened it
// is cut between clusters; what is stored, matched or counted goes by code points (util/text.h).

/// The first cluster of `text`, which must not be empty, by the rules of Unicode for extended
/// grapheme clusters. A byte that belongs to no valid UTF-8 sequence counts as a letter.
std::string_view FirstCluster(std::string_view text);

/// All clusters of `text`, as views into it.
std::vector<std::string_view> SplitClusters(std::string_view text);

/// As many whole clusters from the beginning of `text` as have at most `count` code points
/// together; where not even the first one fits, the first `count` code points, so that something is
/// shown.
std::string LeftClusters(std::string_view text, std::int32_t count);

}  // namespace korvale
