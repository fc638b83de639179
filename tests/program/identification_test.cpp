#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

class IdentificationTest : public KorvaleWorld {
 protected:
  /// The window that the Tag's hot key brings to the front, by its title; pressed in Beta.
  std::string FrontAfterTag(int tag) {
    WorkIn(desktop.FindWindowA("Beta"));
    PressTag(tag);
    return Front();
  }

  KorvaleCopy& StartedBesideBeta() {
    KorvaleCopy& korvale = StartedCopy();
    Open("Beta", {.className = "Beta"});
    return korvale;
  }

  void ExpectNotOpen(KorvaleCopy& korvale, const std::string& text) {
    korvale.host.WhenMessageBox([text](const ShownMessage& box) {
      EXPECT_EQ(box.text, "Window:  [" + text + "]  is not open.");
      return win32::kIdOk;
    });
  }

  std::string StoredClass(int tag) {
    return store.GetSetting("Korvale - Work", "ParentWindowClass", std::to_string(tag))
        .value_or("(missing)");
  }
};

TEST_F(IdentificationTest, TitlesInAnyWritingAreFoundByEachSideAndByAPart) {
  const std::vector<std::vector<std::string>> titles = {{"Безымянный", "Блокнот", "зымян"},
                                                        {"無題", "メモ帳", "モ帳"},
                                                        {"🦊🦝", "👩‍💻", "🦝 - "}};
  int tag = 0;
  for (const auto& parts : titles) {
    Open(parts[0] + " - " + parts[1]);
    StoreTag(++tag, parts[0] + " - ***");
    StoreTag(++tag, "*** - " + parts[1]);
    StoreTag(++tag, parts[2]);
  }
  KorvaleCopy& korvale = StartedBesideBeta();
  tag = 0;
  for (const auto& parts : titles) {
    const std::string title = parts[0] + " - " + parts[1];
    EXPECT_EQ(FrontAfterTag(++tag), title);
    EXPECT_EQ(korvale.TargetWindow(), title);
    EXPECT_EQ(FrontAfterTag(++tag), title);
    EXPECT_EQ(FrontAfterTag(++tag), title);
  }
}

TEST_F(IdentificationTest, SidesAreTakenAtTheFirstAndTheLastSeparator) {
  Open("a - b - c");
  Open("plain");
  StoreTag(1, "a - ***");
  StoreTag(2, "*** - c");
  StoreTag(3, "plain - ***");
  StoreTag(4, "*** - plain");
  StoreTag(5, "*** - b - c");
  KorvaleCopy& korvale = StartedBesideBeta();
  EXPECT_EQ(FrontAfterTag(1), "a - b - c");
  EXPECT_EQ(FrontAfterTag(2), "a - b - c");
  EXPECT_EQ(FrontAfterTag(3), "plain");
  EXPECT_EQ(FrontAfterTag(4), "plain");
  ExpectNotOpen(korvale, "*** - b - c");
  EXPECT_EQ(FrontAfterTag(5), "Beta");
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(IdentificationTest, CaseCounts) {
  Open("Notepad");
  StoreTag(1, "notepad");
  KorvaleCopy& korvale = StartedBesideBeta();
  ExpectNotOpen(korvale, "notepad");
  EXPECT_EQ(FrontAfterTag(1), "Beta");
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(IdentificationTest, AmpersandsOfATitleAreFound) {
  Open("R&D && more");
  StoreTag(1, "R&D && more");
  StartedBesideBeta();
  EXPECT_EQ(FrontAfterTag(1), "R&D && more");
}

TEST_F(IdentificationTest, NineTagsFindTheirNineWindows) {
  for (int tag = 1; tag <= kTagCount; ++tag) {
    Open("Window " + std::to_string(tag));
    StoreTag(tag, "Window " + std::to_string(tag));
  }
  StartedBesideBeta();
  for (int tag = 1; tag <= kTagCount; ++tag) {
    EXPECT_EQ(FrontAfterTag(tag), "Window " + std::to_string(tag));
  }
}

TEST_F(IdentificationTest, OfSeveralWindowsTheTopmostIsTaken) {
  Open("Alpha 1");
  Open("Alpha 2");
  StoreTag(1, "Alpha");
  StartedBesideBeta();
  EXPECT_EQ(FrontAfterTag(1), "Alpha 2");
}

TEST_F(IdentificationTest, ByTitleAloneTheLowestIsTakenAndItsClassIsKept) {
  Open("Alpha 1", {.className = "One"});
  Open("Alpha 2", {.className = "Two"});
  StoreTag(1, "Alpha", "Gone");
  StartedBesideBeta();
  EXPECT_EQ(FrontAfterTag(1), "Alpha 1");
  EXPECT_EQ(StoredClass(1), "One");
}

TEST_F(IdentificationTest, ATagWithoutAClassLearnsThatOfTheTopmostWindowAndKeepsIt) {
  const WindowHandle lower = Open("Alpha 1", {.className = "One"});
  const WindowHandle upper = Open("Alpha 2", {.className = "Two"});
  StoreTag(1, "Alpha", "");
  StartedBesideBeta();
  EXPECT_EQ(FrontAfterTag(1), "Alpha 2");
  EXPECT_EQ(StoredClass(1), "Two");

  desktop.Close(upper);
  Open("Alpha 3", {.className = "Two"});
  WorkIn(lower);
  EXPECT_EQ(FrontAfterTag(1), "Alpha 3");
}

TEST_F(IdentificationTest, AHandleThatNowBelongsToAnotherWindowIsNotTaken) {
  const WindowHandle alpha = Open("Alpha");
  StoreTag(1, "Alpha");
  KorvaleCopy& korvale = StartedBesideBeta();
  EXPECT_EQ(FrontAfterTag(1), "Alpha");
  // The recorded windows are known by their handles; two others take their places.
  WorkIn(desktop.FindWindowA("Beta"));
  Open("Delta");
  desktop.Close(alpha);
  desktop.Open("Gamma", {.activate = false, .reuseHandle = alpha});
  ExpectNotOpen(korvale, "Alpha");
  EXPECT_EQ(FrontAfterTag(1), "Beta");
  EXPECT_EQ(korvale.host.Messages().size(), 1U);

  Open("Alpha");
  EXPECT_EQ(FrontAfterTag(1), "Alpha");
}

TEST_F(IdentificationTest, AHiddenWindowGivesWayToAVisibleOne) {
  Open("Alpha 1");
  const WindowHandle hidden = Open("Alpha 2");
  StoreTag(1, "Alpha");
  StartedBesideBeta();
  desktop.Hide(hidden);
  EXPECT_EQ(FrontAfterTag(1), "Alpha 1");
}

TEST_F(IdentificationTest, AMinimizedOwnerIsRestoredBeforeItsWindow) {
  const WindowHandle owner = Open("Editor");
  Open("Alpha", {.owner = owner});
  StoreTag(1, "Alpha");
  StartedBesideBeta();
  desktop.UserMinimizes(owner);
  WorkIn(desktop.FindWindowA("Beta"));
  log.Clear();
  PressTag(1);
  EXPECT_EQ(log.Take().front(), "ShowWindowAsync(Editor, SW_RESTORE)");
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(IdentificationTest, AMinimizedWindowThatHangsIsNotWaitedFor) {
  const WindowHandle alpha = Open("Alpha");
  StoreTag(1, "Alpha");
  StartedBesideBeta();
  desktop.UserMinimizes(alpha);
  desktop.SetHung(alpha, true);
  EXPECT_EQ(FrontAfterTag(1), "Alpha");
  EXPECT_EQ(log.CallsOf("ShowWindow"),
            std::vector<std::string>{"ShowWindowAsync(Alpha, SW_RESTORE)"});
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
}

TEST_F(IdentificationTest, AMinimizedOwnerThatHangsIsNotWaitedForAndTheUserIsTold) {
  const WindowHandle owner = Open("Editor");
  const WindowHandle alpha = Open("Alpha", {.owner = owner});
  StoreTag(1, "Alpha");
  KorvaleCopy& korvale = StartedBesideBeta();
  WorkIn(alpha);
  WorkIn(desktop.FindWindowA("Beta"));
  desktop.UserMinimizes(owner);
  desktop.SetHung(owner, true);
  korvale.ExpectBox("The window operation was not successful.  Please try again.", "Korvale",
                    win32::kMbSetForeground, win32::kIdOk);

  EXPECT_EQ(FrontAfterTag(1), "Beta");

  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
  EXPECT_EQ(TagHandle(*korvale.TagEntry(1)), alpha);
  EXPECT_EQ(korvale.TargetWindow(), "Beta");
  desktop.SetHung(owner, false);
  EXPECT_EQ(FrontAfterTag(1), "Alpha");
}

}  // namespace
}  // namespace korvale
