// Opens top-level windows of every style on request: one request a line on the standard input,
// fields separated by tabs, one line of answer each.
//   open  title  class  style  extended style  owner  with child (0/1)  show command -> handle
//   hotkey  modifiers  key -> 1 when registered, 0 when somebody else has it
//   message  text -> ok; then a message box with that text, OK and Cancel is shown
//   hang, recover -> ok; between them the windows answer no message

#include <windows.h>

#include <iostream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr UINT kRequest = WM_APP + 1;
constexpr UINT kHang = WM_APP + 2;

using Fields = std::vector<std::string>;

std::wstring Wide(const std::string& utf8) {
  const int size = static_cast<int>(utf8.size());
  std::wstring wide(
      static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

Fields Split(const std::string& line) {
  Fields fields(1);
  for (const char c : line) {
    if (c == '\t') {
      fields.emplace_back();
    } else if (c != '\r') {
      fields.back() += c;
    }
  }
  return fields;
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  // Alt, let go after a hot key, must not open the system menu.
  if (message == WM_SYSCOMMAND && (wparam & 0xFFF0) == SC_KEYMENU) return 0;
  return DefWindowProcW(window, message, wparam, lparam);
}

void RegisterOnce(const std::wstring& name) {
  WNDCLASSW type{};
  type.lpfnWndProc = WindowProc;
  type.hInstance = GetModuleHandleW(nullptr);
  type.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  type.lpszClassName = name.c_str();
  RegisterClassW(&type);
}

HWND OpenWindow(const Fields& fields) {
  static int place = 0;
  const std::wstring name = Wide(fields.at(2));
  if (name != L"Static") RegisterOnce(name);
  place = (place + 30) % 300;
  const HWND window = CreateWindowExW(
      static_cast<DWORD>(std::stoul(fields.at(4))), name.c_str(), Wide(fields.at(1)).c_str(),
      static_cast<DWORD>(std::stoul(fields.at(3))), 40 + place, 200 + place, 420, 200,
      reinterpret_cast<HWND>(std::stoull(fields.at(5))), nullptr, GetModuleHandleW(nullptr),
      nullptr);
  if (fields.at(6) == "1") {
    CreateWindowExW(0, L"Static", L"child", WS_CHILD | WS_VISIBLE, 10, 10, 100, 20, window, nullptr,
                    GetModuleHandleW(nullptr), nullptr);
  }
  ShowWindow(window, std::stoi(fields.at(7)));
  return window;
}

std::string Answer(const Fields& fields) {
  if (fields.at(0) == "open") {
    return std::to_string(reinterpret_cast<ULONG_PTR>(OpenWindow(fields)));
  }
  if (fields.at(0) == "hotkey") {
    static int id = 0;
    const BOOL taken = RegisterHotKey(nullptr, ++id, static_cast<UINT>(std::stoul(fields.at(1))),
                                      static_cast<UINT>(std::stoul(fields.at(2))));
    return taken != 0 ? "1" : "0";
  }
  if (fields.at(0) == "message") return "ok";
  return "unknown request";
}

void ShowMessage(const std::string& text) {
  MessageBoxW(nullptr, Wide(text).c_str(), L"Message", MB_OKCANCEL);
}

// Reads on its own thread, so that requests are seen while the windows hang.
void ReadRequests(DWORD ui_thread, HANDLE recover) {
  std::string line;
  while (std::getline(std::cin, line)) {
    const Fields fields = Split(line);
    if (fields[0] == "hang") {
      PostThreadMessageW(ui_thread, kHang, 0, 0);
    } else if (fields[0] == "recover") {
      SetEvent(recover);
      std::cout << "ok" << std::endl;
    } else {
      PostThreadMessageW(ui_thread, kRequest, 0, reinterpret_cast<LPARAM>(new Fields(fields)));
    }
  }
  PostThreadMessageW(ui_thread, WM_QUIT, 0, 0);
  SetEvent(recover);
}

void Run(HANDLE recover) {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (message.hwnd == nullptr && message.message == kRequest) {
      const std::unique_ptr<Fields> fields(reinterpret_cast<Fields*>(message.lParam));
      std::cout << Answer(*fields) << std::endl;
      if (fields->at(0) == "message") ShowMessage(fields->at(1));
    } else if (message.hwnd == nullptr && message.message == kHang) {
      std::cout << "ok" << std::endl;
      WaitForSingleObject(recover, INFINITE);
    } else {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
}

}  // namespace

int main() {
  MSG message{};
  PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
  const HANDLE recover = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  std::thread reader(ReadRequests, GetCurrentThreadId(), recover);
  Run(recover);
  reader.join();
  CloseHandle(recover);
  return 0;
}
