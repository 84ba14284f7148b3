// SPDX-License-Identifier: MIT
#include "generation/ColumnLayout.h"
