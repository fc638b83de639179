#include "hotkeys/hot_key_toggle.h"

#include <cstdint>
#include <string>

#include "app/core/identity.h"

namespace korvale {
namespace {

constexpr std::int16_t kToggleTipHeight = 3000;
constexpr std::uint32_t kNoticeMilliseconds = 800;

}  // namespace

HotKeyToggle::HotKeyToggle(HotKeyTable& table, const OptionsHolder& options, HotKeyActions& actions)
    : table_(&table), options_(&options), actions_(&actions) {}

void HotKeyToggle::ToggleHotKeys(std::string_view caller) {
  if (table_->HotKeysActive()) {
    SwitchOff(caller);
  } else {
    SwitchOn();
  }
}

void HotKeyToggle::SwitchOff(std::string_view caller) {
  if (caller == kToggleFromMenu) {
    actions_->ShowTip(TipNumber::kHotKeysDeactivated,
                      "This deactivates all hot keys except the hot key assigned to "
                      "Activate/Deactivate Hot Keys.  When Korvale is installed, the default hot "
                      "key to Activate/Deactivate Hot Keys is "
                      "the Pause key.  If you wish, this hot key can be changed on the Hot "
                      "Keys tab of the Options dialog box.",
                      "TIP", kToggleTipHeight);
    // The session may end while the tip is shown.
    if (!options_->Exists()) return;
  }
  table_->SetHotKeysActive(false);
  table_->SetHotKeys("REMOVE");
  table_->ResetHotKeyCount();
  table_->AddOperation(RowOf(Operation::kToggleHotKeys));
  actions_->HotKeysRegistered();
  actions_->ShowWaitWindow(std::string(kProductName) + " - Hot Keys (OFF)",
                           "Hot Keys are now Deactivated", kNoticeMilliseconds);
}

void HotKeyToggle::SwitchOn() {
  table_->SetHotKeysActive(true);
  table_->SetHotKeys("REMOVE");
  table_->SetHotKeys("SET");
  actions_->HotKeysRegistered();
  actions_->ShowWaitWindow(std::string(kProductName) + " - Hot Keys (ON)",
                           "Hot Keys are now Activated", kNoticeMilliseconds);
}

}  // namespace korvale
