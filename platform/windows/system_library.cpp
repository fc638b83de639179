#include "platform/windows/system_library.h"

namespace korvale {

SystemLibrary::AnyFunction SystemLibrary::Address(const char* name) {
  HMODULE library = library_;
  if (library == nullptr) {
    library = LoadLibraryExW(fileName_, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (library == nullptr) return nullptr;
    library_ = library;
  }
  return reinterpret_cast<AnyFunction>(GetProcAddress(library, name));
}

}  // namespace korvale
