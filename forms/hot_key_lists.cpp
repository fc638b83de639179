#include "forms/hot_key_lists.h"

#include <algorithm>
#include <vector>

#include "platform/win32_constants.h"
#include "util/lists.h"
#include "util/text.h"

namespace korvale {
namespace {

/// One entry of a list: what the user reads, and the number that RegisterHotKey gets.
struct HotKeyChoice {
  const char* text;
  std::int16_t value;
};

constexpr const char* kModifierList = "cboHotKeyMod";

constexpr HotKeyChoice kModifiers[] = {
    {" ", 0},
    {"Alt", win32::kModAlt},
    {"Ctrl", win32::kModControl},
    {"Shift", win32::kModShift},
    {"Windows®", win32::kModWin},
};

// The keypad and the arrows come in the order that users of the program know.
constexpr HotKeyChoice kKeys[] = {
    {" ", 0},           {"F1", 0x70},        {"F2", 0x71},        {"F3", 0x72},
    {"F4", 0x73},       {"F5", 0x74},        {"F6", 0x75},        {"F7", 0x76},
    {"F8", 0x77},       {"F9", 0x78},        {"F10", 0x79},       {"F11", 0x7A},
    {"F12", 0x7B},      {"PrintScrn", 0x2C}, {"Pause", 0x13},     {"Numpad /", 0x6F},
    {"Numpad *", 0x6A}, {"Numpad -", 0x6D},  {"Numpad +", 0x6B},  {"Numpad .", 0x6E},
    {"Numpad 0", 0x60}, {"Numpad 1", 0x61},  {"Numpad 2", 0x62},  {"Numpad 3", 0x63},
    {"Numpad 4", 0x64}, {"Numpad 5", 0x65},  {"Numpad 6", 0x66},  {"Numpad 7", 0x67},
    {"Numpad 8", 0x68}, {"Numpad 9", 0x69},  {"A", 65},           {"B", 66},
    {"C", 67},          {"D", 68},           {"E", 69},           {"F", 70},
    {"G", 71},          {"H", 72},           {"I", 73},           {"J", 74},
    {"K", 75},          {"L", 76},           {"M", 77},           {"N", 78},
    {"O", 79},          {"P", 80},           {"Q", 81},           {"R", 82},
    {"S", 83},          {"T", 84},           {"U", 85},           {"V", 86},
    {"W", 87},          {"X", 88},           {"Y", 89},           {"Z", 90},
    {"Insert", 0x2D},   {"Delete", 0x2E},    {"DownArrow", 0x28}, {"UpArrow", 0x26},
};

void Fill(Control& list, std::span<const HotKeyChoice> choices) {
  std::vector<ListItem> items;
  for (const HotKeyChoice& choice : choices) items.push_back({choice.text, choice.value});
  list.AddItems(items);
}

std::string KeyText(std::int16_t key) {
  // Digits belong to the Tags and are in no list.
  if (key >= '0' && key <= '9') return std::string(1, static_cast<char>(key));
  const auto choice = std::ranges::find(kKeys, key, &HotKeyChoice::value);
  return choice == std::end(kKeys) ? "Key " + DecimalText(key) : choice->text;
}

/// A combination as the user reads it: "Alt+3", "Windows®+W", "Pause".
std::string HotKeyText(std::int16_t modifiers, std::int16_t key) {
  std::string text;
  for (const HotKeyChoice& choice : kModifiers) {
    if ((modifiers & choice.value) != 0) text.append(choice.text).append("+");
  }
  return text + KeyText(key);
}

/// The entry that a key stands for, -1 = none.
std::int16_t EntryOf(const Control& list, int key) {
  return FindListIndex(list.Items(), key == win32::kVkSpace ? 0 : key, "ITEM_DATA");
}

/// The combinations of the hot keys that `chosen` picks, each once, separated by commas.
template <typename Choose>
std::string Listed(std::span<const RegisteredHotKey> registered, Choose chosen) {
  std::vector<std::string> texts;
  for (const RegisteredHotKey& hotKey : registered) {
    if (!chosen(hotKey)) continue;
    const std::string text = HotKeyText(hotKey.modifiers, hotKey.key);
    if (std::ranges::find(texts, text) == texts.end()) texts.push_back(text);
  }
  std::string list;
  for (const std::string& text : texts) list += list.empty() ? text : ", " + text;
  return list;
}

}  // namespace

bool IsKeyList(const Control& control) {
  return control.Name().starts_with("cboHotKey") && !control.Name().starts_with(kModifierList);
}

void FillHotKeyLists(Form& form) {
  for (Control& control : form.Controls()) {
    if (control.Name().starts_with(kModifierList)) Fill(control, kModifiers);
    if (IsKeyList(control)) Fill(control, kKeys);
  }
}

void KeyListKeys::Down(const Control& list, int& key, unsigned shift, bool repeated) {
  if (!repeated) Forget();
  if ((shift & kWindows) != 0) {
    // The key belongs to Windows and must not reach the list as a character either.
    if (EntryOf(list, key) >= 0) key = 0;
    return;
  }
  const bool open = list.Dropped();
  const bool moves = open && (key == win32::kVkDown || key == win32::kVkUp);
  if (shift != kNoShift || moves || EntryOf(list, key) < 0) return;
  if (!repeated) pressed_ = {list.Id(), key};
  if (!open) key = 0;
}

void KeyListKeys::Up(Control& list, int& key, unsigned shift) {
  if (pressed_ != Press{list.Id(), key}) return;
  Forget();
  const std::int16_t index = EntryOf(list, key);
  if (shift != kNoShift || index < 0) return;
  list.SetListIndex(index);
  key = 0;
}

std::string NotAvailableText(std::span<const RegisteredHotKey> registered) {
  return Listed(registered, [](const RegisteredHotKey& hotKey) {
    return !hotKey.accepted && !hotKey.chosenBefore;
  });
}

std::string ChosenTwiceText(std::span<const RegisteredHotKey> registered) {
  return Listed(registered, [](const RegisteredHotKey& hotKey) { return hotKey.chosenBefore; });
}

}  // namespace korvale
