// SPDX-License-Identifier: MIT
#include "Ratios.h"
