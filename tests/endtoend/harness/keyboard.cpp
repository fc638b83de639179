#include "tests/endtoend/harness/keyboard.h"

#include <algorithm>
#include <stdexcept>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

constexpr int kProbeId = 0x77;

bool IsExtended(WORD key) {
  constexpr WORD kExtended[] = {VK_DOWN, VK_UP,  VK_LEFT, VK_RIGHT,
                                VK_HOME, VK_END, VK_LWIN, VK_APPS};
  return std::find(std::begin(kExtended), std::end(kExtended), key) != std::end(kExtended);
}

INPUT KeyInput(WORD key, bool up) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0U) | (IsExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0U);
  return input;
}

void Send(std::vector<INPUT> inputs) {
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

std::vector<WORD> KeysOf(Chord chord) {
  std::vector<WORD> keys;
  if ((chord.modifiers & MOD_CONTROL) != 0) keys.push_back(VK_CONTROL);
  if ((chord.modifiers & MOD_SHIFT) != 0) keys.push_back(VK_SHIFT);
  if ((chord.modifiers & MOD_ALT) != 0) keys.push_back(VK_MENU);
  if ((chord.modifiers & MOD_WIN) != 0) keys.push_back(VK_LWIN);
  if (chord.key != 0) keys.push_back(static_cast<WORD>(chord.key));
  return keys;
}

// A sent message overtakes the keys that are under way, and only the call that answers it fetches
// them: a program that has answered the second one has had them all.
void LetForegroundNotice() {
  const Window foreground = Foreground();
  for (int times = 0; times < 3; ++times) {
    if (!foreground.Responds()) return;
  }
}

POINT OnScreen(Window window, POINT at) {
  RECT area{};
  GetWindowRect(window.handle(), &area);
  return {area.left + at.x, area.top + at.y};
}

// SendInput counts positions in 65536ths of the screen.
LONG Absolute(int pixel, int metric) { return MulDiv(pixel, 65536, GetSystemMetrics(metric)) + 1; }

void SendMouse(DWORD flags, POINT at = {}, int data = 0) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = Absolute(at.x, SM_CXSCREEN);
  input.mi.dy = Absolute(at.y, SM_CYSCREEN);
  input.mi.dwFlags = flags;
  input.mi.mouseData = static_cast<DWORD>(data);
  Send({input});
}

std::vector<Chord> WithTagKeys(Chord options, Chord menu) {
  std::vector<Chord> chords;
  for (int tag = 0; tag <= 9; ++tag) chords.push_back(TagKey(tag));
  chords.insert(chords.end(), {kMinimizeKey, kMaximizeKey, options, menu, kToggleKey});
  return chords;
}

}  // namespace

std::vector<Chord> AllHotKeys() { return WithTagKeys(kOptionsKey, kMenuKey); }

std::vector<Chord> DefaultHotKeys() { return WithTagKeys(kDefaultOptionsKey, kDefaultMenuKey); }

bool IsDown(UINT key) { return GetAsyncKeyState(static_cast<int>(key)) < 0; }

HeldKeys::HeldKeys(Chord chord) : keys_(KeysOf(chord)) {
  std::vector<INPUT> inputs;
  for (const WORD key : keys_) inputs.push_back(KeyInput(key, false));
  Send(inputs);
}

HeldKeys::~HeldKeys() {
  std::vector<INPUT> inputs;
  for (auto key = keys_.rbegin(); key != keys_.rend(); ++key) {
    inputs.push_back(KeyInput(*key, true));
  }
  Send(inputs);
}

void Press(Chord chord) {
  const HeldKeys modifiers({chord.modifiers, 0});
  if (chord.modifiers != 0) LetForegroundNotice();
  PressAtOnce({0, chord.key});
}

void PressAtOnce(Chord chord) { const HeldKeys held(chord); }

void ForgetKeys(Window window) {
  const DWORD thread = GetWindowThreadProcessId(window.handle(), nullptr);
  const DWORD own = GetCurrentThreadId();
  if (thread != 0 && AttachThreadInput(own, thread, TRUE) != 0) {
    AttachThreadInput(own, thread, FALSE);
  }
}

void Type(const std::string& text) {
  std::vector<INPUT> inputs;
  for (const wchar_t unit : Wide(text)) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = static_cast<WORD>(unit);
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    inputs.push_back(input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    inputs.push_back(input);
  }
  Send(inputs);
}

void Click(Window window) {
  RECT area{};
  GetWindowRect(window.handle(), &area);
  ClickAt(window, {(area.right - area.left) / 2, (area.bottom - area.top) / 2});
}

POINT Pointer() {
  POINT at{};
  GetCursorPos(&at);
  return at;
}

void PutPointer(POINT at) {
  SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, at);
  PutDisplayPointer(at.x, at.y);
}

void MoveMouse(Window window, POINT at) { PutPointer(OnScreen(window, at)); }

void ClickAt(Window window, POINT at) {
  const POINT point = OnScreen(window, at);
  PutPointer(point);
  // A window that comes to the front is raised a moment after it has got the focus, and the tip of
  // what the pointer has left stays for a moment.
  const HWND whole = GetAncestor(window.handle(), GA_ROOT);
  const bool anywhere = window.handle() == GetDesktopWindow();
  const auto uncovered = [&] { return GetAncestor(WindowFromPoint(point), GA_ROOT) == whole; };
  if (!anywhere && !WaitFor(uncovered) && window.Exists()) {
    throw std::runtime_error("something lies over " + window.Title());
  }
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  SendMouse(MOUSEEVENTF_LEFTUP);
}

void TurnWheel(Window window, int notches) {
  RECT area{};
  GetWindowRect(window.handle(), &area);
  MoveMouse(window, {(area.right - area.left) / 2, (area.bottom - area.top) / 2});
  SendMouse(MOUSEEVENTF_WHEEL, {}, notches * WHEEL_DELTA);
}

void MoveMouseAside() {
  constexpr LONG kFromEdges = 20;
  RECT work{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  PutPointer({work.right - kFromEdges, work.bottom - kFromEdges});
}

void Drag(POINT from, POINT to, const std::function<void()>& each_step) {
  constexpr int kSteps = 10;
  PutPointer(from);
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  for (int step = 1; step <= kSteps; ++step) {
    PutPointer(
        {from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
    if (each_step) each_step();
  }
  SendMouse(MOUSEEVENTF_LEFTUP);
}

bool HotKeyIsFree(Chord chord) {
  if (RegisterHotKey(nullptr, kProbeId, chord.modifiers, chord.key) == 0) return false;
  UnregisterHotKey(nullptr, kProbeId);
  return true;
}

}  // namespace korvale::endtoend
