#pragma once

#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {

/// The Window menu in the hands of a user.
class WindowMenuTest : public KorvaleWorld {
 protected:
  std::vector<std::string> Captions(const std::vector<ShownMenuItem>& items) {
    std::vector<std::string> captions;
    for (const ShownMenuItem& item : items) captions.push_back(item.caption);
    return captions;
  }

  void ExpectMessage(KorvaleCopy& korvale, const std::string& text, std::int32_t style) {
    korvale.ExpectBox(text, "Korvale", style, win32::kIdOk);
  }
};

}  // namespace korvale
