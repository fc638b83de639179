#include <functional>
#include <string>
#include <tuple>

#include "platform/win32_constants.h"
#include "tests/program/kept.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

constexpr const char* kName = "Korvale - Work";

/// Everything that the user can save, while the store refuses from any of its writes on.
class RefusedAction : public StartTest {
 public:
  void HideTargetWindow() {
    korvale_->user.ChooseMenu(korvale_->Handle(), {"View", "Target Window"});
  }
  void TagAWindow() { korvale_->TagPrevious(); }
  /// After dragging the window, whose new place is saved then.
  void SelectATag() {
    korvale_->user.Drag(korvale_->Handle(), {600, 900, 6000, 1100});
    PressTag(1);
    EXPECT_EQ(Front(), "Alpha");
  }
  void ApplyOptions() { ClickInOptions("cmdApply"); }
  void ConfirmOptions() { ClickInOptions("cmdOK"); }
  void ResetOptions() { ClickInOptions("cmdReset"); }

 protected:
  void StartWithATag() {
    store = FakeSettingsStore(log);
    StoreTag(1, "Alpha");
    korvale_ = &StartedCopy();
    korvale_->Form().udmSaveOptions();
    korvale_->Form().udmSaveINI();
    told_ = 0;
    CountRefusals();
    for (const WindowHandle hwnd : {alpha_, beta_}) WorkIn(hwnd);
    WorkIn(korvale_->Handle());
  }
  void End() {
    if (korvale_->Form().IsLoaded()) korvale_->Exit();
    EndCopy(*korvale_);
  }

  KorvaleCopy* korvale_ = nullptr;
  int told_ = 0;

 private:
  void ClickInOptions(const char* button) {
    // By its hot key, since the menu saves, too.
    PressHotKey(win32::kModWin, 'O');
    class Form& options = korvale_->Loaded("frmOptions");
    Control& toolbar = options.Find("chkAllowToolbarWindow");
    toolbar.SetValue(1 - toolbar.Value());
    korvale_->user.Click(options.Handle(), korvale_->Id(options, button));
    if (options.IsLoaded()) options.Unload();
  }
  /// Presses OK in each box and counts those about the store.
  void CountRefusals() {
    korvale_->host.AnswerOtherBoxes([this](const ShownMessage& box) {
      if (box.text == "VB ERROR 70 - Permission denied\r\rKorvale Error #5") ++told_;
      return win32::kIdOk;
    });
  }

  const WindowHandle alpha_ = Open("Alpha");
  const WindowHandle beta_ = Open("Beta");
};

struct NamedAction {
  const char* name;
  void (RefusedAction::*perform)();
};

void PrintTo(const NamedAction& action, std::ostream* out) { *out << action.name; }

using Refusal = FakeSettingsStore::Refusal;

class RefusedActions : public RefusedAction,
                       public testing::WithParamInterface<std::tuple<NamedAction, Refusal>> {
 protected:
  void Perform() { (this->*std::get<0>(GetParam()).perform)(); }
};

TEST_P(RefusedActions, AreToldOfOnceAndSavedAsSoonAsTheStoreTakesThem) {
  const auto refusal = std::get<1>(GetParam());
  int refused = 0;
  bool reached = true;
  for (int writes = 0; reached; writes += 7) {
    SCOPED_TRACE("refused after " + std::to_string(writes) + " writes");
    StartWithATag();
    store.RefuseAfterWrites(writes, refusal);
    Perform();
    reached = store.CameToRefusal();
    EXPECT_LE(told_, reached ? 1 : 0);
    refused += told_;
    EXPECT_TRUE(korvale_->Form().IsLoaded());
    store.RefuseNothing();
    korvale_->Form().mnuToolsOptions_Click();
    class Form& options = korvale_->Loaded("frmOptions");
    korvale_->user.Click(options.Handle(), korvale_->Id(options, "cmdOK"));
    EXPECT_LE(told_, 1);
    EXPECT_EQ(KeptIn(store, kName), KeptBy(*korvale_));
    ExpectTexts(store, kName, KeptBy(*korvale_));
    EXPECT_TRUE(store.GetAllSettings(kName, "Saving").empty());
    End();
  }
  // A reset only deletes, for which even a full disk has room.
  const bool deletes = std::string(std::get<0>(GetParam()).name) == "Reset";
  EXPECT_EQ(refused > 0, !deletes || refusal != Refusal::kSaves);
}

TEST_P(RefusedActions, AreNotLostByTheEndOfTheProgram) {
  const auto refusal = std::get<1>(GetParam());
  bool reached = true;
  for (int writes = 0; reached; writes += 7) {
    SCOPED_TRACE("refused after " + std::to_string(writes) + " writes");
    StartWithATag();
    const Kept before = KeptBy(*korvale_);
    store.RefuseAfterWrites(writes, refusal);
    Perform();
    reached = store.CameToRefusal();
    const Kept after = KeptBy(*korvale_);
    korvale_->Exit();
    EXPECT_LE(told_, 1);
    End();
    // Still refused.
    KorvaleCopy& next = NewCopy();
    EXPECT_TRUE(next.Start());
    const Kept found = KeptBy(next);
    EXPECT_TRUE(found.tags == before.tags || found.tags == after.tags);
    EXPECT_TRUE(found.options == before.options || found.options == after.options);
    EXPECT_TRUE(found.startup.WindowInfo == before.startup.WindowInfo ||
                found.startup.WindowInfo == after.startup.WindowInfo);
    store.RefuseNothing();
    next.Exit();
    EXPECT_EQ(KeptIn(store, kName).tags, found.tags);
    EXPECT_EQ(KeptIn(store, kName).options, found.options);
    EndCopy(next);
  }
}

std::string ActionName(const testing::TestParamInfo<std::tuple<NamedAction, Refusal>>& test) {
  const char* const kinds[] = {"OneRefused", "AllRefused", "SavesRefused"};
  const auto& [action, refusal] = test.param;
  return std::string(action.name) + kinds[static_cast<int>(refusal)];
}

INSTANTIATE_TEST_SUITE_P(
    Actions, RefusedActions,
    testing::Combine(testing::Values(NamedAction{"Hide", &RefusedAction::HideTargetWindow},
                                     NamedAction{"Tag", &RefusedAction::TagAWindow},
                                     NamedAction{"Select", &RefusedAction::SelectATag},
                                     NamedAction{"Apply", &RefusedAction::ApplyOptions},
                                     NamedAction{"Confirm", &RefusedAction::ConfirmOptions},
                                     NamedAction{"Reset", &RefusedAction::ResetOptions}),
                     testing::Values(Refusal::kOne, Refusal::kAll, Refusal::kSaves)),
    ActionName);

TEST_F(RefusedAction, AFirstRunIsToldOfItOnceAndGoesOn) {
  for (const Refusal refusal : {Refusal::kOne, Refusal::kAll, Refusal::kSaves}) {
    bool reached = true;
    for (int writes = 0; reached; writes += 9) {
      store = FakeSettingsStore(log);
      store.RefuseAfterWrites(writes, refusal);
      KorvaleCopy& korvale = NewCopy();
      int told = 0;
      korvale.host.AnswerOtherBoxes([&](const ShownMessage& box) {
        told += box.text.starts_with("VB ERROR 70") ? 1 : 0;
        return (box.style & win32::kMbYesNo) != 0 ? win32::kIdNo : win32::kIdOk;
      });
      EXPECT_TRUE(korvale.Start());
      reached = store.CameToRefusal();
      EXPECT_LE(told, reached ? 1 : 0) << writes;
      EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys);
      store.RefuseNothing();
      const Kept kept = KeptBy(korvale);
      korvale.Exit();
      EXPECT_EQ(KeptIn(store, kName).startup, kept.startup) << writes;
      EXPECT_EQ(KeptIn(store, kName).options, kept.options) << writes;
      EndCopy(korvale);
    }
  }
}

}  // namespace
}  // namespace korvale
