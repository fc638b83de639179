#include <algorithm>
#include <utility>

#include "platform/win32_constants.h"
#include "tests/simulated/simulated_life.h"

namespace korvale {

void SimulatedLife::StartAgain(const Kept& before) {
  Forget(*korvale_);
  StartKorvale();
  ExpectKept(before);
}

void SimulatedLife::Restart() {
  Note("restarts Korvale");
  Kept before = KeptBy(*korvale_);
  const TwipsRect place = korvale_->user.Place(korvale_->Handle());
  // A hidden menu bar that the keyboard has just brought up makes the strip higher for a moment.
  const bool barAsChosen = korvale_->Form().State().menuShown == korvale_->Startup().Menu;
  const bool normal = korvale_->Form().WindowState() == ShowState::kNormal && barAsChosen;
  if (dice_.OneIn(2)) {
    desktop.UserActivates(korvale_->Handle());
    korvale_->user.PressCloseBox(korvale_->Handle());
  } else {
    UseMenu({"File", "Exit"});
  }
  before.startup = korvale_->Startup();
  EXPECT_FALSE(korvale_->Form().IsLoaded());
  EXPECT_TRUE(hotKeys.Registered().empty());
  const bool surelyKept = mayBeKept_.empty();
  StartAgain(before);
  if (!surelyKept) return;
  if (normal) {
    EXPECT_EQ(korvale_->user.Place(korvale_->Handle()), place);
  }
  // The height follows from what the window shows.
  before.startup.Height = korvale_->Startup().Height;
  // The tip about refused hot keys may have been silenced.
  before.startup.Tips = korvale_->Startup().Tips;
  EXPECT_EQ(korvale_->Startup(), before.startup);
}

void SimulatedLife::Kill() {
  Note("kills Korvale");
  StartAgain(KeptBy(*korvale_));
}

/// The user finds the options as they were or as they have changed them, and nothing in between.
void SimulatedLife::KillDuringSave() {
  if (storeRefuses_) return;
  if (korvale_->FindForm("frmOptions") == nullptr) OpenOptions();
  Form* const dialog = korvale_->FindForm("frmOptions");
  if (dialog == nullptr || !korvale_->user.IsShown(dialog->Handle())) return;
  for (int i = 0; i < 6; ++i) UseOptionsDialog(*dialog);
  const int writes = dice_.Below(12);
  Note("kills Korvale after " + std::to_string(writes) + " changes of the store");
  if (mayBeKept_.empty()) mayBeKept_.push_back(KeptBy(*korvale_));
  expectedError_ = "VB ERROR";
  store.KillAfterWrites(writes);
  korvale_->user.Click(dialog->Handle(), dialog->Find("cmdOK").Id());
  store.KillAfterWrites(-1);
  expectedError_.clear();
  KeepBook();
  StartAgain(KeptBy(*korvale_));
}

/// What cannot be read has its default; all else is kept.
void SimulatedLife::SpoilValue() {
  if (!mayBeKept_.empty()) return;
  Note("another program spoils a value while Korvale does not run");
  Kept before = KeptBy(*korvale_);
  before.options.booSplashScreen = true;
  Forget(*korvale_);
  store.SetOtherType("Korvale - Work", "Options", "SplashScreen");
  StartKorvale();
  ExpectKept(before);
}

/// Nothing holds the end of the session up, and nothing is lost.
void SimulatedLife::EndSession() {
  const bool byTaskManager = dice_.OneIn(3);
  Note(byTaskManager ? "ends Korvale in the task manager" : "ends the session");
  const Kept before = KeptBy(*korvale_);
  const std::size_t boxes = korvale_->host.Messages().size();
  const CloseReason reason = byTaskManager ? CloseReason::kTaskManager : CloseReason::kSession;
  korvale_->host.Tell(korvale_->Handle(),
                      [=](FormEvents& events) { events.OnCloseRequested(reason); });
  EXPECT_EQ(korvale_->host.Messages().size(), boxes);
  EXPECT_FALSE(korvale_->Form().IsLoaded());
  EXPECT_TRUE(hotKeys.Registered().empty());
  StartAgain(before);
}

/// Korvale is asked like every program, and then told that the session goes on. Meanwhile Windows
/// covers all windows with the question what to do about the program that refuses.
void SimulatedLife::RefuseSessionEnd() {
  Note("another program refuses the end of the session");
  const Kept before = KeptBy(*korvale_);
  const std::vector<HotKey> working = WorkingHotKeys();
  const std::size_t boxes = korvale_->host.Messages().size();
  const WindowHandle front = desktop.Windows().Foreground();
  desktop.LoseForeground();
  Wait(1000 * dice_.Below(6));
  // Unless it has gone meanwhile, as the splash screen does.
  if (desktop.Windows().Find(front) != nullptr) desktop.Windows().Activate(front);
  EXPECT_TRUE(korvale_->Form().IsLoaded());
  EXPECT_EQ(korvale_->host.Messages().size(), boxes);
  EXPECT_EQ(KeptBy(*korvale_), before);
  EXPECT_EQ(WorkingHotKeys().size(), working.size());
}

void SimulatedLife::TickIn(KorvaleCopy* other) {
  clock.SetTickHandler([this, other](WindowHandle hwnd, int id) {
    korvale_->host.DeliverTimer(hwnd, id);
    if (other != nullptr) other->host.DeliverTimer(hwnd, id);
  });
}

/// The user answers whatever this copy shows, too.
void SimulatedLife::AttendTo(KorvaleCopy& copy, std::vector<std::string>& boxes) {
  copy.host.AnswerOtherBoxes([&boxes](const ShownMessage& box) {
    boxes.push_back(box.text);
    return box.style == win32::kMbYesNo ? win32::kIdNo : win32::kIdOk;
  });
  copy.host.SetIdle([&copy] {
    Form* const tip = copy.FindForm("frmMsgTip");
    if (tip != nullptr) copy.user.Click(tip->Handle(), tip->Find("cmdOK").Id());
    return tip != nullptr;
  });
}

/// The one that runs comes forward, and leads on where that is its first activation; the new one
/// says so and goes.
void SimulatedLife::StartSameCopy() {
  Note("starts Korvale once more");
  const bool excused = programs_.RefusesForeground() || LeadsOn();
  std::vector<std::string> boxes;
  KorvaleCopy& second = NewCopy();
  TickIn(&second);
  AttendTo(second, boxes);
  EXPECT_FALSE(second.Start());
  ASSERT_FALSE(boxes.empty());
  EXPECT_EQ(boxes[0], "'Korvale - Work' is already open.");
  EXPECT_EQ(boxes.size(), boxes.back() == kRefusal ? 2U : 1U);
  const bool front = desktop.Windows().Foreground() == korvale_->Handle();
  const bool dialog = IsOptions(desktop.Windows().Foreground());
  EXPECT_TRUE(front || dialog || excused || boxes.back() == kRefusal);
  TickIn(nullptr);
  Forget(second);
}

/// It has settings of its own, and takes no hot key away.
void SimulatedLife::StartOtherCopy() {
  Note("starts and ends Korvale of another folder");
  store.SaveSetting("Korvale - Play", "Options", "SplashScreen", "False");
  const Kept before = KeptBy(*korvale_);
  std::vector<std::string> boxes;
  KorvaleCopy& second = NewCopy("Play");
  TickIn(&second);
  AttendTo(second, boxes);
  EXPECT_TRUE(second.Start());
  clock.Advance(static_cast<std::uint64_t>(100 * dice_.Below(4)));
  desktop.UserActivates(second.Handle());
  desktop.UserActivates(second.Handle());
  second.Exit();
  TickIn(nullptr);
  Forget(second);
  EXPECT_EQ(KeptBy(*korvale_), before);
}

}  // namespace korvale
