#include "ui/readable_colors.h"

#include "util/contrast.h"

namespace korvale {

namespace {

/// Pure red on the grey of older Windows has 2.6; anything less is hard to see at all.
constexpr double kLeastContrastOfMarks = 2.5;
constexpr double kLeastContrastOfText = 4.5;

Color ColoredText(ScreenQueries& screen, Color color, const TextColors& system,
                  double leastContrast) {
  const bool readable = !screen.HighContrast() &&
                        ContrastRatio(color, screen.GetSysColor(system.back)) >= leastContrast;
  return readable ? color : system.text;
}

}  // namespace

TextColors OnChosenColor(ScreenQueries& screen, Color chosen, const TextColors& system) {
  if (screen.HighContrast()) return system;
  return {chosen, ReadableTextColor(screen.GetSysColor(chosen))};
}

Color MarkedTextColor(ScreenQueries& screen, Color mark, const TextColors& system) {
  return ColoredText(screen, mark, system, kLeastContrastOfMarks);
}

Color LinkTextColor(ScreenQueries& screen, Color link, const TextColors& system) {
  return ColoredText(screen, link, system, kLeastContrastOfText);
}

}  // namespace korvale
