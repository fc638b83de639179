#pragma once

#include <map>
#include <string>

#include "tests/fakes/desktop_windows.h"
#include "tests/fakes/fake_windows.h"

namespace korvale {

/// Puts the headless host's windows on a fake desktop, among those of other programs. As on
/// Windows, a hidden window of the program owns its form in the taskbar, which owns the others.
class DesktopBridge : public DesktopWindows, private DesktopObserver {
 public:
  static constexpr const char* kOwnerClass = "Korvale.Owner";

  /// `process` is the program's number on the desktop, which must outlive the bridge.
  DesktopBridge(FakeWindows& windows, int process);
  ~DesktopBridge() override;
  DesktopBridge(const DesktopBridge&) = delete;
  DesktopBridge& operator=(const DesktopBridge&) = delete;

  /// The hidden owner; made with the first form.
  WindowHandle Owner() const { return owner_; }

  void SetListener(DesktopListener* listener) override { listener_ = listener; }
  WindowHandle Create(const FormState& form, int children) override;
  WindowHandle OpenBox(WindowHandle owner, const std::string& title) override;
  void Destroy(WindowHandle hwnd) override;
  void SetTitle(WindowHandle hwnd, const std::string& title) override;
  void SetPlace(WindowHandle hwnd, const TwipsRect& place) override;
  void Enable(WindowHandle hwnd, bool enable) override;
  void Show(WindowHandle hwnd, int command) override;
  void Activate(WindowHandle hwnd) override;
  void TakeInput() override { windows_->TakeInput(); }

  bool IsShown(WindowHandle hwnd) const override;
  bool IsEnabled(WindowHandle hwnd) const override;
  ShowState State(WindowHandle hwnd) const override;
  std::string Title(WindowHandle hwnd) const override;
  std::string ClassName(WindowHandle hwnd) const override;
  WindowHandle Active() const override;

 private:
  WindowHandle OwnerOf(const FormState& form) const;
  void OnForegroundChanged(WindowHandle foreground) override;
  void OnShown(WindowHandle hwnd) override;

  FakeWindows* windows_;
  int process_;
  WindowHandle owner_ = 0;
  std::map<WindowHandle, ShowState> states_;  ///< Of our forms, as last told.
  DesktopListener* listener_ = nullptr;
};

}  // namespace korvale
