#include "app/core/save_scope.h"

#include <utility>

#include "platform/run_time_error.h"

namespace korvale {

SaveScope::SaveScope(SavingStore& store)
    : store_(&store),
      outer_(std::exchange(store.openScope_, this)),
      journal_(store.Store(), store.AppName()),
      deletesLast_(outer_ != nullptr && outer_->deletesLast_) {}

SaveScope::~SaveScope() {
  if (store_ != nullptr) store_->CountLostSave();
  Close();
}

void SaveScope::SaveSetting(const std::string& appName, const std::string& section,
                            const std::string& key, const std::string& value) {
  changes_.push_back({StoreChange::Kind::kSaveSetting, appName, section, key, value});
}

void SaveScope::DeleteSetting(const std::string& appName, const std::string& section,
                              const std::string& key) {
  changes_.push_back({StoreChange::Kind::kDeleteSetting, appName, section, key, "", deletesLast_});
}

void SaveScope::DeleteSection(const std::string& appName, const std::string& section) {
  changes_.push_back({StoreChange::Kind::kDeleteSection, appName, section, "", "", deletesLast_});
}

void SaveScope::Commit() {
  if (store_ == nullptr || store_->openScope_ != this) {
    throw RunTimeError(RunTimeError::kInternalError);
  }
  // Closed first, so that what the program saves while it reports a failure is a separate save.
  SavingStore& store = *store_;
  Close();
  if (outer_ != nullptr) {
    outer_->changes_.insert(outer_->changes_.end(), changes_.begin(), changes_.end());
    return;
  }
  try {
    journal_.Commit(changes_);
  } catch (...) {
    store.CountLostSave();
    throw;
  }
}

void SaveScope::Close() {
  if (store_ == nullptr) return;
  // Scopes still open inside this one would lead to it.
  for (SaveScope* inner = store_->openScope_; inner != this; inner = inner->outer_) {
    inner->store_ = nullptr;
  }
  std::exchange(store_, nullptr)->openScope_ = outer_;
}

}  // namespace korvale
