#pragma once

#include <string>
#include <string_view>

#include "tests/program/korvale_world.h"

namespace korvale {

/// A user tags a window of any title and uses the Tag.
class StrangeTitleWorld : public KorvaleWorld {
 protected:
  /// The choices of the Add Window dialog.
  static constexpr int kWhole = 0;
  static constexpr int kLeft = 1;
  static constexpr int kRight = 2;

  /// What is known of it: the choice is offered, the Tag's entry in the Window menu ("" = any), and
  /// whether no other window has the text in its title.
  struct Known {
    bool offered = true;
    std::string entry = "";
    bool unique = true;
  };

  /// The window is open.
  explicit StrangeTitleWorld(const std::string& title, const std::string& className = "Strange");

  WindowHandle Strange() const { return strange_; }
  /// Korvale shows the title, tags the window by this choice, finds it by its key before and after
  /// a restart and tells of it when it has been closed.
  void TagAndUse(int choice, const Known& known);

  /// True when nothing in the text tears it apart or, for a title in UTF-8, is only a part of a
  /// character.
  bool IsOneLine(std::string_view text) const;

 private:
  void Tag(KorvaleCopy& korvale, int choice, bool offered);
  void ExpectMenuToShowIt(KorvaleCopy& korvale, const std::string& entry);
  void ExpectDialogToShowItTaken(KorvaleCopy& korvale);
  void ExpectKeyToLeadToIt();
  void ExpectToBeToldThatItIsClosed(KorvaleCopy& korvale);

  std::string title_;
  bool utf8_;
  WindowHandle strange_;
};

}  // namespace korvale
