#pragma once

#include <windows.h>

#include <array>

namespace korvale::endtoend {

// What the tests and the part of them that reads menus in another program agree on.

/// A message to the window whose menus are asked for, of this registered name.
constexpr wchar_t kMenuQuestion[] = L"Korvale.Test.ReadMenu";
/// The shared memory with the answer.
constexpr wchar_t kMenuAnswer[] = L"Local\\Korvale.Test.ReadMenu";

struct MenuAnswerItem {
  UINT type;
  UINT state;
  BOOL opensMenu;
  std::array<wchar_t, 400> text;
};

struct MenuAnswer {
  int count;
  std::array<MenuAnswerItem, 60> items;
};

}  // namespace korvale::endtoend
