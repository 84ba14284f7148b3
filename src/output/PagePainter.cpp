// SPDX-License-Identifier: MIT
#include "output/PagePainter.h"
