#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

constexpr Color kBlue = 0xC00000;

/// The way of a window through the Add Window dialog to its hot key.
class AddWindowStory : public KorvaleWorld {
 protected:
  void StoreTag(int tag, const std::string& identification) {
    KorvaleWorld::StoreTag(tag, identification, "");
  }
  std::optional<std::string> StoredTag(int tag) {
    return store.GetSetting(kStore, "ParentWindowList", std::to_string(tag));
  }
  /// A started copy; the user has come from a window of this title to its main window.
  KorvaleCopy& StartedAfter(const std::string& title, const NewWindow& options = {}) {
    window_ = Open(title, options);
    return KorvaleWorld::StartedAfter(window_);
  }
  void Choose(KorvaleCopy& korvale, class Form& dialog, int choice) {
    korvale.user.Click(dialog.Handle(), dialog.Find("optWindow", choice).Id());
  }
  void Pick(KorvaleCopy& korvale, class Form& dialog, int tag) {
    korvale.user.Pick(dialog.Handle(), dialog.Find("cboWindow").Id(), tag - 1);
  }
  void ExpectState(class Form& dialog, const std::string& text, Color color) {
    EXPECT_EQ(dialog.Find("lblWindow").Text(), text);
    EXPECT_EQ(dialog.Find("lblWindow").State().foreColor, color);
    EXPECT_EQ(dialog.Find("cmdRemove").Enabled(), color == kRed);
  }
  void ExpectTagSelects(int tag, WindowHandle hwnd) {
    WorkIn(Open("Elsewhere"));
    PressTag(tag);
    EXPECT_EQ(desktop.GetForegroundWindow(), hwnd);
  }

  static constexpr const char* kStore = "Korvale - Work";
  WindowHandle window_ = 0;
};

TEST_F(AddWindowStory, OffersTag3WhenTags1And2And4AreAssigned) {
  for (const int tag : {1, 2, 4}) StoreTag(tag, "Window " + std::to_string(tag));
  KorvaleCopy& korvale = StartedAfter("Alpha");
  korvale.TagPrevious([&](class Form& dialog) {
    EXPECT_EQ(dialog.Find("cboWindow").SelectedText(), "3");
    ExpectState(dialog, "Available", kBlue);
  });
  EXPECT_EQ(StoredTag(3), "&3  Alpha");
  EXPECT_EQ(korvale.WindowMenuItems()[9].caption, "3  Alpha");
  ExpectTagSelects(3, window_);
}

TEST_F(AddWindowStory, TellsAWindowCalledAvailableFromAFreeTagWithoutItsColour) {
  StoreTag(1, "Available");
  KorvaleCopy& korvale = StartedAfter("Alpha");
  korvale.TagPrevious([&](class Form& dialog) {
    EXPECT_EQ(dialog.Find("cboWindow").SelectedText(), "2");
    ExpectState(dialog, "Available", kBlue);
    Pick(korvale, dialog, 1);
    EXPECT_EQ(dialog.Find("cboWindow").SelectedText(), "1  Available");
    ExpectState(dialog, "Available", kRed);
  });
}

TEST_F(AddWindowStory, OffersTag1InRedWhenAllNineAreAssignedAndReplacesIt) {
  for (int tag = 1; tag <= 9; ++tag) StoreTag(tag, "Window " + std::to_string(tag));
  KorvaleCopy& korvale = StartedAfter("Alpha");
  korvale.TagPrevious([&](class Form& dialog) {
    EXPECT_EQ(dialog.Find("cboWindow").SelectedText(), "1  Window 1");
    ExpectState(dialog, "Window 1", kRed);
  });
  EXPECT_EQ(StoredTag(1), "&1  Alpha");
  EXPECT_EQ(StoredTag(9), "&9  Window 9");
  const std::vector<ShownMenuItem> items = korvale.WindowMenuItems();
  EXPECT_EQ(items[7].caption, "1  Alpha");
  EXPECT_EQ(items[15].caption, "9  Window 9");
  ExpectTagSelects(1, window_);
}

TEST_F(AddWindowStory, TheRightPartFindsTheProgramWithAnotherDocument) {
  KorvaleCopy& korvale = StartedAfter("one - draft - Editor");
  korvale.TagPrevious([&](class Form& dialog) {
    EXPECT_EQ(dialog.Find("optWindow", 1).Text(), "one - ***");
    EXPECT_EQ(dialog.Find("optWindow", 2).Text(), "*** - Editor");
    Choose(korvale, dialog, 2);
  });
  desktop.Rename(window_, "two - Editor");
  ExpectTagSelects(1, window_);
  desktop.Rename(window_, "two - Viewer");
  WorkIn(Open("Elsewhere"));
  WorkIn(Open("Farther"));
  korvale.ExpectBox("Window:  [*** - Editor]  is not open.", win32::kIdOk);
  PressTag(1);
}

TEST_F(AddWindowStory, TheLeftPartFindsTheDocumentInAnotherProgram) {
  KorvaleCopy& korvale = StartedAfter("one - draft - Editor");
  korvale.TagPrevious([&](class Form& dialog) { Choose(korvale, dialog, 1); });
  desktop.Close(window_);
  ExpectTagSelects(1, Open("one - Viewer", {.className = "Viewer"}));
}

TEST_F(AddWindowStory, AnUntitledWindowOffersOnlyItsTitle) {
  store.SaveSetting(kStore, "Options", "AllowNoTextWindow", "True");
  KorvaleCopy& korvale = StartedAfter("");
  EXPECT_EQ(korvale.TargetWindow(), "(window without a title)");
  korvale.TagPrevious([&](class Form& dialog) {
    EXPECT_EQ(dialog.Find("txtWindow").Text(), "");
    EXPECT_FALSE(korvale.user.IsShown(dialog.Handle(), korvale.Id(dialog, "optWindow", 1)));
    EXPECT_FALSE(korvale.user.IsShown(dialog.Handle(), korvale.Id(dialog, "optWindow", 2)));
  });
  EXPECT_EQ(StoredTag(1), "&1  ");
  korvale.TagPrevious([&](class Form& dialog) {
    Pick(korvale, dialog, 1);
    ExpectState(dialog, "(window without a title)", kRed);
  });
}

TEST_F(AddWindowStory, APartialTitleFindsTheWindowWithItsNextTitle) {
  KorvaleCopy& korvale = StartedAfter("Report of Monday");
  korvale.TagPrevious([&](class Form& dialog) {
    korvale.user.PressKey(dialog.Handle(), 'P', kAlt);
    korvale.user.TypeText(dialog.Handle(), "Report of");
  });
  EXPECT_EQ(StoredTag(1), "&1  Report of");
  desktop.Rename(window_, "Report of Tuesday");
  ExpectTagSelects(1, window_);
}

TEST_F(AddWindowStory, RemovingATagLeavesTheDialogOpenWithTheTagAvailable) {
  StoreTag(2, "Mail");
  Open("Mail");
  KorvaleCopy& korvale = StartedAfter("Alpha");
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    Pick(korvale, dialog, 2);
    ExpectState(dialog, "Mail", kRed);
    korvale.user.Click(dialog.Handle(), korvale.Id(dialog, "cmdRemove"));
    EXPECT_EQ(dialog.Find("cboWindow").SelectedText(), "2");
    ExpectState(dialog, "Available", kBlue);
    EXPECT_EQ(StoredTag(2), "&2  Mail");
    korvale.user.PressKey(dialog.Handle(), win32::kVkEscape);
  });
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Add  [Alpha]  to Window menu..."});
  EXPECT_EQ(StoredTag(2), std::nullopt);
  EXPECT_EQ(korvale.WindowMenuItems()[7].caption, "-");
  WorkIn(window_);
  ExpectTagLeadsTo(2, "Alpha");
}

TEST_F(AddWindowStory, AmpersandsOfATitleAreKeptLiterally) {
  KorvaleCopy& korvale = StartedAfter("R&D && Co - Q&A");
  korvale.TagPrevious([&](class Form& dialog) {
    EXPECT_EQ(dialog.Find("optWindow", 2).Text(), "*** - Q&A");
    Choose(korvale, dialog, 1);
  });
  EXPECT_EQ(StoredTag(1), "&1  R&D && Co - ***");
  EXPECT_EQ(korvale.WindowMenuItems()[7], (ShownMenuItem{"1  R&D && Co - ***", "1", false, true}));
  ExpectTagSelects(1, window_);
}

TEST_F(AddWindowStory, EnterAddsTheWindowAndReturnsToTheMainWindow) {
  KorvaleCopy& korvale = StartedAfter("Alpha");
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    EXPECT_EQ(desktop.GetForegroundWindow(), dialog.Handle());
    EXPECT_FALSE(korvale.user.IsEnabled(korvale.Handle()));
    const TwipsRect main = korvale.user.Place(korvale.Handle());
    const TwipsRect place = korvale.user.Place(dialog.Handle());
    EXPECT_EQ(place.left + place.width / 2, main.left + main.width / 2);
    korvale.user.PressKey(dialog.Handle(), win32::kVkReturn);
  });
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Add  [Alpha]  to Window menu..."});
  EXPECT_EQ(StoredTag(1), "&1  Alpha");
  EXPECT_EQ(Front(), "Korvale - Work");
  EXPECT_TRUE(korvale.user.IsEnabled(korvale.Handle()));
}

TEST_F(AddWindowStory, EscAltF4AndTheCloseBoxChangeNothing) {
  KorvaleCopy& korvale = StartedAfter("Alpha");
  for (const auto& close : std::vector<std::function<void(class Form&)>>{
           [&](class Form& dialog) { korvale.user.PressKey(dialog.Handle(), win32::kVkEscape); },
           [&](class Form& dialog) { korvale.user.PressKey(dialog.Handle(), win32::kVkF4, kAlt); },
           [&](class Form& dialog) { korvale.user.PressCloseBox(dialog.Handle()); },
       }) {
    korvale.host.WhenModal("frmGetWindow", close);
    korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Add  [Alpha]  to Window menu..."});
    EXPECT_EQ(korvale.FindForm("frmGetWindow"), nullptr);
    EXPECT_TRUE(korvale.Form().IsLoaded());
    EXPECT_EQ(korvale.WindowMenuItems()[7].caption, "-");
    EXPECT_EQ(Front(), "Korvale - Work");
  }
}

TEST_F(AddWindowStory, TheOpenListOfTagsIsWideAndRemoveRests) {
  StoreTag(1, "Mail");
  KorvaleCopy& korvale = StartedAfter("Alpha");
  korvale.TagPrevious([&](class Form& dialog) {
    const int list = korvale.Id(dialog, "cboWindow");
    const Twips width = korvale.user.Place(dialog.Handle(), list).width;
    Pick(korvale, dialog, 1);
    korvale.user.OpenList(dialog.Handle(), list);
    EXPECT_EQ(korvale.user.Place(dialog.Handle(), list).width, 4785);
    EXPECT_FALSE(dialog.Find("cmdRemove").Enabled());
    Pick(korvale, dialog, 2);
    EXPECT_EQ(korvale.user.Place(dialog.Handle(), list).width, width);
    ExpectState(dialog, "Available", kBlue);
  });
  EXPECT_EQ(StoredTag(2), "&2  Alpha");
}

TEST_F(AddWindowStory, ADialogForTheMainWindowLeavesNoTraceInTheNextOne) {
  KorvaleCopy& korvale = StartedAfter("Alpha");
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    EXPECT_EQ(dialog.Tag(), "THIS_WINDOW");
    EXPECT_EQ(dialog.Find("txtWindowClass").Text(), "Korvale.frmMain");
    EXPECT_FALSE(korvale.user.IsShown(dialog.Handle(), korvale.Id(dialog, "optWindow", 1)));
    korvale.user.OpenList(dialog.Handle(), korvale.Id(dialog, "cboWindow"));
    korvale.user.PressCloseBox(dialog.Handle());
  });
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Add  Korvale  to Window menu..."});
  korvale.TagPrevious([&](class Form& dialog) {
    EXPECT_EQ(dialog.Tag(), "PREVIOUS_WINDOW");
    EXPECT_EQ(dialog.Find("txtWindow").Text(), "Alpha");
    EXPECT_TRUE(korvale.user.IsShown(dialog.Handle(), korvale.Id(dialog, "optWindow", 1)));
    EXPECT_EQ(korvale.user.Place(dialog.Handle(), korvale.Id(dialog, "cboWindow")).width, 900);
  });
  EXPECT_EQ(StoredTag(1), "&1  Alpha");
}

TEST_F(AddWindowStory, TitlesInAnyScriptAreFoundAgain) {
  KorvaleCopy& korvale = StartedAfter("Счёт № 5 - Редактор", {.className = "Klasse Ä"});
  korvale.TagPrevious([&](class Form& dialog) {
    EXPECT_EQ(dialog.Find("txtWindowClass").Text(), "Klasse Ä");
    Choose(korvale, dialog, 2);
  });
  const WindowHandle japanese = Open("会計 - 表計算");
  WorkIn(korvale.Handle());
  korvale.TagPrevious([&](class Form& dialog) { Choose(korvale, dialog, 1); });
  const WindowHandle emoji = Open("🧮👨‍👩‍👧 & 😀");
  WorkIn(korvale.Handle());
  korvale.TagPrevious();

  EXPECT_EQ(StoredTag(1), "&1  *** - Редактор");
  EXPECT_EQ(StoredTag(2), "&2  会計 - ***");
  EXPECT_EQ(StoredTag(3), "&3  🧮👨‍👩‍👧 & 😀");
  desktop.Rename(window_, "Другой - Редактор");
  desktop.Rename(japanese, "会計 - 文書");
  ExpectTagSelects(1, window_);
  ExpectTagSelects(2, japanese);
  ExpectTagSelects(3, emoji);
}

TEST_F(AddWindowStory, AWindowWithoutChildWindowsIsStoredWithoutItsClass) {
  KorvaleCopy& korvale = StartedAfter("Clock", {.className = "Clock", .children = 0});
  korvale.TagPrevious();
  EXPECT_EQ(StoredTag(1), "&1  Clock");
  EXPECT_EQ(store.GetSetting(kStore, "ParentWindowClass", "1"), std::nullopt);
  ExpectTagSelects(1, window_);
  EXPECT_EQ(store.GetSetting(kStore, "ParentWindowClass", "1"), "Clock");
}

TEST_F(AddWindowStory, AWindowThatTheUserVisitsMeanwhileIsNotTheOneThatIsAdded) {
  KorvaleCopy& korvale = StartedAfter("Alpha");
  korvale.TagPrevious([&](class Form& dialog) {
    WorkIn(Open("Visited", {.className = "Other"}));
    EXPECT_EQ(korvale.TargetWindow(), "Visited");
    WorkIn(dialog.Handle());
    EXPECT_EQ(korvale.TargetWindow(), "Visited");
  });
  EXPECT_EQ(StoredTag(1), "&1  Alpha");
  EXPECT_EQ(store.GetSetting(kStore, "ParentWindowClass", "1"), "Window");
}

}  // namespace
}  // namespace korvale
