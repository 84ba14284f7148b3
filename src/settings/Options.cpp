// SPDX-License-Identifier: MIT
#include "settings/Options.h"
