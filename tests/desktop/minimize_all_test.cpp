#include <gtest/gtest.h>

#include <string>

#include "desktop/window_enumeration.h"
#include "platform/win32_constants.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

class MinimizeAndRestoreAll : public DesktopCase {
 protected:
  /// The calls that changed a window during an enumeration of this mode.
  Calls ChangesOf(std::int32_t mode) {
    log.Clear();
    enumeration.EnumWindows(mode);
    return log.Take();
  }
};

constexpr std::int32_t kWithoutMinimizeBox = fakes::kWsOverlappedWindow & ~win32::kWsMinimizeBox;

struct BulkCase {
  const char* name;
  NewWindow window;
  bool minimizes;
  bool restores;
};

void PrintTo(const BulkCase& bulkCase, std::ostream* out) { *out << bulkCase.name; }

class BulkChange : public MinimizeAndRestoreAll, public testing::WithParamInterface<BulkCase> {};

TEST_P(BulkChange, ChangesTheWindowsThatItMay) {
  desktop.Hide(mainWindow.handle);
  desktop.Open("Alpha", GetParam().window);
  log.Clear();
  enumeration.EnumWindows(kMinimizeAll);
  EXPECT_EQ(log.Take(),
            GetParam().minimizes ? Calls{"ShowWindowAsync(Alpha, SW_MINIMIZE)"} : Calls{});
  desktop.Close(desktop.FindWindowA("Alpha"));
  desktop.Open("Alpha", GetParam().window);
  enumeration.EnumWindows(kRestoreAll);
  EXPECT_EQ(log.Take(),
            GetParam().restores ? Calls{"ShowWindowAsync(Alpha, SW_RESTORE)"} : Calls{});
}

INSTANTIATE_TEST_SUITE_P(
    Windows, BulkChange,
    testing::Values(
        BulkCase{"Ordinary", {}, true, false}, BulkCase{"Zoomed", {.zoomed = true}, true, false},
        BulkCase{"Iconic", {.iconic = true}, false, true},
        BulkCase{"Hidden", {.visible = false}, false, false},
        BulkCase{"HiddenIconic", {.visible = false, .iconic = true}, false, false},
        BulkCase{"Disabled", {.enabled = false}, false, false},
        BulkCase{"DisabledIconic", {.enabled = false, .iconic = true}, false, false},
        BulkCase{"NoMinimizeBox", {.style = kWithoutMinimizeBox}, false, false},
        BulkCase{
            "NoMinimizeBoxIconic", {.style = kWithoutMinimizeBox, .iconic = true}, false, false},
        BulkCase{"TitledStatic", {.className = "Static"}, true, false}),
    [](const auto& param) { return param.param.name; });

TEST_F(MinimizeAndRestoreAll, BulkChangeLeavesChildWindowsAlone) {
  const WindowHandle alpha = desktop.Open("Alpha");
  const WindowHandle child = desktop.GetWindow(alpha, win32::kGwChild);
  desktop.Windows().Find(child)->style |= win32::kWsMinimizeBox;
  log.Clear();
  enumeration.EnumWindowsProc(child, kMinimizeAll);
  EXPECT_EQ(log.Take(), Calls{});
  desktop.Windows().Find(child)->iconic = true;
  enumeration.EnumWindowsProc(child, kRestoreAll);
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(MinimizeAndRestoreAll, BulkChangeLeavesOwnedPopupsAlone) {
  const WindowHandle holder = desktop.Open("Holder", {.style = kWithoutMinimizeBox});
  const WindowHandle popup =
      desktop.Open("Popup", {.owner = holder, .style = fakes::kWsPopup | win32::kWsMinimizeBox});
  desktop.Hide(mainWindow.handle);
  EXPECT_EQ(ChangesOf(kMinimizeAll), Calls{});
  desktop.UserMinimizes(popup);
  EXPECT_EQ(ChangesOf(kRestoreAll), Calls{});
}

TEST_F(MinimizeAndRestoreAll, BulkChangeTakesTheOwnerInsteadOfWhatItOwns) {
  const WindowHandle holder = desktop.Open("Holder");
  desktop.Open("Owned", {.owner = holder});
  desktop.Hide(mainWindow.handle);
  EXPECT_EQ(ChangesOf(kMinimizeAll), Calls{"ShowWindowAsync(Holder, SW_MINIMIZE)"});
}

TEST_F(MinimizeAndRestoreAll, RestoreAllLeavesAWindowAloneWhoseOwnerHasAMinimizeBox) {
  const WindowHandle holder = desktop.Open("Holder");
  desktop.Open("Owned", {.owner = holder, .iconic = true});
  desktop.Hide(mainWindow.handle);
  EXPECT_EQ(ChangesOf(kRestoreAll), Calls{});
}

TEST_F(MinimizeAndRestoreAll, BulkChangeTakesAWindowWhoseOwnerHasNoMinimizeBox) {
  const WindowHandle holder = desktop.Open("Holder", {.style = kWithoutMinimizeBox});
  desktop.Open("Owned", {.owner = holder});
  desktop.Hide(mainWindow.handle);
  EXPECT_EQ(ChangesOf(kMinimizeAll), Calls{"ShowWindowAsync(Owned, SW_MINIMIZE)"});
  EXPECT_EQ(ChangesOf(kRestoreAll), Calls{"ShowWindowAsync(Owned, SW_RESTORE)"});
}

TEST_F(MinimizeAndRestoreAll, MinimizeAllLeavesTheShellAlone) {
  desktop.OpenShell();
  desktop.Hide(mainWindow.handle);
  EXPECT_EQ(ChangesOf(kMinimizeAll), Calls{});
}

TEST_F(MinimizeAndRestoreAll, BulkChangeDoesNotWaitForAHungWindow) {
  desktop.Hide(mainWindow.handle);
  const WindowHandle alpha = desktop.Open("Alpha");
  desktop.SetHung(alpha, true);
  EXPECT_EQ(ChangesOf(kMinimizeAll), Calls{"ShowWindowAsync(Alpha, SW_MINIMIZE)"});
  desktop.SetHung(alpha, false);
  desktop.SetHung(alpha, true);
  EXPECT_EQ(ChangesOf(kRestoreAll), Calls{"ShowWindowAsync(Alpha, SW_RESTORE)"});
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
}

TEST_F(MinimizeAndRestoreAll, MinimizeAllReadsInItsOrder) {
  const WindowHandle alpha = desktop.Open("Alpha");
  const Calls calls = CallsOf([&] { enumeration.EnumWindowsProc(alpha, kMinimizeAll); });
  EXPECT_EQ(calls,
            (Calls{"GetWindow(Main, GW_OWNER)", "GetWindowLongA(Alpha, GWL_STYLE)",
                   "GetClassNameA(Alpha, 255)", "GetParent(Alpha)", "DwmGetWindowAttribute(Alpha)",
                   "GetWindow(Alpha, GW_OWNER)", "GetWindowThreadProcessId(Main)",
                   "GetWindowThreadProcessId(Alpha)", "IsWindowVisible(Alpha)",
                   "ShowWindowAsync(Alpha, SW_MINIMIZE)", "IsIconic(Alpha)"}));
}

}  // namespace
}  // namespace korvale
