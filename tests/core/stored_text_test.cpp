#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/core/settings.h"
#include "tests/core/saves.h"
#include "tests/fakes/fake_settings_store.h"

namespace korvale {
namespace {

class StoredTextTest : public testing::Test {
 protected:
  void StoreOption(const std::string& key, const std::string& value) {
    store_.SaveSetting(kApp, "Options", key, value);
  }
  void StoreStartup(const std::string& key, const std::string& value) {
    store_.SaveSetting(kApp, "Startup", key, value);
  }
  clsOptions LoadedOptions() const {
    clsOptions options;
    settings_.LoadOptions(options);
    return options;
  }

  FakeSettingsStore store_;
  Settings settings_{store_, kApp};
};

TEST_F(StoredTextTest, BooleanTextIsReadWithoutRegardToCase) {
  for (const char* text : {"False", "false", "FALSE", "fAlSe"}) {
    StoreOption("SplashScreen", text);
    EXPECT_FALSE(LoadedOptions().booSplashScreen) << text;
  }
  StoreOption("AllowNoTextWindow", "tRUE");
  EXPECT_TRUE(LoadedOptions().booAllowNoTextWindow);
}

TEST_F(StoredTextTest, TextThatIsNoBooleanGivesTheDefault) {
  for (const char* text : {"", "0", "-1", "no", "Falsch", "False!", "\xff\xfe"}) {
    StoreOption("SplashScreen", text);
    EXPECT_TRUE(LoadedOptions().booSplashScreen) << text;
  }
}

TEST_F(StoredTextTest, TextThatIsNoNumberGivesTheDefault) {
  for (const char* text : {"", " ", "abc", "12abc", "1.5", "0x10", "&H10", "1 2", "--1", "\xf0"}) {
    StoreOption("HotKeyAction0", text);
    StoreOption("HotKeyEnabled", text);
    StoreStartup("Width", text);
    EXPECT_EQ(LoadedOptions(), clsOptions()) << text;
    EXPECT_EQ(settings_.LoadStartup(), StartupSettings()) << text;
  }
}

TEST_F(StoredTextTest, NumberOutsideSixteenBitsGivesTheDefault) {
  StoreOption("HotKeyAction0", "32767");
  StoreOption("HotKeyGeneral0", "-32768");
  EXPECT_EQ(LoadedOptions().intHotKeyAction[0], 32767);
  EXPECT_EQ(LoadedOptions().intHotKeyGeneral[0], -32768);
  StoreOption("HotKeyAction0", "32768");
  StoreOption("HotKeyGeneral0", "-32769");
  EXPECT_EQ(LoadedOptions(), clsOptions());
}

TEST_F(StoredTextTest, APlaceBeyondAllScreensGivesTheDefault) {
  StoreStartup("Left", "57600");
  StoreStartup("Top", "-491505");
  StoreStartup("Width", "115200");
  EXPECT_EQ(settings_.LoadStartup().Left, 57600);
  EXPECT_EQ(settings_.LoadStartup().Top, -491505);
  EXPECT_EQ(settings_.LoadStartup().Width, 115200);
  StoreStartup("Left", "491506");
  StoreStartup("Top", "-2147483648");
  StoreStartup("Width", "99999999999999999999");
  StoreStartup("Height", "2147483647");
  EXPECT_EQ(settings_.LoadStartup(), StartupSettings());
}

TEST_F(StoredTextTest, NumberOutsideThirtyTwoBitsGivesTheDefault) {
  StoreStartup("WI1BackColor", "2147483647");
  StoreStartup("WI2BackColor", "-2147483648");
  EXPECT_EQ(settings_.LoadStartup().WI1BackColor, 2147483647);
  EXPECT_EQ(settings_.LoadStartup().WI2BackColor, -2147483647 - 1);
  StoreStartup("WI1BackColor", "2147483648");
  StoreStartup("WI2BackColor", "-2147483649");
  EXPECT_EQ(settings_.LoadStartup(), StartupSettings());
}

TEST_F(StoredTextTest, WindowStateOutsideItsRangeGivesTheDefault) {
  for (const char* text : {"-1", "3", "2147483647"}) {
    StoreStartup("WindowState", text);
    EXPECT_EQ(settings_.LoadStartup().WindowState, 0) << text;
  }
  StoreStartup("WindowState", "1");
  EXPECT_EQ(settings_.LoadStartup().WindowState, 1);
}

TEST_F(StoredTextTest, OptionsTabOutsideItsRangeGivesTheDefault) {
  for (const char* text : {"0", "4", "-1"}) {
    StoreStartup("OptionsTab", text);
    EXPECT_EQ(settings_.LoadStartup().OptionsTab, 1) << text;
  }
  StoreStartup("OptionsTab", "2");
  EXPECT_EQ(settings_.LoadStartup().OptionsTab, 2);
}

TEST_F(StoredTextTest, ValueOfAnotherRegistryTypeGivesTheDefault) {
  store_.SetOtherType(kApp, "Options", "HotKeyAction0");
  store_.SetOtherType(kApp, "Startup", "Tips");
  EXPECT_EQ(LoadedOptions(), clsOptions());
  EXPECT_EQ(settings_.LoadStartup(), StartupSettings());
}

TEST_F(StoredTextTest, TagListIsLoadedInTheOrderOfTheTags) {
  store_.SaveSetting(kApp, "ParentWindowList", "7", "&7  *** - Notepad");
  store_.SaveSetting(kApp, "ParentWindowList", "2", "&2  Mail");
  store_.SaveSetting(kApp, "ParentWindowClass", "7", "Notepad");
  store_.SaveSetting(kApp, "ParentWindowClass", "2", "MailFrame");
  store_.SaveSetting(kApp, "ParentWindowList", "4", "&4  ***");
  EXPECT_EQ(settings_.LoadTagList(), (StoredTagList{{2, "&2  Mail", "MailFrame"},
                                                    {4, "&4  ***", ""},
                                                    {7, "&7  *** - Notepad", "Notepad"}}));
}

TEST_F(StoredTextTest, KeysThatAreNoTagRestoreNothing) {
  for (const char* key : {"0", "10", "", "a", "01", " 1", ":", "-1"}) {
    store_.SaveSetting(kApp, "ParentWindowList", key, "&" + std::string(key) + "  Mail");
    store_.SaveSetting(kApp, "ParentWindowClass", key, "MailFrame");
  }
  EXPECT_TRUE(settings_.LoadTagList().empty());
}

TEST_F(StoredTextTest, AClassWithoutItsCaptionRestoresNothing) {
  store_.SaveSetting(kApp, "ParentWindowList", "1", "&1  Mail");
  store_.SaveSetting(kApp, "ParentWindowClass", "2", "MailFrame");
  EXPECT_EQ(settings_.LoadTagList(), (StoredTagList{{1, "&1  Mail", ""}}));
}

TEST_F(StoredTextTest, CaptionsWithoutTheirOwnDigitRestoreNothing) {
  const std::vector<std::string> captions = {"",        "Mail",     "&2  Mail", "&1 Mail",
                                             "1  Mail", "& 1 Mail", "&1",       "&1 \xff"};
  for (const std::string& caption : captions) {
    store_.SaveSetting(kApp, "ParentWindowList", "1", caption);
    EXPECT_TRUE(settings_.LoadTagList().empty()) << caption;
  }
  store_.SaveSetting(kApp, "ParentWindowList", "1", "&1  ");
  EXPECT_EQ(settings_.LoadTagList().size(), 1U);
}

}  // namespace
}  // namespace korvale
