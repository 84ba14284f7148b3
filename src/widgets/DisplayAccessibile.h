// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

// What a screen reader says of a number display: its tool tip, which tells what is counted, and the number.
class DisplayAccessibile final : public QAccessibleWidget
{
public:
    // Lets all number displays be read so. Repeating it is free.
    static void install();

    explicit DisplayAccessibile(QWidget *display);

    QString text(QAccessible::Text kind) const override;
};
