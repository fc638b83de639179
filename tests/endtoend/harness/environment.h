#pragma once

#include <string>

namespace korvale::endtoend {

/// A variable of the environment, "" when there is none.
std::string Environment(const wchar_t* name);

}  // namespace korvale::endtoend
