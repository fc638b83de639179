#pragma once

#include "ui/form.h"

namespace korvale {

const FormDesign& GetWindowDesign();

}  // namespace korvale
