// SPDX-License-Identifier: MIT
#include "widgets/ReadableStyle.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

namespace {
// Of two lines: one of them is seen on any background.
void drawFrame(QPainter *painter, const QRect &rect)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(Qt::black);
    painter->drawRect(rect.adjusted(0, 0, -1, -1));
    painter->setPen(Qt::white);
    painter->drawRect(rect.adjusted(1, 1, -2, -2));
    painter->restore();
}

void drawOutline(QStyle::PrimitiveElement element, const QStyleOption &option, QPainter *painter)
{
    constexpr int halfSeen = 130; // of 255
    QColor colour = option.palette.color(QPalette::WindowText);
    colour.setAlpha(halfSeen);
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(colour);
    if (element == QStyle::PE_IndicatorRadioButton) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawEllipse(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    } else {
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

// Who works with the mouse sees where he clicked, but not where the keyboard is in a list.
bool isAskedFor(const QStyleOption &option, const QWidget *widget)
{
    return option.state.testFlag(QStyle::State_KeyboardFocusChange) ||
           qobject_cast<const QAbstractItemView *>(widget) != nullptr;
}
} // namespace

std::unique_ptr<QStyle> ReadableStyle::make()
{
    return std::make_unique<ReadableStyle>();
}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const
{
    if (element == PE_FrameFocusRect) {
        if (isAskedFor(*option, widget)) {
            drawFrame(painter, option->rect);
        }
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) {
        drawOutline(element, *option, painter);
    }
    if (element == PE_Frame && option->state.testFlag(State_HasFocus)) {
        painter->save();
        painter->setPen(option->palette.color(QPalette::Highlight));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }
}

// The default button of a dialog has the outline of a focus all the time.
void ReadableStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const
{
    constexpr int inside = 3;
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && option->state.testFlag(State_HasFocus) && isAskedFor(*option, widget)) {
        drawFrame(painter, option->rect.adjusted(inside, inside, -inside, -inside));
    }
}
