// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QRectF>

#include <vector>

class QPainter;

// The glyphs of one number in one font, as the painter's drawText() would set them. Device pixels, counted
// from the upper left corner of the text.
struct NumberShape
{
    QGlyphRun glyphs;
    QRectF ink;  // what the glyphs cover
    QSizeF size; // what is centred

    // Upper left corner of the text centred in `rect`.
    [[nodiscard]] QPointF centredIn(const QRectF &rect) const;
};

// Shapes numbers once per font: shaping is most of the work of drawing a text. Fonts are told apart by their shared
// data, so copies of one font count as one. The shapes kept are bounded, however many numbers and fonts a set has.
class NumberShapes final
{
public:
    // The painter is not owned; shaping changes its font.
    explicit NumberShapes(QPainter *painter);

    // Without glyphs when the text is not one run of one plain font. Valid until the next call.
    const NumberShape &shapeOf(const QFont &font, int number);

private:
    struct OfFont
    {
        QFont font;
        QHash<int, NumberShape> shapes;
    };

    OfFont &ofFont(const QFont &font);

    QPainter *m_painter;
    std::vector<OfFont> m_fonts; // the one used last is the first
};
