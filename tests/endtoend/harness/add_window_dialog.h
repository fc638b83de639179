#pragma once

#include <string>
#include <vector>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// The Add Window dialog on the screen, used with the keyboard and the mouse. Its controls stand in
/// the order of the Tab key.
class AddWindowDialog {
 public:
  explicit AddWindowDialog(Window form) : form_(form) {}

  Window form() const { return form_; }

  Window TitleBox() const { return Control("Edit", 0); }
  Window ClassBox() const { return Control("Edit", 1); }
  Window TagList() const { return Control("ComboBox", 0); }
  /// The choices on the screen: whole title, left part, right part.
  std::vector<Window> Choices() const;
  Window OkButton() const { return PushButton(1); }
  Window CloseButton() const { return PushButton(2); }
  Window RemoveButton() const { return PushButton(0); }
  /// The text of the selected Tag, "3" or "3  Notes".
  std::string SelectedTag() const { return TagList().Text(); }
  /// The label that shows what the selected Tag stands for, or "Available".
  std::string State() const { return Control("Static", 1).Text(); }

  /// Types the Tag's digit into the list, which has the focus when the dialog opens.
  bool SelectTag(int tag) const;
  bool Choose(size_t choice) const;
  /// Presses Enter or Esc and waits until the dialog is gone.
  bool Confirm() const;
  bool Cancel() const;

 private:
  Window Control(const char* class_name, size_t index) const;
  Window PushButton(size_t index) const;
  bool Leave(UINT key) const;

  Window form_;
};

}  // namespace korvale::endtoend
