// SPDX-License-Identifier: MIT
#include "serata/NumeriInteri.h"

#include <QPainter>
#include <QStyle>

namespace {
// The beginning of `numbers` that is no wider than `width` (pixels).
QString thatFit(QString numbers, const QFontMetrics &metrics, int width)
{
    while (metrics.horizontalAdvance(numbers) > width) {
        numbers = numbers.left(qMax(0, numbers.lastIndexOf(QLatin1Char(' ')))).trimmed();
    }
    return numbers;
}
} // namespace

void NumeriInteri::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(),
                          thatFit(text(), fontMetrics(), width()), foregroundRole());
}
