// SPDX-License-Identifier: MIT
#include "output/PagePainter.h"

#include "model/Cartella.h"
#include "output/BlockLayers.h"
#include "output/PageLayers.h"

#include <QPainter>

PagePainter::PagePainter(QPainter *painter, const DocumentLayout &document)
    : m_painter(painter)
    , m_document(document)
    , m_shapes(painter)
{
}

void PagePainter::paintPage(const Pagina &page) const
{
    m_painter->fillRect(m_document.sheet, page.sfondo);
    const PageLayout layout = pageLayout(m_document, page.nBlocchi, page.spazioBlocchi);
    PageLayers layers; // of the blocks not painted yet
    const Blocco *above = nullptr;
    int index = 0;
    for (const Blocco &block : page) {
        const BlockLayout place = blockLayout(layout, index++, block.nRighe);
        if (above != nullptr) {
            separate(layers, neighboursAt(layout.spacing, *above, block));
        }
        if (mayBeLayered(block, place, m_shapes)) {
            addBlock(layers, block, place, page.sfondo, m_shapes);
        } else {
            layers.paint(*m_painter);
            paintBlock(block, place, page.sfondo);
        }
        above = &block;
    }
    layers.paint(*m_painter);
}

// The next block may have to lie over what has been added so far.
void PagePainter::separate(PageLayers &layers, Neighbours neighbours) const
{
    switch (neighbours) {
    case Neighbours::Apart:
        break;
    case Neighbours::LinesMeet:
        layers.coverLines();
        break;
    case Neighbours::LinesReachCells:
        layers.paint(*m_painter);
        break;
    }
}

// Cell by cell.
void PagePainter::paintBlock(const Blocco &block, const BlockLayout &layout, const QColor &pageColor) const
{
    int index = 0;
    for (const Riga &row : block) {
        const RowLayout place = rowLayout(layout, index, row.nCelle);
        paintRow(row, place, block, pageColor);
        if (index++ > 0) {
            m_painter->setPen(innerPen(block));
            m_painter->drawLine(layout.topEdge(place));
        }
    }
    m_painter->setPen(outerPen(block));
    m_painter->drawRect(layout.rect());
}

void PagePainter::paintRow(const Riga &row, const RowLayout &layout, const Blocco &block, const QColor &pageColor) const
{
    int column = 0;
    for (const Cella &cell : row) {
        const QRectF rect = layout.cellRect(column);
        paintCell(cell, rect, pageColor);
        if (column++ > 0) {
            m_painter->setPen(innerPen(block));
            m_painter->drawLine(rect.topLeft(), rect.bottomLeft());
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
