#include "tests/endtoend/harness/environment.h"

#include <windows.h>

#include "tests/endtoend/harness/text.h"

namespace korvale::endtoend {

std::string Environment(const wchar_t* name) {
  std::wstring buffer(1024, L'\0');
  buffer.resize(GetEnvironmentVariableW(name, buffer.data(), static_cast<DWORD>(buffer.size())));
  return Utf8(buffer);
}

}  // namespace korvale::endtoend
