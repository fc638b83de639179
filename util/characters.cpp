#include "util/characters.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace korvale {
namespace {

/// Letters whose upper case lies at a fixed distance. With step 2 only every second code point,
/// from `first` on, is lower case.
struct CaseRange {
  char32_t first;
  char32_t last;
  std::int32_t distance;
  char32_t step;
};

constexpr std::array kCaseRanges = {
    CaseRange{U'a', U'z', -0x20, 1},     CaseRange{0xE0, 0xF6, -0x20, 1},
    CaseRange{0xF8, 0xFE, -0x20, 1},     CaseRange{0xFF, 0xFF, 0x79, 1},
    CaseRange{0x101, 0x12F, -1, 2},      CaseRange{0x133, 0x137, -1, 2},
    CaseRange{0x13A, 0x148, -1, 2},      CaseRange{0x14B, 0x177, -1, 2},
    CaseRange{0x17A, 0x17E, -1, 2},      CaseRange{0x1A1, 0x1A5, -1, 2},
    CaseRange{0x1B0, 0x1B0, -1, 1},      CaseRange{0x1CE, 0x1DC, -1, 2},
    CaseRange{0x1DF, 0x1EF, -1, 2},      CaseRange{0x1F9, 0x21F, -1, 2},
    CaseRange{0x223, 0x233, -1, 2},      CaseRange{0x3AC, 0x3AC, -0x26, 1},
    CaseRange{0x3AD, 0x3AF, -0x25, 1},   CaseRange{0x3B1, 0x3C1, -0x20, 1},
    CaseRange{0x3C2, 0x3C2, -0x1F, 1},   CaseRange{0x3C3, 0x3CB, -0x20, 1},
    CaseRange{0x3CC, 0x3CC, -0x40, 1},   CaseRange{0x3CD, 0x3CE, -0x3F, 1},
    CaseRange{0x430, 0x44F, -0x20, 1},   CaseRange{0x450, 0x45F, -0x50, 1},
    CaseRange{0x461, 0x481, -1, 2},      CaseRange{0x48B, 0x4BF, -1, 2},
    CaseRange{0x4C2, 0x4CE, -1, 2},      CaseRange{0x4CF, 0x4CF, -0xF, 1},
    CaseRange{0x4D1, 0x52F, -1, 2},      CaseRange{0x561, 0x586, -0x30, 1},
    CaseRange{0x1E01, 0x1E95, -1, 2},    CaseRange{0x1EA1, 0x1EFF, -1, 2},
    CaseRange{0xFF41, 0xFF5A, -0x20, 1},
};

constexpr char32_t kFirstSurrogate = 0xD800;
constexpr char32_t kLastSurrogate = 0xDFFF;
constexpr char32_t kLastCodePoint = 0x10FFFF;

/// What a lead byte says: the length of its sequence, its own bits, the least value it may carry.
struct Lead {
  std::size_t length;
  std::uint8_t bits;
  char32_t least;
};

Lead ReadLead(unsigned char byte) {
  if (byte < 0x80) return {1, byte, 0};
  if ((byte & 0xE0U) == 0xC0) return {2, static_cast<std::uint8_t>(byte & 0x1FU), 0x80};
  if ((byte & 0xF0U) == 0xE0) return {3, static_cast<std::uint8_t>(byte & 0x0FU), 0x800};
  if ((byte & 0xF8U) == 0xF0) return {4, static_cast<std::uint8_t>(byte & 0x07U), 0x10000};
  return {0, 0, 0};
}

bool IsCodePoint(char32_t value) {
  return value <= kLastCodePoint && (value < kFirstSurrogate || value > kLastSurrogate);
}

}  // namespace

Character FirstCharacter(std::string_view text) {
  const Character invalid{text.substr(0, 1), 0, false};
  const Lead lead = ReadLead(static_cast<unsigned char>(text.front()));
  if (lead.length == 0 || text.size() < lead.length) return invalid;
  char32_t value = lead.bits;
  for (std::size_t i = 1; i < lead.length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80) return invalid;
    value = (value << 6U) | (byte & 0x3FU);
  }
  if (value < lead.least || !IsCodePoint(value)) return invalid;
  return {text.substr(0, lead.length), value, true};
}

std::vector<std::string_view> SplitCharacters(std::string_view text) {
  std::vector<std::string_view> characters;
  characters.reserve(text.size());
  while (!text.empty()) {
    characters.push_back(FirstCharacter(text).bytes);
    text.remove_prefix(characters.back().size());
  }
  return characters;
}

char32_t UpperCase(char32_t codePoint) {
  for (const CaseRange& range : kCaseRanges) {
    if (codePoint < range.first || codePoint > range.last) continue;
    if ((codePoint - range.first) % range.step != 0) continue;
    return static_cast<char32_t>(static_cast<std::int32_t>(codePoint) + range.distance);
  }
  return codePoint;
}

std::string EncodeUtf8(char32_t codePoint) {
  const auto byte = [](char32_t value) { return static_cast<char>(value); };
  const auto tail = [&](unsigned shift) { return byte(0x80U | ((codePoint >> shift) & 0x3FU)); };
  if (codePoint < 0x80) return {byte(codePoint)};
  if (codePoint < 0x800) return {byte(0xC0U | (codePoint >> 6U)), tail(0)};
  if (codePoint < 0x10000) return {byte(0xE0U | (codePoint >> 12U)), tail(6), tail(0)};
  return {byte(0xF0U | (codePoint >> 18U)), tail(12), tail(6), tail(0)};
}

}  // namespace korvale
