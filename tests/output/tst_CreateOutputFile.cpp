// SPDX-License-Identifier: MIT
#include "output/CreateOutputFile.h"

#include "output/PdfTools.h"
#include "output/SampleSets.h"
#include "settings/Config.h"
#include "support/LogCapture.h"
#include "support/ScratchFolder.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPagedPaintDevice>
#include <QSignalSpy>
#include <QtTest>

namespace {
QStringList textsOf(const QSignalSpy &spy)
{
    QStringList texts;
    for (const QList<QVariant> &arguments : spy) {
        texts.append(arguments.first().toString());
    }
    return texts;
}
} // namespace

class tst_CreateOutputFile final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void suffixChoosesTheWriter_data();
    void suffixChoosesTheWriter();
    void suffixMustBeTheNameOfTheConfiguredFormat();
    void formatSwitchedOffIsUnknown();
    void formatWithoutWriterIsNotAvailable();
    void reportsAreAppended();
    void progressIsToldBeforeEachPageAndAtTheEnd();
    void onePageHasOneProgressMessage();
    void reportTellsNamePathPagesSizeAndFormat();
    void unwritablePathsAreRefused_data();
    void unwritablePathsAreRefused();
    void fullDiskStopsThePrint_data();
    void fullDiskStopsThePrint();
    void emptySetIsPrintedWithoutProgress();

private:
    int create(const QString &name, quint16 pages = 1);

    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<CurrentConfig> m_config;
    QString m_report;
};

void tst_CreateOutputFile::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_config = std::make_unique<CurrentConfig>(qApp);
    m_report.clear();
}

void tst_CreateOutputFile::cleanup()
{
    m_config.reset();
    m_folder.reset();
}

void tst_CreateOutputFile::suffixChoosesTheWriter_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("known");
    QTest::newRow("lower case") << "cartelle.pdf" << true;
    QTest::newRow("upper case") << "cartelle.PDF" << true;
    QTest::newRow("mixed case") << "cartelle.pDf" << true;
    QTest::newRow("several dots") << "cartelle.txt.pdf" << true;
    QTest::newRow("another suffix") << "cartelle.txt" << false;
    QTest::newRow("PDF is not the last suffix") << "cards.PDF.txt" << false;
    QTest::newRow("no dot") << "PDF" << false;
    QTest::newRow("dot at the end") << "cartelle." << false;
    QTest::newRow("dot in the folder alone") << "pdf.pdf/cartelle" << false;
    QTest::newRow("empty") << "" << false;
}

void tst_CreateOutputFile::suffixChoosesTheWriter()
{
    QFETCH(QString, name);
    QFETCH(bool, known);
    const auto set = SampleSets::classic(1);
    CreateOutputFile output;
    const QSignalSpy progress(&output, &CreateOutputFile::status);
    const int result = output.create(name, set.get(), m_report);
    QCOMPARE(output.fileName, name);
    QCOMPARE(output.cartella, set.get());
    if (known) {
        QVERIFY(result > 0);
        QCOMPARE(PdfTools::pageCount(name), 1);
    } else {
        QCOMPARE(result, -1);
        QCOMPARE(m_report, QStringLiteral("Formato file sconosciuto!"));
        QVERIFY(!QFileInfo::exists(name));
        QVERIFY(progress.isEmpty());
    }
}

void tst_CreateOutputFile::suffixMustBeTheNameOfTheConfiguredFormat()
{
    m_config->outputFormatName = QStringLiteral("CARTE");
    QCOMPARE(create(QStringLiteral("a.pdf")), -1);
    QCOMPARE(m_report, QStringLiteral("Formato file sconosciuto!"));
    QVERIFY(create(QStringLiteral("a.carte")) > 0);
    QCOMPARE(PdfTools::pageCount(QStringLiteral("a.carte")), 1);
}

void tst_CreateOutputFile::formatSwitchedOffIsUnknown()
{
    m_config->outputFormatId = -1;
    QCOMPARE(create(QStringLiteral("a.pdf")), -1);
    QCOMPARE(m_report, QStringLiteral("Formato file sconosciuto!"));
    QVERIFY(!QFileInfo::exists(QStringLiteral("a.pdf")));
}

void tst_CreateOutputFile::formatWithoutWriterIsNotAvailable()
{
    m_config->outputFormatId = 5;
    QCOMPARE(create(QStringLiteral("a.pdf")), 0);
    QCOMPARE(m_report, QStringLiteral("Formato UNKNOWN non disponibile. Creazione annullata."));
    QVERIFY(!QFileInfo::exists(QStringLiteral("a.pdf")));
}

void tst_CreateOutputFile::reportsAreAppended()
{
    m_report = QStringLiteral("prima ");
    QCOMPARE(create(QStringLiteral("a.txt")), -1);
    QCOMPARE(m_report, QStringLiteral("prima Formato file sconosciuto!"));
    m_report = QStringLiteral("prima ");
    QVERIFY(create(QStringLiteral("a.pdf")) > 0);
    QVERIFY(m_report.startsWith(QStringLiteral("prima File creato con successo!\n\nNome: a\n")));
    m_report = QStringLiteral("prima ");
    QCOMPARE(create(QStringLiteral("manca/a.pdf")), -1);
    QCOMPARE(m_report, QStringLiteral("prima Impossibile scrivere sul file!"));
}

void tst_CreateOutputFile::progressIsToldBeforeEachPageAndAtTheEnd()
{
    const auto set = SampleSets::classic(3);
    CreateOutputFile output;
    const QSignalSpy progress(&output, &CreateOutputFile::status);
    QVERIFY(output.create(QStringLiteral("a.pdf"), set.get(), m_report) > 0);
    QCOMPARE(textsOf(progress), (QStringList{QStringLiteral("PDF: Stampa pagina 1 di 3 (0%) in corso..."),
                                             QStringLiteral("PDF: Stampa pagina 2 di 3 (33%) in corso..."),
                                             QStringLiteral("PDF: Stampa pagina 3 di 3 (66%) in corso..."),
                                             QStringLiteral("Stampa PDF completata!")}));
    QCOMPARE(PdfTools::pageCount(QStringLiteral("a.pdf")), 3);
}

void tst_CreateOutputFile::onePageHasOneProgressMessage()
{
    const auto set = SampleSets::classic(1);
    CreateOutputFile output;
    const QSignalSpy progress(&output, &CreateOutputFile::status);
    QVERIFY(output.create(QStringLiteral("a.pdf"), set.get(), m_report) > 0);
    QCOMPARE(textsOf(progress), (QStringList{QStringLiteral("PDF: Stampa pagina 1 di 1 (0%) in corso..."),
                                             QStringLiteral("Stampa PDF completata!")}));
    QCOMPARE(PdfTools::pageCount(QStringLiteral("a.pdf")), 1);
}

void tst_CreateOutputFile::reportTellsNamePathPagesSizeAndFormat()
{
    QVERIFY(QDir().mkdir(QStringLiteral("uscita %3")));
    const QString name = QStringLiteral("uscita %3/le mie.cartelle %2.pdf");
    const auto set = SampleSets::classic(2);
    set->formato = QPagedPaintDevice::A5;
    CreateOutputFile output;
    const int bytes = output.create(name, set.get(), m_report);
    QCOMPARE(qint64{bytes}, QFileInfo(name).size());
    const QString megabytes = QString::number(bytes * 9.536743e-07, 'f', 2);
    QCOMPARE(m_report, QStringLiteral("File creato con successo!\n\nNome: le mie.cartelle %2\nPercorso: ") +
                           QDir::currentPath() + QStringLiteral("/uscita %3\n\nPagine: 2\nDimensione: ") +
                           QString::number(bytes) + QStringLiteral(" Bytes (") + megabytes +
                           QStringLiteral(" MB)\n----------------------------------------\n\nDimensioni pagina: A5 "
                                          "(148x210mm)"));
}

void tst_CreateOutputFile::unwritablePathsAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("folder that does not exist") << "manca/a.pdf";
    QTest::newRow("name of a folder") << "cartella.pdf";
    QTest::newRow("file taken for a folder") << "file/a.pdf";
}

void tst_CreateOutputFile::unwritablePathsAreRefused()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkdir(QStringLiteral("cartella.pdf")));
    m_folder->write(QStringLiteral("file"), "x");
    const auto set = SampleSets::classic(2);
    CreateOutputFile output;
    const QSignalSpy progress(&output, &CreateOutputFile::status);
    QCOMPARE(output.create(name, set.get(), m_report), -1);
    QCOMPARE(m_report, QStringLiteral("Impossibile scrivere sul file!"));
    QVERIFY(progress.isEmpty());
    QVERIFY(QFileInfo(QStringLiteral("cartella.pdf")).isDir());
}

void tst_CreateOutputFile::fullDiskStopsThePrint_data()
{
    QTest::addColumn<int>("pages");
    QTest::newRow("while printing") << 300;
    QTest::newRow("at the end") << 1;
}

void tst_CreateOutputFile::fullDiskStopsThePrint()
{
    QFETCH(int, pages);
    if (!QFileInfo::exists(QStringLiteral("/dev/full"))) {
        QSKIP("no full device on this system");
    }
    QVERIFY(QFile::link(QStringLiteral("/dev/full"), QStringLiteral("pieno.pdf")));
    const auto set = SampleSets::classic(static_cast<quint16>(pages));
    CreateOutputFile output;
    const QSignalSpy progress(&output, &CreateOutputFile::status);
    QCOMPARE(output.create(QStringLiteral("pieno.pdf"), set.get(), m_report), -1);
    QCOMPARE(m_report, QStringLiteral("Impossibile continuare a scrivere sul file!"));
    QVERIFY(!textsOf(progress).contains(QStringLiteral("Stampa PDF completata!")));
    const bool allPagesDrawn = progress.size() == pages;
    QCOMPARE(allPagesDrawn, pages == 1);
}

void tst_CreateOutputFile::emptySetIsPrintedWithoutProgress()
{
    const LogCapture log;
    Cartella set;
    CreateOutputFile output;
    const QSignalSpy progress(&output, &CreateOutputFile::status);
    QVERIFY(output.create(QStringLiteral("a.pdf"), &set, m_report) > 0);
    QCOMPARE(textsOf(progress), QStringList{QStringLiteral("Stampa PDF completata!")});
    QVERIFY(m_report.contains(QStringLiteral("\nPagine: 0\n")));
    QVERIFY(PdfTools::isSound(QStringLiteral("a.pdf")));
    QCOMPARE(log.warnings(), QStringList());
}

int tst_CreateOutputFile::create(const QString &name, quint16 pages)
{
    const auto set = SampleSets::classic(pages);
    CreateOutputFile output;
    return output.create(name, set.get(), m_report);
}

QTEST_MAIN(tst_CreateOutputFile)
#include "tst_CreateOutputFile.moc"
