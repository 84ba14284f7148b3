// SPDX-License-Identifier: MIT
#include "mainwindow/PageTable.h"
