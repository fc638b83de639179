#include "platform/windows/system_library.h"

namespace korvale {

SystemLibrary::AnyFunction SystemLibrary::Address(const char* name) {
  if (!module_) module_.Reset(LoadLibraryExW(fileName_, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
  if (!module_) return nullptr;
  return reinterpret_cast<AnyFunction>(GetProcAddress(module_.Get(), name));
}

}  // namespace korvale
