// SPDX-License-Identifier: MIT
#pragma once

#include "output/PdfGeometry.h"

class PageLayers;
class QColor;
class QPen;
class TextShapes;
struct Blocco;

[[nodiscard]] QPen innerPen(const Blocco &block);
[[nodiscard]] QPen outerPen(const Blocco &block);

// Whether the block looks the same when all its backgrounds are painted first, then its pictures, its texts and at last
// its lines: the separators are opaque and lie over the borders of all cells, and no text leaves its cell.
[[nodiscard]] bool mayBeLayered(const Blocco &block, const BlockLayout &layout, TextShapes &shapes);

// How far the lines of two blocks with that many device pixels between them reach.
enum class Neighbours { Apart, LinesMeet, LinesReachCells };
[[nodiscard]] Neighbours neighboursAt(float spacing, const Blocco &upper, const Blocco &lower);

// Adds all that is to be painted of a block that may be layered. Cells of the page's color have no background.
void addBlock(PageLayers &layers, const Blocco &block, const BlockLayout &layout, const QColor &pageColor,
              TextShapes &shapes);
