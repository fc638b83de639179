// The least program that does Korvale's main job: Alt+1 to Alt+9 bring nine windows to the front.
// It looks for the windows once at its start and then for one whose handle is dead, notices a
// change of the foreground with a timer, and does nothing else. Korvale is measured beside it.
//   floor |Title 1|Title 2|...

#include <windows.h>

#include <cwchar>

#include "bench/floor/bare_loop.h"

namespace korvale::bench {
namespace {

constexpr int kTags = 9;
constexpr UINT kTimerMs = 100;

struct Tag {
  wchar_t title[kLongestText];
  HWND window;
};

class Floor {
 public:
  explicit Floor(const wchar_t* commandLine) {
    const wchar_t* at = std::wcschr(commandLine, L'|');
    for (int tag = 0; tag < kTags && at != nullptr; ++tag) {
      const wchar_t* const end = std::wcschr(++at, L'|');
      std::wcsncpy(tags_[tag].title, at,
                   end == nullptr ? kLongestText - 1 : static_cast<size_t>(end - at));
      at = end;
    }
  }

  void Run() {
    for (int tag = 1; tag <= kTags; ++tag) {
      RegisterHotKey(nullptr, tag, MOD_ALT, static_cast<UINT>('0' + tag));
    }
    BareLoop([this](const BareWindow& window) {
      for (Tag& tag : tags_) {
        if (Fits(window, tag)) tag.window = window.handle;
      }
    });
    SetTimer(nullptr, 0, kTimerMs, nullptr);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
      if (message.message == WM_HOTKEY) Select(tags_[message.wParam - 1]);
      if (message.message == WM_TIMER) Tick();
    }
  }

 private:
  static void Select(Tag& tag) {
    if (IsWindow(tag.window) == 0) tag.window = Find(tag);
    if (tag.window == nullptr) {
      MessageBoxW(nullptr, tag.title, L"Not open", MB_SETFOREGROUND);
    } else {
      SetForegroundWindow(tag.window);
    }
  }

  static HWND Find(const Tag& tag) {
    HWND found = nullptr;
    BareLoop([&](const BareWindow& window) {
      if (Fits(window, tag)) found = window.handle;
    });
    return found;
  }

  static bool Fits(const BareWindow& window, const Tag& tag) {
    return window.className[0] != L'\0' && window.child != nullptr &&
           std::wcscmp(window.title, tag.title) == 0;
  }

  void Tick() {
    const HWND now = GetForegroundWindow();
    if (now == foreground_) return;
    foreground_ = now;
    GetWindowTextW(now, foregroundTitle_, kLongestText);
  }

  Tag tags_[kTags]{};
  HWND foreground_ = nullptr;
  wchar_t foregroundTitle_[kLongestText]{};
};

}  // namespace
}  // namespace korvale::bench

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, char* /*arguments*/,
                   int /*show*/) {
  korvale::bench::Floor(GetCommandLineW()).Run();
  return 0;
}
