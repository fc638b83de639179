#include "platform/version_resource.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>

namespace korvale {
namespace {

using Bytes = std::span<const std::byte>;

constexpr std::size_t kHeaderSize = 6;
constexpr std::uint32_t kFixedSignature = 0xFEEF04BD;
constexpr std::size_t kFixedSize = 52;

/// The word at that place, 0 behind the end.
std::uint16_t Word(Bytes bytes, std::size_t at) {
  if (bytes.size() < 2 || at > bytes.size() - 2) return 0;
  return static_cast<std::uint16_t>(std::to_integer<unsigned>(bytes[at]) |
                                    std::to_integer<unsigned>(bytes[at + 1]) << 8U);
}

Bytes From(Bytes bytes, std::size_t at) { return bytes.subspan(std::min(at, bytes.size())); }

constexpr std::size_t Aligned(std::size_t offset) { return (offset + 3) / 4 * 4; }

/// UTF-16 up to the first NUL, or to the end.
std::u16string Text(Bytes bytes) {
  std::u16string text;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const std::uint16_t unit = Word(bytes, at);
    if (unit == 0) break;
    text += static_cast<char16_t>(unit);
  }
  return text;
}

std::u16string Lower(std::u16string text) {
  for (char16_t& unit : text) {
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit + (u'a' - u'A'));
  }
  return text;
}

/// Such a resource is a tree of blocks, each with a name, a value and further blocks.
struct Block {
  std::size_t length = 0;
  std::u16string name;
  Bytes value;
  Bytes inside;
};

/// The block at the beginning; nothing when it does not fit.
std::optional<Block> FirstBlock(Bytes bytes) {
  Block block;
  block.length = Word(bytes, 0);
  if (block.length < kHeaderSize || block.length > bytes.size()) return std::nullopt;
  const Bytes whole = bytes.first(block.length);
  block.name = Text(From(whole, kHeaderSize));
  const bool isText = Word(whole, 4) == 1;
  const std::size_t valueSize = std::size_t{Word(whole, 2)} * (isText ? 2 : 1);
  const std::size_t valueAt = Aligned(kHeaderSize + 2 * (block.name.size() + 1));
  const Bytes rest = From(whole, valueAt);
  block.value = rest.first(std::min(valueSize, rest.size()));
  block.inside = From(whole, Aligned(valueAt + valueSize));
  return block;
}

/// The block of that name among these; one without name and value when there is none.
Block Find(Bytes blocks, std::u16string_view name) {
  while (const std::optional<Block> block = FirstBlock(blocks)) {
    if (Lower(block->name) == name) return *block;
    blocks = From(blocks, Aligned(block->length));
  }
  return {};
}

std::u16string Hexadecimal(std::uint16_t word) {
  std::u16string text;
  for (unsigned shift = 16; shift > 0; shift -= 4) {
    text += u"0123456789abcdef"[word >> (shift - 4) & 0xFU];
  }
  return text;
}

/// The strings of the first language.
Bytes Strings(Bytes blocks) {
  const Bytes language = Find(Find(blocks, u"varfileinfo").inside, u"translation").value;
  const std::u16string table = Hexadecimal(Word(language, 0)) + Hexadecimal(Word(language, 2));
  return Find(Find(blocks, u"stringfileinfo").inside, table).inside;
}

}  // namespace

VersionResource ReadVersionResource(std::span<const std::byte> resource) {
  VersionResource read;
  const std::optional<Block> root = FirstBlock(resource);
  if (!root) return read;
  const Bytes fixed = root->value;
  if (fixed.size() >= kFixedSize && Word(fixed, 0) == (kFixedSignature & 0xFFFFU) &&
      Word(fixed, 2) == kFixedSignature >> 16U) {
    read.minor = Word(fixed, 8);
    read.major = Word(fixed, 10);
    read.revision = Word(fixed, 14);
  }
  const Bytes strings = Strings(root->inside);
  read.legalCopyright = Text(Find(strings, u"legalcopyright").value);
  read.fileDescription = Text(Find(strings, u"filedescription").value);
  return read;
}

}  // namespace korvale
