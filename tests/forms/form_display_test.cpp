#include "forms/form_display.h"

#include <functional>
#include <stdexcept>

#include "tests/forms/dialog_test.h"

namespace korvale {
namespace {

constexpr ControlRow kControls[] = {
    {ControlKind::kButton, "cmdOK", -1, "OK", "", {60, 60, 1000, 300}},
};

constexpr FormDesign kDialog = {
    .name = "frmDialog", .caption = "Dialog", .place = {0, 0, 3000, 2000}, .controls = kControls};
constexpr FormDesign kSecond = {
    .name = "frmSecond", .caption = "Second", .place = {0, 0, 1000, 1000}, .controls = kControls};
constexpr FormDesign kOwner = {.name = "frmOwner",
                               .caption = "Owner",
                               .place = {6000, 4000, 4000, 3000},
                               .border = BorderStyle::kSizable,
                               .minimizeBox = true,
                               .controls = kControls};

class Dialog : public Form {
 public:
  Dialog(const FormDesign& design, FormCollection& forms) : Form(design, forms) {
    WhenClicked("cmdOK", [this](int) {
      SetTag("OK");
      Unload();
    });
  }

  std::function<void()> whenActivated;

 protected:
  void Form_Activate() override {
    if (whenActivated) whenActivated();
  }
};

class FormDisplayTest : public DialogTest {
 protected:
  std::string ShowDialogModal(const PlaceHints& hints = {}, Form* owner = nullptr,
                              const DisplaySwitches& switches = {}) {
    return display_.ShowFormModal(dialog_, switches, 1000, hints, owner);
  }
  /// Shows the dialog modally and tells where it stood.
  TwipsRect PlaceWhenShown(const PlaceHints& hints = {}, Form* owner = nullptr,
                           const DisplaySwitches& switches = {}) {
    TwipsRect place;
    host_.WhenModal("frmDialog", [&](Form& form) {
      place = user_.Place(form.Handle());
      form.Unload();
    });
    ShowDialogModal(hints, owner, switches);
    return place;
  }

  Dialog dialog_{kDialog, forms_};
  Dialog second_{kSecond, forms_};
  Dialog owner_{kOwner, forms_};
};

TEST_F(FormDisplayTest, ReturnsTheTagThatTheFormHasWhenItCloses) {
  host_.WhenModal("frmDialog", [&](Form& form) { Click(form, "cmdOK"); });
  EXPECT_EQ(ShowDialogModal(), "OK");
  EXPECT_FALSE(dialog_.IsLoaded());
}

TEST_F(FormDisplayTest, SuspendsTheHotKeysOnlyWhileTheFormIsShown) {
  bool suspended = false;
  host_.WhenModal("frmDialog", [&](Form& form) {
    suspended = suspension_.DialogShown;
    form.Unload();
  });
  ShowDialogModal();
  EXPECT_TRUE(suspended);
  EXPECT_FALSE(suspension_.DialogShown);
}

TEST_F(FormDisplayTest, KeepsTheHotKeysSuspendedWhenANestedFormCloses) {
  host_.WhenModal("frmDialog", [&](Form& form) {
    host_.WhenModal("frmSecond", [](Form& second) { second.Unload(); });
    display_.ShowFormModal(second_, {}, 1000, {}, &form);
    EXPECT_TRUE(suspension_.DialogShown);
    form.Unload();
  });
  ShowDialogModal();
  EXPECT_FALSE(suspension_.DialogShown);
}

TEST_F(FormDisplayTest, EndsTheSuspensionWhenAnErrorLeavesTheMessageLoop) {
  host_.WhenModal("frmDialog", [](Form&) { throw std::runtime_error("lost"); });
  EXPECT_THROW(ShowDialogModal(), std::runtime_error);
  EXPECT_FALSE(suspension_.DialogShown);
}

TEST_F(FormDisplayTest, DisablesTheOtherFormsMeanwhile) {
  owner_.Show();
  bool enabled = true;
  host_.WhenModal("frmDialog", [&](Form& form) {
    enabled = user_.IsEnabled(owner_.Handle());
    form.Unload();
  });
  ShowDialogModal();
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(user_.IsEnabled(owner_.Handle()));
}

TEST_F(FormDisplayTest, DoesNotLoadAFormAgainThatClosedWhenItWasActivated) {
  dialog_.whenActivated = [&] { dialog_.Unload(); };
  ShowDialogModal();
  EXPECT_FALSE(dialog_.IsLoaded());
  EXPECT_EQ(log_.CallsOf("CreateWindowExW(frmDialog").size(), 1U);
}

TEST_F(FormDisplayTest, ShowsAFormModallyOnlyOnceAtATime) {
  host_.WhenModal("frmDialog", [&](Form& form) {
    EXPECT_EQ(ShowDialogModal(), "");
    EXPECT_TRUE(form.Visible());
    form.Unload();
  });
  ShowDialogModal();
  EXPECT_FALSE(dialog_.IsLoaded());
}

TEST_F(FormDisplayTest, CentresTheFormOnItsOwner) {
  owner_.Show();
  EXPECT_EQ(PlaceWhenShown({}, &owner_), (TwipsRect{6500, 4500, 3000, 2000}));
}

TEST_F(FormDisplayTest, CentresTheFormOnTheWorkAreaWithoutAnOwner) {
  host_.SetWorkArea({-2000, 100, 10000, 8000});
  EXPECT_EQ(PlaceWhenShown(), (TwipsRect{1500, 3100, 3000, 2000}));
}

TEST_F(FormDisplayTest, CentresTheFormOnTheWorkAreaWhenTheOwnerCannotBeSeen) {
  host_.SetWorkArea({0, 0, 10000, 8000});
  const TwipsRect centred = {3500, 3000, 3000, 2000};
  EXPECT_EQ(PlaceWhenShown({}, &owner_), centred);
  owner_.Load();
  EXPECT_EQ(PlaceWhenShown({}, &owner_), centred);
  owner_.Show();
  owner_.SetWindowState(ShowState::kMinimized);
  EXPECT_EQ(PlaceWhenShown({}, &owner_), centred);
}

TEST_F(FormDisplayTest, CentresTheFormOnTheWorkAreaWhenToldSo) {
  host_.SetWorkArea({0, 0, 10000, 8000});
  owner_.Show();
  EXPECT_EQ(PlaceWhenShown({}, &owner_, {.centerOnOwner = 0}), (TwipsRect{3500, 3000, 3000, 2000}));
}

TEST_F(FormDisplayTest, FollowsEachPositionHint) {
  owner_.Show();
  EXPECT_EQ(PlaceWhenShown({.left = 120, .top = 240}), (TwipsRect{120, 240, 3000, 2000}));
  EXPECT_EQ(PlaceWhenShown({.left = 120}, &owner_), (TwipsRect{120, 4500, 3000, 2000}));
  EXPECT_EQ(PlaceWhenShown({.top = 240}, &owner_), (TwipsRect{6500, 240, 3000, 2000}));
}

TEST_F(FormDisplayTest, KeepsTheFormInsideTheWorkArea) {
  host_.SetWorkArea({100, 200, 10000, 8000});
  EXPECT_EQ(PlaceWhenShown({.left = 9000, .top = 7000}), (TwipsRect{7100, 6200, 3000, 2000}));
  EXPECT_EQ(PlaceWhenShown({.left = -500, .top = -500}), (TwipsRect{100, 200, 3000, 2000}));
}

TEST_F(FormDisplayTest, BeginsWithTheWorkAreaWhenTheFormIsLarger) {
  host_.SetWorkArea({100, 200, 2000, 1000});
  EXPECT_EQ(PlaceWhenShown(), (TwipsRect{100, 200, 3000, 2000}));
}

TEST_F(FormDisplayTest, LeavesTheFormOutsideWhenToldSo) {
  EXPECT_EQ(PlaceWhenShown({.left = 90000, .top = 0}, nullptr, {.keepInWorkArea = 0}),
            (TwipsRect{90000, 0, 3000, 2000}));
}

/// A screen of two monitors side by side.
class TwoMonitors : public HeadlessFormHost {
 public:
  using HeadlessFormHost::HeadlessFormHost;

  TwipsRect GetMonitorInfoW(WindowHandle hwnd) override {
    const HeadlessWindow* const window = FindWindow(hwnd);
    const bool right = hwnd == onTheRight || (window != nullptr && window->place.left >= 10000);
    return right ? TwipsRect{10000, 0, 8000, 6000} : TwipsRect{0, 0, 10000, 8000};
  }

  WindowHandle onTheRight = 0;
};

TEST_F(FormDisplayTest, ComesUpOnTheMonitorWhereTheUserWorks) {
  CallLog log;
  FakeDesktop desktop(log);
  DesktopBridge windows(desktop.Windows(), 1);
  TwoMonitors host(windows, log);
  FormCollection forms(host, clock_);
  Dialog dialog(kDialog, forms);
  FormDisplay display(forms, desktop, desktop, suspension_, alwaysOnTop_);
  TwipsRect place;
  const auto look = [&](Form& form) {
    place = host.Window(form.Handle()).place;
    form.Unload();
  };
  host.onTheRight = desktop.Open("Editor");
  host.WhenModal("frmDialog", look);
  display.ShowFormModal(dialog, {}, 1000, {}, nullptr);
  EXPECT_EQ(place, (TwipsRect{12500, 2000, 3000, 2000}));
  host.WhenModal("frmDialog", look);
  display.ShowFormModal(dialog, {}, 1000, {.left = 17000, .top = 0}, nullptr);
  EXPECT_EQ(place, (TwipsRect{15000, 0, 3000, 2000}));
}

TEST_F(FormDisplayTest, CountsTheFrameThatTheWindowReallyHas) {
  host_.SetFrame({100, 600, 290, 800}, 300);
  host_.SetWorkArea({0, 0, 10000, 8000});
  EXPECT_EQ(PlaceWhenShown({.left = 9000, .top = 7000}), (TwipsRect{6800, 5600, 3200, 2400}));
}

TEST_F(FormDisplayTest, MakesTheFormTopmostWhileTheMainWindowIs) {
  alwaysOnTop_ = true;
  PlaceWhenShown();
  EXPECT_EQ(log_.CallsOf("SetWindowPos("),
            (std::vector<std::string>{"SetWindowPos(frmDialog, HWND_TOPMOST, 0, 0, 0, 0, 3)"}));
}

TEST_F(FormDisplayTest, LeavesTheOrderOfTheWindowsAloneOtherwise) {
  PlaceWhenShown();
  EXPECT_TRUE(log_.CallsOf("SetWindowPos(").empty());
  alwaysOnTop_ = true;
  PlaceWhenShown({}, nullptr, {.followTopmost = 0});
  EXPECT_TRUE(log_.CallsOf("SetWindowPos(").empty());
}

TEST_F(FormDisplayTest, MakesTheFormTheForegroundWindow) {
  desktop_.Open("Editor");
  std::string front;
  host_.WhenModal("frmDialog", [&](Form& form) {
    front = desktop_.ForegroundTitle();
    form.Unload();
  });
  ShowDialogModal();
  EXPECT_EQ(front, "Dialog");
  EXPECT_EQ(log_.CallsOf("SetForegroundWindow(frmDialog").size(), 1U);
}

TEST_F(FormDisplayTest, LeavesTheForegroundAloneWhenToldSo) {
  PlaceWhenShown({}, nullptr, {.takeForeground = 0});
  EXPECT_TRUE(log_.CallsOf("SetForegroundWindow(").empty());
}

TEST_F(FormDisplayTest, GivesTheForegroundBackToTheProgramThatHadIt) {
  owner_.Show();
  const WindowHandle editor = desktop_.Open("Editor");
  host_.WhenModal("frmDialog", [&](Form& form) {
    desktop_.Windows().Raise(owner_.Handle());
    form.Unload();
  });
  ShowDialogModal();
  EXPECT_EQ(desktop_.Windows().Foreground(), editor);
}

TEST_F(FormDisplayTest, GivesTheForegroundBackWhenNothingTookIt) {
  const WindowHandle editor = desktop_.Open("Editor");
  host_.WhenModal("frmDialog", [&](Form& form) {
    form.Unload();
    desktop_.LoseForeground();
  });
  ShowDialogModal();
  EXPECT_EQ(desktop_.Windows().Foreground(), editor);
}

TEST_F(FormDisplayTest, LeavesTheForegroundToTheProgramThatTheUserWentTo) {
  owner_.Show();
  desktop_.Open("Editor");
  const WindowHandle mail = desktop_.Open("Mail");
  desktop_.UserActivates(owner_.Handle());
  host_.WhenModal("frmDialog", [&](Form& form) {
    desktop_.UserActivates(mail);
    form.Unload();
  });
  ShowDialogModal();
  EXPECT_EQ(desktop_.Windows().Foreground(), mail);
}

TEST_F(FormDisplayTest, GivesNoForegroundToAWindowThatIsGone) {
  owner_.Show();
  const WindowHandle editor = desktop_.Open("Editor");
  host_.WhenModal("frmDialog", [&](Form& form) {
    desktop_.Close(editor);
    form.Unload();
  });
  log_.Clear();
  ShowDialogModal();
  EXPECT_EQ(desktop_.ForegroundTitle(), "Owner");
  EXPECT_EQ(log_.CallsOf("SetForegroundWindow(").size(), 1U);
}

TEST_F(FormDisplayTest, PlacesAndShowsALoadedFormWithoutWaitingForIt) {
  host_.SetWorkArea({0, 0, 10000, 8000});
  dialog_.Load();
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  EXPECT_TRUE(user_.IsShown(dialog_.Handle()));
  EXPECT_EQ(user_.Place(dialog_.Handle()), (TwipsRect{3500, 3000, 3000, 2000}));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Dialog");
  EXPECT_FALSE(suspension_.DialogShown);
}

TEST_F(FormDisplayTest, LoadsNoFormByItself) {
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  EXPECT_FALSE(dialog_.IsLoaded());
}

TEST_F(FormDisplayTest, LeavesAShownFormWhereTheUserPutIt) {
  dialog_.Show();
  user_.Drag(dialog_.Handle(), {700, 800, 3000, 2000});
  desktop_.Open("Editor");
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  EXPECT_EQ(user_.Place(dialog_.Handle()), (TwipsRect{700, 800, 3000, 2000}));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Dialog");
}

TEST_F(FormDisplayTest, FetchesAShownFormBackIntoTheWorkArea) {
  dialog_.Show();
  user_.Drag(dialog_.Handle(), {90000, 800, 3000, 2000});
  display_.ShowFormNonModal(dialog_, {.keepInWorkArea = 0}, nullptr);
  EXPECT_EQ(user_.Place(dialog_.Handle()).left, 90000);
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  EXPECT_EQ(user_.Place(dialog_.Handle()), (TwipsRect{12360, 800, 3000, 2000}));
}

TEST_F(FormDisplayTest, RestoresAMinimizedForm) {
  owner_.Show();
  owner_.SetWindowState(ShowState::kMinimized);
  display_.ShowFormNonModal(owner_, {}, nullptr);
  EXPECT_EQ(owner_.WindowState(), ShowState::kNormal);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Owner");
}

TEST_F(FormDisplayTest, TakesAFormOutOfTheTopmostOnesWhenTheMainWindowIsNoLongerOne) {
  alwaysOnTop_ = true;
  dialog_.Load();
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  alwaysOnTop_ = false;
  log_.Clear();
  display_.ShowFormNonModal(dialog_, {}, nullptr);
  EXPECT_EQ(log_.CallsOf("SetWindowPos("),
            (std::vector<std::string>{"SetWindowPos(frmDialog, HWND_NOTOPMOST, 0, 0, 0, 0, 3)"}));
}

}  // namespace
}  // namespace korvale
