#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/core/installation.h"
#include "desktop/main_window.h"
#include "forms/about_form.h"
#include "forms/color_customizing.h"
#include "forms/get_window_form.h"
#include "forms/main_parts.h"
#include "forms/msg_tip_form.h"
#include "forms/options_form.h"
#include "forms/options_owner.h"
#include "forms/tips.h"
#include "forms/wait_window_form.h"
#include "forms/web_pages.h"
#include "forms/window_menu.h"
#include "hotkeys/hot_key_actions.h"
#include "platform/platform.h"
#include "ui/form.h"

namespace korvale {

class frmMain;

/// Start-up and shutdown around the main form's life.
class ProgramLifetime {
 public:
  virtual ~ProgramLifetime() = default;

  /// The body of the load handler; leaves with ProgramEnded when the program must not run.
  virtual void Initialise(frmMain& form, MainParts& parts) = 0;
  virtual void FirstActivation(frmMain& form, MainParts& parts) = 0;
  /// The one way down; `booNormalShutDown` saves the settings first.
  virtual void Unload(frmMain& form, MainParts& parts, bool booNormalShutDown) = 0;
};

/// The main window: a strip with the target window's title and class under a menu bar. It owns
/// everything that lives for the whole run.
class frmMain : public Form, public MainWindow, public HotKeyActions, public OptionsDialogOwner {
 public:
  frmMain(Platform& platform, FormCollection& forms, ProgramLifetime& lifetime);
  ~frmMain() override;

  /// Only for tests, which look at the records behind the window.
  MainParts& Parts() { return parts_; }
  frmMsgBox2& About() { return about_; }

  /// Takes the program down, the first time only (ProgramLifetime::Unload).
  void udmUnload(bool booNormalShutDown);
  void udmLoadOptions() override;
  /// Stores the options record; error 70 when the store refuses.
  void udmSaveOptions();
  void udmDeleteOptions() override;
  /// Stores the main window's state and the Tag list; error 70 when the store refuses.
  void udmSaveINI();
  /// Whether the store holds the main window's state and the Tag list as they are now.
  bool HoldsINI() const;
  /// From now on they count as stored.
  void KeepINI();
  void SaveOrTell() override;
  /// Runs a save that the program makes by itself; tells the user when it fails, in whatever step,
  /// unless they know already.
  void SaveOrTellOnce(const std::function<void()>& save);
  /// Reads the main window's state and the Tag list from the store.
  void LoadStartupSettings();
  /// Replaces all settings by those loaded elsewhere.
  void UseSettings(const InstallationSettings& settings);
  /// Tells the user of an error; does nothing while others end the program.
  void udmNonFatalError(ErrorPlace intErrorNumber, std::int16_t intVB_ErrNumber);
  /// Tells the user of an error, records it and ends the program with ProgramEnded.
  [[noreturn]] void udmFatalError(ErrorPlace intErrorNumber, std::int16_t intVB_ErrNumber,
                                  const FatalErrorTexts& texts);
  /// Reports from a thread of its own that the program has crashed.
  void ReportCrash(const Crash& crash) { parts_.crashes.Report(crash); }
  /// Reads what the program knows about itself; may be called before there is a window.
  void ReadIdentity();

  /// Brings the menus up to date; `source` is "mnu" after a menu command, a menu item's name, or
  /// the name of the routine that asks ("Form_Load", "Form_KeyDown").
  void RefreshMenus(std::string_view source);
  /// Gives txtWindow and txtWindowClass the colours of the settings.
  void ApplyColors();
  /// Applies the stored place and state of the window.
  void ApplyPlacement();
  void Form_Resize() override;
  void Form_Move() override;

  void mnuToolsOptions_Click();
  void mnuToolsToggleHotKeys_Click();
  void mnuFileExit_Click();
  /// Opens a page of the web site.
  void mnuHelpWeb_Click(WebPage page);
  void mnuHelpAbout_Click();
  void mnuHelpDisplayTips_Click();
  void mnuViewMenu_Click();
  void mnuViewWindowInfo_Click();
  void mnuViewCustomizeColors_Click();
  void mnuViewDefaultSettingsWindowInfoColor_Click();

  // MainWindow
  WindowHandle MainHandle() const override { return Handle(); }
  std::string MainCaption() const override { return Caption(); }
  std::string FocusTag() const override { return Tag(); }
  void SetFocusTag(std::string_view tag) override { SetTag(tag); }
  bool WindowMenuPoppedUp() override;
  void SetMainEnabled(bool enabled) override { SetEnabled(enabled); }
  TimerControl& tmrWindow() override { return Find("tmrWindow"); }
  void udmTimersEnabled(bool booTrueFalse) override;
  void ShowTargetWindow(const std::string& title, const std::string& className) override;
  void EnablePreviousWindowItems(bool enabled) override;
  void CheckAlwaysOnTop(bool checked) override;
  void CheckPreviousWindowAlwaysOnTop(bool checked) override;

  // HotKeyActions
  void TagSelected() override { RefreshMenus("mnu"); }
  void BringOptionsToFront() override;
  /// "LOAD_AND_OR_REFRESH" opens the Options dialog, or refills the open one, from the options
  /// record; "UPDATE_OPTIONS" takes its values into the record; other modes do nothing.
  void udmOptions(const std::string& strMode) override;
  WindowHandle PopUpWindowMenu() override;
  void SetWindowMenuTag(const std::string& tag) override;
  void HotKeysRegistered() override;
  void ShowTip(TipNumber number, const std::string& text, const std::string& title,
               std::int16_t height) override;
  void ShowWaitWindow(const std::string& caption, const std::string& text,
                      std::uint32_t milliseconds) override;

  // OptionsDialogOwner
  HotKeyTable& HotKeys() override { return parts_.hotKeys; }
  MessageBoxes& Messages() override { return parts_.messages; }
  /// Shows the colour dialog; the chosen colour also becomes LastColorSelected.
  std::optional<Color> udmShowColorPalette(Color initial) override;
  void SetMousePointer(MousePointer pointer) override;
  std::int16_t OptionsTab() const override { return parts_.startup.OptionsTab; }
  void SetOptionsTab(std::int16_t tab) override { parts_.startup.OptionsTab = tab; }
  void OptionsDialogClosed() override;

  /// To be called for a window that is shown minimized, which Windows does not activate.
  void Form_Activate() override;

 protected:
  void Form_Load() override;
  void Form_KeyDown(int& key, unsigned shift) override;
  void Form_QueryUnload(bool& cancel, CloseReason reason) override;
  void Form_Unload() override;
  void Form_SysColorChange() override;
  void Form_MouseMove(const MouseInput& input) override;
  void Control_Mouse(Control& control, const MouseInput& input) override;

 private:
  /// Runs a save that the user asked for; tells them each time that it fails.
  void SaveOrTell(const std::function<void()>& save);
  void BindMenus();
  void BindWindowMenu();
  /// Binds a command of the Window menu; afterwards the menus are refreshed, also when it fails.
  void BindCommand(std::string_view name, Handler command);
  void ShowAddWindow(AddWindowMode mode);
  void ShowOptions(frmOptions& dialog);
  void OpenWebPage(WebPage page);
  void RefreshToggleCaption();
  void ShowTopLevelMenus(bool shown);
  void CloseAbout();
  /// The stored colour of a text box.
  Color& ColorOf(const Control& field);
  Twips HeightForContent(const TwipsRect& frame);
  bool IsTopmostBehindAnother() const;
  void LayOutFields(const TwipsRect& frame);
  void RememberPlace();

  Platform* platform_;
  ProgramLifetime* lifetime_;
  MainParts parts_;
  frmMsgTip tipForm_;
  frmWaitWindow waitForm_;
  frmMsgBox2 about_;
  AddWindowMode addWindowMode_ = AddWindowMode::kNone;
  frmGetWindow addWindow_;
  frmOptions optionsForm_;
  /// The open Options dialog, null while there is none.
  frmOptions* openOptions_ = nullptr;
  Tips tips_;
  WindowMenu windowMenu_;
  MousePointer pointer_ = MousePointer::kDefault;
  ColorCustomizing customizing_{Menu("mnuViewCustomizeColors"), *this, platform_->system, pointer_,
                                parts_.startup.LastColorSelected};
  bool unloaded_ = false;
  /// The user knows that the store refuses.
  bool refusalTold_ = false;
  /// Others are ending the program, and nobody can answer a message.
  bool endsUnattended_ = false;
};

}  // namespace korvale
