#pragma once

#include <windows.h>

#include <deque>
#include <functional>
#include <optional>

#include "platform/message_loop.h"
#include "platform/windows/handles.h"
#include "tests/contract/user_hands.h"
#include "tests/endtoend/contract/idle_watch.h"
#include "tests/endtoend/harness/text_size.h"
#include "tests/endtoend/harness/work_area.h"

namespace korvale {

/// A message loop that counts how often it runs inside itself.
class WatchedMessageLoop : public MessageLoop {
 public:
  explicit WatchedMessageLoop(MessageLoop& loop) : loop_(&loop) {}

  void RunMessageLoop(const std::function<bool()>& done) override {
    ++running;
    loop_->RunMessageLoop(done);
    --running;
  }
  void DoEvents() override { loop_->DoEvents(); }
  void PostQuitMessage() override { loop_->PostQuitMessage(); }
  bool QuitPosted() override { return loop_->QuitPosted(); }

  int running = 0;

 private:
  MessageLoop* loop_;
};

/// A user with a real keyboard and mouse.
class WindowsUser final : public UserHands {
 public:
  explicit WindowsUser(WatchedMessageLoop& loop) : loop_(&loop) {}

  bool IsShown(WindowHandle hwnd) override;
  bool IsEnabled(WindowHandle hwnd) override;
  std::string Title(WindowHandle hwnd) override;
  std::string ClassName(WindowHandle hwnd) override;
  TwipsRect Place(WindowHandle hwnd) override;
  void PressCloseBox(WindowHandle hwnd) override;
  void CloseOwner(WindowHandle hwnd) override;
  void QuitThread() override;
  void Drag(WindowHandle hwnd, const TwipsRect& place) override;

  std::string Text(WindowHandle hwnd, int control) override;
  bool IsShown(WindowHandle hwnd, int control) override;
  bool IsEnabled(WindowHandle hwnd, int control) override;
  int Value(WindowHandle hwnd, int control) override;
  std::vector<std::string> ListEntries(WindowHandle hwnd, int control) override;
  int ListIndex(WindowHandle hwnd, int control) override;
  bool IsListOpen(WindowHandle hwnd, int control) override;
  int Focus(WindowHandle hwnd) override;
  TwipsRect Place(WindowHandle hwnd, int control) override;

  void Click(WindowHandle hwnd, int control) override;
  void MoveMouse(WindowHandle hwnd, int control, Twips x, Twips y) override;
  void PressKey(WindowHandle hwnd, int virtualKey, unsigned shift) override;
  std::string CharactersFor(WindowHandle hwnd, int control,
                            const std::function<void()>& doing) override;
  void HoldKey(WindowHandle hwnd, int virtualKey, int repeats) override;
  void ReleaseKey(WindowHandle hwnd, int virtualKey) override;
  void TypeText(WindowHandle hwnd, std::string_view text, bool alt) override;
  void Pick(WindowHandle hwnd, int control, int listIndex) override;
  void OpenList(WindowHandle hwnd, int control) override;
  void OpenAndCloseList(WindowHandle hwnd, int control) override;

  std::vector<ShownMenuItem> MenuBarItems(WindowHandle hwnd) override;
  std::vector<ShownMenuItem> MenuItems(WindowHandle hwnd,
                                       const std::vector<std::string>& path) override;
  void ChooseMenu(WindowHandle hwnd, const std::vector<std::string>& path) override;

  void ChangeTextSize(int percent) override;
  bool NarrowWorkArea(Twips by) override;

  void WhenWaiting(std::function<void()> action) override;
  void WhenMessageBox(std::function<std::int16_t(const ShownMessage&)> answer) override;
  void WhenPopupMenu(std::function<std::string(const std::vector<ShownMenuItem>&)> choose) override;
  void LetPass(std::uint32_t milliseconds) override;

 private:
  /// Does one thing in an open menu; false while it cannot be done yet.
  using MenuStep = std::function<bool()>;

  void OnIdle();
  void AnswerMessageBox(HWND box);
  void ContinueInMenu();
  void AnswerPopupMenu();
  /// Clicks an entry of an open menu.
  void ClickEntry(HWND window, const std::string& caption);
  /// Runs messages until all is quiet.
  void Settle();
  bool IsActive(WindowHandle hwnd);
  void MoveTo(POINT at);
  void ClickAt(POINT at);
  void TypeWithAlt(wchar_t character);
  void ClickReachable(HWND window, POINT at);
  void DropDown(HWND combo);
  /// Opens the menu at `path` with the mouse, then takes `last`, then runs until it has closed.
  void WalkMenu(WindowHandle hwnd, const std::vector<std::string>& path, const MenuStep& last);

  WatchedMessageLoop* loop_;
  std::optional<endtoend::TextSize> textSize_;
  std::optional<endtoend::WorkArea> workArea_;
  std::deque<std::function<void()>> actions_;
  std::deque<std::function<std::int16_t(const ShownMessage&)>> answers_;
  std::deque<std::function<std::string(const std::vector<ShownMenuItem>&)>> choices_;
  std::deque<MenuStep> menuSteps_;
  int settlingIn_ = -1;  // The loop that runs around Settle; no action waits for it.
  HWND answered_ = nullptr;
  ULONGLONG lastClick_ = 0;
  int lostInMenu_ = 0;  // How often there was nothing to do in an open menu.
  IdleWatch watch_{[this] { OnIdle(); }};
};

/// The window of a control, wherever in the form it is.
HWND FindControl(WindowHandle hwnd, int control);

}  // namespace korvale
