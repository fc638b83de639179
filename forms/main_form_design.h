#pragma once

#include "ui/form.h"

namespace korvale {

/// Controls, menus and design-time place of the main window.
FormDesign MainFormDesign();

/// The entries mnuWindowAddToList of the Window menu: the main window and the Previous Window.
inline constexpr int kAddThisWindow = 1;
inline constexpr int kAddPreviousWindow = 2;

/// What the height of the main window is made of besides its frame, in twips.
inline constexpr Twips kClassicMenuHeight = 300;
inline constexpr Twips kFieldHeight = 285;
inline constexpr Twips kRoomAroundFields = 115;
/// Left, above and between the fields, in twips.
inline constexpr Twips kFieldMargin = 45;
/// Its least width, in twips.
inline constexpr Twips kMinimumWidth = 2640;

}  // namespace korvale
