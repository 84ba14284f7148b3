// SPDX-License-Identifier: MIT
#include "settings/MadeTranslations.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {
QByteArray sourceFile(const QVector<MadeText> &texts)
{
    QString xml =
        QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<TS version=\"2.1\" language=\"en_GB\">\n");
    for (const MadeText &text : texts) {
        xml += QStringLiteral("<context><name>%1</name><message><source>%2</source>"
                              "<translation>%3</translation></message></context>\n")
                   .arg(text.context.toHtmlEscaped(), text.source.toHtmlEscaped(), text.translation.toHtmlEscaped());
    }
    return (xml + QStringLiteral("</TS>\n")).toUtf8();
}
} // namespace

QByteArray madeTranslation(const QVector<MadeText> &texts)
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("made.ts"));
    const QString compiled = folder.filePath(QStringLiteral("made.qm"));
    QFile file(source);
    const QByteArray content = sourceFile(texts);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("madeTranslation: cannot write");
    }
    file.close();
    if (QProcess::execute(QStringLiteral(QUINTRA_LRELEASE),
                          {QStringLiteral("-silent"), source, QStringLiteral("-qm"), compiled}) != 0) {
        qFatal("madeTranslation: lrelease failed");
    }
    QFile result(compiled);
    if (!result.open(QIODevice::ReadOnly)) {
        qFatal("madeTranslation: lrelease made no file");
    }
    return result.readAll();
}
