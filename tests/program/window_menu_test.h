#pragma once

#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {

/// The Window menu in the hands of a user.
class WindowMenuTest : public KorvaleWorld {
 protected:
  /// A started copy; the user has come from `title` to its main window.
  KorvaleCopy& StartedAfter(WindowHandle window) {
    KorvaleCopy& korvale = StartedCopy();
    WorkIn(window);
    WorkIn(korvale.Handle());
    return korvale;
  }

  std::vector<std::string> Captions(const std::vector<ShownMenuItem>& items) {
    std::vector<std::string> captions;
    for (const ShownMenuItem& item : items) captions.push_back(item.caption);
    return captions;
  }

  void ExpectMessage(KorvaleCopy& korvale, const std::string& text, std::int32_t style) {
    korvale.host.WhenMessageBox([text, style](const ShownMessage& box) {
      EXPECT_EQ(box.text, text);
      EXPECT_EQ(box.title, "Korvale");
      EXPECT_EQ(box.style, style);
      return win32::kIdOk;
    });
  }
};

}  // namespace korvale
