#include "forms/main_parts.h"

#include <utility>

#include "forms/options_design.h"
#include "ui/form.h"
#include "util/forms.h"

namespace korvale {

namespace {

MenuItem& WindowMenuItems(MenuBar& menus) { return *menus.Find("mnuWindow"); }

/// The window of the dialog that a message box must not leave usable; 0 when none is open.
WindowHandle DialogOnTop(const FormCollection& forms) {
  const Form* dialog = forms.TopModal();
  return dialog != nullptr ? dialog->Handle() : FormHandle(forms, kOptionsForm);
}

}  // namespace

MainParts::MainParts(Platform& platform, FormCollection& forms, MainWindow& mainWindow,
                     MenuBar& menus, HotKeyActions& hotKeyActions, std::function<void()> shutDown)
    : settings(platform.store, ""),
      tags{MenuItemArray(WindowMenuItems(menus), "mnuWindowParentList")},
      tagPasses(tags, platform.windows, platform.store),
      filter(platform.windows, options, forms, mainWindow),
      requests(platform.windows, platform.commands, mainWindow, platform.clock),
      enumeration(platform.windows, requests, filter, mainWindow, tagPasses),
      messages(platform.host, platform.windows, platform.commands, mainWindow, forms, previous,
               suspension, [&forms] { return DialogOnTop(forms); }),
      errorLog(identity, platform.clock,
               [this] {
                 return ErrorLogState{state.firstActivation, startup.Menu, state.lastAnswer};
               }),
      errors(identity, messages, errorLog, std::move(shutDown)),
      actions(platform.windows, requests, filter, enumeration, mainWindow, previous, messages,
              identity.messageTitle),
      tracker(platform.windows, filter, actions, mainWindow, previous, tags),
      display(forms, platform.windows, platform.commands, previous, suspension,
              startup.AlwaysOnTop),
      hotKeys(platform.hotKeys, options, mainWindow),
      toggle(hotKeys, options, hotKeyActions, identity.productName, identity.messageTitle),
      dispatch({platform.windows, platform.commands, mainWindow, forms, tagPasses, filter, actions,
                tracker, previous, suspension, messages, hotKeyActions, toggle, errors},
               identity.productName, identity.messageTitle),
      hook(
          platform.hotKeys, hotKeys, mainWindow, [&platform] { return platform.host.EndMenu(); },
          [this](const std::string& name) { dispatch.udmProcessHotKey(name, true, false, ""); },
          [&forms] { forms.ReportUncaught(); }) {}

}  // namespace korvale
