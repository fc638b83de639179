#include "app/core/save_journal.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "platform/run_time_error.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr const char* kCompleteMark = "Complete";
/// Cannot occur in a folder name, so not in an application name; the key may hold anything.
constexpr char kSeparator = '\\';

/// The letter of the kind, in lower case for changes that are made last.
char KindLetter(const StoreChange& change) {
  const char letter = static_cast<char>(change.kind);
  return change.last ? static_cast<char>(std::tolower(letter)) : letter;
}

// The value of an entry is the change's value unaltered, so that the store treats both alike; the
// rest is in the entry's name: number\kind\application name\section\key.
std::string EntryName(std::int32_t number, const StoreChange& change) {
  std::string name = DecimalText(number);
  name += kSeparator;
  name += KindLetter(change);
  for (const std::string* part : {&change.appName, &change.section, &change.key}) {
    name += kSeparator;
    name += *part;
  }
  return name;
}

/// A change of the kind that the letter stands for; nothing for any other letter.
std::optional<StoreChange> ChangeOfKind(std::string_view letter) {
  using Kind = StoreChange::Kind;
  for (const Kind kind : {Kind::kSaveSetting, Kind::kDeleteSetting, Kind::kDeleteSection}) {
    for (const bool last : {false, true}) {
      const StoreChange change{kind, {}, {}, {}, {}, last};
      if (letter.size() == 1 && letter.front() == KindLetter(change)) return change;
    }
  }
  return std::nullopt;
}

/// The text up to the next separator; removes both from `rest`.
std::string_view TakePart(std::string_view& rest) {
  const std::size_t end = rest.find(kSeparator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return part;
}

using NumberedChanges = std::map<std::int32_t, StoreChange>;

void AddEntry(std::string_view name, const std::string& value, NumberedChanges& changes) {
  const auto number = ParseInt32(TakePart(name));
  auto change = ChangeOfKind(TakePart(name));
  if (!number || !change) return;
  change->appName = TakePart(name);
  change->section = TakePart(name);
  change->key = name;
  change->value = value;
  changes[*number] = std::move(*change);
}

/// The changes of a journal; nothing when it is incomplete.
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

bool InOneSection(const StoreChange& one, const StoreChange& other) {
  return EqualsIgnoreCase(one.appName, other.appName) &&
         EqualsIgnoreCase(one.section, other.section);
}

/// True when nothing is left of `older` once `newer` has been made.
bool Supersedes(const StoreChange& newer, const StoreChange& older) {
  if (newer.last || !InOneSection(newer, older)) return false;
  using Kind = StoreChange::Kind;
  return newer.kind == Kind::kDeleteSection ||
         (older.kind != Kind::kDeleteSection && EqualsIgnoreCase(newer.key, older.key));
}

/// The last change after which nothing is left of `older`; null when there is none.
const StoreChange* Superseding(std::span<const StoreChange> changes, const StoreChange& older) {
  const StoreChange* last = nullptr;
  for (const StoreChange& change : changes) {
    if (Supersedes(change, older)) last = &change;
  }
  return last;
}

/// True when the newer changes replace or delete a value that the store has not taken yet.
bool LosesAValue(SettingsStore& store, std::span<const StoreChange> older,
                 std::span<const StoreChange> newer) {
  while (!older.empty()) {
    const StoreChange& change = older.front();
    older = older.subspan(1);
    if (change.kind != StoreChange::Kind::kSaveSetting || Superseding(older, change) != nullptr ||
        store.GetSetting(change.appName, change.section, change.key) == change.value) {
      continue;
    }
    const StoreChange* const instead = Superseding(newer, change);
    if (instead != nullptr && (instead->kind != change.kind || instead->value != change.value)) {
      return true;
    }
  }
  return false;
}

/// True when the change deletes a section that will be empty by then.
bool IsIdle(SettingsStore& store, std::span<const StoreChange> before, const StoreChange& change) {
  return change.kind == StoreChange::Kind::kDeleteSection &&
         std::ranges::none_of(before,
                              [&](const auto& earlier) { return InOneSection(earlier, change); }) &&
         store.GetAllSettings(change.appName, change.section).empty();
}

}  // namespace

SaveJournal::SaveJournal(SettingsStore& store, std::string appName)
    : store_(&store), appName_(std::move(appName)) {}

void SaveJournal::Commit(const std::vector<StoreChange>& newChanges) {
  FinishInterrupted();
  const std::optional<Journal> refused = LeftBehind();
  const char* const old = refused ? refused->section : nullptr;
  const std::vector<StoreChange> changes =
      Behind(refused ? refused->changes : std::vector<StoreChange>(), newChanges);
  const char* const section = old == kJournalSection ? kSecondJournalSection : kJournalSection;
  const bool needsJournal = changes.size() > 1 || refused;
  // Two journals must never mix.
  bool prepared = Clear(section);
  prepared = prepared && (!needsJournal || Write(section, changes));
  // One that is only half deleted does not count any more; the new one holds what is left of it.
  prepared = prepared && (!refused || Clear(old) || !ChangesIn(old));
  if (!prepared) {
    Clear(section);
    throw RunTimeError(RunTimeError::kPermissionDenied);
  }
  const bool allMade = Apply(changes);
  // What could not be made is tried again by the next save or the next run.
  if (needsJournal && allMade) Clear(section);
  if (!allMade) throw RunTimeError(RunTimeError::kPermissionDenied);
}

bool SaveJournal::FinishInterrupted() {
  const std::optional<Journal> complete = LeftBehind();
  bool alone = true;
  for (const char* const section : kJournalSections) {
    if (!complete || section != complete->section) alone &= Clear(section);
  }
  if (!complete || !alone) return alone;
  return Apply(complete->changes) && Clear(complete->section);
}

std::vector<StoreChange> SaveJournal::Unfinished() const {
  std::optional<Journal> complete = LeftBehind();
  return complete ? std::move(complete->changes) : std::vector<StoreChange>();
}

std::optional<SaveJournal::Journal> SaveJournal::LeftBehind() const {
  for (const char* const section : kJournalSections) {
    if (auto changes = ChangesIn(section)) return Journal{section, std::move(*changes)};
  }
  return std::nullopt;
}

std::optional<std::vector<StoreChange>> SaveJournal::ChangesIn(const char* section) const {
  return CompleteChanges(store_->GetAllSettings(appName_, section));
}

/// Changes that the store refused in an earlier save come before the new ones, except those that
/// the new ones replace or delete. A deletion that waits for all others is dropped when one of
/// those can no longer be made.
std::vector<StoreChange> SaveJournal::Behind(std::vector<StoreChange> changes,
                                             const std::vector<StoreChange>& newChanges) const {
  const bool keepsLast = !LosesAValue(*store_, changes, newChanges);
  std::erase_if(changes, [&](const StoreChange& refused) {
    return refused.last ? !keepsLast : Superseding(newChanges, refused) != nullptr;
  });
  for (const StoreChange& change : newChanges) {
    if (!IsIdle(*store_, changes, change)) changes.push_back(change);
  }
  return changes;
}

bool SaveJournal::Clear(const char* section) {
  const auto holdsAny = [&] { return !store_->GetAllSettings(appName_, section).empty(); };
  if (!holdsAny()) return true;
  store_->DeleteSection(appName_, section);
  return !holdsAny();
}

bool SaveJournal::Write(const char* section, const std::vector<StoreChange>& changes) {
  std::int32_t number = 0;
  for (const StoreChange& change : changes) {
    if (!store_->SaveSetting(appName_, section, EntryName(++number, change), change.value)) {
      return false;
    }
  }
  return store_->SaveSetting(appName_, section, kCompleteMark, DecimalText(number));
}

bool SaveJournal::Apply(const std::vector<StoreChange>& changes) {
  bool allMade = true;
  for (const StoreChange& change : changes) {
    if (!change.last) allMade &= ApplyChange(*store_, change);
  }
  if (!allMade) return false;
  for (const StoreChange& change : changes) {
    if (change.last) ApplyChange(*store_, change);
  }
  return true;
}

}  // namespace korvale
