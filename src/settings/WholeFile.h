// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>

// The new content of a file, written beside it under a name of its own until it is whole: a failure, or the end of the
// program in between, leaves the old file as it was. Links are followed to their end and stay links. What is no regular
// file, and what its folder does not let this user replace, is written on directly.
//
// It is not QSaveFile: a printer writes to a name, not to a device, and a commit of that class succeeds although the
// last bytes did not reach the file, or the disk.
class WholeFile final
{
public:
    explicit WholeFile(const QString &fileName);
    // A content that was neither committed nor left goes.
    ~WholeFile();
    Q_DISABLE_COPY_MOVE(WholeFile)

    // Makes the file to write on. False, and nothing changed, when there can be none. Whether the file itself can be
    // written is told by whoever opens writtenName().
    [[nodiscard]] bool create();
    QString writtenName() const;
    // Brings the written file, which must be closed, to the disk and gives it its name. False when that fails.
    [[nodiscard]] bool commit();
    // Leaves a content that is not whole: under the name of the file where there is none, else beside it.
    void leaveIncomplete();
    // Why the last call failed.
    QString errorString() const { return m_error; }

private:
    bool holdDevice();
    bool takeName();

    QString m_target; // behind links
    QString m_beside; // empty when the file itself is written on
    QString m_error;
    QFile m_device; // open as long as it is written on
};

enum class Written {
    Whole,
    NotOpened, // nothing was tried
    Incomplete // the old file is still there, unless it was written on directly
};

// Writes all of it to an open device without a buffer; false when it does not fit, for the reason in the device's
// errorString().
[[nodiscard]] bool writeAll(QIODevice &device, const char *data, qint64 size);

// Writes a file, whole or not at all. `mode` may be QIODevice::Text; `reason` is told why it failed.
Written writeWhole(const QString &fileName, const QByteArray &content, QIODevice::OpenMode mode = QIODevice::NotOpen,
                   QString *reason = nullptr);
