#pragma once

#include <functional>
#include <string>

#include "tests/fakes/call_log.h"
#include "tests/fakes/headless_form_host.h"
#include "tests/fakes/plain_desktop.h"
#include "util/text.h"

namespace korvale {

/// What MessageBoxHost's screen stands on; a base, so that it exists before the host.
struct MessageBoxDesktop {
  PlainDesktop plain;
};

/// A host whose message boxes stay up for as long as `whileShown` takes, however deep they nest.
class MessageBoxHost : private MessageBoxDesktop, public HeadlessFormHost {
 public:
  explicit MessageBoxHost(CallLog& log) : HeadlessFormHost(plain, log), log_(&log) {}

  std::int16_t MessageBoxW(WindowHandle owner, const std::string& text, const std::string& title,
                           std::int32_t style) override {
    log_->Add("MessageBoxW(" + log_->Window(owner) + ", \"" + text + "\", \"" + title + "\", " +
              DecimalText(style) + ")");
    if (whileShown) whileShown(text);
    return answer;
  }

  std::int16_t answer = 1;
  /// Gets the text; may throw.
  std::function<void(const std::string&)> whileShown;

 private:
  CallLog* log_;
};

}  // namespace korvale
