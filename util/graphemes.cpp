#include "util/graphemes.h"

#include "util/characters.h"
#include "util/grapheme_classes.h"
#include "util/text.h"

namespace korvale {
namespace {

using enum GraphemeClass;

constexpr char32_t kZeroWidthNonJoiner = 0x200C;

GraphemeClass ClassOf(const Character& character) {
  return character.valid ? GraphemeClassOf(character.codePoint) : kOther;
}

bool JoinsWhatStandsBefore(GraphemeClass one) {
  return one == kMark || one == kLinker || one == kZeroWidthJoiner;
}

/// Whether two parts of a Hangul syllable belong together.
bool IsSyllable(GraphemeClass one, GraphemeClass next) {
  switch (one) {
    case kHangulLeading:
      return next == kHangulLeading || next == kHangulVowel || next == kHangulOpen ||
             next == kHangulClosed;
    case kHangulOpen:
    case kHangulVowel:
      return next == kHangulVowel || next == kHangulTrailing;
    case kHangulClosed:
    case kHangulTrailing:
      return next == kHangulTrailing;
    default:
      return false;
  }
}

/// A cluster read so far.
class Cluster {
 public:
  explicit Cluster(const Character& first) : last_(first), class_(ClassOf(first)) { Note(); }

  /// Adds the next character when it belongs to the cluster.
  bool Take(const Character& next) {
    const GraphemeClass one = ClassOf(next);
    if (!Continues(next, one)) return false;
    oddIndicators_ = one == kRegionalIndicator && !oddIndicators_;
    last_ = next;
    class_ = one;
    Note();
    return true;
  }

 private:
  bool Continues(const Character& next, GraphemeClass one) const {
    if (class_ == kControl || one == kControl) {
      return last_.codePoint == U'\r' && next.codePoint == U'\n';
    }
    if (JoinsWhatStandsBefore(one) || class_ == kPrepended) return true;
    if (one == kPictograph) return pictograph_ && class_ == kZeroWidthJoiner;
    if (one == kConsonant) return linked_;
    if (one == kRegionalIndicator) return class_ == kRegionalIndicator && oddIndicators_;
    return IsSyllable(class_, one);
  }

  void Note() {
    if (class_ == kLinker) {
      linked_ = consonant_;
    } else if (!JoinsWhatStandsBefore(class_) || last_.codePoint == kZeroWidthNonJoiner) {
      consonant_ = class_ == kConsonant;
      linked_ = false;
    }
    if (!JoinsWhatStandsBefore(class_)) pictograph_ = class_ == kPictograph;
  }

  Character last_;
  GraphemeClass class_;
  bool oddIndicators_ = class_ == kRegionalIndicator;
  /// Nothing but marks has followed a pictograph or consonant; a linker was among them.
  bool pictograph_ = false;
  bool consonant_ = false;
  bool linked_ = false;
};

}  // namespace

std::string_view FirstCluster(std::string_view text) {
  const Character first = FirstCharacter(text);
  std::size_t size = first.bytes.size();
  for (Cluster cluster(first); size < text.size();) {
    const Character next = FirstCharacter(text.substr(size));
    if (!cluster.Take(next)) break;
    size += next.bytes.size();
  }
  return text.substr(0, size);
}

std::vector<std::string_view> SplitClusters(std::string_view text) {
  std::vector<std::string_view> clusters;
  while (!text.empty()) {
    clusters.push_back(FirstCluster(text));
    text.remove_prefix(clusters.back().size());
  }
  return clusters;
}

std::string LeftClusters(std::string_view text, std::int32_t count) {
  const std::string cut = LeftCharacters(text, count);
  std::size_t size = 0;
  while (size < text.size()) {
    const std::size_t next = size + FirstCluster(text.substr(size)).size();
    if (next > cut.size()) break;
    size = next;
  }
  return size == 0 ? cut : cut.substr(0, size);
}

}  // namespace korvale
