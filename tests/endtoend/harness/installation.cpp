#include "tests/endtoend/harness/installation.h"

#include <filesystem>

#include "tests/endtoend/harness/text.h"

namespace korvale::endtoend {

Installation::Installation(const std::string& folder_name)
    : folder_(parent_.path() + folder_name + "\\"),
      name_("Korvale - " + folder_name),
      settings_(name_) {
  namespace fs = std::filesystem;
  fs::create_directories(fs::path(Wide(folder_)));
  fs::copy_file(fs::path(Wide(KorvaleProgram())), fs::path(Wide(program())));
  Forget();
}

Installation::~Installation() { Forget(); }

void Installation::MarkAsUsed() const { SetOption("SplashScreen", "False"); }

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
  StoredSettings("Korvale Installations").DeleteValue("0", name_);
}

}  // namespace korvale::endtoend
