#include <stdexcept>

#include "tests/endtoend/setup_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kTitle[] = "Korvale " KORVALE_VERSION " Setup";
constexpr char kRemoveTitle[] = "Korvale " KORVALE_VERSION " Uninstall";
constexpr char kWillBeInstalled[] = "Version " KORVALE_VERSION " will be installed in";
constexpr char kWillBeUpdated[] = "It will be updated to version " KORVALE_VERSION " in";

/// The control of the page on the screen that shows such a text; pages are windows of their own in
/// the program's window.
Window ControlThatBegins(Window window, const std::string& text) {
  for (const Window child : window.Children()) {
    if (!child.Visible()) continue;
    if (child.Text().starts_with(text)) return child;
    if (const Window found = ControlThatBegins(child, text)) return found;
  }
  return {};
}

/// The pages of the setup program, used with keys alone.
class SetupPages : public SetupTest {
 protected:
  void Start(const std::string& setup = SetupProgram()) {
    const AsWindows10 supported(setup);
    program_.emplace(Quoted(setup));
    pages_ = {};
    ASSERT_TRUE(InFront(Page(kTitle, "Every folder is an installation of its own")));
  }

  /// Waits for a window whose title and one of whose texts begin like this.
  Window Page(const char* title, const std::string& text) {
    pages_ = WaitForTopLevel([&](Window window) {
      return window.Visible() && window.Title().starts_with(title) &&
             ControlThatBegins(window, text);
    });
    return pages_;
  }

  bool Checked(const char* box) {
    return ControlThatBegins(pages_, box).Send(BM_GETCHECK) == BST_CHECKED;
  }

  /// Types the folder, and goes to the page that says what will be done in such words.
  void GoToReady(const Installed& place, const char* ready) {
    Press({MOD_CONTROL, 'A'});
    Type(place.folder());
    Press({0, VK_RETURN});
    ASSERT_TRUE(InFront(Page(kTitle, ready)));
  }

  std::optional<Process> program_;
  Window pages_;
};

TEST_F(SetupPages, InstallByKeysAlone) {
  const Installed work;
  ASSERT_NO_FATAL_FAILURE(Start());
  TakePicture("Setup.1-folder");
  ASSERT_NO_FATAL_FAILURE(GoToReady(work, kWillBeInstalled));
  EXPECT_TRUE(ControlThatBegins(pages_, "Korvale - Work will be installed."));
  EXPECT_FALSE(Checked("Start it together"));
  Press({MOD_ALT, 'W'});
  EXPECT_TRUE(WaitFor([&] { return Checked("Start it together"); }));
  TakePicture("Setup.2-ready");
  Press({MOD_ALT, 'I'});
  ASSERT_TRUE(InFront(Page(kTitle, "You find it in the Start menu as Korvale - Work.")));
  EXPECT_TRUE(Checked("&Start it now"));
  TakePicture("Setup.3-done");
  work.MarkAsUsed();
  Press({0, VK_RETURN});
  EXPECT_EQ(program_->WaitForExit(), 0U);
  EXPECT_TRUE(InFront(work.Main()));
  EXPECT_EQ(work.StartedWithWindows(), Quoted(work.program()));
}

TEST_F(SetupPages, KeepTheChoicesOfTheUserAtAnUpdate) {
  const Installed work;
  ASSERT_EQ(work.Install(OlderSetupProgram()), 0U);
  ASSERT_NO_FATAL_FAILURE(Start());
  ASSERT_NO_FATAL_FAILURE(GoToReady(work, kWillBeUpdated));
  EXPECT_FALSE(Checked("Start it together"));
  Press({MOD_ALT, 'W'});
  Press({MOD_ALT, 'I'});
  ASSERT_TRUE(InFront(Page(kTitle, "You find it")));
  Press({MOD_ALT, 'S'});
  EXPECT_TRUE(WaitFor([&] { return !Checked("&Start it now"); }));
  Press({MOD_ALT, 'F'});
  EXPECT_EQ(program_->WaitForExit(), 0U);
  EXPECT_TRUE(HoldsFor([&] { return !work.Runs(); }));
  ASSERT_NO_FATAL_FAILURE(Start());
  ASSERT_NO_FATAL_FAILURE(GoToReady(work, kWillBeUpdated));
  EXPECT_TRUE(ControlThatBegins(pages_, "Korvale - Work will be updated."));
  EXPECT_TRUE(Checked("Start it together"));
  Press({0, VK_ESCAPE});
  ASSERT_TRUE(InFront(Page(kTitle, "Are you sure")));
  Press({0, 'Y'});
  EXPECT_EQ(program_->WaitForExit(), 1U);
  ASSERT_EQ(work.Install(), 0U);
  EXPECT_EQ(work.StartedWithWindows(), Quoted(work.program()));
  ASSERT_TRUE(work.Remove());
  EXPECT_EQ(work.StartedWithWindows(), "");
}

TEST_F(SetupPages, SayThatAFolderCannotBeUsed) {
  const Installed work;
  const Installed twin;
  ASSERT_EQ(work.Install(), 0U);
  ASSERT_NO_FATAL_FAILURE(Start());
  Press({MOD_CONTROL, 'A'});
  Type(twin.folder());
  Press({0, VK_RETURN});
  ASSERT_TRUE(InFront(Page(kTitle, "There is already an installation of this name:")));
  TakePicture("Setup.4-same-name");
  Press({0, VK_RETURN});
  EXPECT_TRUE(InFront(Page(kTitle, "Every folder is an installation of its own")));
}

TEST_F(SetupPages, EndNoCopyThatDoesNotClose) {
  const Installed work;
  ASSERT_EQ(work.Install(), 0U);
  work.settings().Set("ParentWindowList", "1", "&1  Nowhere");
  Use(work);
  Press(TagKey(1));
  const Window message = korvale_->MessageBox();
  ASSERT_TRUE(message);
  ASSERT_NO_FATAL_FAILURE(Start());
  ASSERT_NO_FATAL_FAILURE(GoToReady(work, kWillBeUpdated));
  TakePicture("Setup.5-running");
  Press({MOD_ALT, 'I'});
  // The copy is given ten seconds.
  EXPECT_TRUE(WaitFor([&] { return !pages_.Enabled(); }, std::chrono::seconds(20)));
  ASSERT_TRUE(InFront(Page(kTitle, "Korvale - Work is still running.")));
  TakePicture("Setup.6-still-running");
  EXPECT_TRUE(korvale_->process().Running());
  ASSERT_TRUE(AnswerBox(message, IDOK));
  ASSERT_TRUE(BringToFront(pages_));
  Press({0, VK_RETURN});
  EXPECT_TRUE(Closed());
  ASSERT_TRUE(InFront(Page(kTitle, "You find it")));
  Press({0, VK_RETURN});
  EXPECT_TRUE(InFront(work.Main()));
}

TEST_F(SetupPages, RemoveARunningCopyAndItsSettings) {
  const Installed work;
  ASSERT_EQ(work.Install(), 0U);
  Use(work);
  program_.emplace(Quoted(work.folder() + "Uninstall.exe"));
  ASSERT_TRUE(InFront(Page(kRemoveTitle, "Korvale - Work will be removed from")));
  EXPECT_FALSE(Checked("Also remove"));
  Press({MOD_ALT, 'T'});
  EXPECT_TRUE(WaitFor([&] { return Checked("Also remove"); }));
  TakePicture("Setup.7-remove");
  Press({MOD_ALT, 'R'});
  EXPECT_TRUE(work.Removed());
  EXPECT_TRUE(Closed());
  EXPECT_TRUE(work.Gone());
  EXPECT_EQ(work.settings().Sections(), std::vector<std::string>());
}

}  // namespace
}  // namespace korvale::endtoend
