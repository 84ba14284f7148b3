// SPDX-License-Identifier: MIT
#include "output/PagePainter.h"

#include "model/Cartella.h"
#include "output/BlockNumbers.h"
#include "output/NumberShapes.h"

#include <QPainter>

namespace {
QPen linePen(const QColor &color, int width)
{
    QPen pen;
    pen.setColor(color);
    pen.setWidth(width);
    return pen;
}

QPen innerPen(const Blocco &block)
{
    return linePen(block.coloreLineaInterna, block.spessoreLineaInterna);
}

QPen outerPen(const Blocco &block)
{
    return linePen(block.coloreLineaEsterna, block.spessoreLineaEsterna);
}

QLineF leftEdge(const QRectF &cell)
{
    return {cell.topLeft(), cell.bottomLeft()};
}

QLineF topEdge(const BlockLayout &block, const RowLayout &row)
{
    return {QPointF(block.left, row.top), QPointF(block.left + block.width, row.top)};
}

QVector<QLineF> separators(const Blocco &block, const BlockLayout &layout)
{
    QVector<QLineF> lines;
    for (int r = 0; r < block.nRighe; ++r) {
        const int cells = block.righe[static_cast<size_t>(r)].nCelle;
        const RowLayout row = rowLayout(layout, r, cells);
        for (int c = 1; c < cells; ++c) {
            lines.append(leftEdge(row.cellRect(c)));
        }
        if (r > 0) {
            lines.append(topEdge(layout, row));
        }
    }
    return lines;
}
} // namespace

PagePainter::PagePainter(QPainter *painter, const DocumentLayout &document)
    : m_painter(painter)
    , m_document(document)
    , m_shapes(std::make_unique<NumberShapes>(painter))
{
}

PagePainter::~PagePainter() = default;

void PagePainter::paintPage(const Pagina &page) const
{
    m_painter->fillRect(m_document.sheet, page.sfondo);
    const PageLayout layout = pageLayout(m_document, page.nBlocchi, page.spazioBlocchi);
    for (int b = 0; b < page.nBlocchi; ++b) {
        const Blocco &block = page.blocchi[static_cast<size_t>(b)];
        paintBlock(block, blockLayout(layout, b, block.nRighe), page.sfondo);
    }
}

void PagePainter::paintBlock(const Blocco &block, const BlockLayout &layout, const QColor &pageColor) const
{
    if (const auto numbers = numbersApartFromLines(block, layout, pageColor, *m_shapes)) {
        paintTogether(*numbers, block, layout);
    } else {
        paintCellByCell(block, layout, pageColor);
    }
    m_painter->setPen(outerPen(block));
    m_painter->drawRect(layout.rect());
}

void PagePainter::paintTogether(const QVector<PlacedNumber> &numbers, const Blocco &block,
                                const BlockLayout &layout) const
{
    for (const PlacedNumber &number : numbers) {
        m_painter->setPen(number.color);
        m_painter->drawGlyphRun(number.corner, number.glyphs);
    }
    const QVector<QLineF> lines = separators(block, layout);
    if (!lines.isEmpty()) {
        m_painter->setPen(innerPen(block));
        m_painter->drawLines(lines);
    }
}

void PagePainter::paintCellByCell(const Blocco &block, const BlockLayout &layout, const QColor &pageColor) const
{
    for (int r = 0; r < block.nRighe; ++r) {
        const Riga &row = block.righe[static_cast<size_t>(r)];
        const RowLayout rowPlace = rowLayout(layout, r, row.nCelle);
        paintRow(row, rowPlace, block, pageColor);
        if (r > 0) {
            m_painter->setPen(innerPen(block));
            m_painter->drawLine(topEdge(layout, rowPlace));
        }
    }
}

void PagePainter::paintRow(const Riga &row, const RowLayout &layout, const Blocco &block, const QColor &pageColor) const
{
    for (int c = 0; c < row.nCelle; ++c) {
        const QRectF rect = layout.cellRect(c);
        paintCell(row.celle[static_cast<size_t>(c)], rect, pageColor);
        if (c > 0) {
            m_painter->setPen(innerPen(block));
            m_painter->drawLine(leftEdge(rect));
        }
    }
}

void PagePainter::paintCell(const Cella &cell, const QRectF &rect, const QColor &pageColor) const
{
    if (cell.tipo == CELL_IMMAGINE) {
        m_painter->drawImage(rect, cell.immagine, QRectF(cell.immagine.rect()));
        return;
    }
    if (cell.coloreSfondo != pageColor) {
        m_painter->fillRect(rect, cell.coloreSfondo);
    }
    m_painter->setPen(cell.coloreTesto);
    m_painter->setFont(cell.font);
    switch (cell.tipo) {
    case CELL_TESTO:
        m_painter->drawText(rect, Qt::AlignCenter, cell.testo);
        break;
    case CELL_NUMERO:
        m_painter->drawText(rect, Qt::AlignCenter, QString::number(static_cast<int>(cell.numero)));
        break;
    case CELL_VUOTA:
        break;
    default:
        qFatal("PagePainter::paintCell - CELL_VALUE type unknown ERROR!");
    }
}
