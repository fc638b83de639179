#include <utility>

#include "tests/endtoend/endurance_test.h"
#include "tests/endtoend/harness/lent_memory.h"
#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/harness/refusing_store.h"
#include "tests/endtoend/harness/spoken.h"
#include "tests/endtoend/harness/system_color.h"
#include "tests/endtoend/harness/text_size.h"

// What the system and other programs do while Korvale runs.

namespace korvale::endtoend {

void EnduranceTest::WorkInAnotherWindow() {
  other_.SetTitle("Page " + std::to_string(++changes_));
  Need(WorkIn(other_));
  GoByTagKey();
}

void EnduranceTest::ChangeSystemColors() {
  { const SystemColor color(COLOR_BTNFACE, RGB(180, ++changes_ % 200, 220)); }
  NeedThat("it responds", [this] { return main().Responds(); });
}

void EnduranceTest::ChangeTextSize() {
  {
    const TextSize larger(++changes_ % 2 == 0 ? 125 : 175);
    NeedThat("it responds", [this] { return main().Responds(); });
  }
  NeedThat("it responds", [this] { return main().Responds(); });
}

/// Other dots need another monitor, which Wine has not, and Korvale believes nobody else who tells
/// of them. The same ones once more let it measure everything anew.
void EnduranceTest::BeToldOfTheSameDots() {
  RECT place{};
  GetWindowRect(main().handle(), &place);
  const LentMemory lent(main().ProcessId(), sizeof(place));
  lent.Write(&place, sizeof(place));
  const UINT dpi = GetDpiForWindow(main().handle());
  main().Send(WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(lent.Address()));
  NeedThat("it responds", [this] { return main().Responds(); });
}

void EnduranceTest::WakeUpAndUnlock() {
  PostMessageW(main().handle(), WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC, 0);
  PostMessageW(main().handle(), WM_WTSSESSION_CHANGE, WTS_SESSION_UNLOCK, -1);
  // Korvale takes what it is told in order, and so opens a menu only after that.
  Need(OpenWindowMenu());
  for (int level = 0; level < 2; ++level) Press({0, VK_ESCAPE});
  NeedThat("the menu goes", [this] { return !korvale_->HasMenu(); });
  GoByTagKey();
}

void EnduranceTest::ReadTheMainWindowAloud() {
  Need("the window and its two fields are read", Spoken(main()).size() == 3);
}

void EnduranceTest::StartASecondCopy() {
  RunningKorvale second(installation_);
  Need("it is open already", AnswerBox(second.MessageBox(), IDOK));
  Need("it ends", second.process().WaitForExit() == 0U);
  NeedInFront(main());
  GoByTagKey();
}

void EnduranceTest::SaveInAStoreThatRefuses() {
  settings().DeleteAll();
  MakeStoreRefuse(installation_.name());
  ChooseInBar('V', 'T');
  // Once a run.
  if (!std::exchange(told_of_lost_save_, true)) {
    Need("the message goes", AnswerBox(korvale_->MessageBox(), IDOK));
  }
  NeedThat("the boxes go", [this] { return !MainWindow(main()).ShowsBoxes(); });
  settings().DeleteAll();
  ChooseInBar('V', 'T');
  Need(Stored("WindowInfo", "True"));
  GoByTagKey();
}

}  // namespace korvale::endtoend
