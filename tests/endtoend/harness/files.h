#pragma once

#include <string>

namespace korvale::endtoend {

/// The folder of the running program, with "\" at its end.
std::string OwnFolder();

/// The path between quotes, as a command line takes it.
std::string Quoted(const std::string& path);

/// Path of the Korvale.exe under test: the environment's KORVALE_EXE, or beside this program.
std::string KorvaleProgram();

/// A folder that exists during one test and is removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  /// With "\" at its end.
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

/// Asks the script that runs this program for a picture of the screen, and waits for it.
/// False when nobody takes pictures: the environment has no KORVALE_PICTURES.
bool TakePicture(const std::string& name);

/// Tells the script that runs this program where on the screen the mouse has been put, and waits
/// until the display has its pointer there too. Nothing without KORVALE_POINTER in the environment.
void PutDisplayPointer(int x, int y);

}  // namespace korvale::endtoend
