#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/core/store_changes.h"
#include "platform/settings_store.h"

namespace korvale {

/// Section that holds the changes of a save while it is being made; gone once it is done.
inline constexpr char kJournalSection[] = "Saving";
/// Takes the next save while the first section holds one that the store has refused.
inline constexpr char kSecondJournalSection[] = "Saving2";
inline constexpr const char* kJournalSections[] = {kJournalSection, kSecondJournalSection};

/// Makes several changes as one: a program killed between any two writes leaves behind either none
/// of them, or what FinishInterrupted needs to make the rest.
///
/// All changes are first written into the journal section with a mark at the end that counts them,
/// then made, then the journal is deleted. Making them twice leads to the same state. A journal
/// that the store has refused is deleted only once the next one, which contains it, is complete;
/// until then nothing of the next one is made, so that of two complete ones either may be taken.
class SaveJournal {
 public:
  /// The journal is stored under `appName`; the changes may concern any application name.
  SaveJournal(SettingsStore& store, std::string appName);

  /// Makes the changes in order, those marked `last` only once all others are made. Throws
  /// RunTimeError 70 (Permission denied) when the store refuses: before any change when the journal
  /// cannot be written, otherwise after making all that it can. What was refused is tried again by
  /// the next Commit or FinishInterrupted and never undoes a newer change. Changes marked `last`
  /// are dropped when a value that they wait for is replaced or deleted before the store has taken
  /// it.
  void Commit(const std::vector<StoreChange>& newChanges);

  /// Makes all changes of a complete journal that was left behind and removes it, unless the store
  /// refuses again; drops an incomplete one. Does nothing when there is none. False when the store
  /// has refused any of it.
  bool FinishInterrupted();

  /// The changes of a complete journal, which the store may not have taken yet; none when there is
  /// no such journal.
  std::vector<StoreChange> Unfinished() const;

 private:
  struct Journal {
    const char* section;
    std::vector<StoreChange> changes;
  };

  /// The complete journal, of which another copy may have written or deleted some when the store is
  /// read again; nothing when there is none.
  std::optional<Journal> LeftBehind() const;
  /// The changes in a section; nothing when the journal there is incomplete.
  std::optional<std::vector<StoreChange>> ChangesIn(const char* section) const;
  std::vector<StoreChange> Behind(std::vector<StoreChange> changes,
                                  const std::vector<StoreChange>& newChanges) const;
  /// Deletes a journal section; false when the store refuses.
  bool Clear(const char* section);
  bool Write(const char* section, const std::vector<StoreChange>& changes);
  bool Apply(const std::vector<StoreChange>& changes);

  SettingsStore* store_;
  std::string appName_;
};

}  // namespace korvale
