// SPDX-License-Identifier: MIT
#include "output/BlockLayers.h"

#include "model/Cartella.h"
#include "output/PageLayers.h"
#include "output/TextShapes.h"

#include <QPen>

#include <algorithm>

namespace {
// Device pixels that stay free between what must not be seen to overlap, for the soft edges of both.
constexpr qreal clearance = 1.0;

QPen linePen(const QColor &color, int width)
{
    QPen pen;
    pen.setColor(color);
    pen.setWidth(width);
    return pen;
}

bool hasText(const Cella &cell)
{
    return cell.tipo == CELL_NUMERO || (cell.tipo == CELL_TESTO && !cell.testo.isEmpty());
}

// Of a cell with text.
const TextShape &shapeOf(const Cella &cell, TextShapes &shapes)
{
    return cell.tipo == CELL_NUMERO ? shapes.ofNumber(cell.font, static_cast<int>(cell.numero))
                                    : shapes.ofText(cell.font, cell.testo);
}

bool staysInside(const TextShape &text, const QRectF &cell)
{
    const QRectF inside = cell.adjusted(clearance, clearance, -clearance, -clearance);
    return !text.glyphs.isEmpty() && inside.isValid() && inside.contains(text.ink.translated(text.centredIn(cell)));
}

bool staysInside(const Cella &cell, const QRectF &rect, TextShapes &shapes)
{
    switch (cell.tipo) {
    case CELL_NUMERO:
    case CELL_TESTO:
        return !hasText(cell) || staysInside(shapeOf(cell, shapes), rect);
    case CELL_IMMAGINE:
    case CELL_VUOTA:
        return true;
    }
    return false;
}

bool staysInside(const Riga &row, const RowLayout &layout, TextShapes &shapes)
{
    int column = 0;
    return std::all_of(begin(row), end(row),
                       [&](const Cella &cell) { return staysInside(cell, layout.cellRect(column++), shapes); });
}

void addCell(PageLayers &layers, const Cella &cell, const QRectF &rect, const QColor &pageColor, TextShapes &shapes)
{
    if (cell.tipo == CELL_IMMAGINE) {
        layers.addPicture(rect, cell.immagine);
        return;
    }
    if (cell.coloreSfondo != pageColor) {
        layers.addBackground(rect, cell.coloreSfondo);
    }
    if (hasText(cell)) {
        const TextShape &text = shapeOf(cell, shapes);
        layers.addText(text, text.centredIn(rect), cell.coloreTesto);
    }
}

void addSeparators(PageLayers &layers, const Blocco &block, const BlockLayout &layout)
{
    const QPen pen = innerPen(block);
    const auto rowAt = [&](int row) { return rowLayout(layout, row, begin(block)[row].nCelle); };
    for (int row = 1; row < block.nRighe; ++row) {
        layers.addSeparator(layout.topEdge(rowAt(row)), pen);
    }
    // Those between cells run through all neighbouring rows with as many cells.
    for (int first = 0, next = 0; first < block.nRighe; first = next) {
        const int cells = begin(block)[first].nCelle;
        while (next < block.nRighe && begin(block)[next].nCelle == cells) {
            ++next;
        }
        const RowLayout upper = rowAt(first);
        const RowLayout lower = rowAt(next - 1);
        for (int cell = 1; cell < cells; ++cell) {
            layers.addSeparator({upper.cellRect(cell).topLeft(), lower.cellRect(cell).bottomLeft()}, pen);
        }
    }
}
} // namespace

QPen innerPen(const Blocco &block)
{
    return linePen(block.coloreLineaInterna, block.spessoreLineaInterna);
}

QPen outerPen(const Blocco &block)
{
    return linePen(block.coloreLineaEsterna, block.spessoreLineaEsterna);
}

bool mayBeLayered(const Blocco &block, const BlockLayout &layout, TextShapes &shapes)
{
    constexpr int opaque = 255;
    const auto lineWidth = static_cast<float>(block.spessoreLineaInterna);
    if (block.coloreLineaInterna.alpha() != opaque || lineWidth < 0) {
        return false;
    }
    int index = 0;
    return std::all_of(begin(block), end(block), [&](const Riga &row) {
        const RowLayout place = rowLayout(layout, index++, row.nCelle);
        return lineWidth <= place.cellWidth && lineWidth <= place.height && staysInside(row, place, shapes);
    });
}

Neighbours neighboursAt(float spacing, const Blocco &upper, const Blocco &lower)
{
    const auto overhang = [](const Blocco &block) {
        return std::max(block.spessoreLineaEsterna, block.spessoreLineaInterna) / 2.0;
    };
    const qreal room = static_cast<qreal>(spacing) - clearance;
    if (overhang(upper) + overhang(lower) <= room) {
        return Neighbours::Apart;
    }
    return std::max(overhang(upper), overhang(lower)) <= room ? Neighbours::LinesMeet : Neighbours::LinesReachCells;
}

void addBlock(PageLayers &layers, const Blocco &block, const BlockLayout &layout, const QColor &pageColor,
              TextShapes &shapes)
{
    int rowIndex = 0;
    for (const Riga &row : block) {
        const RowLayout place = rowLayout(layout, rowIndex++, row.nCelle);
        int column = 0;
        for (const Cella &cell : row) {
            addCell(layers, cell, place.cellRect(column++), pageColor, shapes);
        }
    }
    addSeparators(layers, block, layout);
    layers.addOutline(layout.rect(), outerPen(block));
}
