// SPDX-License-Identifier: MIT
#include "generation/DefaultCell.h"

#include "generation/CellImage.h"
#include "settings/Config.h"

#include <QDateTime>
#include <QFileInfo>

#include <new>

namespace {
// The picture read last, and the state of its file then.
struct ReadPicture
{
    QString path;
    QDateTime modified;
    qint64 size = -1; // bytes
    QImage picture;
};

ReadPicture read(const QFileInfo &file)
{
    try {
        return {file.absoluteFilePath(), file.lastModified(), file.size(), loadCellImage(file.filePath())};
    } catch (const std::bad_alloc &) {
        qWarning("DefaultCell::image(): no memory for %s", qPrintable(file.filePath()));
        return {};
    }
}

QString configured(QString Config::*value)
{
    return globalConfig != nullptr ? globalConfig->*value : QString();
}
} // namespace

QString DefaultCell::text()
{
    return configured(&Config::defaultCellText);
}

QString DefaultCell::imagePath()
{
    return configured(&Config::defaultCellImage);
}

QImage DefaultCell::image()
{
    static ReadPicture last;

    const QFileInfo file(imagePath());
    const bool unchanged =
        last.path == file.absoluteFilePath() && last.modified == file.lastModified() && last.size == file.size();
    if (!unchanged) {
        last = read(file);
    }
    return last.picture;
}
