#pragma once

#include <windows.h>

#include "platform/types.h"

namespace korvale {

/// Twips to pixels of a screen or window with this many dots per inch, rounded.
inline int ToPixels(Twips twips, UINT dpi) {
  return MulDiv(twips, static_cast<int>(dpi), kTwipsPerInch);
}

/// The reverse, rounded, too.
inline Twips ToTwips(int pixels, UINT dpi) {
  return MulDiv(pixels, kTwipsPerInch, static_cast<int>(dpi));
}

/// Place and size in pixels.
struct PixelPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  friend bool operator==(const PixelPlace&, const PixelPlace&) = default;
};

/// A place within a window.
inline PixelPlace ToPixels(const TwipsRect& place, UINT dpi) {
  return {ToPixels(place.left, dpi), ToPixels(place.top, dpi), ToPixels(place.width, dpi),
          ToPixels(place.height, dpi)};
}

/// A place on the screen. Positions count in the dots of the system, since those of a monitor are
/// known only once a window is there; sizes count in the dots of the window.
inline PixelPlace ToScreenPixels(const TwipsRect& place, UINT dpi) {
  const UINT system = GetDpiForSystem();
  return {ToPixels(place.left, system), ToPixels(place.top, system), ToPixels(place.width, dpi),
          ToPixels(place.height, dpi)};
}

/// The reverse.
inline TwipsRect ToScreenTwips(const RECT& rect, UINT dpi) {
  const UINT system = GetDpiForSystem();
  return {ToTwips(rect.left, system), ToTwips(rect.top, system),
          ToTwips(rect.right - rect.left, dpi), ToTwips(rect.bottom - rect.top, dpi)};
}

}  // namespace korvale
