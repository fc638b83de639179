#pragma once

#include <windows.h>

namespace korvale::bench {

/// Longer titles and class names are cut.
constexpr int kLongestText = 512;

/// What a search over the desktop must read of a window at least.
struct BareWindow {
  HWND handle;
  const wchar_t* title;
  const wchar_t* className;
  HWND child;
};

/// The cheapest search over the desktop: one EnumWindows that reads title, class and first child of
/// each visible window and hands them to `visit`, which must not throw.
template <typename Visit>
void BareLoop(const Visit& visit) {
  const WNDENUMPROC read = [](HWND window, LPARAM context) -> BOOL {
    // Tells as much of a top-level window as IsWindowVisible, which under Wine costs more.
    if ((GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) == 0) return TRUE;
    wchar_t title[kLongestText];
    wchar_t className[kLongestText];
    title[0] = className[0] = L'\0';
    GetWindowTextW(window, title, kLongestText);
    GetClassNameW(window, className, kLongestText);
    (*reinterpret_cast<const Visit*>(context))(
        BareWindow{window, title, className, GetWindow(window, GW_CHILD)});
    return TRUE;
  };
  EnumWindows(read, reinterpret_cast<LPARAM>(&visit));
}

}  // namespace korvale::bench
