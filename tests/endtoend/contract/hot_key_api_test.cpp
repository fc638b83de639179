#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "platform/windows/handles.h"
#include "platform/windows/windows_hot_key_api.h"

namespace korvale {
namespace {

constexpr UINT kMessage = WM_APP + 1;
constexpr int kId = 7;

struct Recorder : WindowProcedure {
  std::intptr_t Call(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                     std::intptr_t lParam) override {
    return call(hwnd, message, wParam, lParam);
  }
  void OnUncaught() noexcept override { ++uncaught; }

  std::function<std::intptr_t(WindowHandle, std::uint32_t, std::uintptr_t, std::intptr_t)> call;
  int uncaught = 0;
};

/// Messages that have reached the window's own procedure.
int ownCalls = 0;

LRESULT CALLBACK OwnProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != kMessage) return DefWindowProcW(hwnd, message, wParam, lParam);
  ++ownCalls;
  return 42;
}

class WindowsHotKeyApiTest : public testing::Test {
 protected:
  WindowsHotKeyApiTest() {
    SetWindowLongPtrW(hwnd_.Get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OwnProcedure));
    ownCalls = 0;
    recorder_.call = [this](auto... arguments) { return Pass(arguments...); };
  }
  WindowHandle Window() const { return ToWindowHandle(hwnd_.Get()); }
  LRESULT Send() { return SendMessageW(hwnd_.Get(), kMessage, 1, 2); }
  std::intptr_t Pass(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                     std::intptr_t lParam) {
    return api_.CallWindowProcA(previous_, hwnd, message, wParam, lParam);
  }
  /// Presses Alt+Ctrl+F9 and waits for its message, which stays in the queue.
  static void PressUntilQueued() {
    constexpr WORD kKeys[] = {VK_CONTROL, VK_MENU, VK_F9};
    std::vector<INPUT> inputs;
    for (const WORD key : kKeys) inputs.push_back(KeyInput(key, 0));
    for (auto key = std::rbegin(kKeys); key != std::rend(kKeys); ++key) {
      inputs.push_back(KeyInput(*key, KEYEVENTF_KEYUP));
    }
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    const ULONGLONG end = GetTickCount64() + 5000;
    while ((HIWORD(GetQueueStatus(QS_HOTKEY)) & QS_HOTKEY) == 0) {
      ASSERT_LT(GetTickCount64(), end) << "no press came";
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_HOTKEY);
    }
  }
  static INPUT KeyInput(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    return input;
  }
  void Hook() { previous_ = api_.SetWindowLongPtrA(Window(), recorder_); }

  UniqueWindow hwnd_{
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr)};
  Recorder recorder_;
  PreviousProcedure previous_ = 0;
  WindowsHotKeyApi api_;
};

TEST_F(WindowsHotKeyApiTest, TakesACombinationOnce) {
  EXPECT_TRUE(api_.RegisterHotKey(Window(), kId, MOD_ALT | MOD_CONTROL, VK_F9));
  EXPECT_FALSE(api_.RegisterHotKey(Window(), kId + 1, MOD_ALT | MOD_CONTROL, VK_F9));
  EXPECT_TRUE(api_.UnregisterHotKey(Window(), kId));
  EXPECT_FALSE(api_.UnregisterHotKey(Window(), kId));
  EXPECT_TRUE(api_.RegisterHotKey(Window(), kId + 1, MOD_ALT | MOD_CONTROL, VK_F9));
  EXPECT_TRUE(api_.UnregisterHotKey(Window(), kId + 1));
}

TEST_F(WindowsHotKeyApiTest, CanBeToldOfTheSession) {
  EXPECT_TRUE(api_.WTSRegisterSessionNotification(Window()));
  api_.WTSUnRegisterSessionNotification(Window());
}

TEST_F(WindowsHotKeyApiTest, CanBeToldOfTheEndOfASleep) {
  EXPECT_TRUE(api_.RegisterSuspendResumeNotification(Window()));
  EXPECT_TRUE(api_.RegisterSuspendResumeNotification(Window()));
  api_.UnregisterSuspendResumeNotification(Window());
  api_.UnregisterSuspendResumeNotification(Window());
}

TEST_F(WindowsHotKeyApiTest, AMessageTakenOutTellsWhatCameWithIt) {
  EXPECT_TRUE(api_.PostMessageW(Window(), kMessage, 6, 7));
  EXPECT_TRUE(api_.PostMessageW(Window(), kMessage, 8, 9));
  EXPECT_EQ(api_.PeekMessageW(Window(), kMessage + 1), std::nullopt);
  EXPECT_EQ(api_.PeekMessageW(Window(), kMessage), (QueuedMessage{6, 7}));
  EXPECT_EQ(api_.PeekMessageW(Window(), kMessage), (QueuedMessage{8, 9}));
  EXPECT_EQ(api_.PeekMessageW(Window(), kMessage), std::nullopt);
}

TEST_F(WindowsHotKeyApiTest, APressIsTakenFromTheQueueOnceAfterItsKeyWasGivenBack) {
  ASSERT_TRUE(api_.RegisterHotKey(Window(), kId, MOD_ALT | MOD_CONTROL, VK_F9));
  EXPECT_FALSE(api_.PeekMessageW(Window(), WM_HOTKEY));
  PressUntilQueued();
  EXPECT_TRUE(api_.UnregisterHotKey(Window(), kId));
  EXPECT_TRUE(api_.PeekMessageW(Window(), WM_HOTKEY));
  EXPECT_FALSE(api_.PeekMessageW(Window(), WM_HOTKEY));
}

TEST_F(WindowsHotKeyApiTest, TheEndOfTheProgramIsNotTakenForAPress) {
  PostQuitMessage(3);
  EXPECT_FALSE(api_.PeekMessageW(Window(), WM_HOTKEY));
  ASSERT_TRUE(api_.RegisterHotKey(Window(), kId, MOD_ALT | MOD_CONTROL, VK_F9));
  PressUntilQueued();
  EXPECT_TRUE(api_.UnregisterHotKey(Window(), kId));
  while (api_.PeekMessageW(Window(), WM_HOTKEY)) {
  }
  MSG message;
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE);
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 3U);
}

TEST_F(WindowsHotKeyApiTest, AskingForAPressThatIsNotThereLetsNoSentMessageIn) {
  std::thread other([this] { SendNotifyMessageW(hwnd_.Get(), kMessage, 1, 2); });
  other.join();
  EXPECT_FALSE(api_.PeekMessageW(Window(), WM_HOTKEY));
  EXPECT_EQ(ownCalls, 0);
  MSG message;
  PeekMessageW(&message, hwnd_.Get(), 0, 0, PM_NOREMOVE);
  EXPECT_EQ(ownCalls, 1);
}

TEST_F(WindowsHotKeyApiTest, AHookSeesAMessageFirstAndMayPassItOn) {
  Hook();
  std::vector<std::uintptr_t> seen;
  recorder_.call = [&](WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                       std::intptr_t lParam) {
    if (message == kMessage) {
      seen = {static_cast<std::uintptr_t>(hwnd), wParam, static_cast<std::uintptr_t>(lParam)};
    }
    return Pass(hwnd, message, wParam, lParam);
  };
  EXPECT_EQ(Send(), 42);
  EXPECT_EQ(seen, (std::vector<std::uintptr_t>{static_cast<std::uintptr_t>(Window()), 1, 2}));
  EXPECT_EQ(ownCalls, 1);
}

TEST_F(WindowsHotKeyApiTest, AHookMayKeepAMessage) {
  Hook();
  recorder_.call = [](auto...) { return 5; };
  EXPECT_EQ(Send(), 5);
  EXPECT_EQ(ownCalls, 0);
}

TEST_F(WindowsHotKeyApiTest, AnErrorIsReportedAndTheMessageGoesOn) {
  Hook();
  recorder_.call = [](auto...) -> std::intptr_t { throw std::runtime_error("hook"); };
  EXPECT_EQ(Send(), 42);
  EXPECT_EQ(recorder_.uncaught, 1);
  EXPECT_EQ(ownCalls, 1);
}

TEST_F(WindowsHotKeyApiTest, AnErrorAfterPassingOnDoesNotPassOnAgain) {
  Hook();
  recorder_.call = [this](auto... arguments) -> std::intptr_t {
    Pass(arguments...);
    throw std::runtime_error("hook");
  };
  Send();
  EXPECT_EQ(recorder_.uncaught, 1);
  EXPECT_EQ(ownCalls, 1);
}

TEST_F(WindowsHotKeyApiTest, PuttingTheFormerProcedureBackEndsTheHook) {
  const LONG_PTR before = GetWindowLongPtrW(hwnd_.Get(), GWLP_WNDPROC);
  Hook();
  api_.SetWindowLongPtrA(Window(), previous_);
  recorder_.call = [](auto...) { return 5; };
  EXPECT_EQ(Send(), 42);
  EXPECT_EQ(GetWindowLongPtrW(hwnd_.Get(), GWLP_WNDPROC), before);
}

TEST_F(WindowsHotKeyApiTest, AHookMayEndItself) {
  Hook();
  recorder_.call = [this](auto... arguments) {
    api_.SetWindowLongPtrA(Window(), previous_);
    return Pass(arguments...);
  };
  EXPECT_EQ(Send(), 42);
  EXPECT_EQ(Send(), 42);
  EXPECT_EQ(ownCalls, 2);
}

TEST_F(WindowsHotKeyApiTest, AWindowMayGoWithItsHook) {
  Hook();
  hwnd_.Reset();
  EXPECT_EQ(recorder_.uncaught, 0);
}

TEST_F(WindowsHotKeyApiTest, TitlesOfAnyScriptGoThroughTheHook) {
  Hook();
  SetWindowTextW(hwnd_.Get(), L"Блокнот 日本 \U0001F600");
  wchar_t title[64];
  GetWindowTextW(hwnd_.Get(), title, 64);
  EXPECT_EQ(std::wstring(title), L"Блокнот 日本 \U0001F600");
}

}  // namespace
}  // namespace korvale
