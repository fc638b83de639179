#include <array>

#include "platform/win32_constants.h"
#include "tests/simulated/simulated_life.h"
#include "util/contrast.h"

namespace korvale {
namespace {

constexpr std::uint32_t kDigitZeroKey = '0';

}  // namespace

void SimulatedLife::TakeCombination() {
  const auto modifiers = static_cast<std::uint32_t>(1 + dice_.Below(2));
  const std::uint32_t key = kDigitZeroKey + static_cast<std::uint32_t>(dice_.Below(10));
  if (!hotKeys.RegisterForeign(modifiers, key)) return;
  Note("a program takes " + std::to_string(modifiers) + "+" + std::to_string(key));
  foreign_.insert({modifiers, key});
}

void SimulatedLife::ReleaseCombination() {
  if (foreign_.empty()) return;
  const Combination released = dice_.Pick(foreign_);
  Note("a program gives " + std::to_string(released.first) + "+" + std::to_string(released.second) +
       " back");
  hotKeys.ReleaseForeign(released.first, released.second);
  foreign_.erase(released);
}

/// As Explorer does when it starts.
void SimulatedLife::StartShellKeys() {
  Note("Explorer takes its hot keys");
  for (const char key : FakeHotKeys::kShellKeys) {
    const Combination combination = {win32::kModWin, static_cast<std::uint32_t>(key)};
    if (hotKeys.RegisterForeign(combination.first, combination.second)) {
      foreign_.insert(combination);
    }
  }
}

void SimulatedLife::WakeComputer() {
  Note("the computer sleeps and wakes up");
  hotKeys.modernStandby = dice_.OneIn(2);
  clock.Sleep(static_cast<std::uint32_t>(1000 * dice_.Below(6)));
  hotKeys.EndSleep();
  // Without Modern Standby every window is told.
  if (!isTold_ && hotKeys.modernStandby) return;
  std::erase_if(refused_, [this](const Combination& each) { return !foreign_.contains(each); });
}

void SimulatedLife::UnlockSession() {
  Note("the user unlocks the session");
  hotKeys.ChangeSession(win32::kWtsSessionUnlock);
  if (!isTold_) return;
  std::erase_if(refused_, [this](const Combination& each) { return !foreign_.contains(each); });
}

/// As users do who know where they want to go, they do not wait until they see the new desktop.
void SimulatedLife::SwitchDesktopSlowly() {
  desktop.Windows().AnimateSwitch(true);
  const std::string told = programs_.SwitchDesktop();
  if (!told.empty()) {
    Note("a program " + told + ", slowly");
    switch (dice_.Below(4)) {
      case 0:
        PopUpWindowMenu();
        break;
      case 1:
        PressActionKey();
        break;
      default:
        PressTagKey();
    }
  }
  desktop.Windows().AnimateSwitch(false);
}

/// From now on the user may find later what they change, or not; false when it is so already.
bool SimulatedLife::BeginRefusal(const std::string& what) {
  if (storeRefuses_) return false;
  Note(what);
  if (mayBeKept_.empty()) mayBeKept_.push_back(KeptBy(*korvale_));
  storeRefuses_ = true;
  expectedError_ = "VB ERROR 70 - Permission denied";
  return true;
}

/// Some changes, all of them, or one value.
void SimulatedLife::RefuseStore() {
  using Refusal = FakeSettingsStore::Refusal;
  constexpr std::array kRefusals = {Refusal::kOne, Refusal::kAll, Refusal::kSaves};
  switch (dice_.Below(3)) {
    case 0:
      if (BeginRefusal("the store refuses all changes")) store.RefuseWrites(true);
      return;
    case 1:
      if (!BeginRefusal("the store refuses one value")) return;
      return store.RefuseValue("Korvale - Work", "Options", "SplashScreen");
    default:
      if (!BeginRefusal("the store refuses changes from some on")) return;
      return store.RefuseAfterWrites(dice_.Below(30), dice_.Pick(kRefusals));
  }
}

/// Neither a value nor a line of the error log can be written any more.
void SimulatedLife::FillDisk() {
  if (!BeginRefusal("the disk is full")) return;
  session->diskFull = true;
  store.RefuseAfterWrites(dice_.Below(10), FakeSettingsStore::Refusal::kSaves);
}

void SimulatedLife::AcceptStore() {
  if (!storeRefuses_) return;
  Note("the store accepts all changes again");
  storeRefuses_ = false;
  expectedError_.clear();
  session->diskFull = false;
  store.RefuseNothing();
}

/// As it is when a program starts.
void SimulatedLife::SetUpScreen(HeadlessFormHost& host) {
  host.SetDpi(dpi_);
  host.ChangeTextSize(textPercent_);
  host.ChangeWorkArea(workArea_);
  host.ChangeSysColor(kWindowColor, dark_ ? 0x000000 : 0xFFFFFF);
  host.ChangeSysColor(kWindowTextColor, dark_ ? 0xFFFFFF : 0x000000);
  host.ChangeSysColor(kButtonFaceColor, dark_ ? 0x202020 : 0xF0F0F0);
  host.ChangeSysColor(kButtonTextColor, dark_ ? 0xFFFFFF : 0x000000);
  host.ChangeHighContrast(highContrast_);
}

void SimulatedLife::ChangeDpi() {
  constexpr std::array kDpis = {96, 120, 144, 192};
  dpi_ = dice_.Pick(kDpis);
  Note("the monitor has " + std::to_string(dpi_) + " dpi");
  korvale_->host.SetDpi(dpi_);
  for (const LoadedForm& form : korvale_->Form().Collection().List()) {
    korvale_->host.Tell(form.handle, [](FormEvents& events) { events.OnDpiChanged(); });
  }
}

void SimulatedLife::ChangeTextSize() {
  textPercent_ = 100 + 25 * dice_.Below(6);
  Note("text has " + std::to_string(textPercent_) + " %");
  korvale_->host.ChangeTextSize(textPercent_);
}

void SimulatedLife::ChangeWorkArea() {
  workArea_ = {0, 0, 15 * (1024 + dice_.Below(1000)), 15 * (700 + dice_.Below(500))};
  Note("the work area is " + std::to_string(workArea_.width) + " x " +
       std::to_string(workArea_.height));
  korvale_->host.ChangeWorkArea(workArea_);
}

/// Whatever the theme, the user can read what stands in the strip.
void SimulatedLife::ChangeColors() {
  dark_ = dice_.OneIn(2);
  highContrast_ = dice_.OneIn(3);
  Note(std::string(dark_ ? "the theme is dark" : "the theme is bright") +
       (highContrast_ ? ", with high contrast" : ""));
  HeadlessFormHost& host = korvale_->host;
  SetUpScreen(host);
  for (const char* const name : {"txtWindow", "txtWindowClass"}) {
    const ControlState& field =
        korvale_->user.Look(korvale_->Handle(), korvale_->Form().Find(name).Id());
    EXPECT_GE(ContrastRatio(host.GetSysColor(field.foreColor), host.GetSysColor(field.backColor)),
              4.5);
  }
}

/// The user is told, and can go on.
void SimulatedLife::RefuseOptionsDialog() {
  const Form* const dialog = korvale_->FindForm("frmOptions");
  if (dialog != nullptr && korvale_->user.IsShown(dialog->Handle())) {
    korvale_->user.PressCloseBox(dialog->Handle());
  }
  if (korvale_->FindForm("frmOptions") != nullptr) return;
  Note("Windows has no memory for the Options dialog");
  const std::size_t boxes = korvale_->host.Messages().size();
  const std::string before = std::exchange(expectedError_, "VB ERROR 7 - Out of memory");
  korvale_->host.RefuseNextWindow("frmOptions");
  UseMenu({"Tools", "Options..."});
  expectedError_ = before;
  EXPECT_EQ(korvale_->FindForm("frmOptions"), nullptr);
  EXPECT_GT(korvale_->host.Messages().size(), boxes);
}

void SimulatedLife::PassTime() {
  const int milliseconds = 50 * (1 + dice_.Below(8));
  Note(std::to_string(milliseconds) + " ms pass");
  Wait(milliseconds);
}

/// One of the windows closes, hangs or changes at a moment when Korvale has read something of it.
void SimulatedLife::MeetFateAtKey() {
  const std::optional<HotKey> hotKey =
      Working("HOTKEY_PARENT" + std::to_string(dice_.OneIn(3) ? 0 : dice_.Below(10)));
  if (!hotKey) return;
  int calls = dice_.Below(60);
  log.BeforeEachCall([this, &calls](const std::string& call) {
    if (calls-- == 0) Note("before " + call + " a program " + programs_.MeetFate());
  });
  Press(*hotKey);
  log.BeforeEachCall({});
}

}  // namespace korvale
