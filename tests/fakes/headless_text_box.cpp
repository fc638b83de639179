#include "tests/fakes/headless_text_box.h"

#include <algorithm>
#include <cstddef>

#include "platform/win32_constants.h"
#include "tests/fakes/keys.h"
#include "util/text.h"

namespace korvale {
namespace {

std::string Middle(const std::string& text, int from, int count) {
  return LeftCharacters(MidCharacters(text, from + 1), count);
}

int LengthOf(const std::string& text) { return CharacterCount(text); }

void Remove(std::string& text, TextCursor& cursor, int from, int count) {
  text = LeftCharacters(text, from) + MidCharacters(text, from + count + 1);
  cursor = {from, from};
}

bool Erase(std::string& text, TextCursor& cursor, int step) {
  const TextSelection selection = SelectionOf(cursor);
  if (selection.length > 0) {
    Remove(text, cursor, selection.start, selection.length);
    return true;
  }
  const int at = step < 0 ? cursor.caret - 1 : cursor.caret;
  if (at < 0 || at >= LengthOf(text)) return false;
  Remove(text, cursor, at, 1);
  return true;
}

void MoveCaret(TextCursor& cursor, int caret, bool select) {
  cursor.caret = caret;
  if (!select) cursor.anchor = caret;
}

}  // namespace

TextSelection SelectionOf(const TextCursor& cursor) {
  return {std::min(cursor.anchor, cursor.caret), std::abs(cursor.caret - cursor.anchor)};
}

TextCursor CursorOf(const TextSelection& selection, std::string_view text) {
  const int length = CharacterCount(text);
  const int start = std::clamp(selection.start, 0, length);
  return {start, std::clamp(start + selection.length, start, length)};
}

void TypeInto(std::string& text, TextCursor& cursor, std::string_view typed) {
  const TextSelection selection = SelectionOf(cursor);
  text = Middle(text, 0, selection.start) + std::string(typed) +
         MidCharacters(text, selection.start + selection.length + 1);
  const int behind = selection.start + CharacterCount(typed);
  cursor = {behind, behind};
}

bool PressKeyIn(std::string& text, TextCursor& cursor, int virtualKey, unsigned shift,
                bool readOnly) {
  const bool select = (shift & kShift) != 0;
  const TextSelection selection = SelectionOf(cursor);
  const bool collapse = selection.length > 0 && !select;
  switch (virtualKey) {
    case fakes::kVkBack:
      return !readOnly && Erase(text, cursor, -1);
    case fakes::kVkDelete:
      return !readOnly && Erase(text, cursor, 1);
    case win32::kVkHome:
      MoveCaret(cursor, 0, select);
      return false;
    case win32::kVkEnd:
      MoveCaret(cursor, LengthOf(text), select);
      return false;
    case win32::kVkLeft:
      MoveCaret(cursor, collapse ? selection.start : std::max(cursor.caret - 1, 0), select);
      return false;
    case win32::kVkRight:
      MoveCaret(cursor,
                collapse ? selection.start + selection.length
                         : std::min(cursor.caret + 1, LengthOf(text)),
                select);
      return false;
    default:
      return false;
  }
}

}  // namespace korvale
