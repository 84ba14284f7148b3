// SPDX-License-Identifier: MIT
#include "widgets/WindowPlace.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {
// So that [start, start + length) does not reach beyond [first, first + room).
int moved(int start, int length, int first, int room)
{
    return std::max(first, std::min(start, first + room - length));
}
} // namespace

void placeOver(QWidget *window, const QWidget *owner)
{
    const QRect screen = (owner != nullptr ? owner : window)->screen()->availableGeometry();
    const int title = window->style()->pixelMetric(QStyle::PM_TitleBarHeight); // the frame is not known yet
    window->resize(window->size().boundedTo(screen.size() - QSize(0, title)));
    QRect place(QPoint(), window->size() + QSize(0, title));
    place.moveCenter((owner != nullptr ? owner->frameGeometry() : screen).center());
    window->move(moved(place.x(), place.width(), screen.x(), screen.width()),
                 moved(place.y(), place.height(), screen.y(), screen.height()));
}
