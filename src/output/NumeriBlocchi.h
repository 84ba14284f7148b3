// SPDX-License-Identifier: MIT
#pragma once

#include "output/PdfGeometry.h"

#include <QFont>

class QPainter;
struct Pagina;

// Paints the number of each block (page.block, as "12.3") small into the left margin of the page, beside the block: it
// is read when the sheet is turned clockwise. A number for which the margin has no room is left out. The painter is not
// owned and must be active.
class NumeriBlocchi final
{
public:
    NumeriBlocchi(QPainter *painter, const DocumentLayout &document);

    // After the page itself. `pageNumber` counts from 1.
    void paint(const Pagina &page, int pageNumber);
    // How many numbers were left out until now.
    int leftOut() const { return m_leftOut; }

private:
    bool paintBeside(const QRectF &margin, const QString &number);

    QPainter *m_painter;
    DocumentLayout m_document;
    QFont m_font;
    int m_leftOut = 0;
};

// The part of the left margin beside a block, free of its outline of this width (dots).
[[nodiscard]] QRectF marginBeside(const BlockLayout &block, int outlineWidth);
