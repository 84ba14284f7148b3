// SPDX-License-Identifier: MIT
#include "output/TextShapes.h"

#include <QGlyphRun>
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

// Lines beside the glyphs are drawn apart from them.
bool hasLines(const QFont &font)
{
    return font.underline() || font.overline() || font.strikeOut();
}

// What glyphs may cover beyond what they say: upright ones that are slanted or thickened when they are drawn.
qreal beyondInk(const QFont &font, qreal height)
{
    constexpr qreal slant = 1.0 / 3;
    const bool upright = font.style() == QFont::StyleNormal && font.weight() <= QFont::Normal;
    return upright ? 0.0 : slant * height;
}

// Characters that stand beside each other and are not turned, joined, broken or left out.
bool isPlain(const QString &text)
{
    const auto standsAlone = [](QChar c) { return c.isPrint() && c.unicode() < 0x100 && c.unicode() != QChar::Nbsp; };
    return std::all_of(text.begin(), text.end(), standsAlone) && text == text.trimmed();
}

// Of the painter's font.
TextShape shaped(const QString &text, const QPainter &painter)
{
    TextShape shape;
    if (hasLines(painter.font()) || !isPlain(text)) {
        return shape;
    }
    QTextLayout layout(text, painter.font(), painter.device());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(unboundedWidth);
    layout.endLayout();

    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (runs.size() != 1) {
        return shape;
    }
    shape.font = runs.first().rawFont();
    shape.glyphs = runs.first().glyphIndexes();
    shape.positions = runs.first().positions();
    shape.size = QSizeF(line.horizontalAdvance(), line.ascent() + line.descent());
    const qreal margin = beyondInk(painter.font(), shape.size.height());
    shape.ink = runs.first().boundingRect().adjusted(-margin, -margin, margin, margin);
    return shape;
}

// The shape kept for `key`, else a new one.
template<typename Key, typename Shaped>
const TextShape &shapeFor(QHash<Key, TextShape> &shapes, const Key &key, Shaped newShape)
{
    const auto known = shapes.constFind(key);
    if (known != shapes.constEnd()) {
        return *known;
    }
    if (shapes.size() >= mostShapesPerFont) {
        shapes.clear();
    }
    return *shapes.insert(key, newShape());
}
} // namespace

QPointF TextShape::centredIn(const QRectF &rect) const
{
    const qreal x = rect.x() + (rect.width() - size.width()) / 2;
    const qreal y = rect.y() + (rect.height() - size.height()) / 2;
    return {towardsZero(x), towardsZero(y)};
}

TextShapes::TextShapes(QPainter *painter)
    : m_painter(painter)
{
}

const TextShape &TextShapes::ofNumber(const QFont &font, int number)
{
    return shapeFor(ofFont(font).numbers, number, [&]() { return shape(font, QString::number(number)); });
}

const TextShape &TextShapes::ofText(const QFont &font, const QString &text)
{
    return shapeFor(ofFont(font).texts, text, [&]() { return shape(font, text); });
}

TextShape TextShapes::shape(const QFont &font, const QString &text) const
{
    m_painter->setFont(font); // completes the font with what it leaves open
    return shaped(text, *m_painter);
}

TextShapes::OfFont &TextShapes::ofFont(const QFont &font)
{
    const auto known =
        std::find_if(m_fonts.begin(), m_fonts.end(), [&](const OfFont &one) { return one.font.isCopyOf(font); });
    if (known == m_fonts.end()) {
        if (m_fonts.size() >= mostFonts) {
            m_fonts.pop_back();
        }
        m_fonts.insert(m_fonts.begin(), {font, {}, {}});
    } else {
        std::rotate(m_fonts.begin(), known, known + 1);
    }
    return m_fonts.front();
}
