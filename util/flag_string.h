#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace korvale {

/// One flag of a string that is used as a row of flags, a character each.
///
/// `position` counts from 1. A string that ends before it is first filled up to it, with "1" when
/// `padWithOne`, else with "0". Mode "GET" returns whether the character there is not "0"; mode
/// "SET" writes "1" for a true `setValue`, else "0", and returns false. Any other mode does nothing
/// and returns false. A position below 1 throws RunTimeError 5.
bool FlagString(std::string& flags, std::int32_t position, std::string_view mode, bool padWithOne,
                bool setValue);

}  // namespace korvale
