#include "tests/endtoend/harness/refusing_store.h"

#include <windows.h>

#include "tests/endtoend/harness/text.h"

namespace korvale::endtoend {

void MakeStoreRefuse(const std::string& application) {
  const std::wstring branch = L"Software\\VB and VBA Program Settings\\" + Wide(application);
  // Every save creates a lasting key, which Windows refuses below a volatile one.
  for (const wchar_t* section : {L"", L"\\Options", L"\\Startup"}) {
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_CURRENT_USER, (branch + section).c_str(), 0, nullptr, REG_OPTION_VOLATILE,
                    KEY_READ, nullptr, &key, nullptr);
    RegCloseKey(key);
  }
}

}  // namespace korvale::endtoend
