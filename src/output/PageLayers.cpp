// SPDX-License-Identifier: MIT
#include "output/PageLayers.h"

#include "output/TextShapes.h"

#include <QGlyphRun>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
bool isRightOf(const QRectF &cell, const QRectF &area)
{
    constexpr qreal rounding = 1e-3; // of the common edge
    return cell.top() == area.top() && cell.height() == area.height() &&
           std::abs(cell.left() - area.right()) < rounding;
}
} // namespace

template<typename Style, typename Item>
QVector<Item> &PageLayers::itemsOf(Layer<Style, Item> &layer, const Style &style)
{
    const auto known = std::find_if(layer.begin(), layer.end(), [&](const auto &part) { return part.style == style; });
    return known != layer.end() ? known->items : layer.emplace_back(Part<Style, Item>{style, {}}).items;
}

void PageLayers::addBackground(const QRectF &cell, const QColor &color)
{
    QVector<QRectF> &areas = itemsOf(m_backgrounds, color);
    if (!areas.isEmpty() && isRightOf(cell, areas.constLast())) {
        areas.last().setRight(cell.right());
    } else {
        areas.append(cell);
    }
}

void PageLayers::addPicture(const QRectF &cell, const QImage &picture)
{
    m_pictures.push_back({cell, picture});
}

void PageLayers::addText(const TextShape &shape, const QPointF &corner, const QColor &color)
{
    QVector<Glyph> &glyphs = itemsOf(m_texts, {shape.font, color});
    for (int i = 0; i < shape.glyphs.size(); ++i) {
        glyphs.append({shape.glyphs[i], corner + shape.positions[i]});
    }
}

void PageLayers::addSeparator(const QLineF &line, const QPen &pen)
{
    itemsOf(uppermostLines().separators, pen).append(line);
}

void PageLayers::addOutline(const QRectF &block, const QPen &pen)
{
    itemsOf(uppermostLines().outlines, pen).append(block);
}

void PageLayers::coverLines()
{
    m_lines.emplace_back();
}

PageLayers::Lines &PageLayers::uppermostLines()
{
    return m_lines.empty() ? m_lines.emplace_back() : m_lines.back();
}

void PageLayers::paint(QPainter &painter)
{
    paintBackgrounds(painter);
    for (const Picture &picture : m_pictures) {
        painter.drawImage(picture.rect, picture.image, QRectF(picture.image.rect()));
    }
    paintTexts(painter);
    paintLines(painter);
    *this = PageLayers();
}

void PageLayers::paintBackgrounds(QPainter &painter) const
{
    if (m_backgrounds.empty()) {
        return;
    }
    const QBrush before = painter.brush();
    painter.setPen(Qt::NoPen);
    for (const auto &backgrounds : m_backgrounds) {
        painter.setBrush(backgrounds.style);
        for (const QRectF &area : backgrounds.items) {
            painter.drawRect(area); // on paper an area drawn alone has sharp edges, several together have not
        }
    }
    painter.setBrush(before);
}

void PageLayers::paintTexts(QPainter &painter) const
{
    for (const auto &text : m_texts) {
        QVector<quint32> indexes;
        QVector<QPointF> positions;
        for (const Glyph &glyph : text.items) {
            indexes.append(glyph.index);
            positions.append(glyph.position);
        }
        QGlyphRun run;
        run.setRawFont(text.style.font);
        run.setGlyphIndexes(indexes);
        run.setPositions(positions);
        painter.setPen(text.style.color);
        painter.drawGlyphRun(QPointF(), run);
    }
}

void PageLayers::paintLines(QPainter &painter) const
{
    for (const Lines &lines : m_lines) {
        for (const auto &separators : lines.separators) {
            painter.setPen(separators.style);
            painter.drawLines(separators.items);
        }
        for (const auto &outlines : lines.outlines) {
            painter.setPen(outlines.style);
            painter.drawRects(outlines.items);
        }
    }
}
