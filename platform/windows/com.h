#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <objbase.h>

#include "platform/windows/system_library.h"

namespace korvale {

/// COM, as the shell wants it, on the thread that uses it (ole32). It is started when it is first
/// needed and stays until this object is gone.
class Com {
 public:
  Com() = default;
  ~Com();
  Com(const Com&) = delete;
  Com& operator=(const Com&) = delete;

  /// CoInitializeEx with COINIT_APARTMENTTHREADED; does nothing when that has been done.
  void Start();
  /// A new object inside this process, with one reference; null on failure (CoCreateInstance).
  template <typename Interface>
  Interface* Create(const CLSID& objectClass, const IID& interfaceId) {
    return static_cast<Interface*>(CreateAny(objectClass, interfaceId));
  }

 private:
  void* CreateAny(const CLSID& objectClass, const IID& interfaceId);

  SystemLibrary ole_{L"ole32.dll"};
  bool asked_ = false;
  bool started_ = false;
};

}  // namespace korvale
