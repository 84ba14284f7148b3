// SPDX-License-Identifier: MIT
#pragma once

#include "output/PdfGeometry.h"

#include <QColor>
#include <QGlyphRun>
#include <QVector>

#include <optional>

class NumberShapes;
struct Blocco;

// A number where it is to be drawn, in device pixels.
struct PlacedNumber
{
    QPointF corner;
    QGlyphRun glyphs;
    QColor color;
};

// The numbers of a block, row by row, when its separators may be painted after all of them without a visible
// difference: the cells hold nothing but numbers and have no background of their own, the separators are opaque, and no
// glyph comes near one. Nothing when the block is not such a block.
[[nodiscard]] std::optional<QVector<PlacedNumber>> numbersApartFromLines(const Blocco &block, const BlockLayout &layout,
                                                                         const QColor &pageColor, NumberShapes &shapes);
