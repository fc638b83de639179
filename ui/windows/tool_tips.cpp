#include "ui/windows/tool_tips.h"

// After windows.h, which it needs.
#include <commctrl.h>

#include <utility>

#include "platform/windows/text.h"
#include "ui/tool_tip.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/system_fonts.h"

namespace korvale {
namespace {

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
  SetWindowSubclass(window_.Get(), Guard, 0, reinterpret_cast<DWORD_PTR>(this));
  Rescale();
  Send(TTM_SETDELAYTIME, TTDT_AUTOPOP, kToolTipMilliseconds);
}

void ToolTips::Rescale() {
  if (!Created()) return;
  UniqueFont font = scale_->MakeToolTipFont();
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), FALSE);
  font_ = std::move(font);
  Send(TTM_SETMAXTIPWIDTH, 0, WidestToolTip(Dpi()));
}

void ToolTips::Drop() {
  // Windows destroys it together with a form that Windows itself destroys.
  if (IsWindow(window_.Get()) == FALSE) window_.Release();
  ours_ = true;
  window_.Reset();
}

/// While a message of others is being handled, what we tell it ourselves counts as sent by others.
LRESULT CALLBACK ToolTips::Guard(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                 DWORD_PTR tips) {
  const bool ours = reinterpret_cast<const ToolTips*>(tips)->ours_;
  if (!ours && IsForgedForClass(hwnd, message, wParam, true)) return 0;
  if (message == WM_NCDESTROY) RemoveWindowSubclass(hwnd, Guard, id);
  return DefSubclassProc(hwnd, message, wParam, lParam);
}

void ToolTips::Send(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool outer = std::exchange(ours_, true);
  SendMessageW(window_.Get(), message, wParam, lParam);
  ours_ = outer;
}

void ToolTips::Set(HWND control, const std::string& text, bool shown) {
  if (!Created()) return;
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
  MSG copy = message;
  Send(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
}

int ToolTips::WidthOf(const std::string& text) const {
  const auto font = reinterpret_cast<HFONT>(SendMessageW(window_.Get(), WM_GETFONT, 0, 0));
  return TextWidth(font, ToUtf16(text));
}

void ToolTips::Add(HWND window, UINT_PTR id, UINT flags, const RECT& area,
                   const std::string& text) {
  std::wstring copy = ToUtf16(ShownToolTip(text, WidthOf(text), Dpi()));
  TTTOOLINFOW tool = Tool(window, id);
  tool.uFlags = flags;
  tool.rect = area;
  tool.lpszText = copy.data();
  Send(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTips::Remove(HWND window, UINT_PTR id) {
  TTTOOLINFOW tool = Tool(window, id);
  Send(TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace korvale
