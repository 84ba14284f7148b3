// SPDX-License-Identifier: MIT
#include "personale/MappingFile.h"
