#include "tests/program/simulated_life.h"

#include <utility>

#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr std::size_t kStepsTold = 40;
constexpr std::int32_t kButtonsMask = 0xF;

}  // namespace

void SimulatedLife::Live(std::uint32_t seed, int steps) {
  dice_ = std::make_unique<Dice>(seed);
  programs_ = std::make_unique<SimulatedPrograms>(desktop, *dice_);
  int step = 0;
  try {
    StartKorvale();
    for (; step < steps && !HasFailure(); ++step) TakeStep();
    if (!HasFailure()) {
      UseMenu({"File", "Exit"});
      ForgetKorvale();
    }
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
  }
  if (!HasFailure()) return;
  std::string told;
  for (const std::string& line : lastSteps_) told += "\n  " + line;
  ADD_FAILURE() << "with seed " << seed << " in step " << step << ", the last ones:" << told;
}

void SimulatedLife::TakeStep() {
  log.Clear();
  int total = 0;
  for (const Step& step : Steps()) total += step.weight;
  int left = dice_->Below(total);
  for (const Step& step : Steps()) {
    left -= step.weight;
    if (left >= 0) continue;
    (this->*step.act)();
    break;
  }
  CheckAlways();
}

void SimulatedLife::Note(std::string what) {
  lastSteps_.push_back(std::move(what));
  if (lastSteps_.size() > kStepsTold) lastSteps_.pop_front();
}

void SimulatedLife::StartKorvale() {
  korvale_ = &NewCopy();
  workedIn_.ForgetAll();
  korvale_->host.SetIdle([this] { return LiveInDialog(); });
  noMoreBoxes_ = false;
  WaitForBoxes();
  EXPECT_TRUE(korvale_->Start());
}

/// What Windows does when the process has ended, by itself or killed.
void SimulatedLife::ForgetKorvale() {
  noMoreBoxes_ = true;
  korvale_->host.MessageBoxW(0, "", "", win32::kMbOk);
  std::vector<WindowHandle> windows;
  for (const WindowHandle hwnd : desktop.Windows().TopLevel()) {
    const FakeWindow& window = *desktop.Windows().Find(hwnd);
    if (window.process == desktop.Windows().Find(korvale_->bridge.Owner())->process) {
      windows.push_back(hwnd);
    }
  }
  EndCopy(*korvale_);
  korvale_ = nullptr;
  for (const WindowHandle hwnd : windows) {
    hotKeys.ForgetWindow(hwnd);
    for (int id = 0; clock.AnyTimerOf(hwnd); ++id) clock.KillTimer(hwnd, id);
    desktop.Windows().Destroy(hwnd);
  }
}

void SimulatedLife::WaitForBoxes() {
  korvale_->host.WhenMessageBox([this](const ShownMessage& box) { return AnswerBox(box); });
}

std::int16_t SimulatedLife::AnswerBox(const ShownMessage& box) {
  if (noMoreBoxes_) return win32::kIdOk;
  WaitForBoxes();
  EXPECT_EQ(box.text.find("VB ERROR"), std::string::npos) << box.text;
  Note("  message box: " + box.text);
  Meanwhile();
  const bool first = !dice_->OneIn(3);
  switch (box.style & kButtonsMask) {
    case win32::kMbOkCancel:
      return first ? win32::kIdOk : win32::kIdCancel;
    case win32::kMbYesNo:
      return first ? win32::kIdYes : win32::kIdNo;
    default:
      return win32::kIdOk;
  }
}

/// One thing that the user does while a modal form waits for them, or while a notice is shown.
bool SimulatedLife::LiveInDialog() {
  Form* form = static_cast<Form*>(korvale_->Form().Collection().TopModal());
  if (form == nullptr) form = korvale_->FindForm("frmWaitWindow");
  if (form == nullptr) return false;
  Meanwhile();
  if (!form->IsLoaded()) return true;
  if (form->Name() == "frmGetWindow") {
    UseAddWindow(*form);
  } else if (form->Name() == "frmMsgTip") {
    CloseTip(*form);
  } else {
    return clock.AdvanceToNextTick();
  }
  return true;
}

void SimulatedLife::UseAddWindow(Form& dialog) {
  HeadlessUser& user = korvale_->user;
  const WindowHandle hwnd = dialog.Handle();
  const auto click = [&](const char* name, int index = -1) {
    const int id = dialog.Find(name, index).Id();
    if (user.IsShown(hwnd, id) && user.IsEnabled(hwnd, id)) user.Click(hwnd, id);
  };
  switch (dice_->Below(10)) {
    case 0:
      return click("cmdRemove");
    case 1:
    case 2:
      return user.Pick(hwnd, dialog.Find("cboWindow").Id(), dice_->Below(9));
    case 3:
    case 4:
      return click("optWindow", dice_->Below(3));
    case 5: {
      click("txtWindow");
      user.PressKey(hwnd, 'P', kAlt);
      user.TypeText(hwnd, programs_->SomeTitle());
      return;
    }
    case 6:
      Note("  closes the dialog");
      return click("cmdClose");
    default:
      Note("  presses OK in the dialog, Tag " + dialog.Find("cboWindow").SelectedText());
      return click("cmdOK");
  }
}

void SimulatedLife::CloseTip(Form& tip) {
  Note("  closes a tip");
  HeadlessUser& user = korvale_->user;
  if (dice_->OneIn(3)) user.Click(tip.Handle(), tip.Find("chkStopMsg").Id());
  user.Click(tip.Handle(), tip.Find("cmdOK").Id());
}

/// What happens on the desktop while Korvale waits for an answer.
void SimulatedLife::Meanwhile() {
  switch (dice_->Below(6)) {
    case 0:
      return Note("  meanwhile a program " + programs_->Act());
    case 1:
      return PassTime();
    case 2: {
      const std::vector<HotKey> working = WorkingHotKeys();
      if (working.empty() || !korvale_->Suspended()) return;
      return Press(HotKey(dice_->Pick(working)));
    }
    default:
      return;
  }
}

}  // namespace korvale
