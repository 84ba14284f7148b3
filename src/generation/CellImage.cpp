// SPDX-License-Identifier: MIT
#include "generation/CellImage.h"

#include <QImageReader>

QImage loadCellImage(const QString &path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    return reader.read();
}
