// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

// The picture of a file, turned upright as its camera recorded. One of more than 10000 pixels a side is read at that
// size. A null image when it cannot be read; throws std::bad_alloc when it finds no memory or, of a larger one, is not
// likely to find it.
QImage loadCellImage(const QString &path);
