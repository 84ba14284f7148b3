// SPDX-License-Identifier: MIT
#include "output/NumberShapes.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace {
constexpr size_t mostFonts = 8;
constexpr int mostShapesPerFont = 1000;
// Wider than any text: nothing is wrapped.
constexpr qreal unboundedWidth = 0x01000000;
// Text positions are whole multiples of 1/64 pixel.
constexpr int positionsPerPixel = 64;

qreal towardsZero(qreal position)
{
    return static_cast<qreal>(static_cast<int>(position * positionsPerPixel)) / positionsPerPixel;
}

// Lines beside the glyphs are drawn apart from them; slanted or thickened upright glyphs cover more than they say.
bool isPlain(const QFont &font)
{
    return font.style() == QFont::StyleNormal && font.weight() <= QFont::Normal && !font.underline() &&
           !font.overline() && !font.strikeOut();
}

// Of the painter's font.
NumberShape shaped(int number, const QPainter &painter)
{
    NumberShape shape;
    if (!isPlain(painter.font())) {
        return shape;
    }
    QTextLayout layout(QString::number(number), painter.font(), painter.device());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(unboundedWidth);
    layout.endLayout();

    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (runs.size() != 1) {
        return shape;
    }
    shape.glyphs = runs.first();
    shape.ink = shape.glyphs.boundingRect();
    shape.size = QSizeF(line.naturalTextWidth(), line.ascent() + line.descent());
    return shape;
}
} // namespace

QPointF NumberShape::centredIn(const QRectF &rect) const
{
    const qreal x = rect.x() + (rect.width() - size.width()) / 2;
    const qreal y = rect.y() + (rect.height() - size.height()) / 2;
    return {towardsZero(x), towardsZero(y)};
}

NumberShapes::NumberShapes(QPainter *painter)
    : m_painter(painter)
{
}

const NumberShape &NumberShapes::shapeOf(const QFont &font, int number)
{
    QHash<int, NumberShape> &shapes = ofFont(font).shapes;
    const auto known = shapes.constFind(number);
    if (known != shapes.constEnd()) {
        return *known;
    }
    if (shapes.size() >= mostShapesPerFont) {
        shapes.clear();
    }
    m_painter->setFont(font); // completes the font with what it leaves open
    return *shapes.insert(number, shaped(number, *m_painter));
}

NumberShapes::OfFont &NumberShapes::ofFont(const QFont &font)
{
    const auto known =
        std::find_if(m_fonts.begin(), m_fonts.end(), [&](const OfFont &one) { return one.font.isCopyOf(font); });
    if (known == m_fonts.end()) {
        if (m_fonts.size() >= mostFonts) {
            m_fonts.pop_back();
        }
        m_fonts.insert(m_fonts.begin(), {font, {}});
    } else {
        std::rotate(m_fonts.begin(), known, known + 1);
    }
    return m_fonts.front();
}
