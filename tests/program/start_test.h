#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "tests/program/korvale_world.h"

namespace korvale {

/// Copies of Korvale that start and end.
class StartTest : public KorvaleWorld {
 protected:
  /// A copy that has been run before, not started yet.
  KorvaleCopy& UsedCopy(const std::string& folder = "Work") {
    KorvaleCopy& copy = NewCopy(folder);
    store.SaveSetting("Korvale - " + folder, "Options", "SplashScreen", "False");
    log.Clear();
    return copy;
  }

  std::string Stored(const std::string& section, const std::string& key) {
    return store.GetSetting("Korvale - Work", section, key).value_or("(missing)");
  }

  /// The calls so far that begin with one of `steps`, each written as that step; several calls in a
  /// row of the same step count once.
  std::vector<std::string> Order(const std::vector<std::string>& steps) {
    std::vector<std::string> order;
    for (const std::string& call : log.Calls()) {
      const auto step = std::ranges::find_if(
          steps, [&](const std::string& prefix) { return call.starts_with(prefix); });
      if (step != steps.end() && (order.empty() || order.back() != *step)) order.push_back(*step);
    }
    return order;
  }

  /// Reads a tip and closes it.
  static void ReadTip(KorvaleCopy& copy, std::string& text, Twips* height = nullptr) {
    copy.host.WhenModal("frmMsgTip", [&copy, &text, height](class Form& tip) {
      text = tip.Find("lblTip").Text();
      EXPECT_EQ(tip.Caption(), "TIP - Korvale");
      if (height != nullptr) *height = copy.user.Place(tip.Handle()).height;
      copy.user.Click(tip.Handle(), tip.Find("cmdOK").Id());
    });
  }
};

}  // namespace korvale
