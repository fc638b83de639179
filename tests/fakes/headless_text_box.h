#pragma once

#include <string>
#include <string_view>

#include "platform/form_host.h"

namespace korvale {

/// The cursor in a text; the selection lies between both ends, counted in characters.
struct TextCursor {
  int anchor = 0;
  int caret = 0;
};

TextSelection SelectionOf(const TextCursor& cursor);
/// The cursor of a selection, limited to the length of the text.
TextCursor CursorOf(const TextSelection& selection, std::string_view text);

/// Replaces the selection with characters.
void TypeInto(std::string& text, TextCursor& cursor, std::string_view typed);

/// What a text box does with a key that moves or deletes; true when the text has changed.
bool PressKeyIn(std::string& text, TextCursor& cursor, int virtualKey, unsigned shift,
                bool readOnly);

}  // namespace korvale
