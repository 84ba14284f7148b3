// SPDX-License-Identifier: MIT
#include "personale/PersonaleChkBox.h"
