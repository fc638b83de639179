#include "util/forms.h"

#include <algorithm>
#include <optional>

#include "util/text.h"

namespace korvale {
namespace {

std::optional<WindowHandle> FindForm(const LoadedForms& forms, std::string_view sought) {
  std::optional<WindowHandle> found;
  forms.ForEach([&](std::string_view name, WindowHandle handle) {
    if (!found && EqualsIgnoreCase(name, sought)) found = handle;
  });
  return found;
}

}  // namespace

std::vector<LoadedForm> LoadedForms::List() const {
  std::vector<LoadedForm> list;
  ForEach([&](std::string_view name, WindowHandle handle) {
    list.push_back({std::string(name), handle});
  });
  return list;
}

bool IsFormLoaded(const LoadedForms& forms, std::string_view name, bool /*flag*/) {
  return FindForm(forms, name).has_value();
}

WindowHandle FormHandle(const LoadedForms& forms, std::string_view name) {
  return FindForm(forms, name).value_or(0);
}

bool IsOwnForm(const LoadedForms& forms, WindowHandle hwnd) {
  if (hwnd == 0) return false;
  return std::ranges::any_of(forms.List(),
                             [&](const LoadedForm& form) { return form.handle == hwnd; });
}

}  // namespace korvale
