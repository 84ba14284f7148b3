// SPDX-License-Identifier: MIT
#include "support/ScratchFolder.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <filesystem>

ScratchFolder::ScratchFolder()
    : m_before(QDir::currentPath())
{
    if (!m_folder.isValid() || !QDir::setCurrent(m_folder.path())) {
        qFatal("ScratchFolder: no folder to work in");
    }
}

ScratchFolder::~ScratchFolder()
{
    QDir::setCurrent(m_before);
    // The toolkit would leave names that are not UTF-8.
    std::error_code ignored;
    std::filesystem::remove_all(QFile::encodeName(m_folder.path()).toStdString(), ignored);
}

QString ScratchFolder::path(const QString &fileName) const
{
    return QDir(m_folder.path()).filePath(fileName);
}

void ScratchFolder::write(const QString &fileName, const QByteArray &content) const
{
    QDir().mkpath(QFileInfo(path(fileName)).path());
    QFile file(path(fileName));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("ScratchFolder: cannot write %s", qPrintable(fileName));
    }
}

QByteArray ScratchFolder::read(const QString &fileName) const
{
    QFile file(path(fileName));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ScratchFolder::writePicture(const QString &fileName, const QSize &size, const QColor &color) const
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    if (!picture.save(path(fileName), "PNG")) {
        qFatal("ScratchFolder: cannot write %s", qPrintable(fileName));
    }
}
