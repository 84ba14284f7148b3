// SPDX-License-Identifier: MIT
#pragma once

#include "output/PdfGeometry.h"

#include <QVector>

class Cartella;
class QPageLayout;

// The paper of a card set with the set's margins, as a printer takes it: A4 for a format that is none.
[[nodiscard]] QPageLayout pageLayoutOf(const Cartella &set);

// The sheet of such a layout on a device of so many pixels an inch.
[[nodiscard]] Sheet sheetOf(const QPageLayout &layout, int resolution, const Cartella &set);

// The pages (0-based) whose blocks are spaced so widely that none has any height left: they would be drawn upside down,
// beyond the edge of the sheet.
[[nodiscard]] QVector<int> pagesWithoutRoom(const Cartella &set, int resolution);
