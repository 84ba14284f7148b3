// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

// The picture of a file, turned upright as its camera recorded. A null image when it cannot be read.
QImage loadCellImage(const QString &path);
