#include "util/flag_string.h"

#include <cstdint>
#include <vector>

#include "platform/run_time_error.h"
#include "tests/fuzz/fuzz.h"
#include "util/text.h"

namespace korvale {
namespace {

/// There are some twenty tips.
constexpr std::int32_t kLastPosition = 300;

/// A flag as the string shows it: any character but "0" is raised.
bool Raised(const std::string& flags, std::int32_t position) {
  return LeftCharacters(MidCharacters(flags, position), 1) != "0";
}

void CheckPosition(std::string flags, std::int32_t position, bool pad, bool value) {
  const std::string before = flags;
  EXPECT_FALSE(FlagString(flags, position, "get", pad, value));
  EXPECT_EQ(flags, before);
  if (position < 1) {
    EXPECT_THROW(FlagString(flags, position, "GET", pad, value), RunTimeError);
    EXPECT_THROW(FlagString(flags, position, "SET", pad, value), RunTimeError);
    EXPECT_EQ(flags, before);
    return;
  }
  const std::int32_t count = CharacterCount(before);
  EXPECT_EQ(FlagString(flags, position, "GET", pad, value),
            position <= count ? Raised(before, position) : pad);
  EXPECT_FALSE(FlagString(flags, position, "SET", pad, value));
  EXPECT_EQ(CharacterCount(flags), std::max(count, position));
  EXPECT_EQ(FlagString(flags, position, "GET", !pad, !value), value);
  for (std::int32_t other = 1; other <= CharacterCount(flags); ++other) {
    if (other == position) continue;
    EXPECT_EQ(Raised(flags, other), other <= count ? Raised(before, other) : pad) << other;
  }
  EXPECT_EQ(LeftCharacters(flags, position - 1),
            LeftCharacters(before, position - 1) +
                std::string(static_cast<std::size_t>(std::max(position - 1 - count, 0)),
                            pad ? '1' : '0'));
  EXPECT_EQ(MidCharacters(flags, position + 1), MidCharacters(before, position + 1));
}

}  // namespace

/// A line with a position, and the flags.
void Fuzz(std::string_view input) {
  const std::int32_t position = ParseInt32(TakeLine(input)).value_or(14);
  const std::string flags = LeftCharacters(input, kLastPosition);
  if (position > kLastPosition) return;
  for (const bool pad : {false, true}) {
    for (const bool value : {false, true}) CheckPosition(flags, position, pad, value);
  }
}

}  // namespace korvale
