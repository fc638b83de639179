#pragma once

#include "platform/types.h"

namespace korvale {

/// The height in pixels of the usual text, 9 points, at so many dots per inch. The designs of the
/// forms count on it.
int UsualTextHeight(int dpi);

/// The dots per inch by which the places and sizes of a form become pixels: `dpi`, that of its
/// monitor, and more where the user's text, of `textHeight` pixels, is higher than the usual one,
/// three times as much at most. Fewer where the form's content, in twips, would not fit into the
/// room, in pixels, but never fewer than make a text that can be read.
int FormDpi(int dpi, int textHeight, const TwipsSize& content, int roomWidth, int roomHeight);

/// The height in pixels of the text in a form that is shown with `formDpi` on a monitor of `dpi`
/// dots per inch: the user's, `textHeight`, but no higher than its controls have room for.
int FormTextHeight(int dpi, int formDpi, int textHeight);

}  // namespace korvale
