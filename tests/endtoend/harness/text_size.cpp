#include "tests/endtoend/harness/text_size.h"

#include <initializer_list>

namespace korvale::endtoend {
namespace {

void Apply(NONCLIENTMETRICSW metrics) {
  SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof(metrics), &metrics,
                        SPIF_UPDATEINIFILE | SPIF_SENDCHANGE);
}

}  // namespace

TextSize::TextSize(int percent) {
  before_.cbSize = sizeof(before_);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(before_), &before_, 0);
  Change(percent);
}

TextSize::~TextSize() { Apply(before_); }

void TextSize::Change(int percent) const {
  // 9 points to begin with, as on Windows.
  const int height = -MulDiv(9 * percent, static_cast<int>(GetDpiForSystem()), 72 * 100);
  NONCLIENTMETRICSW metrics = before_;
  for (LOGFONTW* const font :
       {&metrics.lfCaptionFont, &metrics.lfSmCaptionFont, &metrics.lfMenuFont,
        &metrics.lfStatusFont, &metrics.lfMessageFont}) {
    font->lfHeight = height;
  }
  metrics.iCaptionHeight = MulDiv(before_.iCaptionHeight, percent, 100);
  metrics.iMenuHeight = MulDiv(before_.iMenuHeight, percent, 100);
  Apply(metrics);
}

}  // namespace korvale::endtoend
