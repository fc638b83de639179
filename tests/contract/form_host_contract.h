#pragma once

// What every host of forms does. A test program includes this in one file and defines
// MakeHostUnderTest there.
#include "tests/contract/control_contract.h"   // IWYU pragma: export
#include "tests/contract/keyboard_contract.h"  // IWYU pragma: export
#include "tests/contract/list_contract.h"      // IWYU pragma: export
#include "tests/contract/menu_contract.h"      // IWYU pragma: export
#include "tests/contract/metrics_contract.h"   // IWYU pragma: export
#include "tests/contract/timer_contract.h"     // IWYU pragma: export
#include "tests/contract/window_contract.h"    // IWYU pragma: export
