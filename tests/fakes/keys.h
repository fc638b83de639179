#pragma once

/// Virtual-key codes that only a keyboard needs, not the program.
namespace korvale::fakes {

inline constexpr int kVkBack = 0x08;
inline constexpr int kVkPageUp = 0x21;
inline constexpr int kVkPageDown = 0x22;
inline constexpr int kVkSnapshot = 0x2C;
inline constexpr int kVkDelete = 0x2E;
inline constexpr int kVkPacket = 0xE7;  ///< A character that no key of the keyboard stands for.

}  // namespace korvale::fakes
