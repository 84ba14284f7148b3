// SPDX-License-Identifier: MIT
#include "widgets/BarraMessaggi.h"

#include "model/ReadableOn.h"

#include <QPainter>

void BarraMessaggi::paintEvent(QPaintEvent *event)
{
    if (!currentMessage().isEmpty()) {
        QPainter(this).fillRect(rect(), readableOn(palette().color(foregroundRole())));
    }
    QStatusBar::paintEvent(event);
}
