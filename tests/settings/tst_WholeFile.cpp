// SPDX-License-Identifier: MIT
#include "settings/WholeFile.h"
#include "support/FileFaults.h"
#include "support/OrdinaryUser.h"
#include "support/ResourceLimit.h"
#include "support/ScratchFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QtTest>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace {
const QString name = QStringLiteral("a.txt");
const QByteArray oldContent(50000, 'o');
const QByteArray newContent(90000, 'n'); // more than one write

QStringList filesHere()
{
    return QDir().entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}
} // namespace

class tst_WholeFile final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aNewFileHasTheUsualRights();
    void anOldFileIsReplacedAndKeepsItsRights();
    void aTextIsWrittenAsText();
    void nothingIsLeftBeside();
    void anotherPartIsNotTouched();
    void aLinkStaysALink_data();
    void aLinkStaysALink();
    void aNameWithoutRoomForASuffixIsWritten();

    void whatCannotBeWrittenIsRefused_data();
    void whatCannotBeWrittenIsRefused();
    void aReadOnlyFileIsRefused();
    void aFolderThatTakesNoNewFileHasItsFileWritten();
    void inASharedFolderOwnersReplaceAndOthersWrite_data();
    void inASharedFolderOwnersReplaceAndOthersWrite();
    void aDeviceIsWrittenOn();
    void aPipeThatNobodyReadsIsRefused();
    void aPipeWithoutRightsIsNotOpened();
    void aPipeThatIsReadIsWrittenOn();
    void withoutFilesToOpenNothingIsTried();
    void afterAnyFaultTheOldFileOrTheNewOneIsWhole_data();
    void afterAnyFaultTheOldFileOrTheNewOneIsWhole();
    void everyFaultIsNoticed_data();
    void everyFaultIsNoticed();
    void aFullDiskKeepsTheOldFile();
    void aDiskWithoutRoomForANewFileKeepsTheOldOne();

    void anIncompleteFileIsLeftUnderItsName();
    void anIncompleteFileIsLeftBesideTheOldOne();
    void anIncompleteFileThatNobodyLeavesGoes();

private:
    std::unique_ptr<ScratchFolder> m_folder;
};

void tst_WholeFile::init()
{
    m_folder = std::make_unique<ScratchFolder>();
}

void tst_WholeFile::cleanup()
{
    m_folder.reset();
}

void tst_WholeFile::aNewFileHasTheUsualRights()
{
    QFile usual(QStringLiteral("usual"));
    QVERIFY(usual.open(QIODevice::WriteOnly));
    QCOMPARE(writeWhole(name, newContent), Written::Whole);
    QCOMPARE(m_folder->read(name), newContent);
    QCOMPARE(QFileInfo(name).permissions(), usual.permissions());
}

void tst_WholeFile::anOldFileIsReplacedAndKeepsItsRights()
{
    m_folder->write(name, oldContent);
    const auto rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther;
    QVERIFY(QFile::setPermissions(name, rights));
    const auto before = QFileInfo(name).permissions();
    QCOMPARE(writeWhole(name, newContent), Written::Whole);
    QCOMPARE(m_folder->read(name), newContent);
    QCOMPARE(QFileInfo(name).permissions(), before);
}

void tst_WholeFile::aTextIsWrittenAsText()
{
    QCOMPARE(writeWhole(name, "a\nb", QIODevice::Text), Written::Whole);
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QCOMPARE(file.readAll(), QByteArray("a\nb"));
}

void tst_WholeFile::nothingIsLeftBeside()
{
    for (int times = 0; times < 2; ++times) {
        QCOMPARE(writeWhole(name, newContent), Written::Whole);
        QCOMPARE(filesHere(), QStringList(name));
    }
}

void tst_WholeFile::anotherPartIsNotTouched()
{
    m_folder->write(QStringLiteral("a.txt.part"), "of another run");
    QCOMPARE(writeWhole(name, newContent), Written::Whole);
    QCOMPARE(m_folder->read(name), newContent);
    QCOMPARE(m_folder->read(QStringLiteral("a.txt.part")), QByteArray("of another run"));
}

void tst_WholeFile::aLinkStaysALink_data()
{
    QTest::addColumn<bool>("exists");
    QTest::newRow("to a file") << true;
    QTest::newRow("to a name without file") << false;
}

void tst_WholeFile::aLinkStaysALink()
{
    QFETCH(bool, exists);
    QVERIFY(QDir().mkdir(QStringLiteral("there")));
    if (exists) {
        m_folder->write(QStringLiteral("there/b.txt"), oldContent);
    }
    QVERIFY(QFile::link(m_folder->path(QStringLiteral("there/b.txt")), QStringLiteral("between")));
    QVERIFY(QFile::link(QStringLiteral("between"), name));
    QCOMPARE(writeWhole(name, newContent), Written::Whole);
    QVERIFY(QFileInfo(name).isSymLink());
    QVERIFY(QFileInfo(QStringLiteral("between")).isSymLink());
    QVERIFY(!QFileInfo(QStringLiteral("there/b.txt")).isSymLink());
    QCOMPARE(m_folder->read(QStringLiteral("there/b.txt")), newContent);
}

void tst_WholeFile::aNameWithoutRoomForASuffixIsWritten()
{
    const QString longest = QString(253, QLatin1Char('x')) + QChar(0xe8); // 255 bytes
    QCOMPARE(writeWhole(longest, oldContent), Written::Whole);
    QCOMPARE(writeWhole(longest, newContent), Written::Whole);
    QCOMPARE(m_folder->read(longest), newContent);
    QCOMPARE(filesHere(), QStringList(longest));
}

void tst_WholeFile::whatCannotBeWrittenIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a folder") << "folder";
    QTest::newRow("in a missing folder") << "missing/a.txt";
    QTest::newRow("in a file") << "file/a.txt";
    QTest::newRow("a link to itself") << "itself";
    QTest::newRow("a link into a missing folder") << "lost";
    QTest::newRow("too long") << QString(256, QLatin1Char('x'));
    QTest::newRow("none") << "";
}

void tst_WholeFile::whatCannotBeWrittenIsRefused()
{
    QFETCH(QString, path);
    QVERIFY(QDir().mkdir(QStringLiteral("folder")));
    m_folder->write(QStringLiteral("file"), oldContent);
    QVERIFY(QFile::link(QStringLiteral("itself"), QStringLiteral("itself")));
    QVERIFY(QFile::link(QStringLiteral("missing/a.txt"), QStringLiteral("lost")));
    const QStringList before = filesHere();
    QString reason;
    QCOMPARE(writeWhole(path, newContent, {}, &reason), Written::NotOpened);
    QVERIFY(!reason.isEmpty());
    QCOMPARE(filesHere(), before);
    QCOMPARE(m_folder->read(QStringLiteral("file")), oldContent);
}

void tst_WholeFile::aReadOnlyFileIsRefused()
{
    const OrdinaryUser user(*m_folder);
    m_folder->write(name, oldContent);
    QVERIFY(QFile::setPermissions(name, QFile::ReadOwner));
    QCOMPARE(writeWhole(name, newContent), Written::NotOpened);
    QCOMPARE(m_folder->read(name), oldContent);
    QCOMPARE(filesHere(), QStringList(name));
}

void tst_WholeFile::aFolderThatTakesNoNewFileHasItsFileWritten()
{
    const OrdinaryUser user(*m_folder);
    m_folder->write(name, oldContent);
    QVERIFY(QFile::setPermissions(QStringLiteral("."), QFile::ReadOwner | QFile::ExeOwner));
    const Written old = writeWhole(name, newContent);
    const Written fresh = writeWhole(QStringLiteral("b.txt"), newContent);
    QFile::setPermissions(QStringLiteral("."), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(old, Written::Whole);
    QCOMPARE(fresh, Written::NotOpened);
    QCOMPARE(m_folder->read(name), newContent);
    QCOMPARE(filesHere(), QStringList(name));
}

void tst_WholeFile::inASharedFolderOwnersReplaceAndOthersWrite_data()
{
    QTest::addColumn<bool>("ownsFolder");
    QTest::addColumn<bool>("ownsFile");
    QTest::addColumn<bool>("replaced");
    QTest::newRow("another's file") << false << false << false;
    QTest::newRow("an own file") << false << true << true;
    QTest::newRow("another's file in an own folder") << true << false << true;
}

void tst_WholeFile::inASharedFolderOwnersReplaceAndOthersWrite()
{
    if (geteuid() != 0) {
        QSKIP("needs a file of another user");
    }
    QFETCH(bool, ownsFolder);
    QFETCH(bool, ownsFile);
    QFETCH(bool, replaced);
    const uid_t user = 65534;
    const uid_t root = 0;
    const ScratchFolder shared;
    const QString path = shared.path(QStringLiteral("common/a.txt"));
    shared.write(path, oldContent);
    const mode_t everybody = S_IRWXU | S_IRWXG | S_IRWXO;
    QCOMPARE(chown("common", ownsFolder ? user : root, static_cast<gid_t>(-1)), 0);
    QCOMPARE(chown("common/a.txt", ownsFile ? user : root, static_cast<gid_t>(-1)), 0);
    QCOMPARE(chmod("common", everybody | S_ISVTX), 0);
    QCOMPARE(chmod("common/a.txt", everybody), 0);
    struct stat before = {};
    QCOMPARE(stat("common/a.txt", &before), 0);
    {
        const OrdinaryUser nobody(shared);
        QCOMPARE(writeWhole(path, newContent), Written::Whole);
    }
    struct stat after = {};
    QCOMPARE(stat("common/a.txt", &after), 0);
    QCOMPARE(before.st_ino != after.st_ino, replaced);
    QCOMPARE(shared.read(path), newContent);
    QCOMPARE(QDir(QStringLiteral("common")).entryList(QDir::Files), QStringList(name));
}

void tst_WholeFile::aDeviceIsWrittenOn()
{
    QVERIFY(QFile::link(QStringLiteral("/dev/full"), QStringLiteral("full")));
    QVERIFY(QFile::link(QStringLiteral("/dev/null"), QStringLiteral("null")));
    QString reason;
    QCOMPARE(writeWhole(QStringLiteral("full"), "x", {}, &reason), Written::Incomplete);
    QVERIFY(!reason.isEmpty());
    QCOMPARE(writeWhole(QStringLiteral("null"), "x"), Written::Whole);
    QCOMPARE(filesHere(), (QStringList{QStringLiteral("full"), QStringLiteral("null")}));
    QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
}

void tst_WholeFile::aPipeThatNobodyReadsIsRefused()
{
    QCOMPARE(mkfifo("pipe", S_IRUSR | S_IWUSR), 0);
    QString reason;
    QCOMPARE(writeWhole(QStringLiteral("pipe"), newContent, {}, &reason), Written::Incomplete);
    QVERIFY(!reason.isEmpty());
    QCOMPARE(filesHere(), QStringList(QStringLiteral("pipe")));
}

void tst_WholeFile::aPipeWithoutRightsIsNotOpened()
{
    const OrdinaryUser user(*m_folder);
    QCOMPARE(mkfifo("pipe", 0), 0);
    QCOMPARE(writeWhole(QStringLiteral("pipe"), newContent), Written::NotOpened);
}

void tst_WholeFile::aPipeThatIsReadIsWrittenOn()
{
    QCOMPARE(mkfifo("pipe", S_IRUSR | S_IWUSR), 0);
    QProcess reader;
    reader.setStandardOutputFile(QStringLiteral("read"));
    reader.start(QStringLiteral("cat"), {QStringLiteral("pipe")});
    QVERIFY(reader.waitForStarted());
    QVERIFY(QTest::qWaitFor([]() { return writeWhole(QStringLiteral("pipe"), newContent) == Written::Whole; }));
    QVERIFY(reader.waitForFinished());
    QCOMPARE(m_folder->read(QStringLiteral("read")), newContent);
}

void tst_WholeFile::withoutFilesToOpenNothingIsTried()
{
    m_folder->write(name, oldContent);
    auto none = std::make_unique<ResourceLimit>(RLIMIT_NOFILE, 0);
    const Written old = writeWhole(name, newContent);
    const Written fresh = writeWhole(QStringLiteral("b.txt"), newContent);
    none.reset();
    QCOMPARE(old, Written::NotOpened);
    QCOMPARE(fresh, Written::NotOpened);
    QCOMPARE(m_folder->read(name), oldContent);
    QCOMPARE(filesHere(), QStringList(name));
}

void tst_WholeFile::afterAnyFaultTheOldFileOrTheNewOneIsWhole_data()
{
    QTest::addColumn<FileFaults::Effect>("effect");
    QTest::addColumn<bool>("exists");
    QTest::newRow("one error") << FileFaults::Effect::Error << true;
    QTest::newRow("lasting errors") << FileFaults::Effect::LastingError << true;
    QTest::newRow("killed") << FileFaults::Effect::Death << true;
    QTest::newRow("one error, new file") << FileFaults::Effect::Error << false;
    QTest::newRow("lasting errors, new file") << FileFaults::Effect::LastingError << false;
    QTest::newRow("killed, new file") << FileFaults::Effect::Death << false;
}

void tst_WholeFile::afterAnyFaultTheOldFileOrTheNewOneIsWhole()
{
    QFETCH(FileFaults::Effect, effect);
    QFETCH(bool, exists);
    const auto write = [this]() { return writeWhole(m_folder->path(name), newContent); };
    bool reached = true;
    for (int call = 1; reached; ++call) {
        m_folder = std::make_unique<ScratchFolder>();
        if (exists) {
            m_folder->write(name, oldContent);
        }
        Written written = Written::Incomplete;
        {
            const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::Changes, call, effect);
            if (effect == FileFaults::Effect::Death) {
                reached = isKilledDuring([&]() { write(); });
            } else {
                written = write();
                reached = FileFaults::seen() >= call;
            }
        }
        QVERIFY2(!reached || call < 20, "too many calls");
        const QByteArray found = m_folder->read(name);
        QVERIFY2(found == newContent || (exists ? found == oldContent : found.isNull()),
                 qPrintable(QString::number(call)));
        QVERIFY(written != Written::Whole || found == newContent);
        QVERIFY(reached || found == newContent);
        QVERIFY(call > 4 || reached); // several writes, sync, closes, rename
    }
}

void tst_WholeFile::everyFaultIsNoticed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("long") << newContent;
    QTest::newRow("short") << newContent.left(3);
}

// The first file that is closed is still empty, the last one was only opened for the sync.
void tst_WholeFile::everyFaultIsNoticed()
{
    QFETCH(QByteArray, content);
    QStringList outcomes;
    for (int call = 1; call < 20; ++call) {
        m_folder->write(name, oldContent);
        const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::Changes, call, FileFaults::Effect::Error);
        const Written written = writeWhole(m_folder->path(name), content);
        const QString struck = QLatin1String(FileFaults::struck());
        outcomes << struck + (written == Written::Whole ? QStringLiteral(" harmless") : QStringLiteral(" told"));
        QCOMPARE(filesHere(), QStringList(name));
    }
    outcomes.removeDuplicates();
    outcomes.removeAll(QStringLiteral(" harmless")); // beyond the last call
    QCOMPARE(outcomes,
             (QStringList{QStringLiteral("close harmless"), QStringLiteral("write told"), QStringLiteral("close told"),
                          QStringLiteral("fsync told"), QStringLiteral("rename told"),
                          QStringLiteral("fsync harmless")})); // the last one is that of the folder
}

// The longest file that may be written stands for the size of the disk.
void tst_WholeFile::aFullDiskKeepsTheOldFile()
{
    m_folder->write(name, oldContent);
    QString reason;
    Written written = Written::Whole;
    {
        const ResourceLimit small(RLIMIT_FSIZE, 60000);
        written = writeWhole(name, newContent, {}, &reason);
    }
    QCOMPARE(written, Written::Incomplete);
    QCOMPARE(reason, qt_error_string(EFBIG));
    QCOMPARE(m_folder->read(name), oldContent);
    QCOMPARE(filesHere(), QStringList(name));
}

void tst_WholeFile::aDiskWithoutRoomForANewFileKeepsTheOldOne()
{
    m_folder->write(name, oldContent);
    const QString path = m_folder->path(name);
    QString reason;
    const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::Creations, 1,
                            FileFaults::Effect::LastingError);
    QCOMPARE(writeWhole(path, newContent, {}, &reason), Written::Incomplete);
    QCOMPARE(reason, qt_error_string(ENOSPC));
    QCOMPARE(m_folder->read(name), oldContent);
    QCOMPARE(writeWhole(m_folder->path(QStringLiteral("b.txt")), newContent, {}, &reason), Written::NotOpened);
    QCOMPARE(reason, qt_error_string(ENOSPC));
    QCOMPARE(filesHere(), QStringList(name));
}

void tst_WholeFile::anIncompleteFileIsLeftUnderItsName()
{
    WholeFile file(name);
    QVERIFY(file.create());
    m_folder->write(file.writtenName(), "part");
    QVERIFY(!QFile::exists(name));
    file.leaveIncomplete();
    QCOMPARE(m_folder->read(name), QByteArray("part"));
    QCOMPARE(filesHere(), QStringList(name));
}

void tst_WholeFile::anIncompleteFileIsLeftBesideTheOldOne()
{
    m_folder->write(name, oldContent);
    {
        WholeFile file(name);
        QVERIFY(file.create());
        m_folder->write(file.writtenName(), "part");
        file.leaveIncomplete();
    }
    QCOMPARE(m_folder->read(name), oldContent);
    QCOMPARE(m_folder->read(QStringLiteral("a.txt.part")), QByteArray("part"));
}

void tst_WholeFile::anIncompleteFileThatNobodyLeavesGoes()
{
    {
        WholeFile file(name);
        QVERIFY(file.create());
        m_folder->write(file.writtenName(), "part");
    }
    QCOMPARE(filesHere(), QStringList());
}

QTEST_APPLESS_MAIN(tst_WholeFile)
#include "tst_WholeFile.moc"
