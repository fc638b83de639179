#include "platform/windows/windows_virtual_desktops.h"

#include <algorithm>
#include <bit>
#include <iterator>

namespace korvale {
namespace {

constexpr GUID kManagerClass = {
    0xAA509086, 0x5CA9, 0x4C25, {0x8F, 0x95, 0x58, 0x9D, 0x3C, 0x07, 0xB4, 0x8A}};
constexpr GUID kManagerInterface = {
    0xA5CD92FF, 0x29BE, 0x454C, {0x8D, 0x04, 0xD8, 0x28, 0x79, 0xFB, 0x3F, 0x1B}};

/// Explorer, which the manager spoke to, has ended; a new one may have taken its place.
bool HasLostShell(HRESULT result) {
  constexpr HRESULT kLost[] = {RPC_E_DISCONNECTED,
                               RPC_E_SERVER_DIED,
                               RPC_E_SERVER_DIED_DNE,
                               RPC_E_CONNECTION_TERMINATED,
                               CO_E_OBJNOTCONNECTED,
                               CO_E_OBJNOTREG,
                               HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE),
                               HRESULT_FROM_WIN32(RPC_S_CALL_FAILED),
                               HRESULT_FROM_WIN32(RPC_S_CALL_FAILED_DNE)};
  return std::ranges::find(kLost, result) != std::end(kLost);
}

}  // namespace

bool WindowsVirtualDesktops::HasManager() {
  if (manager_) return true;
  manager_.Reset(com_.Create<IVirtualDesktopManager>(kManagerClass, kManagerInterface));
  return static_cast<bool>(manager_);
}

template <typename Call>
HRESULT WindowsVirtualDesktops::Ask(Call call) {
  HRESULT result = E_FAIL;
  beforeWaiting_();
  for (int i = 0; i < 2 && HasManager(); ++i) {
    result = call(*manager_.Get());
    if (!HasLostShell(result)) break;
    manager_.Reset();
  }
  return result;
}

std::optional<bool> WindowsVirtualDesktops::IsWindowOnCurrentVirtualDesktop(WindowHandle hwnd) {
  BOOL current = TRUE;
  const HRESULT result = Ask([&](IVirtualDesktopManager& manager) {
    return manager.IsWindowOnCurrentVirtualDesktop(ToHwnd(hwnd), &current);
  });
  if (result == TYPE_E_ELEMENTNOTFOUND) return true;
  if (FAILED(result)) return std::nullopt;
  return current != FALSE;
}

std::optional<VirtualDesktopId> WindowsVirtualDesktops::GetWindowDesktopId(WindowHandle hwnd) {
  GUID desktop = {};
  const HRESULT result = Ask([&](IVirtualDesktopManager& manager) {
    return manager.GetWindowDesktopId(ToHwnd(hwnd), &desktop);
  });
  if (result == TYPE_E_ELEMENTNOTFOUND) return kNoVirtualDesktop;
  if (FAILED(result)) return std::nullopt;
  return std::bit_cast<VirtualDesktopId>(desktop);
}

bool WindowsVirtualDesktops::MoveWindowToDesktop(WindowHandle hwnd,
                                                 const VirtualDesktopId& desktop) {
  return SUCCEEDED(Ask([&](IVirtualDesktopManager& manager) {
    return manager.MoveWindowToDesktop(ToHwnd(hwnd), std::bit_cast<GUID>(desktop));
  }));
}

}  // namespace korvale
