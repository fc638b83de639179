#include <gtest/gtest.h>

#include <string>

#include "desktop/foreground_tracker.h"
#include "platform/win32_constants.h"
#include "tests/desktop/tracking_case.h"

namespace korvale {
namespace {

class PreviousWindowValidation : public ForegroundTracking {
 protected:
  void ExpectNothing() {
    ExpectRecord(WindowTriple{}, WindowTriple{});
    EXPECT_FALSE(mainWindow.previousWindowItems);
    EXPECT_EQ(mainWindow.txtWindow, "");
    EXPECT_EQ(mainWindow.txtWindowClass, "");
  }
};

TEST_F(PreviousWindowValidation, RefreshesTheTitle) {
  WorkIn(alpha);
  desktop.Rename(alpha, "無題");
  tracker.ValidatePreviousWindow();
  EXPECT_EQ(previous.current.text, "無題");
  EXPECT_EQ(mainWindow.txtWindow, "無題");
}

/// The user went from Alpha to Beta.
class ValidationFromBeta : public PreviousWindowValidation {
 protected:
  ValidationFromBeta() {
    WorkIn(alpha);
    WorkIn(beta);
  }
};

TEST_F(ValidationFromBeta, FallsBackToTheAlternateWhenTheWindowCloses) {
  desktop.Close(beta);
  tracker.ValidatePreviousWindow();
  ExpectRecord(Triple(alpha), WindowTriple{});
  EXPECT_TRUE(mainWindow.previousWindowItems);
  EXPECT_EQ(mainWindow.txtWindow, "Alpha");
}

TEST_F(ValidationFromBeta, FallsBackWhenTheWindowIsDisabledOrHidden) {
  WorkIn(gamma);
  desktop.SetEnabled(gamma, false);
  tracker.ValidatePreviousWindow();
  ExpectRecord(Triple(beta), Triple(alpha));
  desktop.Hide(beta);
  tracker.ValidatePreviousWindow();
  EXPECT_EQ(previous.current, Triple(alpha));
}

TEST_F(ValidationFromBeta, TakesADisabledWindowBackOnceTheUserIsInItAgain) {
  desktop.SetEnabled(beta, false);
  tracker.ValidatePreviousWindow();
  EXPECT_EQ(previous.current, Triple(alpha));
  desktop.SetEnabled(beta, true);
  WorkIn(beta);
  ExpectRecord(Triple(beta), Triple(alpha));
}

TEST_F(ValidationFromBeta, KeepsAWindowBehindADialogOfItsOwn) {
  const WindowHandle dialog = desktop.OpenModalDialog(beta, "Save As");
  WorkIn(dialog);
  tracker.ValidatePreviousWindow();
  ExpectRecord(Triple(beta), Triple(alpha));
  EXPECT_TRUE(mainWindow.previousWindowItems);
  desktop.CloseModalDialog(dialog);
  WorkIn(beta);
  ExpectRecord(Triple(beta), Triple(alpha));
}

TEST_F(PreviousWindowValidation, KeepsAWindowOutOfSightWithItsMinimizedOwner) {
  const WindowHandle owned = desktop.Open("Owned", {.owner = alpha});
  WorkIn(owned);
  desktop.UserMinimizes(alpha);
  tracker.ValidatePreviousWindow();
  EXPECT_EQ(previous.current, Triple(owned));
}

TEST_F(PreviousWindowValidation, GoesBackBehindTheMainWindow) {
  WorkIn(alpha);
  WorkIn(mainWindow.handle);
  WorkIn(beta);
  desktop.Close(beta);
  tracker.ValidatePreviousWindow();
  ExpectRecord(Triple(alpha), Triple(mainWindow.handle));
  EXPECT_TRUE(mainWindow.previousWindowItems);
}

TEST_F(ValidationFromBeta, EndsInNothingWhenTheAlternateIsGoneToo) {
  desktop.Close(alpha);
  desktop.Close(beta);
  tracker.ValidatePreviousWindow();
  ExpectNothing();
}

TEST_F(PreviousWindowValidation, EndsInNothingWithoutARecord) {
  tracker.ValidatePreviousWindow();
  ExpectNothing();
}

TEST_F(ValidationFromBeta, NeverChangesAWindow) {
  desktop.UserMinimizes(alpha);
  desktop.UserMinimizes(beta);
  log.Clear();
  tracker.ValidatePreviousWindow();
  EXPECT_EQ(log.Take(),
            (Calls{"EnablePreviousWindowItems(true)", "ShowTargetWindow(\"Beta\", \"WordPad\")"}));
  desktop.Close(beta);
  tracker.ValidatePreviousWindow();
  EXPECT_EQ(log.Take(),
            (Calls{"EnablePreviousWindowItems(true)", "ShowTargetWindow(\"Alpha\", \"Notepad\")"}));
}

TEST_F(ValidationFromBeta, NeverShowsAMessage) {
  desktop.SetEnabled(alpha, false);
  desktop.SetEnabled(beta, false);
  tracker.ValidatePreviousWindow();
  ExpectNothing();
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(PreviousWindowValidation, ASelectedWindowIsInFrontForTheOneItReplacesAndForNoneButNoOther) {
  previous.menuSelection = true;
  previous.leaving = alpha;
  previous.coming = beta;
  desktop.UserActivates(alpha);
  EXPECT_EQ(previous.InFront(desktop), beta);
  desktop.UserActivates(gamma);
  EXPECT_EQ(previous.InFront(desktop), gamma);
  desktop.LoseForeground();
  EXPECT_EQ(previous.InFront(desktop), beta);
  desktop.Close(beta);
  EXPECT_EQ(previous.InFront(desktop), 0);
}

class AlwaysOnTopMarks : public ForegroundTracking {
 protected:
  void SetExStyle(WindowHandle hwnd, std::int32_t exStyle) {
    desktop.Windows().Find(hwnd)->exStyle = exStyle;
  }
};

TEST_F(AlwaysOnTopMarks, FollowTheWindows) {
  WorkIn(alpha);
  SetExStyle(mainWindow.handle, win32::kWsExTopmost);
  SetExStyle(alpha, win32::kWsExTopmost);
  tracker.udmRefreshAlwaysOnTopMenuChecked();
  EXPECT_TRUE(mainWindow.alwaysOnTop);
  EXPECT_TRUE(mainWindow.previousAlwaysOnTop);
  SetExStyle(mainWindow.handle, win32::kWsExToolWindow);
  SetExStyle(alpha, win32::kWsExToolWindow);
  tracker.udmRefreshAlwaysOnTopMenuChecked();
  EXPECT_FALSE(mainWindow.alwaysOnTop);
  EXPECT_FALSE(mainWindow.previousAlwaysOnTop);
}

TEST_F(AlwaysOnTopMarks, WithoutExtendedStyleTheMainWindowKeepsItsMark) {
  WorkIn(alpha);
  SetExStyle(mainWindow.handle, 0);
  SetExStyle(alpha, 0);
  for (const bool mark : {true, false}) {
    mainWindow.alwaysOnTop = mark;
    mainWindow.previousAlwaysOnTop = true;
    tracker.udmRefreshAlwaysOnTopMenuChecked();
    EXPECT_EQ(mainWindow.alwaysOnTop, mark);
    EXPECT_FALSE(mainWindow.previousAlwaysOnTop);
  }
}

TEST_F(AlwaysOnTopMarks, WithoutAPreviousWindowItsMarkIsTaken) {
  mainWindow.previousAlwaysOnTop = true;
  tracker.udmRefreshAlwaysOnTopMenuChecked();
  EXPECT_FALSE(mainWindow.previousAlwaysOnTop);
}

TEST_F(AlwaysOnTopMarks, AreRefreshedWhenThePreviousWindowChanges) {
  SetExStyle(alpha, win32::kWsExTopmost);
  WorkIn(alpha);
  EXPECT_TRUE(mainWindow.previousAlwaysOnTop);
  WorkIn(beta);
  EXPECT_FALSE(mainWindow.previousAlwaysOnTop);
}

}  // namespace
}  // namespace korvale
