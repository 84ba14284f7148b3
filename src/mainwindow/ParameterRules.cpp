// SPDX-License-Identifier: MIT
#include "mainwindow/ParameterRules.h"
