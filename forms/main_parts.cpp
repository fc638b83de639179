#include "forms/main_parts.h"

#include <utility>

#include "app/core/form_names.h"
#include "ui/form.h"
#include "util/forms.h"

namespace korvale {

namespace {

/// The window of the dialog that must not stay usable under a message box; 0 when none is open.
WindowHandle DialogOnTop(const FormCollection& forms) {
  const CollectedForm* dialog = forms.TopModal();
  return dialog != nullptr ? dialog->Handle() : FormHandle(forms, kOptionsForm);
}

}  // namespace

MainParts::MainParts(Platform& platform, FormCollection& forms, MainWindow& mainWindow,
                     MenuItem& windowMenu, HotKeyActions& hotKeyActions,
                     std::function<void()> shutDown)
    : settings(platform.store, ""),
      messages(desktop, platform.dialogs, suspension, [&forms] { return DialogOnTop(forms); }),
      errorLog(identity, platform.system, platform.clock,
               [this] {
                 return ErrorLogState{state.firstActivation, startup.Menu, state.lastAnswer};
               }),
      errors(messages, errorLog, std::move(shutDown)),
      crashes(platform.dialogs, errorLog, platform.system, platform.crashes, platform.clock),
      virtualDesktops(platform.windows, platform.virtualDesktops),
      desktop({platform.windows, platform.commands, platform.input, mainWindow, forms, messages,
               previous, virtualDesktops},
              platform.clock, options, windowMenu),
      display(forms, desktop, suspension, startup.AlwaysOnTop),
      hotKeys(platform.hotKeys, options, mainWindow),
      toggle(hotKeys, options, hotKeyActions),
      dispatch(desktop, suspension, hotKeyActions, toggle, errors),
      hook(platform.hotKeys, platform.dialogs, mainWindow, hotKeys, dispatch, hotKeyActions,
           [&forms] { forms.ReportUncaught(); }) {}

}  // namespace korvale
