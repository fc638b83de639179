#pragma once

#include <string>
#include <vector>

namespace korvale {

/// Names that are known although no hot key has them.
inline std::vector<std::string> ReservedHotKeyNames() {
  std::vector<std::string> names = {"HOTKEY_MINIMIZE_CHILD", "HOTKEY_RESTORE/MAXIMIZE_CHILD",
                                    "HOTKEY_KEYS2", "HOTKEY_KEYS3"};
  for (int tag = 0; tag <= 9; ++tag) names.push_back("HOTKEY_CHILD" + std::to_string(tag));
  return names;
}

}  // namespace korvale
