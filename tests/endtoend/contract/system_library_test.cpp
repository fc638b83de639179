#include "platform/windows/system_library.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace korvale {
namespace {

namespace fs = std::filesystem;

TEST(SystemLibrary, FindsTheFunctionsThatWindowsHas) {
  SystemLibrary library(L"version.dll");
  wchar_t name[32];
  auto* const find = library.Find<decltype(VerLanguageNameW)>("VerLanguageNameW");
  ASSERT_NE(find, nullptr);
  EXPECT_GT(find(0x409, name, 32), 0U);
  EXPECT_EQ(library.Find<decltype(VerLanguageNameW)>("NoSuchFunction"), nullptr);
}

TEST(SystemLibrary, ThatIsMissingHasNoFunctions) {
  SystemLibrary library(L"no such library.dll");
  EXPECT_EQ(library.Find<decltype(VerLanguageNameW)>("VerLanguageNameW"), nullptr);
}

TEST(SystemLibrary, StaysLoaded) {
  EXPECT_NE(SystemLibrary(L"msimg32.dll").Find<void()>("AlphaBlend"), nullptr);
  EXPECT_NE(GetModuleHandleW(L"msimg32.dll"), nullptr);
}

TEST(SystemLibrary, IsNotTakenFromTheProgramsFolder) {
  wchar_t path[MAX_PATH];
  ASSERT_LT(GetModuleFileNameW(nullptr, path, MAX_PATH), static_cast<DWORD>(MAX_PATH));
  wchar_t system[MAX_PATH];
  ASSERT_LT(GetSystemDirectoryW(system, MAX_PATH), static_cast<UINT>(MAX_PATH));
  const fs::path planted = fs::path(path).parent_path() / "korvale_planted.dll";
  fs::copy_file(fs::path(system) / "version.dll", planted, fs::copy_options::overwrite_existing);
  EXPECT_EQ(SystemLibrary(L"korvale_planted.dll").Find<void()>("VerLanguageNameW"), nullptr);
  fs::remove(planted);
}

}  // namespace
}  // namespace korvale
