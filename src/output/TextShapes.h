// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QHash>
#include <QRawFont>
#include <QRectF>
#include <QVector>

#include <vector>

class QPainter;

// The glyphs of one text in one font, as the painter's drawText() would set them. Device pixels, counted from the upper
// left corner of the text.
struct TextShape
{
    QRawFont font;
    QVector<quint32> glyphs;
    QVector<QPointF> positions; // of the glyphs
    QRectF ink;                 // what the glyphs cover
    QSizeF size;                // what is centred

    // Upper left corner of the text centred in `rect`.
    [[nodiscard]] QPointF centredIn(const QRectF &rect) const;
};

// Shapes texts once per font: shaping is most of the work of drawing a text. Fonts are told apart by their shared data,
// so copies of one font count as one. The shapes kept are bounded, however many texts and fonts a set has.
class TextShapes final
{
public:
    // The painter is not owned; shaping changes its font.
    explicit TextShapes(QPainter *painter);

    // Without glyphs when the text is not one line of one plain font. Valid until the next call.
    const TextShape &ofNumber(const QFont &font, int number);
    const TextShape &ofText(const QFont &font, const QString &text);

private:
    struct OfFont
    {
        QFont font;
        QHash<int, TextShape> numbers;
        QHash<QString, TextShape> texts;
    };

    OfFont &ofFont(const QFont &font);
    TextShape shape(const QFont &font, const QString &text) const;

    QPainter *m_painter;
    std::vector<OfFont> m_fonts; // the one used last is the first
};
