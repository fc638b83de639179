#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "app/program.h"
#include "platform/platform.h"
#include "platform/win32_constants.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/desktop_bridge.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_desktop.h"
#include "tests/fakes/fake_hot_keys.h"
#include "tests/fakes/fake_settings_store.h"
#include "tests/fakes/fake_system.h"
#include "tests/fakes/headless_form_host.h"
#include "tests/fakes/headless_user.h"

namespace korvale {

inline constexpr Color kRed = 0x0000FF;

class KorvaleWorld;

/// One copy of Korvale, running in its own folder, and the user in front of it.
class KorvaleCopy {
 public:
  KorvaleCopy(KorvaleWorld& world, const std::string& folder, int process);
  ~KorvaleCopy();

  /// False when it refused to run.
  bool Start() { return program.Start(); }
  /// File, Exit.
  void Exit() { user.ChooseMenu(Handle(), {"File", "Exit"}); }

  frmMain& Form() { return program.MainForm(); }
  TagList& Tags() { return Parts().desktop.tags; }
  /// The entry of this Tag in the Window menu, null when there is none.
  MenuItem* TagEntry(int tag) { return Tags().mnuWindowParentList.Find(tag); }
  PreviousWindow& Record() { return Parts().previous; }
  const WindowFilter& Filter() { return Parts().desktop.filter; }
  WindowSelection& Selection() { return Parts().desktop.selection; }
  const HotKeyTable& HotKeys() { return Parts().hotKeys; }
  bool Suspended() { return Parts().suspension.Active(); }
  bool HasOptions() { return Parts().options.Exists(); }
  clsOptions& Options() { return Parts().options.Get(); }
  StartupSettings& Startup() { return Parts().startup; }
  const MainState& State() { return Parts().state; }
  WindowHandle Handle() { return Form().Handle(); }
  /// Raises the click of a menu entry that was usable when the menu opened, whatever it is now.
  void ChooseLate(const std::string& name, int index = -1);
  /// The loaded form of this name, null when there is none.
  class Form* FindForm(const std::string& name);
  /// The loaded form of this name; fails the test when it is not loaded.
  class Form& Loaded(const std::string& name);
  int Id(class Form& form, const std::string& control, int index = -1);
  /// The next message box reads so and goes with this answer.
  void ExpectBox(const std::string& text, std::int16_t answer);
  void ExpectBox(const std::string& text, const std::string& title, std::int32_t style,
                 std::int16_t answer);
  /// The session ends while the next message box is shown, which then goes with this answer.
  void EndSessionAtBox(std::int16_t answer);
  /// Captions of the Window menu as the user sees them when they open it.
  std::vector<ShownMenuItem> WindowMenuItems() { return user.MenuItems(Handle(), {"Window"}); }
  /// Texts in the two fields of the strip.
  std::string TargetWindow() { return Form().Find("txtWindow").Text(); }
  std::string TargetClass() { return Form().Find("txtWindowClass").Text(); }
  /// Tags the window that the user has come from through the Add Window dialog: chooses the last
  /// entry of the Window menu, and presses OK after what `prepare` did in the dialog.
  void TagPrevious(const std::function<void(class Form&)>& prepare = {});

  FakeSystem system;
  DesktopBridge bridge;
  HeadlessFormHost host;
  HeadlessUser user;
  Platform platform;
  Program program;

 private:
  MainParts& Parts() { return Form().Parts(); }
};

/// The desktop of a user: the windows, the settings, the keyboard, and the copies of Korvale.
class KorvaleWorld : public testing::Test {
 protected:
  KorvaleWorld();
  ~KorvaleWorld() override;

  /// A copy in C:\Programs\<folder>, not started yet.
  KorvaleCopy& NewCopy(const std::string& folder = "Work");
  /// A started copy that has been run before, so that no question is asked.
  KorvaleCopy& StartedCopy(const std::string& folder = "Work");
  /// A started copy; the user has come from this window to its main window.
  KorvaleCopy& StartedAfter(WindowHandle window);
  /// The copy has taken its forms and hot keys away.
  void ExpectEnded(KorvaleCopy& copy);
  /// Ends a copy for good, as its process does.
  void EndCopy(KorvaleCopy& copy);

  /// Opens a window of another program and lets the user work in it.
  WindowHandle Open(const std::string& title, const NewWindow& options = {});
  /// The user goes to a window and works there long enough to be noticed.
  void WorkIn(WindowHandle hwnd);
  /// Presses a combination that is a hot key of a copy.
  void PressHotKey(std::uint32_t modifiers, std::uint32_t key);
  void StoreOption(const std::string& key, const std::string& value) {
    store.SaveSetting("Korvale - Work", "Options", key, value);
  }
  void StoreTag(int tag, const std::string& text, const std::string& className = "Window");
  /// The hot key of a Tag, 0 for the way back, and the title that is in front then.
  void ExpectTagLeadsTo(int tag, const std::string& title) {
    PressTag(tag);
    EXPECT_EQ(Front(), title) << "by Tag " << tag;
  }
  void PressTag(int tag) { PressHotKey(win32::kModAlt, static_cast<std::uint32_t>('0' + tag)); }
  /// The same without the time that a tick takes.
  void PressTagQuickly(int tag) {
    EXPECT_TRUE(hotKeys.Press(win32::kModAlt, static_cast<std::uint32_t>('0' + tag)));
  }
  /// The caption of the first usable entry that begins so; "" when there is none, and for "".
  static std::string EntryThatBegins(const std::vector<ShownMenuItem>& items,
                                     std::string_view beginning);
  /// Lets the foreground tracking notice what has happened.
  void LetTick() { clock.Advance(200); }
  std::string Front() { return desktop.ForegroundTitle(); }

 public:
  CallLog log;
  FakeDesktop desktop;
  FakeHotKeys hotKeys;
  FakeSettingsStore store;
  FakeClock clock;
  std::shared_ptr<FakeSession> session;

 private:
  std::vector<std::unique_ptr<KorvaleCopy>> copies_;
  int lastProcess_ = 0;
};

}  // namespace korvale
