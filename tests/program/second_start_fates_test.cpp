#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

/// What becomes of the running copy, or of the window in front, while the user starts it once more.
enum class CopyFate {
  kExits,
  kCrashes,
  kHandleGoesToAnother,
  kHangs,
  kIsMinimized,
  kAsks,
  kWindowInFrontCloses
};

constexpr const char* kAlreadyOpen = "'Korvale - Work' is already open.";

/// The running copy is called "First" in the log and meets its fate before some call of the second
/// start; the user is in Alpha.
class SecondStartFates : public StartTest, public testing::WithParamInterface<CopyFate> {
 protected:
  static constexpr std::size_t kNever = 100'000;

  void Begin() {
    first = &StartedCopy();
    log.NameWindow(first->Handle(), "First");
    alpha = Open("Alpha");
    calls.clear();
    boxes.clear();
    newcomer = 0;
  }
  /// Ends what is left of both copies.
  void End() {
    for (KorvaleCopy* const copy : {first, second}) {
      if (copy == nullptr) continue;
      const WindowHandle owner = copy->bridge.Owner();
      if (copy->Form().IsLoaded()) copy->Form().Unload();
      EndCopy(*copy);
      desktop.Windows().Destroy(owner);
    }
    if (newcomer != 0) desktop.Close(newcomer);
    if (desktop.Windows().Find(alpha) != nullptr) desktop.Close(alpha);
    second = nullptr;
  }

  bool StartAgain(std::size_t at) {
    second = &NewCopy();
    second->host.AnswerOtherBoxes([this](const ShownMessage& box) {
      boxes.push_back(box.text);
      return win32::kIdOk;
    });
    log.BeforeEachCall([this, at](const std::string& call) {
      // The running copy's own, as it comes forward.
      if (call.starts_with("SetFocus(First")) return;
      calls.push_back(call);
      if (calls.size() > 2000) FailTest("this has no end");
      if (calls.size() == at + 1) Meet(GetParam());
    });
    const bool runs = second->Start();
    log.BeforeEachCall({});
    return runs;
  }
  void Meet(CopyFate fate) {
    const WindowHandle hwnd = first->Handle();
    switch (fate) {
      case CopyFate::kExits:
        first->Form().Unload();
        return LoseFirst();
      case CopyFate::kHandleGoesToAnother:
        LoseFirst();
        newcomer = desktop.Open("Newcomer", {.activate = false, .reuseHandle = hwnd});
        return;
      case CopyFate::kCrashes:
        return LoseFirst();
      case CopyFate::kHangs:
        return desktop.SetHung(hwnd, true);
      case CopyFate::kIsMinimized:
        return desktop.UserMinimizes(hwnd);
      case CopyFate::kAsks:
        desktop.OpenModalDialog(hwnd, "Question");
        return;
      case CopyFate::kWindowInFrontCloses:
        desktop.Close(alpha);
    }
  }
  /// The process of the running copy ends, with all that it had.
  void LoseFirst() {
    const WindowHandle owner = first->bridge.Owner();
    hotKeys.ForgetWindow(first->Handle());
    EndCopy(*first);
    desktop.Windows().Destroy(owner);
    first = nullptr;
  }

  bool HasCalled(const std::string& call) const {
    return std::ranges::any_of(calls,
                               [&](const std::string& made) { return made.starts_with(call); });
  }
  /// Whether the second copy had made this call for the running one when that met its fate.
  bool HadMade(const std::string& call, std::size_t at) const {
    const std::size_t before = std::min(at, calls.size());
    return std::any_of(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(before),
                       [&](const std::string& made) { return made.starts_with(call + "(First"); });
  }
  /// The calls around the fate, one a line.
  std::string Told(std::size_t at) const {
    std::string told;
    for (std::size_t i = at < 5 ? 0 : at - 5; i < calls.size() && i < at + 60; ++i) {
      told += (i == at ? "\n> " : "\n  ") + calls[i];
    }
    return told;
  }
  std::size_t KeysOf(KorvaleCopy& copy) {
    std::size_t keys = 0;
    for (const auto& key : hotKeys.Registered()) keys += key.hwnd == copy.Handle() ? 1U : 0U;
    return keys;
  }

  void ExpectItRuns() {
    EXPECT_EQ(boxes, std::vector<std::string>{});
    EXPECT_EQ(first, nullptr) << "two copies run";
    EXPECT_EQ(Front(), "Korvale - Work");
    EXPECT_EQ(second->TargetWindow(), newcomer == 0 ? "Alpha" : "Newcomer");
    EXPECT_EQ(KeysOf(*second), kAllHotKeys);
  }
  void ExpectItGaveWay(std::size_t at) {
    EXPECT_EQ(boxes, std::vector<std::string>{kAlreadyOpen});
    EXPECT_FALSE(second->Form().IsLoaded());
    EXPECT_TRUE(first != nullptr || HadMade("GetClassNameA", at))
        << "gave way to a copy that had gone before";
    EXPECT_FALSE(HasCalled("SetForegroundWindow(Newcomer") &&
                 (HasCalled("GetClassNameA(Newcomer") || HasCalled("GetWindowTextA(Newcomer")))
        << "the newcomer was taken for the running copy";
    if (first == nullptr) return;
    EXPECT_EQ(KeysOf(*first), kAllHotKeys);
    const bool late = HadMade("IsWindowEnabled", at) && Front() == "Korvale - Work";
    const bool minimizedAgain =
        GetParam() == CopyFate::kIsMinimized && HadMade("SetForegroundWindow", at);
    const bool asks = GetParam() == CopyFate::kAsks && at != kNever;
    EXPECT_TRUE(late || minimizedAgain || Front() == (asks ? "Question" : "Korvale - Work"))
        << "in front is " << Front();
  }

  KorvaleCopy* first = nullptr;
  KorvaleCopy* second = nullptr;
  WindowHandle alpha = 0;
  WindowHandle newcomer = 0;
  std::vector<std::string> calls;
  std::vector<std::string> boxes;
};

TEST_P(SecondStartFates, LeaveOneCopyRunningOrTellThatItIsOpen) {
  int runs = 0;
  std::size_t count = 1;
  for (std::size_t at = kNever; at == kNever || at < count; at = at == kNever ? 0 : at + 1) {
    Begin();
    const std::vector<std::string> sections = store.Sections("Korvale - Work");
    const bool started = StartAgain(at);
    if (at == kNever) count = calls.size();
    started ? ExpectItRuns() : ExpectItGaveWay(at);
    EXPECT_EQ(desktop.CallsThatWaited(), 0);
    EXPECT_EQ(store.Sections("Korvale - Work"), sections);
    runs += started ? 1 : 0;
    if (HasFailure()) {
      ADD_FAILURE() << "before call " << at << " of " << count << ": " << Told(at);
      return End();
    }
    End();
  }
  const bool leaves = GetParam() <= CopyFate::kHandleGoesToAnother;
  EXPECT_EQ(runs > 0, leaves);
}

std::string CopyFateName(const testing::TestParamInfo<CopyFate>& test) {
  const char* const names[] = {"Exits",       "Crashes", "HandleGoesToAnother", "Hangs",
                               "IsMinimized", "Asks",    "WindowInFrontCloses"};
  return names[static_cast<int>(test.param)];
}

INSTANTIATE_TEST_SUITE_P(Before, SecondStartFates,
                         testing::Values(CopyFate::kExits, CopyFate::kCrashes,
                                         CopyFate::kHandleGoesToAnother, CopyFate::kHangs,
                                         CopyFate::kIsMinimized, CopyFate::kAsks,
                                         CopyFate::kWindowInFrontCloses),
                         CopyFateName);

}  // namespace
}  // namespace korvale
