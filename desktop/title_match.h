#pragma once

#include <string_view>

namespace korvale {

/// End of an identification by the left part of the title, and beginning of one by the right part.
inline constexpr std::string_view kLeftPartMark = " - ***";
inline constexpr std::string_view kRightPartMark = "*** - ";

/// The title before its first " - ", and after its last; the whole title when it has none.
std::string_view LeftTitlePart(std::string_view title);
std::string_view RightTitlePart(std::string_view title);

/// Whether a live title fits a stored identification: the title itself always does, with or without
/// the blanks at its ends; "<left> - ***" compares the text before the first " - " of the title,
/// "*** - <right>" the text behind its last " - ", any other text must occur in the title.
/// `stripPrefix` first cuts the two characters "&" + Tag digit off a menu caption and trims the
/// rest. Exact and case-sensitive.
bool TitleMatches(std::string_view storedText, std::string_view liveTitle, bool stripPrefix);

}  // namespace korvale
