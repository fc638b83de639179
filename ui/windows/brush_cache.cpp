#include "ui/windows/brush_cache.h"

namespace korvale {

COLORREF ToColorRef(Color color) {
  constexpr std::uint32_t kSystemColor = 0x80000000U;
  constexpr std::uint32_t kNumber = 0xFFU;
  const auto bits = static_cast<std::uint32_t>(color);
  if ((bits & kSystemColor) != 0) return GetSysColor(static_cast<int>(bits & kNumber));
  constexpr std::uint32_t kRgb = 0x00FFFFFFU;
  return bits & kRgb;
}

HBRUSH BrushCache::Get(Color color) {
  UniqueBrush& brush = brushes_[ToColorRef(color)];
  if (!brush) brush.Reset(CreateSolidBrush(ToColorRef(color)));
  return brush.Get();
}

}  // namespace korvale
