#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <oleacc.h>

#include <string>

#include "platform/form_model.h"
#include "platform/windows/com.h"
#include "platform/windows/handles.h"

namespace korvale {

/// Tells screen readers about windows. Does nothing where Windows has no service for it.
class ScreenReader {
 public:
  /// Gives a form's window its role (IAccPropServices::SetHwndProp). A window of a class of its own
  /// would have none.
  void TellRole(HWND window, FormRole role);
  /// The same for the page of a tab.
  void TellPage(HWND window);
  /// Gives it the name that screen readers say (IAccPropServices::SetHwndPropStr).
  void TellName(HWND window, const std::string& name);
  /// Must be called before a window that has a role or name is destroyed.
  void Forget(HWND window);

 private:
  void SetRole(HWND window, LONG role);
  /// A new one each time, which Windows makes from a library (oleacc); empty where it cannot.
  UniqueHandle<IAccPropServices*> Services();

  Com com_;
};

/// Lets screen readers read out what an alert shows (NotifyWinEvent).
void AnnounceAlert(HWND window);

}  // namespace korvale
