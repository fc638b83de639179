#include <utility>

#include "platform/win32_constants.h"
#include "tests/simulated/simulated_life.h"

namespace korvale {
namespace {

/// Longer than this, a user would notice that they wait for a window: the longest that Korvale
/// gives one, and what two presses in a row may need.
constexpr std::uint64_t kLongestPress = 250;

bool IsTagEntry(const std::string& caption) {
  return caption.size() >= 3 && caption[0] >= '0' && caption[0] <= '9' &&
         caption.substr(1, 2) == "  ";
}

}  // namespace

std::optional<SimulatedLife::HotKey> SimulatedLife::Working(const std::string& name) {
  for (const HotKey& hotKey : WorkingHotKeys()) {
    if (hotKey.name == name) return hotKey;
  }
  return std::nullopt;
}

void SimulatedLife::Press(const HotKey& hotKey) {
  Note("presses " + hotKey.name);
  const bool asked = std::exchange(userWasAsked_, false);
  const std::uint64_t start = clock.GetTickCount64();
  EXPECT_TRUE(hotKeys.Press(hotKey.combination.first, hotKey.combination.second));
  if (!userWasAsked_) {
    EXPECT_LE(clock.GetTickCount64() - start, kLongestPress);
  }
  userWasAsked_ = userWasAsked_ || asked;
}

void SimulatedLife::PressTagKey() {
  const int tag = dice_.OneIn(3) ? 0 : dice_.Below(10);
  const std::optional<HotKey> hotKey = Working("HOTKEY_PARENT" + std::to_string(tag));
  if (!hotKey) return;
  const Before before = LookBefore(tag);
  Press(*hotKey);
  CheckSelection(before);
}

/// Windows brings windows of other threads to the front a moment after it was asked. The user sees
/// them come before they go on.
void SimulatedLife::PressTagKeyInSlowWindows() {
  const int tag = dice_.OneIn(2) ? 0 : dice_.Below(10);
  const std::optional<HotKey> hotKey = Working("HOTKEY_PARENT" + std::to_string(tag));
  if (!hotKey) return;
  Note("meets slow Windows");
  const Before before = LookBefore(tag);
  desktop.DelayForeground(true);
  Press(*hotKey);
  desktop.DelayForeground(false);
  Wait(100);
  CheckSelection(before);
}

/// While the program does not come to its messages.
void SimulatedLife::PressHeldKey() {
  const std::vector<HotKey> working = WorkingHotKeys();
  if (working.empty()) return;
  const HotKey hotKey = dice_.Pick(working);
  const bool asks = hotKey.name == "HOTKEY_WINDOW_MENU_POPUP" ||
                    hotKey.name == "HOTKEY_TOGGLE_HOTKEYS" ||
                    hotKey.name == "HOTKEY_DISPLAY_OPTIONS";
  if (asks) return;
  const int times = 2 + dice_.Below(5);
  Note("holds " + hotKey.name + " for " + std::to_string(times) + " presses");
  for (int i = 0; i < times; ++i) {
    EXPECT_TRUE(hotKeys.PressWhileBusy(hotKey.combination.first, hotKey.combination.second));
  }
  hotKeys.DeliverQueued();
}

/// The window in front when it has this box, is no ghost and nothing keeps its size from being
/// changed, else 0.
WindowHandle SimulatedLife::SizableInFront(std::int32_t box) {
  const WindowHandle front = desktop.Windows().Foreground();
  // Until the next tick Korvale takes a window that it has just brought forward for the one in
  // front.
  if (korvale_->Record().menuSelection) return 0;
  if (!CanBeSelected(front) || desktop.Windows().CloakOf(front) != 0) return 0;
  const FakeWindow& first = *desktop.Windows().Find(front);
  if (first.iconic || (first.style & box) == 0) return 0;
  if (first.className == FakeDesktop::kGhostClass) return 0;
  const FakeWindow* window = &first;
  for (; window != nullptr; window = desktop.Windows().Find(window->owner)) {
    const bool refuses =
        window->elevated || window->hung || window->busyUntil > clock.GetTickCount64();
    if (refuses) return 0;
  }
  return front;
}

void SimulatedLife::PressActionKey() {
  const bool minimize = dice_.OneIn(2);
  const std::optional<HotKey> hotKey =
      Working(minimize ? "HOTKEY_MINIMIZE_PARENT" : "HOTKEY_RESTORE/MAXIMIZE_PARENT");
  if (!hotKey) return;
  const WindowHandle front =
      SizableInFront(minimize ? win32::kWsMinimizeBox : win32::kWsMaximizeBox);
  const FakeWindow* const window = desktop.Windows().Find(front);
  const bool zoomed = window != nullptr && window->zoomed;
  Press(*hotKey);
  if (window == nullptr) return;
  if (minimize) {
    // It goes along with its owner when that can be minimized.
    EXPECT_TRUE(window->iconic || window->hiddenByOwner) << programs_.Name(front);
  } else {
    EXPECT_NE(window->zoomed, zoomed) << programs_.Name(front);
  }
}

void SimulatedLife::PressToggleKey() {
  const std::optional<HotKey> hotKey = Working("HOTKEY_TOGGLE_HOTKEYS");
  if (!hotKey) return;
  Press(*hotKey);
  hotKeysOn_ = !hotKeysOn_;
  HotKeysRegistered();
}

std::string SimulatedLife::ChooseFromPopUp(const std::vector<ShownMenuItem>& items) {
  popUpAwaited_ = false;
  userWasAsked_ = true;
  EXPECT_EQ(desktop.Windows().Foreground(), korvale_->Handle())
      << "a click elsewhere would not close the menu";
  const std::string caption = dice_.OneIn(4) ? "" : SomeEntry(items);
  Note("  chooses [" + caption + "]");
  if (IsTagEntry(caption)) poppedUp_ = LookBefore(caption[0] - '0');
  return caption;
}

/// Without the foreground no menu opens, and the user is told. The main window may lose the right
/// to it on its way from a desktop that has just been left.
void SimulatedLife::PopUpWindowMenu() {
  const std::optional<HotKey> hotKey = Working("HOTKEY_WINDOW_MENU_POPUP");
  if (!hotKey) return;
  if (!popUpAwaited_) {
    korvale_->host.WhenPopupMenu(
        [this](const std::vector<ShownMenuItem>& items) { return ChooseFromPopUp(items); });
  }
  popUpAwaited_ = true;
  poppedUp_.reset();
  const bool refused = programs_.RefusesForeground();
  const bool mayBeRefused = refused || (programs_.GuardsForeground() &&
                                        desktop.Windows().CloakOf(korvale_->Handle()) != 0);
  const std::size_t boxes = korvale_->host.Messages().size();
  Press(*hotKey);
  EXPECT_TRUE(popUpAwaited_ ? mayBeRefused : !refused);
  if (popUpAwaited_ && korvale_->host.Messages().size() > boxes) {
    EXPECT_EQ(korvale_->host.Messages()[boxes].text, kRefusal);
  } else {
    EXPECT_FALSE(popUpAwaited_) << "and nothing was told";
  }
  if (poppedUp_) CheckSelection(*poppedUp_);
}

/// The first activation, after a start behind another window, may lead on to the Previous Window.
bool SimulatedLife::LeadsOn() {
  return !korvale_->State().firstActivation && korvale_->Options().booSelectPrevWinOnStart;
}

void SimulatedLife::GoToKorvale() {
  const WindowHandle main = korvale_->Handle();
  const bool leadsOn = LeadsOn();
  desktop.UserActivates(main);
  if (leadsOn) desktop.UserActivates(main);
  EXPECT_EQ(desktop.Windows().Foreground(), main);
  if (!korvale_->user.MenuBarItems(korvale_->Handle()).empty()) return;
  korvale_->user.PressKey(korvale_->Handle(), 'V', kAlt);
  korvale_->user.PressKey(korvale_->Handle(), win32::kVkEscape);
}

void SimulatedLife::UseMenu(const std::vector<std::string>& path) {
  Note("chooses [" + path.back() + "]");
  GoToKorvale();
  korvale_->user.ChooseMenu(korvale_->Handle(), path);
}

std::string SimulatedLife::SomeEntry(const std::vector<ShownMenuItem>& items) {
  std::vector<std::string> captions;
  for (const ShownMenuItem& item : items) {
    if (item.enabled && item.caption != "-") captions.push_back(item.caption);
  }
  return dice_.Pick(captions);
}

void SimulatedLife::UseWindowMenu() {
  GoToKorvale();
  const std::vector<ShownMenuItem> items = korvale_->WindowMenuItems();
  const std::string caption = dice_.OneIn(3) ? items.back().caption : SomeEntry(items);
  // A title that changes with each reading is another one when the menu is opened again.
  if (caption.find(" % - ") != std::string::npos) return;
  Note("chooses [" + caption + "] from the Window menu");
  if (!items.back().enabled && caption == items.back().caption) return;
  if (!IsTagEntry(caption)) {
    return korvale_->user.ChooseMenu(korvale_->Handle(), {"Window", caption});
  }
  const Before before = LookBefore(caption[0] - '0');
  korvale_->user.ChooseMenu(korvale_->Handle(), {"Window", caption});
  CheckSelection(before);
}

void SimulatedLife::UseViewMenu() {
  switch (dice_.Below(4)) {
    case 0:
      return UseMenu({"View", "Menu"});
    case 1:
      return UseMenu({"View", "Target Window"});
    case 2:
      return UseMenu({"View", "Default Settings", "Target Window/Class Colors"});
    default:
      return UseMenu({"Help", "Display Tip Messages"});
  }
}

void SimulatedLife::ToggleFromMenu() {
  UseMenu({"Tools", hotKeysOn_ ? "Deactivate Hot Keys" : "Activate Hot Keys"});
  hotKeysOn_ = !hotKeysOn_;
  HotKeysRegistered();
}

void SimulatedLife::MinimizeKorvale() {
  Note("minimizes Korvale");
  desktop.UserMinimizes(korvale_->Handle());
}

void SimulatedLife::MoveKorvale() {
  Note("moves Korvale");
  desktop.UserActivates(korvale_->Handle());
  if (korvale_->Form().WindowState() != ShowState::kNormal) return;
  TwipsRect place = korvale_->user.Place(korvale_->Handle());
  place.left = 15 * dice_.Below(400);
  place.top = 15 * dice_.Below(400);
  place.width += 15 * (dice_.Below(41) - 20);
  korvale_->user.Drag(korvale_->Handle(), place);
}

}  // namespace korvale
