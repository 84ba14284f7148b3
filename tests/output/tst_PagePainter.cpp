// SPDX-License-Identifier: MIT
#include "output/PagePainter.h"

#include "output/CreateOutputFile.h"
#include "output/PdfTools.h"
#include "output/ReferencePainter.h"
#include "output/SampleSets.h"
#include "support/FatalMessage.h"
#include "support/LogCapture.h"
#include "support/ScratchFolder.h"

#include <QApplication>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QtTest>

using SampleSets::block;
using SampleSets::cell;
using SampleSets::forEachCell;
using SampleSets::setNumber;
using SampleSets::setPicture;
using SampleSets::setText;
using SampleSets::singleBlock;

namespace {
using Set = std::shared_ptr<Cartella>;

Set classicSet(const std::function<void(Cartella &)> &change = {})
{
    Set set = SampleSets::classic(1);
    if (change) {
        change(*set);
    }
    return set;
}

Set classicWithCells(const std::function<void(Cella &)> &change)
{
    return classicSet([&](Cartella &set) { forEachCell(set, change); });
}

QFont arial(int size, const std::function<void(QFont &)> &change = {})
{
    QFont font(QStringLiteral("Arial"), size);
    if (change) {
        change(font);
    }
    return font;
}

void paintOn(QImage &image, const Cartella &set)
{
    QPainter painter(&image);
    const double millimetres = 100.0;
    const PagePainter pages(&painter, documentLayout({image.rect(), millimetres, millimetres, 0, 0, 0, 0}));
    pages.paintPage(*set.pagine.first());
}

Set textsOfAllKinds()
{
    Set set = singleBlock(4, 3);
    const QStringList texts = {
        QStringLiteral("JOLLY"),
        QStringLiteral("due\nrighe"),
        QStringLiteral("un testo molto più largo della sua cella"),
        QStringLiteral("perché è così"),
        QStringLiteral("שלום"),
        QStringLiteral("e\u0301 a\u0308 o\u0302"),
        QStringLiteral("a\tb & c"),
        QStringLiteral("uno\ndue\ntre\nquattro\ncinque\nsei\nsette\notto"),
        QStringLiteral("  spazi  "),
        QString(),
        QStringLiteral("\n"),
        QStringLiteral("12"),
    };
    for (int i = 0; i < texts.size(); ++i) {
        setText(cell(*set, i / 3, i % 3), texts.at(i));
    }
    return set;
}

Set fontsOfAllKinds()
{
    Set set = singleBlock(4, 3);
    const QVector<QFont> fonts = {
        arial(30, [](QFont &f) { f.setItalic(true); }),
        arial(30, [](QFont &f) { f.setBold(true); }),
        arial(30, [](QFont &f) { f.setUnderline(true); }),
        arial(30, [](QFont &f) { f.setStrikeOut(true); }),
        arial(1),
        arial(90),
        arial(300),
        QFont(QStringLiteral("Liberation Serif"), 24),
        arial(30, [](QFont &f) { f.setLetterSpacing(QFont::AbsoluteSpacing, 12); }),
        arial(30, [](QFont &f) { f.setStretch(150); }),
        arial(30, [](QFont &f) { f.setWeight(QFont::Light); }),
        arial(30, [](QFont &f) { f.setOverline(true); }),
    };
    for (int i = 0; i < fonts.size(); ++i) {
        setNumber(cell(*set, i / 3, i % 3), 4711U + static_cast<quint32>(i));
        cell(*set, i / 3, i % 3).font = fonts.at(i);
    }
    return set;
}

Set picturesOfAllKinds()
{
    Set set = singleBlock(2, 4);
    block(*set).spessoreLineaInterna = 5;
    setPicture(cell(*set, 0, 0), SampleSets::twoColoredPicture({40, 10}, Qt::red, Qt::green));
    setPicture(cell(*set, 0, 1), SampleSets::twoColoredPicture({3, 90}, QColor(0, 0, 255, 100), Qt::transparent));
    setPicture(cell(*set, 0, 2), QImage());
    setPicture(cell(*set, 1, 0), SampleSets::twoColoredPicture({1, 1}, Qt::cyan, Qt::cyan));
    cell(*set, 1, 0).coloreSfondo = Qt::yellow;
    setNumber(cell(*set, 1, 1), 8);
    return set;
}

Set raggedRows(int lineWidth)
{
    Set set = std::make_shared<Cartella>(QVector<U8>{4}, QVector<U8>{3}, QVector<U8>{5});
    block(*set, 1) = Blocco(); // no rows
    Riga &short1 = block(*set, 0).righe[1];
    short1.celle = std::make_unique<Cella[]>(2);
    short1.nCelle = 2;
    block(*set, 2).righe[1] = Riga(); // no cells
    block(*set, 0).spessoreLineaInterna = lineWidth;
    quint32 number = 0;
    forEachCell(*set, [&](Cella &each) { setNumber(each, ++number); });
    return set;
}

Set narrowCells()
{
    Set set = singleBlock(2, 255);
    forEachCell(*set, [](Cella &each) { setNumber(each, 42); });
    return set;
}
} // namespace

Q_DECLARE_METATYPE(Set)

// Rows of looksAndReadsAsIfEachCallWereMade: sets of one page, by what is unusual in them.
namespace {
void addColors()
{
    QTest::newRow("colored numbers in two fonts") << classicWithCells([](Cella &each) {
        each.coloreTesto = each.numero % 3 == 0 ? QColor(Qt::red) : QColor(0, 0, 255, 120);
        each.font = each.numero % 2 == 0 ? arial(12) : arial(20);
    });
    QTest::newRow("colored page") << classicSet([](Cartella &set) { set.pagine.first()->sfondo = Qt::cyan; });
    QTest::newRow("cells as the page") << classicSet([](Cartella &set) {
        set.pagine.first()->sfondo = Qt::cyan;
        forEachCell(set, [](Cella &each) { each.coloreSfondo = Qt::cyan; });
    });
    QTest::newRow("one cell with a background")
        << classicSet([](Cartella &set) { cell(set, 1, 4).coloreSfondo = QColor(255, 255, 0, 90); });
    QTest::newRow("chequered backgrounds") << classicSet([](Cartella &set) {
        bool odd = false;
        forEachCell(set, [&odd](Cella &each) {
            odd = !odd;
            each.coloreSfondo = odd ? QColor(Qt::yellow) : QColor(0, 100, 200, 120);
            each.coloreTesto = odd ? Qt::darkRed : Qt::darkBlue;
        });
    });
}

void addLines()
{
    for (const int width : {0, 1, 2, 3, 7, 12, 30, 60, 220}) {
        QTest::addRow("lines of width %d", width) << classicSet([width](Cartella &set) {
            for (int b = 0; b < SampleSets::blocks; ++b) {
                block(set, b).spessoreLineaInterna = width;
                block(set, b).coloreLineaInterna = Qt::darkGreen;
                block(set, b).spessoreLineaEsterna = width / 2 + b;
                block(set, b).coloreLineaEsterna = QColor(200, 0, 0, 128);
            }
        });
    }
    QTest::newRow("translucent separators") << classicSet([](Cartella &set) {
        block(set).spessoreLineaInterna = 8;
        block(set).coloreLineaInterna = QColor(0, 0, 255, 100);
    });
    QTest::newRow("backgrounds under thick lines") << classicSet([](Cartella &set) {
        block(set).spessoreLineaInterna = 20;
        forEachCell(set, [](Cella &each) { each.coloreSfondo = each.numero % 2 == 0 ? Qt::green : Qt::white; });
    });
    QTest::newRow("outlines that reach those of the next block") << classicSet([](Cartella &set) {
        for (int b = 0; b < SampleSets::blocks; ++b) {
            block(set, b).spessoreLineaEsterna = 6;
            block(set, b).coloreLineaEsterna = b % 2 == 0 ? Qt::darkRed : Qt::yellow;
        }
    });
    QTest::newRow("outlines that reach the next block") << classicSet([](Cartella &set) {
        for (int b = 0; b < SampleSets::blocks; ++b) {
            block(set, b).spessoreLineaInterna = 3;
            block(set, b).coloreLineaInterna = Qt::yellow;
            block(set, b).spessoreLineaEsterna = 20;
            block(set, b).coloreLineaEsterna = b % 2 == 0 ? Qt::darkRed : Qt::darkBlue;
        }
    });
}

void addTextsAndPictures()
{
    QTest::newRow("texts and pictures among numbers") << classicSet([](Cartella &set) {
        const QImage picture = SampleSets::twoColoredPicture({40, 30}, Qt::darkCyan, QColor(255, 0, 0, 80));
        forEachCell(set, [&](Cella &each) {
            each.coloreSfondo = each.numero % 3 == 0 ? Qt::yellow : Qt::white;
            each.numero % 5 == 0 ? setText(each, QStringLiteral("TXT")) : void();
            each.numero % 7 == 0 ? setPicture(each, picture) : void();
        });
    });
    QTest::newRow("texts and pictures under translucent separators") << classicSet([](Cartella &set) {
        const QImage picture = SampleSets::twoColoredPicture({40, 30}, Qt::darkCyan, QColor(255, 0, 0, 80));
        for (int b = 0; b < SampleSets::blocks; ++b) {
            block(set, b).spessoreLineaInterna = 4;
            block(set, b).coloreLineaInterna = QColor(0, 0, 255, 100);
        }
        forEachCell(set, [&](Cella &each) {
            each.coloreSfondo = each.numero % 3 == 0 ? Qt::yellow : Qt::white;
            each.numero % 5 == 0 ? setText(each, QStringLiteral("TXT")) : void();
            each.numero % 7 == 0 ? setPicture(each, picture) : void();
        });
    });
    QTest::newRow("texts") << textsOfAllKinds();
    QTest::newRow("pictures") << picturesOfAllKinds();
}

void addFonts()
{
    QTest::newRow("bold") << classicWithCells([](Cella &each) { each.font.setBold(true); });
    QTest::newRow("italic") << classicWithCells([](Cella &each) { each.font.setItalic(true); });
    QTest::newRow("fonts") << fontsOfAllKinds();
    QTest::newRow("large numbers") << classicWithCells([](Cella &each) {
        each.numero += 4294967000U;
        each.font = arial(8);
    });
}

void addMarginsAndSheets()
{
    QTest::newRow("blocks that touch") << classicSet([](Cartella &set) { set.pagine.first()->spazioBlocchi = 0; });
    QTest::newRow("no room left") << classicSet([](Cartella &set) { set.pagine.first()->spazioBlocchi = 50; });
    QTest::newRow("exactly no room") << classicSet([](Cartella &set) { set.pagine.first()->spazioBlocchi = 48; });
    QTest::newRow("margins") << classicSet([](Cartella &set) {
        set.margineSinistro = 17.3;
        set.margineSuperiore = 9.1;
        set.margineDestro = 23;
        set.margineInferiore = 31.7;
    });
    QTest::newRow("small sheet") << classicSet([](Cartella &set) { set.formato = QPagedPaintDevice::A7; });
    QTest::newRow("large sheet") << classicSet([](Cartella &set) { set.formato = QPagedPaintDevice::A2; });
}

void addOddGrids()
{
    QTest::newRow("ragged rows") << raggedRows(0);
    QTest::newRow("ragged rows, thick lines") << raggedRows(140);
    QTest::newRow("narrow cells") << narrowCells();
}
} // namespace

class tst_PagePainter final : public QObject
{
    Q_OBJECT

private slots:
    void looksAndReadsAsIfEachCallWereMade_data();
    void looksAndReadsAsIfEachCallWereMade();
    void fontsLeaveToTheApplicationWhatTheyDoNotSay();
    void numbersOfOneColorAreReadFromCellToCell();
    void everyFormatHasItsSize_data();
    void everyFormatHasItsSize();
    void backgroundIsPaintedOnlyWhereItDiffers();
    void pagesBlocksAndRowsWithoutPartsPaintNothing();
    void nullPicturePaintsNothingSilently();
    void unknownCellTypeStopsTheProgram();

private:
    static bool print(Cartella &set);
    static void compareWithReference(Cartella &set);
    inline static const QString printed = QStringLiteral("stampa.pdf");
    inline static const QString reference = QStringLiteral("confronto.pdf");
};

void tst_PagePainter::looksAndReadsAsIfEachCallWereMade_data()
{
    QTest::addColumn<Set>("set");
    QTest::newRow("classic") << classicSet();
    addColors();
    addLines();
    addTextsAndPictures();
    addFonts();
    addMarginsAndSheets();
    addOddGrids();
}

void tst_PagePainter::looksAndReadsAsIfEachCallWereMade()
{
    QFETCH(Set, set);
    compareWithReference(*set);
}

void tst_PagePainter::fontsLeaveToTheApplicationWhatTheyDoNotSay()
{
    const QFont before = QApplication::font();
    QFont spaced = before;
    spaced.setLetterSpacing(QFont::AbsoluteSpacing, 5);
    QApplication::setFont(spaced);
    compareWithReference(*classicSet());
    QApplication::setFont(before);
}

void tst_PagePainter::numbersOfOneColorAreReadFromCellToCell()
{
    const ScratchFolder folder;
    const Set set = SampleSets::classic(2);
    QVERIFY(print(*set));
    QStringList expected;
    forEachCell(*set, [&expected](const Cella &each) {
        if (each.tipo == CELL_NUMERO) {
            expected.append(QString::number(each.numero));
        }
    });
    QCOMPARE(PdfTools::wordsAsWritten(printed), expected);
}

void tst_PagePainter::everyFormatHasItsSize_data()
{
    QTest::addColumn<int>("format");
    for (int format = 0; format <= QPagedPaintDevice::Custom; ++format) {
        QTest::addRow("%d", format) << format;
    }
}

void tst_PagePainter::everyFormatHasItsSize()
{
    QFETCH(int, format);
    const ScratchFolder folder;
    Set set = singleBlock(1, 2);
    set->formato = format;
    setNumber(cell(*set, 0, 1), 7);
    QVERIFY(print(*set));
    QVERIFY(printReference(*set, reference));
    const QSizeF size = PdfTools::pageSize(printed);
    QVERIFY(size.width() > 0);
    QCOMPARE(size, PdfTools::pageSize(reference));
}

void tst_PagePainter::backgroundIsPaintedOnlyWhereItDiffers()
{
    const Set set = singleBlock(1, 3);
    set->pagine.first()->sfondo = Qt::green;
    block(*set).coloreLineaInterna = Qt::green;
    cell(*set, 0, 0).coloreSfondo = Qt::green;
    cell(*set, 0, 1).coloreSfondo = Qt::red;
    setPicture(cell(*set, 0, 2), QImage());
    cell(*set, 0, 2).coloreSfondo = Qt::red; // never painted
    QImage image(300, 100, QImage::Format_RGB32);
    paintOn(image, *set);
    QCOMPARE(image.pixelColor(50, 50), QColor(Qt::green));
    QCOMPARE(image.pixelColor(150, 50), QColor(Qt::red));
    QCOMPARE(image.pixelColor(250, 50), QColor(Qt::green));
}

void tst_PagePainter::pagesBlocksAndRowsWithoutPartsPaintNothing()
{
    const LogCapture log;
    QImage image(50, 50, QImage::Format_RGB32);
    Cartella set(1, 0, 0);
    paintOn(image, set); // no rows
    block(set).righe = std::make_unique<Riga[]>(2);
    block(set).nRighe = 2;
    paintOn(image, set); // no cells
    set.pagine.first()->nBlocchi = 0;
    set.pagine.first()->sfondo = Qt::red;
    paintOn(image, set); // no blocks
    QCOMPARE(image.pixelColor(25, 25), QColor(Qt::red));
    QCOMPARE(log.warnings(), QStringList());
}

void tst_PagePainter::nullPicturePaintsNothingSilently()
{
    const LogCapture log;
    const Set set = singleBlock(1, 1);
    setPicture(cell(*set, 0, 0), QImage());
    QImage image(50, 50, QImage::Format_RGB32);
    paintOn(image, *set);
    QCOMPARE(image.pixelColor(25, 25), QColor(Qt::white));
    QCOMPARE(log.warnings(), QStringList());
}

void tst_PagePainter::unknownCellTypeStopsTheProgram()
{
    const Set set = singleBlock(1, 1);
    cell(*set, 0, 0).tipo = static_cast<CELL_VALUE>(4);
    QImage image(50, 50, QImage::Format_RGB32);
    QCOMPARE(fatalMessageOf([&]() { paintOn(image, *set); }),
             QStringLiteral("PagePainter::paintCell - CELL_VALUE type unknown ERROR!"));
}

bool tst_PagePainter::print(Cartella &set)
{
    CreateOutputFile output;
    output.fileName = printed;
    output.cartella = &set;
    QString report;
    return output.printPdf(report) > 0;
}

void tst_PagePainter::compareWithReference(Cartella &set)
{
    const ScratchFolder folder;
    QVERIFY(print(set));
    QVERIFY(printReference(set, reference));
    for (const int dotsPerInch : {72, 173}) {
        const QImage expected = PdfTools::picture(reference, 1, dotsPerInch);
        QVERIFY(!expected.isNull());
        QVERIFY2(PdfTools::picture(printed, 1, dotsPerInch) == expected,
                 qPrintable(QStringLiteral("at %1 dots per inch").arg(dotsPerInch)));
    }
    QCOMPARE(PdfTools::placedWords(printed, 1), PdfTools::placedWords(reference, 1));
}

QTEST_MAIN(tst_PagePainter)
#include "tst_PagePainter.moc"
