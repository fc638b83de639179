#include "tests/program/dying_windows_test.h"

#include <functional>
#include <tuple>

namespace korvale {
namespace {

class EveryCallTest;

struct DisturbedOperation {
  const char* name;
  void (EveryCallTest::*prepare)();
  void (EveryCallTest::*act)();
  bool selectsAlpha = false;
  /// The window is known by its handle, so that a new title makes no other window of it.
  bool byRecord = false;
  bool bulk = false;
};

class EveryCallTest : public DyingWindowTest,
                      public testing::WithParamInterface<std::tuple<DisturbedOperation, Fate>> {
 public:
  // Preparations.
  void Leave() {}
  void LoseHandle() { ReopenTarget({.className = "Target"}); }
  void ChangeClass() { ReopenTarget({.className = "New", .children = 0}); }
  void MinimizeAlpha() { desktop.UserMinimizes(target); }
  void MinimizeOwnerOfAlpha() {
    const WindowHandle owner = desktop.Open("Owner");
    ReopenTarget({.className = "Target", .owner = owner, .style = fakes::kWsPopup});
    Retag();
    desktop.UserMinimizes(owner);
  }
  void Retag() {
    korvale->Tags().mnuWindowParentList.Unload(1);
    Tag(1, "Alpha", "Target", target);
  }
  void ComeFromAlpha() {
    WorkIn(target);
    WorkIn(beta);
  }
  void ComeFromMinimizedAlpha() {
    ComeFromAlpha();
    desktop.UserMinimizes(target);
  }
  void ComeFromAlphaBehindItsDialog() {
    WorkIn(target);
    desktop.OpenModalDialog(target, "Dialog");
    LetTick();
    WorkIn(beta);
  }
  void GoToAlpha() { WorkIn(target); }
  void GoToAlphaBetweenTwoTicks() { desktop.UserActivates(target); }
  void GoToKorvaleFromAlpha() {
    WorkIn(target);
    WorkIn(korvale->Handle());
  }
  void OpenOptions() {
    WorkIn(target);
    PressHotKey(win32::kModWin, 'O');
  }
  void EndKorvale() {
    WorkIn(target);
    korvale->Exit();
    over = true;
    korvale->host.MessageBoxW(0, "", "", win32::kMbOk);
    over = false;
    const WindowHandle owner = korvale->bridge.Owner();
    EndCopy(*korvale);
    desktop.Windows().Destroy(owner);
    boxes.clear();
  }

  // Operations.
  void Press(std::uint32_t modifiers, std::uint32_t key) {
    EXPECT_TRUE(hotKeys.Press(modifiers, key));
  }
  void PressOne() { Press(win32::kModAlt, '1'); }
  void PressZero() { Press(win32::kModAlt, '0'); }
  void PressNoWindow() {
    korvale->Tags().mnuWindowParentList.Load(9).caption = "&9  Nowhere";
    Press(win32::kModAlt, '9');
  }
  void PressMinimize() { Press(win32::kModAlt, win32::kVkDown); }
  void PressMaximize() { Press(win32::kModAlt, win32::kVkUp); }
  void PressPauseTwice() {
    Press(0, win32::kVkPause);
    Press(0, win32::kVkPause);
  }
  void ToggleAlwaysOnTop() {
    korvale->ChooseLate("mnuWindowAlwaysOnTop");
    korvale->ChooseLate("mnuWindowAlwaysOnTop");
  }
  void TogglePreviousOnTop() { korvale->ChooseLate("mnuWindowPreviousWindowAlwaysOnTop"); }
  void MinimizeAll() { korvale->ChooseLate("mnuWindowMinimizeAll"); }
  void RestoreAll() { korvale->ChooseLate("mnuWindowRestoreAll"); }
  void AddPrevious() { korvale->ChooseLate("mnuWindowAddToList", 2); }
  void OpenAndCloseAddWindow() {
    addsWindow = false;
    PopUp("Add  [");
  }
  void PopUpAndEscape() { PopUp(""); }
  void PopUpAndChoose() { PopUp("1  "); }
  void PopUp(const std::string& beginning) {
    korvale->host.WhenPopupMenu([=](const std::vector<ShownMenuItem>& items) {
      const auto found = std::ranges::find_if(items, [&](const ShownMenuItem& item) {
        return !beginning.empty() && item.enabled && item.caption.starts_with(beginning);
      });
      return found == items.end() ? std::string() : found->caption;
    });
    Press(win32::kModWin, 'W');
  }
  void Tick() { LetTick(); }
  void CloseOptionsAgain() { CloseOptions(); }
  void OpenOptionsByKey() { Press(win32::kModWin, 'O'); }
  void Start() {
    korvale = &NewCopy();
    AttendTo(*korvale);
    EXPECT_TRUE(korvale->Start());
  }

  static std::vector<DisturbedOperation> All();

 protected:
  void Check(const DisturbedOperation& operation, Fate fate) {
    CheckMessages();
    if (operation.selectsAlpha) {
      EXPECT_TRUE(Front() == "Alpha" || !boxes.empty() || HadCome() || Asked("Newcomer"))
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

  void CheckMessages() {
    static const std::set<std::string> kMessages = {
        "Window:  [Alpha]  is not open.",
        "Window:  [Alpha]  is not enabled, and currently cannot be selected.",
        "The window operation was not successful.  Please try again.",
        "Window:  [Alpha]  is not enabled.",
        "Window:  [Nowhere]  is not open.",
        "Please select a 'Previous' window to add to the list, then try this operation again."};
    EXPECT_LE(boxes.size(), 1U);
    for (const std::string& box : boxes) EXPECT_TRUE(kMessages.contains(box)) << box;
  }

  void CheckNewcomer(const DisturbedOperation& operation, Fate fate) {
    if (newcomer == 0 || operation.bulk || !Asked("Newcomer")) return;
    const bool other = fate == Fate::kHandleGoesToAnotherClass;
    EXPECT_TRUE((operation.byRecord && !other) ||
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

std::vector<DisturbedOperation> EveryCallTest::All() {
  using T = EveryCallTest;
  return {
      {"TagByHandle", &T::Leave, &T::PressOne, true},
      {"TagByLostHandle", &T::LoseHandle, &T::PressOne, true},
      {"TagByTitle", &T::ChangeClass, &T::PressOne, true},
      {"TagOfMinimized", &T::MinimizeAlpha, &T::PressOne, true},
      {"TagOfOwnedByMinimized", &T::MinimizeOwnerOfAlpha, &T::PressOne, true},
      {"TagZero", &T::ComeFromAlpha, &T::PressZero, false, true},
      {"TagZeroOfMinimized", &T::ComeFromMinimizedAlpha, &T::PressZero, false, true},
      {"TagZeroOfDisabled", &T::ComeFromAlphaBehindItsDialog, &T::PressZero, false, true},
      {"TagOfNoWindow", &T::GoToAlpha, &T::PressNoWindow, false, true},
      {"Minimize", &T::GoToAlpha, &T::PressMinimize, false, true},
      {"MinimizeBefore", &T::ComeFromAlpha, &T::PressMinimize, false, true},
      {"RestoreMaximize", &T::GoToAlpha, &T::PressMaximize, false, true},
      {"AlwaysOnTop", &T::GoToKorvaleFromAlpha, &T::ToggleAlwaysOnTop, false, true},
      {"PreviousAlwaysOnTop", &T::GoToKorvaleFromAlpha, &T::TogglePreviousOnTop, false, true},
      {"MinimizeAll", &T::GoToKorvaleFromAlpha, &T::MinimizeAll, false, true, true},
      {"RestoreAll", &T::MinimizeAlpha, &T::RestoreAll, false, true, true},
      {"PopUp", &T::GoToAlpha, &T::PopUpAndEscape, false, true},
      {"PopUpChoice", &T::Leave, &T::PopUpAndChoose, true},
      {"Tick", &T::GoToAlphaBetweenTwoTicks, &T::Tick, false, true},
      {"Start", &T::EndKorvale, &T::Start, false, true},
      {"OptionsOpened", &T::GoToAlpha, &T::OpenOptionsByKey, false, true},
      {"OptionsClosed", &T::OpenOptions, &T::CloseOptionsAgain, false, true},
      {"AddWindow", &T::GoToKorvaleFromAlpha, &T::AddPrevious, false, true},
      {"DialogClosed", &T::GoToAlpha, &T::OpenAndCloseAddWindow, false, true},
      {"Toggle", &T::GoToAlpha, &T::PressPauseTwice, false, true},
  };
}

TEST_P(EveryCallTest, EndsAsSpecified) {
  const auto& [operation, fate] = GetParam();
  constexpr std::size_t kNever = 100'000;
  std::size_t count = 1;
  for (std::size_t at = kNever; at == kNever || at < count; at = at == kNever ? 0 : at + 1) {
    StartAnew();
    (this->*operation.prepare)();
    Disturb([&] { (this->*operation.act)(); }, at, fate, at == kNever ? kNever : 10 * count + 500);
    if (at == kNever) {
      count = calls.size();
      ASSERT_GT(count, 0U);
    }
    Check(operation, fate);
    if (!HasFailure()) continue;
    ADD_FAILURE() << "before call " << at << " of " << count << ": " << Told();
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
