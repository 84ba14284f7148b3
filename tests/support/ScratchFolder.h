// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

// An empty folder that is the current one for as long as this object lives; then the former folder is current again and
// all is removed. Every test that touches a file works in one.
class ScratchFolder final
{
public:
    ScratchFolder();
    ~ScratchFolder();
    Q_DISABLE_COPY_MOVE(ScratchFolder)

    // Absolute path of a file in the folder.
    QString path(const QString &fileName) const;
    // Writes a file; the folder part of its name is made when missing.
    void write(const QString &fileName, const QByteArray &content) const;
    // Content of a file; null when it cannot be read.
    QByteArray read(const QString &fileName) const;
    // A PNG file of one colour.
    void writePicture(const QString &fileName, const QSize &size, const QColor &color) const;

private:
    QString m_before;
    QTemporaryDir m_folder;
};
