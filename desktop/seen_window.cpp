#include "desktop/seen_window.h"

namespace korvale {
namespace {

template <typename Fact, typename Read>
Fact ReadOnce(std::optional<Fact>& fact, Read read) {
  if (!fact) fact = read();
  return *fact;
}

}  // namespace

std::string_view SeenWindow::Title() {
  return ReadOnce(title_,
                  [this] { return ReadWindowTitle(*windows_, hwnd_, titleBuffer_, longTitle_); });
}

std::string_view SeenWindow::ClassName() {
  return ReadOnce(className_, [this] { return ReadWindowClass(*windows_, hwnd_, classBuffer_); });
}

bool SeenWindow::IsStill(std::string_view className) {
  return !ClassName().empty() && ClassName() == className;
}

std::int32_t SeenWindow::Style() {
  return ReadOnce(style_, [this] { return windows_->GetWindowLongA(hwnd_, win32::kGwlStyle); });
}

std::int32_t SeenWindow::ExStyle() {
  return ReadOnce(exStyle_, [this] { return windows_->GetWindowLongA(hwnd_, win32::kGwlExStyle); });
}

bool SeenWindow::IsShownHere() { return IsVisible() && Cloak() == 0; }

WindowHandle SeenWindow::FirstChild() {
  return ReadOnce(firstChild_, [this] { return GetRelatedWindow(*windows_, hwnd_, 1); });
}

std::uint32_t SeenWindow::Cloak() {
  return ReadOnce(cloak_, [this] { return windows_->DwmGetWindowAttribute(hwnd_); });
}

}  // namespace korvale
