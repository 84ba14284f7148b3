// SPDX-License-Identifier: MIT
#include "generation/CellImage.h"

#include "settings/DiskFile.h"

#include <QImageReader>

namespace {
// In pixels. Larger pictures take gigabytes, and nobody sees it on paper.
constexpr int largestSide = 10000;
} // namespace

QImage loadCellImage(const QString &path)
{
    if (isDevice(path)) {
        return QImage();
    }
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > largestSide || size.height() > largestSide) {
        reader.setScaledSize(size.scaled(largestSide, largestSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    }
    return reader.read();
}
