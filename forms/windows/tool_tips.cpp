#include "forms/windows/tool_tips.h"

// After windows.h, which it needs.
#include <commctrl.h>

#include "forms/windows/units.h"

namespace korvale {
namespace {

constexpr Twips kWidestTip = 6000;
constexpr int kMillisecondsToRead = 20000;

std::wstring WithoutBlanks(const std::wstring& text) {
  const std::size_t start = text.find_first_not_of(L' ');
  return start == std::wstring::npos ? L""
                                     : text.substr(start, text.find_last_not_of(L' ') + 1 - start);
}

TTTOOLINFOW Tool(HWND window, UINT_PTR id) {
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof(tool);
  tool.hwnd = window;
  tool.uId = id;
  return tool;
}

HWND TextField(HWND control) { return FindWindowExW(control, nullptr, WC_EDITW, nullptr); }

}  // namespace

void ToolTips::Create(HWND form, HINSTANCE instance) {
  form_ = form;
  window_.Reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                                CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr,
                                instance, nullptr));
  SendMessageW(window_.Get(), TTM_SETMAXTIPWIDTH, 0, ToPixels(kWidestTip, GetDpiForWindow(form)));
  SendMessageW(window_.Get(), TTM_SETDELAYTIME, TTDT_AUTOPOP, kMillisecondsToRead);
}

void ToolTips::Drop() {
  // Windows destroys it together with a form that it destroys by itself.
  if (IsWindow(window_.Get()) == FALSE) window_.Release();
  window_.Reset();
}

void ToolTips::Show(HWND control, const std::wstring& text, bool shown) {
  const HWND parent = GetParent(control);
  const HWND field = TextField(control);
  const auto controlId = reinterpret_cast<UINT_PTR>(control);
  const auto fieldId = reinterpret_cast<UINT_PTR>(field);
  const auto areaId = static_cast<UINT_PTR>(GetDlgCtrlID(control));
  Remove(form_, controlId);
  Remove(parent, areaId);
  if (field != nullptr) Remove(form_, fieldId);
  if (text.empty() || !shown) return;
  Add(form_, controlId, TTF_IDISHWND, RECT{}, text);
  if (field != nullptr) Add(form_, fieldId, TTF_IDISHWND, RECT{}, text);
  // Over disabled controls and plain labels the mouse belongs to the window below.
  RECT area;
  GetWindowRect(control, &area);
  MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&area), 2);
  Add(parent, areaId, 0, area, text);
}

void ToolTips::Relay(const MSG& message) {
  if (message.message < WM_MOUSEFIRST || message.message > WM_MOUSELAST) return;
  MSG copy = message;
  SendMessageW(window_.Get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
}

void ToolTips::Add(HWND window, UINT_PTR id, UINT flags, const RECT& area,
                   const std::wstring& text) {
  // Of several lines only the first would begin with the blank.
  std::wstring copy = FitsOneLine(text) ? text : WithoutBlanks(text);
  TTTOOLINFOW tool = Tool(window, id);
  tool.uFlags = flags;
  tool.rect = area;
  tool.lpszText = copy.data();
  SendMessageW(window_.Get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

bool ToolTips::FitsOneLine(const std::wstring& text) const {
  const HDC dc = GetDC(window_.Get());
  const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(window_.Get(), WM_GETFONT, 0, 0));
  const HGDIOBJ before = font == nullptr ? nullptr : SelectObject(dc, font);
  SIZE size{};
  GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  if (before != nullptr) SelectObject(dc, before);
  ReleaseDC(window_.Get(), dc);
  return size.cx <= SendMessageW(window_.Get(), TTM_GETMAXTIPWIDTH, 0, 0);
}

void ToolTips::Remove(HWND window, UINT_PTR id) {
  TTTOOLINFOW tool = Tool(window, id);
  SendMessageW(window_.Get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace korvale
