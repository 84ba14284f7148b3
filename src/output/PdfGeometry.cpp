// SPDX-License-Identifier: MIT
#include "output/PdfGeometry.h"
