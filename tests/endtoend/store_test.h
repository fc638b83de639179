#pragma once

#include <map>
#include <string>

#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {

/// Starts with nothing stored, and what is stored after them.
class StoreTest : public KorvaleTest {
 protected:
  using Pairs = std::map<std::string, std::string>;

  /// Waits for the question of the first run, which comes after the defaults have been stored and
  /// after the tip about hot keys that Windows keeps.
  Window ReviewQuestion();
  /// Starts the installation, and answers the question of the first run with No.
  ::testing::AssertionResult StartFirstTime();
  /// Starts the installation once more after its exit.
  ::testing::AssertionResult StartAgain();
  /// Closes the tip that a start with the default hot keys shows where Windows keeps two of them.
  void CloseTipOfKeptKeys();

  const StoredSettings& settings() const { return installation_.settings(); }
  Pairs StoredOptions() const { return settings().Section("Options"); }
  /// The section "Startup" without the size and place that Korvale measures itself.
  Pairs StoredStartup() const { return WithoutPlace(settings().Section("Startup")); }
  bool HoldsSections(const std::string& first, const std::string& second) const;

  static Pairs Defaults(const std::string& section);
  static Pairs WithoutPlace(Pairs startup);
};

}  // namespace korvale::endtoend
