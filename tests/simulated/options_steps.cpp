#include "platform/win32_constants.h"
#include "tests/simulated/simulated_life.h"

namespace korvale {
namespace {

constexpr const char* kCheckBoxes[] = {"chkSplashScreen", "chkSelectPrevWinOnStart",
                                       "chkAllowToolbarWindow", "chkAllowNoTextWindow"};

struct List {
  const char* name;
  int index;
};
constexpr List kLists[] = {
    {"cboHotKeyModParent", -1}, {"cboHotKeyModAction", 0},  {"cboHotKeyModAction", 1},
    {"cboHotKeyAction", 0},     {"cboHotKeyAction", 1},     {"cboHotKeyModGeneral", 0},
    {"cboHotKeyModGeneral", 1}, {"cboHotKeyModGeneral", 2}, {"cboHotKeyGeneral", 0},
    {"cboHotKeyGeneral", 1},    {"cboHotKeyGeneral", 2}};

}  // namespace

void SimulatedLife::UseOptions() {
  Form* const dialog = korvale_->FindForm("frmOptions");
  if (dialog == nullptr) return OpenOptions();
  if (!korvale_->user.IsShown(dialog->Handle())) {
    Note("goes to Korvale");
    return GoToKorvale();
  }
  if (dice_.OneIn(5)) return EndOptions(*dialog);
  for (int i = dice_.Below(4); i >= 0; --i) UseOptionsDialog(*dialog);
}

void SimulatedLife::OpenOptions() {
  const std::optional<HotKey> hotKey = Working("HOTKEY_DISPLAY_OPTIONS");
  if (hotKey && dice_.OneIn(2)) {
    Press(*hotKey);
  } else {
    UseMenu({"Tools", "Options..."});
  }
  EXPECT_NE(korvale_->FindForm("frmOptions"), nullptr);
}

void SimulatedLife::UseOptionsDialog(Form& dialog) {
  Note("changes an option");
  HeadlessUser& user = korvale_->user;
  const WindowHandle hwnd = dialog.Handle();
  const int box = dialog.Find(dice_.Pick(kCheckBoxes)).Id();
  if (user.IsShown(hwnd, box)) {
    user.Click(hwnd, box);
  } else if (dice_.OneIn(5)) {
    user.Pick(hwnd, dialog.Find("tabOptions").Id(), dice_.Below(3));
  } else {
    UseHotKeysPage(dialog);
  }
}

void SimulatedLife::UseHotKeysPage(Form& dialog) {
  HeadlessUser& user = korvale_->user;
  const WindowHandle hwnd = dialog.Handle();
  const List& list = dice_.Pick(kLists);
  const int listId = dialog.Find(list.name, list.index).Id();
  if (!user.IsShown(hwnd, listId)) return user.Pick(hwnd, dialog.Find("tabOptions").Id(), 1);
  switch (dice_.Below(4)) {
    case 0:
      return user.Click(hwnd, dialog.Find("chkHotKeyParent", dice_.Below(10)).Id());
    case 1:
      korvale_->host.WhenColorDialog([this](Color) { return dice_.Below(0x1000000); });
      return user.ClickAt(hwnd, dialog.Find("lblLegend", 1).Id(), 15, 15);
    default:
      const auto entries = static_cast<int>(user.ListEntries(hwnd, listId).size());
      return user.Pick(hwnd, listId, dice_.Below(entries));
  }
}

void SimulatedLife::EndOptions(Form& dialog) {
  HeadlessUser& user = korvale_->user;
  const WindowHandle hwnd = dialog.Handle();
  if (dice_.OneIn(8)) {
    Note("closes the options");
    return user.PressCloseBox(hwnd);
  }
  // Without Reset now and then, Korvale would soon have no hot keys left.
  constexpr const char* kButtons[] = {"cmdOK", "cmdOK", "cmdApply", "cmdCancel", "cmdReset"};
  const char* const button = dice_.Pick(kButtons);
  Note("presses " + std::string(button));
  const bool saves = std::string_view(button) != "cmdCancel";
  lastAnswer_ = win32::kIdOk;
  user.Click(hwnd, dialog.Find(button).Id());
  if (!saves || lastAnswer_ == win32::kIdCancel) return;
  hotKeysOn_ = true;
  HotKeysRegistered();
}

}  // namespace korvale
