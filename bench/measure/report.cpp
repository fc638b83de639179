#include "bench/measure/report.h"

#include <cstdio>
#include <functional>
#include <vector>

namespace korvale::bench {
namespace {

constexpr double kMegabyte = 1024 * 1024;

std::string Number(double value, int digits, const char* unit) {
  char text[64];
  std::snprintf(text, sizeof(text), "%.*f%s", digits, value, unit);
  return text;
}

std::string Count(long long value) {
  std::string text = std::to_string(value);
  for (size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, ",");
  return text;
}

std::string Desktop(int windows) { return Count(windows) + " windows"; }

std::string Times(const Samples& samples) {
  return Number(samples.Median(), 2, " ms") + " (worst " + Number(samples.Worst(), 2, ")");
}

std::string Ratio(double value, double floor) {
  return floor == 0 ? "-" : Number(value / floor, 2, " times");
}

class Writer {
 public:
  Writer(std::span<const Subject> subjects, const Session& session)
      : subjects_(subjects), session_(session) {}

  std::string Text() {
    Keys();
    Starts();
    Space();
    Upkeeps();
    Astray();
    return text_;
  }

 private:
  using Show = std::function<std::string(const Figures&)>;
  using SamplesOf = ByDesktop Figures::*;

  const Figures& Floor() const { return session_.figures().front(); }

  void Heading(const std::string& group) {
    text_.append(text_.empty() ? "" : "\n").append("### ").append(group).append("\n\n| figure |");
    for (const Subject& subject : subjects_) {
      text_.append(" ").append(subject.name()).append(" |");
      if (!subject.IsFloor()) text_.append(" beside the floor |");
    }
    text_.append(" aim |\n|---|");
    for (const Subject& subject : subjects_) text_.append(subject.IsFloor() ? "---|" : "---|---|");
    text_.append("---|\n");
  }

  void Row(const std::string& figure, const std::string& aim, const Show& show,
           const Show& beside) {
    text_.append("| ").append(figure).append(" |");
    for (size_t at = 0; at < subjects_.size(); ++at) {
      const Figures& figures = session_.figures()[at];
      text_.append(" ").append(show(figures)).append(" |");
      if (!subjects_[at].IsFloor()) text_.append(" ").append(beside(figures)).append(" |");
    }
    text_.append(" ").append(aim).append(" |\n");
  }

  void TimeRow(const std::string& figure, const std::string& aim, SamplesOf times, int windows) {
    Row(
        figure + ", " + Desktop(windows), aim,
        [=](const Figures& figures) { return Times((figures.*times).at(windows)); },
        [=, this](const Figures& figures) {
          return Ratio((figures.*times).at(windows).Median(),
                       (Floor().*times).at(windows).Median());
        });
  }

  /// Beside the floor stands how many bare loops it takes; the floor takes `ofFloor`.
  void LoopRow(const std::string& figure, const std::string& aim, SamplesOf times, int small,
               int windows, int ofFloor) {
    Row(
        figure + ", " + Desktop(windows), aim,
        [=](const Figures& figures) { return Times((figures.*times).at(windows)); },
        [=, this](const Figures& figures) {
          const double more =
              LoopsMore(figures.*times, Floor().*times, session_.bareLoop(), small, windows);
          return Number(ofFloor + more, 1, ofFloor == 0 ? " loops more" : " loops");
        });
  }

  void Keys() {
    static constexpr const char* kReopenedAims[] = {"1.5 times", "1.15 times", "1.1 times"};
    static constexpr const char* kNothingFound = "nothing to find, up to the message";
    Heading("From the key to the window in front");
    for (const int windows : Session::kKeyDesktops) {
      TimeRow("Tag with a live handle", "1.15 times, flat", &Figures::live, windows);
    }
    const char* const* aim = kReopenedAims;
    for (const int windows : Session::kKeyDesktops) {
      TimeRow("Tag whose window was reopened", *aim++, &Figures::reopened, windows);
    }
    TimeRow(kNothingFound, "-", &Figures::nothingFound, 9);
    LoopRow(kNothingFound, "2 loops", &Figures::nothingFound, 9, 200, 1);
    LoopRow(kNothingFound, "2 loops", &Figures::nothingFound, 9, 1000, 1);
    const char* before = "\nA bare loop takes ";
    for (const auto& [windows, loop] : session_.bareLoop()) {
      text_.append(before).append(Times(loop)).append(" over ").append(Desktop(windows));
      before = ",\n";
    }
    text_.append(".\n");
  }

  void Starts() {
    Heading("From the start to registered hot keys");
    TimeRow("nine stored Tags, no splash", "1.4 times", &Figures::start, 20);
    LoopRow("nine stored Tags, no splash", "2 loops more", &Figures::start, 20, 1000, 0);
  }

  void Space() {
    const auto megabytes = [](double bytes) { return Number(bytes / kMegabyte, 1, " MB"); };
    const int switches = session_.plan().floodSwitches;
    Heading("Size, memory, settings");
    Row(
        "the program, stripped", "480 KB",
        [](const Figures& figures) {
          return Count(static_cast<long long>(figures.size)) + " bytes";
        },
        [](const Figures&) { return "-"; });
    Row(
        "resident memory after the start", "4 MB more",
        [=](const Figures& figures) { return megabytes(figures.memoryAfterStart.Median()); },
        [=, this](const Figures& figures) {
          return megabytes(figures.memoryAfterStart.Median() - Floor().memoryAfterStart.Median()) +
                 " more";
        });
    Row(
        "resident memory after " + Count(switches) + " switches", "constant",
        [=](const Figures& figures) { return megabytes(figures.memoryAfterFlood); },
        [=](const Figures& figures) {
          return megabytes(figures.memoryAfterFlood - figures.memoryBeforeFlood) +
                 " since its start";
        });
    Row(
        "changes of the stored settings per selected Tag, at least", "0",
        [](const Figures& figures) { return Number(figures.settingsChangesPerSwitch, 1, ""); },
        [](const Figures&) { return "-"; });
  }

  void UpkeepRow(const std::string& figure, const std::string& aim, Upkeep Figures::*upkeep) {
    Row(
        figure, aim,
        [=](const Figures& figures) {
          return Number((figures.*upkeep).processorMs, 1, " ms, ") +
                 std::to_string((figures.*upkeep).settingsChanges) + " changes";
        },
        [=, this](const Figures& figures) {
          return Ratio((figures.*upkeep).processorMs, (Floor().*upkeep).processorMs);
        });
  }

  void Upkeeps() {
    const Plan& plan = session_.plan();
    Heading("Processor time and changes of the stored settings while nobody uses it");
    UpkeepRow("idle for " + std::to_string(plan.idleSeconds) + " s", "as little as the floor",
              &Figures::idle);
    UpkeepRow("title in front changing 10 times a second for " +
                  std::to_string(plan.changingTitleSeconds) + " s",
              "1.5 times, 0 changes", &Figures::changingTitle);
  }

  void CountRow(const std::string& figure, int Figures::*count) {
    Row(
        figure, "-", [=](const Figures& figures) { return Count(figures.*count); },
        [](const Figures&) { return "-"; });
  }

  void Astray() {
    Heading("What went astray and is in no figure above");
    CountRow("keys that nothing came of", &Figures::lostKeys);
    CountRow("starts that lacked a hot key and were repeated", &Figures::repeatedStarts);
  }

  std::span<const Subject> subjects_;
  const Session& session_;
  std::string text_;
};

}  // namespace

std::string Report(std::span<const Subject> subjects, const Session& session) {
  return Writer(subjects, session).Text();
}

}  // namespace korvale::bench
