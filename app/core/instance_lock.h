#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "app/core/folder_identity.h"
#include "platform/system_api.h"

namespace korvale {

/// Names of the system objects that the copies of one installation share, one for its path and one
/// for its number: copies in the same folder have at least one in common.
std::vector<std::string> InstanceLockNames(const FolderIdentity& folder);

/// Lets the copies of an installation start one at a time, so that when two start in the same
/// instant the second finds the window of the first. Released when destroyed.
class InstanceLock {
 public:
  InstanceLock(SystemApi& system, const FolderIdentity& folder);

  /// Waits up to `ms` milliseconds for the lock; true when it is held now. Also true when the
  /// system refuses to make the object: searching for the other window is then all that can be
  /// done.
  bool TryHold(std::uint32_t ms);

 private:
  /// The mutexes that are not held yet, and those that are.
  std::vector<std::unique_ptr<SystemMutex>> wanted_;
  std::vector<std::unique_ptr<SystemMutex>> held_;
};

}  // namespace korvale
