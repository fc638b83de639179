#include "tests/endtoend/store_test.h"

#include <algorithm>

#include "tests/endtoend/harness/default_settings.h"

namespace korvale::endtoend {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;

void StoreTest::CloseTipOfKeptKeys() {
  if (!korvale_->HasForm("frmMsgTip")) return;
  const Window tip = korvale_->Form("frmMsgTip");
  const std::string text = LabelText(tip);
  if (text.find(":  Windows®+O, Windows®+W.") != std::string::npos) {
    EXPECT_TRUE(tip.Close());
  }
}

Window StoreTest::ReviewQuestion() {
  std::vector<Window> found;
  WaitFor([&] {
    CloseTipOfKeptKeys();
    return !(found = korvale_->MessageBoxes("Korvale - CAUTION")).empty();
  });
  return found.empty() ? Window() : found.front();
}

AssertionResult StoreTest::StartFirstTime() {
  korvale_.emplace(installation_);
  const Window question = ReviewQuestion();
  if (!question) return AssertionFailure() << "the first run does not ask to review the hot keys";
  if (!AnswerBox(question, IDNO)) return AssertionFailure() << "the question does not go";
  return InFront(main());
}

AssertionResult StoreTest::StartAgain() {
  korvale_.emplace(installation_);
  const bool came = WaitFor([&] {
    CloseTipOfKeptKeys();
    return korvale_->HasForm("frmMain");
  });
  if (!came) return AssertionFailure() << "the main window did not come";
  return InFront(main());
}

bool StoreTest::HoldsSections(const std::string& first, const std::string& second) const {
  std::vector<std::string> sections = settings().Sections();
  std::ranges::sort(sections);
  return sections == std::vector<std::string>{first, second};
}

StoreTest::Pairs StoreTest::Defaults(const std::string& section) {
  Pairs defaults;
  for (const DefaultSetting& setting : DefaultSettings()) {
    if (setting.section == section) defaults[setting.key] = setting.value;
  }
  return section == "Startup" ? WithoutPlace(defaults) : defaults;
}

StoreTest::Pairs StoreTest::WithoutPlace(Pairs startup) {
  for (const char* const key : {"Left", "Top", "Height"}) startup.erase(key);
  return startup;
}

}  // namespace korvale::endtoend
