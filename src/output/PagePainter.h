// SPDX-License-Identifier: MIT
#pragma once

#include "output/PdfGeometry.h"

#include <QPen>

class QPainter;
struct Blocco;
struct Cella;
struct Pagina;
struct Riga;

// Paints the pages of a card set, whatever the painter paints on. The painter is not owned and must be active.
class PagePainter final
{
public:
    PagePainter(QPainter *painter, const DocumentLayout &document);

    void paintPage(const Pagina &page) const;

private:
    void paintBlock(const Blocco &block, const BlockLayout &layout, const QColor &pageColor) const;
    void paintRow(const Riga &row, const RowLayout &layout, const Blocco &block, const QColor &pageColor) const;
    void paintCell(const Cella &cell, const QRectF &rect, const QColor &pageColor) const;

    QPainter *m_painter;
    DocumentLayout m_document;
};
