#pragma once

namespace korvale {

/// Sets a flag for a scope, then restores its former value, also when an error leaves the scope.
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
