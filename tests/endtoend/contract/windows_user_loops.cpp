#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <utility>

#include "platform/windows/text.h"
#include "tests/endtoend/contract/input.h"
#include "tests/endtoend/contract/menu_reader.h"
#include "tests/endtoend/contract/windows_user.h"
#include "tests/endtoend/harness/keyboard.h"
#include "ui/windows/units.h"

namespace korvale {
namespace {

constexpr DWORD kQuietMilliseconds = 20;
constexpr ULONGLONG kLongestMilliseconds = 5000;
constexpr int kPatience = 200;
/// How long the windows may take to hear of other settings.
constexpr std::uint32_t kToldMilliseconds = 100;
constexpr int kMessageText = 0xFFFF;

template <typename Queue>
auto TakeFirst(Queue& queue) {
  auto first = std::move(queue.front());
  queue.pop_front();
  return first;
}

std::string ReadText(HWND window) {
  std::wstring text(1024, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), 1024)));
  return ToUtf8(text);
}

bool IsMessageBox(HWND window) {
  wchar_t name[16] = L"";
  GetClassNameW(window, name, 16);
  return std::wstring_view(name) == L"#32770";
}

POINT MiddleOfEntry(HMENU menu, HWND window, int position) {
  RECT rect{};
  GetMenuItemRect(window, menu, static_cast<UINT>(position), &rect);
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

LRESULT CALLBACK NoteCharacters(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                UINT_PTR /*id*/, DWORD_PTR given) {
  if (message == WM_CHAR) *reinterpret_cast<std::string*>(given) += static_cast<char>(wParam);
  return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

void WindowsUser::WhenWaiting(std::function<void()> action) {
  actions_.push_back(std::move(action));
}

void WindowsUser::WhenMessageBox(std::function<std::int16_t(const ShownMessage&)> answer) {
  answers_.push_back(std::move(answer));
}

void WindowsUser::WhenPopupMenu(
    std::function<std::string(const std::vector<ShownMenuItem>&)> choose) {
  choices_.push_back(std::move(choose));
}

void WindowsUser::OnIdle() {
  const HWND active = GetActiveWindow();
  if (InMenu()) {
    ContinueInMenu();
    return;
  }
  lostInMenu_ = 0;
  if (IsMessageBox(active) && active != answered_) {
    AnswerMessageBox(active);
  } else if (!actions_.empty() && loop_->running > 0 && loop_->running != settlingIn_) {
    const int outer = std::exchange(settlingIn_, -1);
    TakeFirst(actions_)();
    settlingIn_ = outer;
  }
}

void WindowsUser::AnswerMessageBox(HWND box) {
  answered_ = box;
  std::int16_t button = IDCANCEL;
  if (answers_.empty()) {
    ADD_FAILURE() << "Unexpected message: " << ReadText(GetDlgItem(box, kMessageText));
  } else {
    const ShownMessage shown{ToWindowHandle(GetWindow(box, GW_OWNER)),
                             ReadText(GetDlgItem(box, kMessageText)), ReadText(box), 0};
    button = TakeFirst(answers_)(shown);
  }
  PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button),
               reinterpret_cast<LPARAM>(GetDlgItem(box, button)));
}

void WindowsUser::ContinueInMenu() {
  const bool hasStep = !menuSteps_.empty();
  if (hasStep && menuSteps_.front()()) {
    menuSteps_.pop_front();
    lostInMenu_ = 0;
  } else if (!hasStep && !choices_.empty() && !OpenMenus().empty()) {
    AnswerPopupMenu();
  } else if (++lostInMenu_ > kPatience) {
    ADD_FAILURE() << "A menu is open that nobody asked for, or stays open";
    lostInMenu_ = 0;
    PressAndRelease(VK_ESCAPE, kNoShift);
  }
}

void WindowsUser::AnswerPopupMenu() {
  const HWND window = OpenMenus().front();
  const std::string choice = TakeFirst(choices_)(ReadMenu(MenuOf(window)));
  if (choice.empty()) {
    PressAndRelease(VK_ESCAPE, kNoShift);
  } else {
    ClickEntry(window, choice);
  }
}

void WindowsUser::ClickEntry(HWND window, const std::string& caption) {
  const int position = FindEntry(MenuOf(window), caption);
  EXPECT_GE(position, 0) << caption;
  endtoend::PutPointer(MiddleOfEntry(MenuOf(window), window, position));
  ClickLeft();
}

void WindowsUser::Settle() {
  const int outer = std::exchange(settlingIn_, loop_->running);
  const ULONGLONG end = GetTickCount64() + kLongestMilliseconds;
  do {
    loop_->DoEvents();
  } while (!loop_->QuitPosted() && GetTickCount64() < end &&
           MsgWaitForMultipleObjects(0, nullptr, FALSE, kQuietMilliseconds,
                                     QS_ALLINPUT & ~QS_TIMER) == WAIT_OBJECT_0);
  settlingIn_ = outer;
}

void WindowsUser::ChangeTextSize(int percent) {
  if (textSize_) {
    textSize_->Change(percent);
  } else {
    textSize_.emplace(percent);
  }
  LetPass(kToldMilliseconds);
}

bool WindowsUser::NarrowWorkArea(Twips by) {
  const auto width = [] {
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    GetMonitorInfoW(MonitorFromPoint({}, MONITOR_DEFAULTTOPRIMARY), &info);
    return info.rcWork.right - info.rcWork.left;
  };
  const LONG before = width();
  if (!workArea_) workArea_.emplace();
  endtoend::WorkArea::Narrow(ToPixels(by, GetDpiForSystem()));
  LetPass(kToldMilliseconds);
  return width() != before;
}

void WindowsUser::LetPass(std::uint32_t milliseconds) {
  const int outer = std::exchange(settlingIn_, loop_->running);
  const ULONGLONG end = GetTickCount64() + milliseconds;
  for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
    loop_->DoEvents();
  }
  settlingIn_ = outer;
}

std::string WindowsUser::CharactersFor(WindowHandle hwnd, int control,
                                       const std::function<void()>& doing) {
  const HWND window = FindControl(hwnd, control);
  std::string given;
  SetWindowSubclass(window, NoteCharacters, 0, reinterpret_cast<DWORD_PTR>(&given));
  doing();
  RemoveWindowSubclass(window, NoteCharacters, 0);
  return given;
}

std::vector<ShownMenuItem> WindowsUser::MenuBarItems(WindowHandle hwnd) {
  const HMENU bar = GetMenu(ToHwnd(hwnd));
  return bar == nullptr ? std::vector<ShownMenuItem>{} : ReadMenu(bar);
}

void WindowsUser::WalkMenu(WindowHandle hwnd, const std::vector<std::string>& path,
                           const MenuStep& last) {
  if (!IsActive(hwnd)) return;
  for (std::size_t depth = 1; depth < path.size(); ++depth) {
    menuSteps_.emplace_back([=, this, caption = path[depth]] {
      const std::vector<HWND> open = OpenMenus();
      if (open.size() < depth) return false;
      ClickEntry(open[depth - 1], caption);
      return true;
    });
  }
  if (last) menuSteps_.push_back(last);
  const HMENU bar = GetMenu(ToHwnd(hwnd));
  const int position = FindEntry(bar, path.front());
  ASSERT_GE(position, 0) << path.front();
  ClickAt(MiddleOfEntry(bar, ToHwnd(hwnd), position));
  Settle();
  EXPECT_TRUE(menuSteps_.empty());
}

std::vector<ShownMenuItem> WindowsUser::MenuItems(WindowHandle hwnd,
                                                  const std::vector<std::string>& path) {
  std::vector<ShownMenuItem> items;
  bool read = false;
  WalkMenu(hwnd, path, [&] {
    const std::vector<HWND> open = OpenMenus();
    if (!read && open.size() < path.size()) return false;
    if (!read) items = ReadMenu(MenuOf(open[path.size() - 1]));
    read = true;
    // Each Esc closes one menu, the last one leaves the bar.
    PressAndRelease(VK_ESCAPE, kNoShift);
    return open.empty();
  });
  return items;
}

void WindowsUser::ChooseMenu(WindowHandle hwnd, const std::vector<std::string>& path) {
  WalkMenu(hwnd, path, nullptr);
}

}  // namespace korvale
