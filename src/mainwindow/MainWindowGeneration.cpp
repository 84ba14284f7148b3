// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"
