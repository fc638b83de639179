#include "ui/access_key.h"

#include <cstddef>

#include "util/characters.h"

namespace korvale {

std::string AccessKey(std::string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    ++i;
    if (caption[i] != '&') return std::string(FirstCharacter(caption.substr(i)).bytes);
  }
  return "";
}

bool HasAccessKey(std::string_view caption, char32_t character) {
  const std::string key = AccessKey(caption);
  return !key.empty() && UpperCase(FirstCharacter(key).codePoint) == UpperCase(character);
}

}  // namespace korvale
