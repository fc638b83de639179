#pragma once

#include "platform/menu_model.h"
#include "platform/screen_queries.h"

namespace korvale {

/// Lets the entries of a form's menu show as much of their captions as the narrowest monitor has
/// room for where the menu may open, and "..." behind it; the captions stay whole.
void FitMenuToScreen(ScreenQueries& screen, WindowHandle hwnd, MenuItem& menu);

}  // namespace korvale
