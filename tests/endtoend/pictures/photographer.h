#pragma once

#include <string>
#include <vector>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Takes pictures of the screen and notes which part of each shows what it is about.
class Photographer {
 public:
  /// Has a picture of the screen taken and writes the rectangle around the windows, as
  /// "640x400+10+20", to a file NAME.area beside it.
  void Take(const std::string& name, const std::vector<Window>& windows);
  /// The same without waiting until nothing moves any more.
  void TakeAtOnce(const std::string& name, const std::vector<Window>& windows);

  /// How many pictures could not be taken.
  int Missed() const { return missed_; }

 private:
  void Request(const std::string& name, const std::vector<Window>& windows, bool ready);

  int missed_ = 0;
};

}  // namespace korvale::endtoend
