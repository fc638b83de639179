#pragma once

#include <string_view>

namespace korvale {

/// Whether a live title fits a stored identification: "<left> - ***" compares the text before the
/// first " - " of the title, "*** - <right>" the text behind its last " - ", any other text must
/// occur in the title. `stripPrefix` first cuts the two characters "&" + Tag digit off a menu
/// caption and trims the rest. Exact and case-sensitive.
bool TitleMatches(std::string_view storedText, std::string_view liveTitle, bool stripPrefix);

}  // namespace korvale
