#pragma once

#include <string>
#include <vector>

namespace korvale::endtoend {

/// Another spelling of a folder, with "\\" at its end.
struct OtherPath {
  std::string what;  ///< What is different, for messages.
  std::string folder;
};

/// The other paths to a folder that this system knows; those that it made are removed with it.
class OtherPaths {
 public:
  explicit OtherPaths(const std::string& folder);
  OtherPaths(const OtherPaths&) = delete;
  OtherPaths& operator=(const OtherPaths&) = delete;
  ~OtherPaths();

  const std::vector<OtherPath>& All() const { return all_; }

 private:
  void AddDrive();

  std::string folder_;
  std::vector<OtherPath> all_;
};

}  // namespace korvale::endtoend
