// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

class QFile;

// Whether what has this name is neither a file nor a folder: it could be read without end, or wait for a writer that
// never comes.
[[nodiscard]] bool isDevice(const QString &fileName);

// What an open file holds from its place on. Its error() tells whether that is all: the toolkit's readAll() is silent
// when the disk fails in the midst of the file.
[[nodiscard]] QByteArray readToEnd(QFile &file);

// Brings what was written to an open file to the disk. Where a file system has no sync, this is no failure; else errno
// tells why it failed.
[[nodiscard]] bool isSynced(int descriptor);
// Brings the name of a file to the disk, a new one or one that was taken over. That its folder may be written but not
// read is no failure.
[[nodiscard]] bool isFolderSynced(const QString &fileName);
