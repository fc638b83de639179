#include "tests/fakes/headless_screen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

#include "ui/access_key.h"
#include "ui/menu_text.h"

namespace korvale {
namespace {

constexpr Twips kMiddleOfTab = 150;

bool HidesWhatIsBelow(ControlKind kind) {
  return kind != ControlKind::kLabel && kind != ControlKind::kLine && kind != ControlKind::kFrame &&
         kind != ControlKind::kTabStrip && kind != ControlKind::kTimer;
}

bool Contains(const TwipsRect& place, Twips x, Twips y) {
  return x >= place.left && x < place.left + place.width && y >= place.top &&
         y < place.top + place.height;
}

}  // namespace

void FailTest(const std::string& message) {
  ADD_FAILURE() << message;
  throw HeadlessFailure(message);
}

HeadlessControl& HeadlessWindow::Control(int id) {
  CheckControl(id);
  return controls[static_cast<std::size_t>(id) - 1];
}

const HeadlessControl& HeadlessWindow::Control(int id) const {
  CheckControl(id);
  return controls[static_cast<std::size_t>(id) - 1];
}

void HeadlessWindow::CheckControl(int id) const {
  if (id < 1 || static_cast<std::size_t>(id) > controls.size()) {
    FailTest("form " + form->name + " has no control " + std::to_string(id));
  }
}

std::string HeadlessWindow::Describe(int id) const {
  if (id == 0) return form->name;
  const ControlState& shown = Control(id).shown;
  return shown.index < 0 ? shown.name : shown.name + "(" + std::to_string(shown.index) + ")";
}

bool HeadlessWindow::IsShown(int id) const {
  const ControlState& shown = Control(id).shown;
  return shown.visible && (shown.container == 0 || IsShown(shown.container));
}

bool HeadlessWindow::IsEnabled(int id) const {
  const ControlState& shown = Control(id).shown;
  return shown.enabled && (shown.container == 0 || IsEnabled(shown.container));
}

bool HeadlessWindow::IsCovered(int id, Twips x, Twips y) const {
  const int container = Control(id).shown.container;
  for (const HeadlessControl& other : controls) {
    // The windows of one container lie above those that come after them.
    if (other.shown.id == id) return false;
    const bool above = other.shown.container == container && other.shown.visible &&
                       HidesWhatIsBelow(other.shown.kind) && Contains(other.shown.place, x, y);
    if (above) return true;
  }
  return false;
}

std::string HeadlessWindow::WhyOutOfReach(int id) const {
  const std::string name = Describe(id);
  if (!IsShown(id)) return name + " is hidden";
  if (!IsEnabled(id)) return name + " is disabled";
  const ControlState& shown = Control(id).shown;
  Twips x = shown.place.left + shown.place.width / 2;
  // The tabs of a strip stand along its upper edge; the rest of it lies below its pages.
  const Twips hit = shown.kind == ControlKind::kTabStrip ? kMiddleOfTab : shown.place.height / 2;
  Twips y = shown.place.top + hit;
  for (int at = id;;) {
    if (IsCovered(at, x, y)) return name + " is covered by another control";
    const int holder = Control(at).shown.container;
    if (holder == 0) break;
    const TwipsRect& room = Control(holder).shown.place;
    if (!Contains({0, 0, room.width, room.height}, x, y)) return name + " is cut off";
    x += room.left;
    y += room.top;
    at = holder;
  }
  const TwipsRect client = {0, 0, place.width - frame.width, place.height - frame.height};
  return Contains(client, x, y) ? "" : name + " lies outside of its form";
}

void HeadlessWindow::DrawMenuBar() {
  bar.clear();
  if (!form->menuShown) return;
  for (const auto& menu : form->menu.Root().items) {
    if (menu->visible) bar.push_back({menu.get(), DrawItem(*menu)});
  }
}

TwipsRect Limited(const TwipsRect& place, const SizeLimits& limits) {
  TwipsRect taken = place;
  taken.width = std::max(taken.width, limits.minimumWidth);
  if (limits.height != 0) taken.height = limits.height;
  return taken;
}

std::string ShownCaption(std::string_view caption) {
  std::string shown;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    shown += caption[i];
  }
  return shown;
}

ShownMenuItem DrawItem(const MenuItem& item) {
  if (item.IsSeparator()) return {"-", "", false, true};
  const std::string text = MenuText(item);
  return {ShownCaption(text), AccessKey(text), item.checked, item.enabled};
}

std::vector<ShownMenuItem> DrawItems(const MenuItem& menu) {
  std::vector<ShownMenuItem> drawn;
  for (const auto& item : menu.items) {
    if (item->visible) drawn.push_back(DrawItem(*item));
  }
  return drawn;
}

}  // namespace korvale
