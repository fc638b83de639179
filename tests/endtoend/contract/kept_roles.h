#pragma once

#include <windows.h>
// After windows.h, which they need.
#include <objbase.h>
#include <oleacc.h>

#include <map>

namespace korvale {

/// Keeps the roles of windows in place of the system, for as long as this exists and for the
/// thread that it was made on.
class KeptRoles final : public IAccPropServices, public IClassFactory {
 public:
  KeptRoles() {
    CoRegisterClassObject(CLSID_AccPropServices, static_cast<IClassFactory*>(this),
                          CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &registered_);
  }
  ~KeptRoles() { CoRevokeClassObject(registered_); }
  KeptRoles(const KeptRoles&) = delete;
  KeptRoles& operator=(const KeptRoles&) = delete;

  /// 0 for a window without one.
  LONG RoleOf(HWND window) const {
    const auto found = roles_.find(window);
    return found == roles_.end() ? 0 : found->second;
  }

  HRESULT WINAPI QueryInterface(REFIID wanted, void** object) override {
    if (wanted == IID_IAccPropServices) {
      *object = static_cast<IAccPropServices*>(this);
    } else if (wanted == IID_IClassFactory || wanted == IID_IUnknown) {
      *object = static_cast<IClassFactory*>(this);
    } else {
      *object = nullptr;
      return E_NOINTERFACE;
    }
    return S_OK;
  }
  // It belongs to the test.
  ULONG WINAPI AddRef() override { return 2; }
  ULONG WINAPI Release() override { return 1; }

  HRESULT WINAPI CreateInstance(IUnknown*, REFIID wanted, void** object) override {
    return QueryInterface(wanted, object);
  }
  HRESULT WINAPI LockServer(BOOL) override { return S_OK; }

  HRESULT WINAPI SetHwndProp(HWND window, DWORD object, DWORD child, MSAAPROPID property,
                             VARIANT value) override {
    const bool role = property == PROPID_ACC_ROLE && value.vt == VT_I4;
    if (!role || !IsOfClient(object, child)) return E_INVALIDARG;
    roles_[window] = value.lVal;
    return S_OK;
  }
  HRESULT WINAPI SetHwndPropStr(HWND, DWORD, DWORD, MSAAPROPID, LPCWSTR) override { return S_OK; }
  HRESULT WINAPI ClearHwndProps(HWND window, DWORD object, DWORD child, const MSAAPROPID* cleared,
                                int count) override {
    if (!IsOfClient(object, child)) return E_INVALIDARG;
    for (int i = 0; i < count; ++i) {
      if (cleared[i] == PROPID_ACC_ROLE) roles_.erase(window);
    }
    return S_OK;
  }

  HRESULT WINAPI SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override { return kNot; }
  HRESULT WINAPI SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                               AnnoScope) override {
    return kNot;
  }
  HRESULT WINAPI ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override { return kNot; }
  HRESULT WINAPI SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                   AnnoScope) override {
    return kNot;
  }
  HRESULT WINAPI ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override {
    return kNot;
  }
  HRESULT WINAPI DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override {
    return kNot;
  }
  HRESULT WINAPI SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return kNot; }
  HRESULT WINAPI SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return kNot; }
  HRESULT WINAPI SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                    AnnoScope) override {
    return kNot;
  }
  HRESULT WINAPI ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override { return kNot; }
  HRESULT WINAPI ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override { return kNot; }
  HRESULT WINAPI DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override {
    return kNot;
  }

 private:
  static constexpr HRESULT kNot = E_NOTIMPL;

  static bool IsOfClient(DWORD object, DWORD child) {
    return object == static_cast<DWORD>(OBJID_CLIENT) && child == CHILDID_SELF;
  }

  DWORD registered_ = 0;
  std::map<HWND, LONG> roles_;
};

}  // namespace korvale
