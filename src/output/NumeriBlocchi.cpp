// SPDX-License-Identifier: MIT
#include "output/NumeriBlocchi.h"

#include "model/Cartella.h"
#include "model/Positions.h"
#include "model/ReadableOn.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {
constexpr int points = 6;
} // namespace

NumeriBlocchi::NumeriBlocchi(QPainter *painter, const DocumentLayout &document)
    : m_painter(painter)
    , m_document(document)
    , m_font(defaultCellFont().family(), points)
{
}

void NumeriBlocchi::paint(const Pagina &page, int pageNumber)
{
    const PageLayout layout = pageLayout(m_document, page.nBlocchi, page.spazioBlocchi);
    m_painter->save();
    m_painter->setFont(m_font);
    m_painter->setPen(readableOn(page.sfondo));
    int index = 0;
    for (const Blocco &block : page) {
        const BlockLayout place = blockLayout(layout, index++, block.nRighe);
        if (!paintBeside(marginBeside(place, block.spessoreLineaEsterna), blockNumber(pageNumber, index))) {
            ++m_leftOut;
        }
    }
    m_painter->restore();
}

// False when there is no room.
bool NumeriBlocchi::paintBeside(const QRectF &margin, const QString &number)
{
    const QFontMetricsF metrics(m_font, m_painter->device());
    const qreal height = metrics.capHeight(); // that of the digits
    const qreal width = metrics.horizontalAdvance(number);
    if (height > margin.width() || width > margin.height()) {
        return false;
    }
    m_painter->save();
    m_painter->translate(margin.center());
    m_painter->rotate(-90); // upwards
    m_painter->drawText(QPointF(-width / 2, height / 2), number);
    m_painter->restore();
    return true;
}

QRectF marginBeside(const BlockLayout &block, int outlineWidth)
{
    const float outside = static_cast<float>(outlineWidth) / 2.0F;
    return {0.0, block.top, block.left - outside, block.height};
}
