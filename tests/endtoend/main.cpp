#include <gtest/gtest.h>

#include <iostream>

#include "tests/endtoend/harness/window.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // As Korvale itself, the tests count in the pixels of the screen.
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  // The tests press system-wide hot keys, and a copy that somebody is using would act on them.
  const auto running = [](korvale::endtoend::Window window) {
    return window.ClassName() == "Korvale.frmMain";
  };
  if (korvale::endtoend::FindTopLevel(running)) {
    std::cerr << "Close the running Korvale first.\n";
    return 2;
  }
  return RUN_ALL_TESTS();
}
