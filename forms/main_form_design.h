#pragma once

#include "ui/form.h"

namespace korvale {

/// Controls, menus and design-time place of the main window.
FormDesign MainFormDesign();

/// What the height of the main window is made of besides its frame, in twips.
inline constexpr Twips kClassicMenuHeight = 300;
inline constexpr Twips kFieldHeight = 285;
inline constexpr Twips kRoomAroundFields = 115;
/// Its least width, in twips.
inline constexpr Twips kMinimumWidth = 2640;

}  // namespace korvale
