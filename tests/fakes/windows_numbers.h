#pragma once

#include <cstdint>

/// Numbers of the Windows API that only a desktop needs, not a program on it.
namespace korvale::fakes {

inline constexpr std::int32_t kWsPopup = static_cast<std::int32_t>(0x80000000U);
inline constexpr std::int32_t kWsMaximize = 0x01000000;
inline constexpr std::int32_t kWsCaption = 0x00C00000;
inline constexpr std::int32_t kWsOverlappedWindow = 0x00CF0000;
inline constexpr std::int32_t kWsExAppWindow = 0x00040000;
inline constexpr std::int32_t kWsExNoActivate = 0x08000000;

inline constexpr int kSwShowMinimized = 2;

}  // namespace korvale::fakes
