#include "ui/windows/window_classes.h"

#include <algorithm>
#include <cstdint>

#include "platform/windows/text.h"

namespace korvale {

UniqueIcon LoadProgramIcon(HINSTANCE instance, int size) {
  return UniqueIcon(static_cast<HICON>(
      LoadImageW(instance, MAKEINTRESOURCEW(kIconResource), IMAGE_ICON, size, size, 0)));
}

HCURSOR LoadPointer(HINSTANCE instance, MousePointer pointer) {
  constexpr WORD kArrow = 32512;  // IDC_ARROW
  constexpr WORD kWait = 32514;   // IDC_WAIT
  switch (pointer) {
    case MousePointer::kHourglass:
      return LoadCursorW(nullptr, MAKEINTRESOURCEW(kWait));
    case MousePointer::kCustom:
      return LoadCursorW(instance, MAKEINTRESOURCEW(kPointerResource));
    default:
      return LoadCursorW(nullptr, MAKEINTRESOURCEW(kArrow));
  }
}

WindowClasses::WindowClasses(HINSTANCE instance) : instance_(instance) {}

WindowClasses::~WindowClasses() {
  for (const std::wstring& name : registered_) UnregisterClassW(name.c_str(), instance_);
}

HICON WindowClasses::Icon(int size) {
  for (const auto& [known, icon] : icons_) {
    if (known == size) return icon.Get();
  }
  UniqueIcon icon = LoadProgramIcon(instance_, size);
  if (!icon) return nullptr;
  return icons_.emplace_back(size, std::move(icon)).second.Get();
}

std::wstring WindowClasses::Register(std::string_view name, WNDPROC procedure) {
  const std::wstring fullName = std::wstring(kClassPrefix) + ToUtf16(name);
  if (std::ranges::find(registered_, fullName) != registered_.end()) return fullName;
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  description.lpfnWndProc = procedure;
  description.hInstance = instance_;
  description.hIcon = Icon(GetSystemMetrics(SM_CXICON));
  description.hIconSm = Icon(GetSystemMetrics(SM_CXSMICON));
  description.hCursor = LoadPointer(nullptr, MousePointer::kDefault);
  // The number of the colour instead of a brush, which is only good until the colours change.
  description.hbrBackground =
      reinterpret_cast<HBRUSH>(static_cast<std::uintptr_t>(COLOR_BTNFACE) + 1);
  description.lpszClassName = fullName.c_str();
  if (RegisterClassExW(&description) != 0) registered_.push_back(fullName);
  return fullName;
}

}  // namespace korvale
