#pragma once

#include <string>

namespace korvale::endtoend {

/// UTF-8 to UTF-16, as the W calls of Windows take it.
std::wstring Wide(const std::string& utf8);

/// UTF-16 to UTF-8.
std::string Utf8(const std::wstring& wide);

}  // namespace korvale::endtoend
