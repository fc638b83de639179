#include "app/core/save_scope.h"

#include <utility>

namespace korvale {

SaveScope::SaveScope(SavingStore& store)
    : store_(&store),
      outer_(std::exchange(store.openScope_, this)),
      journal_(store.Store(), store.AppName()),
      deletesLast_(outer_ != nullptr && outer_->deletesLast_) {}

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
  // Closed first, so that what the program saves while it reports a failure is a separate save.
  Close();
  if (outer_ == nullptr) return journal_.Commit(changes_);
  outer_->changes_.insert(outer_->changes_.end(), changes_.begin(), changes_.end());
}

void SaveScope::Close() {
  if (store_ != nullptr) std::exchange(store_, nullptr)->openScope_ = outer_;
}

}  // namespace korvale
