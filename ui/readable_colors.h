#pragma once

#include "platform/screen_queries.h"
#include "platform/types.h"

namespace korvale {

/// The colours of a text and of its background.
struct TextColors {
  Color back;
  Color text;
};

/// How text is shown on a colour that the user has chosen: black or white, whichever is easier to
/// read. With high contrast the `system` colours take the place of both.
TextColors OnChosenColor(ScreenQueries& screen, Color chosen, const TextColors& system);

/// `mark` as the colour of a text above `system.back`, or the system's text colour where the mark
/// could hardly be read or the user wants high contrast.
Color MarkedTextColor(ScreenQueries& screen, Color mark, const TextColors& system);

/// `link` as the colour of a link above `system.back`, or the system's text colour where it could
/// not be read well or the user wants high contrast.
Color LinkTextColor(ScreenQueries& screen, Color link, const TextColors& system);

}  // namespace korvale
