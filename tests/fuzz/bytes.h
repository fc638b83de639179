#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace korvale {

/// Decides by the bytes of an input, always for the first possibility once they are used up.
class Bytes {
 public:
  explicit Bytes(std::string_view input) : left_(input) {}

  bool Any() const { return !left_.empty(); }
  /// 0 to `count` - 1; `count` is at most 256.
  int Below(int count) { return Byte() % count; }
  bool Flag() { return Below(2) == 1; }
  /// Any number, small ones more often.
  std::int32_t Number() {
    std::uint32_t number = 0;
    for (int bytes = Below(5); bytes > 0; --bytes) {
      number = number << 8U | static_cast<std::uint32_t>(Byte());
    }
    return static_cast<std::int32_t>(number);
  }
  std::string Text() {
    const std::string text(left_.substr(0, static_cast<std::size_t>(Below(24))));
    left_.remove_prefix(text.size());
    return text;
  }
  template <typename List>
  const auto& Pick(const List& list) {
    return *std::next(std::begin(list), Below(static_cast<int>(std::size(list))));
  }

 private:
  int Byte() {
    if (left_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(left_.front());
    left_.remove_prefix(1);
    return byte;
  }

  std::string_view left_;
};

}  // namespace korvale
