#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <string>
#include <vector>

#include "platform/windows/handles.h"
#include "platform/windows/windows_settings_store.h"

namespace korvale {
namespace {

const std::string kApp = "Korvale contract tests";
const std::string kSection = "Ж 日本 Section";
constexpr const wchar_t* kKey =
    L"Software\\VB and VBA Program Settings\\Korvale contract tests\\Raw";

class WindowsSettingsStoreTest : public testing::Test {
 protected:
  ~WindowsSettingsStoreTest() override {
    RegDeleteTreeW(HKEY_CURRENT_USER,
                   L"Software\\VB and VBA Program Settings\\Korvale contract tests");
  }

  /// Writes a value as another program might.
  static void WriteRaw(const wchar_t* name, DWORD type, const void* data, DWORD size) {
    UniqueKey key;
    RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_SET_VALUE, nullptr, key.Receive(),
                    nullptr);
    RegSetValueExW(key.Get(), name, 0, type, static_cast<const BYTE*>(data), size);
  }

  /// The names of the values there, as the system enumerates them.
  static std::vector<std::string> NamesInOrder() {
    UniqueKey key;
    RegOpenKeyExW(HKEY_CURRENT_USER, kKey, 0, KEY_QUERY_VALUE, key.Receive());
    std::vector<std::string> names;
    std::array<char, 64> name{};
    for (DWORD length = 64;
         RegEnumValueA(key.Get(), static_cast<DWORD>(names.size()), name.data(), &length, nullptr,
                       nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         length = 64) {
      names.emplace_back(name.data());
    }
    return names;
  }

  WindowsSettingsStore store_;
};

TEST_F(WindowsSettingsStoreTest, KeepsTextsOfAnyScript) {
  EXPECT_TRUE(store_.SaveSetting(kApp, kSection, "Tag 3", "Блокнот - 日本 \U0001F600 & co"));
  EXPECT_EQ(store_.GetSetting(kApp, kSection, "Tag 3"), "Блокнот - 日本 \U0001F600 & co");
  EXPECT_TRUE(store_.SaveSetting(kApp, kSection, "Tag 3", ""));
  EXPECT_EQ(store_.GetSetting(kApp, kSection, "tag 3"), "");
}

TEST_F(WindowsSettingsStoreTest, KeepsLongTexts) {
  const std::string text(5000, 'x');
  EXPECT_TRUE(store_.SaveSetting(kApp, kSection, "Long", text));
  EXPECT_EQ(store_.GetSetting(kApp, kSection, "Long"), text);
  EXPECT_EQ(store_.GetAllSettings(kApp, kSection), (SettingsStore::Pairs{{"Long", text}}));
}

TEST_F(WindowsSettingsStoreTest, KnowsNothingThatWasNotSaved) {
  EXPECT_EQ(store_.GetSetting(kApp, kSection, "Tag 3"), std::nullopt);
  EXPECT_TRUE(store_.GetAllSettings(kApp, kSection).empty());
  EXPECT_FALSE(store_.DeleteSetting(kApp, kSection, "Tag 3"));
  EXPECT_FALSE(store_.DeleteSection(kApp, kSection));
  store_.SaveSetting(kApp, kSection, "Tag 3", "text");
  EXPECT_EQ(store_.GetSetting(kApp, kSection, "Tag 4"), std::nullopt);
  EXPECT_FALSE(store_.DeleteSetting(kApp, kSection, "Tag 4"));
}

TEST_F(WindowsSettingsStoreTest, SeesWhatOthersDoToASectionThatItHasRead) {
  store_.SaveSetting(kApp, "Raw", "Tag 3", "text");
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "Tag 3"), "text");
  WriteRaw(L"Tag 3", REG_SZ, L"other", sizeof(L"other"));
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "Tag 3"), "other");
  RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "Tag 3"), std::nullopt);
  WriteRaw(L"Tag 3", REG_SZ, L"again", sizeof(L"again"));
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "Tag 3"), "again");
  RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
  WriteRaw(L"Tag 3", REG_SZ, L"anew", sizeof(L"anew"));
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "Tag 3"), "anew");
}

TEST_F(WindowsSettingsStoreTest, ListsASectionInItsOrder) {
  for (const char* const key : {"3", "10", "2", "1"}) {
    store_.SaveSetting(kApp, "Raw", key, std::string("Ж") + key);
  }
  // Which order that is, only the system knows.
  SettingsStore::Pairs expected;
  for (const std::string& key : NamesInOrder()) expected.emplace_back(key, "Ж" + key);
  ASSERT_EQ(expected.size(), 4U);
  EXPECT_EQ(store_.GetAllSettings(kApp, "Raw"), expected);
}

TEST_F(WindowsSettingsStoreTest, DeletesOneValueOrTheSection) {
  store_.SaveSetting(kApp, kSection, "1", "one");
  store_.SaveSetting(kApp, kSection, "2", "two");
  store_.SaveSetting(kApp, "Other", "3", "three");
  EXPECT_TRUE(store_.DeleteSetting(kApp, kSection, "1"));
  EXPECT_EQ(store_.GetAllSettings(kApp, kSection), (SettingsStore::Pairs{{"2", "two"}}));
  EXPECT_TRUE(store_.DeleteSection(kApp, kSection));
  EXPECT_TRUE(store_.GetAllSettings(kApp, kSection).empty());
  EXPECT_EQ(store_.GetSetting(kApp, "Other", "3"), "three");
}

TEST_F(WindowsSettingsStoreTest, TakesAValueThatIsNoTextForMissing) {
  const DWORD number = 7;
  WriteRaw(L"Number", REG_DWORD, &number, sizeof(number));
  WriteRaw(L"Text", REG_SZ, L"text", sizeof(L"text"));
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "Number"), std::nullopt);
  EXPECT_EQ(store_.GetAllSettings(kApp, "Raw"),
            (SettingsStore::Pairs{{"Number", ""}, {"Text", "text"}}));
}

TEST_F(WindowsSettingsStoreTest, TakesATextWithVariablesForMissing) {
  WriteRaw(L"Path", REG_EXPAND_SZ, L"%PATH%", sizeof(L"%PATH%"));
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "Path"), std::nullopt);
  EXPECT_EQ(store_.GetAllSettings(kApp, "Raw"), (SettingsStore::Pairs{{"Path", ""}}));
}

TEST_F(WindowsSettingsStoreTest, ReadsATextThatWasStoredWithoutItsEnd) {
  WriteRaw(L"Text", REG_SZ, L"open", 4 * sizeof(wchar_t));
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "Text"), "open");
}

TEST_F(WindowsSettingsStoreTest, ReadsTextsOfEveryLengthWithAndWithoutTheirEnd) {
  for (const std::size_t length : {254U, 255U, 256U, 257U, 512U, 513U}) {
    const std::wstring text(length, L'x');
    for (const std::size_t end : {0U, 1U}) {
      const auto size = static_cast<DWORD>((length + end) * sizeof(wchar_t));
      WriteRaw(L"Text", REG_SZ, text.c_str(), size);
      EXPECT_EQ(store_.GetSetting(kApp, "Raw", "Text"), std::string(length, 'x')) << length;
      EXPECT_EQ(store_.GetAllSettings(kApp, "Raw").front().second, std::string(length, 'x'));
    }
  }
}

TEST_F(WindowsSettingsStoreTest, ReadsWhatComesBehindALongValue) {
  const std::string bytes(5000, 'x');
  const std::wstring text(5000, L'y');
  WriteRaw(L"A", REG_BINARY, bytes.data(), static_cast<DWORD>(bytes.size()));
  WriteRaw(L"B", REG_SZ, text.data(), static_cast<DWORD>(text.size() * sizeof(wchar_t)));
  WriteRaw(L"C", REG_SZ, L"last", sizeof(L"last"));
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "A"), std::nullopt);
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "B"), std::string(5000, 'y'));
  EXPECT_EQ(store_.GetSetting(kApp, "Raw", "C"), "last");
  EXPECT_EQ(store_.GetAllSettings(kApp, "Raw"),
            (SettingsStore::Pairs{{"A", ""}, {"B", std::string(5000, 'y')}, {"C", "last"}}));
}

}  // namespace
}  // namespace korvale
