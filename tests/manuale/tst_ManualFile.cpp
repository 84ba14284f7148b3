// SPDX-License-Identifier: MIT
#include "manuale/ManualFile.h"

#include "support/ScratchFolder.h"

#include <QDir>
#include <QtTest>

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
    QCOMPARE(manualFile(locale), folder.path(file));
}

void tst_ManualFile::withoutTheEnglishOneThereIsNone()
{
    const ScratchFolder folder;
    QCOMPARE(manualFile(QStringLiteral("it_IT")), QString());
    folder.write(italian, "it");
    QCOMPARE(manualFile(QStringLiteral("de_DE")), QString());
    QCOMPARE(manualFile(QStringLiteral("it_IT")), folder.path(italian));
}

void tst_ManualFile::aFolderIsNoManual()
{
    const ScratchFolder folder;
    QVERIFY(QDir::current().mkpath(italian));
    QCOMPARE(manualFile(QStringLiteral("it_IT")), QString());
}

void tst_ManualFile::theFolderIsThatOfTheProgram()
{
    const ScratchFolder folder;
    QCOMPARE(manualFolder(), folder.path(QStringLiteral("manual")));
}

QTEST_GUILESS_MAIN(tst_ManualFile)
#include "tst_ManualFile.moc"
