#include "util/lists.h"

#include <algorithm>
#include <optional>

#include "util/text.h"

namespace korvale {
namespace {

template <typename Matches>
std::int16_t FirstIndex(std::span<const ListItem> items, Matches matches) {
  const auto found = std::ranges::find_if(items, matches);
  if (found == items.end()) return -1;
  return ToInt16(static_cast<std::int32_t>(found - items.begin()));
}

}  // namespace

std::int16_t FindListIndex(std::span<const ListItem> items, std::string_view value,
                           std::string_view mode) {
  if (mode == "LIST_TEXT") {
    return FirstIndex(items, [&](const ListItem& item) { return item.text == value; });
  }
  const std::optional<std::int32_t> number = ParseInt32(value);
  return number ? FindListIndex(items, *number, mode) : std::int16_t{-1};
}

std::int16_t FindListIndex(std::span<const ListItem> items, std::int32_t value,
                           std::string_view mode) {
  if (mode == "LIST_TEXT") return FindListIndex(items, DecimalText(value), mode);
  if (mode != "ITEM_DATA") return -1;
  return FirstIndex(items, [&](const ListItem& item) { return item.itemData == value; });
}

}  // namespace korvale
