#include "tests/endtoend/mouse_user.h"

#include "tests/endtoend/harness/layout.h"

namespace korvale::endtoend {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

namespace {

/// Clicks along the tabs until that page is on the screen.
bool TurnTo(const OptionsDialog& dialog, OptionsDialog::Page page) {
  if (dialog.CurrentPage() == page) return true;
  const Window strip = dialog.form().Controls("SysTabControl32").front();
  for (LONG x = 15; x < 400; x += 40) {
    ClickAt(strip, {x, 10});
    if (WaitFor([&] { return dialog.CurrentPage() == page; }, std::chrono::milliseconds(100))) {
      return true;
    }
  }
  return false;
}

}  // namespace

std::vector<SeenEntry> MouseUser::OpenMenuOf(Menu menu, size_t count) {
  constexpr size_t kMenus = 5;
  std::vector<POINT> titles;
  const auto all_titles = [&] { return (titles = MenuTitles(main())).size() == kMenus; };
  EXPECT_TRUE(WaitFor(all_titles)) << titles.size() << " menus";
  if (titles.size() != kMenus) return {};
  ClickOnScreen(titles[menu]);
  const Window open = korvale_->OpenMenu();
  std::vector<SeenEntry> seen;
  const auto all_entries = [&] { return (seen = MenuEntries(open)).size() == count; };
  EXPECT_TRUE(WaitFor(all_entries)) << seen.size() << " entries";
  return seen;
}

AssertionResult MouseUser::ChooseByMouse(Menu menu, size_t entry, size_t count) {
  const std::vector<SeenEntry> seen = OpenMenuOf(menu, count);
  if (entry >= seen.size()) return AssertionFailure() << "no such entry";
  ClickOnScreen(seen[entry].middle);
  if (WaitFor([this] { return !korvale_->HasMenu(); })) return AssertionSuccess();
  return AssertionFailure() << "the menu does not close";
}

AssertionResult MouseUser::ChooseFromWindowMenu(size_t entry) {
  return ChooseByMouse(kWindow, entry, kWindowEntries + tags_);
}

AssertionResult MouseUser::GoToByClick(Window window) {
  Click(window);
  const AssertionResult came = InFront(window);
  return came ? Target(window.Title()) : came;
}

AssertionResult MouseUser::PickEntry(Window list, int entry) {
  Click(list);
  const Window open = WaitForTopLevel(
      [](Window window) { return window.ClassName() == "ComboLBox" && window.Visible(); });
  if (!open) return AssertionFailure() << "the list does not open";
  const auto height = static_cast<int>(open.Send(LB_GETITEMHEIGHT));
  const auto first = static_cast<int>(open.Send(LB_GETTOPINDEX));
  ClickAt(open, {10, 1 + (entry - first) * height + height / 2});
  if (WaitFor([&] { return list.Send(CB_GETCURSEL) == entry && !open.Visible(); })) {
    return AssertionSuccess();
  }
  return AssertionFailure() << "the list shows '" << list.Text() << "'";
}

AssertionResult MouseUser::Toggle(Window box, bool checked) {
  if (!box) return AssertionFailure() << "it is not on the screen";
  Click(box);
  if (WaitFor([&] { return IsChecked(box) == checked; })) return AssertionSuccess();
  return AssertionFailure() << Describe(box) << " does not change";
}

AssertionResult MouseUser::LeaveBy(Window form, Window button) {
  Click(button);
  if (!WaitFor([&] { return !form.Exists() || !form.Visible(); })) {
    return AssertionFailure() << Describe(form) << " stays";
  }
  return InFront(main());
}

OptionsDialog MouseUser::OpenOptionsOn(Page page) {
  EXPECT_TRUE(ChooseByMouse(kTools, 1, kToolsEntries));
  const OptionsDialog dialog(korvale_->Form("frmOptions"));
  EXPECT_TRUE(InFront(dialog.form()));
  EXPECT_TRUE(TurnTo(dialog, page)) << "no click turns to the page";
  return dialog;
}

AddWindowDialog MouseUser::AddPrevious() {
  EXPECT_TRUE(ChooseFromWindowMenu(kWindowEntries + tags_ - 1));
  const AddWindowDialog dialog(korvale_->Form("frmGetWindow"));
  EXPECT_TRUE(InFront(dialog.form()));
  return dialog;
}

Window MouseUser::OpenAt(int left, const WindowSpec& spec) {
  const Window window = Open(spec);
  Place(window, left, 640, 260, 150);
  return window;
}

}  // namespace korvale::endtoend
