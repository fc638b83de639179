#pragma once

#include "platform/form_host.h"
#include "platform/menu_model.h"

namespace korvale {

/// Lets the entries of a form's menu show as much of their captions as the narrowest monitor has
/// room for where the menu may open, and "..." behind it; the captions stay whole.
void FitMenuToScreen(FormHost& host, WindowHandle hwnd, MenuItem& menu);

}  // namespace korvale
