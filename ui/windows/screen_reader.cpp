#include "ui/windows/screen_reader.h"

// After windows.h, which they need; the first makes the others define their identifiers.
#include <initguid.h>
#include <objbase.h>
#include <oleacc.h>

#include <memory>

namespace korvale {
namespace {

struct Releaser {
  void operator()(IUnknown* object) const { object->Release(); }
};

std::unique_ptr<IAccPropServices, Releaser> PropServices() {
  void* services = nullptr;
  if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                              IID_IAccPropServices, &services))) {
    return nullptr;
  }
  return std::unique_ptr<IAccPropServices, Releaser>(static_cast<IAccPropServices*>(services));
}

constexpr auto kClient = static_cast<DWORD>(OBJID_CLIENT);

}  // namespace

void TellRole(HWND window, FormRole role) {
  const auto services = PropServices();
  if (services == nullptr) return;
  VARIANT value{};
  value.vt = VT_I4;
  value.lVal = role == FormRole::kAlert ? ROLE_SYSTEM_ALERT : ROLE_SYSTEM_DIALOG;
  services->SetHwndProp(window, kClient, CHILDID_SELF, PROPID_ACC_ROLE, value);
}

void ForgetRole(HWND window) {
  const auto services = PropServices();
  if (services == nullptr) return;
  services->ClearHwndProps(window, kClient, CHILDID_SELF, &PROPID_ACC_ROLE, 1);
}

void AnnounceAlert(HWND window) {
  NotifyWinEvent(EVENT_SYSTEM_ALERT, window, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace korvale
