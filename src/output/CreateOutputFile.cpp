// SPDX-License-Identifier: MIT
#include "output/CreateOutputFile.h"
