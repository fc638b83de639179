#include "platform/windows/windows_virtual_desktops.h"

#include <bit>

namespace korvale {
namespace {

constexpr GUID kManagerClass = {
    0xAA509086, 0x5CA9, 0x4C25, {0x8F, 0x95, 0x58, 0x9D, 0x3C, 0x07, 0xB4, 0x8A}};
constexpr GUID kManagerInterface = {
    0xA5CD92FF, 0x29BE, 0x454C, {0x8D, 0x04, 0xD8, 0x28, 0x79, 0xFB, 0x3F, 0x1B}};

}  // namespace

bool WindowsVirtualDesktops::HasManager() {
  if (manager_) return true;
  void* made = nullptr;
  if (FAILED(CoCreateInstance(kManagerClass, nullptr, CLSCTX_INPROC_SERVER, kManagerInterface,
                              &made))) {
    return false;
  }
  manager_.Reset(static_cast<IVirtualDesktopManager*>(made));
  return true;
}

bool WindowsVirtualDesktops::Keep(HRESULT result) {
  // The usual answer for a window that is on no desktop of its own.
  if (FAILED(result) && result != TYPE_E_ELEMENTNOTFOUND) manager_.Reset();
  return SUCCEEDED(result);
}

bool WindowsVirtualDesktops::IsWindowOnCurrentVirtualDesktop(WindowHandle hwnd) {
  BOOL current = TRUE;
  const bool known =
      HasManager() && Keep(manager_.Get()->IsWindowOnCurrentVirtualDesktop(ToHwnd(hwnd), &current));
  return !known || current != FALSE;
}

std::optional<VirtualDesktopId> WindowsVirtualDesktops::GetWindowDesktopId(WindowHandle hwnd) {
  GUID desktop = {};
  if (!HasManager() || !Keep(manager_.Get()->GetWindowDesktopId(ToHwnd(hwnd), &desktop))) {
    return std::nullopt;
  }
  const auto id = std::bit_cast<VirtualDesktopId>(desktop);
  if (id == VirtualDesktopId{}) return std::nullopt;
  return id;
}

bool WindowsVirtualDesktops::MoveWindowToDesktop(WindowHandle hwnd,
                                                 const VirtualDesktopId& desktop) {
  return HasManager() &&
         Keep(manager_.Get()->MoveWindowToDesktop(ToHwnd(hwnd), std::bit_cast<GUID>(desktop)));
}

}  // namespace korvale
