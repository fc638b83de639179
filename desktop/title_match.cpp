#include "desktop/title_match.h"

#include "app/core/stored_tags.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr std::string_view kSeparator = " - ";

bool Matches(std::string_view text, std::string_view title) {
  // A whole title may look like a mark; kept as a caption, it has lost the blanks at its ends.
  if (text == title || text == TrimmedView(title)) return true;
  if (text.ends_with(kLeftPartMark)) {
    text.remove_suffix(kLeftPartMark.size());
    return LeftTitlePart(title) == text;
  }
  if (text.starts_with(kRightPartMark)) {
    text.remove_prefix(kRightPartMark.size());
    return RightTitlePart(title) == text;
  }
  return title.find(text) != std::string_view::npos;
}

}  // namespace

std::string_view LeftTitlePart(std::string_view title) {
  return title.substr(0, title.find(kSeparator));
}

std::string_view RightTitlePart(std::string_view title) {
  const std::size_t at = title.rfind(kSeparator);
  return at == std::string_view::npos ? title : title.substr(at + kSeparator.size());
}

bool TitleMatches(std::string_view storedText, std::string_view liveTitle, bool stripPrefix) {
  if (!stripPrefix) return Matches(storedText, liveTitle);
  return Matches(WithoutTagPrefix(storedText), liveTitle);
}

}  // namespace korvale
