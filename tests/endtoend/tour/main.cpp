#include <exception>
#include <iostream>

#include "tests/endtoend/tour/tour.h"

int main() {
  korvale::endtoend::Report report;
  try {
    korvale::endtoend::Tour(report).Run();
  } catch (const std::exception& error) {
    report.Step(error.what(), false);
  }
  return report.Finish();
}
