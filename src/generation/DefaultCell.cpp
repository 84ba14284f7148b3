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

bool isOfSameState(const ReadPicture &a, const ReadPicture &b)
{
    return a.path == b.path && a.modified == b.modified && a.size == b.size;
}

// Adds the picture; nothing is known of one that found no memory.
ReadPicture read(ReadPicture state)
{
    try {
        state.picture = loadCellImage(state.path);
        return state;
    } catch (const std::bad_alloc &) {
        qWarning("DefaultCell::image(): no memory for %s", qPrintable(state.path));
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
    ReadPicture now;
    now.path = file.absoluteFilePath();
    now.modified = file.lastModified();
    now.size = file.size();
    if (!isOfSameState(last, now)) {
        last = read(now);
    }
    return last.picture;
}
