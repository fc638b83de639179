#include <windows.h>
// After windows.h, which it needs; makes the headers that follow define their identifiers.
#include <initguid.h>

#include <array>

#include "platform/windows/text.h"
#include "ui/windows/screen_reader.h"

namespace korvale {
namespace {

constexpr auto kClient = static_cast<DWORD>(OBJID_CLIENT);

}  // namespace

UniqueHandle<IAccPropServices*> ScreenReader::Services() {
  return UniqueHandle(com_.Create<IAccPropServices>(CLSID_AccPropServices, IID_IAccPropServices));
}

void ScreenReader::TellRole(HWND window, FormRole role) {
  SetRole(window, role == FormRole::kAlert ? ROLE_SYSTEM_ALERT : ROLE_SYSTEM_DIALOG);
}

void ScreenReader::TellPage(HWND window) { SetRole(window, ROLE_SYSTEM_PROPERTYPAGE); }

void ScreenReader::SetRole(HWND window, LONG role) {
  const auto services = Services();
  if (!services) return;
  VARIANT value{};
  value.vt = VT_I4;
  value.lVal = role;
  services.Get()->SetHwndProp(window, kClient, CHILDID_SELF, PROPID_ACC_ROLE, value);
}

void ScreenReader::TellName(HWND window, const std::string& name) {
  const auto services = Services();
  if (!services) return;
  services.Get()->SetHwndPropStr(window, kClient, CHILDID_SELF, PROPID_ACC_NAME,
                                 ToUtf16(name).c_str());
}

void ScreenReader::Forget(HWND window) {
  const auto services = Services();
  if (!services) return;
  const std::array given = {PROPID_ACC_ROLE, PROPID_ACC_NAME};
  services.Get()->ClearHwndProps(window, kClient, CHILDID_SELF, given.data(),
                                 static_cast<int>(given.size()));
}

void AnnounceAlert(HWND window) {
  NotifyWinEvent(EVENT_SYSTEM_ALERT, window, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace korvale
