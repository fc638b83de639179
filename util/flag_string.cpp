#include "util/flag_string.h"

#include <cstddef>

#include "platform/run_time_error.h"
#include "util/text.h"

namespace korvale {

bool FlagString(std::string& flags, std::int32_t position, std::string_view mode, bool padWithOne,
                bool setValue) {
  if (mode != "GET" && mode != "SET") return false;
  if (position < 1) throw RunTimeError(RunTimeError::kInvalidCall);
  const std::int32_t missing = position - CharacterCount(flags);
  if (missing > 0) flags.append(static_cast<std::size_t>(missing), padWithOne ? '1' : '0');
  if (mode == "GET") return !MidCharacters(flags, position).starts_with('0');
  flags = LeftCharacters(flags, position - 1) + (setValue ? "1" : "0") +
          MidCharacters(flags, position + 1);
  return false;
}

}  // namespace korvale
