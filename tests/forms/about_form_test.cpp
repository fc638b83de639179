#include "forms/about_form.h"

#include "platform/win32_constants.h"
#include "tests/forms/dialog_test.h"

namespace korvale {
namespace {

constexpr FormDesign kMain = {.name = "frmMain",
                              .caption = "Korvale - Work",
                              .place = {6000, 4000, 6000, 4000},
                              .border = BorderStyle::kSizable};

class AboutTest : public DialogTest {
 protected:
  AboutTest() {
    identity_.versionText = "1.00.0000";
    identity_.legalNotice = "(C) the developers";
    identity_.fileDescription = "Moves you between windows";
    main_.Show();
  }

  void ShowAbout() { about_.ShowAbout(main_, display_); }
  /// The box is closed, and its time was recorded.
  bool ClosedNow() { return !about_.IsLoaded() && about_.AboutClosed() == clock_.GetTickCount64(); }

  ProgramIdentity identity_;
  Form main_{kMain, forms_};
  frmMsgBox2 about_{forms_, clock_, identity_};
};

class ShownAboutTest : public AboutTest {
 protected:
  ShownAboutTest() { ShowAbout(); }
};

TEST_F(ShownAboutTest, ShowsNameVersionAndLegalNotice) {
  EXPECT_EQ(user_.Title(about_.Handle()), "About Korvale");
  EXPECT_EQ(Text(about_, "lblProduct"), "Korvale 1.00.0000");
  EXPECT_EQ(Text(about_, "lblCopyright"), "(C) the developers");
  EXPECT_EQ(Text(about_, "lblFileDescription"), "Moves you between windows");
}

TEST_F(ShownAboutTest, ShowsItsPictureBesideTheTexts) {
  EXPECT_TRUE(Shown(about_, "imaProduct"));
  EXPECT_EQ(Look(about_, "imaProduct").kind, ControlKind::kImage);
  // What a screen reader calls it.
  EXPECT_EQ(Text(about_, "imaProduct"), "Icon of Korvale");
  // 40 pixels wide and high.
  EXPECT_EQ(user_.Place(about_.Handle(), Id(about_, "imaProduct")),
            (TwipsRect{240, 300, 600, 600}));
  for (const char* const text :
       {"lblProduct", "lblFileDescription", "lblCopyright", "lblWebSite"}) {
    EXPECT_EQ(user_.Place(about_.Handle(), Id(about_, text)).left, 1080) << text;
  }
}

TEST_F(ShownAboutTest, ItsTextsStandBelowEachOtherAboveTheButton) {
  Twips bottom = 0;
  for (const char* const text :
       {"lblProduct", "lblFileDescription", "lblCopyright", "lblWebSite", "cmdOK"}) {
    const TwipsRect place = user_.Place(about_.Handle(), Id(about_, text));
    EXPECT_GE(place.top, bottom) << text;
    bottom = place.top + place.height;
  }
}

TEST_F(ShownAboutTest, TheToolTipsSayWhatALinkAndAButtonDo) {
  EXPECT_EQ(Look(about_, "lblWebSite").toolTip, " opens the web site in your browser  (Click) ");
  EXPECT_EQ(Look(about_, "cmdOK").toolTip, " Close  (Enter) ");
  for (const char* const silent :
       {"imaProduct", "lblProduct", "lblFileDescription", "lblCopyright"}) {
    EXPECT_EQ(Look(about_, silent).toolTip, "") << silent;
  }
}

TEST_F(AboutTest, TheLinkCanBeReadWhenTheSchemeChangesWhileItIsOpen) {
  constexpr Color kBlueOfLinks = 0x00CC6600;
  about_.SetWebSite("https://example.org/", [] {});
  ShowAbout();
  EXPECT_EQ(Look(about_, "lblWebSite").foreColor, kBlueOfLinks);
  host_.ChangeSysColor(kButtonFaceColor, kBlueOfLinks);
  EXPECT_EQ(Look(about_, "lblWebSite").foreColor, kButtonTextColor);
  host_.ChangeSysColor(kButtonFaceColor, 0x00F0F0F0);
  EXPECT_EQ(Look(about_, "lblWebSite").foreColor, kBlueOfLinks);
  host_.ChangeHighContrast(true);
  EXPECT_EQ(Look(about_, "lblWebSite").foreColor, kButtonTextColor);
}

TEST_F(ShownAboutTest, StandsOverTheMainWindowWithoutBlockingIt) {
  EXPECT_EQ(user_.Place(about_.Handle()).left, 6000 + (6000 - 5580) / 2);
  EXPECT_TRUE(user_.IsEnabled(main_.Handle()));
  EXPECT_FALSE(suspension_.Active());
  EXPECT_EQ(desktop_.ForegroundTitle(), "About Korvale");
}

TEST_F(ShownAboutTest, ClosesByItsButton) {
  Click(about_, "cmdOK");
  EXPECT_TRUE(ClosedNow());
}

TEST_F(ShownAboutTest, ClosesByEnterEscAltF4AndTheCloseBox) {
  Press(about_, win32::kVkReturn);
  EXPECT_TRUE(ClosedNow());
  ShowAbout();
  Press(about_, win32::kVkEscape);
  EXPECT_TRUE(ClosedNow());
  ShowAbout();
  Press(about_, win32::kVkF4, kAlt);
  EXPECT_TRUE(ClosedNow());
  ShowAbout();
  user_.PressCloseBox(about_.Handle());
  EXPECT_TRUE(ClosedNow());
}

TEST_F(ShownAboutTest, EscDoesNothingWithoutTheTimer) {
  about_.Find("tmrUnload").SetEnabled(false);
  Press(about_, win32::kVkEscape);
  EXPECT_TRUE(about_.IsLoaded());
}

TEST_F(ShownAboutTest, StaysForOtherKeys) {
  Press(about_, win32::kVkF4);
  Press(about_, 'X');
  Press(about_, 'X', kAlt);
  EXPECT_TRUE(about_.IsLoaded());
}

TEST_F(ShownAboutTest, ClosesByItself) {
  user_.LetPass(14999);
  EXPECT_TRUE(about_.IsLoaded());
  user_.LetPass(1);
  EXPECT_TRUE(ClosedNow());
}

TEST_F(ShownAboutTest, AKeyGivesASlowReaderItsWholeTimeAnew) {
  for (int key = 0; key < 3; ++key) {
    user_.LetPass(10000);
    Press(about_, win32::kVkTab);
  }
  user_.LetPass(14999);
  EXPECT_TRUE(about_.IsLoaded());
  user_.LetPass(1);
  EXPECT_TRUE(ClosedNow());
}

TEST_F(ShownAboutTest, IsClosedByOthers) {
  about_.CloseAbout();
  EXPECT_TRUE(ClosedNow());
}

TEST_F(AboutTest, NotesNoClosingWhileItIsNotOpen) {
  about_.CloseAbout();
  EXPECT_EQ(about_.AboutClosed(), std::nullopt);
}

TEST_F(ShownAboutTest, StaysAnewWhenItIsAskedForAgain) {
  user_.LetPass(10000);
  desktop_.Open("Editor");
  ShowAbout();
  EXPECT_EQ(desktop_.ForegroundTitle(), "About Korvale");
  user_.LetPass(10000);
  EXPECT_TRUE(about_.IsLoaded());
}

TEST_F(ShownAboutTest, ShowsNoAddressWithoutOne) { EXPECT_FALSE(Shown(about_, "lblWebSite")); }

TEST_F(AboutTest, OpensTheWebSiteByAClick) {
  int opened = 0;
  about_.SetWebSite("korvale.example", [&] { ++opened; });
  ShowAbout();
  EXPECT_EQ(Text(about_, "lblWebSite"), "korvale.example");
  Click(about_, "lblWebSite");
  EXPECT_EQ(opened, 1);
}

TEST_F(AboutTest, TakesNoForegroundAsTheSplashWindow) {
  desktop_.Open("Editor");
  log_.Clear();
  about_.ShowSplash(display_);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Editor");
  EXPECT_TRUE(user_.IsShown(about_.Handle()));
  EXPECT_EQ(user_.Title(about_.Handle()), "Korvale");
  EXPECT_TRUE(log_.CallsOf("SetForegroundWindow(").empty());
  EXPECT_FALSE(suspension_.Active());
}

TEST_F(AboutTest, StandsInTheMiddleOfTheScreenAsTheSplashWindow) {
  host_.SetWorkArea({0, 0, 15580, 11030});
  about_.ShowSplash(display_);
  EXPECT_EQ(user_.Place(about_.Handle()), (TwipsRect{5000, 4000, 5580, 3030}));
}

TEST_F(AboutTest, GoesSoonAsTheSplashWindow) {
  about_.ShowSplash(display_);
  EXPECT_FALSE(Shown(about_, "cmdOK"));
  user_.LetPass(2000);
  EXPECT_TRUE(ClosedNow());
}

TEST_F(AboutTest, ASplashWindowBecomesTheAboutBox) {
  about_.ShowSplash(display_);
  EXPECT_EQ(about_.Tag(), "S");
  ShowAbout();
  EXPECT_EQ(about_.Tag(), "");
  EXPECT_EQ(user_.Title(about_.Handle()), "About Korvale");
  EXPECT_TRUE(Shown(about_, "cmdOK"));
  user_.LetPass(2000);
  EXPECT_TRUE(about_.IsLoaded());
}

TEST_F(AboutTest, StaysWithoutAWayToOpenTheWebSite) {
  about_.SetWebSite("korvale.example", {});
  ShowAbout();
  Click(about_, "lblWebSite");
  EXPECT_TRUE(about_.IsLoaded());
}

}  // namespace
}  // namespace korvale
