// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Whether what has this name is neither a file nor a folder: it could be read without end, or wait for a writer that
// never comes.
[[nodiscard]] bool isDevice(const QString &fileName);

// Brings what was written to an open file to the disk. Where a file system has no sync, this is no failure; else errno
// tells why it failed.
[[nodiscard]] bool isSynced(int descriptor);
// Brings the name of a file to the disk, a new one or one that was taken over. That its folder may be written but not
// read is no failure.
[[nodiscard]] bool isFolderSynced(const QString &fileName);
