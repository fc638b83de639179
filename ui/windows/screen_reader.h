#pragma once

#include <windows.h>

#include "platform/form_model.h"

namespace korvale {

/// Gives a form's window its role (IAccPropServices::SetHwndProp). A window of a class of its own
/// would have none. Does nothing where Windows has no such service.
void TellRole(HWND window, FormRole role);
/// Must be called before a window that has a role is destroyed.
void ForgetRole(HWND window);

/// Lets screen readers read out what an alert shows (NotifyWinEvent).
void AnnounceAlert(HWND window);

}  // namespace korvale
