#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <tuple>

#include "app/core/operations.h"
#include "platform/types.h"

namespace korvale {

inline constexpr Color kDefaultHotKeyEnabledColor = 0x0080FFFF;

/// All user options. Modifiers are sums of MOD_ values, keys are virtual-key codes with 0 = no key.
/// setting_rows.cpp pairs each field with its store key.
struct clsOptions {
  bool booSplashScreen = true;
  bool booSelectPrevWinOnStart = false;
  bool booAllowNoTextWindow = false;
  bool booAllowToolbarWindow = false;
  Color colHotKeyEnabled = kDefaultHotKeyEnabledColor;
  /// Deliberately not stored: every run starts with false.
  bool booAllowModalFrameWindow = false;
  std::int16_t intHotKeyModParent = 1;
  std::array<bool, 10> booHotKeyParent = {true, true, true, true, true,
                                          true, true, true, true, true};
  OperationValues<OperationGroup::kAction> intHotKeyModAction =
      OperationDefaults<OperationGroup::kAction>(&OperationRow::modifiers);
  OperationValues<OperationGroup::kAction> intHotKeyAction =
      OperationDefaults<OperationGroup::kAction>(&OperationRow::key);
  OperationValues<OperationGroup::kGeneral> intHotKeyModGeneral =
      OperationDefaults<OperationGroup::kGeneral>(&OperationRow::modifiers);
  OperationValues<OperationGroup::kGeneral> intHotKeyGeneral =
      OperationDefaults<OperationGroup::kGeneral>(&OperationRow::key);

  friend bool operator==(const clsOptions&, const clsOptions&) = default;
};

/// The fields of an operation: its modifiers, then its key.
template <typename Options>
constexpr auto OperationFields(Options& options, const OperationRow& row) {
  const auto at = static_cast<std::size_t>(row.index);
  return row.group == OperationGroup::kAction
             ? std::tie(options.intHotKeyModAction.at(at), options.intHotKeyAction.at(at))
             : std::tie(options.intHotKeyModGeneral.at(at), options.intHotKeyGeneral.at(at));
}

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
