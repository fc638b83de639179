#pragma once

#include <functional>
#include <string>

#include "tests/fuzz/bytes.h"
#include "tests/program/korvale_world.h"

namespace korvale {

inline constexpr const char* kTitles[] = {
    "",    "Alpha",          "one - Editor",        "*** - x",
    "R&D", "Korvale - Work", "\u00dcbersicht \xff", "a title of more than thirty characters"};

/// A title to be found again, or any bytes.
inline std::string AnyTitle(Bytes& bytes) {
  return bytes.Flag() ? bytes.Text() : bytes.Pick(kTitles);
}

/// Tells the forms of Korvale what a host can tell them: after all that its window procedures stop,
/// still anything at any time.
class FormTeller {
 public:
  FormTeller(Bytes& bytes, KorvaleCopy& korvale) : bytes_(&bytes), korvale_(&korvale) {}

  void TellAnyForm();
  /// A key that really goes down and up, if the window of the form chosen is in front.
  void PressAKey();

 private:
  using Event = std::function<void(FormEvents&)>;

  Form& AnyForm();
  int AnyKey();
  unsigned AnyShift() { return static_cast<unsigned>(bytes_->Below(16)); }
  int AnyControl(Form& form);

  Event AnyClose();
  Event AnyList(int control);
  Event AnyKeyEvent(int control);
  Event AnyMouse(int control);
  Event AnyOfWindow(Form& form);
  void Type(Form& form, int control);

  Bytes* bytes_;
  KorvaleCopy* korvale_;
};

}  // namespace korvale
