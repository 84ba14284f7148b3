// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

// Paints the cells of the board and of a card: their numbers as large as there is room, those called in the colours of
// the palette exchanged.
class CaselleDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // Whether the number of a cell was called.
    static constexpr int CalledRole = Qt::UserRole;

    using QStyledItemDelegate::QStyledItemDelegate;

    // What a screen reader says of a number.
    static QString spoken(quint32 numero, bool called);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
