#include "app/core/folder_identity.h"

#include <cstddef>

#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {
namespace {

/// The usual spelling of a path, without the prefix "\\?\" or "\\?\UNC" of the system's own one.
std::string WithoutPrefix(std::string_view path) {
  constexpr std::string_view kShare = "\\\\?\\UNC\\";
  constexpr std::string_view kPrefix = "\\\\?\\";
  if (EqualsIgnoreCase(path.substr(0, kShare.size()), kShare)) {
    return "\\\\" + std::string(path.substr(kShare.size()));
  }
  if (!path.starts_with(kPrefix)) return std::string(path);
  const std::string_view bare = path.substr(kPrefix.size());
  return std::string(bare.find(':') == 1 ? bare : path);
}

bool IsDrive(std::string_view path) { return path.size() == 2 && path.back() == ':'; }

/// "\\server\share" and anything shorter have no folder above them.
bool IsShare(std::string_view path) {
  if (!path.starts_with("\\\\")) return false;
  const std::size_t server = path.find('\\', 2);
  return server == std::string_view::npos || path.find('\\', server + 1) == std::string_view::npos;
}

/// The folder above, "" above a drive or share.
std::string_view Above(std::string_view path) {
  const std::size_t separator = path.rfind('\\');
  if (IsShare(path) || separator == std::string_view::npos) return "";
  return path.substr(0, separator);
}

FolderInfo Open(SystemApi& system, std::string_view path) {
  // Without the backslash a drive letter means the current folder of that drive.
  return system.GetFinalPathNameByHandleW(std::string(path) + (IsDrive(path) ? "\\" : ""));
}

bool NotFound(const FolderInfo& info) {
  // A link whose target cannot be reached does not say whether the target still exists.
  return !info.isLink &&
         (info.error == win32::kErrorFileNotFound || info.error == win32::kErrorPathNotFound);
}

}  // namespace

bool FolderIdentity::IsSameAs(const FolderIdentity& other) const {
  return EqualsIgnoreCase(path, other.path) || (!fileId.empty() && fileId == other.fileId);
}

FolderIdentity ReadFolderIdentity(SystemApi& system, std::string_view folder) {
  const std::string given = WithoutPrefix(WithoutClosingBackslash(folder));
  const FolderInfo info = Open(system, given);
  if (info.error != 0) return {given, ""};
  const std::string real = WithoutPrefix(WithoutClosingBackslash(info.finalPath));
  return {real.empty() ? given : real, info.fileId};
}

FolderPresence LookForFolder(SystemApi& system, std::string_view folder) {
  const std::string given = WithoutPrefix(WithoutClosingBackslash(folder));
  FolderPresence found = FolderPresence::kThere;
  for (std::string_view path = given; !path.empty(); path = Above(path)) {
    const FolderInfo info = Open(system, path);
    if (info.error == 0) return found;
    if (!NotFound(info)) return FolderPresence::kAway;
    found = FolderPresence::kGone;
  }
  // Not even the drive is there.
  return FolderPresence::kAway;
}

std::string WithoutClosingBackslash(std::string_view folder) {
  while (folder.ends_with('\\')) folder.remove_suffix(1);
  return std::string(folder);
}

}  // namespace korvale
