#include "tests/endtoend/harness/color_dialog.h"

#include <cstdlib>

#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

// The dialog's own names for its fields, from the system's dialog template.
constexpr int kBasicColors = 720;
constexpr int kRed = 706;
constexpr int kGreen = 707;
constexpr int kBlue = 708;

Window Field(Window dialog, int field) { return Window(GetDlgItem(dialog.handle(), field)); }

int Value(Window dialog, int field) { return std::atoi(Field(dialog, field).Text().c_str()); }

}  // namespace

std::string StoredColor(Rgb color) {
  return std::to_string(color.red + 0x100 * color.green + 0x10000 * color.blue);
}

Rgb ColorOnScreen(Window box) {
  RECT area{};
  GetWindowRect(box.handle(), &area);
  const HDC screen = GetDC(nullptr);
  const COLORREF color = GetPixel(screen, area.right - 6, area.top + 4);
  ReleaseDC(nullptr, screen);
  return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

ColorDialog::ColorDialog(const RunningKorvale& korvale) : window_(korvale.MessageBox()) {
  WaitFor([this] { return Field(window_, kBlue).Visible(); });
}

Rgb ColorDialog::Shown() const {
  return {Value(window_, kRed), Value(window_, kGreen), Value(window_, kBlue)};
}

bool ColorDialog::Enter(int field, int value) const {
  const Window box = Field(window_, field);
  const auto selects = [&](size_t length) {
    return WaitFor([&] { return box.Send(EM_GETSEL) == MAKELONG(0, length); });
  };
  Click(box);
  if (!WaitFor([&] { return FocusOf(window_) == box; })) return false;
  // Each key waits for the one before: a Shift that comes early would select from the click.
  Press({0, VK_HOME});
  if (!selects(0)) return false;
  Press({MOD_SHIFT, VK_END});
  if (!selects(box.Text().size())) return false;
  Type(std::to_string(value));
  return WaitFor([&] { return Value(window_, field) == value; });
}

bool ColorDialog::Choose(Rgb color) const {
  if (!BringToFront(window_)) return false;
  const bool entered =
      Enter(kRed, color.red) && Enter(kGreen, color.green) && Enter(kBlue, color.blue);
  return entered && Shown() == color && AnswerBox(window_, IDOK);
}

bool ColorDialog::Pick(int cell) const {
  constexpr int kInRow = 8;
  constexpr int kRows = 6;
  if (!BringToFront(window_)) return false;
  const Rgb before = Shown();
  const Window table = Field(window_, kBasicColors);
  RECT area{};
  GetClientRect(table.handle(), &area);
  ClickAt(table, {area.right * (2 * (cell % kInRow) + 1) / (2 * kInRow),
                  area.bottom * (2 * (cell / kInRow) + 1) / (2 * kRows)});
  return WaitFor([&] { return !(Shown() == before); }) && AnswerBox(window_, IDOK);
}

bool ColorDialog::Cancel() const {
  if (!BringToFront(window_)) return false;
  Press({0, VK_ESCAPE});
  if (!WaitFor([this] { return !window_.Exists() || !window_.Visible(); })) return false;
  LetProgramsFinish();
  return true;
}

}  // namespace korvale::endtoend
