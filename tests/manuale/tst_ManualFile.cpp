// SPDX-License-Identifier: MIT
#include "manuale/ManualFile.h"

#include "support/FileFaults.h"
#include "support/ScratchFolder.h"

#include <QDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {
const QString italian = QStringLiteral("manual/manual_it.html");
const QString english = QStringLiteral("manual/manual_en.html");
} // namespace

class tst_ManualFile final : public QObject
{
    Q_OBJECT

private slots:
    void itIsInTheLanguageOrInEnglish_data();
    void itIsInTheLanguageOrInEnglish();
    void withoutTheEnglishOneThereIsNone();
    void aFolderIsNoManual();
    void oneThatBreaksOffGivesWayToTheEnglishOne();
    void aPipeIsNoManual();
    void aFolderThatIsNotUtf8HasNone();
    void theFolderIsThatOfTheProgram();
};

void tst_ManualFile::itIsInTheLanguageOrInEnglish_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("file");
    QTest::newRow("Italian") << QStringLiteral("it_IT") << italian;
    QTest::newRow("Italian of elsewhere") << QStringLiteral("it_CH") << italian;
    QTest::newRow("no country") << QStringLiteral("it") << italian;
    QTest::newRow("English") << QStringLiteral("en_GB") << english;
    QTest::newRow("no manual in it") << QStringLiteral("de_DE") << english;
    QTest::newRow("unknown") << QString() << english;
}

void tst_ManualFile::itIsInTheLanguageOrInEnglish()
{
    QFETCH(QString, locale);
    QFETCH(QString, file);
    const ScratchFolder folder;
    folder.write(italian, "it");
    folder.write(english, "en");
    const ManualFile found = manualFor(locale);
    QCOMPARE(found.name, folder.path(file));
    QCOMPARE(found.page, folder.read(file));
}

void tst_ManualFile::withoutTheEnglishOneThereIsNone()
{
    const ScratchFolder folder;
    QCOMPARE(manualFor(QStringLiteral("it_IT")).page, QByteArray());
    folder.write(italian, "it");
    QCOMPARE(manualFor(QStringLiteral("de_DE")).page, QByteArray());
    QCOMPARE(manualFor(QStringLiteral("it_IT")).page, QByteArray("it"));
}

void tst_ManualFile::aFolderIsNoManual()
{
    const ScratchFolder folder;
    QVERIFY(QDir::current().mkpath(italian));
    QCOMPARE(manualFor(QStringLiteral("it_IT")).page, QByteArray());
}

void tst_ManualFile::oneThatBreaksOffGivesWayToTheEnglishOne()
{
    const ScratchFolder folder;
    folder.write(italian, QByteArray(100000, 'i'));
    folder.write(english, "en");
    int calls = 1;
    for (bool broken = true; broken; ++calls) {
        const FileFaults faults(folder.path(italian), FileFaults::Calls::ReadsOfBlocks, calls,
                                FileFaults::Effect::LastingError);
        const QByteArray page = manualFor(QStringLiteral("it_IT")).page;
        broken = FileFaults::struck() != nullptr;
        QCOMPARE(page, broken ? QByteArray("en") : QByteArray(100000, 'i'));
    }
    QVERIFY(calls > 20);
}

// It would be waited for without end.
void tst_ManualFile::aPipeIsNoManual()
{
    const ScratchFolder folder;
    QVERIFY(QDir().mkdir(manualFolder()));
    QCOMPARE(mkfifo(qPrintable(italian), S_IRUSR | S_IWUSR), 0);
    QCOMPARE(manualFor(QStringLiteral("it_IT")).page, QByteArray());
}

// No text of the program can name it.
void tst_ManualFile::aFolderThatIsNotUtf8HasNone()
{
    const ScratchFolder folder;
    folder.write(italian, "it");
    QCOMPARE(mkdir("odd\xff", S_IRWXU), 0);
    QCOMPARE(chdir("odd\xff"), 0);
    QCOMPARE(symlink("../manual", "manual"), 0);
    QVERIFY(QFile::exists(italian));
    QCOMPARE(manualFor(QStringLiteral("it_IT")).page, QByteArray());
}

void tst_ManualFile::theFolderIsThatOfTheProgram()
{
    const ScratchFolder folder;
    QCOMPARE(manualFolder(), folder.path(QStringLiteral("manual")));
}

QTEST_GUILESS_MAIN(tst_ManualFile)
#include "tst_ManualFile.moc"
