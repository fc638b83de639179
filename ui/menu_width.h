#pragma once

#include "platform/menu_model.h"
#include "platform/screen_queries.h"

namespace korvale {

/// Shortens the entries of a form's menu to what the narrowest monitor has room for where the menu
/// may open, with "..." at the end; the captions themselves stay whole.
void FitMenuToScreen(ScreenQueries& screen, WindowHandle hwnd, MenuItem& menu);

}  // namespace korvale
