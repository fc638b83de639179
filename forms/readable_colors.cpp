#include "forms/readable_colors.h"

#include "util/contrast.h"

namespace korvale {

namespace {

/// Pure red on the grey of older Windows has 2.6; what has less is hard to find at all.
constexpr double kLeastContrastOfMarks = 2.5;

}  // namespace

TextColors OnChosenColor(FormHost& host, Color chosen, const TextColors& system) {
  if (host.HighContrast()) return system;
  return {chosen, ReadableTextColor(host.GetSysColor(chosen))};
}

Color MarkedTextColor(FormHost& host, Color mark, const TextColors& system) {
  const bool readable = !host.HighContrast() &&
                        ContrastRatio(mark, host.GetSysColor(system.back)) >= kLeastContrastOfMarks;
  return readable ? mark : system.text;
}

}  // namespace korvale
