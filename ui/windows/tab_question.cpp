#include "ui/windows/tab_question.h"

// After windows.h, which it needs.
#include <commctrl.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "ui/windows/message_guard.h"

namespace korvale {
namespace {

/// Where the piece of memory begins that holds this address; null when there is none.
void* PieceOf(const void* address) {
  MEMORY_BASIC_INFORMATION memory{};
  return VirtualQuery(address, &memory, sizeof(memory)) == 0 ? nullptr : memory.AllocationBase;
}

}  // namespace

LRESULT AnswerAboutTab(HWND strip, WPARAM tab, LPARAM question) {
  TCITEMW asked{};
  if (!ReadParameter(question, asked) || (asked.mask & TCIF_TEXT) == 0) return FALSE;
  if (PieceOf(asked.pszText) != PieceOf(reinterpret_cast<void*>(question))) return FALSE;
  std::array<wchar_t, 64> text{};
  TCITEMW own{};
  own.mask = TCIF_TEXT;
  own.pszText = text.data();
  own.cchTextMax = std::clamp(asked.cchTextMax, 0, static_cast<int>(text.size()));
  if (own.cchTextMax == 0) return FALSE;
  if (DefSubclassProc(strip, TCM_GETITEMW, tab, reinterpret_cast<LPARAM>(&own)) == FALSE) {
    return FALSE;
  }
  const std::size_t size = (std::wstring_view(text.data()).size() + 1) * sizeof(wchar_t);
  return WriteProcessMemory(GetCurrentProcess(), asked.pszText, text.data(), size, nullptr);
}

}  // namespace korvale
