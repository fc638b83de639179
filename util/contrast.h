#pragma once

#include "platform/types.h"

namespace korvale {

/// How well two colours 0x00BBGGRR stand off from each other: 1 (not at all) to 21 (black and
/// white), as the Web Content Accessibility Guidelines define it. Text is readable from 4.5 on.
double ContrastRatio(Color one, Color other);

/// Black or white, whichever stands off better from `background` (0x00BBGGRR); 4.5 or more always.
Color ReadableTextColor(Color background);

}  // namespace korvale
