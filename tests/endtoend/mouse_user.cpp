#include "tests/endtoend/mouse_user.h"

#include "tests/endtoend/harness/layout.h"

namespace korvale::endtoend {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

namespace {

LONG WidthOf(const wchar_t* text) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  const HFONT font = CreateFontIndirectW(&metrics.lfMessageFont);
  const HDC screen = GetDC(nullptr);
  const HGDIOBJ before = SelectObject(screen, font);
  SIZE size{};
  GetTextExtentPoint32W(screen, text, lstrlenW(text), &size);
  SelectObject(screen, before);
  ReleaseDC(nullptr, screen);
  DeleteObject(font);
  return size.cx;
}

/// Clicks on the tab of that page.
bool TurnTo(const OptionsDialog& dialog, OptionsDialog::Page page) {
  // A tab is as wide as its text and a margin, which need not be known to the pixel to hit it.
  constexpr LONG kMargin = 14;
  constexpr const wchar_t* kTabs[] = {L"General", L"Hot Keys", L"Window Identification"};
  const auto wanted = static_cast<size_t>(page) - 1;
  LONG left = 0;
  for (size_t tab = 0; tab < wanted; ++tab) left += WidthOf(kTabs[tab]) + kMargin;
  ClickAt(dialog.form().Controls("SysTabControl32").front(),
          {left + (WidthOf(kTabs[wanted]) + kMargin) / 2, 10});
  return WaitFor([&] { return dialog.CurrentPage() == page; });
}

}  // namespace

std::vector<SeenEntry> MouseUser::OpenMenuOf(Menu menu, size_t count) {
  constexpr size_t kMenus = 5;
  std::vector<POINT> titles;
  const auto all_titles = [&] { return (titles = MenuTitles(main())).size() == kMenus; };
  EXPECT_TRUE(WaitFor(all_titles)) << titles.size() << " menus";
  if (titles.size() != kMenus) return {};
  ClickOnScreen(titles[menu]);
  std::vector<SeenEntry> seen = MenuEntries(korvale_->OpenMenu(), count);
  EXPECT_EQ(seen.size(), count);
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
  EXPECT_TRUE(TurnTo(dialog, page)) << "the click does not turn to the page";
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
