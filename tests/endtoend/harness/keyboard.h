#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Modifier bits as RegisterHotKey takes them: MOD_ALT, MOD_CONTROL, MOD_SHIFT, MOD_WIN.
struct Chord {
  UINT modifiers = 0;
  UINT key = 0;  ///< 0 = the modifiers alone.
};

inline constexpr Chord kMinimizeKey{MOD_ALT, VK_DOWN};
inline constexpr Chord kMaximizeKey{MOD_ALT, VK_UP};
inline constexpr Chord kToggleKey{0, VK_PAUSE};
/// What tests use in place of the next two; `Installation::MarkAsUsed` stores them.
inline constexpr Chord kOptionsKey{MOD_CONTROL, VK_F11};
inline constexpr Chord kMenuKey{MOD_CONTROL, VK_F12};
/// As they are out of the box. Windows 10 and 11 keep them for themselves: nobody can register
/// them, and pressing them does what Windows does with them.
inline constexpr Chord kDefaultOptionsKey{MOD_WIN, 'O'};
inline constexpr Chord kDefaultMenuKey{MOD_WIN, 'W'};

/// The hot key of Tag `tag`, 0 to 9, as it is out of the box.
constexpr Chord TagKey(int tag) { return {MOD_ALT, static_cast<UINT>('0' + tag)}; }

/// Every hot key that an installation registers after `Installation::MarkAsUsed`, and every one
/// that it tries to register out of the box.
std::vector<Chord> AllHotKeys();
std::vector<Chord> DefaultHotKeys();

/// True while that key is down.
bool IsDown(UINT key);

/// Keys held down, released in reverse when the owner lets go.
class HeldKeys {
 public:
  explicit HeldKeys(Chord chord);
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;
  ~HeldKeys();

 private:
  std::vector<WORD> keys_;
};

/// Presses and releases a chord through SendInput: it reaches whatever is in front. Modifiers are
/// down for a moment before the key comes, as a hand holds them: Wine hands out a hot key before
/// the keys that made it, and a program that hears of Alt only once another one is in front
/// believes it down from then on.
void Press(Chord chord);

/// The same without that moment, all in one.
void PressAtOnce(Chord chord);

/// Makes the program of a window believe no key down, by attaching to its input for a moment. One
/// that was told of Alt going down, but not of its coming up in another one's window, believes it
/// down: Windows sets that right when the program gets the focus, Wine does not.
void ForgetKeys(Window window);

/// Types text into whatever has the focus.
void Type(const std::string& text);

/// Clicks the left mouse button on the middle of a window or control.
void Click(Window window);

/// Where the mouse is on the screen.
POINT Pointer();

/// Moves the mouse to a place on the screen.
void PutPointer(POINT at);

/// Moves the mouse to a place in a window or control, counted in pixels from its left upper corner.
void MoveMouse(Window window, POINT at);

/// Moves the mouse there, waits until nothing lies over the window, and clicks its left button.
/// Throws, and so ends the test, when something stays there.
void ClickAt(Window window, POINT at);

/// Turns the mouse wheel over the middle of a window or control: away from the user above 0.
void TurnWheel(Window window, int notches);

/// Moves the mouse to where tests have no windows, the right lower corner of the work area.
void MoveMouseAside();

/// Drags what lies at a place of the screen to another one, with the left button, step by step.
/// `each_step` is called while the button is down.
void Drag(POINT from, POINT to, const std::function<void()>& each_step = {});

/// True when this process could take the hot key, that is, neither another one nor Windows has it.
bool HotKeyIsFree(Chord chord);

}  // namespace korvale::endtoend
