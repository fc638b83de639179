#pragma once

#include <windows.h>

#include <string>
#include <thread>

#include "tests/endtoend/harness/process.h"

namespace korvale::bench {

/// Resident memory of a running program, in bytes.
double ResidentMemory(const endtoend::Process& process);

/// How long the threads of a running program have run so far, in ms: under Wine as exact as Linux
/// counts it, elsewhere in ticks of the system. `program` is the path that it was started by.
double ProcessorTime(const endtoend::Process& process, const std::string& program);

/// Counts the changes below a key of HKEY_CURRENT_USER. What changes before the last change has
/// been counted goes into the same number, so a few writes in a row may count as one; none is none.
class ChangeCounter {
 public:
  /// "" = nothing to count. Throws std::runtime_error when the key cannot be watched; what changes
  /// from here on counts.
  explicit ChangeCounter(const std::string& path);
  ChangeCounter(const ChangeCounter&) = delete;
  ChangeCounter& operator=(const ChangeCounter&) = delete;
  ~ChangeCounter();

  /// Ends the counting. Throws std::runtime_error when it broke off.
  int Count();

 private:
  bool Arm() const;
  void Watch();
  void Stop();

  HKEY key_ = nullptr;
  endtoend::Handle changed_;
  endtoend::Handle end_;
  int count_ = 0;
  bool watched_ = true;
  std::thread thread_;
};

}  // namespace korvale::bench
