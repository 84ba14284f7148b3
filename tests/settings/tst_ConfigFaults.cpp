// SPDX-License-Identifier: MIT
// config.ini on disks that fail, and things of another kind in its place.
#include "settings/Config.h"
#include "support/FileFaults.h"
#include "support/LogCapture.h"
#include "support/OrdinaryUser.h"
#include "support/ResourceLimit.h"
#include "support/ScratchFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {
const QString name = QStringLiteral("config.ini");
const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

bool comment(Config &config)
{
    const QString c = QStringLiteral("c");
    return config.writeComments(c, c, c, c, c, c, c, c, c, c, c);
}

QByteArray plainDefaults()
{
    const QByteArray here = QDir::currentPath().toUtf8();
    return "[General]\nCLASSIC_NBLOCKS=6\nCLASSIC_NCOLS=9\nCLASSIC_NDRAWNxROW=5\nCLASSIC_NJOLLYxROW=0\n"
           "CLASSIC_NROWxBLOCK=3\nDEFAULT_CELL_IMAGE=" +
           here + "/default.png\nDEFAULT_CELL_TEXT=TXT\nDEFAULT_SAVE_DIR=" + here +
           "\nLANGUAGE=" + QLocale::system().name().toUtf8() + "\nNMAX=90\nNMIN=1\n";
}

QByteArray commentedDefaults()
{
    QByteArray text = plainDefaults().replace('\n', "\n;c\n");
    text.chop(4); // the last key has neither comment nor line end behind it
    return text;
}

// Runs `action` in folders as `prepare` makes them, with a fault at one call after the other until none is left; after
// each one `check` looks at what is there.
void withEveryFault(FileFaults::Effect effect, const std::function<void()> &prepare,
                    const std::function<void()> &action, const std::function<void(const QByteArray &)> &check)
{
    bool reached = true;
    int call = 1;
    for (; reached; ++call) {
        const ScratchFolder folder;
        prepare();
        {
            const FileFaults faults(folder.path(QString()), FileFaults::Calls::Changes, call, effect);
            if (effect == FileFaults::Effect::Death) {
                reached = isKilledDuring(action);
            } else {
                action();
                reached = FileFaults::seen() >= call;
            }
        }
        check(folder.read(name));
    }
    QVERIFY2(call > 4 && call < 50, qPrintable(QString::number(call)));
}

// The values of a file that could not be read.
void compareWithDefaults(const Config &config)
{
    QCOMPARE(config.nMin, 1);
    QCOMPARE(config.nMax, 90);
    QCOMPARE(config.classicNBlocks, 6);
    QCOMPARE(config.classicNRowxBlock, 3);
    QCOMPARE(config.classicNDrawnxRow, 5);
    QCOMPARE(config.classicNCols, 9);
    QCOMPARE(config.classicNJollyxRow, 0);
    QCOMPARE(config.defaultCellText, QStringLiteral("TXT"));
    QCOMPARE(config.defaultCellImage, QDir::currentPath() + QStringLiteral("/default.png"));
    QCOMPARE(config.defaultSaveDir, QDir::currentPath());
    QCOMPARE(config.language, QLocale::system().name());
}
} // namespace

class tst_ConfigFaults final : public QObject
{
    Q_OBJECT

private slots:
    void theFirstFileIsWholeOrThereIsNone_data();
    void theFirstFileIsWholeOrThereIsNone();
    void resettingLeavesAWholeFileOrNone_data();
    void resettingLeavesAWholeFileOrNone();
    void commentingLeavesAWholeFile_data();
    void commentingLeavesAWholeFile();
    void aFirstStartOnAFullDiskIsNotTheLast();

    void aDiskThatCannotBeReadGivesTheDefaults_data();
    void aDiskThatCannotBeReadGivesTheDefaults();
    void whatIsNoFileGivesTheDefaults_data();
    void whatIsNoFileGivesTheDefaults();
    void aFolderInItsPlaceGivesTheDefaults();
    void aLinkToItselfGivesTheDefaults();
    void aFolderWithoutReadableNameGivesTheDefaults();
    void aFolderOfTheLongestNameIsAsAnyOther();
    void aFolderThatIsGoneGivesTheDefaults();
    void withoutRightsThereAreTheDefaults();
    void withoutFilesToOpenThereAreTheDefaults();
};

void tst_ConfigFaults::theFirstFileIsWholeOrThereIsNone_data()
{
    QTest::addColumn<FileFaults::Effect>("effect");
    QTest::newRow("one error") << FileFaults::Effect::Error;
    QTest::newRow("lasting errors") << FileFaults::Effect::LastingError;
    QTest::newRow("killed") << FileFaults::Effect::Death;
}

void tst_ConfigFaults::theFirstFileIsWholeOrThereIsNone()
{
    QFETCH(FileFaults::Effect, effect);
    withEveryFault(
        effect, []() {}, []() { const Config config(nullptr); },
        [](const QByteArray &found) {
            QVERIFY2(found.isNull() || found == plainDefaults(), found.constData());
            const Config next(nullptr);
            QCOMPARE(next.isFirstStart(), found.isNull());
        });
}

void tst_ConfigFaults::resettingLeavesAWholeFileOrNone_data()
{
    theFirstFileIsWholeOrThereIsNone_data();
}

void tst_ConfigFaults::resettingLeavesAWholeFileOrNone()
{
    QFETCH(FileFaults::Effect, effect);
    const auto prepare = []() {
        Config config(nullptr);
        comment(config);
    };
    const auto reset = []() { Config(nullptr).resetDefaults(); };
    withEveryFault(effect, prepare, reset, [](const QByteArray &found) {
        QVERIFY2(found.isNull() || found == plainDefaults() || found == commentedDefaults(), found.constData());
    });
}

void tst_ConfigFaults::commentingLeavesAWholeFile_data()
{
    theFirstFileIsWholeOrThereIsNone_data();
}

void tst_ConfigFaults::commentingLeavesAWholeFile()
{
    QFETCH(FileFaults::Effect, effect);
    const auto prepare = []() { const Config config(nullptr); };
    const auto addComments = []() {
        Config config(nullptr);
        comment(config);
    };
    withEveryFault(effect, prepare, addComments, [](const QByteArray &found) {
        QVERIFY2(found == plainDefaults() || found == commentedDefaults(), found.constData());
    });
}

// The longest file that may be written stands for the size of the disk.
void tst_ConfigFaults::aFirstStartOnAFullDiskIsNotTheLast()
{
    const ScratchFolder folder;
    for (const rlim_t room : {0U, 10U, 100U}) {
        auto full = std::make_unique<ResourceLimit>(RLIMIT_FSIZE, room);
        const Config config(nullptr);
        full.reset();
        QVERIFY(config.isFirstStart());
        compareWithDefaults(config);
        QVERIFY(!QFile::exists(name));
    }
    QVERIFY(Config(nullptr).isFirstStart());
    QVERIFY(!Config(nullptr).isFirstStart());
    QCOMPARE(folder.read(name), plainDefaults());
}

void tst_ConfigFaults::aDiskThatCannotBeReadGivesTheDefaults_data()
{
    QTest::addColumn<QString>("temporaryFolder");
    QTest::newRow("as usual") << QDir::tempPath();
    QTest::newRow("without temporary folder") << QStringLiteral("/missing");
}

void tst_ConfigFaults::aDiskThatCannotBeReadGivesTheDefaults()
{
    QFETCH(QString, temporaryFolder);
    const ScratchFolder folder;
    folder.write(name, plainDefaults().replace("NMIN=1\n", "NMIN=7\n"));
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(temporaryFolder));
    const LogCapture log;
    {
        const FileFaults faults(folder.path(name), FileFaults::Calls::Reads, 1, FileFaults::Effect::LastingError);
        const Config config(nullptr);
        QVERIFY(FileFaults::seen() > 0);
        QVERIFY(!config.isFirstStart());
        compareWithDefaults(config);
    }
    qputenv("TMPDIR", before);
    QVERIFY(!log.warnings().isEmpty() || temporaryFolder == QStringLiteral("/missing"));
    QCOMPARE(Config(nullptr).nMin, 7); // nothing was written
    const FileFaults faults(folder.path(name), FileFaults::Calls::Reads, 1, FileFaults::Effect::LastingError);
    Config config(nullptr);
    QVERIFY(!comment(config)); // ends, as for any file without its lines
}

void tst_ConfigFaults::whatIsNoFileGivesTheDefaults_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("a device without end") << "/dev/zero";
    QTest::newRow("a pipe that nobody writes to") << "pipe";
}

void tst_ConfigFaults::whatIsNoFileGivesTheDefaults()
{
    QFETCH(QString, target);
    const ScratchFolder folder;
    QCOMPARE(mkfifo("pipe", S_IRUSR | S_IWUSR), 0);
    QVERIFY(QFile::link(target, name));
    Config config(nullptr);
    QVERIFY(!config.isFirstStart());
    compareWithDefaults(config);
    QVERIFY(!comment(config));
    QCOMPARE(folder.read(name), plainDefaults());
    QVERIFY(QFileInfo::exists(target));
}

void tst_ConfigFaults::aFolderInItsPlaceGivesTheDefaults()
{
    const ScratchFolder folder;
    QVERIFY(QDir().mkdir(name));
    Config config(nullptr);
    QVERIFY(!config.isFirstStart());
    compareWithDefaults(config);
    QVERIFY(!comment(config));
    QVERIFY(QFileInfo(name).isDir());
}

// It held nothing, and a file takes its place.
void tst_ConfigFaults::aLinkToItselfGivesTheDefaults()
{
    const ScratchFolder folder;
    QVERIFY(QFile::link(name, name));
    Config config(nullptr);
    QVERIFY(config.isFirstStart());
    compareWithDefaults(config);
    QVERIFY(comment(config));
    QCOMPARE(folder.read(name), commentedDefaults());
    QVERIFY(!Config(nullptr).isFirstStart());
    QCOMPARE(QDir().entryList(everything), QStringList(name));
}

// The program can name no file in it. The toolkit makes a folder with the nearest name, which the next start finds.
void tst_ConfigFaults::aFolderWithoutReadableNameGivesTheDefaults()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    const QByteArray text = plainDefaults().replace("NMIN=1\n", "NMIN=7\n");
    QCOMPARE(mkdir("odd\xff", S_IRWXU), 0);
    QCOMPARE(chdir("odd\xff"), 0);
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    Config config(nullptr);
    QVERIFY(config.isFirstStart());
    compareWithDefaults(config);
    comment(config);
    const Config next(nullptr);
    QVERIFY(!next.isFirstStart());
    compareWithDefaults(next);
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), text);
}

void tst_ConfigFaults::aFolderOfTheLongestNameIsAsAnyOther()
{
    constexpr int mostBytes = 255;
    const ScratchFolder folder;
    const QString longest(mostBytes, QLatin1Char('x'));
    QVERIFY(QDir().mkdir(longest) && QDir::setCurrent(longest));
    Config config(nullptr);
    QVERIFY(config.isFirstStart());
    compareWithDefaults(config);
    QVERIFY(comment(config));
    const QString path = folder.path(longest + QLatin1Char('/') + name);
    QCOMPARE(folder.read(path), commentedDefaults());
    folder.write(path, plainDefaults().replace("NMIN=1\n", "NMIN=7\n"));
    const Config next(nullptr);
    QVERIFY(!next.isFirstStart());
    QCOMPARE(next.nMin, 7);
    QCOMPARE(QDir().entryList(everything), QStringList(name));
}

void tst_ConfigFaults::aFolderThatIsGoneGivesTheDefaults()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder); // to the root folder, which then is the current one, only root may write
    QVERIFY(QDir().mkdir(QStringLiteral("gone")) && QDir::setCurrent(folder.path(QStringLiteral("gone"))));
    QVERIFY(QDir(folder.path(QString())).rmdir(QStringLiteral("gone")));
    Config config(nullptr);
    QVERIFY(config.isFirstStart());
    QCOMPARE(config.nMax, 90);
    QVERIFY(!comment(config));
    QVERIFY(!QFile::exists(folder.path(QStringLiteral("gone"))));
}

void tst_ConfigFaults::withoutRightsThereAreTheDefaults()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    folder.write(name, plainDefaults().replace("NMIN=1\n", "NMIN=7\n"));
    QVERIFY(QFile::setPermissions(name, {}));
    QVERIFY(QFile::setPermissions(QStringLiteral("."), QFile::ReadOwner | QFile::ExeOwner));
    Config config(nullptr);
    const bool commented = comment(config);
    QFile::setPermissions(QStringLiteral("."), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(!config.isFirstStart());
    compareWithDefaults(config);
    QVERIFY(!commented);
    QVERIFY(QFile::setPermissions(name, QFile::ReadOwner));
    QCOMPARE(folder.read(name), plainDefaults().replace("NMIN=1\n", "NMIN=7\n"));
    QCOMPARE(QDir().entryList(QDir::Files | QDir::Hidden), QStringList(name));
}

void tst_ConfigFaults::withoutFilesToOpenThereAreTheDefaults()
{
    const ScratchFolder folder;
    auto none = std::make_unique<ResourceLimit>(RLIMIT_NOFILE, 0);
    const Config first(nullptr);
    none.reset();
    compareWithDefaults(first);
    QVERIFY(!QFile::exists(name));

    folder.write(name, plainDefaults().replace("NMIN=1\n", "NMIN=7\n"));
    none = std::make_unique<ResourceLimit>(RLIMIT_NOFILE, 0);
    const Config second(nullptr);
    none.reset();
    QVERIFY(!second.isFirstStart());
    compareWithDefaults(second);
    QCOMPARE(Config(nullptr).nMin, 7);
}

QTEST_GUILESS_MAIN(tst_ConfigFaults)
#include "tst_ConfigFaults.moc"
