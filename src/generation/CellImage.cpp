// SPDX-License-Identifier: MIT
#include "generation/CellImage.h"
