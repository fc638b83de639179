#include "ui/shortened_text.h"

#include <algorithm>

#include "util/characters.h"
#include "util/graphemes.h"
#include "util/text.h"

namespace korvale {
namespace {

struct CodePointRange {
  char32_t first;
  char32_t last;
};

constexpr CodePointRange kWide[] = {
    {0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},
    {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF}, {0x20000, 0x2FFFD}, {0x30000, 0x3FFFD},
};

int Columns(const Character& character) {
  const bool wide = std::ranges::any_of(kWide, [&](const CodePointRange& range) {
    return character.codePoint >= range.first && character.codePoint <= range.last;
  });
  return character.valid && wide ? 2 : 1;
}

}  // namespace

int ColumnCount(std::string_view text) {
  int columns = 0;
  while (!text.empty()) {
    const Character character = FirstCharacter(text);
    columns += Columns(character);
    text.remove_prefix(character.bytes.size());
  }
  return columns;
}

std::string ShortenedText(std::string_view text, int columns, std::string_view tail) {
  if (ColumnCount(text) + ColumnCount(tail) <= columns) {
    return WithDirectionsEnded(text).append(tail);
  }
  int room = columns - ColumnCount(kEllipsis) - ColumnCount(tail);
  std::string shortened;
  while (!text.empty()) {
    const std::string_view cluster = FirstCluster(text);
    room -= ColumnCount(cluster);
    if (room < 0) break;
    shortened += cluster;
    text.remove_prefix(cluster.size());
  }
  return WithDirectionsEnded(shortened).append(kEllipsis).append(tail);
}

}  // namespace korvale
