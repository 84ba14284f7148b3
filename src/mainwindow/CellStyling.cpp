// SPDX-License-Identifier: MIT
#include "mainwindow/CellStyling.h"
