#pragma once

#include "ui/form.h"

namespace korvale {

inline constexpr const char* kOptionsForm = "frmOptions";

const FormDesign& OptionsDesign();

}  // namespace korvale
