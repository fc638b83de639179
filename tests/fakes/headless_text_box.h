#pragma once

#include <string>
#include <string_view>

#include "platform/form_host.h"

namespace korvale {

/// Where the user types in a text: the selection lies between both, in characters.
struct TextCursor {
  int anchor = 0;
  int caret = 0;
};

TextSelection SelectionOf(const TextCursor& cursor);
/// The cursor of a selection, cut to what the text has.
TextCursor CursorOf(const TextSelection& selection, std::string_view text);

/// Puts characters in the place of the selection.
void TypeInto(std::string& text, TextCursor& cursor, std::string_view typed);

/// What a text box does with a key that moves or removes; true when the text has changed.
bool PressKeyIn(std::string& text, TextCursor& cursor, int virtualKey, unsigned shift,
                bool readOnly);

}  // namespace korvale
