#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

constexpr const char* kReviewQuestion =
    "Korvale is installed with Hot Keys active.  It is recommended that you review the Hot Keys "
    "before getting started.\r\rDo you want to review the Hot Keys now ?";

using FirstRunTest = StartTest;

TEST_F(FirstRunTest, TheFirstRunStoresAllDefaultsBeforeItAsks) {
  KorvaleCopy& korvale = NewCopy();
  std::string splashAtQuestion;
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    EXPECT_EQ(box.text, kReviewQuestion);
    EXPECT_EQ(box.title, "Korvale - CAUTION");
    EXPECT_EQ(box.style, win32::kMbYesNo);
    splashAtQuestion = Stored("Options", "SplashScreen") + Stored("Startup", "Width");
    EXPECT_EQ(store.GetAllSettings("Korvale - Work", "Options").size(), kAllOptions);
    EXPECT_EQ(store.GetAllSettings("Korvale - Work", "Startup").size(), kAllStartupSettings);
    return win32::kIdNo;
  });

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(splashAtQuestion, "True4500");
  EXPECT_EQ(Stored("Startup", "Left"), "3000");
  EXPECT_EQ(Stored("Options", "HotKeyGeneral2"), "19");
  EXPECT_EQ(korvale.FindForm("frmOptions"), nullptr);
  EXPECT_EQ(log.CallsOf("SaveSetting(Korvale - Work, Saving, Complete").size(), 1U)
      << "all defaults are one save";
  EXPECT_EQ(korvale.State().lastAnswer, win32::kIdNo);
}

TEST_F(FirstRunTest, YesToTheFirstQuestionOpensTheOptionsOnTheHotKeysTab) {
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdYes);

  EXPECT_TRUE(korvale.Start());

  class Form& options = korvale.Loaded("frmOptions");
  EXPECT_EQ(options.Caption(), "Korvale - Options");
  EXPECT_EQ(korvale.user.ListIndex(options.Handle(), korvale.Id(options, "tabOptions")), 1);
  EXPECT_EQ(korvale.Startup().OptionsTab, 2);
}

TEST_F(FirstRunTest, AnActivationDuringTheFirstQuestionAsksNoSecondOne) {
  KorvaleCopy& korvale = NewCopy();
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    korvale.Form().OnActivated();
    return win32::kIdNo;
  });
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(FirstRunTest, TheFirstRunShowsNoSplash) {
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdNo);
  EXPECT_TRUE(korvale.Start());
  EXPECT_TRUE(log.CallsOf("CreateWindowExW(frmMsgBox2)").empty());
}

TEST_F(FirstRunTest, TheFirstRunKeepsItsOrder) {
  Open("Alpha");
  KorvaleCopy& korvale = NewCopy();
  bool finishedAtQuestion = true;
  std::string targetAtQuestion;
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    finishedAtQuestion = korvale.State().firstActivation;
    targetAtQuestion = korvale.TargetWindow();
    return win32::kIdYes;
  });
  log.IncludeReads(true);

  EXPECT_TRUE(korvale.Start());

  const std::vector<std::string> order = {
      "RegisterHotKey",
      "SaveSetting(Korvale - Work, Startup",
      "SaveSetting(Korvale - Work, Options",
      "ShowWindow(frmMain",
      "EnumWindows",
      "MessageBoxW(frmMain",
      "CreateWindowExW(frmOptions)",
  };
  const std::vector<std::string> seen = Order(order);
  ASSERT_GE(seen.size(), order.size());
  // Before the window is shown there are other searches.
  EXPECT_EQ(std::vector<std::string>(seen.end() - std::ssize(order), seen.end()), order);
  EXPECT_FALSE(finishedAtQuestion);
  EXPECT_EQ(targetAtQuestion, "Alpha");
  EXPECT_TRUE(korvale.State().firstActivation);
}

TEST_F(FirstRunTest, AFirstRunWithoutAWritableStoreRunsAllTheSame) {
  KorvaleCopy& korvale = NewCopy();
  store.RefuseWrites(true);
  korvale.host.AnswerNext(win32::kIdOk);
  korvale.host.AnswerNext(win32::kIdNo);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys);
}

TEST_F(FirstRunTest, TheSessionCanEndWhileTheReviewIsOffered) {
  KorvaleCopy& korvale = NewCopy();
  int boxes = 0;
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    ++boxes;
    korvale.Form().OnCloseRequested(CloseReason::kSession);
    return win32::kIdYes;
  });
  korvale.Start();
  EXPECT_EQ(boxes, 1);
  EXPECT_FALSE(korvale.Form().IsLoaded());
  EXPECT_EQ(korvale.FindForm("frmOptions"), nullptr);
}

}  // namespace
}  // namespace korvale
