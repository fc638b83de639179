#include "tests/program/boxes_up.h"

#include <optional>

#include "platform/win32_constants.h"

namespace korvale {

void BoxesUp::OpenWindows() {
  StoreTag(1, "Nowhere");
  StoreTag(2, "Gamma");
  gamma_ = Open("Gamma");
  beta_ = Open("Beta");
}

void BoxesUp::StartAmongWindows() {
  OpenWindows();
  korvale_ = &StartedCopy();
  WorkIn(gamma_);
  WorkIn(beta_);
}

void BoxesUp::Answer(const Meanwhile& meanwhile, std::int16_t button) {
  korvale_->host.WhenMessageBox([=](const ShownMessage&) {
    meanwhile();
    return button;
  });
}

void BoxesUp::CloseAfter(const char* name, const Meanwhile& meanwhile) {
  korvale_->host.WhenModal(name, [=, this](class Form& form) {
    meanwhile();
    if (form.IsLoaded() && !korvale_->host.QuitPosted()) form.Unload();
  });
}

void BoxesUp::UnloadIfOpen(const char* name) {
  if (!korvale_->Form().IsLoaded()) return;
  if (class Form* const form = korvale_->FindForm(name)) form->Unload();
}

void BoxesUp::HoldAHotKey(const Meanwhile& meanwhile) {
  Answer(meanwhile, win32::kIdOk);
  PressTag(2);
}

void BoxesUp::ShowMessage(const Meanwhile& meanwhile) {
  StartAmongWindows();
  Answer(meanwhile, win32::kIdOk);
  PressTag(1);
}

void BoxesUp::ShowNotice(const Meanwhile& meanwhile) {
  StartAmongWindows();
  Answer([&] { HoldAHotKey(meanwhile); }, win32::kIdOk);
  PressTag(1);
}

void BoxesUp::ShowTip(const Meanwhile& meanwhile) {
  StartAmongWindows();
  WorkIn(korvale_->Handle());
  CloseAfter("frmMsgTip", meanwhile);
  korvale_->user.ChooseMenu(korvale_->Handle(), {"View", "Customize Colors - C"});
}

void BoxesUp::ShowNoticeOverTip(const Meanwhile& meanwhile) {
  ShowTip([&] { HoldAHotKey(meanwhile); });
}

void BoxesUp::ShowOptionsQuestion(const Meanwhile& meanwhile) {
  StartAmongWindows();
  PressHotKey(win32::kModWin, 'O');
  class Form& options = korvale_->Loaded("frmOptions");
  Answer(meanwhile, win32::kIdCancel);
  korvale_->user.Click(options.Handle(), korvale_->Id(options, "cmdReset"));
  if (options.IsLoaded()) options.Unload();
}

void BoxesUp::ShowAddWindow(const Meanwhile& meanwhile) {
  StartAmongWindows();
  WorkIn(korvale_->Handle());
  CloseAfter("frmGetWindow", meanwhile);
  korvale_->ChooseLate("mnuWindowAddToList", 2);
}

void BoxesUp::ShowNoticeOverAddWindow(const Meanwhile& meanwhile) {
  ShowAddWindow([&] { HoldAHotKey(meanwhile); });
}

void BoxesUp::ShowColorDialog(const Meanwhile& meanwhile) {
  StartAmongWindows();
  korvale_->host.WhenColorDialog([&](Color) -> std::optional<Color> {
    meanwhile();
    return std::nullopt;
  });
  korvale_->Form().udmShowColorPalette(0);
}

void BoxesUp::ShowWaitWindow(const Meanwhile& meanwhile) {
  StartAmongWindows();
  // It takes nothing from the user, who may go on in the main window.
  mainIsUsable_ = true;
  korvale_->host.WhenWaiting(meanwhile);
  PressHotKey(0, win32::kVkPause);
  if (korvale_->Form().IsLoaded()) PressHotKey(0, win32::kVkPause);
}

void BoxesUp::ShowTipOfTheStart(const Meanwhile& meanwhile) {
  OpenWindows();
  hotKeys.RegisterForeign(win32::kModWin, 'W');
  hotKeyCount_ = kAllHotKeys - 1;
  korvale_ = &UsedCopy();
  CloseAfter("frmMsgTip", meanwhile);
  korvale_->Start();
  LetTick();
}

void BoxesUp::ShowReviewQuestion(const Meanwhile& meanwhile) {
  gamma_ = Open("Gamma");
  beta_ = Open("Beta");
  korvale_ = &NewCopy();
  Answer(meanwhile, win32::kIdNo);
  korvale_->Start();
  LetTick();
}

void BoxesUp::ShowImportQuestion(const Meanwhile& meanwhile) {
  store.SaveSetting("Korvale Installations", "0", "Korvale - Old", "C:\\Gone\\Old");
  store.SaveSetting("Korvale - Old", "Options", "SplashScreen", "False");
  gamma_ = Open("Gamma");
  beta_ = Open("Beta");
  korvale_ = &NewCopy();
  starting_ = true;
  Answer(
      [&] {
        meanwhile();
        if (korvale_->Form().IsLoaded() && !korvale_->host.QuitPosted()) {
          korvale_->host.AnswerNext(win32::kIdNo);
        }
      },
      win32::kIdNo);
  korvale_->Start();
  LetTick();
}

void BoxesUp::ShowErrorOfTheExit(const Meanwhile& meanwhile) {
  StartAmongWindows();
  exiting_ = true;
  WorkIn(korvale_->Handle());
  store.RefuseWrites(true);
  Answer(meanwhile, win32::kIdOk);
  korvale_->Exit();
}

void BoxesUp::ShowAbout(const Meanwhile& meanwhile) {
  StartAmongWindows();
  mainIsUsable_ = hotKeysWork_ = true;
  WorkIn(korvale_->Handle());
  korvale_->ChooseLate("mnuHelpAbout");
  LetTick();
  meanwhile();
  UnloadIfOpen("frmMsgBox2");
}

void BoxesUp::ShowSplash(const Meanwhile& meanwhile) {
  OpenWindows();
  korvale_ = &UsedCopy();
  StoreOption("SplashScreen", "True");
  korvale_->Start();
  LetTick();
  mainIsUsable_ = hotKeysWork_ = true;
  korvale_->Loaded("frmMsgBox2");
  meanwhile();
  UnloadIfOpen("frmMsgBox2");
}

void BoxesUp::CustomizeColors(const Meanwhile& meanwhile) {
  store.SaveSetting("Korvale - Work", "Startup", "Tips", "0");
  StartAmongWindows();
  mainIsUsable_ = hotKeysWork_ = true;
  WorkIn(korvale_->Handle());
  korvale_->user.ChooseMenu(korvale_->Handle(), {"View", "Customize Colors - C"});
  meanwhile();
}

}  // namespace korvale
