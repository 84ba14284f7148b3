// SPDX-License-Identifier: MIT
#pragma once

#include "output/PdfGeometry.h"
#include "output/TextShapes.h"

class PageLayers;
class QColor;
class QPainter;
struct Blocco;
struct Cella;
struct Pagina;
struct Riga;
enum class Neighbours;

// Paints the pages of a card set, whatever the painter paints on. The painter is not owned and must be active.
//
// The order of painting is: page background; cell by cell its background, its content and the separator at its left;
// after each row the separator above it; after all rows the outline of the block. Where that order cannot be seen,
// everything of one style is painted together instead, which takes a fraction of the time.
class PagePainter final
{
public:
    PagePainter(QPainter *painter, const DocumentLayout &document);

    void paintPage(const Pagina &page) const;

private:
    void separate(PageLayers &layers, Neighbours neighbours) const;
    void paintBlock(const Blocco &block, const BlockLayout &layout, const QColor &pageColor) const;
    void paintRow(const Riga &row, const RowLayout &layout, const Blocco &block, const QColor &pageColor) const;
    void paintCell(const Cella &cell, const QRectF &rect, const QColor &pageColor) const;

    QPainter *m_painter;
    DocumentLayout m_document;
    mutable TextShapes m_shapes; // kept from page to page
};
