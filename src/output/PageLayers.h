// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QLineF>
#include <QPen>
#include <QRawFont>
#include <QRectF>
#include <QVector>

#include <vector>

class QPainter;
struct TextShape;

// What is to be painted, gathered in layers: backgrounds, then pictures, texts, lines, of which separators come before
// outlines. Within a layer everything of one style is painted in one go: most of the time of painting goes into changes
// of style.
class PageLayers final
{
public:
    // Cells are best added from left to right: neighbours of one color become one area.
    void addBackground(const QRectF &cell, const QColor &color);
    void addPicture(const QRectF &cell, const QImage &picture);
    void addText(const TextShape &shape, const QPointF &corner, const QColor &color);
    void addSeparator(const QLineF &line, const QPen &pen);
    void addOutline(const QRectF &block, const QPen &pen);
    // The lines added from now on lie over those added before.
    void coverLines();

    // Paints everything, and is empty then.
    void paint(QPainter &painter);

private:
    template<typename Style, typename Item>
    struct Part
    {
        Style style;
        QVector<Item> items;
    };
    template<typename Style, typename Item>
    using Layer = std::vector<Part<Style, Item>>;

    struct Picture
    {
        QRectF rect;
        QImage image;
    };
    struct TextStyle
    {
        QRawFont font;
        QColor color;

        bool operator==(const TextStyle &other) const { return font == other.font && color == other.color; }
    };
    struct Lines
    {
        Layer<QPen, QLineF> separators;
        Layer<QPen, QRectF> outlines;
    };
    struct Glyph
    {
        quint32 index;
        QPointF position;
    };

    // The items of a style, none yet if it is new.
    template<typename Style, typename Item>
    static QVector<Item> &itemsOf(Layer<Style, Item> &layer, const Style &style);

    void paintBackgrounds(QPainter &painter) const;
    void paintTexts(QPainter &painter) const;
    void paintLines(QPainter &painter) const;
    Lines &uppermostLines();

    Layer<QColor, QRectF> m_backgrounds;
    std::vector<Picture> m_pictures;
    Layer<TextStyle, Glyph> m_texts;
    std::vector<Lines> m_lines;
};
