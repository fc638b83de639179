#include "tests/endtoend/harness/test_program.h"

#include <cstdint>
#include <initializer_list>
#include <stdexcept>

#include "tests/endtoend/harness/files.h"

namespace korvale::endtoend {
namespace {

std::string Number(uintptr_t value) { return std::to_string(value); }

std::string Request(std::initializer_list<std::string> fields) {
  std::string line;
  for (const std::string& field : fields) line.append(line.empty() ? "" : "\t").append(field);
  return line;
}

}  // namespace

TestProgram::TestProgram() : process_(Quoted(OwnFolder() + "test_windows.exe")) {}

Window TestProgram::Open(const WindowSpec& spec) {
  const std::string answer = process_.Ask(
      Request({"open", spec.title, spec.class_name, Number(spec.style), Number(spec.extended_style),
               Number(reinterpret_cast<uintptr_t>(spec.owner.handle())),
               spec.with_child ? "1" : "0", std::to_string(spec.show)}));
  const uintptr_t handle = std::stoull(answer);
  if (handle == 0) throw std::runtime_error("the test program could not open " + spec.title);
  const Window window{reinterpret_cast<HWND>(handle)};
  const bool comes_forward = spec.show == SW_SHOWNORMAL && (spec.style & WS_DISABLED) == 0;
  if (comes_forward && !BringToFront(window)) {
    throw std::runtime_error("the new window is not in front: " + spec.title);
  }
  return window;
}

bool TestProgram::TakeHotKey(Chord chord) {
  return process_.Ask(Request({"hotkey", Number(chord.modifiers), Number(chord.key)})) == "1";
}

Window TestProgram::ShowMessage(const std::string& text) {
  process_.Ask(Request({"message", text}));
  return WaitForTopLevel([this](Window window) {
    return window.ProcessId() == process_.id() && window.ClassName() == "#32770" &&
           window.Visible();
  });
}

void TestProgram::Hang() { process_.Ask("hang"); }

void TestProgram::Recover() { process_.Ask("recover"); }

}  // namespace korvale::endtoend
