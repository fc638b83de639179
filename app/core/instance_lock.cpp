#include "app/core/instance_lock.h"

#include <cstddef>
#include <string_view>

#include "util/text.h"

namespace korvale {
namespace {

/// FNV-1a. Folder names hold characters that object names must not, and may be longer.
std::uint64_t Hash(std::string_view text) {
  constexpr std::uint64_t kOffset = 0xcbf29ce484222325;
  constexpr std::uint64_t kPrime = 0x100000001b3;
  std::uint64_t hash = kOffset;
  for (const char byte : text) {
    hash ^= static_cast<unsigned char>(byte);
    hash *= kPrime;
  }
  return hash;
}

std::string HexText(std::uint64_t value) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text(16, '0');
  for (std::size_t i = text.size(); i-- > 0; value >>= 4) text[i] = kDigits[value & 0xf];
  return text;
}

}  // namespace

std::string InstanceLockName(const std::string& programFolder) {
  std::string folder = UpperCase(programFolder);
  while (folder.ends_with('\\')) folder.pop_back();
  return "Local\\Korvale." + HexText(Hash(folder));
}

InstanceLock::InstanceLock(SystemApi& system, const std::string& programFolder)
    : mutex_(system.CreateMutexA(InstanceLockName(programFolder))) {}

bool InstanceLock::TryHold(std::uint32_t ms) {
  if (!held_) held_ = mutex_ == nullptr || mutex_->WaitForSingleObject(ms);
  return held_;
}

}  // namespace korvale
