#include "tests/endtoend/harness/lent_memory.h"

#include <stdexcept>

namespace korvale::endtoend {

LentMemory::LentMemory(DWORD process, SIZE_T size)
    : process_(
          OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, process)),
      address_(static_cast<std::byte*>(VirtualAllocEx(process_.get(), nullptr, size,
                                                      MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE))) {
  if (address_ == nullptr) throw std::runtime_error("the other program lends no memory");
}

LentMemory::~LentMemory() { VirtualFreeEx(process_.get(), address_, 0, MEM_RELEASE); }

void LentMemory::Write(const void* data, SIZE_T size) const {
  if (WriteProcessMemory(process_.get(), address_, data, size, nullptr) == FALSE) {
    throw std::runtime_error("nothing can be written there");
  }
}

void LentMemory::Read(SIZE_T offset, void* data, SIZE_T size) const {
  if (ReadProcessMemory(process_.get(), address_ + offset, data, size, nullptr) == FALSE) {
    throw std::runtime_error("nothing can be read there");
  }
}

}  // namespace korvale::endtoend
