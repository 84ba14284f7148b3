// SPDX-License-Identifier: MIT
#include "support/Obstacle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr int mostLetters = 255;

QString longestName(const QString &suffix)
{
    return QString(mostLetters - suffix.size(), QLatin1Char('x')) + suffix;
}

QString tooLongName(const QString &suffix)
{
    return QLatin1Char('x') + longestName(suffix);
}

// Names that no text of the program can spell: the toolkit puts another character in the place of the byte.
QByteArray oddName(const QString &suffix)
{
    return "odd\xff" + QFile::encodeName(suffix);
}

QString nameSeenFor(const QString &suffix)
{
    return QFile::decodeName(oddName(suffix));
}

QString nameInOddFolder(const QString &suffix)
{
    const QByteArray odd = oddName(QString());
    if (!QDir().exists(QFile::decodeName(odd)) && mkdir(odd.constData(), S_IRWXU) != 0 && errno != EEXIST) {
        qFatal("Obstacle: no folder of that name");
    }
    return QStringLiteral("../") + QFile::decodeName(odd) + QStringLiteral("/a") + suffix;
}
} // namespace

const std::vector<Obstacle::Kind> &Obstacle::kinds()
{
    static const std::vector<Kind> all = {
        {"nothing", Effect::None, Effect::None, strikeName, nullptr},
        {"read-only file", Effect::Refused, Effect::None, makeReadOnly, nullptr},
        {"file without rights", Effect::Refused, Effect::Refused, takeRights, nullptr},
        {"read-only folder", Effect::None, Effect::None, makeFolderReadOnly, nullptr},
        {"folder without rights", Effect::Refused, Effect::Refused, takeRightsOfFolder, nullptr},
        {"folder of that name", Effect::Refused, Effect::Refused, makeFolderOfThatName, nullptr},
        {"vanished folder", Effect::Refused, Effect::Refused, removeFolder, nullptr},
        {"link to itself", Effect::Refused, Effect::Refused, linkToItself, nullptr},
        {"no more open files", Effect::Refused, Effect::Refused, takeOpenFiles, nullptr},
        {"full disk", Effect::Broken, Effect::None, fillDisk, nullptr},
        {"dying disk", Effect::Broken, Effect::Broken, killDisk, nullptr},
        {"longest name", Effect::None, Effect::None, strikeName, longestName},
        {"too long a name", Effect::Refused, Effect::Refused, strikeName, tooLongName},
        {"name that is not UTF-8", Effect::None, Effect::Refused, giveOddName, nameSeenFor},
        {"folder that is not UTF-8", Effect::Refused, Effect::Refused, strikeName, nameInOddFolder},
    };
    return all;
}

Obstacle::Obstacle(const ScratchFolder &folder, const Kind &kind, const QString &fileName, const QByteArray &content)
    : m_folder(folder)
    , m_kind(kind)
    , m_there(folder.path(QStringLiteral("there")))
    , m_content(content)
{
    const QString suffix = QLatin1Char('.') + QFileInfo(fileName).suffix();
    m_path = m_there + QLatin1Char('/') + (kind.nameFor != nullptr ? kind.nameFor(suffix) : fileName);
    QDir().mkpath(m_there);
    QFile file(m_path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
}

Obstacle::~Obstacle()
{
    lift();
}

void Obstacle::lift()
{
    m_faults.reset();
    m_limit.reset();
    if (QFileInfo(m_there).isDir()) {
        QFile::setPermissions(m_there, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    if (QFileInfo(m_path).isFile()) {
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner);
    }
}

bool Obstacle::isContentKept() const
{
    return !QFileInfo(m_path).isFile() || m_folder.read(m_path) == m_content;
}

void Obstacle::makeReadOnly(Obstacle &o)
{
    QFile::setPermissions(o.m_path, QFile::ReadOwner);
}

void Obstacle::takeRights(Obstacle &o)
{
    QFile::setPermissions(o.m_path, {});
}

void Obstacle::makeFolderReadOnly(Obstacle &o)
{
    QFile::setPermissions(o.m_there, QFile::ReadOwner | QFile::ExeOwner);
}

void Obstacle::takeRightsOfFolder(Obstacle &o)
{
    QFile::setPermissions(o.m_there, {});
}

void Obstacle::makeFolderOfThatName(Obstacle &o)
{
    QFile::remove(o.m_path);
    QDir().mkdir(o.m_path);
}

void Obstacle::removeFolder(Obstacle &o)
{
    QDir(o.m_there).removeRecursively();
}

void Obstacle::linkToItself(Obstacle &o)
{
    QFile::remove(o.m_path);
    QFile::link(o.m_path, o.m_path);
}

void Obstacle::giveOddName(Obstacle &o)
{
    const QFileInfo file(o.m_path);
    const QByteArray odd = QFile::encodeName(file.path()) + '/' + oddName(QLatin1Char('.') + file.suffix());
    if (std::rename(QFile::encodeName(o.m_path).constData(), odd.constData()) != 0) {
        qFatal("Obstacle: no file of that name");
    }
}

void Obstacle::takeOpenFiles(Obstacle &o)
{
    o.m_limit = std::make_unique<ResourceLimit>(RLIMIT_NOFILE, STDERR_FILENO + 1);
}

// The longest file that may be written stands for the room on the disk.
void Obstacle::fillDisk(Obstacle &o)
{
    o.m_limit = std::make_unique<ResourceLimit>(RLIMIT_FSIZE, 1);
}

void Obstacle::killDisk(Obstacle &o)
{
    o.m_faults = std::make_unique<FileFaults>(o.m_there, FileFaults::Calls::All, 1, FileFaults::Effect::LastingError);
}
