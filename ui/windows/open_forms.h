#pragma once

#include <windows.h>

#include <map>
#include <memory>

#include "platform/types.h"

namespace korvale {

class FormWindow;

/// The forms that have a window, by its handle.
class OpenForms {
 public:
  using Map = std::map<WindowHandle, std::shared_ptr<FormWindow>>;

  const Map& All() const { return forms_; }
  void Add(WindowHandle hwnd, std::shared_ptr<FormWindow> form) { forms_[hwnd] = std::move(form); }
  /// Takes a form out of the list; null when it is not in it.
  std::shared_ptr<FormWindow> Remove(WindowHandle hwnd);
  std::shared_ptr<FormWindow> Find(WindowHandle hwnd) const;
  /// The form that this window is or belongs to; null for other windows.
  std::shared_ptr<FormWindow> Around(HWND window) const;
  /// The main form; null while there is none.
  std::shared_ptr<FormWindow> Main() const;

 private:
  Map forms_;
};

}  // namespace korvale
