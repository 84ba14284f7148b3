// SPDX-License-Identifier: MIT
#include "mainwindow/Startup.h"
