// SPDX-License-Identifier: MIT
#include "settings/Config.h"
