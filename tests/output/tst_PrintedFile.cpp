// SPDX-License-Identifier: MIT
#include "output/CreateOutputFile.h"

#include "output/PdfTools.h"
#include "output/SampleSets.h"
#include "support/ScratchFolder.h"

#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using SampleSets::block;
using SampleSets::cell;

namespace {
// Ten dots per millimetre.
constexpr int dotsPerInch = 254;
constexpr int dotsPerMm = 10;

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

// Size of the file in bytes, -1 on failure.
int print(Cartella &set, const QString &fileName)
{
    CreateOutputFile output;
    output.fileName = fileName;
    output.cartella = &set;
    QString report;
    return output.printPdf(report);
}

int printClassic(const QString &fileName, quint16 pages = 1)
{
    return print(*SampleSets::classic(pages), fileName);
}

// Peak memory of this process, in KB.
long peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}
} // namespace

// What the printed file holds, looked at with the tools of others.
class tst_PrintedFile final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void documentIsSoundAndNamedAfterTheProduct();
    void everyNumberOfAClassicPageIsWrittenOnce();
    void textsAndNumbersAreReadable();
    void blocksStandAtTwiceTheLeftAndTopMargins();
    void backgroundsSeparatorsAndPicturesAreWhereTheyBelong();
    void pictureIsStoredOnceHoweverManyCellsShowIt();
    void fileGrowsLittlePerPage();
    void printingNeedsLittleMemoryPerPage();

private:
    static std::unique_ptr<Cartella> coloredSet();
    static QImage printedPicture(Cartella &set);

    // One that cannot be compressed.
    static QImage noisyPicture();

    // Peak memory that printing adds, in KB, measured in a process of its own; negative when the print fails.
    static long peakGrowthOfPrinting(Cartella &set);

    std::unique_ptr<ScratchFolder> m_folder;
};

void tst_PrintedFile::init()
{
    m_folder = std::make_unique<ScratchFolder>();
}

void tst_PrintedFile::cleanup()
{
    m_folder.reset();
}

void tst_PrintedFile::documentIsSoundAndNamedAfterTheProduct()
{
    QVERIFY(printClassic(QStringLiteral("a.pdf"), 4) > 0);
    QVERIFY(PdfTools::isSound(QStringLiteral("a.pdf")));
    QCOMPARE(PdfTools::title(QStringLiteral("a.pdf")), QStringLiteral("Quintra v0.704"));
    QCOMPARE(PdfTools::creator(QStringLiteral("a.pdf")), QStringLiteral("Quintra v0.704"));
    QCOMPARE(PdfTools::pageCount(QStringLiteral("a.pdf")), 4);
    const QSizeF points = PdfTools::pageSize(QStringLiteral("a.pdf"));
    QVERIFY(std::abs(points.width() - 595.0) <= 1.0 && std::abs(points.height() - 842.0) <= 1.0);
}

void tst_PrintedFile::everyNumberOfAClassicPageIsWrittenOnce()
{
    QVERIFY(printClassic(QStringLiteral("a.pdf")) > 0);
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

void tst_PrintedFile::textsAndNumbersAreReadable()
{
    const auto set = SampleSets::singleBlock(1, 3);
    SampleSets::setText(cell(*set, 0, 0), QStringLiteral("Perché"));
    SampleSets::setNumber(cell(*set, 0, 1), 1234);
    cell(*set, 0, 2).numero = 77; // an empty cell shows no number
    QVERIFY(print(*set, QStringLiteral("a.pdf")) > 0);
    QCOMPARE(PdfTools::words(QStringLiteral("a.pdf")), (QStringList{QStringLiteral("Perché"), QStringLiteral("1234")}));
}

void tst_PrintedFile::blocksStandAtTwiceTheLeftAndTopMargins()
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

void tst_PrintedFile::backgroundsSeparatorsAndPicturesAreWhereTheyBelong()
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

void tst_PrintedFile::pictureIsStoredOnceHoweverManyCellsShowIt()
{
    const QImage noise = noisyPicture();
    const auto set = SampleSets::classic(3);
    SampleSets::setPicture(cell(*set, 0, 0), noise);
    const int one = print(*set, QStringLiteral("uno.pdf"));
    SampleSets::forEachCell(*set, [&](Cella &each) { SampleSets::setPicture(each, noise); });
    const int all = print(*set, QStringLiteral("tutti.pdf"));
    QCOMPARE(PdfTools::storedPictures(QStringLiteral("uno.pdf")), 1);
    QCOMPARE(PdfTools::storedPictures(QStringLiteral("tutti.pdf")), 1);
    QVERIFY2(all < one + one / 2, qPrintable(QStringLiteral("%1 and %2 bytes").arg(one).arg(all)));
}

void tst_PrintedFile::fileGrowsLittlePerPage()
{
    const int few = printClassic(QStringLiteral("pochi.pdf"), 10);
    const int many = printClassic(QStringLiteral("tanti.pdf"), 110);
    constexpr int mostBytesPerPage = 4000; // the fonts are stored once
    QVERIFY2((many - few) / 100 < mostBytesPerPage, qPrintable(QString::number((many - few) / 100)));
}

void tst_PrintedFile::printingNeedsLittleMemoryPerPage()
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

std::unique_ptr<Cartella> tst_PrintedFile::coloredSet()
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

QImage tst_PrintedFile::printedPicture(Cartella &set)
{
    print(set, QStringLiteral("a.pdf"));
    return PdfTools::picture(QStringLiteral("a.pdf"), 1, dotsPerInch);
}

QImage tst_PrintedFile::noisyPicture()
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

long tst_PrintedFile::peakGrowthOfPrinting(Cartella &set)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        return -1;
    }
    const pid_t child = fork();
    if (child == 0) {
        // Memory freed earlier shall not be used unseen, nor an earlier peak hide the new one.
        malloc_trim(0);
        std::ofstream("/proc/self/clear_refs") << "5";
        const long before = peakMemory();
        const bool good = print(set, QStringLiteral("memoria.pdf")) > 0;
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

QTEST_MAIN(tst_PrintedFile)
#include "tst_PrintedFile.moc"
