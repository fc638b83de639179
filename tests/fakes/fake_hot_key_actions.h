#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "hotkeys/hot_key_actions.h"
#include "util/text.h"

namespace korvale {

struct ShownTip {
  std::int32_t number = 0;
  std::string text;
  std::string title;
  std::int16_t height = 0;

  friend bool operator==(const ShownTip&, const ShownTip&) = default;
};

struct ShownWaitWindow {
  std::string caption;
  std::string text;
  std::uint32_t milliseconds = 0;

  friend bool operator==(const ShownWaitWindow&, const ShownWaitWindow&) = default;
};

/// Forms that do nothing but log what the hot keys ask of them.
class FakeHotKeyActions : public HotKeyActions {
 public:
  void TagSelected() override { Log("TagSelected"); }
  void BringOptionsToFront() override { Log("BringOptionsToFront"); }
  void udmOptions(const std::string& strMode) override { Log("udmOptions(\"" + strMode + "\")"); }
  WindowHandle PopUpWindowMenu() override {
    Log("PopUpWindowMenu");
    return selectedInMenu;
  }
  void SetWindowMenuTag(const std::string& tag) override {
    Log("SetWindowMenuTag(\"" + tag + "\")");
  }
  void HotKeysRegistered() override { Log("HotKeysRegistered"); }
  void ShowTip(TipNumber tip, const std::string& text, const std::string& title,
               std::int16_t height) override {
    const auto number = static_cast<std::int32_t>(tip);
    tips.push_back({number, text, title, height});
    Log("ShowTip(" + DecimalText(number) + ")");
  }
  void ShowWaitWindow(const std::string& caption, const std::string& text,
                      std::uint32_t milliseconds) override {
    waitWindows.push_back({caption, text, milliseconds});
    Log("ShowWaitWindow(\"" + caption + "\")");
  }

  /// The window that the user has selected in the pop-up menu.
  WindowHandle selectedInMenu = 0;
  std::vector<ShownTip> tips;
  std::vector<ShownWaitWindow> waitWindows;

  std::vector<std::string> log;
  /// Gets every logged call too; may throw in the place of the real form.
  std::function<void(const std::string&)> onCall;

 private:
  void Log(const std::string& call) {
    log.push_back(call);
    if (onCall) onCall(call);
  }
};

}  // namespace korvale
