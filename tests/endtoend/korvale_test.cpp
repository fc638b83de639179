#include "tests/endtoend/korvale_test.h"

#include <stdexcept>

#include "tests/endtoend/harness/files.h"

namespace korvale::endtoend {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

namespace {

AssertionResult Check(bool holds, const std::string& otherwise) {
  return holds ? AssertionSuccess() : AssertionFailure() << otherwise;
}

std::string InsteadOf(Window window) {
  return Describe(Foreground()) + " is in front, not " + Describe(window);
}

}  // namespace

std::string Describe(Window window) {
  if (!window) return "no window";
  return std::string("'").append(window.Title()).append("' [").append(window.ClassName()) + "]";
}

void KorvaleTest::Start() {
  installation_.MarkAsUsed();
  korvale_.emplace(installation_);
  const Window window = main();
  if (!window) throw std::runtime_error("the main window did not come");
  if (!InFront(window)) throw std::runtime_error("the main window is not in front");
}

void KorvaleTest::TearDown() {
  if (!HasFailure()) return;
  const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
  TakePicture(std::string(test->test_suite_name()) + "." + test->name());
}

AssertionResult KorvaleTest::WorkIn(Window window) {
  if (!BringToFront(window)) {
    return AssertionFailure() << Describe(window) << " does not come to the front; "
                              << Describe(Foreground()) << " is";
  }
  return Target(window.Title());
}

Window KorvaleTest::WorkInNew(const WindowSpec& spec) {
  const Window window = Open(spec);
  const AssertionResult worked = WorkIn(window);
  if (!worked) throw std::runtime_error(worked.message());
  return window;
}

AssertionResult KorvaleTest::InFront(Window window) {
  const bool came = WaitFor([&] { return HasInput(window); });
  return Check(came, InsteadOf(window));
}

AssertionResult KorvaleTest::StaysInFront(Window window) {
  const bool stayed =
      HoldsFor([&] { return Foreground() == window && !korvale_->HasMessageBox(); });
  return Check(stayed, InsteadOf(window));
}

AssertionResult KorvaleTest::Target(const std::string& title) {
  const bool shown = WaitFor([&] { return korvale_->TargetTitle() == title; });
  return Check(shown, std::string("the Target Window is '").append(korvale_->TargetTitle()) +
                          "', not '" + title + "'");
}

AssertionResult KorvaleTest::Says(const std::string& text) {
  const Window box = korvale_->MessageBox();
  if (!box) return AssertionFailure() << "no message; " << Describe(Foreground()) << " is in front";
  const std::string said = LabelText(box);
  if (said != text) return AssertionFailure() << "it says '" << said << "', not '" << text << "'";
  return Check(AnswerBox(box, IDOK), "the message does not go");
}

AssertionResult KorvaleTest::Choose(UINT menu, std::initializer_list<UINT> entries) {
  if (!BringToFront(main())) return AssertionFailure() << "the main window does not come";
  Press({MOD_ALT, menu});
  if (!korvale_->OpenMenu()) return AssertionFailure() << "the menu does not open";
  for (const UINT entry : entries) Press({0, entry});
  return Check(WaitFor([this] { return !korvale_->HasMenu(); }), "the menu does not close");
}

AssertionResult KorvaleTest::Stored(const std::string& key, const std::string& value) {
  const auto stored = [&] { return installation_.settings().Get("Startup", key); };
  const bool came = WaitFor([&] { return stored() == value; });
  return Check(came, std::string("the settings hold ")
                         .append(key + " = '")
                         .append(stored().value_or("(none)"))
                         .append("', not '" + value + "'"));
}

AssertionResult KorvaleTest::OpenWindowMenu() {
  if (!BringToFront(main())) return AssertionFailure() << "the main window does not come";
  Press({MOD_ALT, 'W'});
  return Check(static_cast<bool>(korvale_->OpenMenu()), "the menu does not open");
}

AssertionResult KorvaleTest::PopUpWindowMenu() {
  // Where Ctrl is still down when Korvale comes forward, Wine may not tell it of the release.
  PressAtOnce(kMenuKey);
  return Check(static_cast<bool>(korvale_->OpenMenu()), "the menu does not pop up");
}

AddWindowDialog KorvaleTest::OpenAddWindow() {
  EXPECT_TRUE(OpenWindowMenu());
  Press({0, 'W'});
  const AddWindowDialog dialog(korvale_->Form("frmGetWindow"));
  EXPECT_TRUE(dialog.form()) << "the Add Window dialog did not come";
  EXPECT_TRUE(InFront(dialog.form()));
  return dialog;
}

AssertionResult KorvaleTest::Exit() {
  if (!BringToFront(main())) return AssertionFailure() << "the main window does not come";
  Press({MOD_ALT, VK_F4});
  return Check(korvale_->process().WaitForExit() == 0U, "the program does not end with code 0");
}

}  // namespace korvale::endtoend
