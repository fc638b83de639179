#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fuzz/bytes.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/lib/form_teller.h"
#include "tests/program/kept.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

constexpr std::size_t kMostWindows = 8;
/// What waits for the user when the input is used up is closed in fewer steps.
constexpr int kMostStepsToEnd = 200;
constexpr std::int32_t kButtonsMask = 0xF;

constexpr std::uint32_t kMessages[] = {win32::kWmHotKey, win32::kWmPowerBroadcast,
                                       win32::kWmWtsSessionChange, win32::kWmNull};
constexpr ForegroundLock kLocks[] = {ForegroundLock::kNone, ForegroundLock::kUntilInput,
                                     ForegroundLock::kForGood};

void CollectItems(const MenuItem& menu, std::vector<const MenuItem*>& items) {
  for (const auto& item : menu.items) {
    items.push_back(item.get());
    CollectItems(*item, items);
  }
}

/// Korvale among other programs, and a stream of all that its windows can be told, by the user, by
/// Windows or by any other program.
class MessageStream : public KorvaleWorld {
 public:
  explicit MessageStream(std::string_view input) : bytes_(input) {
    StoreTag(1, "Alpha");
    StoreTag(2, "*** - Editor");
    StoreTag(3, "none");
    StoreOption("SplashScreen", "False");
    for (const char* const title : kTitles) windows_.push_back(Open(title));
  }

  void Run() {
    korvale_ = &NewCopy();
    teller_ = std::make_unique<FormTeller>(bytes_, *korvale_);
    korvale_->host.SetIdle([this] { return GoOnInLoop(); });
    WaitForBoxes();
    if (korvale_->Start()) {
      while (Goes() && bytes_.Any()) TakeStep();
      End();
    }
    if (!HasFailure()) ExpectEnded(*korvale_);
    korvale_->host.ForgetQueued();
  }

 private:
  using Step = void (MessageStream::*)();

  void TestBody() override {}

  bool Goes() { return korvale_->Form().IsLoaded() && !korvale_->host.QuitPosted(); }

  void TakeStep() {
    Meanwhile();
    if (Goes()) CheckAlways();
  }

  void Meanwhile() {
    log.Clear();
    constexpr std::array<Step, 12> kSteps = {
        &MessageStream::TellForm,      &MessageStream::TellForm,
        &MessageStream::TellForm,      &MessageStream::PressAKey,
        &MessageStream::PressAHotKey,  &MessageStream::SendToMain,
        &MessageStream::UseMenu,       &MessageStream::OtherPrograms,
        &MessageStream::OtherPrograms, &MessageStream::ChangeSystem,
        &MessageStream::PassTime,      &MessageStream::PressWhileBusy};
    (this->*bytes_.Pick(kSteps))();
  }

  // What waits for the user.
  bool GoOnInLoop() {
    if (bytes_.Any()) {
      Meanwhile();
      return true;
    }
    if (++stepsToEnd_ > kMostStepsToEnd) return false;
    class Form* const form = static_cast<class Form*>(korvale_->Form().Collection().TopModal());
    if (form == nullptr) return clock.AdvanceToNextTick();
    korvale_->host.Tell(form->Handle(), [](FormEvents& events) {
      events.OnCloseRequested(CloseReason::kTaskManager);
    });
    return true;
  }
  void WaitForBoxes() {
    HeadlessFormHost& host = korvale_->host;
    host.WhenMessageBox([this](const ShownMessage& box) {
      WaitForBoxes();
      EXPECT_EQ(box.text.find("VB ERROR"), std::string::npos) << box.text;
      if (bytes_.Flag()) Meanwhile();
      const bool first = bytes_.Flag();
      switch (box.style & kButtonsMask) {
        case win32::kMbOkCancel:
          return first ? win32::kIdOk : win32::kIdCancel;
        case win32::kMbYesNo:
          return first ? win32::kIdYes : win32::kIdNo;
        default:
          return win32::kIdOk;
      }
    });
    host.WhenPopupMenu([this](const std::vector<ShownMenuItem>& items) {
      WaitForBoxes();
      if (bytes_.Flag()) {
        Meanwhile();
        return std::string();
      }
      const ShownMenuItem& item = bytes_.Pick(items);
      return item.enabled && item.caption != "-" ? item.caption : "";
    });
    host.WhenColorDialog([this](Color initial) -> std::optional<Color> {
      WaitForBoxes();
      if (bytes_.Flag()) Meanwhile();
      if (bytes_.Flag()) return std::nullopt;
      return initial ^ bytes_.Number();
    });
  }

  // What arrives.
  void TellForm() { teller_->TellAnyForm(); }
  void PressAKey() { teller_->PressAKey(); }
  void PressAHotKey() {
    if (hotKeys.Registered().empty()) return;
    const FakeHotKeys::Registration hotKey = bytes_.Pick(hotKeys.Registered());
    hotKeys.Press(hotKey.modifiers, hotKey.key);
  }
  void PressWhileBusy() {
    if (hotKeys.Registered().empty()) return;
    const FakeHotKeys::Registration hotKey = bytes_.Pick(hotKeys.Registered());
    hotKeys.PressWhileBusy(hotKey.modifiers, hotKey.key);
    if (bytes_.Flag()) hotKeys.DeliverQueued();
  }
  void SendToMain() {
    const std::uint32_t message =
        bytes_.Flag() ? bytes_.Pick(kMessages) : static_cast<std::uint32_t>(bytes_.Number());
    const auto wParam =
        static_cast<std::uintptr_t>(bytes_.Flag() ? bytes_.Below(24) : bytes_.Number());
    const auto lParam = static_cast<std::intptr_t>(bytes_.Flag() ? 0x310001 : bytes_.Number());
    hotKeys.Deliver(korvale_->Handle(), message, wParam, lParam);
  }
  void UseMenu() {
    std::vector<const MenuItem*> items;
    CollectItems(korvale_->host.Window(korvale_->Handle()).form->menu.Root(), items);
    const MenuItem& chosen = *bytes_.Pick(items);
    MenuItem& item = korvale_->Form().Menu(chosen.name, chosen.index);
    const bool opens = bytes_.Flag();
    korvale_->host.Tell(korvale_->Handle(), [&](FormEvents& events) {
      if (opens) {
        events.OnMenuOpened(item);
      } else {
        events.OnMenuClicked(item);
      }
    });
  }
  void PassTime() { clock.Advance(static_cast<std::uint64_t>(50 * (1 + bytes_.Below(8)))); }
  void ChangeSystem() {
    HeadlessFormHost& host = korvale_->host;
    switch (bytes_.Below(8)) {
      case 0:
        return hotKeys.EndSleep();
      case 1:
        return hotKeys.ChangeSession(win32::kWtsSessionUnlock);
      case 2:
        return host.ChangeTextSize(100 + bytes_.Below(126));
      case 3:
        return host.ChangeWorkArea(
            {0, 0, 6000 + 100 * bytes_.Below(100), 4000 + 100 * bytes_.Below(100)});
      case 4:
        host.SetDpi(96 + 24 * bytes_.Below(9));
        return;
      case 5:
        return host.ChangeHighContrast(bytes_.Flag());
      case 6:
        return host.ChangeSysColor(kButtonFaceColor, bytes_.Number() & 0xFFFFFF);
      default:
        hotKeys.RegisterForeign(win32::kModAlt, static_cast<std::uint32_t>('0' + bytes_.Below(10)));
        return;
    }
  }
  void OtherPrograms() {
    std::erase_if(windows_, [&](WindowHandle hwnd) { return !desktop.IsWindow(hwnd); });
    const int what = bytes_.Below(10);
    if (windows_.empty() || (what == 0 && windows_.size() < kMostWindows)) {
      windows_.push_back(desktop.Open(AnyTitle(bytes_)));
      return;
    }
    const WindowHandle hwnd = bytes_.Flag() ? korvale_->Handle() : bytes_.Pick(windows_);
    const bool own = hwnd == korvale_->Handle();
    switch (what) {
      case 0:
      case 1:
        if (!own) desktop.Close(hwnd);
        return;
      case 2:
        if (!own) desktop.Rename(hwnd, AnyTitle(bytes_));
        return;
      case 3:
        return desktop.UserMinimizes(hwnd);
      case 4:
        return desktop.UserRestores(hwnd);
      case 5:
        return desktop.LoseForeground();
      case 6:
        if (!own) desktop.SetEnabled(hwnd, bytes_.Flag());
        return;
      case 7:
        return desktop.LockForeground(bytes_.Pick(kLocks));
      default:
        return desktop.UserActivates(hwnd);
    }
  }

  // What holds after each of them.
  void CheckAlways() {
    frmMain& form = korvale_->Form();
    const PreviousWindow& record = korvale_->Record();
    EXPECT_NE(record.current.handle, form.Handle());
    EXPECT_TRUE(record.current.handle == 0 || record.current.handle != record.alternate.handle);
    EXPECT_TRUE(form.tmrWindow().Enabled());
    EXPECT_EQ(form.tmrWindow().Tag(), "ON");
    EXPECT_TRUE(desktop.IsWindowEnabled(form.Handle()));
    EXPECT_FALSE(korvale_->Suspended());
    korvale_->Tags().mnuWindowParentList.ForEach([](const MenuItem& entry) {
      EXPECT_TRUE(entry.caption.starts_with("&" + std::to_string(entry.index) + "  "));
    });
    for (const RegisteredHotKey& hotKey : korvale_->HotKeys().Registered()) {
      const bool works = std::ranges::any_of(hotKeys.Registered(), [&](const auto& held) {
        return held.hwnd == form.Handle() &&
               held.modifiers == static_cast<std::uint32_t>(hotKey.modifiers) &&
               held.key == static_cast<std::uint32_t>(hotKey.key);
      });
      EXPECT_TRUE(works == hotKey.accepted || hotKey.chosenBefore) << hotKey.name;
    }
    CheckScreen();
  }
  /// The screen shows what the program goes by.
  void CheckScreen() {
    for (const LoadedForm& loaded : korvale_->Form().Collection().List()) {
      const HeadlessWindow& window = korvale_->host.Window(loaded.handle);
      EXPECT_EQ(desktop.Title(loaded.handle), window.form->caption);
      for (const ControlState& control : window.form->controls) {
        if (control.kind == ControlKind::kTimer) continue;
        const ControlState& shown = window.Control(control.id).shown;
        EXPECT_EQ(shown.text, control.text) << loaded.name << " " << control.name;
        EXPECT_EQ(shown.value, control.value) << loaded.name << " " << control.name;
        EXPECT_EQ(shown.enabled, control.enabled) << loaded.name << " " << control.name;
        EXPECT_EQ(shown.visible, control.visible) << loaded.name << " " << control.name;
        EXPECT_EQ(shown.listIndex, control.listIndex) << loaded.name << " " << control.name;
        EXPECT_EQ(shown.items.size(), control.items.size()) << loaded.name << " " << control.name;
      }
    }
  }
  void End() {
    if (Goes()) {
      LetTick();
      EXPECT_TRUE(korvale_->Record().current.handle == 0 ||
                  desktop.IsWindow(korvale_->Record().current.handle));
    }
    if (Goes()) {
      const Kept before = KeptBy(*korvale_);
      korvale_->ChooseLate("mnuFileExit");
      EXPECT_EQ(KeptIn(store, "Korvale - Work"), before);
    }
    if (korvale_->host.QuitPosted()) korvale_->program.Run();
  }

  Bytes bytes_;
  KorvaleCopy* korvale_ = nullptr;
  std::unique_ptr<FormTeller> teller_;
  std::vector<WindowHandle> windows_;
  int stepsToEnd_ = 0;
};

}  // namespace

void Fuzz(std::string_view input) { MessageStream(input).Run(); }

}  // namespace korvale
