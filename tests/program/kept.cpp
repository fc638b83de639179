#include "tests/program/kept.h"

#include <map>

#include "desktop/tag_list.h"

namespace korvale {
namespace {

using Texts = std::map<std::string, std::string>;

Texts TextsOf(FakeSettingsStore& store, const std::string& appName, const std::string& section) {
  const SettingsStore::Pairs pairs = store.GetAllSettings(appName, section);
  return {pairs.begin(), pairs.end()};
}

std::string YesNo(bool value) { return value ? "True" : "False"; }

Texts TextsOf(const StartupSettings& startup) {
  return {{"WindowState", std::to_string(startup.WindowState)},
          {"Left", std::to_string(startup.Left)},
          {"Top", std::to_string(startup.Top)},
          {"Width", std::to_string(startup.Width)},
          {"Height", std::to_string(startup.Height)},
          {"AlwaysOnTop", YesNo(startup.AlwaysOnTop)},
          {"WI1BackColor", std::to_string(startup.WI1BackColor)},
          {"WI2BackColor", std::to_string(startup.WI2BackColor)},
          {"Tips", startup.Tips},
          {"DisplayTips", YesNo(startup.DisplayTips)},
          {"LastColorSelected", std::to_string(startup.LastColorSelected)},
          {"Menu", YesNo(startup.Menu)},
          {"OptionsTab", std::to_string(startup.OptionsTab)},
          {"WindowInfo", YesNo(startup.WindowInfo)}};
}

}  // namespace

Kept KeptBy(KorvaleCopy& korvale) {
  TagList& tags = korvale.Tags();
  Kept kept{korvale.Options(), korvale.Startup(), {}};
  tags.mnuWindowParentList.ForEach([&](const MenuItem& entry) {
    if (entry.index != 0) kept.tags.push_back({entry.index, entry.caption, TagClass(tags, entry)});
  });
  return kept;
}

Kept KeptIn(FakeSettingsStore& store, const std::string& appName) {
  Settings settings(store, appName);
  Kept kept;
  settings.LoadOptions(kept.options);
  kept.startup = settings.LoadStartup();
  kept.tags = settings.LoadTagList();
  return kept;
}

void ExpectTexts(FakeSettingsStore& store, const std::string& appName, const Kept& kept) {
  Texts captions;
  Texts classes;
  for (const StoredTag& tag : kept.tags) {
    const std::string number = std::to_string(tag.number);
    EXPECT_TRUE(tag.caption.starts_with("&" + number + "  ")) << tag.caption;
    captions[number] = tag.caption;
    if (!tag.className.empty()) classes[number] = tag.className;
  }
  EXPECT_EQ(TextsOf(store, appName, "ParentWindowList"), captions);
  EXPECT_EQ(TextsOf(store, appName, "ParentWindowClass"), classes);
  EXPECT_EQ(TextsOf(store, appName, "Startup"), TextsOf(kept.startup));
  // Overwritten, a name keeps the case that another program gave it.
  const auto option = [&](const char* key) { return store.GetSetting(appName, "Options", key); };
  EXPECT_EQ(option("SplashScreen"), YesNo(kept.options.booSplashScreen));
  EXPECT_EQ(option("AllowToolbarWindow"), YesNo(kept.options.booAllowToolbarWindow));
  EXPECT_EQ(option("HotKeyEnabled"), std::to_string(kept.options.colHotKeyEnabled));
  EXPECT_EQ(option("HotKeyModParent"), std::to_string(kept.options.intHotKeyModParent));
  EXPECT_EQ(option("HotKeyParent0"), YesNo(kept.options.booHotKeyParent[0]));
  EXPECT_EQ(option("HotKeyParent9"), YesNo(kept.options.booHotKeyParent[9]));
  EXPECT_EQ(option("HotKeyAction1"), std::to_string(kept.options.intHotKeyAction[1]));
  EXPECT_EQ(option("HotKeyModGeneral2"), std::to_string(kept.options.intHotKeyModGeneral[2]));
}

}  // namespace korvale
