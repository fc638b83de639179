#include "ui/windows/open_forms.h"

#include <algorithm>
#include <utility>

#include "platform/windows/handles.h"
#include "ui/windows/form_window.h"

namespace korvale {

std::shared_ptr<FormWindow> OpenForms::Remove(WindowHandle hwnd) {
  const auto found = forms_.find(hwnd);
  if (found == forms_.end()) return nullptr;
  std::shared_ptr<FormWindow> form = std::move(found->second);
  forms_.erase(found);
  return form;
}

std::shared_ptr<FormWindow> OpenForms::Find(WindowHandle hwnd) const {
  const auto found = forms_.find(hwnd);
  return found == forms_.end() ? nullptr : found->second;
}

std::shared_ptr<FormWindow> OpenForms::Around(HWND window) const {
  return Find(ToWindowHandle(GetAncestor(window, GA_ROOT)));
}

std::shared_ptr<FormWindow> OpenForms::Main() const {
  const auto found = std::ranges::find_if(
      forms_, [](const auto& entry) { return IsMainForm(entry.second->Model()); });
  return found == forms_.end() ? nullptr : found->second;
}

}  // namespace korvale
