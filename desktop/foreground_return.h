#pragma once

#include "desktop/window_readers.h"
#include "desktop/window_requests.h"
#include "platform/window_api.h"
#include "util/forms.h"

namespace korvale {

/// True when the window is that of a loaded form of ours. A form without a window has the handle 0,
/// which never counts.
bool IsOwnForm(const LoadedForms& forms, WindowHandle hwnd);

/// Puts the window in front (SetForegroundWindow) when it still can be: it lives, is shown on the
/// virtual desktop where the user is, enabled and not minimized. Does nothing and fails otherwise.
RequestResult ReturnForegroundTo(WindowQueries& windows, WindowRequests& requests,
                                 const KnownWindow& window);

}  // namespace korvale
