#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "app/core/folder_identity.h"
#include "platform/system_api.h"

namespace korvale {

/// Names of the system objects that copies of one installation share, for its path and its number:
/// what is the same folder has one of them in common.
std::vector<std::string> InstanceLockNames(const FolderIdentity& folder);

/// Lets one copy of an installation at a time through its start-up, so that of two that start in
/// the same instant the second finds the first one's window. Let go when destroyed.
class InstanceLock {
 public:
  InstanceLock(SystemApi& system, const FolderIdentity& folder);

  /// Waits up to `ms` milliseconds to hold the lock; true when it is held, from now on or already.
  /// Also true when the system gives no such object: the search for the other window is then all
  /// that can be done.
  bool TryHold(std::uint32_t ms);

 private:
  /// Those that are not held yet, and those that are.
  std::vector<std::unique_ptr<SystemMutex>> wanted_;
  std::vector<std::unique_ptr<SystemMutex>> held_;
};

}  // namespace korvale
