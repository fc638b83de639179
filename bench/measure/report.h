#pragma once

#include <span>
#include <string>

#include "bench/measure/session.h"
#include "bench/measure/subject.h"

namespace korvale::bench {

/// The figures of a session as tables in Markdown, one for each group of figures; the first subject
/// is the floor.
std::string Report(std::span<const Subject> subjects, const Session& session);

}  // namespace korvale::bench
