#pragma once

#include <string>
#include <vector>

#include "tests/fakes/desktop_windows.h"

namespace korvale {

/// A desktop with the program's own windows only: the topmost one that is shown, enabled and not
/// minimized can be active.
class PlainDesktop : public DesktopWindows {
 public:
  void SetListener(DesktopListener* listener) override { listener_ = listener; }
  WindowHandle Create(const FormState& form, int children) override;
  WindowHandle OpenBox(WindowHandle owner, const std::string& title) override;
  void Destroy(WindowHandle hwnd) override;
  void SetTitle(WindowHandle hwnd, const std::string& title) override;
  void SetPlace(WindowHandle /*hwnd*/, const TwipsRect& /*place*/) override {}
  void Enable(WindowHandle hwnd, bool enable) override;
  void Show(WindowHandle hwnd, int command) override;
  void Activate(WindowHandle hwnd) override;
  void TakeInput() override {}

  bool IsShown(WindowHandle hwnd) const override;
  bool IsEnabled(WindowHandle hwnd) const override;
  ShowState State(WindowHandle hwnd) const override;
  std::string Title(WindowHandle hwnd) const override;
  std::string ClassName(WindowHandle hwnd) const override;
  WindowHandle Active() const override { return active_; }

 private:
  struct Window {
    WindowHandle handle = 0;
    std::string title;
    std::string className;
    bool visible = false;
    bool enabled = true;
    ShowState state = ShowState::kNormal;
    bool restoresToMaximized = false;
  };

  WindowHandle Add(const std::string& title, const std::string& className);
  Window* Find(WindowHandle hwnd);
  const Window* Find(WindowHandle hwnd) const;
  void SetState(WindowHandle hwnd, ShowState state);
  void ActivateNext();

  DesktopListener* listener_ = nullptr;
  std::vector<Window> windows_;  ///< Topmost first.
  WindowHandle active_ = 0;
  WindowHandle lastHandle_ = 0x1000;
};

}  // namespace korvale
