#include <algorithm>
#include <string>
#include <utility>

#include "platform/win32_constants.h"
#include "tests/fakes/headless_user.h"
#include "tests/fakes/keys.h"
#include "util/characters.h"
#include "util/text.h"

namespace korvale {
namespace {

bool IsLetterKey(int virtualKey) { return virtualKey >= 'A' && virtualKey <= 'Z'; }
bool IsDigitKey(int virtualKey) { return virtualKey >= '0' && virtualKey <= '9'; }

bool OpensOrClosesList(int virtualKey, unsigned shift) {
  const bool alt = (shift & kAlt) != 0;
  return (virtualKey == win32::kVkF4 && !alt) ||
         (alt && (virtualKey == win32::kVkDown || virtualKey == win32::kVkUp));
}

/// The keyboard gives these keys, which controls see as keys, as characters too.
bool IsCharacterToo(int virtualKey, unsigned shift) {
  return (shift & (kCtrl | kAlt)) == 0 &&
         (virtualKey == win32::kVkReturn || virtualKey == win32::kVkEscape ||
          virtualKey == win32::kVkTab);
}

/// How far Page Up and Page Down move: a list shows thirty entries, of which one stays in sight.
constexpr int kPage = 29;

/// The entry that an arrow, paging, Home or End key leads to; -1 = the key does not move.
int MoveInList(int from, int count, int virtualKey) {
  if (count == 0) return -1;
  switch (virtualKey) {
    case win32::kVkDown:
    case win32::kVkRight:
      return std::min(from + 1, count - 1);
    case win32::kVkUp:
    case win32::kVkLeft:
      return std::max(from - 1, 0);
    case fakes::kVkPageDown:
      return std::min(from + kPage, count - 1);
    case fakes::kVkPageUp:
      return std::max(from - kPage, 0);
    case win32::kVkHome:
      return 0;
    case win32::kVkEnd:
      return count - 1;
    default:
      return -1;
  }
}

}  // namespace

HeadlessUser::Key HeadlessUser::KeyOf(int virtualKey, unsigned shift) {
  Key key = {virtualKey, shift, ""};
  if ((shift & kCtrl) != 0) return key;
  if (IsDigitKey(virtualKey) || virtualKey == win32::kVkSpace) {
    key.character = std::string(1, static_cast<char>(virtualKey));
  } else if (IsLetterKey(virtualKey)) {
    const int lowered = (shift & kShift) != 0 ? virtualKey : virtualKey - 'A' + 'a';
    key.character = std::string(1, static_cast<char>(lowered));
  }
  return key;
}

HeadlessUser::Key HeadlessUser::KeyOfCharacter(std::string_view character, bool alt) {
  const std::string upper = UpperCase(character);
  Key key = {fakes::kVkPacket, alt ? kAlt : kNoShift, std::string(character)};
  if (upper.size() == 1) {
    const int virtualKey = static_cast<unsigned char>(upper.front());
    const bool plainKey =
        IsLetterKey(virtualKey) || IsDigitKey(virtualKey) || virtualKey == win32::kVkSpace;
    if (plainKey) key.virtualKey = virtualKey;
    if (IsLetterKey(virtualKey) && upper == character) key.shift |= kShift;
  }
  return key;
}

void HeadlessUser::PressKey(WindowHandle hwnd, int virtualKey, unsigned shift) {
  Press(hwnd, KeyOf(virtualKey, shift));
  PressSentKeys(hwnd);
}

void HeadlessUser::PressSentKeys(WindowHandle hwnd) {
  while (!sentKeys_.empty()) {
    const Key key = sentKeys_.front();
    sentKeys_.pop_front();
    Press(hwnd, key);
  }
}

void HeadlessUser::TypeText(WindowHandle hwnd, std::string_view text, bool alt) {
  for (const std::string_view character : SplitCharacters(text)) {
    Press(hwnd, KeyOfCharacter(character, alt));
    PressSentKeys(hwnd);
  }
}

void HeadlessUser::HoldKey(WindowHandle hwnd, int virtualKey, int repeats) {
  const bool alt = virtualKey == win32::kVkMenu;
  altHeld_ = altHeld_ || alt;
  for (int i = 0; i <= repeats; ++i) {
    if (!GoDown(hwnd, KeyOf(virtualKey, altHeld_ ? kAlt : kNoShift), i > 0)) altAlone_ = alt;
  }
}

void HeadlessUser::ReleaseKey(WindowHandle hwnd, int virtualKey) {
  const bool alt = virtualKey == win32::kVkMenu;
  if (alt) altHeld_ = false;
  if (ComeUp(hwnd, KeyOf(virtualKey, altHeld_ ? kAlt : kNoShift), false) || !alt) return;
  // Alt pressed and released by itself is the way into the menu bar.
  const HeadlessWindow* const window = host_->FindWindow(hwnd);
  if (std::exchange(altAlone_, false) && window != nullptr && !window->bar.empty()) {
    FailTest("the menu of " + window->form->name + " is open, and nobody asked for it");
  }
}

std::string HeadlessUser::CharactersFor(WindowHandle /*hwnd*/, int control,
                                        const std::function<void()>& doing) {
  listenedTo_ = control;
  doing();
  listenedTo_ = 0;
  return std::exchange(given_, {});
}

void HeadlessUser::Press(WindowHandle hwnd, const Key& key) {
  const bool dealtWith = GoDown(hwnd, key, false);
  if (host_->FindWindow(hwnd) != nullptr) ComeUp(hwnd, key, dealtWith);
}

bool HeadlessUser::GoDown(WindowHandle hwnd, const Key& key, bool repeated) {
  HeadlessWindow& window = Reach(hwnd, "press a key");
  if (host_->Desktop().Active() != hwnd) {
    FailTest("cannot press a key: form " + window.form->name + " is not in front");
  }
  if (!openMenus_.empty()) {
    PressInMenu(hwnd, key);
    return true;
  }
  // Windows reports only the release of this key.
  if (key.virtualKey == fakes::kVkSnapshot) return false;
  const int control = window.focus;
  bool dealtWith = false;
  host_->Tell(hwnd, [&](FormEvents& events) {
    dealtWith = events.OnKeyDown(control, key.virtualKey, key.shift, repeated);
  });
  if (!dealtWith && !key.character.empty()) {
    dealtWith = GiveCharacter(hwnd, control, FirstCharacter(key.character).codePoint, key.shift);
  }
  if (dealtWith) return true;
  if (host_->FindWindow(hwnd) != nullptr) PressInControl(hwnd, control, key);
  if (IsCharacterToo(key.virtualKey, key.shift) && host_->FindWindow(hwnd) != nullptr) {
    GiveCharacter(hwnd, control, static_cast<char32_t>(key.virtualKey), key.shift);
  }
  return false;
}

bool HeadlessUser::GiveCharacter(WindowHandle hwnd, int control, char32_t character,
                                 unsigned shift) {
  bool dealtWith = false;
  host_->Tell(
      hwnd, [&](FormEvents& events) { dealtWith = events.OnCharacter(control, character, shift); });
  const bool noted = !dealtWith && control != 0 && control == listenedTo_;
  if (noted) given_ += static_cast<char>(character);
  return dealtWith;
}

bool HeadlessUser::ComeUp(WindowHandle hwnd, const Key& key, bool pressDealtWith) {
  if (!openMenus_.empty() || host_->Desktop().Active() != hwnd) return false;
  const int control = host_->GetFocus(hwnd);
  bool dealtWith = false;
  host_->Tell(hwnd, [&](FormEvents& events) {
    dealtWith = events.OnKeyUp(control, key.virtualKey, key.shift);
  });
  // Buttons act when the space bar is released.
  const bool presses = !pressDealtWith && !dealtWith && control != 0 &&
                       key.virtualKey == win32::kVkSpace && key.shift == kNoShift &&
                       host_->FindWindow(hwnd) != nullptr;
  if (!presses) return dealtWith;
  const ControlKind kind = Look(hwnd, control).kind;
  if (kind == ControlKind::kButton || kind == ControlKind::kCheckBox ||
      kind == ControlKind::kOptionButton) {
    host_->Tell(hwnd, [&](FormEvents& events) { events.OnClick(control); });
  }
  return dealtWith;
}

void HeadlessUser::PressInControl(WindowHandle hwnd, int control, const Key& key) {
  const bool alt = (key.shift & kAlt) != 0;
  if (alt && key.virtualKey == win32::kVkF4) {
    host_->Tell(hwnd, [](FormEvents& events) { events.OnCloseRequested(CloseReason::kUser); });
    return;
  }
  if (alt && OpenMenuByKey(hwnd, key.character)) return;
  if (control == 0) return;
  const ControlKind kind = Look(hwnd, control).kind;
  const bool list = kind == ControlKind::kDropDownList || kind == ControlKind::kComboBox;
  if (list && (host_->Window(hwnd).Control(control).dropped ||
               OpensOrClosesList(key.virtualKey, key.shift))) {
    PressInOpenList(hwnd, control, key);
  } else if (kind == ControlKind::kTextBox && !alt) {
    PressInText(hwnd, control, key);
  } else if ((list || kind == ControlKind::kTabStrip) && !alt) {
    PressInList(hwnd, control, key);
  }
}

void HeadlessUser::TellTyped(WindowHandle hwnd, int control) {
  const std::string text = Look(hwnd, control).text;
  host_->Tell(hwnd, [&](FormEvents& events) { events.OnTextTyped(control, text); });
}

void HeadlessUser::PressInText(WindowHandle hwnd, int control, const Key& key) {
  HeadlessControl& box = host_->Window(hwnd).Control(control);
  const bool readOnly = (box.shown.flags & kReadOnly) != 0;
  bool changed = false;
  if (!key.character.empty()) {
    if (!readOnly) TypeInto(box.shown.text, box.cursor, key.character);
    changed = !readOnly;
  } else {
    changed = PressKeyIn(box.shown.text, box.cursor, key.virtualKey, key.shift, readOnly);
  }
  if (changed) TellTyped(hwnd, control);
}

void HeadlessUser::PressInList(WindowHandle hwnd, int control, const Key& key) {
  const ControlState& shown = Look(hwnd, control);
  const bool upOrDown = key.virtualKey == win32::kVkUp || key.virtualKey == win32::kVkDown;
  if (shown.kind == ControlKind::kComboBox && !upOrDown) {
    PressInText(hwnd, control, key);
    return;
  }
  const int target =
      MoveInList(shown.listIndex, static_cast<int>(shown.items.size()), key.virtualKey);
  if (target < 0 && shown.kind == ControlKind::kDropDownList) {
    SearchList(hwnd, control, key);
  } else if (target >= 0 && target != shown.listIndex) {
    PickEntry(hwnd, control, target);
  }
}

void HeadlessUser::SearchList(WindowHandle hwnd, int control, const Key& key) {
  if (key.character.empty()) return;
  const ControlState& shown = Look(hwnd, control);
  const int count = static_cast<int>(shown.items.size());
  for (int step = 1; step <= count; ++step) {
    const int index = (shown.listIndex + step) % count;
    const std::string& text = shown.items[static_cast<std::size_t>(index)].text;
    if (!EqualsIgnoreCase(LeftCharacters(text, 1), key.character)) continue;
    if (index != shown.listIndex) PickEntry(hwnd, control, index);
    return;
  }
}

void HeadlessUser::PressInOpenList(WindowHandle hwnd, int control, const Key& key) {
  HeadlessControl& list = host_->Window(hwnd).Control(control);
  if (!list.dropped) {
    OpenList(hwnd, control);
    return;
  }
  const int count = static_cast<int>(list.shown.items.size());
  const int chosen = list.shown.listIndex;
  if (key.virtualKey == win32::kVkEscape) {
    const int before = list.chosenBefore;
    CloseList(hwnd, control);
    if (before != chosen && host_->FindWindow(hwnd) != nullptr) PickEntry(hwnd, control, before);
  } else if (key.virtualKey == win32::kVkReturn || OpensOrClosesList(key.virtualKey, key.shift)) {
    CloseList(hwnd, control);
  } else if (const int target = MoveInList(chosen, count, key.virtualKey);
             target >= 0 && target != chosen) {
    PickEntry(hwnd, control, target);
  }
}

}  // namespace korvale
