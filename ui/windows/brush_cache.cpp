#include "ui/windows/brush_cache.h"

#include "ui/windows/system_colors.h"

namespace korvale {

HBRUSH BrushCache::Get(Color color) {
  UniqueBrush& brush = brushes_[ToColorRef(color)];
  if (!brush) brush.Reset(CreateSolidBrush(ToColorRef(color)));
  return brush.Get();
}

}  // namespace korvale
