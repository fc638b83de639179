#pragma once

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Korvale's main window as it is seen and measured from outside, in pixels.
class MainWindow {
 public:
  explicit MainWindow(Window window) : window_(window) {}

  Window window() const { return window_; }
  int Width() const { return Area(window_).right - Area(window_).left; }
  int Height() const { return Area(window_).bottom - Area(window_).top; }
  /// True when the menu bar is on the screen.
  bool HasMenuBar() const { return GetMenu(window_.handle()) != nullptr; }

  /// The boxes with the title and the class of the Target Window, shown or not.
  Window TitleBox() const { return Box(0); }
  Window ClassBox() const { return Box(1); }
  bool ShowsBoxes() const { return TitleBox().Visible() && ClassBox().Visible(); }
  int BoxHeight() const;
  /// True when the menu bar is shown with all its rows.
  bool ShowsMenusWhole() const;
  RECT Place() const { return Area(window_); }
  /// True when both boxes are shown from edge to edge and high enough for a line of text.
  bool ShowsTextWhole() const;

  /// Gives the window another size, as dragging its border does.
  void Resize(int width, int height) const;

 private:
  static RECT Area(Window window);
  Window Box(size_t index) const;

  Window window_;
};

}  // namespace korvale::endtoend
