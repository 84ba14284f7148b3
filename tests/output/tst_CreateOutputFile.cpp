// SPDX-License-Identifier: MIT
#include "output/CreateOutputFile.h"

#include "output/PdfTools.h"
#include "output/SampleSets.h"
#include "settings/Config.h"
#include "settings/Product.h"
#include "support/LogCapture.h"
#include "support/ScratchFolder.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPagedPaintDevice>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <array>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using SampleSets::block;
using SampleSets::cell;

namespace {
// Ten dots per millimetre.
constexpr int dotsPerInch = 254;
constexpr int dotsPerMm = 10;

QStringList textsOf(const QSignalSpy &spy)
{
    QStringList texts;
    for (const QList<QVariant> &arguments : spy) {
        texts.append(arguments.first().toString());
    }
    return texts;
}

// At a place of the sheet, in millimetres.
QColor colorAt(const QImage &picture, double xMm, double yMm)
{
    return picture.pixelColor(qRound(xMm * dotsPerMm), qRound(yMm * dotsPerMm));
}

// Pictures are compressed with loss.
bool isAlmost(const QColor &measured, const QColor &expected)
{
    constexpr int tolerance = 8;
    return std::abs(measured.red() - expected.red()) <= tolerance &&
           std::abs(measured.green() - expected.green()) <= tolerance &&
           std::abs(measured.blue() - expected.blue()) <= tolerance;
}

// The first millimetre, at the height given and counted from the left, where the colour is met.
double firstAcross(const QImage &picture, double yMm, const QColor &color)
{
    for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, qRound(yMm * dotsPerMm)) == color) {
            return static_cast<double>(x) / dotsPerMm;
        }
    }
    return -1.0;
}

double firstDown(const QImage &picture, double xMm, const QColor &color)
{
    for (int y = 0; y < picture.height(); ++y) {
        if (picture.pixelColor(qRound(xMm * dotsPerMm), y) == color) {
            return static_cast<double>(y) / dotsPerMm;
        }
    }
    return -1.0;
}

bool isNear(double measured, double expected)
{
    constexpr double tolerance = 0.5; // margins are rounded to device pixels of a quarter of a millimetre
    return std::abs(measured - expected) <= tolerance;
}

// Peak memory of this process, in KB.
long peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}
} // namespace

class CreateOutputFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<ScratchFolder>();
        m_config = std::make_unique<Config>(qApp);
        globalConfig = m_config.get();
        m_report.clear();
    }

    void cleanup()
    {
        globalConfig = nullptr;
        m_config.reset();
        m_folder.reset();
    }

    void suffixChoosesTheWriter_data()
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

    void suffixChoosesTheWriter()
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

    void formatSwitchedOffIsUnknown()
    {
        m_config->outputFormatId = -1;
        QCOMPARE(create(QStringLiteral("a.pdf")), -1);
        QCOMPARE(m_report, QStringLiteral("Formato file sconosciuto!"));
        QVERIFY(!QFileInfo::exists(QStringLiteral("a.pdf")));
    }

    void formatWithoutWriterIsNotAvailable()
    {
        m_config->outputFormatId = 5;
        QCOMPARE(create(QStringLiteral("a.pdf")), 0);
        QCOMPARE(m_report, QStringLiteral("Formato UNKNOWN non disponibile. Creazione annullata."));
        QVERIFY(!QFileInfo::exists(QStringLiteral("a.pdf")));
    }

    void reportsAreAppended()
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

    void progressIsToldBeforeEachPageAndAtTheEnd()
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

    void onePageHasOneProgressMessage()
    {
        const auto set = SampleSets::classic(1);
        CreateOutputFile output;
        const QSignalSpy progress(&output, &CreateOutputFile::status);
        QVERIFY(output.create(QStringLiteral("a.pdf"), set.get(), m_report) > 0);
        QCOMPARE(textsOf(progress), (QStringList{QStringLiteral("PDF: Stampa pagina 1 di 1 (0%) in corso..."),
                                                 QStringLiteral("Stampa PDF completata!")}));
        QCOMPARE(PdfTools::pageCount(QStringLiteral("a.pdf")), 1);
    }

    void reportTellsNamePathPagesSizeAndFormat()
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

    void megabytesAreRoundedToTwoDecimals_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << qint64{0} << "0.00";
        QTest::newRow("one") << qint64{1048576} << "1.00";
        QTest::newRow("one and a half") << qint64{1572864} << "1.50";
        QTest::newRow("rounded up") << qint64{5243} << "0.01";
        QTest::newRow("beyond 32 bits") << qint64{5368709120} << "5120.00";
    }

    void megabytesAreRoundedToTwoDecimals()
    {
        QFETCH(qint64, bytes);
        QFETCH(QString, text);
        QCOMPARE(megabytesText(bytes), text);
    }

    void unwritablePathsAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("folder that does not exist") << "manca/a.pdf";
        QTest::newRow("name of a folder") << "cartella.pdf";
        QTest::newRow("file taken for a folder") << "file/a.pdf";
    }

    void unwritablePathsAreRefused()
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

    void fullDiskStopsThePrint_data()
    {
        QTest::addColumn<int>("pages");
        QTest::newRow("while printing") << 300;
        QTest::newRow("at the end") << 1;
    }

    void fullDiskStopsThePrint()
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
    }

    void emptySetIsPrintedWithoutProgress()
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

    void documentIsSoundAndNamedAfterTheProduct()
    {
        QVERIFY(create(QStringLiteral("a.pdf"), 4) > 0);
        QVERIFY(PdfTools::isSound(QStringLiteral("a.pdf")));
        QCOMPARE(PdfTools::title(QStringLiteral("a.pdf")), QStringLiteral("Quintra v0.704"));
        QCOMPARE(PdfTools::pageCount(QStringLiteral("a.pdf")), 4);
        const QSizeF points = PdfTools::pageSize(QStringLiteral("a.pdf"));
        QVERIFY(std::abs(points.width() - 595.0) <= 1.0 && std::abs(points.height() - 842.0) <= 1.0);
    }

    void everyNumberOfAClassicPageIsWrittenOnce()
    {
        QVERIFY(create(QStringLiteral("a.pdf")) > 0);
        QList<int> numbers;
        for (const QString &word : PdfTools::words(QStringLiteral("a.pdf"))) {
            numbers.append(word.toInt());
        }
        std::sort(numbers.begin(), numbers.end());
        QList<int> expected;
        for (int number = 1; number <= 90; ++number) {
            expected.append(number);
        }
        QCOMPARE(numbers, expected);
    }

    void textsAndNumbersAreReadable()
    {
        const auto set = SampleSets::singleBlock(1, 3);
        SampleSets::setText(cell(*set, 0, 0), QStringLiteral("Perché"));
        SampleSets::setNumber(cell(*set, 0, 1), 1234);
        cell(*set, 0, 2).numero = 77; // an empty cell shows no number
        CreateOutputFile output;
        QVERIFY(output.create(QStringLiteral("a.pdf"), set.get(), m_report) > 0);
        QCOMPARE(PdfTools::words(QStringLiteral("a.pdf")),
                 (QStringList{QStringLiteral("Perché"), QStringLiteral("1234")}));
    }

    void blocksStandAtTwiceTheLeftAndTopMargins()
    {
        const auto set = coloredSet();
        const QImage picture = printedPicture(*set);
        const QColor outline = block(*set).coloreLineaEsterna;
        constexpr double insideFirstRow = 60.0;
        constexpr double insideFirstCell = 50.0;
        constexpr double halfOutline = 0.5; // four device pixels wide
        QVERIFY(isNear(firstAcross(picture, insideFirstRow, outline), 2 * 12.0 - halfOutline));
        QVERIFY(isNear(firstDown(picture, insideFirstCell, outline), 2 * 18.0 - halfOutline));
        const QImage mirrored = picture.mirrored(true, true);
        QVERIFY(isNear(firstAcross(mirrored, 297.0 - insideFirstRow, outline), 10.0 - halfOutline));
        // The spacing stands below the last block, too.
        QVERIFY(isNear(firstDown(mirrored, 210.0 - insideFirstCell, outline), 20.0 + 6.0 - halfOutline));
    }

    void backgroundsSeparatorsAndPicturesAreWhereTheyBelong()
    {
        const auto set = coloredSet();
        const QImage picture = printedPicture(*set);
        // Block: 24 to 200 mm across, cells of 44 mm; two blocks of (297 - 36 - 20) / 2 - 6 = 114.5 mm, from 36 mm
        // down, rows of 57.25 mm.
        const double row0 = 40.0;
        const double row1 = 36.0 + 57.25 + 10.0;
        const QColor page = set->pagine.first()->sfondo;
        QCOMPARE(colorAt(picture, 20.0, row0), page);
        QCOMPARE(colorAt(picture, 100.0, 36.0 + 114.5 + 3.0), page); // between the blocks
        QCOMPARE(colorAt(picture, 30.0, row0), QColor(Qt::yellow));
        QCOMPARE(colorAt(picture, 24.0 + 44.0, row0), QColor(Qt::red)); // separators
        QCOMPARE(colorAt(picture, 24.0 + 88.0, row0), QColor(Qt::red));
        QCOMPARE(colorAt(picture, 90.0, 36.0 + 57.25), QColor(Qt::red));
        QCOMPARE(colorAt(picture, 80.0, row0), page); // same colour as the page
        // A picture of 4 x 40 dots, upper half green and lower half blue, fills its cell.
        QVERIFY(isAlmost(colorAt(picture, 24.0 + 2.0, row1), Qt::green));
        QVERIFY(isAlmost(colorAt(picture, 24.0 + 42.0, row1), Qt::green));
        QVERIFY(isAlmost(colorAt(picture, 24.0 + 2.0, 36.0 + 114.5 - 4.0), Qt::blue));
        QVERIFY(isAlmost(colorAt(picture, 24.0 + 42.0, 36.0 + 114.5 - 4.0), Qt::blue));
    }

    void pictureIsStoredOnceHoweverManyCellsShowIt()
    {
        const QImage noise = noisyPicture();
        const auto set = SampleSets::classic(3);
        SampleSets::setPicture(cell(*set, 0, 0), noise);
        CreateOutputFile output;
        const int one = output.create(QStringLiteral("uno.pdf"), set.get(), m_report);
        SampleSets::forEachCell(*set, [&](Cella &each) { SampleSets::setPicture(each, noise); });
        const int all = output.create(QStringLiteral("tutti.pdf"), set.get(), m_report);
        QCOMPARE(PdfTools::storedPictures(QStringLiteral("uno.pdf")), 1);
        QCOMPARE(PdfTools::storedPictures(QStringLiteral("tutti.pdf")), 1);
        QVERIFY2(all < one + one / 2, qPrintable(QStringLiteral("%1 and %2 bytes").arg(one).arg(all)));
    }

    void fileGrowsLittlePerPage()
    {
        const int few = create(QStringLiteral("pochi.pdf"), 10);
        const int many = create(QStringLiteral("tanti.pdf"), 110);
        constexpr int mostBytesPerPage = 4000; // the fonts are stored once
        QVERIFY2((many - few) / 100 < mostBytesPerPage, qPrintable(QString::number((many - few) / 100)));
    }

    void printingNeedsLittleMemoryPerPage()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the sanitizer keeps freed memory");
#endif
        const auto set = SampleSets::classic(2000);
        const auto few = SampleSets::classic(200);
        const long fewPages = peakGrowthOfPrinting(*few);
        const long manyPages = peakGrowthOfPrinting(*set);
        QVERIFY(fewPages >= 0 && manyPages > 0);
        constexpr long mostPerPage = 2; // KB
        QVERIFY2(manyPages - fewPages < mostPerPage * 1800, qPrintable(QStringLiteral("%1 KB").arg(manyPages)));
    }

private:
    int create(const QString &name, quint16 pages = 1)
    {
        const auto set = SampleSets::classic(pages);
        CreateOutputFile output;
        return output.create(name, set.get(), m_report);
    }

    static std::unique_ptr<Cartella> coloredSet()
    {
        auto set = std::make_unique<Cartella>(U8{2}, U8{2}, U8{4});
        set->margineSinistro = 12.0;
        set->margineSuperiore = 18.0;
        set->margineDestro = 10.0;
        set->margineInferiore = 20.0;
        Pagina &page = *set->pagine.first();
        page.sfondo = QColor(200, 220, 240);
        page.spazioBlocchi = 6.0F;
        for (int b = 0; b < 2; ++b) {
            block(*set, b).spessoreLineaEsterna = 4;
            block(*set, b).coloreLineaEsterna = Qt::magenta;
            block(*set, b).spessoreLineaInterna = 4;
            block(*set, b).coloreLineaInterna = Qt::red;
        }
        SampleSets::forEachCell(*set, [&](Cella &each) { each.coloreSfondo = page.sfondo; });
        cell(*set, 0, 0).coloreSfondo = Qt::yellow;
        SampleSets::setPicture(cell(*set, 1, 0), SampleSets::twoColoredPicture({4, 40}, Qt::green, Qt::blue));
        return set;
    }

    QImage printedPicture(Cartella &set)
    {
        CreateOutputFile output;
        output.create(QStringLiteral("a.pdf"), &set, m_report);
        return PdfTools::picture(QStringLiteral("a.pdf"), 1, dotsPerInch);
    }

    // One that cannot be compressed.
    static QImage noisyPicture()
    {
        QImage noise(200, 200, QImage::Format_RGB32);
        quint32 state = 1;
        for (int y = 0; y < noise.height(); ++y) {
            for (int x = 0; x < noise.width(); ++x) {
                state = state * 1664525U + 1013904223U;
                noise.setPixel(x, y, state >> 8U);
            }
        }
        return noise;
    }

    // Peak memory that printing adds, in KB, measured in a process of its own; negative when the print fails.
    static long peakGrowthOfPrinting(Cartella &set)
    {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0) {
            return -1;
        }
        const pid_t child = fork();
        if (child == 0) {
            const long before = peakMemory();
            CreateOutputFile output;
            QString report;
            const bool good = output.create(QStringLiteral("memoria.pdf"), &set, report) > 0;
            const long growth = good ? peakMemory() - before : -1;
            _exit(write(ends[1], &growth, sizeof(growth)) == sizeof(growth) ? 0 : 1);
        }
        close(ends[1]);
        long growth = -1;
        if (read(ends[0], &growth, sizeof(growth)) != sizeof(growth)) {
            growth = -1;
        }
        close(ends[0]);
        waitpid(child, nullptr, 0);
        return growth;
    }

    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<Config> m_config;
    QString m_report;
};

QTEST_MAIN(CreateOutputFileTest)
#include "tst_CreateOutputFile.moc"
