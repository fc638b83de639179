#pragma once

#include "forms/form.h"

namespace korvale {

const FormDesign& GetWindowDesign();

}  // namespace korvale
