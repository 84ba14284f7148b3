// SPDX-License-Identifier: MIT
#include "settings/WholeFile.h"

#include "settings/DiskFile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr int mostLinks = 40;
constexpr int mostNamesBeside = 100;
constexpr int longestName = 255; // bytes

// The file at the end of a chain of links; a link still when they lead round in a circle.
QFileInfo behindLinks(const QString &fileName)
{
    QFileInfo file(fileName);
    for (int links = 0; file.isSymLink() && links < mostLinks; ++links) {
        file.setFile(file.symLinkTarget());
    }
    return file;
}

// Opened without being changed: access rights alone do not tell everything.
bool opensForWriting(const QString &fileName)
{
    return QFile(fileName).open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly);
}

int byteCount(const QString &name)
{
    return QFile::encodeName(name).size();
}

bool isTaken(const QFileInfo &file)
{
    return file.exists() || file.isSymLink();
}

// Where many may write, as in /tmp, a file is replaced by its owner or that of the folder only.
bool isReplacedByOthersOnly(const QFileInfo &file)
{
    const QByteArray name = QFile::encodeName(file.path());
    const uid_t user = geteuid();
    struct stat folder = {};
    return user != 0 && stat(name.constData(), &folder) == 0 && (folder.st_mode & S_ISVTX) != 0 &&
           folder.st_uid != user && file.ownerId() != user;
}

// A file that cannot be written is not replaced either: its own opening tells why.
bool isReplaceable(const QFileInfo &file)
{
    if (!QFileInfo(file.path()).isWritable()) {
        return false;
    }
    if (file.isFile()) {
        return opensForWriting(file.filePath()) && !isReplacedByOthersOnly(file);
    }
    return !isTaken(file) && byteCount(file.fileName()) <= longestName;
}

QString nameBeside(const QFileInfo &file, int number)
{
    const QString suffix = QStringLiteral(".part") + (number > 1 ? QString::number(number) : QString());
    QString name = file.fileName();
    while (byteCount(name + suffix) > longestName) {
        name.chop(1);
    }
    return file.path() + QLatin1Char('/') + name + suffix;
}

// With the rights of the file that it is to replace; empty when there can be none, for the reason in `error`.
QString createBeside(const QFileInfo &file, QString &error)
{
    constexpr QFile::Permissions ofThisUser = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
    for (int number = 1; number <= mostNamesBeside; ++number) {
        QFile beside(nameBeside(file, number));
        if (beside.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            if (file.exists()) {
                beside.setPermissions(file.permissions() & ~ofThisUser);
            }
            return beside.fileName();
        }
        error = beside.errorString();
        if (!isTaken(QFileInfo(beside))) {
            break;
        }
    }
    return QString();
}

bool bringToDisk(const QString &fileName, QString &error)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly)) {
        error = file.errorString();
        return false;
    }
    if (!isSynced(file.handle())) {
        error = qt_error_string(errno);
        return false;
    }
    return true;
}

// Why the content did not get whole into the open, unbuffered file; empty when it did.
QString lossOf(QFile &file, const QByteArray &content)
{
    if (!writeAll(file, content.constData(), content.size())) {
        return file.errorString();
    }
    file.close();
    return file.error() == QFile::NoError ? QString() : file.errorString();
}
} // namespace

WholeFile::WholeFile(const QString &fileName)
    : m_target(behindLinks(fileName).filePath())
{
}

WholeFile::~WholeFile()
{
    if (!m_beside.isEmpty()) {
        QFile::remove(m_beside);
    }
}

bool WholeFile::create()
{
    const QFileInfo file(m_target);
    if (isDevice(m_target) && !holdDevice()) {
        return false;
    }
    if (isReplaceable(file)) {
        m_beside = createBeside(file, m_error);
    }
    // An old file is not written on because the disk has no room for another.
    return !m_beside.isEmpty() || m_error.isEmpty() || !file.exists();
}

// A pipe waits for its reader to be opened, and this program would wait with it. Held open, a reader that has come does
// not see the end before all is written.
bool WholeFile::holdDevice()
{
    const int descriptor = ::open(QFile::encodeName(m_target).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor >= 0) {
        return m_device.open(descriptor, QIODevice::WriteOnly, QFile::AutoCloseHandle);
    }
    if (errno != ENXIO) {
        return true; // whoever opens it is told why it cannot be
    }
    m_error = qt_error_string(ENXIO);
    return false;
}

QString WholeFile::writtenName() const
{
    return m_beside.isEmpty() ? m_target : m_beside;
}

bool WholeFile::commit()
{
    if (m_beside.isEmpty()) {
        return true;
    }
    if (!bringToDisk(m_beside, m_error) || !takeName()) {
        return false;
    }
    static_cast<void>(
        isFolderSynced(m_target)); // the file is there and whole, whether its name outlives the machine or not
    return true;
}

void WholeFile::leaveIncomplete()
{
    const bool taken = isTaken(QFileInfo(m_target));
    if (!m_beside.isEmpty() && !taken) {
        takeName();
    }
    m_beside.clear();
}

bool WholeFile::takeName()
{
    namespace fs = std::filesystem;
    std::error_code error;
    fs::rename(fs::path(QFile::encodeName(m_beside).toStdString()), fs::path(QFile::encodeName(m_target).toStdString()),
               error);
    if (error) {
        m_error = qt_error_string(error.value());
        return false;
    }
    m_beside.clear();
    return true;
}

// A write that is cut short tells the reason only when it is tried again.
bool writeAll(QIODevice &device, const char *data, qint64 size)
{
    while (size > 0) {
        const qint64 written = device.write(data, size);
        if (written <= 0) {
            return false;
        }
        data += written;
        size -= written;
    }
    return true;
}

Written writeWhole(const QString &fileName, const QByteArray &content, QIODevice::OpenMode mode, QString *reason)
{
    const auto failed = [reason](Written how, const QString &why) {
        if (reason != nullptr) {
            *reason = why;
        }
        return how;
    };
    WholeFile whole(fileName);
    if (!whole.create()) {
        return failed(Written::Incomplete, whole.errorString());
    }
    QFile file(whole.writtenName());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered | mode)) {
        return failed(Written::NotOpened, file.errorString());
    }
    const QString loss = lossOf(file, content);
    if (!loss.isEmpty()) {
        return failed(Written::Incomplete, loss);
    }
    return whole.commit() ? Written::Whole : failed(Written::Incomplete, whole.errorString());
}
