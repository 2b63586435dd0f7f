#include "tests/sales/salestest.h"
