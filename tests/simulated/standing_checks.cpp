#include <algorithm>
#include <map>
#include <utility>

#include "desktop/tag_list_storage.h"
#include "tests/simulated/simulated_life.h"

namespace korvale {

void SimulatedLife::CheckAlways() {
  frmMain& form = korvale_->Form();
  ASSERT_TRUE(form.IsLoaded());
  const PreviousWindow& record = korvale_->Record();
  EXPECT_NE(record.current.handle, form.Handle());
  EXPECT_TRUE(record.current.handle == 0 || record.current.handle != record.alternate.handle);
  EXPECT_TRUE(form.tmrWindow().Enabled());
  EXPECT_EQ(form.tmrWindow().Tag(), "ON");
  EXPECT_EQ(clock.IntervalOf(form.Handle(), form.Find("tmrWindow").Id()), 100U);
  EXPECT_TRUE(desktop.Windows().Find(form.Handle())->enabled);
  EXPECT_FALSE(korvale_->Suspended());
  EXPECT_EQ(desktop.CallsThatWaited(), 0) << "a window that hangs would have held Korvale up";
  KnowTargetWindow();
  CheckHotKeys();
  CheckSaving();
  KeepBook();
}

/// After a tick the strip names a window that is there, by a title that it has or had, or none.
void SimulatedLife::CheckStrip() {
  const std::string title = korvale_->TargetWindow();
  const WindowHandle hwnd = korvale_->Record().current.handle;
  const FakeWindow* const window = desktop.Windows().Find(hwnd);
  if (title.empty()) {
    EXPECT_EQ(korvale_->TargetClass(), "");
    EXPECT_EQ(hwnd, 0);
    return;
  }
  ASSERT_NE(window, nullptr) << "[" << title << "] has gone";
  // Windows gives no handle anew from one tick to the next, so what stays in front is not read
  // again.
  if (hwnd != desktop.Windows().Foreground()) {
    EXPECT_EQ(korvale_->TargetClass(), window->className) << title;
  }
  const bool untitled = title == "(window without a title)";
  EXPECT_TRUE(title == window->title || programs_.WasCalled(hwnd, untitled ? "" : title))
      << "[" << title << "] is " << programs_.Name(hwnd);
}

/// Korvale has asked for all keys: those that nobody else has work from now on.
void SimulatedLife::HotKeysRegistered() { refused_ = foreign_; }

/// Every combination that the user asks for works, and no other; of two that are the same the
/// first.
void SimulatedLife::CheckHotKeys() {
  std::map<Combination, std::string> wanted;
  for (const auto& [name, combination] : WantedHotKeys()) wanted.emplace(combination, name);
  for (const FakeHotKeys::Registration& registered : hotKeys.Registered()) {
    EXPECT_EQ(registered.hwnd, korvale_->Handle());
    const auto asked = wanted.extract({registered.modifiers, registered.key});
    ASSERT_FALSE(asked.empty()) << registered.modifiers << "+" << registered.key;
    EXPECT_EQ(korvale_->HotKeys().NameOf(static_cast<std::uintptr_t>(registered.id)),
              asked.mapped());
  }
  for (const auto& [combination, name] : wanted) {
    EXPECT_TRUE(refused_.contains(combination)) << name << " does not work";
  }
}

/// What the options ask for.
std::vector<SimulatedLife::HotKey> SimulatedLife::WantedHotKeys() {
  const clsOptions& options = korvale_->Options();
  std::vector<HotKey> wanted;
  const auto add = [&](const std::string& name, std::int16_t modifiers, std::int16_t key) {
    if (key == 0) return;
    wanted.push_back(
        {name, {static_cast<std::uint32_t>(modifiers), static_cast<std::uint32_t>(key)}});
  };
  if (hotKeysOn_) {
    for (std::int16_t tag = 0; tag <= 9; ++tag) {
      if (!options.booHotKeyParent[static_cast<std::size_t>(tag)]) continue;
      add("HOTKEY_PARENT" + std::to_string(tag), options.intHotKeyModParent,
          static_cast<std::int16_t>('0' + tag));
    }
    add("HOTKEY_MINIMIZE_PARENT", options.intHotKeyModAction[0], options.intHotKeyAction[0]);
    add("HOTKEY_RESTORE/MAXIMIZE_PARENT", options.intHotKeyModAction[1],
        options.intHotKeyAction[1]);
    add("HOTKEY_DISPLAY_OPTIONS", options.intHotKeyModGeneral[0], options.intHotKeyGeneral[0]);
    add("HOTKEY_WINDOW_MENU_POPUP", options.intHotKeyModGeneral[1], options.intHotKeyGeneral[1]);
  }
  add("HOTKEY_TOGGLE_HOTKEYS", options.intHotKeyModGeneral[2], options.intHotKeyGeneral[2]);
  return wanted;
}

std::vector<SimulatedLife::HotKey> SimulatedLife::WorkingHotKeys() {
  std::set<Combination> registered;
  for (const auto& held : hotKeys.Registered()) registered.insert({held.modifiers, held.key});
  std::vector<HotKey> working = WantedHotKeys();
  std::erase_if(working,
                [&](const HotKey& hotKey) { return registered.erase(hotKey.combination) == 0; });
  return working;
}

/// Whatever the user has changed is saved into an empty store and found there.
void SimulatedLife::CheckSaving() {
  Kept kept = KeptBy(*korvale_);
  if (kept == saved_) return;
  FakeSettingsStore empty;
  const std::string elsewhere = "Korvale - Elsewhere";
  Settings settings(empty, elsewhere);
  settings.SaveOptions(kept.options);
  settings.SaveINI(kept.startup, TagsToStore(korvale_->Tags()));
  ExpectTexts(empty, elsewhere, kept);
  EXPECT_EQ(KeptIn(empty, elsewhere), kept);
  saved_ = std::move(kept);
}

/// What the store refused, the user may find later or not, but never half.
void SimulatedLife::KeepBook() {
  if (mayBeKept_.empty()) return;
  Kept kept = KeptBy(*korvale_);
  if (kept != mayBeKept_.back()) mayBeKept_.push_back(std::move(kept));
}

void SimulatedLife::ExpectKept(const Kept& before) {
  const Kept after = KeptBy(*korvale_);
  const auto book = std::exchange(mayBeKept_, {});
  if (storeRefuses_) mayBeKept_.push_back(after);
  if (book.empty()) {
    EXPECT_EQ(after.options, before.options);
    EXPECT_EQ(after.tags, before.tags);
    return;
  }
  EXPECT_TRUE(std::ranges::find(book, after.options, &Kept::options) != book.end());
  EXPECT_TRUE(std::ranges::find(book, after.tags, &Kept::tags) != book.end());
}

}  // namespace korvale
