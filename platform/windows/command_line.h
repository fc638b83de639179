#pragma once

#include <string_view>

namespace korvale {

/// The part of a command line after the program's own name, which may be in quotes, and after the
/// blanks that follow it.
constexpr std::wstring_view BehindProgramName(std::wstring_view line) {
  std::size_t end = 0;
  bool quoted = false;
  while (end < line.size() && (quoted || (line[end] != L' ' && line[end] != L'\t'))) {
    if (line[end] == L'"') quoted = !quoted;
    ++end;
  }
  while (end < line.size() && (line[end] == L' ' || line[end] == L'\t')) ++end;
  return line.substr(end);
}

static_assert(BehindProgramName(L"\"C:\\My Folder\\Korvale.exe\"").empty());
static_assert(BehindProgramName(L"\"C:\\My Folder\\Korvale.exe\"  a \"b c\" ") == L"a \"b c\" ");
static_assert(BehindProgramName(L"Korvale.exe /x") == L"/x");
static_assert(BehindProgramName(L"C:\\My\" \"Folder\\Korvale.exe\t/x") == L"/x");
static_assert(BehindProgramName(L"").empty());

}  // namespace korvale
