#pragma once

#include <string>

namespace korvale {

/// Carries out hot keys by their names; HotKeyDispatch says what the arguments mean.
class HotKeyProcessor {
 public:
  virtual ~HotKeyProcessor() = default;

  virtual std::string udmProcessHotKey(const std::string& name, bool booDoAction,
                                       bool booReturnWindow,
                                       const std::string& strSupplyWindowText) = 0;
};

}  // namespace korvale
