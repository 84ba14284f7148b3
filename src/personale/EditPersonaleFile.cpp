// SPDX-License-Identifier: MIT
#include "personale/EditPersonale.h"
