#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <utility>
#include <vector>

namespace korvale {

/// What is left of a list that fails when all is left out that it fails without: first halves, then
/// ever smaller parts, single items until none can go any more.
template <typename Item>
std::vector<Item> Shrunk(std::vector<Item> items,
                         const std::function<bool(const std::vector<Item>&)>& fails) {
  for (std::size_t part = std::max<std::size_t>(items.size() / 2, 1); part > 0;) {
    bool smaller = false;
    for (std::size_t end = items.size(); end > 0;) {
      const std::size_t begin = end > part ? end - part : 0;
      std::vector<Item> without = items;
      without.erase(std::next(without.begin(), static_cast<std::ptrdiff_t>(begin)),
                    std::next(without.begin(), static_cast<std::ptrdiff_t>(end)));
      if (fails(without)) {
        items = std::move(without);
        smaller = true;
      }
      end = std::min(begin, items.size());
    }
    if (!(part == 1 && smaller)) part /= 2;
  }
  return items;
}

}  // namespace korvale
