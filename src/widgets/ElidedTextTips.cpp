// SPDX-License-Identifier: MIT
#include "widgets/ElidedTextTips.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

bool ElidedTextTips::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                               const QModelIndex &index)
{
    const bool hasTip = !index.data(Qt::ToolTipRole).toString().isEmpty();
    if (event->type() != QEvent::ToolTip || hasTip || sizeHint(option, index).width() <= option.rect.width()) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    // Rich text breaks its lines, however long it is.
    const QString text = Qt::convertFromPlainText(index.data(Qt::DisplayRole).toString(), Qt::WhiteSpaceNormal);
    QToolTip::showText(event->globalPos(), text, view, option.rect);
    return true;
}
