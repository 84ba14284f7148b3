// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

#include <QString>
#include <QVector>

// Palettes of desktops on which every window must be readable.
namespace Palettes {
struct Named
{
    QString name;
    QPalette palette;
};

// Light, dark and high-contrast.
QVector<Named> all();

// How far two colours can be told apart, from 1 to 21.
double contrast(const QColor &one, const QColor &other);
} // namespace Palettes
