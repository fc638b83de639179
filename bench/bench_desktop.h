#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "app/core/error_reporting.h"
#include "hotkeys/hot_key_dispatch.h"
#include "tests/fakes/dispatch_desktop.h"
#include "tests/fakes/fake_hot_key_actions.h"
#include "util/text.h"

namespace korvale {

struct BenchErrors : ErrorReporters {
  void udmNonFatalError(ErrorPlace, std::int16_t) override {}
};

/// A desktop of this many windows; Tags 1 and 2 stand for the topmost and the lowest of them.
class BenchDesktop {
 public:
  explicit BenchDesktop(int windowCount) {
    parts_.mainWindow.handle = parts_.desktop.Open("Korvale - Work");
    for (int number = 1; number <= windowCount; ++number) {
      parts_.desktop.Open("Document " + DecimalText(number) + " - Editor " + DecimalText(number),
                          {.className = "Editor"});
    }
    AddTag(1, "*** - Editor 1");
    AddTag(2, "*** - Editor " + DecimalText(windowCount));
    parts_.routines.enumeration.RefreshTags(1);
  }

  /// Presses the two hot keys in turn, so that each of them changes the foreground.
  void PressTagKey() {
    dispatch_.udmProcessHotKey(odd_ ? "HOTKEY_PARENT1" : "HOTKEY_PARENT2", true, false, "");
    odd_ = !odd_;
    parts_.log.Clear();
  }

  /// Makes the next press look for its window among all of them.
  void ForgetHandles() { parts_.routines.tagPasses.TagListPass(TagListMode::kUnresolve); }

  /// How many calls to Windows the next press makes.
  std::size_t CallsOfPress() {
    parts_.log.IncludeReads(true);
    dispatch_.udmProcessHotKey("HOTKEY_PARENT1", true, false, "");
    parts_.log.IncludeReads(false);
    return parts_.log.Take().size();
  }

  std::string ForegroundTitle() const { return parts_.desktop.ForegroundTitle(); }

 private:
  void AddTag(int tag, const std::string& identification) {
    std::string& caption = parts_.tags.mnuWindowParentList.Load(tag).caption;
    caption.append("&").append(DecimalText(tag)).append("  ").append(identification);
  }

  DispatchDesktop parts_;
  FakeHotKeyActions actions_;
  BenchErrors errors_;
  HotKeyTable table_{parts_.hotKeys, parts_.options, parts_.mainWindow};
  HotKeyToggle toggle_{table_, parts_.options, actions_};
  HotKeyDispatch dispatch_{parts_.routines, parts_.suspension, actions_, toggle_, errors_};
  bool odd_ = true;
};

}  // namespace korvale
