// SPDX-License-Identifier: MIT
#include "generation/CellImage.h"

#include <QFileInfo>
#include <QImageReader>

QImage loadCellImage(const QString &path)
{
    if (!QFileInfo(path).isFile()) {
        return QImage(); // opening a pipe would wait for who writes to it
    }
    QImageReader reader(path);
    reader.setAutoTransform(true);
    return reader.read();
}
