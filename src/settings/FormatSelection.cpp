// SPDX-License-Identifier: MIT
#include "settings/FormatSelection.h"
