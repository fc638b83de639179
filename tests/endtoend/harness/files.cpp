#include "tests/endtoend/harness/files.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <system_error>

#include "tests/endtoend/harness/environment.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

namespace fs = std::filesystem;

/// The path without short names, which the system's own one has for a user with a long name.
std::wstring LongPath(const std::wstring& path) {
  std::wstring longPath(1024, L'\0');
  const auto room = static_cast<DWORD>(longPath.size());
  const DWORD length = GetLongPathNameW(path.c_str(), longPath.data(), room);
  if (length == 0 || length >= room) return path;
  longPath.resize(length);
  return longPath;
}

}  // namespace

std::string OwnFolder() {
  std::wstring buffer(1024, L'\0');
  buffer.resize(GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size())));
  return Utf8(buffer.substr(0, buffer.rfind(L'\\') + 1));
}

std::string Quoted(const std::string& path) { return std::string(1, '"').append(path) + '"'; }

std::string KorvaleProgram() {
  const std::string chosen = Environment(L"KORVALE_EXE");
  return chosen.empty() ? OwnFolder() + "Korvale.exe" : chosen;
}

TemporaryFolder::TemporaryFolder() {
  static int count = 0;
  path_ = Utf8(LongPath(fs::temp_directory_path().wstring())) + "korvale-" +
          std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count) + "\\";
  fs::create_directories(fs::path(Wide(path_)));
}

TemporaryFolder::~TemporaryFolder() {
  // A program that was ended a moment ago may still hold its file.
  WaitFor([this] {
    std::error_code error;
    fs::remove_all(fs::path(Wide(path_)), error);
    return !error;
  });
}

bool TakePicture(const std::string& name) {
  const std::string folder = Environment(L"KORVALE_PICTURES");
  if (folder.empty()) return false;
  const fs::path request(Wide(folder + "\\" + name + ".request"));
  std::ofstream(request) << name;
  return WaitFor([&] { return !fs::exists(request); }, std::chrono::seconds(20));
}

void PutDisplayPointer(int x, int y) {
  const std::string folder = Environment(L"KORVALE_POINTER");
  if (folder.empty()) return;
  const fs::path request(Wide(folder + "\\" + std::to_string(x) + "," + std::to_string(y)));
  std::ofstream{request};
  WaitFor([&] { return !fs::exists(request); });
}

}  // namespace korvale::endtoend
