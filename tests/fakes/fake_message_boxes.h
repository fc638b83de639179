#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "app/core/message_boxes.h"

namespace korvale {

struct ShownMessageBox {
  std::string prompt;
  std::int32_t buttons = 0;
  std::string title;

  friend bool operator==(const ShownMessageBox&, const ShownMessageBox&) = default;
};

/// Records the message boxes and presses the buttons in `answers`, OK once these have run out.
/// Fails the test when a button was never asked for.
class FakeMessageBoxes : public MessageBoxes {
 public:
  FakeMessageBoxes() = default;
  FakeMessageBoxes(const FakeMessageBoxes&) = delete;
  FakeMessageBoxes& operator=(const FakeMessageBoxes&) = delete;
  ~FakeMessageBoxes() override {
    if (testing::Test::HasFailure()) return;
    EXPECT_TRUE(answers.empty()) << answers.size() << " expected message boxes did not come";
  }

  std::int16_t ShowMessageBox(const std::string& prompt, std::int32_t buttons,
                              const std::string& title) override {
    shown.push_back({prompt, buttons, title});
    if (whileShown) whileShown(shown.back());
    if (answers.empty()) return 1;
    const std::int16_t answer = answers.front();
    answers.pop_front();
    return answer;
  }

  std::vector<ShownMessageBox> shown;
  std::deque<std::int16_t> answers;
  /// Called while a box stands on the screen.
  std::function<void(const ShownMessageBox&)> whileShown;
};

}  // namespace korvale
