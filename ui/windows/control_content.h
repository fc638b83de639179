#pragma once

#include <windows.h>

#include <string>

#include "platform/form_host.h"
#include "platform/form_model.h"

namespace korvale {

/// Puts text, entries or choice of the model into the control's window.
void ShowText(HWND window, const ControlState& control);
void ShowItems(HWND window, const ControlState& control);
void ShowListIndex(HWND window, const ControlState& control);
/// Shows or hides the border of a label or text box.
void ShowBorder(HWND window, const ControlState& control);
/// Draws a button as the default one, or not.
void ShowDefault(HWND window, const ControlState& control);

/// The text in the window of a text box or combo box.
std::string ReadText(HWND window);
/// The chosen entry of a list, or the chosen tab; -1 = none.
int ReadListIndex(HWND window, ControlKind kind);

/// The selected part of a text box or of a combo box's text field.
TextSelection ReadSelection(HWND window, ControlKind kind);
void ShowSelection(HWND window, ControlKind kind, TextSelection selection);

}  // namespace korvale
