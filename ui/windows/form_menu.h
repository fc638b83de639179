#pragma once

#include <windows.h>

#include <map>

#include "platform/form_model.h"
#include "platform/windows/handles.h"

namespace korvale {

/// The Windows menus of a form's menu model. A menu is filled from the model each time that it
/// opens, so that it shows what the model then holds.
class FormMenu {
 public:
  explicit FormMenu(const FormState& form) : form_(&form) {}

  /// Gives the window a menu bar made from the model, or none when the model shows none.
  void ShowBar(HWND window);
  /// Takes the menu bar from a window that is being destroyed.
  void DropBar(HWND window);

  /// A new pop-up menu, filled from the model.
  UniqueMenu MakePopup(MenuItem& menu);
  /// The model's entry of an opening menu; null when the menu is not ours or has been removed.
  MenuItem* Opening(HMENU menu) const;
  /// Fills an opening menu again.
  void Refill(HMENU menu, MenuItem& model);
  /// The entry that was chosen; null when it has been removed.
  MenuItem* Chosen(UINT command) const;

 private:
  UINT CommandOf(const MenuItem& item);
  void Fill(HMENU menu, const MenuItem& model);
  void Append(HMENU menu, MenuItem& item);

  const FormState* form_;
  UniqueMenu bar_;
  std::map<const MenuItem*, UINT> commands_;
  UINT nextCommand_ = 0;
};

}  // namespace korvale
