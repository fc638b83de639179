#pragma once

#include <string>
#include <string_view>

#include "platform/system_api.h"
#include "platform/types.h"

namespace korvale {

/// "PLATFORM_ID": "9x", "NT" or "UNKNOWN"; "MAJOR_VERSION": the major version number as decimal
/// text; anything else: "UNKNOWN" (GetVersionExA).
std::string GetOSInfo(SystemApi& system, std::string_view what);

/// The Windows directory with a closing backslash (GetWindowsDirectoryA).
std::string GetWindowsFolder(SystemApi& system);

/// Opens a file or an address with its program; errors are ignored (ShellExecuteA).
void OpenDocument(SystemApi& system, WindowHandle mainWindow, const std::string& path);

}  // namespace korvale
