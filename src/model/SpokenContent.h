// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

// What a screen reader says that a cell holds, such as "numero 45". `text` is what the cell shows; it may be empty.
[[nodiscard]] QString spokenContent(CELL_VALUE tipo, const QString &text);
