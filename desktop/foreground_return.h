#pragma once

#include "desktop/window_readers.h"
#include "desktop/window_requests.h"
#include "platform/window_api.h"

namespace korvale {

/// Puts the window in front (SetForegroundWindow) when it still can be: it lives, is shown on the
/// virtual desktop where the user is, enabled and not minimized. Does nothing and fails otherwise.
RequestResult ReturnForegroundTo(WindowQueries& windows, WindowRequests& requests,
                                 const KnownWindow& window);

}  // namespace korvale
