#pragma once

#include <windows.h>

#include <string>

namespace korvale::endtoend {

/// What a running program holds of the system.
struct Resources {
  /// Windows, menus, icons, hooks. Wine tells only how many all programs hold together.
  int userObjects = 0;
  int gdiObjects = 0;
  int kernelHandles = 0;
  int threads = 0;
  int kilobytes = 0;  ///< Memory of its own; what it shares with others comes and goes.
};

/// Those of a process. Where Wine does not count, its tables are read; throws std::runtime_error
/// when they cannot be.
Resources ResourcesOf(DWORD process);

/// The process's GDI objects alone, which takes less time.
int GdiObjectsOf(DWORD process);

/// "user 120, GDI 48, ...".
std::string Describe(const Resources& resources);

}  // namespace korvale::endtoend
