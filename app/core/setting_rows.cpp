#include "app/core/setting_rows.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

#include "util/text.h"

namespace korvale {
namespace {

template <auto Member, typename Record>
SettingField Field(Record& record) {
  return &(record.*Member);
}

template <auto Member, std::size_t Index>
SettingField OptionAt(clsOptions& options) {
  return &(options.*Member)[Index];
}

template <std::size_t Tag>
constexpr auto kTagEnabled = OptionAt<&clsOptions::booHotKeyParent, Tag>;

constexpr std::array kPlainRows = std::to_array<SettingRow<clsOptions>>({
    {kOptionsSection, "SplashScreen", Field<&clsOptions::booSplashScreen>},
    {kOptionsSection, "SelectPrevWinOnStart", Field<&clsOptions::booSelectPrevWinOnStart>},
    {kOptionsSection, "AllowNoTextWindow", Field<&clsOptions::booAllowNoTextWindow>},
    {kOptionsSection, "AllowToolbarWindow", Field<&clsOptions::booAllowToolbarWindow>},
    {kOptionsSection, "HotKeyEnabled", Field<&clsOptions::colHotKeyEnabled>},
    {kOptionsSection, "HotKeyModParent", Field<&clsOptions::intHotKeyModParent>},
    {kOptionsSection, "HotKeyParent0", kTagEnabled<0>},
    {kOptionsSection, "HotKeyParent1", kTagEnabled<1>},
    {kOptionsSection, "HotKeyParent2", kTagEnabled<2>},
    {kOptionsSection, "HotKeyParent3", kTagEnabled<3>},
    {kOptionsSection, "HotKeyParent4", kTagEnabled<4>},
    {kOptionsSection, "HotKeyParent5", kTagEnabled<5>},
    {kOptionsSection, "HotKeyParent6", kTagEnabled<6>},
    {kOptionsSection, "HotKeyParent7", kTagEnabled<7>},
    {kOptionsSection, "HotKeyParent8", kTagEnabled<8>},
    {kOptionsSection, "HotKeyParent9", kTagEnabled<9>},
});

/// The modifiers (column 0) or the key (column 1) of an operation.
template <std::size_t Column, std::size_t Row>
SettingField OfOperation(clsOptions& options) {
  return &std::get<Column>(OperationFields(options, kOperations[Row]));
}

template <std::size_t Column, std::size_t... Rows>
constexpr auto OperationSettings(const char* OperationRow::*key,
                                 std::index_sequence<Rows...> /*all*/) {
  return std::to_array<SettingRow<clsOptions>>(
      {{kOptionsSection, kOperations[Rows].*key, OfOperation<Column, Rows>}...});
}

/// All plain options, then of each group of operations all modifiers and all keys.
constexpr auto kOptionRows = [] {
  constexpr std::make_index_sequence<kOperations.size()> kAll;
  const std::array columns = {OperationSettings<0>(&OperationRow::modifiersSetting, kAll),
                              OperationSettings<1>(&OperationRow::keySetting, kAll)};
  std::array<SettingRow<clsOptions>, kPlainRows.size() + 2 * kOperations.size()> rows{};
  auto next = std::ranges::copy(kPlainRows, rows.begin()).out;
  for (const OperationGroup group : {OperationGroup::kAction, OperationGroup::kGeneral}) {
    for (const auto& column : columns) {
      for (std::size_t i = 0; i < column.size(); ++i) {
        if (kOperations[i].group == group) *next++ = column[i];
      }
    }
  }
  return rows;
}();

constexpr SettingRow<StartupSettings> PlaceRow(const char* key,
                                               SettingField (*field)(StartupSettings&)) {
  return {kStartupSection, key, field, OnImport::kDrop, -kFarthestPlace, kFarthestPlace};
}

constexpr std::array kStartupRows = std::to_array<SettingRow<StartupSettings>>({
    {kStartupSection, "WindowState", Field<&StartupSettings::WindowState>, OnImport::kDrop, 0, 2},
    PlaceRow("Left", Field<&StartupSettings::Left>),
    PlaceRow("Top", Field<&StartupSettings::Top>),
    PlaceRow("Width", Field<&StartupSettings::Width>),
    PlaceRow("Height", Field<&StartupSettings::Height>),
    {kStartupSection, "AlwaysOnTop", Field<&StartupSettings::AlwaysOnTop>},
    {kStartupSection, "WI1BackColor", Field<&StartupSettings::WI1BackColor>},
    {kStartupSection, "WI2BackColor", Field<&StartupSettings::WI2BackColor>},
    {kStartupSection, "Tips", Field<&StartupSettings::Tips>},
    {kStartupSection, "DisplayTips", Field<&StartupSettings::DisplayTips>, OnImport::kDrop},
    {kStartupSection, "LastColorSelected", Field<&StartupSettings::LastColorSelected>},
    {kStartupSection, "Menu", Field<&StartupSettings::Menu>},
    {kStartupSection, "OptionsTab", Field<&StartupSettings::OptionsTab>, OnImport::kKeep,
     kGeneralPage, kLastOptionsPage},
    {kStartupSection, "WindowInfo", Field<&StartupSettings::WindowInfo>},
});

template <typename Value>
std::optional<Value> Converted(const std::string& text, std::int32_t least, std::int32_t most) {
  if constexpr (std::is_same_v<Value, bool>) {
    return ParseBoolean(text);
  } else if constexpr (std::is_same_v<Value, std::string>) {
    return text;
  } else {
    std::optional<Value> number;
    if constexpr (std::is_same_v<Value, std::int16_t>) {
      number = ParseInt16(text);
    } else {
      number = ParseInt32(text);
    }
    if (number && (*number < least || *number > most)) number.reset();
    return number;
  }
}

}  // namespace

std::span<const SettingRow<clsOptions>> OptionRows() { return kOptionRows; }

std::span<const SettingRow<StartupSettings>> StartupRows() { return kStartupRows; }

bool ReadSetting(const std::optional<std::string>& stored, SettingField field, std::int32_t least,
                 std::int32_t most) {
  if (!stored) return false;
  return std::visit(
      [&](auto* target) {
        const auto value = Converted<std::remove_pointer_t<decltype(target)>>(*stored, least, most);
        if (value) *target = *value;
        return value.has_value();
      },
      field);
}

std::string SettingText(SettingField field) {
  struct Text {
    std::string operator()(const bool* value) const { return *value ? "True" : "False"; }
    std::string operator()(const std::int16_t* value) const { return DecimalText(*value); }
    std::string operator()(const std::int32_t* value) const { return DecimalText(*value); }
    std::string operator()(const std::string* value) const { return *value; }
  };
  return std::visit(Text(), field);
}

void CopySetting(SettingField from, SettingField to) {
  std::visit(
      [&](auto* target) { *target = *std::get<std::remove_cvref_t<decltype(target)>>(from); }, to);
}

}  // namespace korvale
