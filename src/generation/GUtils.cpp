// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"
