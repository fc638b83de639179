#pragma once

// The errors live in platform/ so that every folder can raise them; include that header.
#include "platform/run_time_error.h"  // IWYU pragma: export
