#pragma once

#include <windows.h>

namespace korvale::bench {

/// A call to Windows under Wine is a conversation with Wine's server. Whether both sides share a
/// processor makes it several times faster or slower and would change from moment to moment, so the
/// programs under test have one processor, with the server, and the user and the windows that they
/// go to have another one.
enum class Side { kSubject, kUser };

/// Keeps a process on the processor of that side.
void KeepOn(Side side, DWORD process);

/// Keeps this thread there.
void KeepThreadOn(Side side);

}  // namespace korvale::bench
