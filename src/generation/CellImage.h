// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

// The picture of a file, turned upright as its camera recorded. A null image when it cannot be read.
QImage loadCellImage(const QString &path);

// The default picture of new image cells (DEFAULT_CELL_IMAGE). It is read once and shared until another file is
// configured or the file changes on disk: all its copies have one cache key, so that a PDF stores it once.
QImage defaultCellImage();
