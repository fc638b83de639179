#include "util/forms.h"

#include <algorithm>
#include <optional>

#include "util/text.h"

namespace korvale {
namespace {

std::optional<LoadedForm> FindForm(const LoadedForms& forms, std::string_view name) {
  const std::vector<LoadedForm> list = forms.List();
  const auto found = std::ranges::find_if(
      list, [&](const LoadedForm& form) { return EqualsIgnoreCase(form.name, name); });
  if (found == list.end()) return std::nullopt;
  return *found;
}

}  // namespace

bool IsFormLoaded(const LoadedForms& forms, std::string_view name, bool /*flag*/) {
  return FindForm(forms, name).has_value();
}

WindowHandle FormHandle(const LoadedForms& forms, std::string_view name) {
  const std::optional<LoadedForm> form = FindForm(forms, name);
  return form ? form->handle : 0;
}

}  // namespace korvale
