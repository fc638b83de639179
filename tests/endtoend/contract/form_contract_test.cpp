#include "tests/contract/form_host_contract.h"
