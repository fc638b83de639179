#include "ui/readable_colors.h"

#include "util/contrast.h"

namespace korvale {

namespace {

/// Pure red on the grey of older Windows has 2.6; what has less is hard to find at all.
constexpr double kLeastContrastOfMarks = 2.5;
constexpr double kLeastContrastOfText = 4.5;

Color ColoredText(FormHost& host, Color color, const TextColors& system, double leastContrast) {
  const bool readable =
      !host.HighContrast() && ContrastRatio(color, host.GetSysColor(system.back)) >= leastContrast;
  return readable ? color : system.text;
}

}  // namespace

TextColors OnChosenColor(FormHost& host, Color chosen, const TextColors& system) {
  if (host.HighContrast()) return system;
  return {chosen, ReadableTextColor(host.GetSysColor(chosen))};
}

Color MarkedTextColor(FormHost& host, Color mark, const TextColors& system) {
  return ColoredText(host, mark, system, kLeastContrastOfMarks);
}

Color LinkTextColor(FormHost& host, Color link, const TextColors& system) {
  return ColoredText(host, link, system, kLeastContrastOfText);
}

}  // namespace korvale
