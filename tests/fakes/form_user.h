#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/contract/user_hands.h"
#include "ui/form.h"

namespace korvale {

/// The user of one form, who knows its controls by their names.
class FormUser {
 public:
  /// Both must outlive this; the form may be loaded later.
  FormUser(UserHands& hands, Form& form) : hands_(&hands), form_(&form) {}

  bool IsShown() { return form_->IsLoaded() && hands_->IsShown(Window()); }
  std::string Title() { return hands_->Title(Window()); }
  WindowHandle Window() const { return form_->Handle(); }
  int Id(std::string_view name, int index = -1) const { return form_->Find(name, index).Id(); }

  std::string Text(std::string_view name, int index = -1) {
    return hands_->Text(Window(), Id(name, index));
  }
  bool IsShown(std::string_view name, int index = -1) {
    return hands_->IsShown(Window(), Id(name, index));
  }
  bool IsEnabled(std::string_view name, int index = -1) {
    return hands_->IsEnabled(Window(), Id(name, index));
  }
  int Value(std::string_view name, int index = -1) {
    return hands_->Value(Window(), Id(name, index));
  }
  std::vector<std::string> Entries(std::string_view name, int index = -1) {
    return hands_->ListEntries(Window(), Id(name, index));
  }
  int ListIndex(std::string_view name, int index = -1) {
    return hands_->ListIndex(Window(), Id(name, index));
  }

  void Click(std::string_view name, int index = -1) { hands_->Click(Window(), Id(name, index)); }
  void Pick(std::string_view name, int listIndex) { PickAt(name, -1, listIndex); }
  void PickAt(std::string_view name, int index, int listIndex) {
    hands_->Pick(Window(), Id(name, index), listIndex);
  }
  /// Types into the control that has the focus.
  void Type(std::string_view text) { hands_->TypeText(Window(), text); }
  void Press(int virtualKey, unsigned shift = kNoShift) {
    hands_->PressKey(Window(), virtualKey, shift);
  }
  void Choose(const std::vector<std::string>& path) { hands_->ChooseMenu(Window(), path); }
  std::vector<ShownMenuItem> Menu(const std::vector<std::string>& path) {
    return hands_->MenuItems(Window(), path);
  }
  void Close() { hands_->PressCloseBox(Window()); }

 private:
  UserHands* hands_;
  Form* form_;
};

}  // namespace korvale
