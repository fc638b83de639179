#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <shobjidl.h>

#include <functional>
#include <optional>
#include <utility>

#include "platform/virtual_desktops.h"
#include "platform/windows/com.h"
#include "platform/windows/handles.h"

namespace korvale {

/// The virtual desktops through the shell's manager, which is made when it is first needed.
/// Explorer answers, which may be ending or just starting.
class WindowsVirtualDesktops final : public VirtualDesktops {
 public:
  /// `beforeWaiting` is called before messages may be handled while Explorer is waited for.
  explicit WindowsVirtualDesktops(std::function<void()> beforeWaiting)
      : beforeWaiting_(std::move(beforeWaiting)) {}

  std::optional<bool> IsWindowOnCurrentVirtualDesktop(WindowHandle hwnd) override;
  std::optional<VirtualDesktopId> GetWindowDesktopId(WindowHandle hwnd) override;
  bool MoveWindowToDesktop(WindowHandle hwnd, const VirtualDesktopId& desktop) override;

 private:
  bool HasManager();
  /// The result of a call of the manager; one that has lost Explorer is made anew and asked once
  /// more.
  template <typename Call>
  HRESULT Ask(Call call);

  std::function<void()> beforeWaiting_;
  Com com_;
  UniqueHandle<IVirtualDesktopManager*> manager_;
};

}  // namespace korvale
