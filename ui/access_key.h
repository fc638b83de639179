#pragma once

#include <string>
#include <string_view>

namespace korvale {

/// The character that "&" marks in a caption, "" when there is none. "&&" marks nothing.
std::string AccessKey(std::string_view caption);

/// True when the access key of `caption` is this character, in either case.
bool HasAccessKey(std::string_view caption, char32_t character);

}  // namespace korvale
