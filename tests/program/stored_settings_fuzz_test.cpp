#include <chrono>
#include <string>

#include "app/core/save_journal.h"
#include "app/core/setting_rows.h"
#include "tests/program/any_store.h"
#include "tests/program/dice.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr int kRounds = 300;

constexpr const char* kNumbers[] = {
    "",      "0",      "-1",          "1",          "3",           "32767",    "32768", "-32768",
    "65535", "-32769", "-2147483648", "2147483647", "99999999999", " 7 ",      "1e5",   "0x10",
    "1.5",   "True",   "FALSE",       "true ",      "not a value", "000000012"};
constexpr const char* kSections[] = {"Options",           "Startup",      "ParentWindowList",
                                     "ParentWindowClass", "ButtonTags",   "ButtonColors",
                                     "ChildWindowList",   kJournalSection};

/// Starts Korvale with anything at all in its settings.
class StoredSettingsFuzzTest : public AnyStore {
 protected:
  /// One start with a store made from this seed, one save, and one load of what was saved.
  void Round(std::uint32_t seed) {
    dice_ = Dice(seed);
    store = FakeSettingsStore(log);
    log.Clear();
    FillStore();
    Live([this] { return dice_.OneIn(2); });
  }

 private:
  std::string AnyBytes() {
    std::string bytes;
    for (int left = dice_.Below(dice_.OneIn(50) ? 5000 : 20); left > 0; --left) {
      bytes += static_cast<char>(dice_.Below(256));
    }
    return bytes;
  }
  std::string AnyValue() {
    switch (dice_.Below(4)) {
      case 0:
        return AnyBytes();
      case 1:
        return DecimalText(dice_.Below(70'000) - 35'000);
      case 2:
        return "&" + DecimalText(dice_.Below(11)) + "  " + AnyBytes();
      default:
        return dice_.Pick(kNumbers);
    }
  }
  void Put(const std::string& appName, const std::string& section, const std::string& key) {
    if (dice_.OneIn(10)) {
      store.SetOtherType(appName, section, key);
    } else if (!dice_.OneIn(10)) {
      store.SaveSetting(appName, section, key, AnyValue());
    }
  }
  std::string AnyJournalEntry(int number) {
    constexpr char kKinds[] = {'S', 'K', 'D', 'X'};
    std::string name = DecimalText(dice_.OneIn(8) ? dice_.Below(40) : number) + "\\";
    name += dice_.Pick(kKinds);
    const char* const appName = dice_.OneIn(8) ? "Korvale - Other" : kApp;
    return name + "\\" + appName + "\\" + dice_.Pick(kSections) + "\\" +
           (dice_.OneIn(2) ? std::string("WindowState") : AnyBytes());
  }
  void FillJournal() {
    const int entries = dice_.Below(12);
    for (int number = 1; number <= entries; ++number) {
      Put(kApp, kJournalSection, dice_.OneIn(10) ? AnyBytes() : AnyJournalEntry(number));
    }
    const std::string count = dice_.OneIn(4) ? AnyValue() : DecimalText(entries);
    store.SaveSetting(kApp, kJournalSection, "Complete", count);
  }
  void FillStore() {
    for (const auto& row : OptionRows()) Put(kApp, row.section, row.key);
    for (const auto& row : StartupRows()) Put(kApp, row.section, row.key);
    for (int tag = 0; tag <= 10; ++tag) {
      Put(kApp, "ParentWindowList", DecimalText(tag));
      Put(kApp, "ParentWindowClass", DecimalText(tag));
    }
    for (int i = dice_.Below(6); i > 0; --i) Put(kApp, dice_.Pick(kSections), AnyBytes());
    for (int i = dice_.Below(3); i > 0; --i) Put(kRegister, "0", "Korvale - " + AnyBytes());
    if (dice_.OneIn(3)) Put(kRegister, "0", kApp);
    if (dice_.OneIn(3)) FillJournal();
  }

  Dice dice_{0};
};

/// KORVALE_FUZZ_SECONDS lets it run longer, KORVALE_SEED begins with another seed.
TEST_F(StoredSettingsFuzzTest, AnyStoreAtAllLeadsToValidSettingsThatAreSavedAndLoadedAgain) {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::seconds(Setting("KORVALE_FUZZ_SECONDS", 0));
  auto seed = static_cast<std::uint32_t>(Setting("KORVALE_SEED", kFirstSeed));
  for (int round = 0; round < kRounds || Clock::now() < end; ++round, ++seed) {
    SCOPED_TRACE("with seed " + std::to_string(seed));
    try {
      Round(seed);
    } catch (const std::exception& error) {
      ADD_FAILURE() << error.what();
    }
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace korvale
