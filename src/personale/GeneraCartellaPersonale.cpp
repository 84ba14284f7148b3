// SPDX-License-Identifier: MIT
#include "personale/GeneraCartellaPersonale.h"
