#include "tests/endtoend/harness/work_area.h"

namespace korvale::endtoend {
namespace {

RECT Now() {
  RECT area{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  return area;
}

void Apply(RECT area) { SystemParametersInfoW(SPI_SETWORKAREA, 0, &area, SPIF_SENDCHANGE); }

}  // namespace

WorkArea::WorkArea() : before_(Now()) {}

WorkArea::~WorkArea() { Apply(before_); }

void WorkArea::Narrow(LONG by) {
  RECT area = Now();
  area.right -= by;
  Apply(area);
}

}  // namespace korvale::endtoend
