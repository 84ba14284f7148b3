// SPDX-License-Identifier: MIT
#include "serata/CaselleDelegate.h"

#include <QPainter>

#include <algorithm>

namespace {
constexpr double heightShare = 0.6; // of the cell, for the font's size
constexpr double widthShare = 1.4;  // of the cell, for all characters, each a little wider than half the font's size
constexpr int fewestCharacters = 2;
constexpr int smallestFont = 6; // pixels
constexpr int focusWidth = 3;   // pixels

QFont fontFor(const QStyleOptionViewItem &option, int characters, bool called)
{
    const double height = heightShare * option.rect.height();
    const double width = widthShare * option.rect.width() / std::max(characters, fewestCharacters);
    QFont font = option.font;
    font.setPixelSize(std::max(static_cast<int>(std::min(height, width)), smallestFont));
    font.setBold(called);
    return font;
}
} // namespace

QString CaselleDelegate::spoken(quint32 numero, bool called)
{
    const QString text = called ? tr("%1, chiamato") : tr("%1, non chiamato");
    return text.arg(numero);
}

void CaselleDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool called = index.data(CalledRole).toBool();
    const QColor ink = option.palette.color(QPalette::Active, called ? QPalette::Base : QPalette::Text);
    const QColor ground = option.palette.color(QPalette::Active, called ? QPalette::Text : QPalette::Base);
    const QString text = index.data().toString();
    painter->save();
    painter->fillRect(option.rect, ground);
    painter->setPen(ink);
    painter->setFont(fontFor(option, text.size(), called));
    painter->drawText(option.rect, Qt::AlignCenter,
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, option.rect.width()));
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter->setPen(QPen(option.palette.color(QPalette::Active, QPalette::Highlight), focusWidth));
        painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    }
    painter->restore();
}
