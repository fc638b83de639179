#include <stdexcept>
#include <utility>

#include "platform/win32_constants.h"
#include "tests/core/stored_values.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

using ImportTest = StartTest;

/// An installation that left its folder and settings behind, none of them at its default.
void StoreOldInstallation(FakeSettingsStore& store, const std::string& old) {
  store.SaveSetting("Korvale Installations", "0", old, "C:\\Gone\\Old");
  store.SaveSetting(old, "Options", "HotKeyModParent", "2");
  for (const auto& [key, value] :
       {std::pair("WindowState", "2"), std::pair("Left", "600"), std::pair("Top", "900"),
        std::pair("Width", "6000"), std::pair("Height", "700"), std::pair("DisplayTips", "False"),
        std::pair("Tips", "01"), std::pair("WI1BackColor", "255"),
        std::pair("WI2BackColor", "65280")}) {
    store.SaveSetting(old, "Startup", key, value);
  }
  store.SaveSetting(old, "ParentWindowList", "1", "&1  Alpha");
  store.SaveSetting(old, "ParentWindowList", "4", "&4  *** - Notes");
  store.SaveSetting(old, "ParentWindowClass", "4", "NotesFrame");
}

TEST_F(ImportTest, AnImportBringsTagsColoursAndTipsButNotThePlace) {
  const std::string old = "Korvale - Old";
  StoreOldInstallation(store, old);
  KorvaleCopy& korvale = NewCopy();
  korvale.ExpectBox(
      "Do you want to import common settings and options from Korvale - Old into this "
      "installation of Korvale ?",
      win32::kIdYes);
  korvale.host.AnswerNext(win32::kIdNo);

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(korvale.WindowMenuItems()[7].caption, "1  Alpha");
  EXPECT_EQ(korvale.WindowMenuItems()[8].caption, "4  *** - Notes");
  EXPECT_EQ(korvale.Tags().ParentWindowClass[3], "NotesFrame");
  EXPECT_EQ(Stored("ParentWindowList", "1"), "&1  Alpha");
  EXPECT_EQ(Stored("ParentWindowList", "4"), "&4  *** - Notes");
  EXPECT_EQ(Stored("ParentWindowClass", "4"), "NotesFrame");
  EXPECT_EQ(korvale.Form().Find("txtWindow").State().backColor, 255);
  EXPECT_EQ(korvale.Form().Find("txtWindowClass").State().backColor, 65280);
  EXPECT_EQ(korvale.Startup().Tips, "01");
  EXPECT_EQ(korvale.Options().intHotKeyModParent, 2);
  EXPECT_EQ(korvale.user.Place(korvale.Handle()), (TwipsRect{3000, 1500, 4500, 1100}));
  EXPECT_EQ(korvale.Form().WindowState(), ShowState::kNormal);
  EXPECT_TRUE(korvale.Startup().DisplayTips);
  EXPECT_TRUE(korvale.Form().Menu("mnuHelpDisplayTips").checked);
  EXPECT_EQ(Stored("Startup", "DisplayTips"), "True");
  EXPECT_EQ(Stored("Startup", "Left"), "3000");
  EXPECT_EQ(Stored("Startup", "Width"), "4500");
  EXPECT_TRUE(store.Sections(old).empty());
}

TEST_F(ImportTest, TheSessionCanEndWhileItAsks) {
  StoreOldInstallation(store, "Korvale - Old");
  const StoredValues before = ValuesOf(store, "Korvale - Old");
  KorvaleCopy& korvale = NewCopy();
  korvale.EndSessionAtBox(win32::kIdYes);
  EXPECT_FALSE(korvale.Start());
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_EQ(ValuesOf(store, "Korvale - Old"), before);
  EXPECT_TRUE(store.Sections("Korvale - Work").empty());
}

TEST_F(ImportTest, AnImportOfAlwaysOnTopStillAsksAboutTheHotKeys) {
  StoreOldInstallation(store, "Korvale - Old");
  store.SaveSetting("Korvale - Old", "Startup", "AlwaysOnTop", "True");
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdYes);
  korvale.host.WhenMessageBox([](const ShownMessage& box) {
    EXPECT_EQ(box.title, "Korvale - CAUTION");
    return win32::kIdNo;
  });
  EXPECT_TRUE(korvale.Start());
  EXPECT_TRUE(korvale.Startup().AlwaysOnTop);
  EXPECT_TRUE(korvale.State().firstActivation);
}

TEST_F(ImportTest, OneThatCannotBeReadIsToldAndTheProgramStartsWithTheDefaults) {
  StoreOldInstallation(store, "Korvale - Old");
  const StoredValues before = ValuesOf(store, "Korvale - Old");
  log.WhenCalled("GetSetting(Korvale - Old, Startup, Left",
                 [] { throw std::runtime_error("broken"); });
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdYes);
  korvale.host.WhenMessageBox([](const ShownMessage& box) {
    EXPECT_EQ(box.text, "VB ERROR 51 - Internal error\r\rKorvale Error #5");
    return win32::kIdOk;
  });
  korvale.host.AnswerNext(win32::kIdNo);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(korvale.host.Messages().size(), 3U);
  EXPECT_TRUE(korvale.State().firstActivation);
  EXPECT_EQ(korvale.Options().intHotKeyModParent, 1);
  EXPECT_FALSE(hotKeys.Registered().empty());
  EXPECT_EQ(ValuesOf(store, "Korvale - Old"), before);
}

/// A value of the other installation that is taken over.
struct Taken {
  const char* section;
  const char* key;
  const char* value;
};

constexpr Taken kTaken[] = {
    {"ParentWindowList", "1", "&1  Alpha"},
    {"ParentWindowList", "4", "&4  *** - Notes"},
    {"ParentWindowClass", "4", "NotesFrame"},
    {"Options", "HotKeyModParent", "2"},
    {"Startup", "Tips", "01"},
    {"Startup", "WI1BackColor", "255"},
};

/// Settings are taken over while the store refuses one of them.
class RefusedImportTest : public StartTest, public testing::WithParamInterface<Taken> {
 protected:
  RefusedImportTest() {
    StoreOldInstallation(store, kOldName);
    old_ = ValuesOf(store, kOldName);
  }

  void Refuse() { store.RefuseValue("Korvale - Work", GetParam().section, GetParam().key); }
  /// A first start in which the user takes the settings over and hears of the refusal.
  KorvaleCopy& Import(const std::function<void()>& whenTold = [] {}) {
    KorvaleCopy& korvale = NewCopy();
    korvale.host.AnswerNext(win32::kIdYes);
    korvale.host.WhenMessageBox([whenTold](const ShownMessage& box) {
      EXPECT_EQ(box.text, "VB ERROR 70 - Permission denied\r\rKorvale Error #5");
      whenTold();
      return win32::kIdOk;
    });
    korvale.host.AnswerNext(win32::kIdNo);
    EXPECT_TRUE(korvale.Start());
    EXPECT_EQ(korvale.host.Messages().size(), 3U);
    return korvale;
  }
  /// A later start, with nothing to ask or report.
  KorvaleCopy& StartAgain() {
    KorvaleCopy& korvale = NewCopy();
    EXPECT_TRUE(korvale.Start());
    return korvale;
  }
  void Finish(KorvaleCopy& korvale) {
    korvale.Exit();
    EndCopy(korvale);
  }

  static void ExpectInUse(KorvaleCopy& korvale) {
    EXPECT_EQ(korvale.WindowMenuItems()[7].caption, "1  Alpha");
    EXPECT_EQ(korvale.WindowMenuItems()[8].caption, "4  *** - Notes");
    EXPECT_EQ(korvale.Tags().ParentWindowClass[3], "NotesFrame");
    EXPECT_EQ(korvale.Options().intHotKeyModParent, 2);
    EXPECT_EQ(korvale.Startup().Tips, "01");
    EXPECT_EQ(korvale.Form().Find("txtWindow").State().backColor, 255);
    EXPECT_EQ(korvale.user.Place(korvale.Handle()).width, 4500);
    EXPECT_TRUE(korvale.Startup().DisplayTips);
  }
  void ExpectTakenOver() {
    for (const Taken& taken : kTaken) EXPECT_EQ(Stored(taken.section, taken.key), taken.value);
    EXPECT_TRUE(store.Sections(kOldName).empty());
    EXPECT_EQ(RegisteredOld(), std::nullopt);
    EXPECT_TRUE(store.GetAllSettings("Korvale - Work", "Saving").empty());
  }
  void ExpectOldUntouched() {
    EXPECT_EQ(ValuesOf(store, kOldName), old_);
    EXPECT_EQ(RegisteredOld(), "C:\\Gone\\Old");
  }
  std::optional<std::string> RegisteredOld() {
    return store.GetSetting("Korvale Installations", "0", kOldName);
  }

  static constexpr const char* kOldName = "Korvale - Old";
  StoredValues old_;
};

TEST_P(RefusedImportTest, OneThatIsRefusedOnlyAtFirstIsMadeAllTheSame) {
  Refuse();
  KorvaleCopy& korvale = Import([this] {
    ExpectOldUntouched();
    store.RefuseNothing();
  });
  ExpectInUse(korvale);
  ExpectTakenOver();
  Finish(korvale);
  ExpectTakenOver();
  ExpectInUse(StartAgain());
}

TEST_P(RefusedImportTest, OneThatIsRefusedForTheWholeRunIsMadeByTheNext) {
  Refuse();
  KorvaleCopy& korvale = Import();
  ExpectInUse(korvale);
  Finish(korvale);
  ExpectOldUntouched();
  store.RefuseNothing();
  ExpectInUse(StartAgain());
  ExpectTakenOver();
}

TEST_P(RefusedImportTest, WhatIsRefusedRunAfterRunIsInUseAndStaysUnderTheOtherName) {
  Refuse();
  Finish(Import());
  KorvaleCopy& again = StartAgain();
  ExpectInUse(again);
  again.host.AnswerNext(win32::kIdOk);
  Finish(again);
  ExpectOldUntouched();
  store.RefuseNothing();
  Finish(StartAgain());
  ExpectTakenOver();
}

INSTANTIATE_TEST_SUITE_P(Values, RefusedImportTest, testing::ValuesIn(kTaken),
                         [](const auto& test) {
                           return std::string(test.param.section) + test.param.key;
                         });

class RefusedStoreTest : public RefusedImportTest {};

TEST_P(RefusedStoreTest, AStoreThatRefusesTheWholeImportKeepsTheOtherInstallation) {
  log.WhenCalled("SaveSetting(Korvale - Work, Saving", [this] { store.RefuseWrites(true); });
  KorvaleCopy& korvale = Import([this] {
    ExpectOldUntouched();
    store.RefuseNothing();
  });
  ExpectInUse(korvale);
  for (const Taken& taken : kTaken) EXPECT_EQ(Stored(taken.section, taken.key), taken.value);
  Finish(korvale);
  ExpectOldUntouched();
  ExpectInUse(StartAgain());
}

INSTANTIATE_TEST_SUITE_P(Store, RefusedStoreTest, testing::Values(kTaken[0]));

}  // namespace
}  // namespace korvale
