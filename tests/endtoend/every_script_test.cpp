#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <vector>

#include "tests/endtoend/harness/crash.h"
#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

/// Words of one script each.
constexpr const char* kTexts[] = {
    "Cafe\u0301 Ångström Việt",
    "Ωμέγα ς",
    "Работа ий",
    "ספר שָׁלוֹם",
    "كتاب مُحَمَّد",
    "हिन्दी क्षेत्र",
    "ภาษาไทย น้ำ",
    "தமிழ் கொண்டு",
    "會計 𠮷野家",
    "日本語 か\u3099",
    "한국어 \u1112\u1161\u11ab",
    "ქართული",
    "Հայերեն",
    "አማርኛ ሀ\u135d",
    "👨‍👩‍👧‍👦 🇪🇺 👍🏽",
};

constexpr size_t kTags = 9;

/// The texts are given to Tags in two runs of the program: there are more of them than Tags.
class EveryScript : public KorvaleTest, public ::testing::WithParamInterface<int> {
 protected:
  EveryScript() {
    const std::span all(kTexts);
    texts_ = GetParam() == 0 ? all.first(kTags - 1) : all.subspan(kTags - 1);
  }

  static int TagOf(size_t index) { return static_cast<int>(index) + 1; }

  void OpenAll(const std::string& document) {
    for (size_t i = 0; i < texts_.size(); ++i) {
      const std::string class_name = "Script" + std::to_string(TagOf(i));
      windows_.push_back(Open({.title = document + " – " + texts_[i], .class_name = class_name}));
    }
  }

  void CloseAll() {
    for (const Window window : windows_) EXPECT_TRUE(window.Close());
    windows_.clear();
  }

  /// The user types the words into the dialog, where the whole title stands.
  void TagByTypedWords(size_t index) {
    const std::string text = texts_[index];
    const AddWindowDialog dialog = OpenAddWindow();
    EXPECT_EQ(dialog.TitleBox().Text(), windows_[index].Title());
    Press({MOD_ALT, 'P'});
    ASSERT_TRUE(WaitFor([&] { return FocusOf(dialog.form()) == dialog.TitleBox(); }));
    Type(text);
    EXPECT_TRUE(WaitFor([&] { return dialog.TitleBox().Text() == text; }))
        << dialog.TitleBox().Text();
    EXPECT_TRUE(WaitFor([&] { return dialog.Choices()[0].Text() == text; }));
    ASSERT_TRUE(dialog.Confirm());
    const std::string tag = std::to_string(TagOf(index));
    const auto stored = [&] { return installation_.settings().Get("ParentWindowList", tag); };
    EXPECT_TRUE(WaitFor([&] { return stored() == "&" + tag + "  " + text; }))
        << stored().value_or("");
  }

  void ExpectEachKeyToLeadToItsWindow() {
    for (size_t i = 0; i < texts_.size(); ++i) {
      ASSERT_TRUE(BringToFront(elsewhere_));
      Press(TagKey(TagOf(i)));
      EXPECT_TRUE(InFront(windows_[i])) << texts_[i];
      EXPECT_TRUE(Target(windows_[i].Title()));
    }
  }

  void ExpectListToShowEachText() {
    const AddWindowDialog dialog = OpenAddWindow();
    for (size_t i = 0; i < texts_.size(); ++i) {
      ASSERT_TRUE(dialog.SelectTag(TagOf(i)));
      EXPECT_EQ(dialog.SelectedTag(), std::to_string(TagOf(i)) + "  " + texts_[i]);
      EXPECT_TRUE(WaitFor([&] { return dialog.State() == texts_[i]; })) << dialog.State();
    }
    TakePicture("EveryScript.Dialog" + std::to_string(GetParam()));
    EXPECT_TRUE(dialog.Cancel());
  }

  void LookAtTheMenu() {
    ASSERT_TRUE(OpenWindowMenu());
    TakePicture("EveryScript.Menu" + std::to_string(GetParam()));
    Press({0, VK_ESCAPE});
    Press({0, VK_ESCAPE});
    EXPECT_TRUE(WaitFor([this] { return !korvale_->HasMenu(); }));
  }

  std::span<const char* const> texts_;
  std::vector<Window> windows_;
  Window elsewhere_;
};

TEST_P(EveryScript, IsTypedShownStoredFoundAgainAndToldOf) {
  Start();
  OpenAll("1");
  elsewhere_ = Open("Elsewhere");
  for (size_t i = 0; i < texts_.size(); ++i) {
    ASSERT_TRUE(WorkIn(windows_[i]));
    TagByTypedWords(i);
  }
  CloseAll();
  OpenAll("2");
  ExpectEachKeyToLeadToItsWindow();
  LookAtTheMenu();
  ASSERT_TRUE(Exit());

  Start();
  ExpectEachKeyToLeadToItsWindow();
  ExpectListToShowEachText();
  CloseAll();
  ASSERT_TRUE(BringToFront(elsewhere_));
  for (size_t i = 0; i < texts_.size(); ++i) {
    Press(TagKey(TagOf(i)));
    EXPECT_TRUE(Says("Window:  [" + std::string(texts_[i]) + "]  is not open."));
  }
}

INSTANTIATE_TEST_SUITE_P(Runs, EveryScript, ::testing::Values(0, 1));

using EveryFolderName = KorvaleTest;

TEST_F(EveryFolderName, IsThatOfAnInstallation) {
  const std::string name =
      "cafe\u0301 ספר ภาษา 仕事 👨‍👩‍👧 🇪🇺 #1 50%20 & R'D; {a}";
  const Installation named(name);
  named.MarkAsUsed();
  korvale_.emplace(named);
  ASSERT_TRUE(InFront(main()));
  EXPECT_EQ(main().Title(), "Korvale - " + name);
  EXPECT_EQ(named.RegisteredFolder().value_or("") + "\\", named.folder());
  {
    RunningKorvale second(named);
    const Window box = second.MessageBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(LabelText(box), "'" + named.name() + "' is already open.");
    EXPECT_TRUE(AnswerBox(box, IDOK));
    EXPECT_EQ(second.process().WaitForExit(), 0U);
  }
  ASSERT_TRUE(Crash(main()));
  const Window box = korvale_->MessageBox();
  ASSERT_TRUE(box);
  EXPECT_TRUE(AnswerBox(box, IDOK));
  korvale_->process().WaitForExit(std::chrono::seconds(60));
  std::ifstream log(std::filesystem::path(Wide(named.folder() + "Error.log")), std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(log), {}};
  EXPECT_NE(text.find("0000002 = " + named.folder() + "\r\n"), std::string::npos) << text;
}

}  // namespace
}  // namespace korvale::endtoend
