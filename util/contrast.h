#pragma once

#include "platform/types.h"

namespace korvale {

/// The contrast between two colours 0x00BBGGRR: 1 (none) to 21 (black and white), as the Web
/// Content Accessibility Guidelines define it. Text is readable from 4.5 on.
double ContrastRatio(Color one, Color other);

/// Black or white, whichever contrasts more with `background` (0x00BBGGRR); always 4.5 or more.
Color ReadableTextColor(Color background);

}  // namespace korvale
