// SPDX-License-Identifier: MIT
#include "model/Cartella.h"
