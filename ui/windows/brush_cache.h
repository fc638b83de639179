#pragma once

#include <windows.h>

#include <map>

#include "platform/types.h"
#include "platform/windows/handles.h"

namespace korvale {

/// One brush for each colour in use.
class BrushCache {
 public:
  /// Good until Clear.
  HBRUSH Get(Color color);
  /// Colours have changed.
  void Clear() { brushes_.clear(); }

 private:
  std::map<COLORREF, UniqueBrush> brushes_;
};

}  // namespace korvale
