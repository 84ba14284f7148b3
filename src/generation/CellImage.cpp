// SPDX-License-Identifier: MIT
#include "generation/CellImage.h"

#include "settings/Config.h"

#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>

namespace {
// The picture read last, and the state of its file then.
struct ReadPicture
{
    QString path;
    QDateTime modified;
    qint64 size = -1; // bytes
    QImage picture;
};
} // namespace

QImage loadCellImage(const QString &path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    return reader.read();
}

QImage defaultCellImage()
{
    static ReadPicture last;

    const QFileInfo file(globalConfig != nullptr ? globalConfig->defaultCellImage : QString());
    const bool unchanged =
        last.path == file.absoluteFilePath() && last.modified == file.lastModified() && last.size == file.size();
    if (!unchanged) {
        last = {file.absoluteFilePath(), file.lastModified(), file.size(), loadCellImage(file.filePath())};
    }
    return last.picture;
}
