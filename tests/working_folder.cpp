#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "tests/fakes/temporary_folder.h"

namespace korvale {
namespace {

namespace fs = std::filesystem;

using LogSizes = std::map<std::string, std::uintmax_t>;

LogSizes LogsIn(const fs::path& folder) {
  LogSizes logs;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    const std::string name = entry.path().filename().string();
    if (name.ends_with("Error.log") && entry.is_regular_file()) logs[name] = entry.file_size();
  }
  return logs;
}

/// Lets all tests of a program work in a folder of their own. On this machine the error log in a
/// folder of Windows is a file of that whole name in the working folder.
class WorkingFolder : public testing::Environment {
 public:
  void SetUp() override {
    logs_ = LogsIn(started_);
    fs::current_path(folder_.emplace("working").Path());
  }
  void TearDown() override {
    EXPECT_EQ(LogsIn(started_), logs_) << "a test has written an error log outside of its folder";
    fs::current_path(started_);
    folder_.reset();
  }

 private:
  fs::path started_ = fs::current_path();
  LogSizes logs_;
  std::optional<TemporaryFolder> folder_;
};

// GoogleTest deletes it.
const testing::Environment* const working_folder =
    testing::AddGlobalTestEnvironment(new WorkingFolder);

}  // namespace
}  // namespace korvale
