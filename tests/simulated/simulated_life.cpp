#include "tests/simulated/simulated_life.h"

#include <utility>

#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr std::int32_t kButtonsMask = 0xF;
constexpr const char* kNoticeMark = "     ";

}  // namespace

void SimulatedLife::Live(const LifeScript& script, const std::function<bool()>& failed) {
  taken_.assign(SimulatedSteps().size(), 0);
  try {
    StartKorvale();
    for (const ScriptStep& step : script) {
      if (failed()) return;
      TakeStep(step);
    }
    if (failed()) return;
    lastRow_.reset();
    UseMenu({"File", "Exit"});
    Forget(*korvale_);
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
  }
}

void SimulatedLife::TakeStep(const ScriptStep& step) {
  log.Clear();
  dice_ = Dice(step.seed);
  lastRow_ = step.row;
  ++stepsTaken_;
  const std::size_t noted = journal_.size();
  (this->*SimulatedSteps()[step.row].take)();
  if (journal_.size() > noted) ++taken_[step.row];
  if (afterStep_) afterStep_(*this);
  CheckAlways();
}

void SimulatedLife::Note(std::string what) {
  if (!what.empty()) journal_.push_back(std::move(what));
}

void SimulatedLife::StartKorvale() {
  korvale_ = &NewCopy();
  workedIn_.ForgetAll();
  thereAtStart_ = desktop.Windows().TopLevel();
  korvale_->host.SetIdle([this] { return LiveInDialog(); });
  SetUpScreen(korvale_->host);
  popUpAwaited_ = false;
  hotKeysOn_ = true;
  isTold_ = !dice_.OneIn(6);
  hotKeys.refuseNotifications = !isTold_;
  korvale_->host.AnswerOtherBoxes([this](const ShownMessage& box) { return AnswerBox(box); });
  EXPECT_TRUE(korvale_->Start());
  HotKeysRegistered();
}

/// What Windows does when the process has ended, by itself or killed.
void SimulatedLife::Forget(KorvaleCopy& copy) {
  copy.host.ForgetQueued();
  std::vector<WindowHandle> windows;
  for (const WindowHandle hwnd : desktop.Windows().TopLevel()) {
    const FakeWindow& window = *desktop.Windows().Find(hwnd);
    if (window.process == desktop.Windows().Find(copy.bridge.Owner())->process) {
      windows.push_back(hwnd);
    }
  }
  EndCopy(copy);
  for (const WindowHandle hwnd : windows) {
    hotKeys.ForgetWindow(hwnd);
    for (int id = 0; clock.AnyTimerOf(hwnd); ++id) clock.KillTimer(hwnd, id);
    desktop.Windows().Destroy(hwnd);
  }
}

std::int16_t SimulatedLife::AnswerBox(const ShownMessage& box) {
  Note("  message box: " + box.text);
  userWasAsked_ = true;
  CheckBox(box);
  const bool notice = box.title.ends_with(kNoticeMark);
  noticesUp_ += notice ? 1 : 0;
  EXPECT_LE(noticesUp_, 1);
  Meanwhile();
  noticesUp_ -= notice ? 1 : 0;
  const bool first = !dice_.OneIn(3);
  const std::int32_t buttons = box.style & kButtonsMask;
  lastAnswer_ = win32::kIdOk;
  if (buttons == win32::kMbOkCancel && !first) lastAnswer_ = win32::kIdCancel;
  if (buttons == win32::kMbYesNo) lastAnswer_ = first ? win32::kIdYes : win32::kIdNo;
  return lastAnswer_;
}

/// While a box is up, nobody can use the main window; no box tells of an error of Korvale's own.
void SimulatedLife::CheckBox(const ShownMessage& box) {
  if (korvale_->Form().IsLoaded()) {
    EXPECT_FALSE(korvale_->user.IsEnabled(korvale_->Handle())) << box.text;
  }
  if (box.text.starts_with("Window:") && selecting_) CheckReason(box.text);
  if (box.text == kRefusal && selecting_ && selecting_->tag == 0) CheckRefusedReturn();
  if (!box.text.starts_with("VB ERROR")) return;
  EXPECT_FALSE(expectedError_.empty()) << box.text;
  EXPECT_TRUE(box.text.starts_with(expectedError_)) << box.text;
}

/// One thing that the user does while a modal form waits for them, or while a notice is shown.
bool SimulatedLife::LiveInDialog() {
  userWasAsked_ = true;
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
  switch (dice_.Below(10)) {
    case 0:
      return click("cmdRemove");
    case 1:
    case 2:
      return user.Pick(hwnd, dialog.Find("cboWindow").Id(), dice_.Below(9));
    case 3:
    case 4:
      return click("optWindow", dice_.Below(3));
    case 5: {
      click("txtWindow");
      user.PressKey(hwnd, 'P', kAlt);
      const std::string title = programs_.SomeTitle();
      Note("  types [" + title + "] in the dialog");
      user.TypeText(hwnd, title);
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
  if (dice_.OneIn(3)) user.Click(tip.Handle(), tip.Find("chkStopMsg").Id());
  user.Click(tip.Handle(), tip.Find("cmdOK").Id());
}

/// What happens on the desktop while Korvale waits for an answer.
void SimulatedLife::Meanwhile() {
  switch (dice_.Below(6)) {
    case 0: {
      const SimulatedStep& step = dice_.Pick(SimulatedSteps());
      if (step.atAnyTime) (this->*step.take)();
      return;
    }
    case 1:
      return PassTime();
    case 2: {
      const std::vector<HotKey> working = WorkingHotKeys();
      if (working.empty() || !korvale_->Suspended()) return;
      return Press(HotKey(dice_.Pick(working)));
    }
    default:
      return;
  }
}

/// The main window may be in front for a moment after its menu was popped up.
void SimulatedLife::Wait(int milliseconds) {
  clock.Advance(static_cast<std::uint64_t>(milliseconds));
  const bool ticks = korvale_->Form().IsLoaded() && korvale_->Form().tmrWindow().Enabled();
  if (ticks && milliseconds >= 100) CheckStrip();
  const WindowHandle front = desktop.Windows().Foreground();
  if (milliseconds >= (front == korvale_->Handle() ? 200 : 100) && IsFollowed(front)) {
    workedIn_.Work(front);
  }
}

}  // namespace korvale
