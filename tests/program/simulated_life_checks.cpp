#include <algorithm>
#include <map>
#include <utility>

#include "desktop/tag_list.h"
#include "desktop/tag_list_storage.h"
#include "platform/win32_constants.h"
#include "tests/program/simulated_life.h"

namespace korvale {
namespace {

/// The words by which the user told Korvale to recognise a window, as the Window menu shows them.
std::string WordsOf(const MenuItem& entry) {
  std::string words = entry.caption.substr(4);
  if (words.ends_with(" - ***")) return words.substr(0, words.size() - 6);
  return words.starts_with("*** - ") ? words.substr(6) : words;
}

}  // namespace

SimulatedLife::Before SimulatedLife::LookBefore(int tag) {
  std::set<WindowHandle> hidden;
  for (const WindowHandle hwnd : desktop.Windows().TopLevel()) {
    if (!desktop.Windows().IsVisible(hwnd)) hidden.insert(hwnd);
  }
  const PreviousWindow& record = korvale_->Record();
  const WindowHandle foreground = desktop.Windows().Foreground();
  const bool sure = IsFollowed(foreground) && foreground != korvale_->Handle();
  if (sure) workedIn_.Work(foreground);
  std::set<WindowHandle> known = {foreground, record.current.handle, record.alternate.handle};
  if (korvale_->Form().FocusTag() == kGotFocus) known.insert(korvale_->Handle());
  return {.tag = tag,
          .foreground = foreground,
          .present = sure ? foreground : 0,
          .boxes = korvale_->host.Messages().size(),
          .locked = programs_->ForegroundLocked(),
          .known = std::move(known),
          .hidden = std::move(hidden)};
}

void SimulatedLife::CheckSelection(const Before& before) {
  if (before.tag == 0) return CheckPreviousSelected(before);
  const MenuItem* const entry = korvale_->TagEntry(before.tag);
  if (entry == nullptr) {
    EXPECT_EQ(desktop.Windows().Foreground(), before.foreground);
    EXPECT_EQ(korvale_->host.Messages().size(), before.boxes);
    return;
  }
  const bool told = korvale_->host.Messages().size() > before.boxes;
  if (told || TagHandle(*entry) != desktop.Windows().Foreground() || TagHandle(*entry) == 0) {
    EXPECT_TRUE(told) << "Tag " << before.tag << " stands for " << log.Window(TagHandle(*entry))
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
  // A window that the user has just been in is known whatever its title says now.
  if (!before.known.contains(selected)) {
    EXPECT_NE(window.title.find(WordsOf(entry)), std::string::npos)
        << "[" << entry.caption << "] led to [" << window.title << "]";
  }
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
  if (korvale_->host.Messages().size() > before.boxes) {
    // Windows has denied it.
    EXPECT_TRUE(before.locked || programs_->RunElevated());
    return;
  }
  if (before.present == 0) return;
  const WindowHandle reached = desktop.Windows().Foreground();
  // With a restored owner Windows has gone half of the way.
  EXPECT_TRUE(reached == 0 || IsOnDesktop(reached) || programs_->ForegroundLocked())
      << log.Window(reached);
  for (const WindowHandle later : workedIn_.LaterThan(reached == before.present ? 0 : reached)) {
    if (later == before.present || !CanBeSelected(later)) continue;
    EXPECT_TRUE(IsExcused(before, later))
        << "from " << log.Window(before.present) << " the user got to " << log.Window(reached)
        << ", but worked later in " << log.Window(later);
  }
  if (reached != before.present) workedIn_.Work(reached);
}

/// What a user would call a window: neither the desktop, the taskbar nor Start, and of Korvale only
/// the main window and the Options dialog.
bool SimulatedLife::IsOnDesktop(WindowHandle hwnd) {
  const FakeWindow* const window = desktop.Windows().Find(hwnd);
  if (window == nullptr || !desktop.Windows().IsVisible(hwnd)) return false;
  if (IsSuspended(hwnd)) return false;
  if (window->process != kOtherProcess) return hwnd == korvale_->Handle() || IsOptions(hwnd);
  const std::string& name = window->className;
  return name != "Progman" && name != "Shell_TrayWnd" && name != "Windows.UI.Core.CoreWindow" &&
         (name != "Static" || !window->title.empty());
}

/// Alone, or along with the program that owns it.
bool SimulatedLife::IsSuspended(WindowHandle hwnd) {
  const FakeWindows& windows = desktop.Windows();
  return windows.Find(hwnd)->cloaked != 0 || windows.Find(windows.ViewOf(hwnd))->cloaked != 0;
}

bool SimulatedLife::IsOptions(WindowHandle hwnd) {
  const Form* const dialog = korvale_->FindForm("frmOptions");
  return dialog != nullptr && dialog->Handle() == hwnd;
}

/// Korvale follows the user into this window, tagged or not: it is a window of the kinds that they
/// ask for in the options.
bool SimulatedLife::IsFollowed(WindowHandle hwnd) {
  if (!IsOnDesktop(hwnd)) return false;
  const FakeWindow& window = *desktop.Windows().Find(hwnd);
  const clsOptions& options = korvale_->Options();
  const bool palette = (window.exStyle & win32::kWsExToolWindow) != 0;
  const bool dialog = (window.style & win32::kDsModalFrame) != 0;
  return (options.booAllowNoTextWindow || !window.title.empty()) &&
         (options.booAllowToolbarWindow || !palette) && (!dialog || IsOptions(hwnd));
}

bool SimulatedLife::CanBeSelected(WindowHandle hwnd) {
  return IsOnDesktop(hwnd) && desktop.Windows().Find(hwnd)->enabled;
}

/// Windows may refuse to bring this window to the front, or to show the window that owns it.
bool SimulatedLife::IsExcused(const Before& before, WindowHandle hwnd) {
  const FakeWindow* const window = desktop.Windows().Find(hwnd);
  return programs_->ForegroundLocked() ||
         (window != nullptr && before.hidden.contains(window->owner));
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
    EXPECT_TRUE(taken_.contains(combination)) << name << " does not work";
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
  if (korvale_->HotKeys().HotKeysActive()) {
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

}  // namespace korvale
