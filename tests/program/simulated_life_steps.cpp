#include <algorithm>

#include "platform/win32_constants.h"
#include "tests/program/simulated_life.h"

namespace korvale {
namespace {

constexpr std::uint32_t kDigitZeroKey = '0';

bool IsTagEntry(const std::string& caption) {
  return caption.size() >= 3 && caption[0] >= '0' && caption[0] <= '9' &&
         caption.substr(1, 2) == "  ";
}

}  // namespace

const std::vector<SimulatedLife::Step>& SimulatedLife::Steps() {
  static const std::vector<Step> steps = {
      {1000, &SimulatedLife::OtherPrograms},
      {150, &SimulatedLife::PassTime},
      {10, &SimulatedLife::TakeCombination},
      {200, &SimulatedLife::PressTagKey},
      {40, &SimulatedLife::PressActionKey},
      {8, &SimulatedLife::PressToggleKey},
      {50, &SimulatedLife::PopUpWindowMenu},
      {30, &SimulatedLife::UseWindowMenu},
      {15, &SimulatedLife::UseOtherMenu},
      {8, &SimulatedLife::MoveKorvale},
      {30, &SimulatedLife::UseOptions},
      {2, &SimulatedLife::Restart},
      {1, &SimulatedLife::Kill},
  };
  return steps;
}

void SimulatedLife::OtherPrograms() {
  Note("a program " + programs_->Act());
  if (!dice_->OneIn(3)) Wait(100);
}

void SimulatedLife::PassTime() {
  const int milliseconds = 50 * (1 + dice_->Below(8));
  Note(std::to_string(milliseconds) + " ms pass");
  Wait(milliseconds);
}

/// The main window may be in front for a moment after its menu was popped up.
void SimulatedLife::Wait(int milliseconds) {
  clock.Advance(static_cast<std::uint64_t>(milliseconds));
  const WindowHandle front = desktop.Windows().Foreground();
  if (milliseconds >= (front == korvale_->Handle() ? 200 : 100) && IsFollowed(front)) {
    workedIn_.Work(front);
  }
}

void SimulatedLife::TakeCombination() {
  const auto modifiers = static_cast<std::uint32_t>(1 + dice_->Below(2));
  const std::uint32_t key = kDigitZeroKey + static_cast<std::uint32_t>(dice_->Below(10));
  if (dice_->OneIn(2) && hotKeys.RegisterForeign(modifiers, key)) {
    Note("a program takes a combination");
    taken_.insert({modifiers, key});
  } else {
    hotKeys.ReleaseForeign(modifiers, key);
  }
}

std::vector<SimulatedLife::HotKey> SimulatedLife::WorkingHotKeys() {
  std::set<Combination> registered;
  for (const auto& held : hotKeys.Registered()) registered.insert({held.modifiers, held.key});
  std::vector<HotKey> working = WantedHotKeys();
  std::erase_if(working,
                [&](const HotKey& hotKey) { return registered.erase(hotKey.combination) == 0; });
  return working;
}

std::optional<SimulatedLife::HotKey> SimulatedLife::Working(const std::string& name) {
  for (const HotKey& hotKey : WorkingHotKeys()) {
    if (hotKey.name == name) return hotKey;
  }
  return std::nullopt;
}

void SimulatedLife::Press(const HotKey& hotKey) {
  Note("presses " + hotKey.name);
  EXPECT_TRUE(hotKeys.Press(hotKey.combination.first, hotKey.combination.second));
}

void SimulatedLife::PressTagKey() {
  const int tag = dice_->OneIn(3) ? 0 : dice_->Below(10);
  const std::optional<HotKey> hotKey = Working("HOTKEY_PARENT" + std::to_string(tag));
  if (!hotKey) return;
  const Before before = LookBefore(tag);
  Press(*hotKey);
  CheckSelection(before);
}

void SimulatedLife::PressActionKey() {
  const std::optional<HotKey> hotKey =
      Working(dice_->OneIn(2) ? "HOTKEY_MINIMIZE_PARENT" : "HOTKEY_RESTORE/MAXIMIZE_PARENT");
  if (hotKey) Press(*hotKey);
}

void SimulatedLife::PressToggleKey() {
  const std::optional<HotKey> hotKey = Working("HOTKEY_TOGGLE_HOTKEYS");
  if (hotKey) Press(*hotKey);
}

void SimulatedLife::PopUpWindowMenu() {
  const std::optional<HotKey> hotKey = Working("HOTKEY_WINDOW_MENU_POPUP");
  // Without the foreground no menu opens.
  if (!hotKey || programs_->ForegroundLocked()) return;
  korvale_->host.WhenPopupMenu([this](const std::vector<ShownMenuItem>& items) {
    const std::string caption = dice_->OneIn(4) ? "" : SomeEntry(items);
    Note("  chooses [" + caption + "]");
    if (IsTagEntry(caption)) poppedUp_ = LookBefore(caption[0] - '0');
    return caption;
  });
  poppedUp_.reset();
  Press(*hotKey);
  if (poppedUp_) CheckSelection(*poppedUp_);
}

void SimulatedLife::GoToKorvale() {
  const WindowHandle main = korvale_->Handle();
  // The first activation, after a start behind another window, may lead on to the Previous Window.
  const bool leadsOn =
      !korvale_->State().firstActivation && korvale_->Options().booSelectPrevWinOnStart;
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
  return dice_->Pick(captions);
}

void SimulatedLife::UseWindowMenu() {
  GoToKorvale();
  const std::vector<ShownMenuItem> items = korvale_->WindowMenuItems();
  const std::string caption = dice_->OneIn(3) ? items.back().caption : SomeEntry(items);
  Note("chooses [" + caption + "] from the Window menu");
  if (!items.back().enabled && caption == items.back().caption) return;
  if (!IsTagEntry(caption)) {
    return korvale_->user.ChooseMenu(korvale_->Handle(), {"Window", caption});
  }
  const Before before = LookBefore(caption[0] - '0');
  korvale_->user.ChooseMenu(korvale_->Handle(), {"Window", caption});
  CheckSelection(before);
}

void SimulatedLife::UseOtherMenu() {
  switch (dice_->Below(6)) {
    case 0:
      return UseMenu({"View", "Menu"});
    case 1:
      return UseMenu({"View", "Target Window"});
    case 2:
      return UseMenu({"View", "Default Settings", "Target Window/Class Colors"});
    case 3:
      return UseMenu({"Help", "Display Tip Messages"});
    default:
      return UseMenu({"Tools", korvale_->HotKeys().HotKeysActive() ? "Deactivate Hot Keys"
                                                                   : "Activate Hot Keys"});
  }
}

void SimulatedLife::MoveKorvale() {
  if (dice_->OneIn(4)) {
    Note("minimizes Korvale");
    return desktop.UserMinimizes(korvale_->Handle());
  }
  Note("moves Korvale");
  desktop.UserActivates(korvale_->Handle());
  if (korvale_->Form().WindowState() != ShowState::kNormal) return;
  TwipsRect place = korvale_->user.Place(korvale_->Handle());
  place.left = 15 * dice_->Below(400);
  place.top = 15 * dice_->Below(400);
  place.width += 15 * (dice_->Below(41) - 20);
  korvale_->user.Drag(korvale_->Handle(), place);
}

void SimulatedLife::Restart() {
  Note("restarts Korvale");
  Kept before = KeptBy(*korvale_);
  const TwipsRect place = korvale_->user.Place(korvale_->Handle());
  // A hidden menu bar that the keyboard has just brought up makes the strip higher for a moment.
  const bool barAsChosen = korvale_->Form().State().menuShown == korvale_->Startup().Menu;
  const bool normal = korvale_->Form().WindowState() == ShowState::kNormal && barAsChosen;
  if (dice_->OneIn(2)) {
    desktop.UserActivates(korvale_->Handle());
    korvale_->user.PressCloseBox(korvale_->Handle());
  } else {
    UseMenu({"File", "Exit"});
  }
  before.startup = korvale_->Startup();
  EXPECT_FALSE(korvale_->Form().IsLoaded());
  EXPECT_TRUE(hotKeys.Registered().empty());
  EXPECT_EQ(store.GetAllSettings("Korvale - Work", "ParentWindowList").size(), before.tags.size());
  ForgetKorvale();
  StartKorvale();
  ExpectKept(before);
  if (normal) {
    EXPECT_EQ(korvale_->user.Place(korvale_->Handle()), place);
  }
  // The height follows from what the window shows.
  before.startup.Height = korvale_->Startup().Height;
  // The tip about refused hot keys may have been silenced.
  before.startup.Tips = korvale_->Startup().Tips;
  EXPECT_EQ(korvale_->Startup(), before.startup);
}

void SimulatedLife::Kill() {
  Note("kills Korvale");
  const Kept before = KeptBy(*korvale_);
  ForgetKorvale();
  StartKorvale();
  ExpectKept(before);
}

void SimulatedLife::ExpectKept(const Kept& before) {
  const Kept after = KeptBy(*korvale_);
  EXPECT_EQ(after.options, before.options);
  EXPECT_EQ(after.tags, before.tags);
}

}  // namespace korvale
