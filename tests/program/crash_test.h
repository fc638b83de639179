#pragma once

#include <string>
#include <vector>

#include "platform/run_time_error.h"
#include "tests/program/start_test.h"

namespace korvale {

inline constexpr const char* kCrashLog = "C:\\Programs\\Work\\Error.log";
inline constexpr Crash kAccessViolation{0xC0000005, 0x7FF612AB};

class CrashTest : public StartTest {
 protected:
  KorvaleCopy& Prepared() {
    KorvaleCopy& korvale = UsedCopy();
    clock.SetLocalTime({2026, 11, 21, 9, 5, 7, 6});
    return korvale;
  }
  void RecordNextMessage(KorvaleCopy& korvale) {
    korvale.host.WhenMessageBox([this](const ShownMessage& box) {
      messages_.push_back(box);
      return win32::kIdOk;
    });
  }
  KorvaleCopy& Running() {
    KorvaleCopy& korvale = Prepared();
    korvale.Start();
    clock.Advance(20'000);
    RecordNextMessage(korvale);
    log.Clear();
    return korvale;
  }
  /// A copy whose start fails in the middle of registering its hot keys.
  KorvaleCopy& FailingAtStart() {
    KorvaleCopy& korvale = Prepared();
    RecordNextMessage(korvale);
    log.WhenCalled("RegisterHotKey(frmMain, 5",
                   [] { throw RunTimeError(RunTimeError::kOverflow); });
    return korvale;
  }

  /// The user was told once that a window could not be made, and can go on.
  void ExpectToldAndUsable(KorvaleCopy& korvale, const std::string& form) {
    ASSERT_EQ(messages_.size(), 1U);
    EXPECT_TRUE(messages_[0].text.starts_with("VB ERROR 7 - Out of memory")) << messages_[0].text;
    EXPECT_EQ(korvale.FindForm(form), nullptr);
    EXPECT_TRUE(korvale.host.Desktop().IsEnabled(korvale.Handle()));
    EXPECT_FALSE(korvale.Suspended());
    EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
  }

  std::string Log() { return session->contents[kCrashLog]; }
  /// The record of a start that failed in this way.
  static std::string RecordOfFailedStart() {
    return "\r\n"
           "-- Sat 11/21/2026 09:05:07 --\r\n"
           "Error Code:  1\r\n"
           "Problem:  VB ERROR 6 - Overflow -- Overflow\r\n"
           "Locals:  \r\n"
           "0000001 = False\r\n"
           "0000002 = C:\\Programs\\Work\\\r\n"
           "0000003 = 1.02.0003\r\n"
           "0000004 = True\r\n"
           "0000005 = 0\r\n";
  }

  std::vector<ShownMessage> messages_;
};

}  // namespace korvale
