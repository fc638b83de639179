#include "app/core/instance_lock.h"

#include <string_view>
#include <utility>

#include "util/text.h"

namespace korvale {
namespace {

/// FNV-1a: folder names may be too long for object names and hold characters forbidden there.
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

std::string LockName(std::string_view text) {
  return "Local\\Korvale." + PadText(HexadecimalText(Hash(text)), 16, "LEFT_ZEROES");
}

}  // namespace

std::vector<std::string> InstanceLockNames(const FolderIdentity& folder) {
  std::vector<std::string> names = {LockName(UpperCase(folder.path))};
  if (!folder.fileId.empty()) names.push_back(LockName(folder.fileId));
  return names;
}

InstanceLock::InstanceLock(SystemApi& system, const FolderIdentity& folder) {
  for (const std::string& name : InstanceLockNames(folder)) {
    auto mutex = system.CreateMutexA(name);
    // Refused also when a copy that runs as administrator has made it.
    if (mutex == nullptr) mutex = system.OpenMutexA(name);
    if (mutex != nullptr) wanted_.push_back(std::move(mutex));
  }
}

bool InstanceLock::TryHold(std::uint32_t ms) {
  while (!wanted_.empty() && wanted_.front()->WaitForSingleObject(ms)) {
    held_.push_back(std::move(wanted_.front()));
    wanted_.erase(wanted_.begin());
  }
  return wanted_.empty();
}

}  // namespace korvale
