#pragma once

#include <functional>

#include "tests/program/korvale_world.h"

namespace korvale {

/// Korvale over settings in which another program may have left anything at all.
class AnyStore : public KorvaleWorld {
 protected:
  static constexpr const char* kApp = "Korvale - Work";
  static constexpr const char* kRegister = "Korvale Installations";

  /// Starts it over what the store holds, expects settings that make sense, uses and ends it, and
  /// expects all that it held in the store. `saysYes` answers the questions of the start.
  void Live(std::function<bool()> saysYes);

 private:
  void AnswerBoxes(KorvaleCopy& korvale);
  static bool CloseModal(KorvaleCopy& korvale);
  void Use(KorvaleCopy& korvale);
  void End(KorvaleCopy& korvale);

  std::function<bool()> saysYes_;
};

}  // namespace korvale
