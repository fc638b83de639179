#pragma once

#include "forms/form.h"

namespace korvale {

const FormDesign& OptionsDesign();

}  // namespace korvale
