// SPDX-License-Identifier: MIT
#include "manuale/ManualFile.h"

#include <QDir>
#include <QFileInfo>

QString manualFolder()
{
    return QDir::current().filePath(QStringLiteral("manual"));
}

QString manualFile(const QString &locale)
{
    const QString language = locale.section(QLatin1Char('_'), 0, 0);
    for (const QString &one : {language, QStringLiteral("en")}) {
        const QFileInfo file(manualFolder() + QStringLiteral("/manual_%1.html").arg(one));
        if (file.isFile() && file.isReadable()) {
            return file.filePath();
        }
    }
    return QString();
}
