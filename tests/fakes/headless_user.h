#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "tests/contract/user_hands.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/headless_form_host.h"

namespace korvale {

/// The user in front of the headless host: does what Windows' controls do by themselves, and fails
/// the test when asked for something that they could not do.
class HeadlessUser : public UserHands {
 public:
  /// Both must outlive the user. From now on `clock` gives its ticks to the host.
  HeadlessUser(HeadlessFormHost& host, FakeClock& clock);

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
  /// The control as shown: colours, border, tool tip, flags.
  const ControlState& Look(WindowHandle hwnd, int control);

  void Click(WindowHandle hwnd, int control) override;
  /// Presses and releases a mouse button at a point of a control, or of the form's client area.
  void ClickAt(WindowHandle hwnd, int control, Twips x, Twips y, unsigned shift = kNoShift,
               MouseButton button = MouseButton::kLeft);
  void MoveMouse(WindowHandle hwnd, int control, Twips x, Twips y) override;
  void PressKey(WindowHandle hwnd, int virtualKey, unsigned shift = kNoShift) override;
  std::string CharactersFor(WindowHandle hwnd, int control,
                            const std::function<void()>& doing) override;
  void HoldKey(WindowHandle hwnd, int virtualKey, int repeats) override;
  void ReleaseKey(WindowHandle hwnd, int virtualKey) override;
  void TypeText(WindowHandle hwnd, std::string_view text, bool alt = false) override;
  void Pick(WindowHandle hwnd, int control, int listIndex) override;
  void OpenList(WindowHandle hwnd, int control) override;
  void OpenAndCloseList(WindowHandle hwnd, int control) override;

  std::vector<ShownMenuItem> MenuBarItems(WindowHandle hwnd) override;
  std::vector<ShownMenuItem> MenuItems(WindowHandle hwnd,
                                       const std::vector<std::string>& path) override;
  void ChooseMenu(WindowHandle hwnd, const std::vector<std::string>& path) override;
  /// The entries of the menu that the keyboard has opened; empty when none is open.
  std::vector<ShownMenuItem> OpenMenuItems() const;

  void ChangeTextSize(int percent) override;
  bool NarrowWorkArea(Twips by) override;

  void WhenWaiting(std::function<void()> action) override;
  void WhenMessageBox(std::function<std::int16_t(const ShownMessage&)> answer) override;
  void WhenPopupMenu(std::function<std::string(const std::vector<ShownMenuItem>&)> choose) override;
  void LetPass(std::uint32_t milliseconds) override;

 private:
  struct Key {
    int virtualKey = 0;
    unsigned shift = kNoShift;
    std::string character;  ///< What the key types, "" = nothing.
  };

  // headless_user.cpp
  HeadlessWindow& Reach(WindowHandle hwnd, const std::string& doing);
  HeadlessWindow& ReachControl(WindowHandle hwnd, int control, const std::string& doing);
  void PressMouse(WindowHandle hwnd, int control, Twips x, Twips y, unsigned shift,
                  MouseButton button);
  void CloseOpenLists(WindowHandle hwnd);
  void CloseList(WindowHandle hwnd, int control);
  void PickEntry(WindowHandle hwnd, int control, int listIndex);

  // headless_keyboard.cpp
  static Key KeyOf(int virtualKey, unsigned shift);
  static Key KeyOfCharacter(std::string_view character, bool alt);
  void Press(WindowHandle hwnd, const Key& key);
  /// True when the form has dealt with the key.
  bool GoDown(WindowHandle hwnd, const Key& key, bool repeated);
  /// True when the form has dealt with the character.
  bool GiveCharacter(WindowHandle hwnd, int control, char32_t character, unsigned shift);
  /// True when the form has dealt with the release.
  bool ComeUp(WindowHandle hwnd, const Key& key, bool pressDealtWith);
  void PressSentKeys(WindowHandle hwnd);
  void PressInControl(WindowHandle hwnd, int control, const Key& key);
  void PressInText(WindowHandle hwnd, int control, const Key& key);
  void PressInList(WindowHandle hwnd, int control, const Key& key);
  void PressInOpenList(WindowHandle hwnd, int control, const Key& key);
  void SearchList(WindowHandle hwnd, int control, const Key& key);
  void TellTyped(WindowHandle hwnd, int control);

  // headless_menus.cpp
  DrawnMenu* FindInBar(HeadlessWindow& window, const std::string& caption);
  MenuItem& WalkMenus(WindowHandle hwnd, const std::vector<std::string>& path);
  bool OpenMenuByKey(WindowHandle hwnd, std::string_view character);
  void PressInMenu(WindowHandle hwnd, const Key& key);
  void OpenMenu(WindowHandle hwnd, MenuItem& menu);
  void ChooseItem(WindowHandle hwnd, MenuItem& item);
  void MoveInMenu(int step);

  HeadlessFormHost* host_;
  FakeClock* clock_;
  std::deque<Key> sentKeys_;           ///< By the program itself; pressed after the user's own.
  std::vector<MenuItem*>& openMenus_;  ///< Of the host.
  MenuItem* highlighted_ = nullptr;
  bool altHeld_ = false;
  bool altAlone_ = false;  ///< Of the keys held, Windows has seen Alt last.
  int listenedTo_ = 0;     ///< The control whose characters are noted.
  std::string given_;
};

}  // namespace korvale
