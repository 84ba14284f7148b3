// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

class Cartella;

// Pictures of printed pages, on the paper and with the margins of their set.

// `resolution` is in dots an inch, that of the printer: its layout depends on it.

// Size of the sheet of a set, in dots.
[[nodiscard]] QSize sheetSize(const Cartella &set, int resolution);

// A page (0-based) as it will be printed, its sheet drawn as large as `size` (pixels). Null when the set has no such
// page or the picture does not fit the memory. `numbered` pages have the number of each block beside it.
[[nodiscard]] QImage pageImage(const Cartella &set, int page, const QSize &size, int resolution, bool numbered = false);
