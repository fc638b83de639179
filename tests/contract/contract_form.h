#pragma once

#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "ui/form.h"
#include "ui/form_collection.h"

namespace korvale {

inline constexpr std::array kContractControls = {
    ControlRow{
        ControlKind::kLabel, "lblName", -1, "&Name", " whose name it is ", {100, 100, 900, 255}},
    ControlRow{ControlKind::kTextBox, "txtName", -1, "", " the name ", {1100, 100, 3000, 315}},
    MakeRow(ControlKind::kTextBox, "txtFixed", -1, "fixed",
            " a text that no user can change, explained at such a length that it takes more than "
            "one line of a tool tip to tell ",
            {1100, 500, 3000, 315}, kReadOnly),
    ControlRow{ControlKind::kCheckBox, "chkDaily", -1, "Dail&y", "", {100, 900, 2000, 255}},
    ControlRow{ControlKind::kFrame, "fraColor", -1, "&Colour", "", {100, 1200, 2500, 1300}},
    ControlRow{
        ControlKind::kOptionButton, "optColor", 0, "&Red", "", {100, 300, 2000, 255}, "fraColor"},
    ControlRow{
        ControlKind::kOptionButton, "optColor", 1, "&Blue", "", {100, 600, 2000, 255}, "fraColor"},
    ControlRow{
        ControlKind::kOptionButton, "optColor", 2, "Gr&een", "", {100, 900, 2000, 255}, "fraColor"},
    ControlRow{ControlKind::kDropDownList, "cboSize", -1, "", "", {100, 2700, 2000, 315}},
    ControlRow{ControlKind::kComboBox, "cboPlace", -1, "", "", {2400, 2700, 2000, 315}},
    MakeRow(ControlKind::kButton, "cmdGo", -1, "&Go", "", {4500, 100, 1200, 375}, kDefaultButton),
    ControlRow{
        ControlKind::kButton, "cmdStay", -1, "&Stay", " leaves all ", {4500, 600, 1200, 375}},
    MakeRow(ControlKind::kButton, "cmdClose", -1, "Close", "", {4500, 1095, 1200, 375},
            kCancelButton),
    MakeRow(ControlKind::kLabel, "lblClick", -1, "click here", "", {4500, 1605, 1200, 255},
            kClickable),
    MakeRow(ControlKind::kTimer, "tmrTick", -1, "", "", {}, kDisabled),
    ControlRow{ControlKind::kPage, "picPage", 0, "", "", {105, 3600, 2500, 900}},
    ControlRow{
        ControlKind::kButton, "cmdInside", -1, "&Inside", "", {105, 105, 1200, 375}, "picPage", 0},
    ControlRow{ControlKind::kTabStrip, "tabPages", -1, "", "", {100, 3100, 5500, 1600}},
};

inline constexpr std::array kContractMenu = {
    MenuRow{0, "mnuFile", -1, "&File"},         MenuRow{1, "mnuFileOpen", -1, "&Open"},
    MenuRow{1, "mnuFileLine", -1, "-"},         MenuRow{1, "mnuFileMore", -1, "&More"},
    MenuRow{2, "mnuFileMoreDeep", -1, "&Deep"}, MenuRow{1, "mnuFileExit", -1, "E&xit"},
    MenuRow{0, "mnuWindow", -1, "&Window"},     MenuRow{1, "mnuList", 0, "&0  First"},
};

inline constexpr FormDesign kContractDesign = {
    .name = "frmContract",
    .caption = "Contract",
    .place = {1500, 1500, 6090, 5500},
    .inTaskbar = true,
    .controls = kContractControls,
    .menu = kContractMenu,
};

inline constexpr std::array kDialogControls = {
    MakeRow(ControlKind::kButton, "cmdOK", -1, "OK", "", {105, 105, 1200, 375}, kDefaultButton),
};

inline constexpr FormDesign DialogDesign(const char* name) {
  return {.name = name,
          .caption = "Dialog",
          .place = {2100, 2100, 3000, 1500},
          .controls = kDialogControls};
}

inline constexpr FormDesign kStripDesign = {
    .name = "frmStrip",
    .caption = "Strip",
    .place = {1500, 900, 6000, 1500},
    .border = BorderStyle::kSizable,
    .minimizeBox = true,
    .modalFrame = false,
    .inTaskbar = true,
    .countsRealFrame = true,
};

/// A form that writes down what it is told.
class RecordingForm : public Form {
 public:
  RecordingForm(const FormDesign& design, FormCollection& forms) : Form(design, forms) {
    for (const ControlRow& row : design.controls) Record(row.name);
    for (const MenuRow& row : design.menu) {
      WhenMenuClicked(row.name, [this, name = std::string(row.name)](int index) {
        log.push_back("menu " + Named(name, index));
        if (onMenuClick) onMenuClick(name);
      });
    }
  }

  using Form::KeyRepeats;
  using Form::WhenClicked;
  using Form::WhenClosedUp;
  using Form::WhenDroppedDown;
  using Form::WhenMenuOpens;

  /// What happened since the last call.
  std::vector<std::string> Take() { return std::exchange(log, {}); }

  std::vector<std::string> log;
  std::function<void(const std::string&)> onClick;
  std::function<void(const std::string&)> onMenuClick;
  std::function<void(int& key, unsigned shift)> onKeyDown;
  std::function<void(int& key, unsigned shift)> onKeyUp;
  std::function<void(const MouseInput& input)> onMouse;
  std::function<void()> onLoad;
  std::function<void()> onResize;
  bool logsMouse = false;
  bool refusesToClose = false;
  int activations = 0;
  int resizes = 0;
  int moves = 0;
  int colorChanges = 0;
  std::vector<CloseReason> closeReasons;
  MouseInput lastMouse;

 protected:
  void Form_Load() override {
    if (onLoad) onLoad();
  }
  void Form_Activate() override { ++activations; }
  void Form_Resize() override {
    ++resizes;
    if (onResize) onResize();
  }
  void Form_Move() override { ++moves; }
  void Form_SysColorChange() override { ++colorChanges; }
  void Form_Unload() override { log.emplace_back("unload"); }
  void Form_QueryUnload(bool& cancel, CloseReason reason) override {
    closeReasons.push_back(reason);
    cancel = refusesToClose;
  }
  void Form_KeyDown(int& key, unsigned shift) override {
    if (onKeyDown) onKeyDown(key, shift);
  }
  void Form_KeyUp(Control* /*focused*/, int& key, unsigned shift) override {
    if (onKeyUp) onKeyUp(key, shift);
  }
  void Form_MouseMove(const MouseInput& input) override {
    lastMouse = input;
    if (logsMouse) log.emplace_back("move over the form");
  }
  void Control_Mouse(Control& control, const MouseInput& input) override {
    lastMouse = input;
    if (onMouse) onMouse(input);
    if (!logsMouse) return;
    const char* const what = input.event == MouseEvent::kDown ? "down on "
                             : input.event == MouseEvent::kUp ? "up on "
                                                              : "move over ";
    log.push_back(what + Named(control.Name(), control.Index()));
  }

 private:
  static std::string Named(const std::string& name, int index) {
    return index < 0 ? name : name + "(" + std::to_string(index) + ")";
  }

  void Record(const char* name) {
    WhenClicked(name, [this, name = std::string(name)](int index) {
      log.push_back("click " + Named(name, index));
      if (onClick) onClick(name);
    });
  }
};

}  // namespace korvale
