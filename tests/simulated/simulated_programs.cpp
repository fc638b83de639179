#include "tests/simulated/simulated_programs.h"

#include <algorithm>

#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr std::array kTitles = {"Alpha",
                                "one - Editor",
                                "two - Editor",
                                "one - draft - Viewer",
                                "Save & Close",
                                "*** - x",
                                "x - ***",
                                " - ",
                                "Übersicht - Größe",
                                "Alphabet",
                                "",
                                "Korvale - Work",
                                "&1  Alpha",
                                "a title of more than thirty characters - Editor"};
constexpr std::array kClasses = {"Editor", "Viewer", "#32770", "Static"};

bool IsOnScreen(const FakeWindow& window) { return window.visible && window.ghost == 0; }

}  // namespace

std::string SimulatedPrograms::SomeTitle() { return dice_->Pick(kTitles); }

std::string SimulatedPrograms::Name(WindowHandle hwnd) const {
  return desktop_->Log().Window(hwnd) + " (" + HexText(static_cast<std::uint32_t>(hwnd)) + ")";
}

bool SimulatedPrograms::WasCalled(WindowHandle hwnd, std::string_view title) const {
  const auto titles = titles_.find(hwnd);
  return titles != titles_.end() &&
         std::ranges::any_of(titles->second, [&](const std::string& each) {
           return title == each || title.ends_with(" % - " + each);
         });
}

WindowHandle SimulatedPrograms::Some(const Fits& fits) {
  const auto first = static_cast<std::size_t>(dice_->Below(static_cast<int>(places_.size())));
  for (std::size_t i = 0; i < places_.size(); ++i) {
    const WindowHandle hwnd = places_.at((first + i) % places_.size());
    const FakeWindow* const window = Find(hwnd);
    if (window != nullptr && (!fits || fits(*window))) return hwnd;
  }
  return 0;
}

WindowHandle* SimulatedPrograms::FreePlace() {
  const auto free =
      std::ranges::find_if(places_, [this](WindowHandle hwnd) { return Find(hwnd) == nullptr; });
  return free == places_.end() ? nullptr : &*free;
}

NewWindow SimulatedPrograms::SomeKind() {
  NewWindow options;
  options.className = dice_->Pick(kClasses);
  if (dice_->OneIn(6)) options.exStyle |= win32::kWsExToolWindow;
  if (dice_->OneIn(9)) options.exStyle |= win32::kWsExTopmost;
  if (dice_->OneIn(9)) options.style |= win32::kDsModalFrame;
  options.children = dice_->OneIn(5) ? 0 : 1;
  options.enabled = !dice_->OneIn(12);
  options.iconic = dice_->OneIn(8);
  options.zoomed = dice_->OneIn(8);
  options.activate = !dice_->OneIn(5);
  options.elevated = dice_->OneIn(9);
  options.staysIconic = dice_->OneIn(20);
  options.onEveryDesktop = dice_->OneIn(15);
  options.extraTextLength = dice_->OneIn(8) ? 5 : 0;
  return options;
}

std::string SimulatedPrograms::OpenAt(WindowHandle* place, NewWindow options) {
  const std::string title = SomeTitle();
  *place = desktop_->Open(title, options);
  titles_[*place].insert(title);
  return "opens [" + title + "] as " + Name(*place) + (options.elevated ? ", elevated" : "") +
         (options.owner != 0 ? ", owned by " + Name(options.owner) : "");
}

std::string SimulatedPrograms::OpenWindow() {
  WindowHandle* const place = FreePlace();
  NewWindow options = SomeKind();
  const bool owned = dice_->OneIn(5);
  if (place == nullptr) return "";
  if (owned) options.owner = Some();
  return OpenAt(place, options);
}

std::string SimulatedPrograms::ReuseHandle() {
  WindowHandle* const place = FreePlace();
  NewWindow options = SomeKind();
  if (place == nullptr || lastClosed_ == 0 || Find(lastClosed_) != nullptr) return "";
  options.reuseHandle = lastClosed_;
  return OpenAt(place, options);
}

std::string SimulatedPrograms::OpenDialog() {
  WindowHandle* const place = FreePlace();
  const WindowHandle owner = Some([](const FakeWindow& window) { return window.enabled; });
  const std::string title = SomeTitle();
  if (place == nullptr || owner == 0) return "";
  *place = desktop_->OpenModalDialog(owner, title);
  titles_[*place].insert(title);
  return "opens dialog [" + title + "] of " + Name(owner) + " as " + Name(*place);
}

/// A dialog enables its owner again; a ghost goes with the window that it stands for.
std::string SimulatedPrograms::Close(WindowHandle hwnd) {
  const std::string name = Name(hwnd);
  FakeWindow* const owner = Find(Find(hwnd)->owner);
  if (owner != nullptr) owner->enabled = true;
  if (const WindowHandle ghost = Find(hwnd)->ghost; ghost != 0) desktop_->Close(ghost);
  desktop_->Close(hwnd);
  desktop_->Log().NameWindow(hwnd, "");
  lastClosed_ = hwnd;
  return name;
}

std::string SimulatedPrograms::CloseWindow() {
  const WindowHandle hwnd = Some();
  return hwnd == 0 ? "" : "closes " + Close(hwnd);
}

std::string SimulatedPrograms::RenameWindow() {
  const WindowHandle hwnd = Some();
  const std::string title = SomeTitle();
  if (hwnd == 0) return "";
  desktop_->Rename(hwnd, title);
  titles_[hwnd].insert(title);
  Find(hwnd)->titleReadings = -1;
  return "renames " + Name(hwnd) + " to [" + title + "]";
}

std::string SimulatedPrograms::CountInTitle() {
  const WindowHandle hwnd = Some([](const FakeWindow& window) { return window.titleReadings < 0; });
  if (hwnd == 0) return "";
  desktop_->CountReadings(hwnd);
  return "counts in the title of " + Name(hwnd);
}

std::string SimulatedPrograms::EnableOrDisable() {
  const WindowHandle hwnd = Some();
  if (hwnd == 0) return "";
  const bool enable = !Find(hwnd)->enabled;
  desktop_->SetEnabled(hwnd, enable);
  return (enable ? "enables " : "disables ") + Name(hwnd);
}

/// By a click on it or on its button in the taskbar, which wakes a Store program.
std::string SimulatedPrograms::GoToWindow() {
  const WindowHandle hwnd = Some(IsOnScreen);
  if (hwnd == 0 || !desktop_->Windows().IsVisible(hwnd)) return "";
  if (Find(hwnd)->cloaked != 0) desktop_->SetSuspended(hwnd, false);
  desktop_->UserActivates(hwnd);
  return "is gone to: " + Name(hwnd);
}

std::string SimulatedPrograms::Minimize() {
  const WindowHandle hwnd =
      Some([](const FakeWindow& window) { return IsOnScreen(window) && !window.iconic; });
  if (hwnd == 0) return "";
  desktop_->UserMinimizes(hwnd);
  return "minimizes " + Name(hwnd);
}

std::string SimulatedPrograms::Maximize() {
  const WindowHandle hwnd =
      Some([](const FakeWindow& window) { return IsOnScreen(window) && !window.staysIconic; });
  if (hwnd == 0) return "";
  desktop_->UserMaximizes(hwnd);
  return "maximizes " + Name(hwnd);
}

std::string SimulatedPrograms::Restore() {
  const WindowHandle hwnd =
      Some([](const FakeWindow& window) { return IsOnScreen(window) && !window.staysIconic; });
  if (hwnd == 0) return "";
  desktop_->UserRestores(hwnd);
  return "restores " + Name(hwnd);
}

std::string SimulatedPrograms::HideOrReveal() {
  const WindowHandle hwnd = Some([](const FakeWindow& window) { return window.ghost == 0; });
  if (hwnd == 0) return "";
  if (!Find(hwnd)->visible) {
    desktop_->Reveal(hwnd);
    return "reveals " + Name(hwnd);
  }
  desktop_->Hide(hwnd);
  return "hides " + Name(hwnd);
}

}  // namespace korvale
