#pragma once

#include <windows.h>

#include <chrono>
#include <optional>
#include <string>

#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {

/// Owner of one Windows handle.
class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(Handle&& other) noexcept : handle_(other.Release()) {}
  Handle& operator=(Handle&& other) noexcept;
  ~Handle() { Reset(); }

  HANDLE get() const { return handle_; }
  HANDLE Release();
  void Reset();

 private:
  HANDLE handle_ = nullptr;
};

/// A running program; ended by force when destroyed.
class Process {
 public:
  /// Starts `command_line` (its first word quoted when it holds blanks) in `folder` ("" = here).
  /// Throws std::runtime_error when Windows cannot start it.
  explicit Process(const std::string& command_line, const std::string& folder = "");
  Process(Process&&) = default;
  Process& operator=(Process&&) = delete;
  ~Process();

  DWORD id() const { return id_; }
  bool Running() const;
  /// The exit code, or nothing when the program still runs after `limit`.
  std::optional<DWORD> WaitForExit(std::chrono::milliseconds limit = kPatience) const;
  void Kill();

  /// Sends one line to the program's standard input and returns the line that it answers with.
  /// Throws std::runtime_error when the program has gone.
  std::string Ask(const std::string& line);
  /// Sends one line without waiting for an answer.
  void Tell(const std::string& line);

 private:
  std::string ReadLine();

  Handle process_;
  Handle input_;
  Handle output_;
  DWORD id_ = 0;
  std::string pending_;
};

}  // namespace korvale::endtoend
