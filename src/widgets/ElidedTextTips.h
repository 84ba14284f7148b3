// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

// Draws items as usual. The tool tip of one that is too small for its text tells the text.
class ElidedTextTips final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};
