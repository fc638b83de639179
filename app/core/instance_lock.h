#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/system_api.h"

namespace korvale {

/// Name of the system object that copies of one installation share: the same for every spelling of
/// the folder that differs in case or closing backslashes only.
std::string InstanceLockName(const std::string& programFolder);

/// Lets one copy of an installation at a time through its start-up, so that of two that start in
/// the same instant the second finds the first one's window. Let go when destroyed.
class InstanceLock {
 public:
  InstanceLock(SystemApi& system, const std::string& programFolder);

  /// Waits up to `ms` milliseconds to hold the lock; true when it is held, from now on or already.
  /// Also true when the system gives no such object: the search for the other window is then all
  /// that can be done.
  bool TryHold(std::uint32_t ms);

 private:
  std::unique_ptr<SystemMutex> mutex_;
  bool held_ = false;
};

}  // namespace korvale
