#pragma once

#include <cstdint>
#include <string>

#include "platform/types.h"

namespace korvale {

inline constexpr Color kDefaultTargetColor = 0x009FFFFF;
inline constexpr Color kDefaultClassColor = 0x00AEFFAE;
inline constexpr Color kDefaultLastColor = 0x00FFFFFF;

/// The largest stored place or size in twips: Windows counts screens in 16 bits of pixels.
inline constexpr Twips kFarthestPlace = 32767 * 15;

/// The pages of the Options dialog, in the order of their tabs.
inline constexpr std::int16_t kGeneralPage = 1;
inline constexpr std::int16_t kHotKeysPage = 2;
inline constexpr std::int16_t kWindowIdentificationPage = 3;
inline constexpr std::int16_t kLastOptionsPage = kWindowIdentificationPage;

/// The main window's state as it is kept between runs. Lengths in twips.
struct StartupSettings {
  std::int32_t WindowState = 0;  ///< 0 normal, 1 minimized, 2 maximized.
  Twips Left = -1;               ///< -1 = never stored.
  Twips Top = -1;                ///< -1 = never stored.
  Twips Width = 4500;
  Twips Height = 1100;
  bool AlwaysOnTop = false;
  Color WI1BackColor = kDefaultTargetColor;  ///< Background of txtWindow.
  Color WI2BackColor = kDefaultClassColor;   ///< Background of txtWindowClass.
  std::string Tips;                          ///< One flag a tip: '1' shown, '0' silenced.
  bool DisplayTips = true;
  Color LastColorSelected = kDefaultLastColor;
  bool Menu = true;
  std::int16_t OptionsTab = kGeneralPage;
  bool WindowInfo = true;

  friend bool operator==(const StartupSettings&, const StartupSettings&) = default;
};

}  // namespace korvale
