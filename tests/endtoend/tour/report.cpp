#include "tests/endtoend/tour/report.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <sstream>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/resting_screen.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

constexpr int kTextWidth = 62;

std::string Ms(double time) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(1) << time << " ms";
  return text.str();
}

}  // namespace

void Report::Headline(const std::string& text) const { std::cout << "\n" << text << std::endl; }

void Report::Line(const std::string& what, const std::string& time, bool worked) {
  std::cout << (worked ? "  ok    " : "  FAIL  ") << std::left << std::setw(kTextWidth) << what
            << std::right << std::setw(10) << time << "   in front: " << Foreground().Title()
            << std::endl;
  said_ = what;
  if (worked) return;
  ++failures_;
  Picture("failure-" + std::to_string(failures_));
}

void Report::Step(const std::string& what, bool worked) { Line(what, "", worked); }

double Report::TimeKey(Chord chord, const std::function<bool()>& done, bool& worked) const {
  using std::chrono::steady_clock;
  const auto start = steady_clock::now();
  // A finger stays on the keys for longer than Korvale needs.
  const HeldKeys held(chord);
  worked = WaitFor(done);
  return std::chrono::duration<double, std::milli>(steady_clock::now() - start).count();
}

void Report::KeyUntil(const std::string& what, Chord chord, const std::function<bool()>& done) {
  bool worked = false;
  const double time = TimeKey(chord, done, worked);
  times_.push_back(time);
  Line(what, Ms(time), worked);
}

void Report::KeyToFront(const std::string& what, Chord chord, Window window) {
  KeyUntil(what, chord, [&] { return Foreground() == window; });
}

void Report::KeyDoesNothing(const std::string& what, Chord chord) {
  const Window before = Foreground();
  Press(chord);
  Step(what, HoldsFor([&] { return Foreground() == before; }));
}

void Report::Picture(const std::string& name) {
  ScreenComesToRest();
  const char* const folder = std::getenv("KORVALE_PICTURES");
  if (folder == nullptr || !TakePicture(name)) return;
  std::ofstream(std::string(folder) + "\\" + name + ".txt") << said_;
  std::cout << "        picture: " << name << ".png" << std::endl;
}

int Report::Finish() const {
  std::vector<double> sorted = times_;
  std::sort(sorted.begin(), sorted.end());
  if (!sorted.empty()) {
    std::cout << "\nFrom key to foreground, " << sorted.size() << " keys: median "
              << Ms(sorted[sorted.size() / 2]) << ", worst " << Ms(sorted.back()) << std::endl;
  }
  std::cout << (failures_ == 0 ? "Every step worked." : std::to_string(failures_) + " failed.")
            << std::endl;
  return failures_ == 0 ? 0 : 1;
}

}  // namespace korvale::endtoend
