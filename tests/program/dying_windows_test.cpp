#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "tests/program/dying_operations.h"

namespace korvale {
namespace {

constexpr const char* kMainTitle = "Korvale - Work";
constexpr const char* kOptionsTitle = "Korvale - Options";
constexpr const char* kUnsuccessful = "The window operation was not successful.  Please try again.";
const std::set<std::string> kNotSelected = {
    "Window:  [Alpha]  is not open.",
    "Window:  [Alpha]  is not enabled, and currently cannot be selected.", kUnsuccessful};
const std::set<std::string> kNotAdded = {
    "Window:  [Alpha]  is not open.", "Window:  [Alpha]  is not enabled.", kUnsuccessful,
    "Please select a 'Previous' window to add to the list, then try this operation again."};
const std::set<std::string> kNowhere = {"Window:  [Nowhere]  is not open."};

class EveryCallTest;

enum class Kind {
  kSelects,          ///< Alpha comes forward, or the user hears why it does not.
  kSelectsByRecord,  ///< The same for the window in front, known by its handle: a new title makes
                     ///< no other window of it.
  kByRecord,         ///< Only the latter.
  kBulk,             ///< For all windows alike.
};

struct DisturbedOperation {
  const char* name;
  void (EveryCallTest::*prepare)();
  void (EveryCallTest::*act)();
  Kind kind;
  /// Where the user may end. The newcomer in place of Alpha is judged apart; where Alpha was in
  /// front as it went, it is for Windows to choose.
  std::set<std::string> fronts;
  /// What they may be told, at most one of it.
  std::set<std::string> messages = {};
  /// Where they may also end when Alpha went while Korvale was about to bring it forward.
  std::set<std::string> lateFronts = {};
};

class EveryCallTest : public DyingOperations,
                      public testing::WithParamInterface<std::tuple<DisturbedOperation, Fate>> {
 public:
  static std::vector<DisturbedOperation> All();
  static std::vector<DisturbedOperation> Keys();
  static std::vector<DisturbedOperation> Commands();

 protected:
  void Check(const DisturbedOperation& operation, Fate fate) {
    CheckMessages(operation);
    CheckFront(operation);
    EXPECT_EQ(desktop.CallsThatWaited(), 0);
    if (operation.kind == Kind::kSelects || operation.kind == Kind::kSelectsByRecord) {
      EXPECT_TRUE(Front() == "Alpha" || !boxes.empty() || HadCome() || Asked("Newcomer") ||
                  wentFromFront)
          << "nobody was told, in front is " << Front();
    }
    CheckNewcomer(operation, fate);
    LetTick();
    CheckRecord();
    CheckTags();
    EXPECT_TRUE(korvale->Form().tmrWindow().Enabled());
    EXPECT_EQ(korvale->Form().tmrWindow().Tag(), "ON");
    EXPECT_FALSE(korvale->Suspended());
    EXPECT_TRUE(desktop.IsWindowEnabled(korvale->Handle()));
    ExpectTagLeadsTo(3, "Gamma");
    ExpectTagLeadsTo(2, "Beta");
  }

  void CheckMessages(const DisturbedOperation& operation) {
    EXPECT_LE(boxes.size(), 1U);
    for (const std::string& box : boxes) EXPECT_TRUE(operation.messages.contains(box)) << box;
  }
  void CheckFront(const DisturbedOperation& operation) {
    const bool judgedApart = newcomer != 0 && desktop.GetForegroundWindow() == newcomer;
    const bool late = HadBeenSeen() && operation.lateFronts.contains(Front());
    const bool chosen = wentFromFront && Front() == choiceOfWindows;
    EXPECT_TRUE(judgedApart || late || chosen || operation.fronts.contains(Front()))
        << "in front is " << Front();
  }

  void CheckNewcomer(const DisturbedOperation& operation, Fate fate) {
    if (newcomer == 0 || operation.kind == Kind::kBulk || !Asked("Newcomer")) return;
    const bool other = fate == Fate::kHandleGoesToAnotherClass;
    EXPECT_TRUE((operation.kind != Kind::kSelects && !other) ||
                CouldNotKnow(other ? "GetClassNameA" : "GetWindowTextA"))
        << "the newcomer was taken for Alpha";
  }

  void CheckRecord() {
    const PreviousWindow& record = korvale->Record();
    EXPECT_TRUE(record.current.handle == 0 || record.current.handle != record.alternate.handle);
    for (const WindowTriple& window : {record.current, record.alternate}) {
      if (window.handle == 0) continue;
      const FakeWindow* const live = desktop.Windows().Find(window.handle);
      ASSERT_NE(live, nullptr) << "[" << window.text << "] is gone";
      EXPECT_EQ(window.className, live->className);
    }
  }

  /// No Tag stands for the newcomer.
  void CheckTags() {
    for (const int tag : korvale->Tags().mnuWindowParentList.Indexes()) {
      if (!IsTag(tag)) continue;
      const MenuItem& entry = *korvale->TagEntry(tag);
      EXPECT_NE(TagClass(korvale->Tags(), entry), "Another");
    }
    EXPECT_EQ(korvale->TagEntry(1)->caption, "&1  Alpha");
  }
};

using Fronts = std::set<std::string>;
const Fronts kToAlpha = {"Alpha", "Beta"};
const Fronts kToOwned = {"Alpha", "Beta", "Owner"};
const Fronts kToMain = {kMainTitle};

std::vector<DisturbedOperation> EveryCallTest::Keys() {
  using T = EveryCallTest;
  using enum Kind;
  const Fronts back = {"Alpha", "Gamma", "Beta"};
  const Fronts dialog = {"Dialog", "Alpha", "Gamma", "Beta"};
  const Fronts next = {"Alpha", "Beta", "Gamma"};
  const Fronts nextOfOwned = {"Alpha", "Beta", "Gamma", "Owner"};
  return {
      {"TagByHandle", &T::Leave, &T::PressOne, kSelects, kToAlpha, kNotSelected},
      {"TagByLostHandle", &T::LoseHandle, &T::PressOne, kSelects, kToAlpha, kNotSelected},
      {"TagByTitle", &T::ChangeClass, &T::PressOne, kSelects, kToAlpha, kNotSelected},
      {"TagOfMinimized", &T::MinimizeAlpha, &T::PressOne, kSelects, kToAlpha, kNotSelected},
      {"TagOfMinimizedInFront", &T::MinimizeAlphaInFront, &T::PressOne, kSelectsByRecord, kToAlpha,
       kNotSelected},
      {"TagOfStuck", &T::KeepAlphaMinimized, &T::PressOne, kSelects, kToAlpha, kNotSelected},
      {"TagOfOwned", &T::MinimizeOwnerOfAlpha, &T::PressOne, kSelects, kToOwned, kNotSelected},
      {"TagOfDyingOwner", &T::MinimizeOwnerThatDies, &T::PressOne, kSelects, kToOwned,
       kNotSelected},
      {"TagBehindDyingDialog", &T::ComeFromDyingDialog, &T::PressOne, kSelects, dialog,
       kNotSelected},
      {"TagOfNoWindow", &T::GoToAlpha, &T::PressNoWindow, kByRecord, kToAlpha, kNowhere},
      {"TagZero", &T::ComeFromAlpha, &T::PressZero, kByRecord, back},
      {"TagZeroOfMinimized", &T::ComeFromMinimizedAlpha, &T::PressZero, kByRecord, back},
      {"TagZeroOfDisabled", &T::ComeFromDialogOfAlpha, &T::PressZero, kByRecord, dialog},
      {"TagZeroOfDyingDialog", &T::ComeFromDyingDialog, &T::PressZero, kByRecord, dialog},
      {"Minimize", &T::GoToAlpha, &T::PressMinimize, kByRecord, next},
      {"MinimizeBefore", &T::ComeFromAlpha, &T::PressMinimize, kByRecord, {"Alpha", "Gamma"}},
      {"MinimizeOwner", &T::GoToOwnedAlpha, &T::PressMinimize, kByRecord, nextOfOwned},
      {"MinimizeDyingOwner", &T::GoToAlphaOfDyingOwner, &T::PressMinimize, kByRecord, nextOfOwned},
      {"RestoreMaximize", &T::GoToAlpha, &T::PressMaximize, kByRecord, kToAlpha},
      {"Toggle", &T::GoToAlpha, &T::PressPauseTwice, kByRecord, kToAlpha},
      {"PopUp", &T::GoToAlpha, &T::PopUpAndEscape, kByRecord, kToAlpha},
      {"PopUpChoice", &T::Leave, &T::PopUpAndChoose, kSelects, kToAlpha, kNotSelected},
      {"OptionsOpened", &T::GoToAlpha, &T::OpenOptionsByKey, kByRecord, {kOptionsTitle}},
  };
}

std::vector<DisturbedOperation> EveryCallTest::Commands() {
  using T = EveryCallTest;
  using enum Kind;
  const Fronts bare = {"Program Manager", "Alpha"};
  return {
      {"AlwaysOnTop", &T::GoToKorvale, &T::ToggleAlwaysOnTop, kByRecord, kToMain},
      {"PreviousOnTop",
       &T::GoToKorvale,
       &T::TogglePreviousOnTop,
       kByRecord,
       kToMain,
       {kUnsuccessful}},
      {"MinimizeAll", &T::GoToKorvale, &T::MinimizeAll, kBulk, bare},
      {"RestoreAll", &T::MinimizeAlphaAndBeta, &T::RestoreAll, kBulk, kToMain},
      {"Tick", &T::GoToAlphaBetweenTwoTicks, &T::Tick, kByRecord, kToAlpha},
      {"Start", &T::EndKorvale, &T::Start, kByRecord, kToMain},
      {"OptionsClosed", &T::OpenOptions, &T::CloseOptionsAgain, kByRecord, kToAlpha, {}, kToMain},
      {"AddWindow", &T::GoToKorvale, &T::AddPrevious, kByRecord, kToMain, kNotAdded},
      {"AddThis", &T::GoToKorvale, &T::AddThis, kByRecord, kToMain},
      {"DialogClosed", &T::GoToAlpha, &T::OpenAndCloseAddWindow, kByRecord, kToAlpha, kNotAdded},
  };
}

std::vector<DisturbedOperation> EveryCallTest::All() {
  std::vector<DisturbedOperation> all = Keys();
  const std::vector<DisturbedOperation> commands = Commands();
  all.insert(all.end(), commands.begin(), commands.end());
  return all;
}

/// Cannot tell whether Alpha has met its fate: a strike before the next call is the same.
bool ReadsAnother(const std::string& call) {
  const bool reads = call.starts_with("Get") || call.starts_with("Is") || call.starts_with("Dwm");
  return reads &&
         (call.find("(Beta") != std::string::npos || call.find("(Gamma") != std::string::npos ||
          call.find("(frm") != std::string::npos);
}

TEST_P(EveryCallTest, LeavesTheUserAndTheProgramInOrder) {
  const DisturbedOperation& operation = std::get<0>(GetParam());
  const Fate fate = std::get<1>(GetParam());
  constexpr std::size_t kNever = 100'000;
  std::vector<std::string> undisturbed;
  for (std::size_t at = kNever; at == kNever || at < undisturbed.size();
       at = at == kNever ? 0 : at + 1) {
    if (at != kNever && ReadsAnother(undisturbed[at])) continue;
    StartAnew();
    (this->*operation.prepare)();
    Disturb([&] { (this->*operation.act)(); }, at, fate,
            at == kNever ? kNever : 10 * undisturbed.size() + 500);
    if (at == kNever) {
      undisturbed = calls;
      ASSERT_FALSE(undisturbed.empty());
    } else {
      EXPECT_LT(at, calls.size()) << "the fate did not strike";
    }
    Check(operation, fate);
    if (!HasFailure()) continue;
    ADD_FAILURE() << "before call " << at << " of " << undisturbed.size() << ": " << Told();
    return;
  }
}

const char* NameOf(Fate fate) {
  switch (fate) {
    case Fate::kCloses:
      return "Closes";
    case Fate::kHandleGoesToAnotherClass:
      return "HandleGoesToAnotherClass";
    case Fate::kHandleGoesToAnotherTitle:
      return "HandleGoesToAnotherTitle";
    case Fate::kHandleGoesToItsLike:
      return "HandleGoesToItsLike";
    case Fate::kHangs:
      return "Hangs";
    case Fate::kIsDisabled:
      break;
  }
  return "IsDisabled";
}

INSTANTIATE_TEST_SUITE_P(
    Before, EveryCallTest,
    testing::Combine(testing::ValuesIn(EveryCallTest::All()),
                     testing::Values(Fate::kCloses, Fate::kHandleGoesToAnotherClass,
                                     Fate::kHandleGoesToAnotherTitle, Fate::kHandleGoesToItsLike,
                                     Fate::kHangs, Fate::kIsDisabled)),
    [](const auto& param) {
      return std::string(std::get<0>(param.param).name) + NameOf(std::get<1>(param.param));
    });

}  // namespace
}  // namespace korvale
