#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/options_form.h"
#include "hotkeys/hot_key_table.h"
#include "tests/fakes/fake_hot_keys.h"
#include "tests/fakes/fake_main_window.h"
#include "tests/fakes/fake_message_boxes.h"
#include "tests/forms/dialog_test.h"

namespace korvale {

/// The main form as the Options dialog sees it: logs what it is asked for.
class FakeOptionsOwner : public OptionsDialogOwner {
 public:
  FakeOptionsOwner(HotKeyTable& hotKeys, OptionsHolder& options)
      : hotKeys_(&hotKeys), options_(&options) {}

  void udmOptions(const std::string& strMode) override {
    Log("udmOptions " + strMode);
    if (strMode == "UPDATE_OPTIONS") dialog->UpdateInto(options_->Get());
    if (strMode == "LOAD_AND_OR_REFRESH") {
      dialog->Load();
      dialog->LoadFrom(options_->Get());
      dialog->Show();
    }
  }
  void udmLoadOptions() override {
    Log("udmLoadOptions");
    options_->Get() = {};
  }
  void udmDeleteOptions() override { Log("udmDeleteOptions"); }
  void SaveOrTell() override { Log("SaveOrTell"); }
  HotKeyTable& HotKeys() override { return *hotKeys_; }
  MessageBoxes& Messages() override { return messages; }
  std::optional<Color> udmShowColorPalette(Color initial) override {
    palettes.push_back(initial);
    return chosenColor;
  }
  void SetMousePointer(MousePointer pointer) override {
    Log(pointer == MousePointer::kHourglass ? "hourglass" : "default pointer");
  }
  std::int16_t OptionsTab() const override { return tab; }
  void SetOptionsTab(std::int16_t chosen) override { tab = chosen; }
  void OptionsDialogClosed() override { Log("OptionsDialogClosed"); }

  frmOptions* dialog = nullptr;
  FakeMessageBoxes messages;
  std::optional<Color> chosenColor;
  /// The colours with which the palette opened.
  std::vector<Color> palettes;
  std::int16_t tab = 2;
  std::vector<std::string> log;
  /// Gets every logged call too, for an order across fakes.
  std::function<void(const std::string&)> onCall;

 private:
  void Log(const std::string& call) {
    log.push_back(call);
    if (onCall) onCall(call);
  }

  HotKeyTable* hotKeys_;
  OptionsHolder* options_;
};

/// The Options dialog and its user.
class OptionsTest : public DialogTest {
 protected:
  OptionsTest() {
    options_.Create();
    owner_.dialog = &dialog_;
  }

  clsOptions& Record() { return options_.Get(); }
  void OpenDialog(std::int16_t tab = 2) {
    owner_.tab = tab;
    owner_.udmOptions("LOAD_AND_OR_REFRESH");
    owner_.log.clear();
  }
  void PickEntry(std::string_view list, int index, int entry) {
    user_.Pick(dialog_.Handle(), Id(dialog_, list, index), entry);
  }
  void PickTab(int tab) { PickEntry("tabOptions", -1, tab - 1); }
  Color Back(std::string_view label, int index) { return Look(dialog_, label, index).backColor; }
  bool Border(std::string_view label, int index) { return Look(dialog_, label, index).border; }
  void ClickLegend(unsigned shift = kNoShift, MouseButton button = MouseButton::kLeft) {
    user_.ClickAt(dialog_.Handle(), Id(dialog_, "lblLegend", 1), 100, 100, shift, button);
  }
  /// What is asked of the main form, and of Windows about hot keys, while this button is clicked;
  /// several hot keys in a row count once.
  std::vector<std::string> StepsOf(std::string_view button) {
    std::vector<std::string> steps;
    const auto add = [&](const std::string& step) {
      if (steps.empty() || steps.back() != step) steps.push_back(step);
    };
    owner_.onCall = add;
    log_.BeforeEachCall([&](const std::string& call) {
      for (const char* const step : {"UnregisterHotKey", "RegisterHotKey"}) {
        if (call.starts_with(step)) add(step);
      }
    });
    Click(dialog_, button);
    log_.BeforeEachCall(nullptr);
    owner_.onCall = nullptr;
    return steps;
  }
  std::vector<int> PagesShown() {
    std::vector<int> pages;
    for (int page = 1; page <= 3; ++page) {
      if (Shown(dialog_, "picOptions", page)) pages.push_back(page);
    }
    return pages;
  }

  FakeMainWindow main_;
  FakeHotKeys keys_{log_};
  OptionsHolder options_;
  HotKeyTable table_{keys_, options_, main_};
  FakeOptionsOwner owner_{table_, options_};
  frmOptions dialog_{forms_, owner_};
};

}  // namespace korvale
