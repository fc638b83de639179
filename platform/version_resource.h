#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace korvale {

/// What a version resource (VS_VERSIONINFO) says. Texts are UTF-16, in the first language of the
/// resource.
struct VersionResource {
  int major = 0;
  int minor = 0;
  int revision = 0;
  std::u16string legalCopyright;
  std::u16string fileDescription;
};

/// Reads the bytes of a version resource. What it lacks, and what lies behind a wrong length, stays
/// empty.
VersionResource ReadVersionResource(std::span<const std::byte> resource);

}  // namespace korvale
