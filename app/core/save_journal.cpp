#include "app/core/save_journal.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/run_time_error.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr const char* kCompleteMark = "Complete";
/// Occurs in no folder name and so in no application name; the key may hold anything.
constexpr char kSeparator = '\\';

// The value of a change is the value of its entry as it is, so that the store treats both alike;
// everything else is in the entry's name: number\kind\application name\section\key.
std::string EntryName(std::int32_t number, const StoreChange& change) {
  std::string name = DecimalText(number);
  name += kSeparator;
  name += static_cast<char>(change.kind);
  for (const std::string* part : {&change.appName, &change.section, &change.key}) {
    name += kSeparator;
    name += *part;
  }
  return name;
}

std::optional<StoreChange::Kind> KindOf(std::string_view text) {
  using Kind = StoreChange::Kind;
  for (const Kind kind : {Kind::kSaveSetting, Kind::kDeleteSetting, Kind::kDeleteSection}) {
    if (text.size() == 1 && text.front() == static_cast<char>(kind)) return kind;
  }
  return std::nullopt;
}

/// The text up to the next separator, which is taken off `rest` together with it.
std::string_view TakePart(std::string_view& rest) {
  const std::size_t end = rest.find(kSeparator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return part;
}

using NumberedChanges = std::map<std::int32_t, StoreChange>;

void AddEntry(std::string_view name, const std::string& value, NumberedChanges& changes) {
  const auto number = ParseInt32(TakePart(name));
  const auto kind = KindOf(TakePart(name));
  if (!number || !kind) return;
  const std::string_view appName = TakePart(name);
  const std::string_view section = TakePart(name);
  changes[*number] = {*kind, std::string(appName), std::string(section), std::string(name), value};
}

/// The changes of a journal, nothing unless all of them are there.
std::optional<std::vector<StoreChange>> CompleteChanges(const SettingsStore::Pairs& entries) {
  NumberedChanges numbered;
  std::optional<std::int32_t> count;
  for (const auto& [name, value] : entries) {
    if (name == kCompleteMark) {
      count = ParseInt32(value);
    } else {
      AddEntry(name, value, numbered);
    }
  }
  std::vector<StoreChange> changes;
  for (auto& [number, change] : numbered) {
    if (number != static_cast<std::int32_t>(changes.size()) + 1) return std::nullopt;
    changes.push_back(std::move(change));
  }
  if (count != static_cast<std::int32_t>(changes.size())) return std::nullopt;
  return changes;
}

}  // namespace

SaveJournal::SaveJournal(SettingsStore& store, std::string appName)
    : store_(&store), appName_(std::move(appName)) {}

void SaveJournal::Commit(const std::vector<StoreChange>& newChanges) {
  FinishInterrupted();
  const std::vector<StoreChange> changes = BehindRefused(newChanges);
  if (Exists()) store_->DeleteSection(appName_, kJournalSection);
  // Two journals must never mix.
  if (Exists()) throw RunTimeError(RunTimeError::kPermissionDenied);
  const bool needsJournal = changes.size() > 1;
  if (needsJournal && !Write(changes)) {
    store_->DeleteSection(appName_, kJournalSection);
    throw RunTimeError(RunTimeError::kPermissionDenied);
  }
  const bool allMade = Apply(changes);
  // What could not be made is tried again by the next save or the next run.
  if (needsJournal && allMade) store_->DeleteSection(appName_, kJournalSection);
  if (!allMade) throw RunTimeError(RunTimeError::kPermissionDenied);
}

void SaveJournal::FinishInterrupted() {
  const SettingsStore::Pairs entries = store_->GetAllSettings(appName_, kJournalSection);
  if (entries.empty()) return;
  const auto changes = CompleteChanges(entries);
  if (changes && !Apply(*changes)) return;
  store_->DeleteSection(appName_, kJournalSection);
}

/// What an earlier save was refused stays to be made, before the new changes and without what they
/// make anew.
std::vector<StoreChange> SaveJournal::BehindRefused(
    const std::vector<StoreChange>& newChanges) const {
  auto changes = CompleteChanges(store_->GetAllSettings(appName_, kJournalSection))
                     .value_or(std::vector<StoreChange>());
  std::erase_if(changes, [&](const StoreChange& refused) {
    return std::ranges::any_of(newChanges, [&](const StoreChange& change) {
      return change.kind == refused.kind && change.appName == refused.appName &&
             change.section == refused.section && change.key == refused.key;
    });
  });
  changes.insert(changes.end(), newChanges.begin(), newChanges.end());
  return changes;
}

bool SaveJournal::Exists() const {
  return !store_->GetAllSettings(appName_, kJournalSection).empty();
}

bool SaveJournal::Write(const std::vector<StoreChange>& changes) {
  std::int32_t number = 0;
  for (const StoreChange& change : changes) {
    if (!store_->SaveSetting(appName_, kJournalSection, EntryName(++number, change),
                             change.value)) {
      return false;
    }
  }
  return store_->SaveSetting(appName_, kJournalSection, kCompleteMark, DecimalText(number));
}

bool SaveJournal::Apply(const std::vector<StoreChange>& changes) {
  bool allMade = true;
  for (const StoreChange& change : changes) allMade &= ApplyChange(*store_, change);
  return allMade;
}

}  // namespace korvale
