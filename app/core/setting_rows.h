#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <variant>

#include "app/core/options.h"
#include "app/core/startup_settings.h"

namespace korvale {

inline constexpr const char* kOptionsSection = "Options";
inline constexpr const char* kStartupSection = "Startup";

/// The field of a record that holds one setting. Its type fixes the conversion: "True"/"False",
/// decimal text within 16 or 32 bits, or the text itself.
using SettingField = std::variant<bool*, std::int16_t*, std::int32_t*, std::string*>;

/// What becomes of a setting that is taken over from another installation.
enum class OnImport : bool { kKeep, kDrop };

/// One setting: where it is stored and which field of the record holds it. The default is what a
/// new record holds.
template <typename Record>
struct SettingRow {
  const char* section;
  const char* key;
  SettingField (*field)(Record&);
  OnImport onImport = OnImport::kKeep;
  /// Numbers outside these bounds count as not convertible.
  std::int32_t least = std::numeric_limits<std::int32_t>::min();
  std::int32_t most = std::numeric_limits<std::int32_t>::max();
};

/// All stored settings of a record in the order in which they are read and written.
std::span<const SettingRow<clsOptions>> OptionRows();
std::span<const SettingRow<StartupSettings>> StartupRows();

/// Converts a stored text into the field. False, with the field unchanged, when there is no text,
/// it is not of the field's type, or the number is outside `least`..`most`.
bool ReadSetting(const std::optional<std::string>& stored, SettingField field, std::int32_t least,
                 std::int32_t most);

/// The field's value as it is stored.
std::string SettingText(SettingField field);

/// Copies the value of one field to another of the same type.
void CopySetting(SettingField from, SettingField to);

}  // namespace korvale
