#include <algorithm>
#include <utility>

#include "desktop/tag_list.h"
#include "desktop/tag_list_storage.h"
#include "hotkeys/hot_key_names.h"
#include "tests/program/simulated_life.h"
#include "util/text.h"

namespace korvale {

SimulatedLife::Before SimulatedLife::LookBefore(int tag) {
  std::set<WindowHandle> folded;
  for (const WindowHandle hwnd : desktop.Windows().TopLevel()) {
    const FakeWindow& window = *desktop.Windows().Find(hwnd);
    if (window.iconic || window.hung || !desktop.Windows().IsVisible(hwnd)) folded.insert(hwnd);
  }
  const WindowHandle foreground = desktop.Windows().Foreground();
  const bool sure = IsFollowed(foreground) && foreground != korvale_->Handle();
  if (sure) workedIn_.Work(foreground);
  return {.tag = tag,
          .foreground = foreground,
          .present = sure ? foreground : 0,
          .boxes = korvale_->host.Messages().size(),
          .folded = std::move(folded)};
}

void SimulatedLife::CheckSelection(const Before& before) {
  if (before.tag == 0) return CheckPreviousSelected(before);
  const MenuItem* const entry = korvale_->TagEntry(before.tag);
  if (entry == nullptr) {
    EXPECT_EQ(desktop.Windows().Foreground(), before.foreground);
    return;
  }
  const bool told = korvale_->host.Messages().size() > before.boxes;
  if (told || TagHandle(*entry) != desktop.Windows().Foreground() || TagHandle(*entry) == 0) {
    // A failure that nobody is told about is one of Windows' own.
    EXPECT_TRUE(told || IsExcused(before, TagHandle(*entry)))
        << "Tag " << before.tag << " stands for " << log.Window(TagHandle(*entry))
        << ", in front is " << log.Window(desktop.Windows().Foreground());
    return;
  }
  CheckSelectedTag(before, *entry);
}

void SimulatedLife::CheckSelectedTag(const Before& before, const MenuItem& entry) {
  const WindowHandle selected = TagHandle(entry);
  const FakeWindow& window = *desktop.Windows().Find(selected);
  const PreviousWindow& record = korvale_->Record();
  EXPECT_TRUE(!window.iconic || window.hung);
  if (selected == before.foreground) return;
  EXPECT_TRUE(desktop.Windows().IsVisible(selected));
  EXPECT_TRUE(window.enabled);
  EXPECT_EQ(korvale_->Tags().ParentWindowClass.at(static_cast<std::size_t>(before.tag) - 1),
            window.className);
  if (selected == korvale_->Handle()) return;
  EXPECT_EQ(record.current.handle, selected);
  EXPECT_EQ(record.current.text, window.title);
  workedIn_.Work(selected);
}

/// The user gets to the window worked in before the one in front.
void SimulatedLife::CheckPreviousSelected(const Before& before) {
  EXPECT_EQ(korvale_->host.Messages().size(), before.boxes);
  if (before.present == 0) return;
  const WindowHandle reached = desktop.Windows().Foreground();
  for (const WindowHandle later : workedIn_.LaterThan(reached == before.present ? 0 : reached)) {
    if (later == before.present || !CanBeSelected(later)) continue;
    EXPECT_TRUE(IsExcused(before, later))
        << "from " << log.Window(before.present) << " the user got to " << log.Window(reached)
        << ", but worked later in " << log.Window(later);
  }
  if (reached != before.present) workedIn_.Work(reached);
}

/// Korvale follows the user into this window, tagged or not.
bool SimulatedLife::IsFollowed(WindowHandle hwnd) {
  const WindowFilter& filter = korvale_->Filter();
  return filter.IsSelectableWindow(hwnd, false, false) &&
         filter.IsSelectableWindow(hwnd, true, true) && desktop.Windows().IsVisible(hwnd);
}

bool SimulatedLife::CanBeSelected(WindowHandle hwnd) {
  const FakeWindow* const window = desktop.Windows().Find(hwnd);
  return window != nullptr && window->enabled && desktop.Windows().IsVisible(hwnd) &&
         korvale_->Filter().IsSelectableWindow(hwnd, false, false);
}

/// Windows may refuse to bring this window to the front.
bool SimulatedLife::IsExcused(const Before& before, WindowHandle hwnd) {
  const FakeWindow* const window = desktop.Windows().Find(hwnd);
  return programs_->ForegroundLocked() ||
         (window != nullptr && before.folded.contains(window->owner));
}

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
  CheckHotKeys();
  CheckSaving();
}

void SimulatedLife::CheckHotKeys() {
  const std::vector<RegisteredHotKey>& table = korvale_->HotKeys().Registered();
  std::vector<FakeHotKeys::Registration> expected;
  for (std::size_t i = 0; i < table.size(); ++i) {
    if (!table[i].accepted) continue;
    expected.push_back({korvale_->Handle(), static_cast<int>(i) + 1,
                        static_cast<std::uint32_t>(table[i].modifiers),
                        static_cast<std::uint32_t>(table[i].key)});
  }
  EXPECT_EQ(hotKeys.Registered() == expected, true) << "registered is another than the table";
  const std::vector<RegisteredHotKey> wanted = WantedHotKeys();
  EXPECT_TRUE(std::ranges::equal(
      table, wanted, [](const RegisteredHotKey& left, const RegisteredHotKey& right) {
        return left.name == right.name && left.modifiers == right.modifiers &&
               left.key == right.key;
      }));
}

/// What the options ask for.
std::vector<RegisteredHotKey> SimulatedLife::WantedHotKeys() {
  const clsOptions& options = korvale_->Options();
  std::vector<RegisteredHotKey> wanted;
  if (korvale_->HotKeys().HotKeysActive()) {
    for (std::int16_t tag = 0; tag <= 9; ++tag) {
      if (!options.booHotKeyParent[static_cast<std::size_t>(tag)]) continue;
      wanted.push_back({ParentHotKeyName(tag), options.intHotKeyModParent,
                        static_cast<std::int16_t>('0' + tag)});
    }
    const auto add = [&](const char* name, std::int16_t modifiers, std::int16_t key) {
      if (key != 0) wanted.push_back({name, modifiers, key});
    };
    add("HOTKEY_MINIMIZE_PARENT", options.intHotKeyModAction[0], options.intHotKeyAction[0]);
    add("HOTKEY_RESTORE/MAXIMIZE_PARENT", options.intHotKeyModAction[1],
        options.intHotKeyAction[1]);
    add("HOTKEY_DISPLAY_OPTIONS", options.intHotKeyModGeneral[0], options.intHotKeyGeneral[0]);
    add("HOTKEY_WINDOW_MENU_POPUP", options.intHotKeyModGeneral[1], options.intHotKeyGeneral[1]);
  }
  if (options.intHotKeyGeneral[2] != 0) {
    wanted.push_back(
        {"HOTKEY_TOGGLE_HOTKEYS", options.intHotKeyModGeneral[2], options.intHotKeyGeneral[2]});
  }
  return wanted;
}

SimulatedLife::Kept SimulatedLife::Keeps() {
  TagList& tags = korvale_->Tags();
  Kept kept{korvale_->Options(), korvale_->Startup(), {}};
  tags.mnuWindowParentList.ForEach([&](const MenuItem& entry) {
    if (entry.index == 0) return;
    kept.tags.push_back({entry.index, entry.caption, TagClass(tags, entry)});
  });
  return kept;
}

/// Saves what has changed into an empty store and loads it again.
void SimulatedLife::CheckSaving() {
  Kept kept = Keeps();
  if (kept == saved_) return;
  FakeSettingsStore empty;
  Settings settings(empty, "Korvale - Elsewhere");
  if (kept.options != saved_.options) {
    settings.SaveOptions(kept.options);
    clsOptions options;
    settings.LoadOptions(options);
    EXPECT_EQ(options, kept.options);
  }
  settings.SaveINI(kept.startup, TagsToStore(korvale_->Tags()));
  EXPECT_EQ(settings.LoadStartup(), kept.startup);
  EXPECT_EQ(settings.LoadTagList(), kept.tags);
  saved_ = std::move(kept);
}

}  // namespace korvale
