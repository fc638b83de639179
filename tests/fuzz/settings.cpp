#include "tests/fuzz/fuzz.h"
#include "tests/program/any_store.h"

namespace korvale {
namespace {

/// Lines "[section]", "[application name\section]", "key=value" and "key" for a value of another
/// type.
class SettingsFromText : public AnyStore {
 public:
  explicit SettingsFromText(std::string_view input) {
    while (!input.empty()) TakeSetting(TakeLine(input));
    log.Clear();
    Live([yes = false]() mutable { return yes = !yes; });
  }

 private:
  void TestBody() override {}

  void TakeSetting(const std::string& line) {
    const std::size_t equals = line.find('=');
    if (line.starts_with('[') && line.ends_with(']') && line.size() > 1) {
      const std::string name = line.substr(1, line.size() - 2);
      const std::size_t separator = name.find('\\');
      appName_ = separator == std::string::npos ? kApp : name.substr(0, separator);
      section_ = separator == std::string::npos ? name : name.substr(separator + 1);
    } else if (equals == std::string::npos) {
      store.SetOtherType(appName_, section_, line);
    } else {
      store.SaveSetting(appName_, section_, line.substr(0, equals), line.substr(equals + 1));
    }
  }

  std::string appName_ = kApp;
  std::string section_ = "Options";
};

}  // namespace

void Fuzz(std::string_view input) { SettingsFromText settings(input); }

}  // namespace korvale
