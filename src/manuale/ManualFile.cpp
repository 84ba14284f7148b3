// SPDX-License-Identifier: MIT
#include "manuale/ManualFile.h"

#include "settings/DiskFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString manualFolder()
{
    return QDir::current().filePath(QStringLiteral("manual"));
}

ManualFile readManual(const QString &fileName)
{
    const QFileInfo there(fileName);
    QFile file(fileName);
    const bool opened = there.isFile() && file.open(QIODevice::ReadOnly);
    const QByteArray page = opened ? readToEnd(file) : QByteArray();
    return {fileName, file.error() == QFile::NoError ? page : QByteArray()};
}

ManualFile manualFor(const QString &locale)
{
    const QString name = manualFolder() + QStringLiteral("/manual_%1.html");
    ManualFile manual = readManual(name.arg(locale.section(QLatin1Char('_'), 0, 0)));
    if (manual.page.isEmpty()) {
        manual = readManual(name.arg(QStringLiteral("en")));
    }
    return manual;
}
