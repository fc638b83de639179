#include "tests/endtoend/harness/real_program.h"

#include <algorithm>
#include <stdexcept>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

Process StartFirst(const std::vector<std::string>& commands) {
  for (const std::string& command : commands) {
    try {
      return Process(command);
    } catch (const std::runtime_error&) {
      continue;
    }
  }
  throw std::runtime_error("cannot start " + commands.front());
}

std::vector<Window> MainWindows() {
  std::vector<Window> windows = TopLevelWindows();
  std::erase_if(windows, [](Window window) {
    return !window.Visible() || window.Title().empty() ||
           GetWindow(window.handle(), GW_OWNER) != nullptr;
  });
  return windows;
}

// Some programs pass on to another process, so the new window counts, not the process.
Window NewWindow(const std::vector<Window>& before) {
  Window found;
  WaitFor(
      [&] {
        for (const Window window : MainWindows()) {
          if (std::find(before.begin(), before.end(), window) == before.end()) found = window;
        }
        return static_cast<bool>(found);
      },
      std::chrono::seconds(20));
  return found;
}

}  // namespace

RealProgram::RealProgram(const std::vector<std::string>& commands)
    : before_(MainWindows()), process_(StartFirst(commands)), window_(NewWindow(before_)) {
  if (!window_) throw std::runtime_error("no window of " + commands.front());
  // It comes forward by itself, which must not happen later, over what is used next.
  if (!WaitFor([this] { return HasInput(window_); })) {
    throw std::runtime_error("the window of " + commands.front() + " does not come forward");
  }
}

RealProgram StartNotepad(const std::string& document) {
  return RealProgram({document.empty() ? "notepad.exe" : "notepad.exe " + Quoted(document)});
}

RealProgram StartWordPad() {
  return RealProgram(
      {Quoted("C:\\Program Files\\Windows NT\\Accessories\\wordpad.exe"), "write.exe"});
}

RealProgram StartRegistryEditor() { return RealProgram({"regedit.exe"}); }

RealProgram StartMineGame() { return RealProgram({"winemine.exe", "clock.exe"}); }

}  // namespace korvale::endtoend
