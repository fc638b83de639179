#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <tuple>

#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

constexpr const char* kHeldNotice =
    "Hot Keys are temporarily suspended when Korvale has a message box or a dialog box displayed.";

/// Everything that the message loop can deliver, while each of the boxes is up.
class BoxAndDelivery : public StartTest {
 public:
  using Meanwhile = std::function<void()>;

  // The boxes. Each shows itself, lets `meanwhile` happen, and is answered.
  void ShowMessage(const Meanwhile& meanwhile) {
    StartAmongWindows();
    Answer(meanwhile, win32::kIdOk);
    PressTag(1);
  }
  void ShowNotice(const Meanwhile& meanwhile) {
    StartAmongWindows();
    Answer(
        [&] {
          Answer(meanwhile, win32::kIdOk);
          PressTag(2);
        },
        win32::kIdOk);
    PressTag(1);
  }
  void ShowTip(const Meanwhile& meanwhile) {
    StartAmongWindows();
    WorkIn(korvale_->Handle());
    CloseAfter("frmMsgTip", meanwhile);
    korvale_->user.ChooseMenu(korvale_->Handle(), {"View", "Customize Colors - C"});
  }
  void ShowOptionsQuestion(const Meanwhile& meanwhile) {
    StartAmongWindows();
    PressHotKey(win32::kModWin, 'O');
    class Form& options = korvale_->Loaded("frmOptions");
    Answer(meanwhile, win32::kIdCancel);
    korvale_->user.Click(options.Handle(), korvale_->Id(options, "cmdReset"));
    if (options.IsLoaded()) options.Unload();
  }
  void ShowAddWindow(const Meanwhile& meanwhile) {
    StartAmongWindows();
    WorkIn(korvale_->Handle());
    CloseAfter("frmGetWindow", meanwhile);
    korvale_->ChooseLate("mnuWindowAddToList", 2);
  }
  void ShowColorDialog(const Meanwhile& meanwhile) {
    StartAmongWindows();
    korvale_->host.WhenColorDialog([&](Color) -> std::optional<Color> {
      meanwhile();
      return std::nullopt;
    });
    korvale_->Form().udmShowColorPalette(0);
  }
  void ShowWaitWindow(const Meanwhile& meanwhile) {
    StartAmongWindows();
    // It takes nothing from the user, who may go on in the main window.
    mainIsUsable_ = true;
    korvale_->host.WhenWaiting(meanwhile);
    PressHotKey(0, win32::kVkPause);
    if (korvale_->Form().IsLoaded()) PressHotKey(0, win32::kVkPause);
  }
  void ShowTipOfTheStart(const Meanwhile& meanwhile) {
    OpenWindows();
    hotKeys.RegisterForeign(win32::kModWin, 'W');
    hotKeyCount_ = 14;
    korvale_ = &UsedCopy();
    CloseAfter("frmMsgTip", meanwhile);
    korvale_->Start();
    LetTick();
  }
  void ShowReviewQuestion(const Meanwhile& meanwhile) {
    OpenWindows();
    korvale_ = &NewCopy();
    Answer(meanwhile, win32::kIdNo);
    korvale_->Start();
    LetTick();
  }
  void ShowImportQuestion(const Meanwhile& meanwhile) {
    store.SaveSetting("Korvale Installations", "0", "Korvale - Old", "C:\\Gone\\Old");
    store.SaveSetting("Korvale - Old", "Options", "SplashScreen", "False");
    OpenWindows();
    korvale_ = &NewCopy();
    starting_ = true;
    Answer(
        [&] {
          meanwhile();
          if (korvale_->Form().IsLoaded() && !korvale_->host.QuitPosted()) {
            korvale_->host.AnswerNext(win32::kIdNo);
          }
        },
        win32::kIdNo);
    korvale_->Start();
    LetTick();
  }

  // The deliveries.
  void PressHotKeys() {
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
    // The only one that is never switched off.
    PressHotKey(0, win32::kVkPause);
    EXPECT_EQ(korvale_->host.Messages().size(), before + (expected ? 1 : 0));
    EXPECT_NE(Front(), "Gamma");
    EXPECT_EQ(korvale_->FindForm("frmOptions") != nullptr, optionsBefore_);
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
    EXPECT_EQ(korvale_->FindForm("frmOptions") != nullptr, optionsBefore_);
  }
  void CloseMainWindow() { korvale_->Form().OnCloseRequested(CloseReason::kUser); }
  void ChangeColors() {
    korvale_->host.ChangeHighContrast(true);
    korvale_->host.ChangeSysColor(kButtonFaceColor, 0);
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
    // A program that was still starting has nothing of its own to save.
    if (starting_) return;
    EXPECT_NE(Stored("Startup", "Width"), "(missing)");
  }

  KorvaleCopy* korvale_ = nullptr;
  bool optionsBefore_ = false;
  bool mainIsUsable_ = false;
  std::size_t hotKeyCount_ = 15;

 private:
  void OpenWindows() {
    gamma_ = Open("Gamma");
    beta_ = Open("Beta");
  }
  void StartAmongWindows() {
    StoreTag(1, "Nowhere");
    StoreTag(2, "Gamma");
    OpenWindows();
    korvale_ = &StartedCopy();
    WorkIn(gamma_);
    WorkIn(beta_);
  }
  void Answer(const Meanwhile& meanwhile, std::int16_t button) {
    korvale_->host.WhenMessageBox([=](const ShownMessage&) {
      meanwhile();
      return button;
    });
  }
  void CloseAfter(const char* name, const Meanwhile& meanwhile) {
    korvale_->host.WhenModal(name, [=, this](class Form& form) {
      meanwhile();
      if (form.IsLoaded() && !korvale_->host.QuitPosted()) form.Unload();
    });
  }
  void PressAll() {
    PressTag(1);
    PressTag(2);
    PressHotKey(win32::kModAlt, win32::kVkDown);
    PressHotKey(win32::kModWin, 'O');
    PressHotKey(win32::kModWin, 'W');
    PressHotKey(0, win32::kVkPause);
  }

  WindowHandle beta_ = 0;
  WindowHandle gamma_ = 0;
  bool starting_ = false;
};

struct Box {
  const char* name;
  void (BoxAndDelivery::*show)(const BoxAndDelivery::Meanwhile&);
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
  (this->*box.show)([&, deliver = delivery.deliver] {
    optionsBefore_ = korvale_->FindForm("frmOptions") != nullptr;
    (this->*deliver)();
  });
  const bool ends =
      delivery.ends == Ends::kAlways || (delivery.ends == Ends::kWhenMainIsUsable && mainIsUsable_);
  if (ends) return ExpectToHaveEnded();
  ExpectToGoOn();
}

std::string PairName(const testing::TestParamInfo<std::tuple<Box, Delivery>>& test) {
  const auto& [box, delivery] = test.param;
  return std::string(delivery.name) + "During" + box.name;
}

INSTANTIATE_TEST_SUITE_P(
    All, Deliveries,
    testing::Combine(
        testing::Values(Box{"AMessage", &BoxAndDelivery::ShowMessage},
                        Box{"TheNotice", &BoxAndDelivery::ShowNotice},
                        Box{"ATip", &BoxAndDelivery::ShowTip},
                        Box{"AQuestionOfTheOptions", &BoxAndDelivery::ShowOptionsQuestion},
                        Box{"AddWindow", &BoxAndDelivery::ShowAddWindow},
                        Box{"TheColorDialog", &BoxAndDelivery::ShowColorDialog},
                        Box{"TheWaitWindow", &BoxAndDelivery::ShowWaitWindow},
                        Box{"ATipOfTheStart", &BoxAndDelivery::ShowTipOfTheStart},
                        Box{"TheReviewQuestion", &BoxAndDelivery::ShowReviewQuestion},
                        Box{"TheImportQuestion", &BoxAndDelivery::ShowImportQuestion}),
        testing::Values(
            Delivery{"HotKeys", &BoxAndDelivery::PressHotKeys},
            Delivery{"ForeignHotKeys", &BoxAndDelivery::PostForeignHotKeys},
            Delivery{"Ticks", &BoxAndDelivery::LetTimersTick},
            Delivery{"MenuCommands", &BoxAndDelivery::ChooseFromMenu, Ends::kWhenMainIsUsable},
            Delivery{"TheCloseBox", &BoxAndDelivery::CloseMainWindow, Ends::kWhenMainIsUsable},
            Delivery{"NewColors", &BoxAndDelivery::ChangeColors},
            Delivery{"OtherWindows", &BoxAndDelivery::ChangeOtherWindows},
            Delivery{"ASecondStart", &BoxAndDelivery::StartAgain},
            Delivery{"TheEndOfTheSession", &BoxAndDelivery::EndSession, Ends::kAlways},
            Delivery{"TheEndOfTheTask", &BoxAndDelivery::EndTask, Ends::kAlways},
            Delivery{"TheEndOfTheThread", &BoxAndDelivery::QuitThread, Ends::kAlways})),
    PairName);

}  // namespace
}  // namespace korvale
