// SPDX-License-Identifier: MIT
#include "settings/DiskFile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

bool isDevice(const QString &fileName)
{
    const QFileInfo file(fileName);
    return file.exists() && !file.isFile() && !file.isDir();
}

QByteArray readToEnd(QFile &file)
{
    QByteArray content;
    for (QByteArray part = file.readAll(); !part.isEmpty(); part = file.readAll()) {
        content += part;
    }
    return content;
}

bool isSynced(int descriptor)
{
    return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool isFolderSynced(const QString &fileName)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(fileName).absolutePath());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        return errno == EACCES;
    }
    const bool synced = isSynced(descriptor);
    const int reason = errno;
    ::close(descriptor);
    errno = reason;
    return synced;
}
