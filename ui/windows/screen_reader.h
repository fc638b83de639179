#pragma once

#include <windows.h>

#include <string>

#include "platform/form_model.h"

namespace korvale {

/// Gives a form's window its role (IAccPropServices::SetHwndProp). A window of a class of its own
/// would have none. Does nothing where Windows has no such service.
void TellRole(HWND window, FormRole role);
/// Gives it the name that screen readers say (IAccPropServices::SetHwndPropStr).
void TellName(HWND window, const std::string& name);
/// Must be called before a window that has a role or name is destroyed.
void ForgetRole(HWND window);

/// Lets screen readers read out what an alert shows (NotifyWinEvent).
void AnnounceAlert(HWND window);

}  // namespace korvale
