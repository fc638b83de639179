#include "platform/windows/system_library.h"

namespace korvale {

SystemLibrary::SystemLibrary(const wchar_t* fileName)
    : module_(LoadLibraryExW(fileName, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}

SystemLibrary::AnyFunction SystemLibrary::Address(const char* name) const {
  if (!module_) return nullptr;
  return reinterpret_cast<AnyFunction>(GetProcAddress(module_.Get(), name));
}

}  // namespace korvale
