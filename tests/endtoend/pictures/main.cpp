#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>

#include "tests/endtoend/harness/text_size.h"
#include "tests/endtoend/pictures/gallery.h"

int main() {
  // The rectangles are counted in the pixels of the screen, however many there are to the inch.
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  const char* const text = std::getenv("KORVALE_TEXT");
  std::optional<korvale::endtoend::TextSize> size;
  if (text != nullptr) size.emplace(std::atoi(text));
  korvale::endtoend::Photographer photographer;
  try {
    korvale::endtoend::Gallery(photographer).Run();
  } catch (const std::exception& error) {
    std::cout << error.what() << std::endl;
    return 1;
  }
  return photographer.Missed() == 0 ? 0 : 1;
}
