// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

// What new text and image cells show, as configured at the time of the call. Nothing without a configuration.
namespace DefaultCell {
QString text();      // DEFAULT_CELL_TEXT
QString imagePath(); // DEFAULT_CELL_IMAGE

// The picture of that path. It is read once and shared until another file is configured or the file changes on disk:
// all its copies have one cache key, so that a PDF stores it once.
QImage image();
} // namespace DefaultCell
