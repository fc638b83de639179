#pragma once

#include <cstdint>

namespace korvale {

/// What a code point means for the bounds of grapheme clusters.
enum class GraphemeClass : std::uint8_t {
  kOther,
  kControl,
  /// Combining and spacing marks, variation selectors, skin tones, tags.
  kMark,
  /// A virama that joins the consonants around it.
  kLinker,
  kZeroWidthJoiner,
  /// Stands before what it belongs to.
  kPrepended,
  kPictograph,
  kRegionalIndicator,
  /// Of an Indic script whose consonants are joined by a virama.
  kConsonant,
  kHangulLeading,
  kHangulVowel,
  kHangulTrailing,
  /// A whole Hangul syllable without and with a trailing consonant.
  kHangulOpen,
  kHangulClosed,
};

/// The class of a code point as of Unicode 15, with the conjuncts of 15.1.
GraphemeClass GraphemeClassOf(char32_t codePoint);

}  // namespace korvale
