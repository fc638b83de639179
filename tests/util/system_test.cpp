#include "util/system.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace korvale {
namespace {

class SystemOfTest : public SystemApi {
 public:
  std::string GetModuleFileNameA() override { return ""; }
  std::string GetCommandLineA() override { return ""; }
  VersionInfo GetFileVersionInfoA() override { return {}; }
  OsVersion GetVersionExA(std::uint32_t structureSize) override {
    structureSize_ = structureSize;
    return version_;
  }
  std::string GetWindowsDirectoryA(std::uint32_t bufferSize) override {
    bufferSize_ = bufferSize;
    return folder_.size() < bufferSize ? folder_ : "";
  }
  void ShellExecuteA(WindowHandle hwnd, const std::string& verb, const std::string& file,
                     int showCommand) override {
    opened_.push_back(std::to_string(hwnd) + " " + verb + " " + file + " " +
                      std::to_string(showCommand));
  }
  bool FileExists(const std::string& /*path*/) override { return false; }
  bool AppendToFile(const std::string& /*path*/, std::span<const std::string> /*pieces*/) override {
    return false;
  }
  bool CanAppendToFile(const std::string& /*path*/) override { return false; }
  bool CreateDirectoryW(const std::string& /*path*/) override { return false; }
  std::vector<std::string> FindFirstFileW(const std::string& /*pattern*/) override { return {}; }
  bool DeleteFileW(const std::string& /*path*/) override { return false; }
  std::string GetEnvironmentVariableW(const std::string&) override { return ""; }
  FolderInfo GetFinalPathNameByHandleW(const std::string& /*folder*/) override { return {}; }
  std::unique_ptr<SystemMutex> CreateMutexA(const std::string& /*name*/) override { return {}; }
  std::unique_ptr<SystemMutex> OpenMutexA(const std::string& /*name*/) override { return {}; }

  OsVersion version_;
  std::uint32_t structureSize_ = 0;
  std::uint32_t bufferSize_ = 0;
  std::string folder_ = "C:\\Windows";
  std::vector<std::string> opened_;
};

TEST(GetOSInfoTest, NamesThePlatformFamily) {
  SystemOfTest system;
  system.version_ = {1, 4};
  EXPECT_EQ(GetOSInfo(system, "PLATFORM_ID"), "9x");
  system.version_ = {2, 10};
  EXPECT_EQ(GetOSInfo(system, "PLATFORM_ID"), "NT");
  system.version_ = {0, 0};
  EXPECT_EQ(GetOSInfo(system, "PLATFORM_ID"), "UNKNOWN");
  system.version_ = {3, 0};
  EXPECT_EQ(GetOSInfo(system, "PLATFORM_ID"), "UNKNOWN");
}

TEST(GetOSInfoTest, WritesTheMajorVersionInDecimal) {
  SystemOfTest system;
  system.version_ = {2, 10};
  EXPECT_EQ(GetOSInfo(system, "MAJOR_VERSION"), "10");
}

TEST(GetOSInfoTest, AnswersUnknownToAnyOtherRequest) {
  SystemOfTest system;
  system.version_ = {2, 10};
  EXPECT_EQ(GetOSInfo(system, "MINOR_VERSION"), "UNKNOWN");
  EXPECT_EQ(GetOSInfo(system, ""), "UNKNOWN");
}

TEST(GetOSInfoTest, PassesAStructureOf148Bytes) {
  SystemOfTest system;
  GetOSInfo(system, "PLATFORM_ID");
  EXPECT_EQ(system.structureSize_, 148U);
}

TEST(GetWindowsFolderTest, EndsInABackslash) {
  SystemOfTest system;
  EXPECT_EQ(GetWindowsFolder(system), "C:\\Windows\\");
}

TEST(GetWindowsFolderTest, ReadsIntoABufferOf255Characters) {
  SystemOfTest system;
  GetWindowsFolder(system);
  EXPECT_EQ(system.bufferSize_, 255U);
}

TEST(GetWindowsFolderTest, IsABackslashWhenNothingWasRead) {
  SystemOfTest system;
  system.folder_ = std::string(255, 'w');
  EXPECT_EQ(GetWindowsFolder(system), "\\");
}

TEST(OpenDocumentTest, OpensWithTheMainWindowAsItsParent) {
  SystemOfTest system;
  OpenDocument(system, 42, "https://example.org/");
  EXPECT_EQ(system.opened_, std::vector<std::string>{"42 Open https://example.org/ 1"});
}

}  // namespace
}  // namespace korvale
