#pragma once

#include <windows.h>

#include <map>

#include "platform/types.h"
#include "platform/windows/handles.h"

namespace korvale {

/// What a colour stands for on this screen now (GetSysColor for system colours).
COLORREF ToColorRef(Color color);

/// One brush for each colour in use.
class BrushCache {
 public:
  HBRUSH Get(Color color);
  /// Colours have changed.
  void Clear() { brushes_.clear(); }

 private:
  std::map<COLORREF, UniqueBrush> brushes_;
};

}  // namespace korvale
