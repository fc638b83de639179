#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/types.h"

namespace korvale {

/// The calls that fakes received, in order, one line each: "ShowWindow(Alpha, SW_MINIMIZE)". One
/// log may serve several fakes. A window is written as the title that it opened with, one without a
/// title as its number.
class CallLog {
 public:
  CallLog() = default;
  CallLog(const CallLog&) = delete;
  CallLog& operator=(const CallLog&) = delete;
  /// Fails the test when a call that something waited for never came.
  ~CallLog();

  /// A call that changes something.
  void Add(std::string call);
  /// A call that only reads; left out unless IncludeReads(true).
  void AddRead(std::string call);
  /// Whether a read would be written or watched for; fakes that are read often ask first.
  bool TakesReads() const { return include_reads_ || !actions_.empty() || before_call_; }

  void IncludeReads(bool include) { include_reads_ = include; }
  /// Writes `name` for this window from now on; "" goes back to its number.
  void NameWindow(WindowHandle hwnd, std::string name);

  /// Does something once, right before answering the next call that begins with `prefix`, reads
  /// included, so that a window can vanish in the middle of an operation.
  void WhenCalled(std::string prefix, std::function<void()> action);

  /// Does something before answering each call from now on, reads included, which it is told as
  /// the log writes it; what it causes itself is not told. Null ends this.
  void BeforeEachCall(std::function<void(const std::string& call)> action);

  const std::vector<std::string>& Calls() const { return calls_; }
  /// The calls so far; the log is empty afterwards.
  std::vector<std::string> Take();
  /// The calls of `action` alone, reads included; the log is empty afterwards.
  std::vector<std::string> TakeAllOf(const std::function<void()>& action);
  void Clear() { calls_.clear(); }
  /// The calls whose line begins with `prefix`.
  std::vector<std::string> CallsOf(const std::string& prefix) const;

  /// How a window is written: its name, else "0x12".
  std::string Window(WindowHandle hwnd) const;

 private:
  struct Action {
    std::string prefix;
    std::function<void()> run;
  };

  void RunActions(const std::string& call);

  std::vector<std::string> calls_;
  std::vector<Action> actions_;
  std::function<void(const std::string&)> before_call_;
  bool told_ = false;
  std::map<WindowHandle, std::string> names_;
  bool include_reads_ = false;
};

/// "0x1f".
std::string HexText(std::uint32_t value);
/// "SW_RESTORE"; the number for a command without a name here.
std::string ShowCommandText(int command);
/// "HWND_TOPMOST" and its like, else the window.
std::string InsertAfterText(const CallLog& log, WindowHandle insertAfter);

}  // namespace korvale
