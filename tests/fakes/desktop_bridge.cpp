#include "tests/fakes/desktop_bridge.h"

#include <cstdint>

#include "platform/win32_constants.h"
#include "tests/fakes/windows_numbers.h"

namespace korvale {
namespace {

constexpr int kTwipsPerPixel = 15;
constexpr std::int32_t kWsSysMenu = 0x00080000;
constexpr std::int32_t kWsThickFrame = 0x00040000;

std::int32_t StyleOf(const FormState& form) {
  if (form.border == BorderStyle::kNone) return fakes::kWsPopup;
  std::int32_t style = fakes::kWsCaption | kWsSysMenu;
  if (form.border == BorderStyle::kSizable) style |= kWsThickFrame;
  if (form.minimizeBox) style |= win32::kWsMinimizeBox;
  if (form.maximizeBox) style |= win32::kWsMaximizeBox;
  if (form.modalFrame) style |= win32::kDsModalFrame;
  return style;
}

int Pixels(Twips twips) { return twips / kTwipsPerPixel; }

}  // namespace

DesktopBridge::DesktopBridge(FakeWindows& windows, int process)
    : windows_(&windows), process_(process) {
  windows.AddObserver(*this);
}

DesktopBridge::~DesktopBridge() { windows_->RemoveObserver(*this); }

WindowHandle DesktopBridge::Create(const FormState& form, int children) {
  if (owner_ == 0) {
    NewWindow owner;
    owner.className = kOwnerClass;
    owner.style = fakes::kWsPopup;
    owner.visible = false;
    owner.children = 0;
    owner.process = process_;
    owner_ = windows_->Create("Korvale", owner);
  }
  NewWindow window;
  window.className = "Korvale." + form.name;
  window.owner = OwnerOf(form);
  window.style = StyleOf(form);
  window.exStyle = form.inTaskbar ? fakes::kWsExAppWindow : 0;
  if (form.aside) window.exStyle |= fakes::kWsExNoActivate | win32::kWsExTopmost;
  window.visible = false;
  window.children = children;
  window.process = process_;
  const WindowHandle hwnd = windows_->Create(form.caption, window);
  states_[hwnd] = ShowState::kNormal;
  return hwnd;
}

WindowHandle DesktopBridge::OwnerOf(const FormState& form) const {
  if (form.inTaskbar) return owner_;
  for (const auto& [hwnd, state] : states_) {
    if ((windows_->Find(hwnd)->exStyle & fakes::kWsExAppWindow) != 0) return hwnd;
  }
  return owner_;
}

WindowHandle DesktopBridge::OpenBox(WindowHandle owner, const std::string& title) {
  NewWindow box;
  box.className = "#32770";
  box.owner = owner;
  box.style = fakes::kWsPopup | fakes::kWsCaption | kWsSysMenu | win32::kDsModalFrame;
  box.children = 2;
  box.process = process_;
  return windows_->Create(title, box);
}

void DesktopBridge::Destroy(WindowHandle hwnd) {
  states_.erase(hwnd);
  windows_->Destroy(hwnd);
}

void DesktopBridge::SetTitle(WindowHandle hwnd, const std::string& title) {
  if (FakeWindow* const window = windows_->Find(hwnd)) window->title = title;
}

void DesktopBridge::SetPlace(WindowHandle hwnd, const TwipsRect& place) {
  if (FakeWindow* const window = windows_->Find(hwnd)) {
    window->place = {Pixels(place.left), Pixels(place.top), Pixels(place.width),
                     Pixels(place.height)};
  }
}

void DesktopBridge::Enable(WindowHandle hwnd, bool enable) {
  if (FakeWindow* const window = windows_->Find(hwnd)) window->enabled = enable;
}

void DesktopBridge::Show(WindowHandle hwnd, int command) { windows_->Show(hwnd, command); }

void DesktopBridge::Activate(WindowHandle hwnd) {
  if (windows_->Foreground() != hwnd) windows_->Activate(hwnd);
}

bool DesktopBridge::IsShown(WindowHandle hwnd) const { return windows_->IsVisible(hwnd); }

bool DesktopBridge::IsEnabled(WindowHandle hwnd) const {
  const FakeWindow* const window = windows_->Find(hwnd);
  return window != nullptr && window->enabled;
}

ShowState DesktopBridge::State(WindowHandle hwnd) const {
  const FakeWindow* const window = windows_->Find(hwnd);
  if (window == nullptr) return ShowState::kNormal;
  if (window->iconic) return ShowState::kMinimized;
  return window->zoomed ? ShowState::kMaximized : ShowState::kNormal;
}

std::string DesktopBridge::Title(WindowHandle hwnd) const {
  const FakeWindow* const window = windows_->Find(hwnd);
  return window == nullptr ? "" : window->title;
}

std::string DesktopBridge::ClassName(WindowHandle hwnd) const {
  const FakeWindow* const window = windows_->Find(hwnd);
  return window == nullptr ? "" : window->className;
}

WindowHandle DesktopBridge::Active() const { return windows_->Foreground(); }

void DesktopBridge::OnForegroundChanged(WindowHandle foreground) {
  if (listener_ != nullptr && states_.contains(foreground)) listener_->WindowActivated(foreground);
}

void DesktopBridge::OnShown(WindowHandle hwnd) {
  const auto known = states_.find(hwnd);
  if (known == states_.end()) return;
  const ShowState state = State(hwnd);
  if (known->second == state) return;
  known->second = state;
  if (listener_ != nullptr) listener_->WindowStateChanged(hwnd, state);
}

}  // namespace korvale
