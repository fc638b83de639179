#pragma once

#include "ui/form.h"

namespace korvale {

/// The controls and the place of frmGetWindow as designed, with its section for child windows.
const FormDesign& GetWindowDesign();

}  // namespace korvale
