#include "platform/windows/text.h"

#include <windows.h>

#include <algorithm>

namespace korvale {

std::wstring ToUtf16(std::string_view text) {
  const int bytes = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0);
  std::wstring result(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, result.data(), length);
  return result;
}

std::string ToUtf8(std::wstring_view text) {
  const int units = static_cast<int>(text.size());
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), units, result.data(), length, nullptr, nullptr);
  return result;
}

int CopyText(std::string_view text, char* buffer, std::size_t size) {
  if (size == 0) return 0;
  const std::size_t count = std::min(text.size(), size - 1);
  std::copy_n(text.data(), count, buffer);
  buffer[count] = '\0';
  return static_cast<int>(count);
}

}  // namespace korvale
