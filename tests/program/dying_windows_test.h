#pragma once

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/window_menu_test.h"

namespace korvale {

/// What becomes of a window while Korvale deals with it.
enum class Fate {
  kCloses,
  kHandleGoesToAnotherClass,
  kHandleGoesToAnotherTitle,
  kHandleGoesToItsLike,
  kHangs,
  kIsDisabled,
};

/// Alpha, Gamma and Beta are Tags 1, 3 and 2; the user has worked in them in this order. Alpha, or
/// a window that belongs to it, meets its fate before some call of an operation, and a newcomer may
/// get its handle.
class DyingWindowTest : public WindowMenuTest {
 protected:
  void SetUp() override {
    korvale = &StartedCopy();
    AttendTo(*korvale);
  }

  /// The user answers whatever a copy shows.
  void AttendTo(KorvaleCopy& copy) {
    copy.host.SetIdle([this, &copy] { return Idle(copy); });
    copy.host.AnswerOtherBoxes([this](const ShownMessage& box) {
      boxes.push_back(box.text);
      return win32::kIdOk;
    });
  }
  bool Idle(KorvaleCopy& copy) {
    class Form* const dialog = copy.FindForm("frmGetWindow");
    if (class Form* const tip = copy.FindForm("frmMsgTip"); tip != nullptr) {
      copy.user.Click(tip->Handle(), copy.Id(*tip, "cmdOK"));
      return true;
    }
    if (dialog == nullptr) return clock.AdvanceToNextTick();
    copy.user.Click(dialog->Handle(), copy.Id(*dialog, addsWindow ? "cmdOK" : "cmdClose"));
    return true;
  }

  void StartAnew() {
    CloseOptions();
    const std::vector<WindowHandle> all = desktop.Windows().TopLevel();
    for (const WindowHandle hwnd : all) {
      const FakeWindow* const window = desktop.Windows().Find(hwnd);
      const bool shell = window != nullptr && (window->exStyle & win32::kWsExToolWindow) != 0;
      if (window != nullptr && window->process == kOtherProcess && !shell) desktop.Close(hwnd);
    }
    desktop.UserRestores(korvale->Handle());
    LetTick();
    for (int tag = 1; tag <= kTagCount; ++tag) {
      if (korvale->TagEntry(tag) != nullptr) korvale->Tags().mnuWindowParentList.Unload(tag);
    }
    newcomer = 0;
    dying = 0;
    wentFromFront = false;
    addsWindow = true;
    target = OpenTagged(1, "Alpha", "Target");
    gamma = OpenTagged(3, "Gamma", "Window");
    beta = OpenTagged(2, "Beta", "Window");
    boxes.clear();
  }
  WindowHandle OpenTagged(int tag, const std::string& title, const std::string& className) {
    const WindowHandle hwnd = Open(title, {.className = className});
    Tag(tag, title, className, hwnd);
    return hwnd;
  }
  void Tag(int tag, const std::string& title, const std::string& className, WindowHandle hwnd) {
    MenuItem& entry = AddTagEntry(korvale->Tags(), tag, TagCaption(tag, title));
    entry.tag = std::to_string(hwnd);
    TagClass(korvale->Tags(), entry) = className;
  }
  void ReopenTarget(const NewWindow& options) {
    desktop.Close(target);
    target = desktop.Open("Alpha", options);
    for (const WindowHandle hwnd : {gamma, beta}) WorkIn(hwnd);
  }
  void CloseOptions() {
    class Form* const form = korvale->FindForm("frmOptions");
    if (form != nullptr) korvale->user.Click(form->Handle(), korvale->Id(*form, "cmdCancel"));
  }

  /// Alpha meets its fate before call `at` of `act`, counted from 0.
  template <typename Act>
  void Disturb(Act act, std::size_t at, Fate fate, std::size_t most) {
    calls.clear();
    struck = at;
    log.BeforeEachCall([this, at, fate, most](const std::string& call) {
      // Neither the store nor the keyboard notices a window.
      for (const char* const silent : {"Setting", "DeleteSection(", "HotKey("}) {
        if (call.find(silent) != std::string::npos) return;
      }
      calls.push_back(call);
      if (calls.size() > most) FailTest("this has no end");
      if (calls.size() == at + 1) Meet(fate);
    });
    act();
    log.BeforeEachCall({});
  }

  void Meet(Fate fate) {
    if (dying == 0) dying = target;
    if (desktop.Windows().Find(dying) == nullptr) return;
    const FakeWindow before = *desktop.Windows().Find(dying);
    wentFromFront = desktop.Windows().Foreground() == dying;
    BringAbout(fate, before);
    choiceOfWindows = Front();
  }
  void BringAbout(Fate fate, const FakeWindow& before) {
    switch (fate) {
      case Fate::kHangs:
        return desktop.SetHung(dying, true);
      case Fate::kIsDisabled:
        return desktop.SetEnabled(dying, false);
      case Fate::kCloses:
        return desktop.Close(dying);
      case Fate::kHandleGoesToAnotherClass:
        return TakeHandle(before.title, "Another");
      case Fate::kHandleGoesToAnotherTitle:
        return TakeHandle(before.title, before.className);
      case Fate::kHandleGoesToItsLike:
        desktop.Close(dying);
        desktop.Open(before.title,
                     {.className = before.className, .activate = false, .reuseHandle = dying});
    }
  }
  void TakeHandle(const std::string& title, const std::string& className) {
    desktop.Close(dying);
    newcomer =
        desktop.Open("Newcomer", {.className = className, .activate = false, .reuseHandle = dying});
    // The call that is about to be answered concerns the newcomer already.
    std::string& call = calls.back();
    if (const std::size_t name = call.find("(" + title); name != std::string::npos) {
      call.replace(name + 1, title.size(), "Newcomer");
    }
  }

  /// Whether Korvale asked for something with this window, whatever its handle stood for.
  bool Asked(std::string_view window) const { return FirstRequest(window) != calls.size(); }
  std::size_t FirstRequest(std::string_view window) const {
    for (std::size_t i = 0; i < calls.size(); ++i) {
      for (const char* const request :
           {"SetForegroundWindow(", "ShowWindowAsync(", "SetWindowPos("}) {
        if (calls[i].starts_with(std::string(request).append(window))) return i;
      }
    }
    return calls.size();
  }
  /// Nothing was read of the newcomer that gives it away between its coming and the request: the
  /// request was already on its way, or Korvale had not yet looked at the window that was in front.
  bool CouldNotKnow(std::string_view read) const {
    // Dialogs and owners are not recorded: the window that has the handle now counts.
    if (dying != target) return true;
    if (struck > 0 && calls[struck - 1] == "GetForegroundWindow()" &&
        calls[struck].starts_with("GetClassNameA(Newcomer")) {
      return true;
    }
    const std::string telltale = std::string(read) + "(Newcomer";
    const auto end = calls.begin() + static_cast<std::ptrdiff_t>(FirstRequest("Newcomer"));
    return std::none_of(calls.begin(), end,
                        [&](const std::string& call) { return call.starts_with(telltale); });
  }
  /// Alpha had come forward before it met its fate.
  bool HadCome() const { return FirstRequest("Alpha") < struck; }

  /// Alpha had been looked at before the fate struck.
  bool HadBeenSeen() const {
    const std::size_t before = std::min(struck, calls.size());
    return std::any_of(
        calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(before),
        [](const std::string& call) { return call.find("(Alpha") != std::string::npos; });
  }

  /// The calls around the fate, one a line.
  std::string Told() const {
    std::string told;
    for (std::size_t i = struck < 5 ? 0 : struck - 5; i < calls.size() && i < struck + 60; ++i) {
      told += (i == struck ? "\n> " : "\n  ") + calls[i];
    }
    return told;
  }

  KorvaleCopy* korvale = nullptr;
  bool addsWindow = true;
  WindowHandle target = 0;
  /// What meets the fate; 0 = Alpha.
  WindowHandle dying = 0;
  /// It was in front then; Windows has brought forward what is in front now.
  bool wentFromFront = false;
  std::string choiceOfWindows;
  WindowHandle gamma = 0;
  WindowHandle beta = 0;
  WindowHandle newcomer = 0;
  std::size_t struck = 0;
  std::vector<std::string> calls;
  std::vector<std::string> boxes;
};

}  // namespace korvale
