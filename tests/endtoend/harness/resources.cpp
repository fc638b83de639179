#include "tests/endtoend/harness/resources.h"

// After windows.h, which they need.
#include <psapi.h>
#include <tlhelp32.h>
#include <winternl.h>

#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <vector>

#include "tests/endtoend/harness/process.h"

namespace korvale::endtoend {
namespace {

constexpr ULONG kSystemExtendedHandles = 64;
constexpr size_t kGdiTableInPeb = 0xF8;
constexpr size_t kGdiEntries = 0x10000;
constexpr int kUserHandles = 0x8000;

/// As the table of all handles holds them.
struct HandleEntry {
  void* object;
  ULONG_PTR process;
  ULONG_PTR handle;
  ULONG access;
  USHORT creator;
  USHORT type;
  ULONG attributes;
  ULONG reserved;
};

/// As the process's table of GDI objects holds them; type 0 is a free place.
struct GdiEntry {
  std::uint64_t object;
  std::uint32_t owner;
  std::uint16_t unique;
  std::uint8_t type;
  std::uint8_t flags;
  std::uint64_t data;
};

template <typename Function>
Function* FromNtdll(const char* name) {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
}

Handle Open(DWORD process) {
  Handle handle(OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process));
  if (handle.get() == nullptr) throw std::runtime_error("the process cannot be read");
  return handle;
}

void Read(HANDLE process, const void* from, void* to, size_t size) {
  SIZE_T read = 0;
  if (ReadProcessMemory(process, from, to, size, &read) == 0 || read != size) {
    throw std::runtime_error("the memory of the process cannot be read");
  }
}

int GdiTableCount(HANDLE process) {
  PROCESS_BASIC_INFORMATION basic{};
  FromNtdll<decltype(NtQueryInformationProcess)>("NtQueryInformationProcess")(
      process, ProcessBasicInformation, &basic, sizeof(basic), nullptr);
  const void* table = nullptr;
  Read(process, reinterpret_cast<const char*>(basic.PebBaseAddress) + kGdiTableInPeb,
       static_cast<void*>(&table), sizeof(table));
  std::vector<GdiEntry> entries(kGdiEntries);
  Read(process, table, entries.data(), entries.size() * sizeof(GdiEntry));
  return static_cast<int>(
      std::erase_if(entries, [](const GdiEntry& entry) { return entry.type != 0; }));
}

int KernelHandles(DWORD process, HANDLE handle) {
  DWORD count = 0;
  if (GetProcessHandleCount(handle, &count) != 0 && count != 0) return static_cast<int>(count);
  std::vector<ULONG_PTR> table(1 << 19);
  using Query = NTSTATUS WINAPI(ULONG, void*, ULONG, ULONG*);
  auto* const query = FromNtdll<Query>("NtQuerySystemInformation");
  if (query(kSystemExtendedHandles, table.data(),
            static_cast<ULONG>(table.size() * sizeof(ULONG_PTR)), nullptr) != 0) {
    throw std::runtime_error("the handles of the system cannot be read");
  }
  std::vector<HandleEntry> entries(table[0]);
  std::memcpy(entries.data(), &table[2], entries.size() * sizeof(HandleEntry));
  return static_cast<int>(
      std::erase_if(entries, [&](const HandleEntry& entry) { return entry.process == process; }));
}

/// What is left of the desktop's handles once all that are free have been taken.
int UserHandlesInUse() {
  std::vector<HMENU> free;
  while (const HMENU menu = CreateMenu()) free.push_back(menu);
  for (const HMENU menu : free) DestroyMenu(menu);
  return kUserHandles - static_cast<int>(free.size());
}

int UserObjects(HANDLE process) {
  const DWORD count = GetGuiResources(process, GR_USEROBJECTS);
  return count != 0 ? static_cast<int>(count) : UserHandlesInUse();
}

int GdiObjects(HANDLE process) {
  const DWORD count = GetGuiResources(process, GR_GDIOBJECTS);
  return count != 0 ? static_cast<int>(count) : GdiTableCount(process);
}

int Threads(DWORD process) {
  const Handle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
  THREADENTRY32 thread{};
  thread.dwSize = sizeof(thread);
  int count = 0;
  for (BOOL more = Thread32First(snapshot.get(), &thread); more != 0;
       more = Thread32Next(snapshot.get(), &thread)) {
    count += thread.th32OwnerProcessID == process ? 1 : 0;
  }
  return count;
}

int Kilobytes(HANDLE process) {
  PROCESS_MEMORY_COUNTERS counters{};
  K32GetProcessMemoryInfo(process, &counters, sizeof(counters));
  return static_cast<int>(counters.PagefileUsage / 1024);
}

}  // namespace

Resources ResourcesOf(DWORD process) {
  const Handle handle = Open(process);
  return {.userObjects = UserObjects(handle.get()),
          .gdiObjects = GdiObjects(handle.get()),
          .kernelHandles = KernelHandles(process, handle.get()),
          .threads = Threads(process),
          .kilobytes = Kilobytes(handle.get())};
}

int GdiObjectsOf(DWORD process) { return GdiObjects(Open(process).get()); }

std::string Describe(const Resources& resources) {
  return "user " + std::to_string(resources.userObjects) + ", GDI " +
         std::to_string(resources.gdiObjects) + ", kernel " +
         std::to_string(resources.kernelHandles) + ", threads " +
         std::to_string(resources.threads) + ", memory " + std::to_string(resources.kilobytes) +
         " KB";
}

}  // namespace korvale::endtoend
