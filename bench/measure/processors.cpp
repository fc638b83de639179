#include "bench/measure/processors.h"

#include <bit>

#include "tests/endtoend/harness/process.h"

namespace korvale::bench {
namespace {

/// The last processor is the subject's: script/bench keeps Wine's server there.
DWORD_PTR MaskOf(Side side) {
  DWORD_PTR own = 0;
  DWORD_PTR all = 0;
  if (GetProcessAffinityMask(GetCurrentProcess(), &own, &all) == 0 || own == 0) return 1;
  return side == Side::kSubject ? std::bit_floor(own) : own & (~own + 1);
}

}  // namespace

void KeepOn(Side side, DWORD process) {
  const endtoend::Handle handle(OpenProcess(PROCESS_SET_INFORMATION, FALSE, process));
  SetProcessAffinityMask(handle.get(), MaskOf(side));
}

void KeepThreadOn(Side side) { SetThreadAffinityMask(GetCurrentThread(), MaskOf(side)); }

}  // namespace korvale::bench
