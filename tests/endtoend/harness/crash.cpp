#include "tests/endtoend/harness/crash.h"

// After windows.h, which it needs.
#include <psapi.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "tests/endtoend/harness/process.h"

namespace korvale::endtoend {
namespace {

constexpr ULONGLONG kNoPlaceInMemory = 8;

/// The program file of another process, as it is laid out in that process's memory.
class LoadedProgram {
 public:
  explicit LoadedProgram(DWORD process)
      : process_(OpenProcess(
            PROCESS_QUERY_INFORMATION | PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE,
            FALSE, process)) {
    HMODULE first = nullptr;
    DWORD size = 0;
    if (K32EnumProcessModules(process_.get(), &first, sizeof(first), &size) != FALSE) {
      base_ = reinterpret_cast<std::uintptr_t>(first);
    }
  }

  /// Redirects calls of that imported function to `target`; false when the program imports none.
  bool Redirect(std::string_view function, ULONGLONG target) const {
    const DWORD slot = FindSlot(function);
    return slot != 0 && Write(slot, target);
  }

 private:
  template <typename T>
  T Read(ULONGLONG offset) const {
    T value{};
    ReadProcessMemory(process_.get(), reinterpret_cast<LPCVOID>(base_ + offset), &value, sizeof(T),
                      nullptr);
    return value;
  }

  bool Write(DWORD offset, ULONGLONG value) const {
    auto* const place = reinterpret_cast<LPVOID>(base_ + offset);
    DWORD before = 0;
    return VirtualProtectEx(process_.get(), place, sizeof(value), PAGE_READWRITE, &before) !=
               FALSE &&
           WriteProcessMemory(process_.get(), place, &value, sizeof(value), nullptr) != FALSE;
  }

  /// Where the address of the imported function lies; 0 = nowhere.
  DWORD FindSlot(std::string_view function) const {
    const auto dos = Read<IMAGE_DOS_HEADER>(0);
    const auto headers = Read<IMAGE_NT_HEADERS64>(static_cast<ULONGLONG>(dos.e_lfanew));
    DWORD at = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (; at != 0; at += sizeof(IMAGE_IMPORT_DESCRIPTOR)) {
      const auto library = Read<IMAGE_IMPORT_DESCRIPTOR>(at);
      if (library.FirstThunk == 0) break;
      for (DWORD entry = 0;; entry += sizeof(IMAGE_THUNK_DATA64)) {
        const auto name = Read<IMAGE_THUNK_DATA64>(library.OriginalFirstThunk + entry);
        if (name.u1.AddressOfData == 0) break;
        if (IsNamed(name, function)) return library.FirstThunk + entry;
      }
    }
    return 0;
  }

  bool IsNamed(const IMAGE_THUNK_DATA64& import, std::string_view function) const {
    if (IMAGE_SNAP_BY_ORDINAL64(import.u1.Ordinal)) return false;
    const auto name =
        Read<std::array<char, 64>>(import.u1.AddressOfData + offsetof(IMAGE_IMPORT_BY_NAME, Name));
    return std::string_view(name.data(), static_cast<std::size_t>(std::ranges::find(name, '\0') -
                                                                  name.begin())) == function;
  }

  Handle process_;
  std::uintptr_t base_ = 0;
};

}  // namespace

bool CrashInSecondThread(Window window) {
  const Handle process(OpenProcess(PROCESS_CREATE_THREAD | PROCESS_QUERY_INFORMATION |
                                       PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE,
                                   FALSE, window.ProcessId()));
  const auto start = reinterpret_cast<LPTHREAD_START_ROUTINE>(kNoPlaceInMemory);
  const Handle thread(CreateRemoteThread(process.get(), nullptr, 0, start, nullptr, 0, nullptr));
  return thread.get() != nullptr;
}

bool CrashInWindowProcedure(Window window) {
  return LoadedProgram(window.ProcessId()).Redirect("CallWindowProcA", kNoPlaceInMemory) &&
         PostMessageW(window.handle(), WM_NULL, 0, 0) != 0;
}

bool Crash(Window window) {
  // Called once for each message, and only by the loop. If the loop keeps an address for all its
  // rounds, as it may that of GetMessageW, it would not notice that the call was redirected.
  return LoadedProgram(window.ProcessId()).Redirect("TranslateMessage", kNoPlaceInMemory) &&
         PostMessageW(window.handle(), WM_NULL, 0, 0) != 0;
}

}  // namespace korvale::endtoend
