#include "platform/version_resource.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "tests/fuzz/fuzz.h"

namespace korvale {
namespace {

void CheckText(const std::u16string& text, std::span<const std::byte> resource) {
  EXPECT_LE(2 * text.size(), resource.size());
  EXPECT_EQ(text.find(u'\0'), std::u16string::npos);
  // What is told stands in the resource.
  const std::span<const std::byte> bytes = std::as_bytes(std::span(text));
  if (!text.empty()) {
    EXPECT_TRUE(std::search(resource.begin(), resource.end(), bytes.begin(), bytes.end()) !=
                resource.end());
  }
}

void Check(std::span<const std::byte> resource) {
  const VersionResource read = ReadVersionResource(resource);
  CheckText(read.legalCopyright, resource);
  CheckText(read.fileDescription, resource);
  for (const int number : {read.major, read.minor, read.revision}) {
    EXPECT_TRUE(number >= 0 && number <= 65535) << number;
  }
}

}  // namespace

/// The bytes of a resource, which may also end too early.
void Fuzz(std::string_view input) {
  const std::span<const std::byte> resource = std::as_bytes(std::span(input));
  Check(resource);
  Check(resource.first(resource.size() / 2));
  Check(resource.first(resource.size() - resource.size() / 8));
}

}  // namespace korvale
