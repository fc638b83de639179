#include "bench/measure/targets.h"

#include <iterator>
#include <stdexcept>

#include "bench/measure/processors.h"
#include "tests/endtoend/harness/resting_screen.h"

namespace korvale::bench {
namespace {

constexpr const char* kDocuments[] = {
    "Quarterly report", "Minutes of the meeting", "Inbox", "Prices of next year",
    "main.cpp",         "Holiday pictures"};
constexpr const char* kPrograms[] = {"Editor", "Mail", "Browser", "Drawing", "Tables"};

const char* Program(int number) {
  return kPrograms[static_cast<size_t>(number) % std::size(kPrograms)];
}

}  // namespace

Targets::Targets(int count) {
  for (int number = 1; number <= count; ++number) windows_.push_back(Open(number));
  KeepOn(Side::kUser, Tagged(1).ProcessId());
  endtoend::ScreenComesToRest();
}

std::string Targets::Title(int number) {
  const std::string document = kDocuments[static_cast<size_t>(number) % std::size(kDocuments)];
  return document + ", version " + std::to_string(number) + " - " + Program(number);
}

std::string Targets::ClassName(int number) { return std::string("Target.") + Program(number); }

void Targets::Close(int tag) {
  if (!Tagged(tag).Close()) throw std::runtime_error("a target window stays open");
}

void Targets::Reopen(int tag) { windows_[Index(tag)] = Open(tag); }

endtoend::Window Targets::Open(int number) {
  return program_.Open(
      {.title = Title(number), .class_name = ClassName(number), .show = SW_SHOWNOACTIVATE});
}

}  // namespace korvale::bench
