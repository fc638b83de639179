#pragma once

#include <windows.h>

#include <cstddef>

#include "tests/endtoend/harness/process.h"

namespace korvale::endtoend {

/// A piece of another program's own memory, for messages that name an address, until this goes.
class LentMemory {
 public:
  LentMemory(DWORD process, SIZE_T size);
  LentMemory(const LentMemory&) = delete;
  LentMemory& operator=(const LentMemory&) = delete;
  ~LentMemory();

  /// Where it lies in the other program.
  std::byte* Address() const { return address_; }
  void Write(const void* data, SIZE_T size) const;
  /// Reads what stands so many bytes behind its beginning.
  void Read(SIZE_T offset, void* data, SIZE_T size) const;

 private:
  Handle process_;
  std::byte* address_;
};

}  // namespace korvale::endtoend
