#pragma once

#include <optional>
#include <string>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/settings.h"

namespace korvale::endtoend {

/// A copy of Korvale.exe in a folder of its own, with settings of its own; both go with it.
class Installation {
 public:
  /// Copies the program into a folder of that name. Throws when the program is not there.
  explicit Installation(const std::string& folder_name = "Probe",
                        const std::string& program = KorvaleProgram());
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;
  ~Installation();

  /// The main window's caption, which is also the name of the settings.
  const std::string& name() const { return name_; }
  /// The folder of Korvale.exe, with "\" at its end.
  const std::string& folder() const { return folder_; }
  std::string program() const { return folder_ + "Korvale.exe"; }
  const StoredSettings& settings() const { return settings_; }
  /// The folder that the register of all installations holds for this one.
  std::optional<std::string> RegisteredFolder() const;

  /// Takes the program out of the folder, as a user does by moving or renaming the folder.
  void RemoveProgram() const;

  /// Leaves settings as an earlier run would have, without the splash, so that nothing is asked at
  /// start. Where none are stored yet, the hot keys are kOptionsKey and kMenuKey, so that nothing
  /// is told at start either.
  void MarkAsUsed() const;
  void SetOption(const std::string& key, const std::string& value) const;
  /// Stores a Tag as an earlier run would have; `class_name` "" means not learnt yet.
  void StoreTag(int tag, const std::string& text, const std::string& class_name) const;

 private:
  void Forget() const;

  TemporaryFolder parent_;
  std::string folder_;
  std::string name_;
  StoredSettings settings_;
};

}  // namespace korvale::endtoend
