#include "tests/endtoend/harness/installation.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

constexpr char kRegister[] = "Korvale Installations";

}  // namespace

Installation::Installation(const std::string& folder_name, const std::string& program)
    : folder_(parent_.path() + folder_name + "\\"),
      name_("Korvale - " + folder_name),
      settings_(name_) {
  namespace fs = std::filesystem;
  fs::create_directories(fs::path(Wide(folder_)));
  fs::copy_file(fs::path(Wide(program)), fs::path(Wide(this->program())));
  Forget();
}

Installation::~Installation() { Forget(); }

std::optional<std::string> Installation::RegisteredFolder() const {
  return StoredSettings(kRegister).Get("0", name_);
}

void Installation::RemoveProgram() const {
  // A program that was ended a moment ago may still hold its file.
  WaitFor([this] {
    std::error_code error;
    std::filesystem::remove(std::filesystem::path(Wide(program())), error);
    return !error;
  });
}

void Installation::MarkAsUsed() const {
  constexpr std::pair<const char*, UINT> kKeys[] = {{"HotKeyModGeneral0", kOptionsKey.modifiers},
                                                    {"HotKeyGeneral0", kOptionsKey.key},
                                                    {"HotKeyModGeneral1", kMenuKey.modifiers},
                                                    {"HotKeyGeneral1", kMenuKey.key}};
  SetOption("SplashScreen", "False");
  for (const auto& [setting, number] : kKeys) {
    if (!settings_.Get("Options", setting)) SetOption(setting, std::to_string(number));
  }
}

void Installation::SetOption(const std::string& key, const std::string& value) const {
  settings_.Set("Options", key, value);
}

void Installation::StoreTag(int tag, const std::string& text, const std::string& class_name) const {
  const std::string key = std::to_string(tag);
  settings_.Set("ParentWindowList", key, "&" + key + "  " + text);
  if (!class_name.empty()) settings_.Set("ParentWindowClass", key, class_name);
}

void Installation::Forget() const {
  settings_.DeleteAll();
  StoredSettings(kRegister).DeleteValue("0", name_);
}

}  // namespace korvale::endtoend
