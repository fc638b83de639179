#include <algorithm>

#include "desktop/tag_list.h"
#include "tests/simulated/simulated_life.h"

namespace korvale {
namespace {

constexpr std::string_view kSeparator = " - ";
constexpr std::string_view kLeftMark = " - ***";
constexpr std::string_view kRightMark = "*** - ";

/// The words by which the user told Korvale to recognise a window, as the Window menu shows them.
std::string WordsOf(const MenuItem& entry) { return entry.caption.substr(4); }

/// Whether a user would find the words in the title.
bool Fits(std::string_view words, std::string_view title) {
  if (words.ends_with(kLeftMark)) {
    return title.substr(0, title.find(kSeparator)) == words.substr(0, words.size() - 6);
  }
  if (words.starts_with(kRightMark)) {
    const std::size_t last = title.rfind(kSeparator);
    const std::size_t begin = last == std::string_view::npos ? 0 : last + kSeparator.size();
    return title.substr(begin) == words.substr(kRightMark.size());
  }
  return title.find(words) != std::string_view::npos;
}

}  // namespace

SimulatedLife::Before SimulatedLife::LookBefore(int tag) {
  Before before;
  before.tag = tag;
  before.foreground = desktop.Windows().Foreground();
  before.boxes = korvale_->host.Messages().size();
  before.locked = programs_.RefusesForeground();
  const bool sure = IsFollowed(before.foreground) && before.foreground != korvale_->Handle();
  if (sure) workedIn_.Work(before.foreground);
  before.present = sure ? before.foreground : 0;
  for (const WindowHandle hwnd : desktop.Windows().TopLevel()) {
    if (IsStuck(hwnd)) before.stuck.insert(hwnd);
  }
  before.known = JustWorkedIn();
  // The strip names the Previous Window.
  before.known.insert({before.foreground, korvale_->Record().current.handle});
  selecting_ = before;
  return before;
}

/// Where the user has been last, and the windows before it: at most two that can be selected have
/// been worked in later.
std::set<WindowHandle> SimulatedLife::JustWorkedIn() {
  std::set<WindowHandle> known;
  for (const WindowHandle hwnd : workedIn_.All()) {
    const auto later = workedIn_.LaterThan(hwnd);
    if (std::ranges::count_if(later, [this](WindowHandle each) { return CanBeSelected(each); }) <=
        2) {
      known.insert(hwnd);
    }
  }
  return known;
}

/// The strip also names the window in which the user was before Korvale started.
void SimulatedLife::KnowTargetWindow() {
  const WindowHandle target = korvale_->Record().current.handle;
  if (desktop.Windows().Find(target) != nullptr) workedIn_.ComeFrom(target);
}

/// The windows on the desktop that a user would say the Tag stands for; not the ghost of one that
/// hangs. Without the manager of virtual desktops a suspended one counts, too.
std::vector<WindowHandle> SimulatedLife::WindowsOf(const MenuItem& entry) {
  std::vector<WindowHandle> windows;
  for (const WindowHandle hwnd : desktop.Windows().TopLevel()) {
    const FakeWindow& window = *desktop.Windows().Find(hwnd);
    const bool mayBeThere = programs_.DesktopsAreLost() && window.visible && IsSuspended(hwnd);
    const bool counts =
        (IsOnDesktop(hwnd) || mayBeThere) && window.className != FakeDesktop::kGhostClass;
    if (counts && Fits(WordsOf(entry), TitleOf(window))) windows.push_back(hwnd);
  }
  return windows;
}

/// What is told of a window must be true: while all windows of the Tag can be selected, none of
/// them is told to be gone, disabled or out of reach.
void SimulatedLife::CheckReason(const std::string& text) {
  const MenuItem* const entry = korvale_->TagEntry(selecting_->tag);
  if (entry == nullptr) return;
  const std::vector<WindowHandle> windows = WindowsOf(*entry);
  const auto disabled = [this](WindowHandle hwnd) {
    return !desktop.Windows().Find(hwnd)->enabled;
  };
  const auto refused = [&](WindowHandle hwnd) {
    return selecting_->locked || programs_.RefusesForeground() || CannotBeRestored(hwnd) ||
           selecting_->stuck.contains(hwnd) || IsSuspended(hwnd) ||
           desktop.Windows().Find(hwnd)->hung;
  };
  const bool free = std::ranges::none_of(
      windows, [&](WindowHandle hwnd) { return disabled(hwnd) || refused(hwnd); });
  EXPECT_FALSE(free && !windows.empty())
      << text << " of [" << entry->caption << "], but " << programs_.Name(windows.front());
  if (text.ends_with("is not enabled, and currently cannot be selected.")) {
    EXPECT_TRUE(std::ranges::any_of(windows, disabled)) << text;
  }
}

/// Windows has denied the way back: it changes the foreground for nobody, or did so once it had
/// restored an owner, or a window that the user has been in is minimized and cannot be restored, or
/// the one is that stands in front of it.
void SimulatedLife::CheckRefusedReturn() {
  std::vector<WindowHandle> windows = workedIn_.All();
  windows.insert(windows.end(), thereAtStart_.begin(), thereAtStart_.end());
  const auto stuck = [this](WindowHandle hwnd) {
    const FakeWindow* const window = desktop.Windows().Find(hwnd);
    const bool behind = window != nullptr && !window->enabled;
    return CannotBeRestored(hwnd) ||
           (behind && CannotBeRestored(desktop.Windows().EnabledPopupOf(hwnd)));
  };
  EXPECT_TRUE(selecting_->locked || programs_.RefusesForeground() ||
              std::ranges::any_of(windows, stuck));
}

void SimulatedLife::CheckSelection(const Before& before) {
  selecting_.reset();
  if (before.tag == 0) return CheckPreviousSelected(before);
  const MenuItem* const entry = korvale_->TagEntry(before.tag);
  if (entry == nullptr) {
    EXPECT_EQ(desktop.Windows().Foreground(), before.foreground);
    EXPECT_EQ(korvale_->host.Messages().size(), before.boxes);
    return;
  }
  if (korvale_->host.Messages().size() > before.boxes) return;
  EXPECT_EQ(programs_.Name(TagHandle(*entry)), programs_.Name(desktop.Windows().Foreground()));
  EXPECT_NE(TagHandle(*entry), 0);
  if (TagHandle(*entry) == desktop.Windows().Foreground()) CheckSelectedTag(before, *entry);
}

void SimulatedLife::CheckSelectedTag(const Before& before, const MenuItem& entry) {
  const WindowHandle selected = TagHandle(entry);
  const FakeWindow& window = *desktop.Windows().Find(selected);
  const PreviousWindow& record = korvale_->Record();
  EXPECT_TRUE(!window.iconic || CannotBeRestored(selected)) << programs_.Name(selected);
  // A window that the user has just been in is known whatever its title says now.
  if (!before.known.contains(selected) && window.titleReadings < 0) {
    EXPECT_TRUE(Fits(WordsOf(entry), window.title))
        << "[" << entry.caption << "] led to [" << window.title << "]";
  }
  if (selected == before.foreground) return;
  EXPECT_TRUE(desktop.Windows().IsVisible(selected));
  EXPECT_TRUE(window.enabled);
  EXPECT_EQ(korvale_->Tags().ParentWindowClass.at(static_cast<std::size_t>(before.tag) - 1),
            window.className);
  if (selected == korvale_->Handle()) return;
  EXPECT_EQ(record.current.handle, selected);
  if (window.titleReadings < 0) {
    EXPECT_EQ(record.current.text, window.title);
  }
  workedIn_.Work(selected);
}

/// The user gets to the window worked in before the one in front.
void SimulatedLife::CheckPreviousSelected(const Before& before) {
  if (korvale_->host.Messages().size() > before.boxes) return;
  if (before.present == 0) return;
  const WindowHandle reached = desktop.Windows().Foreground();
  // With a restored owner Windows has gone half of the way.
  const bool restored = std::ranges::any_of(before.stuck, [&](WindowHandle stuck) {
    const FakeWindow* const window = desktop.Windows().Find(stuck);
    return window != nullptr && window->owner == reached;
  });
  const bool known = before.locked || restored ||
                     (programs_.DesktopsAreLost() && reached != 0 && IsSuspended(reached));
  EXPECT_TRUE(reached == 0 || IsOnDesktop(reached) || known) << programs_.Name(reached);
  for (const WindowHandle later : workedIn_.LaterThan(reached == before.present ? 0 : reached)) {
    if (later == before.present || !CanBeSelected(later)) continue;
    EXPECT_TRUE(IsExcused(before, later))
        << "from " << programs_.Name(before.present) << " the user got to "
        << programs_.Name(reached) << ", but worked later in " << programs_.Name(later)
        << "; Tag 0 is [" << korvale_->Record().current.text << "] or ["
        << korvale_->Record().alternate.text << "], " << korvale_->Form().FocusTag();
  }
  if (reached != before.present) workedIn_.Work(reached);
}

}  // namespace korvale
