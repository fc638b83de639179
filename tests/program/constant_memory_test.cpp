#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "tests/program/korvale_world.h"

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

namespace korvale {
namespace {

/// Two tagged windows, a Tag whose window is not open, and Korvale among them for a long time.
class ConstantMemory : public KorvaleWorld {
 protected:
  ConstantMemory() {
    Open("Alpha");
    Open("Beta");
    StoreTag(1, "Alpha");
    StoreTag(2, "Beta");
    StoreTag(3, "Nowhere");
    store.SaveSetting("Korvale - Work", "Startup", "Tips", "0");
    korvale = &StartedCopy();
    WorkIn(korvale->Handle());
  }

  void Click(const char* form, const char* button) {
    class Form& loaded = korvale->Loaded(form);
    korvale->user.Click(loaded.Handle(), korvale->Id(loaded, button));
  }
  void OpenOptions() { PressHotKey(win32::kModWin, 'O'); }

  /// The bytes in use after doing it so many times.
  std::size_t After(int times, const std::function<void(int)>& doing) {
    for (int i = 0; i < times; ++i) {
      doing(i);
      LetTick();
      korvale->host.ForgetWhatWasTold();
      log.Clear();
    }
    return __sanitizer_get_current_allocated_bytes();
  }
  /// Whatever is kept of the first times, nothing more is kept of those that follow.
  void ExpectConstant(int times, const std::function<void(int)>& doing) {
    const std::size_t before = After(20, doing);
    EXPECT_EQ(After(times, doing), before);
  }

  KorvaleCopy* korvale = nullptr;
};

TEST_F(ConstantMemory, StaysThroughAThousandSwitches) {
  ExpectConstant(1000, [this](int i) { PressTag(1 + i % 2); });
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(korvale->TargetWindow(), "Beta");
}

TEST_F(ConstantMemory, StaysWhenTheOptionsAreCancelled) {
  ExpectConstant(50, [this](int) {
    OpenOptions();
    Click("frmOptions", "cmdCancel");
  });
}

TEST_F(ConstantMemory, StaysWhenTheOptionsAreAppliedAndTaken) {
  ExpectConstant(50, [this](int) {
    OpenOptions();
    Click("frmOptions", "cmdApply");
    Click("frmOptions", "cmdOK");
  });
}

TEST_F(ConstantMemory, StaysWhenTheOptionsAreReset) {
  ExpectConstant(50, [this](int) {
    OpenOptions();
    korvale->host.AnswerNext(win32::kIdOk);
    Click("frmOptions", "cmdReset");
    Click("frmOptions", "cmdOK");
  });
}

TEST_F(ConstantMemory, StaysWhenWindowsAreTagged) {
  ExpectConstant(50, [this](int i) {
    WorkIn(desktop.FindWindowA(i % 2 == 0 ? "Alpha" : "Beta"));
    WorkIn(korvale->Handle());
    korvale->TagPrevious();
  });
}

TEST_F(ConstantMemory, StaysThroughMessages) {
  ExpectConstant(50, [this](int) {
    korvale->host.AnswerNext(win32::kIdOk);
    PressTag(3);
  });
}

TEST_F(ConstantMemory, StaysWhenTheMenuPopsUp) {
  ExpectConstant(50, [this](int) {
    korvale->host.WhenPopupMenu([](const std::vector<ShownMenuItem>&) { return std::string(); });
    PressHotKey(win32::kModWin, 'W');
  });
}

TEST_F(ConstantMemory, StaysWhenTheHotKeysGoAndComeBack) {
  ExpectConstant(50, [this](int) {
    PressHotKey(0, win32::kVkPause);
    PressHotKey(0, win32::kVkPause);
  });
}

TEST_F(ConstantMemory, StaysThroughAbout) {
  ExpectConstant(50, [this](int) {
    korvale->ChooseLate("mnuHelpAbout");
    LetTick();
    korvale->Loaded("frmMsgBox2").Unload();
  });
}

TEST_F(ConstantMemory, StaysWhenColorsAreCustomized) {
  ExpectConstant(50, [this](int i) {
    korvale->host.WhenColorDialog([i](Color) { return i % 2 == 0 ? kRed : Color{0xFF0000}; });
    korvale->Form().udmShowColorPalette(0);
  });
}

TEST_F(ConstantMemory, StaysWhenTheScreenGetsOtherDots) {
  ExpectConstant(50, [this](int i) { korvale->host.SetDpi(i % 2 == 0 ? 144 : 96); });
}

TEST_F(ConstantMemory, StaysWhenWindowsComeAndGo) {
  ExpectConstant(50, [this](int i) {
    const WindowHandle hwnd = Open("Window " + std::to_string(10 + i % 10));
    LetTick();
    desktop.Close(hwnd);
    log.NameWindow(hwnd, "");
  });
}

TEST_F(ConstantMemory, StaysWhenTheComputerSleepsAndWakesUp) {
  ExpectConstant(50, [this](int) { hotKeys.EndSleep(); });
}

}  // namespace
}  // namespace korvale
#endif
