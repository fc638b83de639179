#pragma once

#include <memory>
#include <optional>
#include <string>

#include "tests/endtoend/harness/installation.h"
#include "tests/endtoend/harness/process.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::bench {

/// A program to be measured: started, used and ended any number of times, one subject at a time.
class Subject {
 public:
  /// The floor, at this path.
  static Subject Floor(const std::string& program);
  /// A build of Korvale, copied into a folder of its own, its nine Tags stored as an earlier run
  /// would have left them.
  static Subject Korvale(const std::string& name, const std::string& program);

  const std::string& name() const { return name_; }
  /// The path that it is started by.
  const std::string& program() const { return program_; }
  bool IsFloor() const { return installation_ == nullptr; }
  /// The file's size in bytes.
  double Size() const;
  /// Where it stores its settings in HKEY_CURRENT_USER; "" when it has none.
  std::string StoredIn() const;

  /// Starts it, waits until it rests and returns how many ms passed until it had registered all hot
  /// keys of Tags.
  double StartAndRest();
  /// How many starts lacked a hot key and were made again.
  int RepeatedStarts() const { return repeatedStarts_; }
  /// Waits until it has done what it does behind a switch.
  void Rest() const;
  /// Its message box, if there is one.
  endtoend::Window MessageBox() const;
  const endtoend::Process& process() const { return *process_; }
  void End();

 private:
  Subject(std::string name, std::string program, std::string arguments);
  /// Nothing when it lacks a hot key, as when it asks for it while that is being looked at here.
  std::optional<double> Start();
  void StoreTags() const;

  std::string name_;
  std::string program_;
  std::string arguments_;
  std::unique_ptr<endtoend::Installation> installation_;
  std::optional<endtoend::Process> process_;
  int repeatedStarts_ = 0;
};

}  // namespace korvale::bench
