// SPDX-License-Identifier: MIT
#include "generation/GeneraCartellaClassica.h"
