#include "tests/endtoend/harness/lent_memory.h"

namespace korvale::endtoend {

LentMemory::LentMemory(DWORD process, SIZE_T size)
    : process_(
          OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, process)),
      address_(static_cast<std::byte*>(VirtualAllocEx(process_.get(), nullptr, size,
                                                      MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE))) {}

LentMemory::~LentMemory() { VirtualFreeEx(process_.get(), address_, 0, MEM_RELEASE); }

void LentMemory::Write(const void* data, SIZE_T size) const {
  WriteProcessMemory(process_.get(), address_, data, size, nullptr);
}

void LentMemory::Read(SIZE_T offset, void* data, SIZE_T size) const {
  ReadProcessMemory(process_.get(), address_ + offset, data, size, nullptr);
}

}  // namespace korvale::endtoend
