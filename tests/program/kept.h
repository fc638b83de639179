#pragma once

#include <string>

#include "app/core/options.h"
#include "app/core/settings.h"
#include "tests/fakes/fake_settings_store.h"
#include "tests/program/korvale_world.h"

namespace korvale {

/// All that is kept between runs.
struct Kept {
  clsOptions options;
  StartupSettings startup;
  StoredTagList tags;

  friend bool operator==(const Kept&, const Kept&) = default;
};

/// What the running copy holds.
Kept KeptBy(KorvaleCopy& korvale);
/// What a copy of this name finds when it starts.
Kept KeptIn(FakeSettingsStore& store, const std::string& appName);
/// The user finds the settings in the registry, each under its name and as the text it has there.
void ExpectTexts(FakeSettingsStore& store, const std::string& appName, const Kept& kept);

}  // namespace korvale
