#include "desktop/window_names.h"

#include <cstdint>
#include <string_view>

#include "util/characters.h"
#include "util/graphemes.h"
#include "util/text.h"

namespace korvale {
namespace {

// In characters; with much more, a message box would not fit on the screen.
constexpr std::int32_t kLongestName = 255;
constexpr std::int32_t kLongestWord = 100;

/// How many characters of the text a message shows at the most.
std::int32_t ShownLength(std::string_view text) {
  std::int32_t shown = 0;
  std::int32_t word = 0;
  for (const std::string_view character : SplitCharacters(text)) {
    word = character == " " ? 0 : word + 1;
    if (shown == kLongestName || word > kLongestWord) break;
    ++shown;
  }
  return shown;
}

}  // namespace

std::string NameInMessage(const std::string& text) {
  const std::string beginning = LeftClusters(text, ShownLength(text));
  const std::string name = WithDirectionsEnded(OnOneLine(beginning));
  return beginning == text ? name : name + kEllipsis;
}

std::string InBrackets(const std::string& text) { return "Window:  [" + NameInMessage(text) + "]"; }

}  // namespace korvale
