#include "app/core/identity.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/fakes/fake_system.h"

namespace korvale {
namespace {

ProgramIdentity IdentityAt(const std::string& path, const VersionInfo& version = {}) {
  CallLog log;
  FakeSystem system(log);
  system.executablePath = path;
  system.versionInfo = version;
  return ReadProgramIdentity(system);
}

TEST(IdentityTest, IsReadFromTheExecutable) {
  const ProgramIdentity identity =
      IdentityAt("D:\\Tools\\Work\\Korvale.exe", {1, 10, 695, "Copyright", "Moves you"});
  EXPECT_EQ(identity.programFolder, "D:\\Tools\\Work\\");
  EXPECT_EQ(identity.installationFolderName, "Work");
  EXPECT_EQ(identity.mainCaption, "Korvale - Work");
  EXPECT_EQ(identity.executableName, "Korvale.exe");
  EXPECT_EQ(identity.versionText, "1.10.0695");
  EXPECT_EQ(identity.legalNotice, "Copyright");
  EXPECT_EQ(identity.fileDescription, "Moves you");
}

TEST(IdentityTest, VersionIsPaddedWithZeroes) {
  EXPECT_EQ(IdentityAt("C:\\K\\k.exe", {1, 0, 0, "", ""}).versionText, "1.00.0000");
  EXPECT_EQ(IdentityAt("C:\\K\\k.exe", {12, 345, 67890, "", ""}).versionText, "12.345.67890");
}

TEST(IdentityTest, RootOfADriveHasTheDriveAsItsName) {
  const ProgramIdentity identity = IdentityAt("C:\\Korvale.exe");
  EXPECT_EQ(identity.programFolder, "C:\\");
  EXPECT_EQ(identity.installationFolderName, "C:");
  EXPECT_EQ(identity.mainCaption, "Korvale - C:");
}

TEST(IdentityTest, FolderOnAnotherComputerHasItsLastName) {
  EXPECT_EQ(IdentityAt("\\\\server\\share\\K\xc3\xb6\\Korvale.exe").installationFolderName,
            "K\xc3\xb6");
}

TEST(IdentityTest, PathWithoutAFolderIsANameOnly) {
  const ProgramIdentity identity = IdentityAt("Korvale.exe");
  EXPECT_EQ(identity.programFolder, "");
  EXPECT_EQ(identity.installationFolderName, "");
  EXPECT_EQ(identity.executableName, "Korvale.exe");
}

TEST(IdentityTest, FolderIsNamedAsTheDiskNamesItHoweverTheProgramWasStarted) {
  CallLog log;
  FakeSystem system(log);
  system.files = {"C:\\Program Files\\Long Name\\Korvale.exe"};
  system.links = {{"W:", "C:\\Program Files\\Long Name"},
                  {"D:\\Junction", "C:\\Program Files\\Long Name"},
                  {"C:\\PROGRA~1\\LONGNA~1", "C:\\Program Files\\Long Name"}};
  for (const char* folder :
       {"C:\\Program Files\\Long Name", "c:\\program files\\LONG NAME", "W:", "D:\\Junction",
        "\\\\?\\C:\\Program Files\\Long Name", "C:\\PROGRA~1\\LONGNA~1"}) {
    system.executablePath = std::string(folder) + "\\Korvale.exe";
    const ProgramIdentity identity = ReadProgramIdentity(system);
    EXPECT_EQ(identity.mainCaption, "Korvale - Long Name") << folder;
    EXPECT_EQ(identity.installation.path, "C:\\Program Files\\Long Name") << folder;
    EXPECT_EQ(identity.programFolder, std::string(folder) + "\\");
  }
}

TEST(IdentityTest, FolderThatDoesNotTellItsPathIsNamedAsItWasStarted) {
  CallLog log;
  FakeSystem system(log);
  system.executablePath = "\\\\?\\C:\\Work\\Korvale.exe";
  system.unreachable = {{"C:\\Work", 5}};
  EXPECT_EQ(ReadProgramIdentity(system).mainCaption, "Korvale - Work");
  EXPECT_EQ(ReadProgramIdentity(system).installation.path, "C:\\Work");
}

TEST(FolderNameTest, LeavesClosingBackslashesAside) {
  EXPECT_EQ(FolderName("D:\\Tools\\Work"), "Work");
  EXPECT_EQ(FolderName("D:\\Tools\\Work\\\\"), "Work");
  EXPECT_EQ(FolderName("Work"), "Work");
  EXPECT_EQ(FolderName("\\\\"), "");
  EXPECT_EQ(FolderName(""), "");
}

}  // namespace
}  // namespace korvale
