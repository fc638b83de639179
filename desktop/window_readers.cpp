#include "desktop/window_readers.h"

#include <algorithm>
#include <cstddef>

#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr std::size_t kClassNameBuffer = 255;
constexpr std::size_t kSmallestRereadBuffer = 64;
constexpr std::size_t kLargestTitleBuffer = 65536;
constexpr std::size_t kLongestSequence = 4;

/// A longer title may leave the buffer's last bytes unused, too few for its next character.
bool MayBeCut(const std::string& title, std::size_t bufferSize) {
  return title.size() + kLongestSequence > bufferSize - 1;
}

std::string ReadTitle(WindowQueries& windows, WindowHandle hwnd, std::size_t bufferSize) {
  std::string buffer(bufferSize, '\0');
  const auto copied = static_cast<std::size_t>(std::max(windows.GetWindowTextA(hwnd, buffer), 0));
  buffer.resize(std::min(copied, bufferSize - 1));
  return buffer;
}

std::size_t SequenceLength(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  if (byte >= 0xF0) return 4;
  if (byte >= 0xE0) return 3;
  return byte >= 0xC0 ? 2 : 1;
}

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Drops a character at the end that lacks its last bytes.
void DropCutSequence(std::string& text) {
  std::size_t at = text.size();
  while (at > 0 && text.size() - at < kLongestSequence) {
    --at;
    if (IsContinuation(text[at])) continue;
    if (SequenceLength(text[at]) > text.size() - at) text.resize(at);
    return;
  }
}

}  // namespace

std::string GetWindowTitle(WindowQueries& windows, WindowHandle hwnd) {
  const int length = std::max(windows.GetWindowTextLengthA(hwnd), 0);
  std::size_t bufferSize = static_cast<std::size_t>(length) + 1;
  std::string title = ReadTitle(windows, hwnd, bufferSize);
  while (!title.empty() && MayBeCut(title, bufferSize) && bufferSize < kLargestTitleBuffer) {
    bufferSize = std::clamp(bufferSize * 2, kSmallestRereadBuffer, kLargestTitleBuffer);
    title = ReadTitle(windows, hwnd, bufferSize);
  }
  if (MayBeCut(title, bufferSize)) DropCutSequence(title);
  return title;
}

std::string GetWindowClass(WindowQueries& windows, WindowHandle hwnd) {
  std::string buffer(kClassNameBuffer, '\0');
  const auto copied = static_cast<std::size_t>(std::max(windows.GetClassNameA(hwnd, buffer), 0));
  buffer.resize(std::min(copied, kClassNameBuffer));
  DropCutSequence(buffer);
  return buffer;
}

KnownWindow Know(WindowQueries& windows, WindowHandle hwnd) {
  return {hwnd, GetWindowClass(windows, hwnd)};
}

bool StillExists(WindowQueries& windows, const KnownWindow& window) {
  return windows.IsWindow(window.handle) &&
         GetWindowClass(windows, window.handle) == window.className;
}

WindowHandle GetRelatedWindow(WindowQueries& windows, WindowHandle hwnd, std::int16_t which) {
  if (which == 1) return windows.GetWindow(hwnd, win32::kGwChild);
  if (which != 2) return 0;
  const WindowHandle owner = windows.GetWindow(hwnd, win32::kGwOwner);
  if (owner == 0) return 0;
  const std::int32_t style = windows.GetWindowLongA(owner, win32::kGwlStyle);
  return (style & win32::kWsMinimizeBox) != 0 ? owner : 0;
}

}  // namespace korvale
