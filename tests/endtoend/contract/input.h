#pragma once

#include <windows.h>

#include "platform/form_host.h"

namespace korvale {

/// Puts keys and mouse movements into the system's input, as the devices do.
void PressAndRelease(int virtualKey, unsigned shift);
/// Presses a key, again when it is down already, or releases it.
void PutKey(int virtualKey, bool down);
void HoldAlt(bool down);
/// True for a character that has a key of its own.
bool HasKey(wchar_t character);
void PressKeyOf(wchar_t character, unsigned shift);
/// Types a character that has no key.
void PutCharacter(wchar_t character);
/// Presses and releases the left button where the mouse is.
void ClickLeft();

}  // namespace korvale
