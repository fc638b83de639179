#pragma once

#include <string>
#include <utility>
#include <vector>

#include "util/forms.h"

namespace korvale {

class FakeLoadedForms : public LoadedForms {
 public:
  std::vector<LoadedForm> List() const override { return forms; }

  void Load(std::string name, WindowHandle handle) { forms.push_back({std::move(name), handle}); }

  std::vector<LoadedForm> forms;
};

}  // namespace korvale
