#include "app/core/identity.h"

#include <cstddef>
#include <string_view>

#include "util/text.h"

namespace korvale {
namespace {

std::string VersionText(const VersionInfo& version) {
  return DecimalText(version.major) + "." + PadText(DecimalText(version.minor), 2, "LEFT_ZEROES") +
         "." + PadText(DecimalText(version.revision), 4, "LEFT_ZEROES");
}

}  // namespace

std::string FolderName(std::string_view folder) {
  const std::string path = WithoutClosingBackslash(folder);
  return path.substr(path.rfind('\\') + 1);  // npos + 1 is 0: all of it
}

ProgramIdentity ReadProgramIdentity(SystemApi& system) {
  ProgramIdentity identity;
  const std::string path = system.GetModuleFileNameA();
  const std::size_t nameStart = path.rfind('\\') + 1;  // npos + 1 is 0: the whole path is the name
  identity.programFolder = path.substr(0, nameStart);
  identity.executableName = path.substr(nameStart);
  identity.installation = ReadFolderIdentity(system, identity.programFolder);
  identity.installationFolderName = FolderName(identity.installation.path);
  const VersionInfo version = system.GetFileVersionInfoA();
  identity.versionText = VersionText(version);
  identity.legalNotice = version.legalCopyright;
  identity.fileDescription = version.fileDescription;
  identity.mainCaption = std::string(kProductName) + " - " + identity.installationFolderName;
  return identity;
}

}  // namespace korvale
