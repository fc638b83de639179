#include <cstdint>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/boxes_up.h"

namespace korvale {
namespace {

constexpr const char* kHeldNotice =
    "Hot Keys are temporarily suspended when Korvale has a message box or a dialog box displayed.";
/// A stored width that only a save of the program replaces.
constexpr const char* kUnsaved = "unsaved";

/// Everything that the message loop can deliver, while each of the boxes is up.
class BoxAndDelivery : public BoxesUp {
 public:
  void PressHotKeys() {
    if (hotKeysWork_) return ExpectTagLeadsTo(2, "Gamma");
    const std::size_t before = korvale_->host.Messages().size();
    const bool expected = desktop.FindWindowA("Korvale     ") == 0 && !starting_;
    if (expected) {
      Answer(
          [&] {
            EXPECT_EQ(korvale_->host.Messages().back().text, kHeldNotice);
            PressAll();
          },
          win32::kIdOk);
    }
    // The only one that is never switched off; at the first question there is none yet.
    EXPECT_EQ(hotKeys.Press(0, win32::kVkPause), !starting_);
    LetTick();
    EXPECT_EQ(korvale_->host.Messages().size(), before + (expected ? 1 : 0));
    EXPECT_NE(Front(), "Gamma");
  }
  void PostForeignHotKeys() {
    for (const int id : {-1, 0, 1, 200, 65536}) {
      hotKeys.Deliver(korvale_->Handle(), win32::kWmHotKey, static_cast<std::uintptr_t>(id), 77);
    }
  }
  void LetTimersTick() {
    desktop.UserActivates(beta_);
    clock.Advance(300);
    desktop.UserActivates(gamma_);
    clock.Advance(300);
  }
  void ChooseFromMenu() {
    if (mainIsUsable_) return korvale_->ChooseLate("mnuFileExit");
    const bool targetWindow = korvale_->Startup().WindowInfo;
    for (const char* const entry : {"mnuViewWindowInfo", "mnuToolsOptions", "mnuFileExit"}) {
      korvale_->ChooseLate(entry);
    }
    EXPECT_EQ(korvale_->Startup().WindowInfo, targetWindow);
  }
  /// What was in the queue when the box came up, or comes from another program.
  void UseWhatIsBelow() {
    int below = 0;
    for (const LoadedForm& form : korvale_->Form().Collection().List()) {
      if (korvale_->user.IsEnabled(form.handle)) continue;
      ++below;
      UseEverythingOf(korvale_->Loaded(form.name));
    }
    EXPECT_EQ(below > 0, !mainIsUsable_);
  }
  void CloseMainWindow() { korvale_->Form().OnCloseRequested(CloseReason::kUser); }
  void ChangeColors() {
    korvale_->host.ChangeHighContrast(true);
    korvale_->host.ChangeSysColor(kButtonFaceColor, 0);
  }
  void ChangeMetrics() {
    korvale_->host.ChangeTextSize(150);
    korvale_->host.ChangeWorkArea({0, 0, 12000, 9000});
  }
  void ChangeDpi() {
    korvale_->host.SetDpi(192);
    for (const LoadedForm& form : korvale_->Form().Collection().List()) {
      korvale_->host.Tell(form.handle, [](FormEvents& events) { events.OnDpiChanged(); });
    }
  }
  void ActivateMainWindow() {
    korvale_->host.Tell(korvale_->Handle(), [](FormEvents& events) { events.OnActivated(); });
  }
  void MinimizeAndRestoreMainWindow() {
    const bool shown = desktop.IsWindowVisible(korvale_->Handle());
    if (!shown) return;
    desktop.ShowWindow(korvale_->Handle(), win32::kSwMinimize);
    LetTick();
    desktop.ShowWindow(korvale_->Handle(), win32::kSwRestore);
    LetTick();
  }
  void ReturnToTheComputer() {
    hotKeys.EndSleep();
    hotKeys.ChangeSession(win32::kWtsSessionUnlock);
  }
  void ChangeOtherWindows() {
    desktop.UserMinimizes(beta_);
    desktop.UserRestores(beta_);
    desktop.LoseForeground();
    LetTick();
  }
  void StartAgain() {
    KorvaleCopy& second = NewCopy();
    second.host.AnswerNext(win32::kIdOk);
    EXPECT_FALSE(second.Start());
    EndCopy(second);
    clock.SetTickHandler(
        [this](WindowHandle hwnd, int id) { korvale_->host.DeliverTimer(hwnd, id); });
  }
  void EndSession() { korvale_->Form().OnCloseRequested(CloseReason::kSession); }
  void EndTask() { korvale_->user.CloseOwner(korvale_->Handle()); }
  void QuitThread() { korvale_->user.QuitThread(); }

 protected:
  /// What must stay as it is while something is up, whatever is delivered.
  struct Shown {
    std::vector<std::string> forms;
    bool box = false;
    WindowTriple current;
    WindowTriple alternate;

    friend bool operator==(const Shown&, const Shown&) = default;
  };

  Shown Look() {
    Shown shown;
    for (const LoadedForm& form : korvale_->Form().Collection().List()) {
      // It goes by itself.
      if (form.name != "frmWaitWindow") shown.forms.push_back(form.name);
    }
    shown.box = korvale_->host.MessageBoxUp();
    // Behind the other windows the user goes on, and Tag 0 follows them.
    if (!shown.box) return shown;
    shown.current = korvale_->Record().current;
    shown.alternate = korvale_->Record().alternate;
    return shown;
  }

  void ExpectToGoOn() {
    ASSERT_TRUE(korvale_->Form().IsLoaded());
    EXPECT_FALSE(korvale_->Suspended());
    EXPECT_TRUE(korvale_->user.IsEnabled(korvale_->Handle()));
    EXPECT_TRUE(korvale_->Form().tmrWindow().Enabled());
    EXPECT_EQ(korvale_->Form().tmrWindow().Tag(), "ON");
    EXPECT_EQ(hotKeys.Registered().size(), hotKeyCount_);
    WorkIn(beta_);
    PressHotKey(win32::kModWin, 'O');
    EXPECT_EQ(Front(), "Korvale - Options");
    korvale_->Loaded("frmOptions").Unload();
    WorkIn(gamma_);
    WorkIn(beta_);
    ExpectTagLeadsTo(0, "Gamma");
  }

  void ExpectToHaveEnded() {
    if (korvale_->host.QuitPosted()) korvale_->program.Run();
    ExpectEnded(*korvale_);
    EXPECT_FALSE(clock.AdvanceToNextTick());
    // A program that was still starting has nothing of its own to save, and one that was exiting
    // has been refused it.
    EXPECT_TRUE(starting_ || exiting_ || Stored("Startup", "Width") != kUnsaved);
  }

 private:
  void PressAll() {
    using Combination = std::pair<std::uint32_t, std::uint32_t>;
    // Some are switched off, or belong to another program.
    for (const auto& [modifiers, key] :
         {Combination(win32::kModAlt, '1'), Combination(win32::kModAlt, '2'),
          Combination(win32::kModAlt, win32::kVkDown), Combination(win32::kModWin, 'O'),
          Combination(win32::kModWin, 'W')}) {
      hotKeys.Press(modifiers, key);
      LetTick();
    }
    PressHotKey(0, win32::kVkPause);
  }
  void UseEverythingOf(class Form& form) {
    const auto texts = [&] {
      std::vector<std::string> all;
      for (const Control& control : form.Controls()) {
        all.push_back(control.Text() + "|" + std::to_string(control.Value()) + "|" +
                      std::to_string(control.ListIndex()));
      }
      return all;
    };
    const std::vector<std::string> before = texts();
    ASSERT_FALSE(before.empty()) << form.Name();
    for (const Control& control : form.Controls()) UseControl(form.Handle(), control.Id());
    form.OnCloseRequested(CloseReason::kUser);
    EXPECT_EQ(texts(), before) << form.Name();
  }
  void UseControl(WindowHandle hwnd, int control) {
    korvale_->host.Tell(hwnd, [&](FormEvents& events) {
      events.OnMouse(control, {MouseEvent::kDown, MouseButton::kLeft});
      events.OnMouse(control, {MouseEvent::kUp, MouseButton::kLeft});
      events.OnClick(control);
      events.OnTextTyped(control, "typed");
      events.OnListDropDown(control);
      events.OnListPicked(control, 0);
      events.OnListClosedUp(control);
      for (const int key : {win32::kVkEscape, win32::kVkReturn}) {
        EXPECT_TRUE(events.OnKeyDown(control, key, kNoShift, false));
        EXPECT_TRUE(events.OnKeyUp(control, key, kNoShift));
      }
      EXPECT_TRUE(events.OnKeyDown(control, win32::kVkF4, kAlt, false));
      EXPECT_TRUE(events.OnCharacter(control, U'\u00E4', kNoShift));
    });
  }
};

struct Box {
  const char* name;
  void (BoxesUp::*show)(const BoxesUp::Meanwhile&);
};

enum class Ends { kNever, kWhenMainIsUsable, kAlways };

struct Delivery {
  const char* name;
  void (BoxAndDelivery::*deliver)();
  Ends ends = Ends::kNever;
};

class Deliveries : public BoxAndDelivery,
                   public testing::WithParamInterface<std::tuple<Box, Delivery>> {};

TEST_P(Deliveries, DisturbNoBoxAndOnlyTheEndEndsTheProgram) {
  const auto& [box, delivery] = GetParam();
  bool ends = false;
  (this->*box.show)([&, row = delivery] {
    ends = row.ends == Ends::kAlways || (row.ends == Ends::kWhenMainIsUsable && mainIsUsable_);
    if (ends && !starting_ && !exiting_) {
      store.SaveSetting("Korvale - Work", "Startup", "Width", kUnsaved);
    }
    const Shown before = Look();
    (this->*row.deliver)();
    EXPECT_TRUE(ends || Look() == before);
  });
  if (ends || exiting_) return ExpectToHaveEnded();
  ExpectToGoOn();
}

std::string PairName(const testing::TestParamInfo<std::tuple<Box, Delivery>>& test) {
  const auto& [box, delivery] = test.param;
  return std::string(delivery.name) + "During" + box.name;
}

INSTANTIATE_TEST_SUITE_P(
    All, Deliveries,
    testing::Combine(
        testing::Values(Box{"AMessage", &BoxesUp::ShowMessage},
                        Box{"TheNotice", &BoxesUp::ShowNotice}, Box{"ATip", &BoxesUp::ShowTip},
                        Box{"AQuestionOfTheOptions", &BoxesUp::ShowOptionsQuestion},
                        Box{"AddWindow", &BoxesUp::ShowAddWindow},
                        Box{"TheColorDialog", &BoxesUp::ShowColorDialog},
                        Box{"TheWaitWindow", &BoxesUp::ShowWaitWindow},
                        Box{"ATipOfTheStart", &BoxesUp::ShowTipOfTheStart},
                        Box{"TheReviewQuestion", &BoxesUp::ShowReviewQuestion},
                        Box{"TheImportQuestion", &BoxesUp::ShowImportQuestion},
                        Box{"ANoticeOverATip", &BoxesUp::ShowNoticeOverTip},
                        Box{"ANoticeOverAddWindow", &BoxesUp::ShowNoticeOverAddWindow},
                        Box{"TheErrorOfTheExit", &BoxesUp::ShowErrorOfTheExit},
                        Box{"About", &BoxesUp::ShowAbout}, Box{"TheSplash", &BoxesUp::ShowSplash},
                        Box{"CustomizeColors", &BoxesUp::CustomizeColors}),
        testing::Values(
            Delivery{"HotKeys", &BoxAndDelivery::PressHotKeys},
            Delivery{"ForeignHotKeys", &BoxAndDelivery::PostForeignHotKeys},
            Delivery{"Ticks", &BoxAndDelivery::LetTimersTick},
            Delivery{"MenuCommands", &BoxAndDelivery::ChooseFromMenu, Ends::kWhenMainIsUsable},
            Delivery{"TheCloseBox", &BoxAndDelivery::CloseMainWindow, Ends::kWhenMainIsUsable},
            Delivery{"InputBelow", &BoxAndDelivery::UseWhatIsBelow},
            Delivery{"NewMetrics", &BoxAndDelivery::ChangeMetrics},
            Delivery{"NewDpi", &BoxAndDelivery::ChangeDpi},
            Delivery{"TheActivation", &BoxAndDelivery::ActivateMainWindow},
            Delivery{"MinimizeAndRestore", &BoxAndDelivery::MinimizeAndRestoreMainWindow},
            Delivery{"TheReturn", &BoxAndDelivery::ReturnToTheComputer},
            Delivery{"NewColors", &BoxAndDelivery::ChangeColors},
            Delivery{"OtherWindows", &BoxAndDelivery::ChangeOtherWindows},
            Delivery{"ASecondStart", &BoxAndDelivery::StartAgain},
            Delivery{"TheEndOfTheSession", &BoxAndDelivery::EndSession, Ends::kAlways},
            Delivery{"TheEndOfTheTask", &BoxAndDelivery::EndTask, Ends::kAlways},
            Delivery{"TheEndOfTheThread", &BoxAndDelivery::QuitThread, Ends::kAlways})),
    PairName);

}  // namespace
}  // namespace korvale
