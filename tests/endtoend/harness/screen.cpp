#include "tests/endtoend/harness/screen.h"

#include "tests/endtoend/harness/text.h"

namespace korvale::endtoend {

std::vector<COLORREF> PictureOf(Window window) {
  RECT area{};
  GetWindowRect(window.handle(), &area);
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  std::vector<COLORREF> pixels(static_cast<size_t>(width) * static_cast<size_t>(height));
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
  SelectObject(memory, before);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return pixels;
}

std::vector<COLORREF> PictureOf(HICON icon, int size, COLORREF ground) {
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HDC memory = CreateCompatibleDC(nullptr);
  const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  const HBRUSH brush = CreateSolidBrush(ground);
  const RECT all{0, 0, size, size};
  FillRect(memory, &all, brush);
  DrawIconEx(memory, 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
  GdiFlush();
  const auto* const drawn = static_cast<const COLORREF*>(bits);
  std::vector<COLORREF> pixels(drawn, drawn + static_cast<size_t>(size) * size);
  SelectObject(memory, before);
  DeleteObject(brush);
  DeleteObject(bitmap);
  DeleteDC(memory);
  return pixels;
}

std::vector<COLORREF> PictureOfProgramIcon(HMODULE program, int size, COLORREF ground) {
  const auto icon = static_cast<HICON>(
      LoadImageW(program, MAKEINTRESOURCEW(1), IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
  const std::vector<COLORREF> picture = PictureOf(icon, size, ground);
  DestroyIcon(icon);
  return picture;
}

HCURSOR PointerOnScreen() {
  CURSORINFO info{};
  info.cbSize = sizeof(info);
  GetCursorInfo(&info);
  return info.hCursor;
}

std::string ClipboardText() {
  if (OpenClipboard(nullptr) == 0) return "";
  std::string text;
  const HANDLE data = GetClipboardData(CF_UNICODETEXT);
  if (const void* locked = data == nullptr ? nullptr : GlobalLock(data)) {
    text = Utf8(static_cast<const wchar_t*>(locked));
    GlobalUnlock(data);
  }
  CloseClipboard();
  return text;
}

}  // namespace korvale::endtoend
