#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace korvale {

/// What a target does with an input; it expects what must hold for any bytes.
void Fuzz(std::string_view input);

/// The text up to the next line end; removes both from `input`.
inline std::string TakeLine(std::string_view& input) {
  const std::size_t end = input.find('\n');
  std::string line(input.substr(0, end));
  input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
  return line;
}

}  // namespace korvale
