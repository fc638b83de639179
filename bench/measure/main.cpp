// Measures builds of Korvale from outside, beside the floor, and prints tables in Markdown.
//   korvale_measure [--quick] FLOOR.exe NAME=KORVALE.exe...

#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/measure/report.h"
#include "bench/measure/session.h"
#include "bench/measure/subject.h"

namespace {

using korvale::bench::Plan;
using korvale::bench::Subject;

constexpr Plan kFull{
    .rounds = 6, .floodSwitches = 10000, .idleSeconds = 20, .changingTitleSeconds = 60};
constexpr Plan kQuick{
    .rounds = 1, .floodSwitches = 200, .idleSeconds = 3, .changingTitleSeconds = 5};

std::vector<Subject> Subjects(const std::vector<std::string>& programs) {
  if (programs.size() < 2) throw std::runtime_error("a floor and a program are needed");
  std::vector<Subject> subjects;
  subjects.push_back(Subject::Floor(programs[0]));
  for (size_t at = 1; at < programs.size(); ++at) {
    const size_t equals = programs[at].find('=');
    if (equals == std::string::npos) throw std::runtime_error("no NAME= before " + programs[at]);
    subjects.push_back(
        Subject::Korvale(programs[at].substr(0, equals), programs[at].substr(equals + 1)));
  }
  return subjects;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    std::vector<std::string> programs(arguments + 1, arguments + count);
    const bool quick = std::erase(programs, "--quick") != 0;
    std::vector<Subject> subjects = Subjects(programs);
    korvale::bench::Session session(subjects, quick ? kQuick : kFull);
    session.Run();
    std::cout << korvale::bench::Report(subjects, session);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << std::endl;
    return 1;
  }
}
