#pragma once

#include <string>

#include "platform/form_model.h"

namespace korvale {

/// What a screen reader says when a form comes up: its caption, and its texts, too, where it is an
/// alert or has no caption.
std::string SpokenName(const FormState& form);

}  // namespace korvale
