// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

// Black or white, whichever stands out more from the background.
[[nodiscard]] QColor readableOn(const QColor &background);
