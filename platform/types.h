#pragma once

#include <cstdint>

namespace korvale {

/// A window of the desktop, as Windows' HWND narrowed to 32 signed bits (Windows guarantees that
/// handles fit). 0 stands for "no window".
using WindowHandle = std::int32_t;

/// A length on the screen in twentieths of a point: 1440 to the inch, 15 to the pixel at 96 dpi.
using Twips = std::int32_t;

/// 0x00BBGGRR, or 0x800000nn for system colour nn (GetSysColor).
using Color = std::int32_t;

inline constexpr Color kButtonFaceColor = static_cast<Color>(0x8000000FU);
inline constexpr Color kWindowColor = static_cast<Color>(0x80000005U);
inline constexpr Color kWindowTextColor = static_cast<Color>(0x80000008U);
inline constexpr Color kHighlightColor = static_cast<Color>(0x8000000DU);
inline constexpr Color kHighlightTextColor = static_cast<Color>(0x8000000EU);
inline constexpr Color kButtonTextColor = static_cast<Color>(0x80000012U);

inline constexpr Twips kTwipsPerInch = 1440;

/// Place and size in twips.
struct TwipsRect {
  Twips left = 0;
  Twips top = 0;
  Twips width = 0;
  Twips height = 0;

  friend bool operator==(const TwipsRect&, const TwipsRect&) = default;
};

/// Width and height in twips.
struct TwipsSize {
  Twips width = 0;
  Twips height = 0;

  friend bool operator==(const TwipsSize&, const TwipsSize&) = default;
};

}  // namespace korvale
