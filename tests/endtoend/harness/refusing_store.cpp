#include "tests/endtoend/harness/refusing_store.h"

#include <windows.h>

#include "tests/endtoend/harness/text.h"

namespace korvale::endtoend {

void MakeStoreRefuse(const std::string& application) {
  const std::wstring branch = L"Software\\VB and VBA Program Settings\\" + Wide(application);
  // A key that lasts, as every save begins with, is refused below one that does not.
  for (const wchar_t* section : {L"", L"\\Options", L"\\Startup"}) {
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_CURRENT_USER, (branch + section).c_str(), 0, nullptr, REG_OPTION_VOLATILE,
                    KEY_READ, nullptr, &key, nullptr);
    RegCloseKey(key);
  }
}

}  // namespace korvale::endtoend
