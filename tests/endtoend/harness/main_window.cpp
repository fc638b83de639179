#include "tests/endtoend/harness/main_window.h"

#include <vector>

namespace korvale::endtoend {
namespace {

/// A line of text and the border around it.
constexpr int kLineHeight = 19;

}  // namespace

RECT MainWindow::Area(Window window) {
  RECT area{};
  GetWindowRect(window.handle(), &area);
  return area;
}

Window MainWindow::Box(size_t index) const {
  std::vector<Window> boxes = window_.Children();
  std::erase_if(boxes, [](Window child) { return child.ClassName() != "Edit"; });
  return index < boxes.size() ? boxes[index] : Window();
}

int MainWindow::BoxHeight() const {
  const RECT area = Area(TitleBox());
  return area.bottom - area.top;
}

bool MainWindow::ShowsTextWhole() const {
  RECT client{};
  GetClientRect(window_.handle(), &client);
  MapWindowPoints(window_.handle(), nullptr, reinterpret_cast<POINT*>(&client), 2);
  for (const Window box : {TitleBox(), ClassBox()}) {
    const RECT area = Area(box);
    RECT shown{};
    IntersectRect(&shown, &area, &client);
    if (EqualRect(&shown, &area) == 0 || area.bottom - area.top < kLineHeight) return false;
  }
  return true;
}

bool MainWindow::ShowsMenusWhole() const {
  const RECT area = Place();
  POINT client{};
  ClientToScreen(window_.handle(), &client);
  // The client area begins where the menu bar ends, even where there is no room left for it.
  const LONG border = client.x - area.left;
  return HasMenuBar() && client.y + border <= area.bottom;
}

void MainWindow::Resize(int width, int height) const {
  SetWindowPos(window_.handle(), nullptr, 0, 0, width, height,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace korvale::endtoend
