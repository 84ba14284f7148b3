// SPDX-License-Identifier: MIT
#include "generation/CellImage.h"

#include "settings/DiskFile.h"

#include <QImageReader>

#include <new>

namespace {
// In pixels. Larger pictures take gigabytes, and nobody sees it on paper.
constexpr int largestSide = 10000;

bool hasRoomInMemory(const QSize &size)
{
    return size.isEmpty() || !QImage(size, QImage::Format_ARGB32).isNull();
}
} // namespace

QImage loadCellImage(const QString &path)
{
    if (isDevice(path)) {
        return QImage();
    }
    QImageReader reader(path);
    reader.setAutoTransform(true);
    QSize size = reader.size();
    if (size.width() > largestSide || size.height() > largestSide) {
        size = size.scaled(largestSide, largestSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
        reader.setScaledSize(size);
    }
    QImage image = reader.read();
    if (image.isNull() && !hasRoomInMemory(size)) {
        throw std::bad_alloc(); // a reader does not tell this from a picture that is damaged
    }
    return image;
}
