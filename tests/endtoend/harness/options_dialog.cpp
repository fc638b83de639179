#include "tests/endtoend/harness/options_dialog.h"

// After windows.h, which it needs.
#include <commctrl.h>

#include <algorithm>
#include <stdexcept>

#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

constexpr int kPages = 3;

/// The frames of the Hot Keys page: their access keys and their first lists.
struct Frame {
  UINT accessKey;
  OptionsDialog::List first;
};

constexpr Frame kFrames[] = {{'G', OptionsDialog::List::kOptionsModifier},
                             {'S', OptionsDialog::List::kMinimizeModifier},
                             {'W', OptionsDialog::List::kTagModifier}};

Window FirstWithText(const std::vector<Window>& controls,
                     const std::function<bool(const std::string&)>& fits) {
  const auto found =
      std::ranges::find_if(controls, [&](Window control) { return fits(control.Text()); });
  return found == controls.end() ? Window() : *found;
}

}  // namespace

Window OptionsDialog::VisiblePage() const {
  const std::vector<Window> pages = form_.Controls("Korvale.Page");
  return pages.size() == 1 ? pages.front() : Window();
}

std::optional<OptionsDialog::Page> OptionsDialog::PageOnScreen() const {
  std::vector<Window> pages = form_.Children();
  std::erase_if(pages, [](Window child) { return child.ClassName() != "Korvale.Page"; });
  const auto visible = std::ranges::find(pages, VisiblePage());
  const std::vector<Window> strips = form_.Controls("SysTabControl32");
  const auto tab = strips.empty() ? -1 : strips.front().Send(TCM_GETCURSEL);
  if (pages.size() != kPages || visible - pages.begin() != tab) return std::nullopt;
  return static_cast<Page>(tab + 1);
}

OptionsDialog::Page OptionsDialog::CurrentPage() const {
  std::optional<Page> page;
  if (!WaitFor([&] { return (page = PageOnScreen()).has_value(); })) {
    throw std::runtime_error("tab and page of the Options dialog do not agree");
  }
  return *page;
}

bool OptionsDialog::GoTo(Page page) const {
  for (int turn = 0; turn < kPages && CurrentPage() != page; ++turn) {
    const Page before = CurrentPage();
    const auto turned = [&] {
      // While one page replaces the other, neither is on the screen.
      const std::optional<Page> now = PageOnScreen();
      return now.has_value() && now != before;
    };
    if (!BringToFront(form_)) return false;
    Press({MOD_CONTROL, VK_TAB});
    if (!WaitFor(turned)) return false;
  }
  return form_.Responds() && CurrentPage() == page;
}

Window OptionsDialog::ListBox(List list) const {
  const std::vector<Window> lists = VisiblePage().Controls("ComboBox");
  const auto index = static_cast<size_t>(list);
  return index < lists.size() ? lists[index] : Window();
}

bool OptionsDialog::Focus(List list) const {
  const auto frame = std::ranges::find_if(kFrames, [&](Frame each) { return each.first <= list; });
  const auto has_focus = [this](List each) { return FocusOf(form_) == ListBox(each); };
  if (!BringToFront(form_)) return false;
  Press({MOD_ALT, frame->accessKey});
  if (!WaitFor([&] { return has_focus(frame->first); })) return false;
  for (auto each = static_cast<int>(frame->first); each < static_cast<int>(list);) {
    Press({0, VK_TAB});
    const List next = static_cast<List>(++each);
    if (!WaitFor([&] { return has_focus(next); })) return false;
  }
  return true;
}

Window OptionsDialog::TagBox(int tag) const { return Button(std::to_string(tag)); }

Window OptionsDialog::TagLabel(int tag) const {
  return tag == 0 ? Label(" selects the Previous Window ")
                  : Label(" selects the window that has been assigned Tag number " +
                          std::to_string(tag) + " ");
}

Window OptionsDialog::Button(const std::string& caption) const {
  const auto fits = [&](const std::string& text) { return text == caption; };
  const Window onPage = FirstWithText(VisiblePage().Controls("Button"), fits);
  return onPage ? onPage : FirstWithText(form_.Controls("Button"), fits);
}

Window OptionsDialog::Label(const std::string& beginning) const {
  return FirstWithText(VisiblePage().Controls("Static"),
                       [&](const std::string& text) { return text.starts_with(beginning); });
}

std::string OptionsDialog::ConflictLine() const {
  const Window line = Label("Not available");
  return line ? line.Text() : "";
}

bool OptionsDialog::Confirm() const {
  if (!BringToFront(form_)) return false;
  Press({0, VK_RETURN});
  return IsGone();
}

bool OptionsDialog::Cancel() const {
  if (!BringToFront(form_)) return false;
  Press({0, VK_ESCAPE});
  return IsGone();
}

bool OptionsDialog::IsGone() const {
  if (!WaitFor([this] { return !form_.Exists(); })) return false;
  LetProgramsFinish();
  return true;
}

bool IsChecked(Window box) { return box.Send(BM_GETCHECK) == BST_CHECKED; }

bool HasBorder(Window label) { return (label.Style() & WS_BORDER) != 0; }

}  // namespace korvale::endtoend
