#include "app/core/options.h"

#include "platform/run_time_error.h"

namespace korvale {

clsOptions& OptionsHolder::Get() {
  if (!options_) throw RunTimeError(RunTimeError::kObjectNotSet);
  return *options_;
}

const clsOptions& OptionsHolder::Get() const {
  if (!options_) throw RunTimeError(RunTimeError::kObjectNotSet);
  return *options_;
}

}  // namespace korvale
