// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

#include <memory>

// The desktop's style, with what must be seen on every background: the focus, around a button or an item, and around a
// list, a text or another framed area, which most styles leave as it is; and boxes to be ticked, which are lost on
// black.
class ReadableStyle final : public QProxyStyle
{
public:
    static std::unique_ptr<QStyle> make();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
};
