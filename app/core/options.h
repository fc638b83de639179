#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "platform/types.h"

namespace korvale {

inline constexpr Color kDefaultHotKeyEnabledColor = 0x0080FFFF;

/// All user options. Modifiers are sums of MOD_ values, keys are virtual-key codes with 0 = no
/// key. Field and store key of each stand together in the settings table.
struct clsOptions {
  bool booSplashScreen = true;
  bool booSelectPrevWinOnStart = false;
  bool booAllowNoTextWindow = false;
  bool booAllowToolbarWindow = false;
  Color colHotKeyEnabled = kDefaultHotKeyEnabledColor;
  /// Has no store key on purpose: every run starts with false.
  bool booAllowModalFrameWindow = false;
  std::int16_t intHotKeyModParent = 1;
  std::array<bool, 10> booHotKeyParent = {true, true, true, true, true,
                                          true, true, true, true, true};
  /// 0 = minimize, 1 = restore/maximize the foreground window: Alt+Down, Alt+Up.
  std::array<std::int16_t, 2> intHotKeyModAction = {1, 1};
  std::array<std::int16_t, 2> intHotKeyAction = {40, 38};
  /// 0 = Options dialog, 1 = Window menu, 2 = toggle: Windows+O, Windows+W, Pause.
  std::array<std::int16_t, 3> intHotKeyModGeneral = {8, 8, 0};
  std::array<std::int16_t, 3> intHotKeyGeneral = {79, 87, 19};

  friend bool operator==(const clsOptions&, const clsOptions&) = default;
};

/// Holds the one options record of the run, from start-up to shutdown.
class OptionsHolder {
 public:
  void Create() { options_.emplace(); }
  void Release() { options_.reset(); }
  bool Exists() const { return options_.has_value(); }

  /// The record; error 91 before Create and after Release.
  clsOptions& Get();
  const clsOptions& Get() const;

 private:
  std::optional<clsOptions> options_;
};

}  // namespace korvale
