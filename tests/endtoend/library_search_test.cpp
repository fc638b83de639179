#include <windows.h>

#include <filesystem>
#include <string>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

/// Loads a library by its name alone in another process, as Windows does with its own ones.
bool Loads(DWORD process, const std::wstring& name) {
  const Handle handle(OpenProcess(PROCESS_ALL_ACCESS, FALSE, process));
  const size_t size = (name.size() + 1) * sizeof(wchar_t);
  void* const there =
      VirtualAllocEx(handle.get(), nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  WriteProcessMemory(handle.get(), there, name.c_str(), size, nullptr);
  // Every process has kernel32.dll at the same address.
  const auto load = reinterpret_cast<LPTHREAD_START_ROUTINE>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "LoadLibraryW")));
  const Handle thread(CreateRemoteThread(handle.get(), nullptr, 0, load, there, 0, nullptr));
  DWORD module = 0;
  WaitForSingleObject(thread.get(), static_cast<DWORD>(kPatience.count()));
  GetExitCodeThread(thread.get(), &module);
  return module != 0 && module != STILL_ACTIVE;
}

class LibrarySearch : public KorvaleTest {};

TEST_F(LibrarySearch, LeavesOutWhatLiesBesideTheProgram) {
  const std::wstring planted = Wide(installation_.folder() + "planted.dll");
  std::filesystem::copy_file(Wide(OwnFolder() + "planted.dll"), planted);
  Start();
  const DWORD process = korvale_->process().id();
  EXPECT_FALSE(Loads(process, L"planted.dll"));
  EXPECT_TRUE(Loads(process, L"msimg32.dll"));
  EXPECT_TRUE(Loads(process, planted));
}

}  // namespace
}  // namespace korvale::endtoend
