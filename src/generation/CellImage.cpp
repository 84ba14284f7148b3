// SPDX-License-Identifier: MIT
#include "generation/CellImage.h"

#include "settings/DiskFile.h"
#include "settings/FreeMemory.h"

#include <QImageReader>

#include <new>

namespace {
// In pixels. Larger pictures take gigabytes, and nobody sees it on paper.
constexpr int largestSide = 10000;
constexpr int bitsPerByte = 8;

bool hasRoomInMemory(const QSize &size)
{
    return size.isEmpty() || !QImage(size, QImage::Format_ARGB32).isNull();
}

int bitsPerPixel(QImage::Format format)
{
    return QImage::toPixelFormat(format == QImage::Format_Invalid ? QImage::Format_ARGB32 : format).bitsPerPixel();
}

double bytesOf(const QSize &size, int bits)
{
    return double(size.width()) * size.height() * bits / bitsPerByte;
}

QImage readAt(const QSize &size, QImageReader &reader)
{
    reader.setScaledSize(size);
    return reader.read();
}

// Readers other than these have the whole picture in memory first, and with it the same in 32 bits a pixel: of a
// drawing in black and white 32 times as much.
QImage readReduced(QImageReader &reader, const QSize &size)
{
    const QByteArray format = reader.format();
    if (format == "jpeg" || format.startsWith("svg")) {
        return readAt(size, reader);
    }
    const int bits = bitsPerPixel(reader.imageFormat());
    if (!fitsMemory(bytesOf(reader.size(), bits) + bytesOf(size, bits))) {
        throw std::bad_alloc();
    }
    if (bits >= bitsPerPixel(QImage::Format_ARGB32)) {
        return readAt(size, reader);
    }
    const QImage whole = reader.read();
    return whole.isNull() ? whole : whole.scaled(largestSide, largestSide, Qt::KeepAspectRatio);
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
    const bool isTooLarge = size.width() > largestSide || size.height() > largestSide;
    if (isTooLarge) {
        size = size.scaled(largestSide, largestSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    }
    QImage image = isTooLarge ? readReduced(reader, size) : reader.read();
    if (image.isNull() && !hasRoomInMemory(size)) {
        throw std::bad_alloc(); // a reader does not tell this from a picture that is damaged
    }
    return image;
}
