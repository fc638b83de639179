#include "app/core/settings.h"

#include <algorithm>
#include <array>
#include <span>

#include "app/core/save_journal.h"
#include "app/core/save_scope.h"
#include "app/core/saved_values.h"
#include "app/core/setting_rows.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr const char* kTagCaptions = "ParentWindowList";
constexpr const char* kTagClasses = "ParentWindowClass";

/// Deleted by every SaveINI, which then writes those in use; the others are of earlier designs.
constexpr std::array kSectionsOfSaveINI = {kStartupSection, "ButtonTags", "ButtonColors",
                                           kTagCaptions,    kTagClasses,  "ChildWindowList"};

template <typename Record>
void Load(const SavedValues& saved, std::span<const SettingRow<Record>> rows, Record& record) {
  Record defaults;
  for (const SettingRow<Record>& row : rows) {
    const SettingField field = row.field(record);
    const auto stored = saved.GetSetting(row.section, row.key);
    if (!ReadSetting(stored, field, row.least, row.most)) CopySetting(row.field(defaults), field);
  }
}

template <typename Record>
void Save(SaveScope& save, const std::string& appName, std::span<const SettingRow<Record>> rows,
          Record record) {
  for (const SettingRow<Record>& row : rows) {
    save.SaveSetting(appName, row.section, row.key, SettingText(row.field(record)));
  }
}

/// The value of the key, "" when there is none.
std::string ValueOf(const SettingsStore::Pairs& pairs, const std::string& key) {
  const auto found = std::ranges::find(pairs, key, &SettingsStore::Pairs::value_type::first);
  return found == pairs.end() ? "" : found->second;
}

}  // namespace

void Settings::LoadOptions(clsOptions& options) const { Load(Saved(), OptionRows(), options); }

void Settings::SaveOptions(const clsOptions& options) {
  SaveScope save(*this);
  Save(save, AppName(), OptionRows(), options);
  save.Commit();
}

void Settings::DeleteOptions() {
  SaveScope save(*this);
  save.DeleteSection(AppName(), kOptionsSection);
  save.Commit();
}

StartupSettings Settings::LoadStartup() const {
  StartupSettings startup;
  Load(Saved(), StartupRows(), startup);
  return startup;
}

StoredTagList Settings::LoadTagList() const {
  const SavedValues saved = Saved();
  const SettingsStore::Pairs captions = saved.GetAllSettings(kTagCaptions);
  const SettingsStore::Pairs classes = saved.GetAllSettings(kTagClasses);
  StoredTagList tags;
  for (int number = 1; number <= kTagCount; ++number) {
    const std::string key = DecimalText(number);
    const std::string caption = ValueOf(captions, key);
    if (!caption.starts_with(TagCaption(number, ""))) continue;
    tags.push_back({number, caption, ValueOf(classes, key)});
  }
  return tags;
}

void Settings::SaveINI(const StartupSettings& startup, const StoredTagList& tags) {
  SaveScope save(*this);
  DeleteINI();
  Save(save, AppName(), StartupRows(), startup);
  for (const StoredTag& tag : tags) {
    const std::string key = DecimalText(tag.number);
    save.SaveSetting(AppName(), kTagCaptions, key, tag.caption);
    if (!tag.className.empty()) save.SaveSetting(AppName(), kTagClasses, key, tag.className);
  }
  save.Commit();
  storedINI_ = AsStored(startup, tags);
}

bool Settings::HoldsINI(const StartupSettings& startup, const StoredTagList& tags) const {
  return storedINI_ == AsStored(startup, tags);
}

void Settings::KeepINI(const StartupSettings& startup, const StoredTagList& tags) {
  if (LostSaves() == 0) storedINI_ = AsStored(startup, tags);
}

void Settings::DeleteINI() {
  storedINI_.reset();
  SaveScope save(*this);
  for (const char* section : kSectionsOfSaveINI) save.DeleteSection(AppName(), section);
  save.Commit();
}

void Settings::DeletePlacement() {
  storedINI_.reset();
  SaveScope save(*this);
  for (const auto& row : StartupRows()) {
    if (row.onImport == OnImport::kDrop) save.DeleteSetting(AppName(), row.section, row.key);
  }
  save.Commit();
}

void Settings::ForgetPlacement(StartupSettings& startup) {
  StartupSettings defaults;
  for (const auto& row : StartupRows()) {
    if (row.onImport == OnImport::kDrop) CopySetting(row.field(defaults), row.field(startup));
  }
}

bool Settings::NothingStored() const {
  const SavedValues saved = Saved();
  return std::ranges::all_of(
      std::array{kStartupSection, kTagCaptions, kTagClasses, kOptionsSection},
      [&](const char* section) { return saved.GetAllSettings(section).empty(); });
}

SavedValues Settings::Saved() const { return SavedValues(Store(), AppName()); }

void Settings::FinishInterruptedSave() {
  if (!SaveJournal(Store(), AppName()).FinishInterrupted()) CountLostSave();
}

}  // namespace korvale
