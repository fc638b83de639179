#include "tests/endtoend/harness/installed.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "tests/endtoend/harness/environment.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

namespace fs = std::filesystem;

constexpr char kRegister[] = "Korvale Installations";
constexpr wchar_t kEntries[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
constexpr wchar_t kRun[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr std::chrono::seconds kInstallPatience{60};

std::wstring Name(const std::string& path) { return fs::path(Wide(path)).filename().wstring(); }

/// A value of HKEY_CURRENT_USER as text, numbers in decimal; "" when there is none.
std::string Value(const std::wstring& key, const wchar_t* name) {
  wchar_t text[1024];
  DWORD size = sizeof(text);
  if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size) ==
      0) {
    return Utf8(text);
  }
  DWORD number = 0;
  size = sizeof(number);
  if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name, RRF_RT_REG_DWORD, nullptr, &number,
                   &size) == 0) {
    return std::to_string(number);
  }
  return "";
}

}  // namespace

std::string SetupProgram() { return Environment(L"KORVALE_SETUP"); }

std::string OlderSetupProgram() { return Environment(L"KORVALE_OLDER_SETUP"); }

Installed::Installed(const std::string& folder_name)
    : folder_(parent_.path() + folder_name + "\\"),
      name_("Korvale - " + folder_name),
      settings_(name_) {}

Installed::~Installed() {
  WaitFor([this] {
    if (const Window main = FindMain()) PostMessageW(main.handle(), WM_CLOSE, 0, 0);
    return !Runs();
  });
  settings_.DeleteAll();
  StoredSettings(kRegister).DeleteValue("0", name_);
  RegDeleteTreeW(HKEY_CURRENT_USER, EntryPath().c_str());
  RegDeleteKeyValueW(HKEY_CURRENT_USER, kRun, Wide(name_).c_str());
  std::error_code ignored;
  fs::remove(fs::path(Wide(Shortcut())), ignored);
}

std::optional<std::string> Installed::RegisteredFolder() const {
  return StoredSettings(kRegister).Get("0", name_);
}

std::optional<DWORD> Installed::Install(const std::string& setup) const {
  const AsWindows10 supported(setup);
  // The folder's name stands last, without quotes.
  const std::string folder = folder_.substr(0, folder_.size() - 1);
  return Process(Quoted(setup) + " /S /D=" + folder).WaitForExit(kInstallPatience);
}

bool Installed::Remove(const std::string& options) const {
  // It goes on in a copy of itself, since no program can delete its own file.
  Process(Quoted(folder_ + "Uninstall.exe") + " /S" + options).WaitForExit();
  return Removed();
}

bool Installed::Removed() const {
  return WaitFor([this] { return Entry().empty(); }, kInstallPatience) && !Has("Uninstall.exe");
}

void Installed::MarkAsUsed() const {
  settings_.Set("Options", "SplashScreen", "False");
  settings_.Set("Startup", "DisplayTips", "False");
}

bool Installed::Has(const std::string& file) const {
  return fs::exists(fs::path(Wide(folder_ + file)));
}

bool Installed::Gone() const {
  return WaitFor([this] { return !Has(""); });
}

void Installed::Put(const std::string& file, const std::string& text) const {
  const fs::path path(Wide(folder_ + file));
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

std::string Installed::Read(const std::string& file) const {
  std::ifstream in(fs::path(Wide(folder_ + file)), std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::wstring Installed::EntryPath() const { return kEntries + Wide(name_); }

std::map<std::string, std::string> Installed::Entry() const {
  std::map<std::string, std::string> entry;
  for (const wchar_t* const name :
       {L"DisplayName", L"DisplayVersion", L"DisplayIcon", L"Publisher", L"InstallLocation",
        L"UninstallString", L"QuietUninstallString", L"EstimatedSize"}) {
    const std::string value = Value(EntryPath(), name);
    if (!value.empty()) entry[Utf8(name)] = value;
  }
  return entry;
}

std::string Installed::StartedWithWindows() const { return Value(kRun, Wide(name_).c_str()); }

std::string Installed::Shortcut() const {
  const std::string title = name_ == "Korvale - Korvale" ? "Korvale" : name_;
  return Environment(L"APPDATA") + "\\Microsoft\\Windows\\Start Menu\\Programs\\" + title + ".lnk";
}

bool Installed::HasShortcut() const { return fs::exists(fs::path(Wide(Shortcut()))); }

Window Installed::FindMain() const {
  return FindTopLevel([this](Window window) {
    return window.ClassName() == "Korvale.frmMain" && window.Title() == name_;
  });
}

Window Installed::Main() const {
  WaitFor([this] { return FindMain().Visible(); });
  return FindMain();
}

bool Installed::Runs() const { return static_cast<bool>(FindMain()); }

AsWindows10::AsWindows10(const std::string& program)
    : key_(L"Software\\Wine\\AppDefaults\\" + Name(program)) {
  if (!RunsUnderWine()) return;
  constexpr wchar_t kVersion[] = L"win10";
  RegSetKeyValueW(HKEY_CURRENT_USER, key_.c_str(), L"Version", REG_SZ, kVersion, sizeof(kVersion));
}

AsWindows10::~AsWindows10() {
  if (RunsUnderWine()) RegDeleteTreeW(HKEY_CURRENT_USER, key_.c_str());
}

bool RunsUnderWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

}  // namespace korvale::endtoend
