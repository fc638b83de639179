#pragma once

#include <windows.h>

#include <atomic>

namespace korvale {

/// One of Windows' own libraries, loaded when one of its functions is first asked for. It is looked
/// for in the system folder only, never beside the executable, where a download may lie next to
/// anything (LoadLibraryExW with LOAD_LIBRARY_SEARCH_SYSTEM32). It stays until the end of the
/// process, since some of them leave threads and hooks behind. Any thread may ask.
class SystemLibrary {
 public:
  explicit SystemLibrary(const wchar_t* fileName) : fileName_(fileName) {}

  /// The function of this name, as in Find<decltype(DwmGetWindowAttribute)>(...); null when this
  /// Windows lacks it or the library (GetProcAddress).
  template <typename Function>
  Function* Find(const char* name) {
    return reinterpret_cast<Function*>(Address(name));
  }

 private:
  // The type that compilers let a function pointer take on its way to its own.
  using AnyFunction = void (*)();

  AnyFunction Address(const char* name);

  const wchar_t* fileName_;
  std::atomic<HMODULE> library_ = nullptr;
};

}  // namespace korvale
