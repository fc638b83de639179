#pragma once

#include "forms/form.h"

namespace korvale {

inline constexpr const char* kOptionsForm = "frmOptions";

const FormDesign& OptionsDesign();

}  // namespace korvale
