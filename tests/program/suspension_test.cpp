#include <deque>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"
#include "ui/control.h"

namespace korvale {
namespace {

constexpr const char* kNotice =
    "Hot Keys are temporarily suspended when Korvale has a message box or a dialog box displayed.";
constexpr const char* kNoticeTitle = "Korvale     ";

class SuspensionTest : public KorvaleWorld {
 protected:
  /// A started copy with Alpha as Tag 1; the user works in Beta.
  SuspensionTest() {
    WorkIn(alpha_);
    WorkIn(korvale.Handle());
    korvale.TagPrevious();
    WorkIn(Open("Beta"));
  }

  /// The user sees the notice, does something, and presses its button.
  void ExpectNotice(const std::function<void(const ShownMessage&)>& meanwhile =
                        [](const ShownMessage&) {}) {
    korvale.host.WhenMessageBox([meanwhile](const ShownMessage& box) {
      EXPECT_EQ(box.text, kNotice);
      EXPECT_EQ(box.title, kNoticeTitle);
      EXPECT_EQ(box.style, win32::kMbOk);
      meanwhile(box);
      return win32::kIdOk;
    });
  }

  const WindowHandle alpha_ = Open("Alpha");
  KorvaleCopy& korvale = StartedCopy();
};

TEST_F(SuspensionTest, AMessageBoxHoldsTheHotKeysWithASingleNotice) {
  WorkIn(alpha_);
  const WindowHandle beta = desktop.FindWindowA("Beta");
  WorkIn(beta);
  desktop.SetEnabled(alpha_, false);
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    EXPECT_EQ(box.text, "Window:  [Alpha]  is not enabled, and currently cannot be selected.");
    ExpectNotice([&](const ShownMessage&) {
      PressTag(1);
      PressHotKey(win32::kModAlt, win32::kVkDown);
      PressHotKey(0, win32::kVkPause);
    });
    PressTag(0);
    EXPECT_FALSE(korvale.user.IsEnabled(korvale.Handle()));
    korvale.Form().udmTimersEnabled(true);
    EXPECT_FALSE(korvale.Form().tmrWindow().Enabled());
    ExpectNotice();
    PressTag(0);
    return win32::kIdOk;
  });

  PressTag(1);

  EXPECT_EQ(korvale.host.Messages().size(), 3U);
  EXPECT_FALSE(desktop.IsIconic(beta));
  EXPECT_TRUE(korvale.HotKeys().HotKeysActive());
  EXPECT_TRUE(korvale.user.IsEnabled(korvale.Handle()));
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
  desktop.SetEnabled(alpha_, true);
  ExpectTagLeadsTo(1, "Alpha");
}

TEST_F(SuspensionTest, TheNoticeLeadsBackToTheMessageBelowIt) {
  desktop.Close(alpha_);
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    const WindowHandle message = desktop.GetForegroundWindow();
    ExpectNotice([&](const ShownMessage& box) {
      EXPECT_EQ(box.owner, message);
      EXPECT_FALSE(desktop.IsWindowEnabled(message));
    });
    PressTag(1);
    EXPECT_EQ(desktop.GetForegroundWindow(), message);
    EXPECT_TRUE(desktop.IsWindowEnabled(message));
    EXPECT_FALSE(korvale.user.IsEnabled(korvale.Handle()));
    return win32::kIdOk;
  });

  PressTag(1);

  EXPECT_EQ(Front(), "Beta");
  EXPECT_TRUE(korvale.user.IsEnabled(korvale.Handle()));
}

TEST_F(SuspensionTest, TheAddWindowDialogHoldsThemAndStaysModalBehindTheNotice) {
  WorkIn(korvale.Handle());
  korvale.TagPrevious([&](class Form& dialog) {
    ExpectNotice([&](const ShownMessage& box) {
      EXPECT_EQ(box.owner, dialog.Handle());
      EXPECT_FALSE(korvale.user.IsEnabled(dialog.Handle()));
    });
    PressTag(1);
    EXPECT_EQ(desktop.GetForegroundWindow(), dialog.Handle());
    EXPECT_TRUE(korvale.user.IsEnabled(dialog.Handle()));
    EXPECT_FALSE(korvale.user.IsEnabled(korvale.Handle()));
  });
  EXPECT_TRUE(korvale.user.IsEnabled(korvale.Handle()));
  ExpectTagLeadsTo(1, "Alpha");
}

TEST_F(SuspensionTest, AQuestionOfTheOptionsHoldsThem) {
  PressHotKey(win32::kModWin, 'O');
  class Form& options = korvale.Loaded("frmOptions");
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    ExpectNotice();
    PressTag(1);
    return win32::kIdCancel;
  });
  korvale.user.Click(options.Handle(), options.Find("cmdReset").Id());
  EXPECT_EQ(Front(), "Korvale - Options");
  ExpectTagLeadsTo(1, "Alpha");
}

TEST_F(SuspensionTest, ATipHoldsThem) {
  korvale.host.WhenModal("frmMsgTip", [&](class Form& tip) {
    ExpectNotice();
    PressTag(1);
    korvale.user.PressKey(tip.Handle(), win32::kVkEscape);
  });
  korvale.user.ChooseMenu(korvale.Handle(), {"Tools", "Deactivate Hot Keys"});
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(SuspensionTest, TheNoticeOutlastsTheWaitWindowThatCausedIt) {
  korvale.host.WhenWaiting([&] {
    ExpectNotice([&](const ShownMessage& box) {
      EXPECT_EQ(box.owner, korvale.Handle());
      clock.Advance(800);
      EXPECT_EQ(korvale.FindForm("frmWaitWindow"), nullptr);
      EXPECT_NE(desktop.FindWindowA(kNoticeTitle), 0);
    });
    PressHotKey(0, win32::kVkPause);
  });
  PressHotKey(0, win32::kVkPause);
  EXPECT_EQ(korvale.FindForm("frmWaitWindow"), nullptr);
  EXPECT_FALSE(korvale.HotKeys().HotKeysActive());
  EXPECT_EQ(Front(), "Beta");
}

/// Where timers of a test stand.
class TimerOwner : public ControlOwner {
 public:
  explicit TimerOwner(FormHost& host) : host_(&host) {}

  WindowHandle Handle() const override { return 0; }
  FormHost& Host() const override { return *host_; }
  void RaiseClick(Control& /*control*/) override {}
  void UnchooseNeighbours(const Control& /*chosen*/) override {}
  void StartOrStopTimer(const Control& /*timer*/) override {}
  void FocusOn(int /*control*/) override {}
  void KeepFocusReachable() override {}

 private:
  FormHost* host_;
};

TEST_F(SuspensionTest, OfSeveralTimersOnlyThoseAreRestartedThatAreMeantToRun) {
  TimerOwner owner(korvale.host);
  const std::string tags[] = {"ON", "OFF", "", "on", "ON "};
  std::deque<ControlState> states;
  std::deque<Control>& controls = korvale.Form().Controls();
  const std::size_t own = controls.size();
  for (const std::string& tag : tags) {
    states.emplace_back().kind = ControlKind::kTimer;
    controls.emplace_back(owner, states.back()).SetTag(tag);
  }
  const auto running = [&] {
    std::vector<std::string> found;
    for (const Control& control : controls) {
      const bool timer = control.State().kind == ControlKind::kTimer;
      if (timer && control.Enabled()) found.push_back(control.Tag());
    }
    return found;
  };
  korvale.Form().udmTimersEnabled(false);
  EXPECT_EQ(running(), std::vector<std::string>{});
  korvale.Form().udmTimersEnabled(true);
  EXPECT_EQ(running(), (std::vector<std::string>{"ON", "ON"}));
  korvale.Form().tmrWindow().SetTag("OFF");
  korvale.Form().udmTimersEnabled(true);
  EXPECT_EQ(running(), std::vector<std::string>{"ON"});
  while (controls.size() > own) controls.pop_back();
}

TEST_F(SuspensionTest, TheSessionCanEndWhileATagTellsItsFailure) {
  desktop.Close(alpha_);
  korvale.EndSessionAtBox(win32::kIdOk);
  PressTag(1);
  ExpectEnded(korvale);
  EXPECT_FALSE(clock.AdvanceToNextTick());
  EXPECT_EQ(store.GetSetting("Korvale - Work", "ParentWindowList", "1"), "&1  Alpha");
}

TEST_F(SuspensionTest, TheSessionCanEndWhileTheAddWindowDialogIsOpen) {
  WorkIn(korvale.Handle());
  korvale.host.WhenModal(
      "frmGetWindow", [&](class Form&) { korvale.Form().OnCloseRequested(CloseReason::kSession); });
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Add  [Beta]  to Window menu..."});
  EXPECT_FALSE(korvale.Form().IsLoaded());
  EXPECT_EQ(korvale.FindForm("frmGetWindow"), nullptr);
  EXPECT_EQ(store.GetSetting("Korvale - Work", "ParentWindowList", "1"), "&1  Alpha");
  EXPECT_EQ(store.GetSetting("Korvale - Work", "ParentWindowList", "2"), std::nullopt);
}

}  // namespace
}  // namespace korvale
