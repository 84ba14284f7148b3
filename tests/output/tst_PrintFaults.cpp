// SPDX-License-Identifier: MIT
// Prints that fail or are killed, over an older print and where there is none.
#include "output/CreateOutputFile.h"
#include "output/PdfTools.h"
#include "output/SampleSets.h"
#include "settings/Config.h"
#include "support/FileFaults.h"
#include "support/OrdinaryUser.h"
#include "support/ScratchFolder.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QtTest>

namespace {
const QString name = QStringLiteral("cards.pdf");
const QString besideName = QStringLiteral("cards.pdf.part");
const QByteArray older = "cards already handed out";
const QString cannotContinue = QStringLiteral("Impossibile continuare a scrivere sul file!");

// What came of one print.
struct Outcome
{
    int result = 0;
    QString report;
    int pagesBegun = 0;
};

Outcome print(const QString &path, quint16 pages)
{
    const auto set = SampleSets::classic(pages);
    CreateOutputFile output;
    const QSignalSpy progress(&output, &CreateOutputFile::status);
    Outcome outcome;
    outcome.result = output.create(path, set.get(), outcome.report);
    outcome.pagesBegun = progress.size();
    return outcome;
}

QStringList printsHere()
{
    return QDir().entryList({QStringLiteral("cards*")}, QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
}
} // namespace

class tst_PrintFaults final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void afterAnyFaultThePrintIsWholeOrTheOlderOneIsThere_data();
    void afterAnyFaultThePrintIsWholeOrTheOlderOneIsThere();
    void afterAFailedPageThePartIsLeft_data();
    void afterAFailedPageThePartIsLeft();
    void afterAFailedEndThereIsNoPart();
    void aRefusedPrintLeavesTheOlderOne();
    void aDiskWithoutRoomForANewFileKeepsTheOlderOne();
    void aLinkStaysALink();
    void aFolderThatTakesNoNewFileHasItsPrintWritten();
    void aPrintIsOnlyThereWhenItIsWhole();

private:
    QString path() const { return m_folder->path(name); }

    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<CurrentConfig> m_config;
};

void tst_PrintFaults::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_config = std::make_unique<CurrentConfig>(qApp);
}

void tst_PrintFaults::cleanup()
{
    m_config.reset();
    m_folder.reset();
}

void tst_PrintFaults::afterAnyFaultThePrintIsWholeOrTheOlderOneIsThere_data()
{
    QTest::addColumn<FileFaults::Effect>("effect");
    QTest::newRow("one error") << FileFaults::Effect::Error;
    QTest::newRow("lasting errors") << FileFaults::Effect::LastingError;
    QTest::newRow("killed") << FileFaults::Effect::Death;
}

void tst_PrintFaults::afterAnyFaultThePrintIsWholeOrTheOlderOneIsThere()
{
    QFETCH(FileFaults::Effect, effect);
    constexpr quint16 pages = 10;
    bool reached = true;
    for (int call = 1; reached; ++call) {
        m_folder->write(name, older);
        Outcome outcome;
        {
            const FileFaults faults(path(), FileFaults::Calls::Changes, call, effect);
            if (effect == FileFaults::Effect::Death) {
                reached = isKilledDuring([this]() { print(path(), pages); });
            } else {
                outcome = print(path(), pages);
                reached = FileFaults::seen() >= call;
            }
        }
        QVERIFY2(!reached || call < 50, "too many calls");
        const bool replaced = m_folder->read(name) != older;
        QVERIFY2(!replaced || (PdfTools::isSound(name) && PdfTools::pageCount(name) == pages),
                 qPrintable(QString::number(call)));
        QVERIFY(reached || replaced);
        QVERIFY(outcome.result <= 0 || replaced);
        QVERIFY(outcome.result >= 0 || outcome.report == cannotContinue);
        QVERIFY(call > 4 || reached);
        QFile::remove(besideName);
    }
}

void tst_PrintFaults::afterAFailedPageThePartIsLeft_data()
{
    QTest::addColumn<bool>("olderOne");
    QTest::newRow("beside the older print") << true;
    QTest::newRow("under its name") << false;
}

void tst_PrintFaults::afterAFailedPageThePartIsLeft()
{
    QFETCH(bool, olderOne);
    constexpr quint16 pages = 50;
    if (olderOne) {
        m_folder->write(name, older);
    }
    Outcome outcome;
    {
        const FileFaults faults(path(), FileFaults::Calls::Changes, 4, FileFaults::Effect::Error);
        outcome = print(path(), pages);
    }
    QCOMPARE(outcome.result, -1);
    QCOMPARE(outcome.report, cannotContinue);
    QVERIFY(outcome.pagesBegun > 0 && outcome.pagesBegun < pages);
    const QString part = olderOne ? besideName : name;
    QCOMPARE(printsHere(), olderOne ? (QStringList{name, besideName}) : QStringList(name));
    QVERIFY(m_folder->read(part).startsWith("%PDF-"));
    QVERIFY(!olderOne || m_folder->read(name) == older);
}

void tst_PrintFaults::afterAFailedEndThereIsNoPart()
{
    {
        const FileFaults faults(path(), FileFaults::Calls::Changes, 2, FileFaults::Effect::LastingError);
        const Outcome outcome = print(path(), 1);
        QCOMPARE(outcome.result, -1);
        QCOMPARE(outcome.report, cannotContinue);
    }
    QCOMPARE(printsHere(), QStringList());
}

void tst_PrintFaults::aRefusedPrintLeavesTheOlderOne()
{
    const OrdinaryUser user(*m_folder);
    m_folder->write(name, older);
    QVERIFY(QFile::setPermissions(name, QFile::ReadOwner));
    const Outcome outcome = print(name, 2);
    QCOMPARE(outcome.result, -1);
    QCOMPARE(outcome.report, QStringLiteral("Impossibile scrivere sul file!"));
    QCOMPARE(outcome.pagesBegun, 0);
    QCOMPARE(m_folder->read(name), older);
    QCOMPARE(printsHere(), QStringList(name));
}

void tst_PrintFaults::aDiskWithoutRoomForANewFileKeepsTheOlderOne()
{
    m_folder->write(name, older);
    const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::Creations, 1,
                            FileFaults::Effect::LastingError);
    const Outcome outcome = print(path(), 2);
    QCOMPARE(outcome.result, -1);
    QCOMPARE(outcome.report, QStringLiteral("Impossibile scrivere sul file!"));
    QCOMPARE(m_folder->read(name), older);
}

void tst_PrintFaults::aLinkStaysALink()
{
    QVERIFY(QDir().mkdir(QStringLiteral("there")));
    m_folder->write(QStringLiteral("there/b.pdf"), older);
    QVERIFY(QFile::link(QStringLiteral("there/b.pdf"), name));
    QVERIFY(print(name, 1).result > 0);
    QVERIFY(QFileInfo(name).isSymLink());
    QVERIFY(PdfTools::isSound(QStringLiteral("there/b.pdf")));
}

void tst_PrintFaults::aFolderThatTakesNoNewFileHasItsPrintWritten()
{
    const OrdinaryUser user(*m_folder);
    m_folder->write(name, older);
    QVERIFY(QFile::setPermissions(QStringLiteral("."), QFile::ReadOwner | QFile::ExeOwner));
    const Outcome onTheOld = print(name, 1);
    const Outcome fresh = print(QStringLiteral("cards2.pdf"), 1);
    QFile::setPermissions(QStringLiteral("."), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(onTheOld.result > 0);
    QCOMPARE(fresh.report, QStringLiteral("Impossibile scrivere sul file!"));
    QVERIFY(PdfTools::isSound(name));
    QCOMPARE(printsHere(), QStringList(name));
}

void tst_PrintFaults::aPrintIsOnlyThereWhenItIsWhole()
{
    const auto set = SampleSets::classic(2);
    CreateOutputFile output;
    int seen = 0;
    connect(&output, &CreateOutputFile::status, this, [&seen](const QString &text) {
        ++seen;
        QCOMPARE(QFile::exists(name), text == QStringLiteral("Stampa PDF completata!"));
    });
    QString report;
    const int bytes = output.create(name, set.get(), report);
    QCOMPARE(seen, 3);
    QCOMPARE(qint64{bytes}, QFileInfo(name).size());
    QCOMPARE(printsHere(), QStringList(name));
    QVERIFY(report.contains(QStringLiteral("Nome: cards\n")));
}

QTEST_MAIN(tst_PrintFaults)
#include "tst_PrintFaults.moc"
