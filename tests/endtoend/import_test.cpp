#include "tests/endtoend/harness/default_settings.h"
#include "tests/endtoend/harness/other_paths.h"
#include "tests/endtoend/store_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";
constexpr char kQuestion[] =
    "Do you want to import common settings and options from Korvale - Old into this installation "
    "of Korvale ?";

class Installations : public StoreTest {
 protected:
  static void KeepSilent(const Installation& installation) {
    installation.MarkAsUsed();
    installation.settings().Set("Startup", "DisplayTips", "False");
  }

  static Pairs TagsOf(const Installation& installation) {
    return installation.settings().Section("ParentWindowList");
  }
};

TEST_F(Installations, KeepTheirOwnTagsAndHotKeys) {
  installation_.StoreTag(1, "Alpha", kClass);
  Start();
  const Installation other("Second");
  KeepSilent(other);
  other.SetOption("HotKeyModParent", "2");
  other.StoreTag(1, "Beta", kClass);
  RunningKorvale second(other);
  ASSERT_TRUE(second.Main());
  const Window alpha = Open("Alpha");
  const Window beta = Open("Beta");
  ASSERT_TRUE(WorkIn(Open("Gamma")));
  Press(TagKey(1));
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(StaysInFront(alpha));
  Press({MOD_CONTROL, '1'});
  EXPECT_TRUE(InFront(beta));
  ASSERT_TRUE(BringToFront(second.Main()));
  Press({MOD_ALT, VK_F4});
  EXPECT_EQ(second.process().WaitForExit(), 0U);
  ASSERT_TRUE(Exit());
  EXPECT_EQ(TagsOf(installation_), (Pairs{{"1", "&1  Alpha"}}));
  EXPECT_EQ(TagsOf(other), (Pairs{{"1", "&1  Beta"}}));
  EXPECT_EQ(settings().Get("Options", "HotKeyModParent").value_or("1"), "1");
  EXPECT_EQ(other.settings().Get("Options", "HotKeyModParent"), "2");
}

TEST_F(Installations, InTwoFoldersOfTheSameNameAreRefused) {
  const Installation twin("Probe");
  installation_.StoreTag(1, "Alpha", kClass);
  Start();
  ASSERT_TRUE(Exit());
  const Pairs options = StoredOptions();
  const Pairs startup = settings().Section("Startup");
  const std::optional<std::string> folder = installation_.RegisteredFolder();
  EXPECT_EQ(folder.value_or("") + "\\", installation_.folder());

  korvale_.emplace(twin);
  const Window box = korvale_->MessageBox();
  ASSERT_TRUE(box);
  EXPECT_EQ(box.Title(), "Korvale");
  EXPECT_TRUE(
      Says("An installation in a folder named 'Probe' already exists.  Korvale does not "
           "support two installations with the same folder name.  Please rename the folder "
           "then re-run Korvale."));
  EXPECT_EQ(korvale_->process().WaitForExit(), 0U);
  EXPECT_EQ(StoredOptions(), options);
  EXPECT_EQ(settings().Section("Startup"), startup);
  EXPECT_EQ(TagsOf(installation_), (Pairs{{"1", "&1  Alpha"}}));
  EXPECT_EQ(installation_.RegisteredFolder(), folder);
}

/// A folder that also has a short name.
class LongNamed : public Installations {
 protected:
  LongNamed() : long_("Folder With A Long Name"), paths_(long_.folder()) { KeepSilent(long_); }

  Installation long_;
  OtherPaths paths_;
};

TEST_F(LongNamed, RunsOnceWhateverPathItIsStartedBy) {
  const RunningKorvale first(long_);
  ASSERT_TRUE(first.Main());
  EXPECT_EQ(paths_.All().size(), 4U);
  for (const OtherPath& path : paths_.All()) {
    SCOPED_TRACE(path.what + ": " + path.folder);
    RunningKorvale second(long_, path);
    const Window box = second.MessageBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(LabelText(box), "'Korvale - Folder With A Long Name' is already open.");
    EXPECT_TRUE(AnswerBox(box, IDOK));
    EXPECT_EQ(second.process().WaitForExit(), 0U);
    EXPECT_TRUE(InFront(first.Main()));
  }
}

TEST_F(LongNamed, HasTheSameSettingsWhateverPathItIsStartedBy) {
  long_.StoreTag(1, "Alpha", kClass);
  ASSERT_EQ(paths_.All().size(), 4U);
  for (const OtherPath& path : paths_.All()) {
    SCOPED_TRACE(path.what + ": " + path.folder);
    korvale_.emplace(long_, path);
    ASSERT_TRUE(InFront(main()));
    EXPECT_EQ(main().Title(), "Korvale - Folder With A Long Name");
    EXPECT_FALSE(korvale_->HasMessageBox());
    ASSERT_TRUE(Exit());
    EXPECT_EQ(TagsOf(long_), (Pairs{{"1", "&1  Alpha"}}));
  }
}

TEST_F(Installations, MayMoveToAnotherFolderOfTheSameName) {
  const Installation twin("Probe");
  installation_.StoreTag(1, "Alpha", kClass);
  Start();
  ASSERT_TRUE(Exit());
  installation_.RemoveProgram();
  korvale_.emplace(twin);
  EXPECT_TRUE(InFront(main()));
  EXPECT_EQ(twin.RegisteredFolder().value_or("") + "\\", twin.folder());
  ASSERT_TRUE(Exit());
  EXPECT_EQ(TagsOf(twin), (Pairs{{"1", "&1  Alpha"}}));
}

TEST_F(Installations, OnADriveThatIsAwayAreNotOffered) {
  const Installation away("Away");
  away.MarkAsUsed();
  StoredSettings("Korvale Installations").Set("0", away.name(), "Q:\\Tools\\Away");
  korvale_.emplace(installation_);
  const Window question = ReviewQuestion();
  ASSERT_TRUE(question) << LabelText(korvale_->MessageBox());
  EXPECT_TRUE(AnswerBox(question, IDNO));
  EXPECT_EQ(away.RegisteredFolder(), "Q:\\Tools\\Away");
  EXPECT_EQ(away.settings().Get("Options", "SplashScreen"), "False");
}

/// An installation that was used with every setting changed, and whose folder has been renamed
/// since.
class Import : public StoreTest {
 protected:
  Import() : old_("Old") {
    korvale_.emplace(old_);
    EXPECT_TRUE(AnswerBox(ReviewQuestion(), IDNO));
    EXPECT_TRUE(InFront(main()));
    EXPECT_TRUE(Exit());
    for (const auto& [key, value] : kOldOptions) old_.SetOption(key, value);
    for (const auto& [key, value] : kOldStartup) old_.settings().Set("Startup", key, value);
    old_.StoreTag(3, "Alpha", kClass);
    old_.StoreTag(7, "*** - Notes", "");
    old_.RemoveProgram();
  }

  /// Starts the new installation and answers its two questions.
  void StartAndAnswer(int answer) {
    korvale_.emplace(installation_);
    const Window question = korvale_->MessageBox();
    ASSERT_TRUE(question);
    EXPECT_EQ(question.Title(), "Korvale");
    EXPECT_EQ(LabelText(question), kQuestion);
    ASSERT_TRUE(AnswerBox(question, answer));
    const Window review = ReviewQuestion();
    ASSERT_TRUE(review);
    ASSERT_TRUE(AnswerBox(review, IDNO));
    ASSERT_TRUE(InFront(main()));
  }

  const Pairs kOldOptions = {{"SplashScreen", "False"},  {"HotKeyModParent", "2"},
                             {"HotKeyParent9", "False"}, {"HotKeyEnabled", "255"},
                             {"HotKeyAction0", "0"},     {"AllowNoTextWindow", "True"}};
  const Pairs kOldStartup = {
      {"WindowState", "2"},   {"Left", "600"},          {"Top", "900"},
      {"Width", "6000"},      {"Height", "2000"},       {"WI1BackColor", "255"},
      {"Tips", "1111111110"}, {"DisplayTips", "False"}, {"LastColorSelected", "128"},
      {"OptionsTab", "3"}};
  Installation old_;
};

TEST_F(Import, TakesOverEverythingButThePlaceWhenTheUserAgrees) {
  ASSERT_NO_FATAL_FAILURE(StartAndAnswer(IDYES));
  Pairs options = Defaults("Options");
  for (const auto& [key, value] : kOldOptions) options[key] = value;
  EXPECT_EQ(StoredOptions(), options);
  Pairs startup = Defaults("Startup");
  for (const char* const key : {"WI1BackColor", "Tips", "LastColorSelected", "OptionsTab"}) {
    startup[key] = kOldStartup.at(key);
  }
  EXPECT_EQ(StoredStartup(), startup);
  EXPECT_NE(settings().Get("Startup", "Left"), "600");
  EXPECT_NE(settings().Get("Startup", "Top"), "900");
  EXPECT_EQ(settings().Section("ParentWindowList"),
            (Pairs{{"3", "&3  Alpha"}, {"7", "&7  *** - Notes"}}));
  EXPECT_EQ(settings().Section("ParentWindowClass"), (Pairs{{"3", kClass}}));
  EXPECT_EQ(old_.settings().Sections(), std::vector<std::string>());
  EXPECT_EQ(old_.RegisteredFolder(), std::nullopt);
  EXPECT_EQ(installation_.RegisteredFolder().value_or("") + "\\", installation_.folder());
  EXPECT_FALSE(main().Maximized());
  EXPECT_FALSE(HotKeyIsFree({MOD_CONTROL, '1'}));
}

TEST_F(Import, LeavesEverythingWhereItIsWhenTheUserDeclines) {
  const Pairs options = old_.settings().Section("Options");
  const Pairs startup = old_.settings().Section("Startup");
  ASSERT_NO_FATAL_FAILURE(StartAndAnswer(IDNO));
  EXPECT_EQ(StoredOptions(), Defaults("Options"));
  EXPECT_EQ(StoredStartup(), Defaults("Startup"));
  EXPECT_EQ(settings().Section("ParentWindowList"), Pairs());
  EXPECT_EQ(old_.settings().Section("Options"), options);
  EXPECT_EQ(old_.settings().Section("Startup"), startup);
  EXPECT_EQ(old_.settings().Section("ParentWindowList").size(), 2U);
  EXPECT_EQ(old_.RegisteredFolder().value_or("") + "\\", old_.folder());
  EXPECT_FALSE(HotKeyIsFree(TagKey(1)));
}

}  // namespace
}  // namespace korvale::endtoend
