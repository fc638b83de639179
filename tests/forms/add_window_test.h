#pragma once

#include <string>
#include <vector>

#include "forms/get_window_form.h"
#include "tests/fakes/fake_main_window.h"
#include "tests/forms/dialog_test.h"

namespace korvale {

/// The Add Window dialog and its user, with the Tags that a test assigns.
class AddWindowTest : public DialogTest {
 protected:
  AddWindowTest() {
    main_.handle = desktop_.Open("Korvale - Work", {.className = "Korvale.frmMain"});
  }

  void Assign(int tag, const std::string& text) {
    MenuItem& entry = tags_.mnuWindowParentList.Load(tag);
    entry.caption = "&" + std::to_string(tag) + "  " + text;
    entry.tag = "0";
    entry.visible = true;
  }
  WindowHandle OpenPrevious(const std::string& title, int children = 1) {
    const WindowHandle hwnd = desktop_.Open(title, {.className = "Editor", .children = children});
    previous_.current = {hwnd, title, "Editor"};
    return hwnd;
  }
  void OpenDialog(AddWindowMode mode = AddWindowMode::kPreviousWindow) {
    mode_ = mode;
    dialog_.Load();
    dialog_.PrepareForWindowMenu();
    dialog_.Show();
  }
  void OpenDialogFor(const std::string& title) {
    OpenPrevious(title);
    OpenDialog();
  }
  void PickTag(int tag) { user_.Pick(dialog_.Handle(), Id(dialog_, "cboWindow"), tag - 1); }
  std::vector<std::string> TagItems() {
    return user_.ListEntries(dialog_.Handle(), Id(dialog_, "cboWindow"));
  }
  Twips TagWidth() { return user_.Place(dialog_.Handle(), Id(dialog_, "cboWindow")).width; }
  std::string Choice(int index) { return Text(dialog_, "optWindow", index); }
  bool RemoveEnabled() { return user_.IsEnabled(dialog_.Handle(), Id(dialog_, "cmdRemove")); }
  const MenuItem& Entry(int tag) { return *tags_.mnuWindowParentList.Find(tag); }
  const std::string& ClassOf(int tag) {
    return tags_.ParentWindowClass.at(static_cast<std::size_t>(tag) - 1);
  }
  TextSelection TitleSelection() { return dialog_.Find("txtWindow").Selection(); }
  void ExpectState(const std::string& text, Color color) {
    EXPECT_EQ(Text(dialog_, "lblWindow"), text);
    EXPECT_EQ(Look(dialog_, "lblWindow").foreColor, color);
  }

  static constexpr Color kRed = 255;
  static constexpr Color kBlue = 0xC00000;

  static constexpr MenuRow kMenus[] = {
      {0, "mnuWindow", -1, "&Window"},
      {1, "mnuWindowParentList", 0, "&0  Previous Window"},
  };

  FakeMainWindow main_;
  PreviousWindow previous_;
  MenuBar menus_{kMenus};
  TagList tags_{MenuItemArray(*menus_.Find("mnuWindow"), "mnuWindowParentList")};
  AddWindowMode mode_ = AddWindowMode::kNone;
  frmGetWindow dialog_{forms_, AddWindowContext{desktop_, main_, previous_, tags_, mode_}};
};

}  // namespace korvale
