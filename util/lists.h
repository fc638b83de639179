#pragma once

#include <cstdint>
#include <functional>
#include <ranges>
#include <span>
#include <string_view>

#include "platform/form_model.h"
#include "platform/run_time_error.h"

namespace korvale {

/// Index (from 0) of the first item whose item data (mode "ITEM_DATA") or text (mode "LIST_TEXT")
/// equals `value`; -1 when there is none or the mode is neither. Texts are compared exactly; a
/// value of the other kind is compared as its decimal text.
std::int16_t FindListIndex(std::span<const ListItem> items, std::string_view value,
                           std::string_view mode);
std::int16_t FindListIndex(std::span<const ListItem> items, std::int32_t value,
                           std::string_view mode);

/// Index (from 0) of the first option button for which `isSelected` holds; -1 when there is none.
template <std::ranges::input_range Options, typename IsSelected = std::identity>
std::int16_t SelectedOptionIndex(const Options& options, IsSelected isSelected = {}) {
  std::int16_t index = 0;
  for (const auto& option : options) {
    if (std::invoke(isSelected, option)) return index;
    index = AddInt16(index, 1);
  }
  return -1;
}

}  // namespace korvale
