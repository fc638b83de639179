#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace korvale {

// Texts are UTF-8. A character is one code point; a byte that belongs to no valid sequence counts
// as one character of its own, so that any text can be counted and cut without being changed.

/// Number of characters of `text`.
std::int32_t CharacterCount(std::string_view text);

/// The first `count` characters, the whole text if it has fewer. A negative `count` throws
/// RunTimeError 5.
std::string LeftCharacters(std::string_view text, std::int32_t count);

/// The text from character `from` (counted from 1) to its end, "" past the end. A `from` below 1
/// throws RunTimeError 5.
std::string MidCharacters(std::string_view text, std::int32_t from);

/// The text without leading and trailing blanks (U+0020 only; tabs and line ends stay).
std::string Trim(std::string_view text);
/// The same as a part of `text`.
std::string_view TrimmedView(std::string_view text);

/// The text in upper case, character by character: Latin with its accents, Greek, Cyrillic and
/// Armenian letters; everything else stays. The number of characters never changes.
std::string UpperCase(std::string_view text);

/// True when both texts are the same once upper-cased.
bool EqualsIgnoreCase(std::string_view left, std::string_view right);

/// Fills a text shorter than `width` characters up to that width: mode "LEFT_SPACES" puts blanks
/// before it, "RIGHT_SPACES" blanks after it, "LEFT_ZEROES" zeroes before it. With any other mode,
/// and when the text is longer, it stays unchanged.
std::string PadText(std::string_view text, std::int16_t width, std::string_view mode);

/// A number from 0 on with at least two digits, as in dates.
std::string TwoDigits(int number);

/// Stands for the rest of a text that is cut.
inline constexpr const char* kEllipsis = "...";

/// The text as one line shows it: each control character and each separator of lines is a blank,
/// since tabs and line ends would tear a caption or a message apart.
std::string OnOneLine(std::string_view text);

/// The text with every change of the writing direction that it leaves open ended, so that what
/// stands behind it is not turned around.
std::string WithDirectionsEnded(std::string_view text);

/// Replaces `sought` by `replacement`, from left to right, each time continuing after the
/// replacement; with `firstOnly` only once. An empty `sought` occurs nowhere.
std::string ReplaceText(std::string_view text, std::string_view sought,
                        std::string_view replacement, bool firstOnly, bool caseSensitive);

/// Position of the last `sought` in `text` counted from the right: 1 + the number of characters
/// after it, 0 when there is none. `start` is where the search begins, 1 = at the very end; each
/// step more leaves out one more character at the end. Throws RunTimeError 6 when the position does
/// not fit 16 bits.
std::int16_t ReverseFind(std::string_view text, std::string_view sought, std::int16_t start,
                         bool caseSensitive);

/// The number in decimal digits, with "-" when negative.
std::string DecimalText(std::int32_t value);

/// The number in lower-case hexadecimal digits, without leading zeroes.
std::string HexadecimalText(std::uint64_t value);

/// The number that a text of decimal digits with an optional sign means, blanks around it allowed;
/// nothing when it is anything else or does not fit.
std::optional<std::int32_t> ParseInt32(std::string_view text);
std::optional<std::int16_t> ParseInt16(std::string_view text);

/// "True" and "False" in any case, blanks around them allowed.
std::optional<bool> ParseBoolean(std::string_view text);

}  // namespace korvale
