#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/dying_windows_test.h"

namespace korvale {

/// What a user does when Alpha meets its fate, and how they come to it.
class DyingOperations : public DyingWindowTest {
 public:
  // Preparations.
  void Leave() {}
  void LoseHandle() { ReopenTarget({.className = "Target"}); }
  void ChangeClass() { ReopenTarget({.className = "New", .children = 0}); }
  void MinimizeAlpha() { desktop.UserMinimizes(target); }
  void MinimizeAlphaAndBeta() {
    desktop.UserMinimizes(target);
    desktop.UserMinimizes(beta);
  }
  void MinimizeAlphaInFront() {
    WorkIn(target);
    desktop.UserMinimizes(target);
    desktop.Windows().Activate(target);
  }
  void KeepAlphaMinimized() {
    ReopenTarget({.className = "Target", .iconic = true, .staysIconic = true});
    Retag();
  }
  void GoToOwnedAlpha() {
    const WindowHandle owner = desktop.Open("Owner");
    ReopenTarget(
        {.className = "Target", .owner = owner, .style = fakes::kWsPopup | win32::kWsMinimizeBox});
    Retag();
    WorkIn(target);
  }
  void MinimizeOwnerOfAlpha() {
    const WindowHandle owner = desktop.Open("Owner");
    ReopenTarget({.className = "Target", .owner = owner, .style = fakes::kWsPopup});
    Retag();
    desktop.UserMinimizes(owner);
  }
  void MinimizeOwnerThatDies() {
    MinimizeOwnerOfAlpha();
    dying = desktop.FindWindowA("Owner");
  }
  void GoToAlphaOfDyingOwner() {
    GoToOwnedAlpha();
    dying = desktop.FindWindowA("Owner");
  }
  void Retag() {
    korvale->Tags().mnuWindowParentList.Unload(1);
    Tag(1, "Alpha", "Target", target);
  }
  void ComeFromAlpha() {
    WorkIn(target);
    WorkIn(beta);
  }
  void ComeFromMinimizedAlpha() {
    ComeFromAlpha();
    desktop.UserMinimizes(target);
  }
  void ComeFromDialogOfAlpha() {
    WorkIn(target);
    desktop.OpenModalDialog(target, "Dialog");
    LetTick();
    WorkIn(beta);
  }
  void ComeFromDyingDialog() {
    ComeFromDialogOfAlpha();
    dying = desktop.FindWindowA("Dialog");
  }
  void GoToAlpha() { WorkIn(target); }
  void GoToAlphaBetweenTwoTicks() { desktop.UserActivates(target); }
  void GoToKorvale() {
    WorkIn(target);
    WorkIn(korvale->Handle());
  }
  void OpenOptions() {
    WorkIn(target);
    PressHotKey(win32::kModWin, 'O');
  }
  void EndKorvale() {
    WorkIn(target);
    korvale->Exit();
    const WindowHandle owner = korvale->bridge.Owner();
    EndCopy(*korvale);
    desktop.Windows().Destroy(owner);
    boxes.clear();
  }

  // Operations.
  void Press(std::uint32_t modifiers, std::uint32_t key) {
    EXPECT_TRUE(hotKeys.Press(modifiers, key));
  }
  void PressOne() { Press(win32::kModAlt, '1'); }
  void PressZero() { Press(win32::kModAlt, '0'); }
  void PressNoWindow() {
    korvale->Tags().mnuWindowParentList.Load(9).caption = "&9  Nowhere";
    Press(win32::kModAlt, '9');
  }
  void PressMinimize() {
    Press(win32::kModAlt, win32::kVkDown);
    // The key is for the window in front, which is Beta once Alpha has gone.
    EXPECT_TRUE(Front() != "Gamma" || desktop.IsIconic(beta));
  }
  void PressMaximize() { Press(win32::kModAlt, win32::kVkUp); }
  void PressPauseTwice() {
    Press(0, win32::kVkPause);
    Press(0, win32::kVkPause);
  }
  void ToggleAlwaysOnTop() {
    korvale->ChooseLate("mnuWindowAlwaysOnTop");
    korvale->ChooseLate("mnuWindowAlwaysOnTop");
  }
  void TogglePreviousOnTop() { korvale->ChooseLate("mnuWindowPreviousWindowAlwaysOnTop"); }
  void MinimizeAll() {
    korvale->ChooseLate("mnuWindowMinimizeAll");
    for (const WindowHandle hwnd : {beta, gamma}) {
      EXPECT_TRUE(desktop.Windows().Find(hwnd)->iconic);
    }
  }
  void RestoreAll() {
    korvale->ChooseLate("mnuWindowRestoreAll");
    EXPECT_FALSE(desktop.Windows().Find(beta)->iconic);
  }
  void AddThis() { korvale->ChooseLate("mnuWindowAddToList", 1); }
  void AddPrevious() { korvale->ChooseLate("mnuWindowAddToList", 2); }
  void OpenAndCloseAddWindow() {
    addsWindow = false;
    PopUp("Add  [");
  }
  void PopUpAndEscape() { PopUp(""); }
  void PopUpAndChoose() { PopUp("1  "); }
  void PopUp(const std::string& beginning) {
    korvale->host.WhenPopupMenu(
        [=](const std::vector<ShownMenuItem>& items) { return EntryThatBegins(items, beginning); });
    Press(win32::kModWin, 'W');
  }
  void Tick() { LetTick(); }
  void CloseOptionsAgain() { CloseOptions(); }
  void OpenOptionsByKey() { Press(win32::kModWin, 'O'); }
  void Start() {
    korvale = &NewCopy();
    AttendTo(*korvale);
    EXPECT_TRUE(korvale->Start());
  }
};

}  // namespace korvale
