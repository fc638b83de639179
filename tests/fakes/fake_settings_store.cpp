#include "tests/fakes/fake_settings_store.h"

#include <algorithm>

#include "util/text.h"

namespace korvale {
namespace {

std::string Call(const std::string& name, const std::string& appName, const std::string& section) {
  return name + "(" + appName + ", " + section;
}

template <typename Values>
auto FindKey(Values& values, const std::string& key) {
  return std::ranges::find_if(values,
                              [&](const auto& value) { return EqualsIgnoreCase(value.key, key); });
}

}  // namespace

void FakeSettingsStore::SetOtherType(const std::string& appName, const std::string& section,
                                     const std::string& key) {
  Write(appName, section, {key, std::nullopt});
}

void FakeSettingsStore::RefuseValue(const std::string& appName, const std::string& section,
                                    const std::string& key) {
  refused_values_.push_back({appName, section, {{key, std::nullopt}}});
}

void FakeSettingsStore::RefuseAfterWrites(int writes, Refusal refusal) {
  writes_before_refusal_ = writes;
  refusal_ = refusal;
  came_to_refusal_ = false;
}

void FakeSettingsStore::RefuseNothing() {
  writes_before_refusal_.reset();
  refuse_writes_ = false;
  refused_values_.clear();
}

std::vector<std::string> FakeSettingsStore::Sections(const std::string& appName) const {
  std::vector<std::string> names;
  for (const Section& section : sections_) {
    if (EqualsIgnoreCase(section.appName, appName)) names.push_back(section.name);
  }
  return names;
}

std::vector<std::string> FakeSettingsStore::Applications() const {
  std::vector<std::string> names;
  for (const Section& section : sections_) {
    const bool known = std::ranges::any_of(
        names, [&](const std::string& name) { return EqualsIgnoreCase(name, section.appName); });
    if (!known) names.push_back(section.appName);
  }
  return names;
}

std::optional<std::string> FakeSettingsStore::GetSetting(const std::string& appName,
                                                         const std::string& section,
                                                         const std::string& key) {
  LogRead(Call("GetSetting", appName, section) + ", " + key + ")");
  const Section* const found = Find(appName, section);
  if (found == nullptr) return std::nullopt;
  const auto value = FindKey(found->values, key);
  return value == found->values.end() ? std::nullopt : value->text;
}

SettingsStore::Pairs FakeSettingsStore::GetAllSettings(const std::string& appName,
                                                       const std::string& section) {
  LogRead(Call("GetAllSettings", appName, section) + ")");
  Pairs pairs;
  const Section* const found = Find(appName, section);
  if (found == nullptr) return pairs;
  for (const Value& value : found->values) pairs.emplace_back(value.key, value.text.value_or(""));
  return pairs;
}

bool FakeSettingsStore::SaveSetting(const std::string& appName, const std::string& section,
                                    const std::string& key, const std::string& value) {
  if (!BeginWrite(Call("SaveSetting", appName, section) + ", " + key + ", \"" + value + "\")",
                  true)) {
    return false;
  }
  if (IsRefused(appName, section, key)) return false;
  Write(appName, section, {key, value});
  return true;
}

bool FakeSettingsStore::DeleteSetting(const std::string& appName, const std::string& section,
                                      const std::string& key) {
  if (!BeginWrite(Call("DeleteSetting", appName, section) + ", " + key + ")")) return false;
  Section* const found = Find(appName, section);
  if (found == nullptr) return false;
  const auto value = FindKey(found->values, key);
  if (value == found->values.end()) return false;
  found->values.erase(value);
  return true;
}

bool FakeSettingsStore::DeleteSection(const std::string& appName, const std::string& section) {
  if (!BeginWrite(Call("DeleteSection", appName, section) + ")")) return false;
  return std::erase_if(sections_, [&](const Section& candidate) {
           return EqualsIgnoreCase(candidate.appName, appName) &&
                  EqualsIgnoreCase(candidate.name, section);
         }) > 0;
}

bool FakeSettingsStore::IsRefused(const std::string& appName, const std::string& section,
                                  const std::string& key) const {
  return std::ranges::any_of(refused_values_, [&](const Section& refused) {
    return EqualsIgnoreCase(refused.appName, appName) && EqualsIgnoreCase(refused.name, section) &&
           FindKey(refused.values, key) != refused.values.end();
  });
}

FakeSettingsStore::Section* FakeSettingsStore::Find(const std::string& appName,
                                                    const std::string& section) {
  const auto found = std::ranges::find_if(sections_, [&](const Section& candidate) {
    return EqualsIgnoreCase(candidate.appName, appName) &&
           EqualsIgnoreCase(candidate.name, section);
  });
  return found == sections_.end() ? nullptr : &*found;
}

void FakeSettingsStore::Write(const std::string& appName, const std::string& section,
                              const Value& value) {
  Section* found = Find(appName, section);
  if (found == nullptr) found = &sections_.emplace_back(Section{appName, section, {}});
  const auto existing = FindKey(found->values, value.key);
  if (existing == found->values.end()) {
    found->values.push_back(value);
  } else {
    existing->text = value.text;
  }
}

bool FakeSettingsStore::RefusesNow(bool saves) {
  if (refuse_writes_) return true;
  if (!writes_before_refusal_) return false;
  if (*writes_before_refusal_ > 0) {
    --*writes_before_refusal_;
    return false;
  }
  came_to_refusal_ = true;
  if (refusal_ == Refusal::kOne) writes_before_refusal_.reset();
  return refusal_ != (saves ? Refusal::kDeletions : Refusal::kSaves);
}

bool FakeSettingsStore::BeginWrite(const std::string& call, bool saves) {
  if (writes_left_ == 0) throw KilledBetweenWrites();
  if (writes_left_ > 0) --writes_left_;
  if (log_ != nullptr) log_->Add(call);
  return !RefusesNow(saves);
}

void FakeSettingsStore::LogRead(const std::string& call) {
  if (log_ != nullptr) log_->AddRead(call);
}

}  // namespace korvale
