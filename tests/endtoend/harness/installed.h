#pragma once

#include <windows.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/process.h"
#include "tests/endtoend/harness/settings.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Path of the setup program under test: the environment's KORVALE_SETUP, "" when it has none.
std::string SetupProgram();
/// That of an older version with one file more, web\older.html.
std::string OlderSetupProgram();

/// A folder that setup programs install into, and what they leave of it elsewhere; all of it goes
/// with this.
class Installed {
 public:
  /// The folder does not exist yet.
  explicit Installed(const std::string& folder_name = "Work");
  Installed(const Installed&) = delete;
  Installed& operator=(const Installed&) = delete;
  ~Installed();

  /// The name of the installation's settings.
  const std::string& name() const { return name_; }
  /// With "\" at its end.
  const std::string& folder() const { return folder_; }
  std::string program() const { return folder_ + "Korvale.exe"; }
  const StoredSettings& settings() const { return settings_; }
  /// The folder that the register of all installations holds for this one.
  std::optional<std::string> RegisteredFolder() const;

  /// Installs without pages; the exit code.
  std::optional<DWORD> Install(const std::string& setup = SetupProgram()) const;
  /// Removes without pages; true once Uninstall.exe is gone.
  bool Remove(const std::string& options = "") const;
  bool Removed() const;

  /// Leaves settings as an earlier run would have, without splash and tips: nothing is asked or
  /// told at start.
  void MarkAsUsed() const;

  bool Has(const std::string& file) const;
  /// True once there is no such folder.
  bool Gone() const;
  /// Writes such a file, and the folders above it.
  void Put(const std::string& file, const std::string& text) const;
  std::string Read(const std::string& file) const;

  /// The entry in the list of installed apps.
  std::map<std::string, std::string> Entry() const;
  /// What Windows starts when the user logs on, "" for nothing.
  std::string StartedWithWindows() const;
  bool HasShortcut() const;

  /// The main window of the copy that runs, waited for until it is visible.
  Window Main() const;
  bool Runs() const;

 private:
  Window FindMain() const;
  std::wstring EntryPath() const;
  std::string Shortcut() const;

  TemporaryFolder parent_;
  std::string folder_;
  std::string name_;
  StoredSettings settings_;
};

/// Lets Wine tell a program of this file name that it is Windows 10, which its tests do without.
/// Nothing happens on Windows.
class AsWindows10 {
 public:
  explicit AsWindows10(const std::string& program);
  AsWindows10(const AsWindows10&) = delete;
  AsWindows10& operator=(const AsWindows10&) = delete;
  ~AsWindows10();

 private:
  std::wstring key_;
};

/// False on Windows.
bool RunsUnderWine();

}  // namespace korvale::endtoend
