// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

// Which texts of a shown window have too little room. One line for each widget.
QStringList cutTexts(const QWidget &window);

// Which widgets of a shown window lie over others beside them. One line for each pair.
QStringList overlaps(const QWidget &window);

// What a label, button or group says; empty for other widgets.
QString textOf(const QWidget *widget);
