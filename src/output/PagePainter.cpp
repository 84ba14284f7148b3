// SPDX-License-Identifier: MIT
#include "output/PagePainter.h"

#include "model/Cartella.h"

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
} // namespace

PagePainter::PagePainter(QPainter *painter, const DocumentLayout &document)
    : m_painter(painter)
    , m_document(document)
{
}

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
    for (int r = 0; r < block.nRighe; ++r) {
        const Riga &row = block.righe[static_cast<size_t>(r)];
        const RowLayout rowPlace = rowLayout(layout, r, row.nCelle);
        paintRow(row, rowPlace, block, pageColor);
        if (r > 0) {
            m_painter->setPen(innerPen(block));
            m_painter->drawLine(topEdge(layout, rowPlace));
        }
    }
    m_painter->setPen(outerPen(block));
    m_painter->drawRect(layout.rect());
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
        m_painter->drawText(rect, Qt::AlignCenter, QString::number(cell.numero));
        break;
    case CELL_VUOTA:
        break;
    default:
        qFatal("PagePainter::paintCell - CELL_VALUE type unknown ERROR!");
    }
}
