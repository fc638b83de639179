#include <gtest/gtest.h>

#include <string>

#include "desktop/window_actions.h"
#include "platform/win32_constants.h"
#include "tests/desktop/activation_case.h"

namespace korvale {
namespace {

class ActivationOfOwned : public Activation {
 protected:
  ActivationOfOwned() {
    owned = desktop.Open("Owned", {.owner = alpha});
    desktop.UserMinimizes(alpha);
    desktop.Windows().Find(owned)->hiddenByOwner = true;
    desktop.UserActivates(beta);
    log.Clear();
  }

  WindowHandle owned = 0;
};

TEST_F(ActivationOfOwned, MinimizedOwnerIsRestoredFirst) {
  EXPECT_EQ(Activate(Triple(owned, "Owned")), kActivationDone);
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(desktop.ForegroundTitle(), "Owned");
  EXPECT_EQ(log.Take(),
            (Calls{"ShowWindowAsync(Alpha, SW_RESTORE)", "SetForegroundWindow(Owned)"}));
}

TEST_F(ActivationOfOwned, MinimizedOwnerStaysWhenNotToAct) {
  EXPECT_EQ(Validate(Triple(owned, "Owned")), kWindowNotOpen);
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(ActivationOfOwned, OwnerThatIsNotMinimizedStays) {
  desktop.UserRestores(alpha);
  desktop.UserActivates(beta);
  EXPECT_EQ(Activate(Triple(owned, "Owned")), kActivationDone);
  EXPECT_EQ(log.Take(), Calls{"SetForegroundWindow(Owned)"});
}

TEST_F(ActivationOfOwned, OwnerWithoutAMinimizeBoxStays) {
  desktop.Windows().Find(alpha)->style &= ~win32::kWsMinimizeBox;
  EXPECT_EQ(Activate(Triple(owned, "Owned")), kWindowNotOpen);
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(ActivationOfOwned, RefusedRestoreOfTheOwnerFails) {
  desktop.Windows().Find(alpha)->visible = false;
  EXPECT_EQ(Activate(Triple(owned, "Owned")), kActivationFailed);
  EXPECT_EQ(log.Take(), Calls{"ShowWindowAsync(Alpha, SW_RESTORE)"});
}

TEST_F(ActivationOfOwned, HungOwnerIsNotWaitedFor) {
  desktop.SetHung(alpha, true);
  EXPECT_EQ(Activate(Triple(owned, "Owned")), kWindowNotAnswering);
  EXPECT_EQ(log.Take(), Calls{"ShowWindowAsync(Alpha, SW_RESTORE)"});
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
}

TEST_F(Activation, PreviousWindowSurvivesANewTitle) {
  previous.current = Triple(alpha);
  desktop.Rename(alpha, "Новое");
  EXPECT_EQ(Activate(previous.current), kActivationDone);
  EXPECT_EQ(previous.current, Triple(alpha, "Новое"));
}

TEST_F(Activation, AlternateSurvivesANewTitle) {
  previous.alternate = Triple(alpha);
  desktop.Rename(alpha, "New");
  EXPECT_EQ(Activate(previous.alternate), kActivationDone);
  EXPECT_EQ(previous.alternate, Triple(alpha, "New"));
}

TEST_F(Activation, TitleOfTheRecordGoesIntoTheCallersText) {
  previous.current = Triple(alpha, "Old");
  previous.alternate = Triple(alpha, "Older");
  WindowTriple window = Triple(alpha, "Gamma");
  EXPECT_EQ(Validate(window), kActivationDone);
  EXPECT_EQ(window.text, "Alpha");
  EXPECT_EQ(previous.current.text, "Alpha");
  EXPECT_EQ(previous.alternate.text, "Alpha");
}

TEST_F(Activation, RecordOfOtherWindowsStays) {
  previous.current = Triple(beta, "Old");
  EXPECT_EQ(Validate(Triple(alpha)), kActivationDone);
  EXPECT_EQ(previous.current.text, "Old");
}

TEST_F(Activation, RecordedTitleThatIsAnotherOneAtEachReadingStaysTheRecord) {
  previous.current = Triple(alpha);
  desktop.CountReadings(alpha);
  EXPECT_EQ(Validate(previous.current), kActivationDone);
  EXPECT_EQ(previous.current.handle, alpha);
  EXPECT_TRUE(previous.current.text.ends_with(" % - Alpha"));
}

}  // namespace
}  // namespace korvale
