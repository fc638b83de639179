#include "ui/form_collection.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "util/text.h"

namespace korvale {

void FormCollection::ForEach(
    const std::function<void(std::string_view, WindowHandle)>& visit) const {
  for (const CollectedForm* form : loaded_) visit(form->Name(), form->Handle());
}

void FormCollection::UnloadAllExcept(std::string_view name) {
  // Unloading one form may unload others, so the rest is looked up again each time.
  std::vector<const CollectedForm*> asked;
  const auto next = [&] {
    return std::find_if(loaded_.rbegin(), loaded_.rend(), [&](const CollectedForm* form) {
      return !EqualsIgnoreCase(form->Name(), name) && std::ranges::find(asked, form) == asked.end();
    });
  };
  for (auto at = next(); at != loaded_.rend(); at = next()) {
    CollectedForm* const form = *at;
    asked.push_back(form);
    form->Unload(CloseReason::kCode);
  }
}

void FormCollection::RunModal(CollectedForm& form) {
  const std::vector<CollectedForm*> blocked = Block(&form);
  for (const CollectedForm* const other : blocked) host_->EnableWindow(other->Handle(), false);
  try {
    form.Show();
    loop_->RunMessageLoop([&] { return !IsModal(form); });
  } catch (...) {
    EndModal(&form);
    throw;
  }
  EndModal(&form);
}

void FormCollection::RunSystemDialog(const CollectedForm& owner,
                                     const std::function<void()>& dialog) {
  for (const CollectedForm* const other : Block(nullptr)) {
    if (other != &owner) host_->EnableWindow(other->Handle(), false);
  }
  try {
    dialog();
  } catch (...) {
    EndModal(nullptr);
    throw;
  }
  EndModal(nullptr);
}

std::vector<CollectedForm*> FormCollection::Block(CollectedForm* modal) {
  std::vector<CollectedForm*> blocked;
  std::ranges::copy_if(loaded_, std::back_inserter(blocked), [&](const CollectedForm* other) {
    return other != modal && !IsBlocked(*other);
  });
  modal_.push_back({modal, blocked});
  return blocked;
}

bool FormCollection::IsModal(const CollectedForm& form) const {
  return std::ranges::any_of(modal_, [&](const Modal& modal) { return modal.form == &form; });
}

bool FormCollection::IsBlocked(const CollectedForm& form) const {
  return std::ranges::any_of(modal_, [&](const Modal& modal) {
    return std::ranges::find(modal.blocked, &form) != modal.blocked.end();
  });
}

void FormCollection::EndModal(const CollectedForm* form) {
  const auto found = std::ranges::find(modal_, form, &Modal::form);
  if (found == modal_.end()) return;
  const std::vector<CollectedForm*> blocked = std::move(found->blocked);
  const auto above = modal_.erase(found);
  if (above != modal_.end()) {
    above->blocked.insert(above->blocked.end(), blocked.begin(), blocked.end());
    return;
  }
  for (const CollectedForm* const other : blocked) {
    if (other->Enabled()) host_->EnableWindow(other->Handle(), true);
  }
}

void FormCollection::Remove(CollectedForm& form) {
  EndModal(&form);
  std::erase(loaded_, &form);
  for (Modal& modal : modal_) std::erase(modal.blocked, &form);
}

void FormCollection::ReportUncaught() noexcept {
  if (uncaught_) uncaught_();
}

}  // namespace korvale
