// SPDX-License-Identifier: MIT
#include "output/BlockNumbers.h"

#include "model/Cartella.h"
#include "output/NumberShapes.h"

namespace {
// Device pixels that stay free between a glyph and a line, for the soft edges of both.
constexpr qreal clearance = 1.0;

// Nothing when a glyph would leave `inside`, or when the number cannot be drawn from its shape.
std::optional<PlacedNumber> placed(const Cella &cell, const QRectF &rect, const QRectF &inside, NumberShapes &shapes)
{
    const NumberShape &shape = shapes.shapeOf(cell.font, static_cast<int>(cell.numero));
    const QPointF corner = shape.centredIn(rect);
    if (shape.glyphs.isEmpty() || !inside.isValid() || !inside.contains(shape.ink.translated(corner))) {
        return std::nullopt;
    }
    return PlacedNumber{corner, shape.glyphs, cell.coloreTesto};
}
} // namespace

std::optional<QVector<PlacedNumber>> numbersApartFromLines(const Blocco &block, const BlockLayout &layout,
                                                           const QColor &pageColor, NumberShapes &shapes)
{
    constexpr int opaque = 255;
    if (block.coloreLineaInterna.alpha() != opaque || block.spessoreLineaInterna < 0) {
        return std::nullopt;
    }
    const qreal margin = block.spessoreLineaInterna / 2.0 + clearance;
    QVector<PlacedNumber> numbers;
    for (int r = 0; r < block.nRighe; ++r) {
        const Riga &row = block.righe[static_cast<size_t>(r)];
        const RowLayout rowPlace = rowLayout(layout, r, row.nCelle);
        for (int c = 0; c < row.nCelle; ++c) {
            const Cella &cell = row.celle[static_cast<size_t>(c)];
            const bool onlyNumbers = cell.tipo == CELL_NUMERO || cell.tipo == CELL_VUOTA;
            if (!onlyNumbers || cell.coloreSfondo != pageColor) {
                return std::nullopt;
            }
            if (cell.tipo == CELL_VUOTA) {
                continue;
            }
            const QRectF rect = rowPlace.cellRect(c);
            const auto number = placed(cell, rect, rect.adjusted(margin, margin, -margin, -margin), shapes);
            if (!number) {
                return std::nullopt;
            }
            numbers.append(*number);
        }
    }
    return numbers;
}
