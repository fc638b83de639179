#include <functional>
#include <ostream>

#include "tests/endtoend/harness/default_settings.h"
#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {
namespace {

/// One way in which every stored value is damaged; returns what is left of a text setting.
struct Damage {
  const char* name;
  const char* text_left;
  std::function<void(const StoredSettings&, const DefaultSetting&)> apply;
};

void PrintTo(const Damage& damage, std::ostream* out) { *out << damage.name; }

Damage Text(const char* name, const char* text) {
  return {name, text, [text](const StoredSettings& store, const DefaultSetting& setting) {
            store.Set(setting.section, setting.key, text);
          }};
}

const Damage kDamages[] = {
    Text("Words", "no number 13"),
    Text("Nothing", ""),
    {"NumbersOutOfRange", "",
     [](const StoredSettings& store, const DefaultSetting& setting) {
       store.Set(setting.section, setting.key, setting.beyond);
     }},
    {"WrongTypes", "",
     [](const StoredSettings& store, const DefaultSetting& setting) {
       store.SetNumber(setting.section, setting.key, 2);
     }},
};

class DamagedStore : public OptionsTest, public ::testing::WithParamInterface<Damage> {};

TEST_P(DamagedStore, IsReadAsTheDefaultsAndMadeWholeAgain) {
  ASSERT_EQ(DefaultSettings().size(), kAllSettings);
  for (const DefaultSetting& setting : DefaultSettings()) GetParam().apply(settings(), setting);
  // When no setting can be read, this counts as a first run, which asks questions.
  installation_.MarkAsUsed();
  ASSERT_TRUE(StartAgain());
  for (const Chord key : DefaultHotKeys()) EXPECT_FALSE(HotKeyIsFree(key)) << key.key;
  const OptionsDialog dialog = OpenOptionsByMenu();
  EXPECT_EQ(dialog.CurrentPage(), OptionsDialog::Page::kGeneral);
  ASSERT_TRUE(dialog.Confirm());
  Pairs options = Defaults("Options");
  options["SplashScreen"] = "False";
  EXPECT_EQ(StoredOptions(), options);
  Pairs startup = Defaults("Startup");
  startup["Tips"] = GetParam().text_left;
  EXPECT_EQ(StoredStartup(), startup);
}

INSTANTIATE_TEST_SUITE_P(With, DamagedStore, ::testing::ValuesIn(kDamages),
                         [](const ::testing::TestParamInfo<Damage>& damage) {
                           return damage.param.name;
                         });

}  // namespace
}  // namespace korvale::endtoend
