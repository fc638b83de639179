#include "tests/endtoend/contract/input.h"

#include <vector>

namespace korvale {
namespace {

class InputBatch {
 public:
  void Key(int virtualKey, bool up) {
    const auto key = static_cast<WORD>(virtualKey);
    DWORD flags = up ? KEYEVENTF_KEYUP : 0U;
    if (key >= VK_PRIOR && key <= VK_DOWN) flags |= KEYEVENTF_EXTENDEDKEY;
    Add(key, static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)), flags);
  }

  void Character(wchar_t unit) {
    Add(0, unit, KEYEVENTF_UNICODE);
    Add(0, unit, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
  }

  void Shift(unsigned shift, bool up) {
    if ((shift & kCtrl) != 0) Key(VK_CONTROL, up);
    if ((shift & kShift) != 0) Key(VK_SHIFT, up);
    if ((shift & kAlt) != 0) Key(VK_MENU, up);
    if ((shift & kWindows) != 0) Key(VK_LWIN, up);
  }

  void Mouse(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    inputs_.push_back(input);
  }

  void Send() { SendInput(static_cast<UINT>(inputs_.size()), inputs_.data(), sizeof(INPUT)); }

 private:
  void Add(WORD virtualKey, WORD scan, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = scan;
    input.ki.dwFlags = flags;
    inputs_.push_back(input);
  }

  std::vector<INPUT> inputs_;
};

}  // namespace

void PressAndRelease(int virtualKey, unsigned shift) {
  InputBatch batch;
  batch.Shift(shift, false);
  batch.Key(virtualKey, false);
  batch.Key(virtualKey, true);
  batch.Shift(shift, true);
  batch.Send();
}

void PutKey(int virtualKey, bool down) {
  InputBatch batch;
  batch.Key(virtualKey, !down);
  batch.Send();
}

void HoldAlt(bool down) { PutKey(VK_MENU, down); }

bool HasKey(wchar_t character) {
  constexpr wchar_t kFirstBeyondAscii = 0x80;
  return character < kFirstBeyondAscii && VkKeyScanW(character) != -1;
}

void PressKeyOf(wchar_t character, unsigned shift) {
  const SHORT key = VkKeyScanW(character);
  PressAndRelease(LOBYTE(key), shift | (HIBYTE(key) & (kShift | kCtrl)));
}

void PutCharacter(wchar_t character) {
  InputBatch batch;
  batch.Character(character);
  batch.Send();
}

void ClickLeft() {
  InputBatch batch;
  batch.Mouse(MOUSEEVENTF_LEFTDOWN);
  batch.Mouse(MOUSEEVENTF_LEFTUP);
  batch.Send();
}

}  // namespace korvale
