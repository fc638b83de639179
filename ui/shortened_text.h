#pragma once

#include <string>
#include <string_view>

namespace korvale {

/// Width of a text in columns: 1 for most characters, 2 for the wide ones of East Asian scripts and
/// for emoji.
int ColumnCount(std::string_view text);

/// `text` followed by `tail` when both fit into `columns`; otherwise as many whole grapheme
/// clusters from the beginning of `text` as fit, "..." and `tail`. What `text` leaves open of the
/// writing direction is ended before what follows.
std::string ShortenedText(std::string_view text, int columns, std::string_view tail = "");

}  // namespace korvale
