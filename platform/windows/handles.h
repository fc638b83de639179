#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <unknwn.h>

#include <utility>

#include "platform/types.h"

namespace korvale {

inline HWND ToHwnd(WindowHandle hwnd) { return static_cast<HWND>(LongToHandle(hwnd)); }
inline WindowHandle ToWindowHandle(HWND hwnd) { return HandleToLong(hwnd); }

/// How to close each kind of object.
struct Closer {
  void operator()(HKEY key) const { RegCloseKey(key); }
  void operator()(HANDLE handle) const { CloseHandle(handle); }
  void operator()(IUnknown* object) const { object->Release(); }
  void operator()(HBRUSH brush) const { DeleteObject(brush); }
  void operator()(HFONT font) const { DeleteObject(font); }
  void operator()(HICON icon) const { DestroyIcon(icon); }
  void operator()(HMENU menu) const { DestroyMenu(menu); }
  void operator()(HWND window) const { DestroyWindow(window); }
  void operator()(HHOOK hook) const { UnhookWindowsHookEx(hook); }
};

/// Owns one Windows object and closes it when destroyed.
template <typename Handle>
class UniqueHandle {
 public:
  UniqueHandle() = default;
  explicit UniqueHandle(Handle handle) : handle_(handle) {}
  ~UniqueHandle() { Reset(); }
  UniqueHandle(const UniqueHandle&) = delete;
  UniqueHandle& operator=(const UniqueHandle&) = delete;
  UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.Release()) {}
  UniqueHandle& operator=(UniqueHandle&& other) noexcept {
    Reset(other.Release());
    return *this;
  }

  Handle Get() const { return handle_; }
  explicit operator bool() const { return handle_ != Handle{}; }
  /// Hands the object over without closing it.
  Handle Release() { return std::exchange(handle_, Handle{}); }
  void Reset(Handle handle = Handle{}) {
    const Handle old = std::exchange(handle_, handle);
    if (old != Handle{}) Closer()(old);
  }
  /// For calls that return a new object through a pointer.
  Handle* Receive() {
    Reset();
    return &handle_;
  }

 private:
  Handle handle_{};
};

using UniqueKey = UniqueHandle<HKEY>;
using UniqueKernelHandle = UniqueHandle<HANDLE>;
using UniqueBrush = UniqueHandle<HBRUSH>;
using UniqueFont = UniqueHandle<HFONT>;
using UniqueIcon = UniqueHandle<HICON>;
using UniqueMenu = UniqueHandle<HMENU>;
using UniqueWindow = UniqueHandle<HWND>;
using UniqueHook = UniqueHandle<HHOOK>;

}  // namespace korvale
