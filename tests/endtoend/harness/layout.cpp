#include "tests/endtoend/harness/layout.h"

#include <cstring>
#include <vector>

#include "tests/endtoend/harness/text.h"

namespace korvale::endtoend {
namespace {

/// What check boxes and option buttons, and the edges of push buttons, take beside their text at 96
/// dots per inch.
constexpr int kMark = 16;
constexpr int kEdges = 8;

bool Is(Window control, const char* name) {
  return _stricmp(control.ClassName().c_str(), name) == 0;
}

RECT AreaOf(Window window) {
  RECT area{};
  GetWindowRect(window.handle(), &area);
  return area;
}

bool IsGroupBox(Window control) {
  return Is(control, "Button") && (control.Style() & BS_TYPEMASK) == BS_GROUPBOX;
}

/// A surface or outline that other controls lie on.
bool IsBackground(Window control) {
  return IsGroupBox(control) || Is(control, "SysTabControl32") ||
         control.ClassName().starts_with("Korvale.");
}

bool HasCaption(Window control) {
  const LONG_PTR kind = control.Style() & SS_TYPEMASK;
  if (Is(control, "Static")) return kind != SS_ICON && kind < SS_BLACKRECT;
  return Is(control, "Button") && !IsGroupBox(control);
}

/// The room that a caption takes when it may be so wide.
SIZE RoomFor(Window control, HFONT font, LONG width) {
  const bool label = Is(control, "Static");
  const bool wraps = label ? (control.Style() & SS_TYPEMASK) != SS_LEFTNOWORDWRAP
                           : (control.Style() & BS_MULTILINE) != 0;
  const bool plain = label && (control.Style() & SS_NOPREFIX) != 0;
  const HDC screen = GetDC(nullptr);
  const HGDIOBJ before = SelectObject(screen, font);
  RECT text{0, 0, width, 0};
  const UINT format =
      DT_CALCRECT | (wraps ? DT_WORDBREAK : DT_SINGLELINE) | (plain ? DT_NOPREFIX : 0U);
  const std::wstring caption = Wide(control.Text());
  DrawTextW(screen, caption.c_str(), static_cast<int>(caption.size()), &text, format);
  SelectObject(screen, before);
  ReleaseDC(nullptr, screen);
  return {text.right, text.bottom};
}

bool IsCut(Window control, HFONT font, int textHeight) {
  RECT client{};
  GetClientRect(control.handle(), &client);
  if (!HasCaption(control)) {
    return (Is(control, "Edit") || Is(control, "ComboBox")) && client.bottom < textHeight;
  }
  LONG beside = 0;
  if (Is(control, "Button")) {
    const LONG_PTR kind = control.Style() & BS_TYPEMASK;
    beside = MulDiv(kind <= BS_DEFPUSHBUTTON ? kEdges : kMark, static_cast<int>(GetDpiForSystem()),
                    USER_DEFAULT_SCREEN_DPI);
  }
  const SIZE room = RoomFor(control, font, client.right - beside);
  return room.cx > client.right - beside || room.cy > client.bottom;
}

/// Places are rounded to pixels.
bool IsWithin(Window holder, RECT area) {
  RECT client{};
  GetClientRect(holder.handle(), &client);
  InflateRect(&client, 1, 1);
  MapWindowPoints(nullptr, holder.handle(), reinterpret_cast<POINT*>(&area), 2);
  RECT common{};
  IntersectRect(&common, &client, &area);
  return EqualRect(&common, &area) != FALSE;
}

std::string NameOf(Window control) { return control.ClassName() + " '" + control.Text() + "'"; }

std::string FlawWithin(Window holder, HFONT font, int textHeight) {
  std::vector<Window> controls = holder.Children();
  std::erase_if(controls, [](Window child) { return !child.Visible(); });
  for (size_t i = 0; i < controls.size(); ++i) {
    const Window control = controls[i];
    if (IsCut(control, font, textHeight)) return NameOf(control) + " is cut";
    if (!IsWithin(holder, AreaOf(control))) return NameOf(control) + " is not whole";
    if (control.ClassName().starts_with("Korvale.")) {
      const std::string inner = FlawWithin(control, font, textHeight);
      if (!inner.empty()) return inner;
    }
    for (size_t j = i + 1; j < controls.size(); ++j) {
      if (IsBackground(control) || IsBackground(controls[j])) continue;
      const RECT one = AreaOf(control);
      const RECT other = AreaOf(controls[j]);
      RECT common{};
      IntersectRect(&common, &one, &other);
      // Places are rounded to pixels.
      if (common.right - common.left > 1 && common.bottom - common.top > 1) {
        return NameOf(control) + " and " + NameOf(controls[j]) + " lie on each other";
      }
    }
  }
  return "";
}

}  // namespace

std::string FlawOf(Window form, int textHeight) {
  const std::string gone = "it is not there";
  if (!form.Visible()) return gone;
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  metrics.lfMessageFont.lfHeight = -textHeight;
  const HFONT font = CreateFontIndirectW(&metrics.lfMessageFont);
  std::string flaw = FlawWithin(form, font, textHeight);
  DeleteObject(font);
  RECT work{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const RECT area = AreaOf(form);
  RECT shown{};
  IntersectRect(&shown, &area, &work);
  if (flaw.empty() && EqualRect(&shown, &area) == 0) flaw = "it reaches beyond the work area";
  if (!form.Visible()) return gone;
  return flaw;
}

void Place(Window window, int left, int top, int width, int height) {
  const auto dpi = static_cast<int>(GetDpiForSystem());
  const auto scaled = [dpi](int length) { return MulDiv(length, dpi, 96); };
  SetWindowPos(window.handle(), nullptr, scaled(left), scaled(top), scaled(width), scaled(height),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE SizeOf(Window window) {
  const RECT area = AreaOf(window);
  return {area.right - area.left, area.bottom - area.top};
}

}  // namespace korvale::endtoend
