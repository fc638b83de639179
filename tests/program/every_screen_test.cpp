#include <string>
#include <utility>
#include <vector>

#include "tests/program/main_window_test.h"

namespace korvale {
namespace {

enum class Edge { kLeft, kTop, kRight, kBottom };

/// A monitor of so many pixels, its taskbar at an edge, on a system with `system` dots per inch.
HeadlessMonitor MonitorAt(int left, int top, int width, int height, int dpi, Edge taskbar,
                          int system = 96) {
  const auto twips = [&](int pixels) { return pixels * kTwipsPerInch / system; };
  const TwipsRect area = {twips(left), twips(top), twips(width), twips(height)};
  const Twips thick = twips(48 * dpi / 96);
  TwipsRect work = area;
  (taskbar == Edge::kLeft || taskbar == Edge::kRight ? work.width : work.height) -= thick;
  if (taskbar == Edge::kLeft) work.left += thick;
  if (taskbar == Edge::kTop) work.top += thick;
  return {area, work, dpi};
}

struct Desk {
  std::string name;
  std::vector<HeadlessMonitor> monitors;
};

std::vector<Desk> Desks() {
  using enum Edge;
  return {
      {"one monitor", {MonitorAt(0, 0, 1920, 1080, 96, kLeft)}},
      {"a fine one on the left",
       {MonitorAt(0, 0, 1920, 1080, 96, kBottom),
        MonitorAt(-3840, -200, 3840, 2160, 288, kBottom)}},
      {"portrait above",
       {MonitorAt(0, 0, 1920, 1080, 96, kTop), MonitorAt(300, -1920, 1080, 1920, 120, kRight)}},
      {"a coarse one beside a fine one",
       {MonitorAt(0, 0, 3840, 2160, 192, kLeft, 192),
        MonitorAt(3840, 400, 1920, 1080, 96, kTop, 192)}},
      {"portrait and narrower than a dialog",
       {MonitorAt(0, 0, 1920, 1200, 144, kRight, 144),
        MonitorAt(1920, -400, 1080, 1920, 288, kTop, 144)}},
      {"three",
       {MonitorAt(0, 0, 2560, 1440, 168, kBottom, 168),
        MonitorAt(-1080, -300, 1080, 1920, 96, kBottom, 168),
        MonitorAt(2560, 0, 3840, 2160, 240, kRight, 168)}},
  };
}

/// Korvale on desks of monitors of every kind.
class EveryScreenTest : public MainWindowTest {
 protected:
  KorvaleCopy& StartOn(const std::vector<HeadlessMonitor>& monitors) {
    KorvaleCopy& copy = NewCopy();
    StoreOption("SplashScreen", "False");
    copy.host.SetMonitors(monitors);
    EXPECT_TRUE(copy.Start());
    LetTick();
    return copy;
  }
  void End(KorvaleCopy& copy) {
    copy.Exit();
    EndCopy(copy);
  }
  /// Does it on every monitor of every desk, with a copy that is started anew for each.
  template <typename Do>
  void OnEveryMonitor(const Do& action) {
    for (const auto& [name, monitors] : Desks()) {
      for (std::size_t monitor = 0; monitor < monitors.size(); ++monitor) {
        SCOPED_TRACE(name + ", monitor " + std::to_string(monitor));
        KorvaleCopy& copy = StartOn(monitors);
        action(copy, monitor);
        End(copy);
      }
    }
  }

  static TwipsRect OnScreen(KorvaleCopy& copy, WindowHandle hwnd) {
    return copy.host.GetWindowRect(hwnd);
  }
  /// The user drags the window to the middle of a monitor.
  static void DragTo(KorvaleCopy& copy, WindowHandle hwnd, std::size_t monitor) {
    const TwipsRect area = copy.host.Monitors()[monitor].workArea;
    // On its way it may become larger or smaller.
    for (int times = 0; times < 2; ++times) {
      const TwipsRect size = OnScreen(copy, hwnd);
      TwipsRect place = copy.user.Place(hwnd);
      place.left = area.left + (area.width - size.width) / 2;
      place.top = area.top + (area.height - size.height) / 2;
      copy.user.Drag(hwnd, place);
    }
  }
  /// The whole window can be seen and read on this monitor.
  static void ExpectWholeOn(KorvaleCopy& copy, WindowHandle hwnd, std::size_t monitor) {
    SCOPED_TRACE(copy.host.Window(hwnd).form->name);
    const auto& [area, work, dpi] = copy.host.Monitors()[monitor];
    const TwipsRect place = OnScreen(copy, hwnd);
    EXPECT_GE(place.left, work.left);
    EXPECT_GE(place.top, work.top);
    EXPECT_LE(place.left + place.width, work.left + work.width + 1);
    EXPECT_LE(place.top + place.height, work.top + work.height + 1);
    EXPECT_EQ(copy.host.GetDpiForWindow(hwnd), dpi);
    EXPECT_GE(copy.host.GetDpiOfForm(hwnd), 64);
  }
  /// Works in a window on this monitor, with the pointer there.
  void WorkOn(KorvaleCopy& copy, std::size_t monitor) {
    const WindowHandle editor = Open("Editor");
    copy.host.PutOnMonitor(editor, monitor);
    copy.host.PointAtMonitor(monitor);
    WorkIn(editor);
  }
};

TEST_F(EveryScreenTest, OptionsComeUpWholeOnTheMonitorWhereTheUserWorks) {
  OnEveryMonitor([&](KorvaleCopy& copy, std::size_t monitor) {
    DragTo(copy, copy.Handle(), copy.host.Monitors().size() - 1 - monitor);
    WorkOn(copy, monitor);
    PressHotKey(win32::kModWin, 'O');
    const WindowHandle dialog = copy.Loaded("frmOptions").Handle();
    ExpectWholeOn(copy, dialog, monitor);
    copy.user.PressCloseBox(dialog);
  });
}

TEST_F(EveryScreenTest, DialogsOfTheMainWindowComeUpOnItsMonitor) {
  OnEveryMonitor([&](KorvaleCopy& copy, std::size_t monitor) {
    WorkOn(copy, monitor);
    DragTo(copy, copy.Handle(), monitor);
    WorkIn(copy.Handle());
    copy.TagPrevious([&](class Form& dialog) { ExpectWholeOn(copy, dialog.Handle(), monitor); });
    copy.host.WhenModal("frmMsgTip", [&](class Form& tip) {
      ExpectWholeOn(copy, tip.Handle(), monitor);
      tip.Unload();
    });
    Choose(copy, {"View", "Customize Colors - C"});
    Choose(copy, {"Help", "About Korvale"});
    ExpectWholeOn(copy, copy.Loaded("frmMsgBox2").Handle(), monitor);
  });
}

TEST_F(EveryScreenTest, TheNoticeComesUpWhereTheUserWorks) {
  OnEveryMonitor([&](KorvaleCopy& copy, std::size_t monitor) {
    WorkOn(copy, monitor);
    int seen = 0;
    copy.host.WhenWaiting([&] {
      ++seen;
      ExpectWholeOn(copy, copy.Loaded("frmWaitWindow").Handle(), monitor);
      clock.Advance(60'000);
    });
    PressHotKey(0, win32::kVkPause);
    EXPECT_EQ(seen, 1);
  });
}

TEST_F(EveryScreenTest, MovingThereAndBackLeavesEveryFormAsItWas) {
  OnEveryMonitor([&](KorvaleCopy& copy, std::size_t home) {
    PressHotKey(win32::kModWin, 'O');
    for (const WindowHandle hwnd : {copy.Handle(), copy.Loaded("frmOptions").Handle()}) {
      DragTo(copy, hwnd, home);
      const TwipsRect before = OnScreen(copy, hwnd);
      const HeadlessScale scale = copy.host.ScaleOf(hwnd);
      for (int times = 0; times < 10; ++times) {
        for (std::size_t other = 0; other < copy.host.Monitors().size(); ++other) {
          DragTo(copy, hwnd, other);
          const HeadlessScale there = copy.host.ScaleOf(hwnd);
          EXPECT_EQ(there.dots, copy.host.Monitors()[other].dpi);
          // Frame and content have grown alike.
          if (scale.dots != scale.dpi || there.dots != there.dpi) continue;
          EXPECT_NEAR(OnScreen(copy, hwnd).width * scale.dots, before.width * there.dots, 300);
          EXPECT_NEAR(OnScreen(copy, hwnd).height * scale.dots, before.height * there.dots, 6000);
        }
        DragTo(copy, hwnd, home);
        EXPECT_EQ(OnScreen(copy, hwnd), before);
      }
    }
  });
}

TEST_F(EveryScreenTest, TheMainWindowComesUpAgainWhereItWas) {
  for (const auto& [name, monitors] : Desks()) {
    for (std::size_t monitor = 0; monitor < monitors.size(); ++monitor) {
      SCOPED_TRACE(name + ", monitor " + std::to_string(monitor));
      KorvaleCopy& copy = StartOn(monitors);
      DragTo(copy, copy.Handle(), monitor);
      ExpectWholeOn(copy, copy.Handle(), monitor);
      const TwipsRect before = OnScreen(copy, copy.Handle());
      End(copy);
      KorvaleCopy& again = StartOn(monitors);
      EXPECT_EQ(OnScreen(again, again.Handle()), before);
      // The monitor where it was is gone.
      End(again);
      std::vector<HeadlessMonitor> others = monitors;
      if (monitor > 0) others.erase(others.begin() + static_cast<std::ptrdiff_t>(monitor));
      KorvaleCopy& elsewhere = StartOn(others);
      const WindowHandle hwnd = elsewhere.Handle();
      ExpectWholeOn(elsewhere, hwnd, FindMonitor(others, OnScreen(elsewhere, hwnd)));
      End(elsewhere);
    }
  }
}

TEST_F(EveryScreenTest, EveryFormStaysWholeWhenItsMonitorGoes) {
  OnEveryMonitor([&](KorvaleCopy& copy, std::size_t monitor) {
    if (monitor == 0) return;
    PressHotKey(win32::kModWin, 'O');
    const WindowHandle dialog = copy.Loaded("frmOptions").Handle();
    for (const WindowHandle hwnd : {copy.Handle(), dialog}) DragTo(copy, hwnd, monitor);
    copy.host.ChangeMonitors({copy.host.Monitors().front()});
    for (const WindowHandle hwnd : {copy.Handle(), dialog}) ExpectWholeOn(copy, hwnd, 0);
    copy.user.PressCloseBox(dialog);
  });
}

TEST_F(EveryScreenTest, AtTheEdgeEveryFormStaysWholeWhenItsMonitorGetsOtherDots) {
  OnEveryMonitor([&](KorvaleCopy& copy, std::size_t monitor) {
    PressHotKey(win32::kModWin, 'O');
    const WindowHandle dialog = copy.Loaded("frmOptions").Handle();
    const TwipsRect work = copy.host.Monitors()[monitor].workArea;
    for (const WindowHandle hwnd : {copy.Handle(), dialog}) {
      DragTo(copy, hwnd, monitor);
      TwipsRect place = copy.user.Place(hwnd);
      const TwipsRect size = OnScreen(copy, hwnd);
      place.left = work.left + work.width - size.width;
      place.top = work.top + work.height - size.height;
      copy.user.Drag(hwnd, place);
    }
    const TwipsRect before = OnScreen(copy, copy.Handle());
    const std::vector<HeadlessMonitor> monitors = copy.host.Monitors();
    for (const int dpi : {96, 120, 144, 168, 192, 240, 288}) {
      std::vector<HeadlessMonitor> changed = monitors;
      changed[monitor].dpi = dpi;
      copy.host.ChangeMonitors(changed);
      for (const WindowHandle hwnd : {copy.Handle(), dialog}) ExpectWholeOn(copy, hwnd, monitor);
    }
    copy.host.ChangeMonitors(monitors);
    EXPECT_EQ(OnScreen(copy, copy.Handle()).width, before.width);
    if (monitors.size() == 1) {
      EXPECT_EQ(OnScreen(copy, copy.Handle()), before);
    }
    copy.user.PressCloseBox(dialog);
  });
}

TEST_F(EveryScreenTest, AtEveryEdgeTheMainWindowMakesRoomForTheTaskbar) {
  using enum Edge;
  KorvaleCopy& copy = StartOn(
      {MonitorAt(0, 0, 1920, 1080, 96, kBottom), MonitorAt(-2400, -300, 2400, 3840, 240, kBottom)});
  DragTo(copy, copy.Handle(), 1);
  for (const Edge from : {kLeft, kTop, kRight, kBottom}) {
    for (const Edge to : {kLeft, kTop, kRight, kBottom}) {
      const HeadlessMonitor primary = copy.host.Monitors().front();
      copy.host.ChangeMonitors({primary, MonitorAt(-2400, -300, 2400, 3840, 240, from)});
      const TwipsRect work = copy.host.Monitors()[1].workArea;
      const TwipsRect size = OnScreen(copy, copy.Handle());
      for (const bool far : {false, true}) {
        TwipsRect place = copy.user.Place(copy.Handle());
        place.left = work.left + (far ? work.width - size.width : 0);
        place.top = work.top + (far ? work.height - size.height : 0);
        copy.user.Drag(copy.Handle(), place);
        const TwipsRect before = OnScreen(copy, copy.Handle());
        copy.host.ChangeMonitors({primary, MonitorAt(-2400, -300, 2400, 3840, 240, to)});
        ExpectWholeOn(copy, copy.Handle(), 1);
        copy.host.ChangeMonitors({primary, MonitorAt(-2400, -300, 2400, 3840, 240, from)});
        EXPECT_EQ(OnScreen(copy, copy.Handle()), before);
      }
    }
  }
}

}  // namespace
}  // namespace korvale
