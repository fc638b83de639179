#pragma once

#include <string>
#include <string_view>

namespace korvale {

/// UTF-8 to UTF-16 (MultiByteToWideChar); invalid bytes become U+FFFD.
std::wstring ToUtf16(std::string_view text);

/// UTF-16 to UTF-8 (WideCharToMultiByte); lone surrogates become U+FFFD.
std::string ToUtf8(std::wstring_view text);

/// Copies as much of `text` as fits before a NUL; returns the bytes copied.
int CopyText(std::string_view text, char* buffer, std::size_t size);

}  // namespace korvale
