#include "desktop/window_readers.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr std::size_t kSmallestRereadBuffer = 1024;
constexpr std::size_t kLargestTitleBuffer = 65536;
constexpr std::size_t kLongestSequence = 4;

/// A longer title may leave the buffer's last bytes unused, too few for its next character.
bool MayBeCut(std::size_t length, std::size_t bufferSize) {
  return length + kLongestSequence > bufferSize - 1;
}

std::size_t ReadTitle(WindowQueries& windows, WindowHandle hwnd, std::span<char> buffer) {
  const auto copied = static_cast<std::size_t>(std::max(windows.GetWindowTextA(hwnd, buffer), 0));
  return std::min(copied, buffer.size() - 1);
}

std::size_t SequenceLength(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  if (byte >= 0xF0) return 4;
  if (byte >= 0xE0) return 3;
  return byte >= 0xC0 ? 2 : 1;
}

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// The text without a character at its end that lacks its last bytes.
std::string_view WithoutCutSequence(std::string_view text) {
  std::size_t at = text.size();
  while (at > 0 && text.size() - at < kLongestSequence) {
    --at;
    if (IsContinuation(text[at])) continue;
    return SequenceLength(text[at]) > text.size() - at ? text.substr(0, at) : text;
  }
  return text;
}

}  // namespace

std::string_view ReadWindowTitle(WindowQueries& windows, WindowHandle hwnd, TitleBuffer& buffer,
                                 std::string& longTitle) {
  std::size_t length = ReadTitle(windows, hwnd, buffer);
  if (!MayBeCut(length, buffer.size())) return {buffer.data(), length};
  const auto told = static_cast<std::size_t>(std::max(windows.GetWindowTextLengthA(hwnd), 0));
  std::size_t bufferSize = std::max(told + kLongestSequence + 1, kSmallestRereadBuffer);
  longTitle.resize(bufferSize);
  length = ReadTitle(windows, hwnd, longTitle);
  while (MayBeCut(length, bufferSize) && bufferSize < kLargestTitleBuffer) {
    bufferSize = std::min(bufferSize * 2, kLargestTitleBuffer);
    longTitle.resize(bufferSize);
    length = ReadTitle(windows, hwnd, longTitle);
  }
  const std::string_view title(longTitle.data(), length);
  return MayBeCut(length, bufferSize) ? WithoutCutSequence(title) : title;
}

std::string GetWindowTitle(WindowQueries& windows, WindowHandle hwnd) {
  TitleBuffer buffer{};
  std::string longTitle;
  return std::string(ReadWindowTitle(windows, hwnd, buffer, longTitle));
}

std::string_view ReadWindowClass(WindowQueries& windows, WindowHandle hwnd, ClassBuffer& buffer) {
  const auto copied = static_cast<std::size_t>(std::max(windows.GetClassNameA(hwnd, buffer), 0));
  return WithoutCutSequence({buffer.data(), std::min(copied, buffer.size())});
}

std::string GetWindowClass(WindowQueries& windows, WindowHandle hwnd) {
  ClassBuffer buffer{};
  return std::string(ReadWindowClass(windows, hwnd, buffer));
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
