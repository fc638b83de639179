#pragma once

#include <windows.h>

namespace korvale {

/// Tells another program the text of a tab (TCM_GETITEMW). Screen readers ask so: they put the
/// question and room for the text into one piece of our memory. FALSE, and nothing is written, for
/// a question that is not there. Must be called while the strip's message is being handled.
LRESULT AnswerAboutTab(HWND strip, WPARAM tab, LPARAM question);

}  // namespace korvale
