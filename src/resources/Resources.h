// SPDX-License-Identifier: MIT
#pragma once

#include "model/Types.h"

#include <QString>

// Registers the icons of the static library; every window calls it before its form is built. Repeating it is free.
void initQuintraResources();

// Path of the icon that shows a verdict.
QString verdictIcon(Verdict verdict);
