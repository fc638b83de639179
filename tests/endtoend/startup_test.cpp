#include <windows.h>
// psapi.h needs windows.h before it.
#include <psapi.h>

#include <algorithm>
#include <stdexcept>

#include "tests/endtoend/harness/default_settings.h"
#include "tests/endtoend/harness/options_dialog.h"
#include "tests/endtoend/store_test.h"

namespace korvale::endtoend {
namespace {

/// Whether this library is loaded into the program, as in "shell32.dll".
bool HasLoaded(const Process& program, const char* library) {
  const Handle process(
      OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, program.id()));
  HMODULE modules[512];
  DWORD size = 0;
  if (K32EnumProcessModules(process.get(), modules, sizeof(modules), &size) == 0 ||
      size > sizeof(modules)) {
    throw std::runtime_error("the libraries of a program cannot be listed");
  }
  return std::any_of(modules, modules + size / sizeof(HMODULE), [&](HMODULE module) {
    char name[MAX_PATH] = "";
    K32GetModuleBaseNameA(process.get(), module, name, MAX_PATH);
    return lstrcmpiA(name, library) == 0;
  });
}

constexpr char kReviewQuestion[] =
    "Korvale is installed with Hot Keys active.  It is recommended that you review the Hot Keys "
    "before getting started.";

class StartUp : public StoreTest {
 protected:
  /// Starts the installation once more; that copy says that it is open already, and ends.
  void StartSecondCopy() {
    RunningKorvale second(installation_);
    const Window box = second.MessageBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(LabelText(box), "'Korvale - Probe' is already open.");
    EXPECT_TRUE(AnswerBox(box, IDOK));
    EXPECT_EQ(second.process().WaitForExit(), 0U);
  }
};

// Each would take time at every start and memory all day. ole32 is left out: Wine loads it itself.
TEST_F(StartUp, LoadsNoLibraryThatOnlyLaterUseNeeds) {
  Start();
  EXPECT_TRUE(HasLoaded(korvale_->process(), "user32.dll"));
  for (const char* const library : {"shell32.dll", "comdlg32.dll", "dbghelp.dll", "oleacc.dll"}) {
    EXPECT_FALSE(HasLoaded(korvale_->process(), library)) << library;
  }
}

TEST_F(StartUp, TheMainWindowIsNamedAfterTheFolder) {
  Start();
  EXPECT_EQ(main().Title(), "Korvale - Probe");
}

TEST_F(StartUp, AFolderNameInAnyScriptIsKept) {
  const Installation other("Работа 仕事");
  other.MarkAsUsed();
  korvale_.emplace(other);
  EXPECT_EQ(main().Title(), "Korvale - Работа 仕事");
}

TEST_F(StartUp, TheFirstRunStoresAllDefaultsBeforeItAsksToReviewTheHotKeys) {
  korvale_.emplace(installation_);
  const Window question = ReviewQuestion();
  ASSERT_TRUE(question);
  EXPECT_TRUE(LabelText(question).starts_with(kReviewQuestion)) << LabelText(question);
  EXPECT_TRUE(LabelText(question).ends_with("Do you want to review the Hot Keys now ?"));
  EXPECT_EQ(installation_.settings().Section("Options").size(), kAllOptions);
  EXPECT_EQ(installation_.settings().Get("Options", "HotKeyGeneral2"), "19");
  EXPECT_EQ(installation_.settings().Get("Startup", "WI1BackColor"), "10485759");
  EXPECT_TRUE(AnswerBox(question, IDNO));
  EXPECT_TRUE(InFront(main()));
}

TEST_F(StartUp, TheFirstRunOpensTheOptionsForTheUserWhoWantsToReviewTheHotKeys) {
  korvale_.emplace(installation_);
  const Window question = ReviewQuestion();
  ASSERT_TRUE(question);
  EXPECT_TRUE(AnswerBox(question, IDYES));
  const OptionsDialog dialog(korvale_->Form("frmOptions"));
  EXPECT_EQ(dialog.CurrentPage(), OptionsDialog::Page::kHotKeys);
}

TEST_F(StartUp, ALaterRunShowsASplashThatGoesByItself) {
  installation_.SetOption("SplashScreen", "True");
  korvale_.emplace(installation_);
  EXPECT_TRUE(korvale_->Form("frmMsgBox2"));
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasForm("frmMsgBox2"); }, std::chrono::seconds(15)));
  EXPECT_TRUE(main().Visible());
}

TEST_F(StartUp, ASecondCopyFromTheSameFolderBringsTheFirstForwardAndEnds) {
  Start();
  const Window first_main = main();
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  const std::map<std::string, std::string> before = installation_.settings().Section("Options");
  StartSecondCopy();
  EXPECT_TRUE(InFront(first_main));
  EXPECT_EQ(installation_.settings().Section("Options"), before);
  EXPECT_FALSE(HotKeyIsFree(TagKey(1)));
}

TEST_F(StartUp, ASecondCopyBringsTheMessageForwardThatWaitsForTheUser) {
  installation_.StoreTag(1, "Nowhere", "Test.Window");
  Start();
  const Window alpha = WorkInNew("Alpha");
  Press(TagKey(1));
  const Window message = korvale_->MessageBox();
  ASSERT_TRUE(InFront(message));
  ASSERT_TRUE(BringToFront(alpha));
  StartSecondCopy();
  EXPECT_TRUE(InFront(message));
}

TEST_F(StartUp, ASecondCopyBringsTheTipForwardThatWaitsForTheUser) {
  installation_.MarkAsUsed();
  const Window alpha = Open("Alpha");
  korvale_.emplace(installation_, " /anything");
  const Window tip = korvale_->Form("frmMsgTip");
  ASSERT_TRUE(InFront(tip));
  ASSERT_TRUE(BringToFront(alpha));
  StartSecondCopy();
  EXPECT_TRUE(InFront(tip));
}

TEST_F(StartUp, TwoCopiesStartedInTheSameInstantEndAsOne) {
  installation_.MarkAsUsed();
  korvale_.emplace(installation_);
  RunningKorvale second(installation_);
  const auto refused = [&] { return korvale_->HasMessageBox() || second.HasMessageBox(); };
  ASSERT_TRUE(WaitFor(refused));
  RunningKorvale& loser = second.HasMessageBox() ? second : *korvale_;
  RunningKorvale& winner = second.HasMessageBox() ? *korvale_ : second;
  EXPECT_TRUE(AnswerBox(loser.MessageBox(), IDOK));
  EXPECT_EQ(loser.process().WaitForExit(), 0U);
  EXPECT_TRUE(winner.Main());
}

TEST_F(StartUp, ACopyFromAnotherFolderGivesATipAndRuns) {
  Start();
  const Installation other("Second");
  other.MarkAsUsed();
  other.SetOption("HotKeyModParent", "2");
  other.StoreTag(1, "Alpha", "Test.Window");
  // The other hot keys belong to the first copy; the message about refused ones is tested
  // elsewhere.
  other.settings().Set("Startup", "Tips", std::string(17, '1') + "0");
  RunningKorvale second(other);
  const Window tip = second.Form("frmMsgTip");
  ASSERT_TRUE(tip);
  EXPECT_TRUE(LabelText(tip).starts_with("Another instance of Korvale is currently running.  "));
  EXPECT_TRUE(LabelText(tip).ends_with("or simply by restarting Korvale."));
  Press({0, VK_ESCAPE});
  EXPECT_EQ(second.Main().Title(), "Korvale - Second");
  EXPECT_TRUE(InFront(second.Main()));
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press({MOD_CONTROL, '1'});
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(StartUp, AnArgumentGivesATipAndIsIgnored) {
  installation_.MarkAsUsed();
  korvale_.emplace(installation_, " /anything");
  const Window tip = korvale_->Form("frmMsgTip");
  ASSERT_TRUE(tip);
  EXPECT_EQ(LabelText(tip), "Korvale does not accept command line arguments.");
  ASSERT_TRUE(InFront(tip));
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(InFront(main()));
}

TEST_F(StartUp, HotKeysThatAnotherProgramHasAreNamedInATip) {
  TestProgram holder;
  for (const Chord key : {kDefaultOptionsKey, kDefaultMenuKey}) {
    // Where Windows keeps it, nobody can take it.
    holder.TakeHotKey(key);
    ASSERT_FALSE(HotKeyIsFree(key));
  }
  installation_.SetOption("SplashScreen", "False");
  installation_.SetOption("SelectPrevWinOnStart", "True");
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(BringToFront(alpha));
  korvale_.emplace(installation_);
  const Window tip = korvale_->Form("frmMsgTip");
  ASSERT_TRUE(tip);
  EXPECT_EQ(LabelText(tip),
            "These hot keys are not available, because Windows or another program has them:  "
            "Windows®+O, Windows®+W.\r\rIf you wish, other hot keys can be chosen on the Hot Keys "
            "tab of the Options dialog box  (Options... on the Tools menu).");
  ASSERT_TRUE(InFront(tip));
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(main().Visible());
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(Target("Alpha"));
}

TEST_F(StartUp, BlanksAsArgumentsGiveNoTip) {
  installation_.MarkAsUsed();
  korvale_.emplace(installation_, "   ");
  EXPECT_TRUE(InFront(main()));
  EXPECT_FALSE(korvale_->HasForm("frmMsgTip"));
}

TEST_F(StartUp, TheExitStoresTheTagsOfClosedWindowsToo) {
  installation_.StoreTag(2, "Gone", "Test.Window");
  Start();
  ASSERT_TRUE(Exit());
  EXPECT_EQ(installation_.settings().Get("ParentWindowList", "2"), "&2  Gone");
}

TEST_F(StartUp, TheEndOfTheSessionEndsTheProgramAsAnExitDoes) {
  installation_.StoreTag(2, "Gone", "Test.Window");
  Start();
  const Window window = main();
  EXPECT_NE(window.Send(WM_QUERYENDSESSION), 0);
  installation_.settings().DeleteValue("ParentWindowList", "2");
  window.Send(WM_ENDSESSION, TRUE);
  EXPECT_TRUE(WaitFor([] { return HotKeyIsFree(TagKey(1)); }));
  EXPECT_EQ(installation_.settings().Get("ParentWindowList", "2"), "&2  Gone");
}

}  // namespace
}  // namespace korvale::endtoend
