#pragma once

#include "platform/types.h"

namespace korvale {

/// The height in pixels of the usual text, 9 points, at so many dots per inch. The designs of the
/// forms count on it.
int UsualTextHeight(int dpi);

/// The dots per inch by which the places and sizes of a form become pixels: `dpi`, that of its
/// monitor, and more where the user's text, of `textHeight` pixels, is higher than the usual one,
/// but only as far as the form's content, in twips, still fits into the room, in pixels. Never less
/// than `dpi`; three times as much at most.
int FormDpi(int dpi, int textHeight, const TwipsSize& content, int roomWidth, int roomHeight);

}  // namespace korvale
