#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "util/forms.h"

namespace korvale {

class FakeLoadedForms : public LoadedForms {
 public:
  void ForEach(const std::function<void(std::string_view, WindowHandle)>& visit) const override {
    for (const LoadedForm& form : forms) visit(form.name, form.handle);
  }

  void Load(std::string name, WindowHandle handle) { forms.push_back({std::move(name), handle}); }

  std::vector<LoadedForm> forms;
};

}  // namespace korvale
