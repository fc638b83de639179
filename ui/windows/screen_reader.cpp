#include "ui/windows/screen_reader.h"

// After windows.h, which they need; the first makes the others define their identifiers.
#include <initguid.h>
#include <objbase.h>
#include <oleacc.h>

#include <array>
#include <memory>

#include "platform/windows/text.h"

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

void TellName(HWND window, const std::string& name) {
  const auto services = PropServices();
  if (services == nullptr) return;
  services->SetHwndPropStr(window, kClient, CHILDID_SELF, PROPID_ACC_NAME, ToUtf16(name).c_str());
}

void ForgetRole(HWND window) {
  const auto services = PropServices();
  if (services == nullptr) return;
  const std::array given = {PROPID_ACC_ROLE, PROPID_ACC_NAME};
  services->ClearHwndProps(window, kClient, CHILDID_SELF, given.data(),
                           static_cast<int>(given.size()));
}

void AnnounceAlert(HWND window) {
  NotifyWinEvent(EVENT_SYSTEM_ALERT, window, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace korvale
