#include "util/contrast.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace korvale {
namespace {

constexpr Color kBlack = 0x000000;
constexpr Color kWhite = 0xFFFFFF;

/// The luminance of one part of a colour, 0 to 1, from its value of 0 to 255.
double Linear(std::uint32_t value) {
  const double part = static_cast<double>(value) / 255.0;
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(Color color) {
  const auto bits = static_cast<std::uint32_t>(color);
  const auto part = [bits](unsigned shift) { return Linear((bits >> shift) & 0xFFU); };
  return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
}

}  // namespace

double ContrastRatio(Color one, Color other) {
  const double first = Luminance(one) + 0.05;
  const double second = Luminance(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

Color ReadableTextColor(Color background) {
  return ContrastRatio(background, kBlack) >= ContrastRatio(background, kWhite) ? kBlack : kWhite;
}

}  // namespace korvale
