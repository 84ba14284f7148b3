// SPDX-License-Identifier: MIT
#pragma once

#include "output/PdfGeometry.h"

class Cartella;
class QPageLayout;

// The paper of a card set with the set's margins, as a printer takes it: A4 for a format that is none.
[[nodiscard]] QPageLayout pageLayoutOf(const Cartella &set);

// The sheet of such a layout on a device of so many pixels an inch.
[[nodiscard]] Sheet sheetOf(const QPageLayout &layout, int resolution, const Cartella &set);
