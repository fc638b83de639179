#pragma once

#include <windows.h>

#include <vector>

namespace korvale::endtoend {

/// A message that no well-behaved program posts or sends to the windows of another.
struct Rude {
  UINT message;
  WPARAM wparam;
  LPARAM lparam;
};

/// What other programs must not send. Not listed is what they may send: asking a window to close,
/// to paint, to take a text or a key, ending the session, and messages that stand for the user's
/// own menu entry or button.
std::vector<UINT> Queued();
/// Those whose parameters the system hands on as they are.
std::vector<UINT> Sent();

/// These messages with any parameters, but for those that have the same effect as an action of the
/// user. Controls get fewer values than the windows that hold them: there are many.
std::vector<Rude> WithEachValue(const std::vector<UINT>& messages, bool control);

}  // namespace korvale::endtoend
