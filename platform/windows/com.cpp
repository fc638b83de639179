#include "platform/windows/com.h"

namespace korvale {

Com::~Com() {
  if (!started_) return;
  auto* const end = ole_.Find<decltype(::CoUninitialize)>("CoUninitialize");
  if (end != nullptr) end();
}

void Com::Start() {
  if (asked_) return;
  asked_ = true;
  auto* const start = ole_.Find<decltype(::CoInitializeEx)>("CoInitializeEx");
  started_ = start != nullptr && SUCCEEDED(start(nullptr, COINIT_APARTMENTTHREADED));
}

void* Com::CreateAny(const CLSID& objectClass, const IID& interfaceId) {
  Start();
  auto* const create = ole_.Find<decltype(::CoCreateInstance)>("CoCreateInstance");
  void* made = nullptr;
  if (create == nullptr ||
      FAILED(create(objectClass, nullptr, CLSCTX_INPROC_SERVER, interfaceId, &made))) {
    return nullptr;
  }
  return made;
}

}  // namespace korvale
