#pragma once

#include <cstdint>

namespace korvale {

/// While one of these is set, pressed hot keys are not carried out.
struct Suspension {
  /// A message box of the program is on the screen.
  bool MessageBoxShown = false;
  /// A dialog box of the program is on the screen.
  bool DialogShown = false;
  /// How deep message boxes are nested.
  std::int16_t MessageBoxDepth = 0;

  bool Active() const { return MessageBoxShown || DialogShown; }
};

/// Sets a flag for a scope and puts its former value back, also when an error leaves the scope.
class RaisedFlag {
 public:
  explicit RaisedFlag(bool& flag) : flag_(&flag), before_(flag) { flag = true; }
  ~RaisedFlag() { *flag_ = before_; }
  RaisedFlag(const RaisedFlag&) = delete;
  RaisedFlag& operator=(const RaisedFlag&) = delete;

 private:
  bool* flag_;
  bool before_;
};

}  // namespace korvale
