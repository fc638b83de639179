#pragma once

#include <string>

namespace korvale::endtoend {

/// Prepares the settings of an application, of which there are none yet, so that what stands in the
/// sections "Options" and "Startup" can be read and no save succeeds.
void MakeStoreRefuse(const std::string& application);

}  // namespace korvale::endtoend
