// SPDX-License-Identifier: MIT
#include "generation/BlockSignature.h"
#include "model/Cartella.h"

#include "support/FatalMessage.h"

#include <QSignalSpy>
#include <QTest>

#include <cstring>
#include <vector>

namespace {
Cella &cellOf(const Cartella &set, int page, int block, int cell = 0)
{
    return set.pagine[page]->blocchi[size_t(block)].righe[0].celle[size_t(cell)];
}

void setNumber(Cella &cell, quint32 number)
{
    cell.tipo = CELL_NUMERO;
    cell.numero = number;
}

void setText(Cella &cell, const QString &text)
{
    cell.tipo = CELL_TESTO;
    cell.testo = text;
}

void setPicture(Cella &cell, const QSize &size, const QColor &color)
{
    cell.tipo = CELL_IMMAGINE;
    cell.immagine = QImage(size, QImage::Format_RGB32);
    cell.immagine.fill(color);
}

// Gives every block of the set another number.
void makeAllDifferent(const Cartella &set)
{
    quint32 number = 0;
    for (Pagina *page : set.pagine) {
        for (Blocco &block : *page) {
            setNumber(block.righe[0].celle[0], ++number);
        }
    }
}

// The check as it is meant, pair by pair.
struct PlainCheck
{
    QVector<QString> lines;
    quint64 comparisons = 0;

    explicit PlainCheck(const Cartella &set)
    {
        struct Stored
        {
            QString signature;
            int page;
            int block;
        };
        std::vector<Stored> stored;
        for (int p = 0; p < set.pagine.size(); ++p) {
            int b = 0;
            for (const Blocco &block : *set.pagine[p]) {
                const QString signature = blockSignature(block);
                for (const Stored &earlier : stored) {
                    if (earlier.page == p) {
                        break;
                    }
                    ++comparisons;
                    if (earlier.signature == signature) {
                        lines.append(QStringLiteral("Pag %1 blocco %2 = Pag %3 blocco %4")
                                         .arg(p + 1)
                                         .arg(b + 1)
                                         .arg(earlier.page + 1)
                                         .arg(earlier.block + 1));
                    }
                }
                stored.push_back({signature, p, b++});
            }
        }
    }
};

QString summaryLine(const QString &summary, int line)
{
    return summary.split(QLatin1Char('\n')).value(line);
}

QString inPercent(const QString &summary)
{
    return summary.mid(summary.lastIndexOf(QLatin1Char('(')));
}
} // namespace

class tst_EqualBlocks final : public QObject
{
    Q_OBJECT

private slots:
    void signaturesSpellTheCells();
    void signaturesOfNumbersOfAllLengths();
    void signaturesOfTheLargestNumbers();
    void signaturesOfLongTexts();
    void signaturesOfWideRows();
    void signaturesForgetFormerNumbers();
    void signaturesDoNotSeparateCells();
    void signaturesOfBlocksWithoutCells();
    void smallSetsAreNotChecked_data();
    void smallSetsAreNotChecked();
    void theShortTextIsAppendedToTheSummary();
    void copiesOfAPage();
    void threeEqualPages();
    void differentPagesHaveNoLines();
    void fontsAndColoursDoNotCount();
    void picturesOfTheSameBytesAreEqual();
    void textsAreComparedByCase();
    void blocksOfOnePageAreNotCompared();
    void resultsAreAppended();
    void nothingAskedForIsNothingGiven();
    void theSummaryReplacesTheFormerText();
    void percentagesAreOfSinglePrecision();
    void setsWithoutBlocksSayThatOneComparisonWasMade();
    void progressIsToldOncePerPage();
    void linesAndCountersArePairwise_data();
    void linesAndCountersArePairwise();
    void theFirstLinesAlone_data();
    void theFirstLinesAlone();
    void theFirstLinesComeWithoutProgress();
    void manyEqualBlocksAreCountedAtOnce();
    void manyDifferentBlocksAreToldApart();
    void unknownCellTypesStopTheProgram();
};

void tst_EqualBlocks::signaturesSpellTheCells()
{
    const Cartella set(1, 2, 3);
    setNumber(cellOf(set, 0, 0, 0), 90);
    setText(cellOf(set, 0, 0, 1), QStringLiteral("così"));
    setPicture(set.pagine[0]->blocchi[0].righe[1].celle[0], QSize(5, 3), Qt::red); // 4 bytes per pixel
    setNumber(set.pagine[0]->blocchi[0].righe[1].celle[2], 0);
    QCOMPARE(blockSignature(set.pagine[0]->blocchi[0]), QStringLiteral("90Scosì \nJ60 0\n"));
}

void tst_EqualBlocks::signaturesOfNumbersOfAllLengths()
{
    const Cartella set(1, 1, 1);
    Cella &cell = cellOf(set, 0, 0);
    for (quint32 number = 0; number <= 10100; ++number) {
        setNumber(cell, number);
        QCOMPARE(blockSignature(set.pagine[0]->blocchi[0]), QStringLiteral("%1\n").arg(number));
    }
}

void tst_EqualBlocks::signaturesOfTheLargestNumbers()
{
    const Cartella set(1, 1, 2);
    setNumber(cellOf(set, 0, 0, 0), 4294967295U);
    cellOf(set, 0, 0, 1).tipo = CELL_IMMAGINE; // a picture that could not be read
    QCOMPARE(blockSignature(set.pagine[0]->blocchi[0]), QStringLiteral("4294967295J0\n"));
}

void tst_EqualBlocks::signaturesOfLongTexts()
{
    const Cartella set(1, 1, 2);
    const QString text(5000, QLatin1Char('x'));
    setText(cellOf(set, 0, 0, 0), text);
    setText(cellOf(set, 0, 0, 1), text);
    QCOMPARE(blockSignature(set.pagine[0]->blocchi[0]), QStringLiteral("S%1S%1\n").arg(text));
}

void tst_EqualBlocks::signaturesOfWideRows()
{
    const Cartella set(1, 3, 255);
    QString expected;
    for (size_t r = 0; r < 3; ++r) {
        for (size_t c = 0; c < 255; ++c) {
            const auto number = static_cast<quint32>(r == 2 ? c * 7 : 100 + c);
            setNumber(set.pagine[0]->blocchi[0].righe[r].celle[c], number);
            expected += QString::number(number);
        }
        expected += QLatin1Char('\n');
    }
    QCOMPARE(blockSignature(set.pagine[0]->blocchi[0]), expected);
}

// A cell keeps the fields of its former types.
void tst_EqualBlocks::signaturesForgetFormerNumbers()
{
    const Cartella set(1, 1, 3);
    for (const quint32 former : {77U, 4294967295U, 4294966295U}) {
        for (int c = 0; c < 3; ++c) {
            setNumber(cellOf(set, 0, 0, c), former);
        }
        setText(cellOf(set, 0, 0, 0), QStringLiteral("x"));
        cellOf(set, 0, 0, 1).tipo = CELL_VUOTA;
        cellOf(set, 0, 0, 2).tipo = CELL_IMMAGINE;
        QCOMPARE(blockSignature(set.pagine[0]->blocchi[0]), QStringLiteral("Sx J0\n"));
    }
}

void tst_EqualBlocks::signaturesDoNotSeparateCells()
{
    Cartella set(2, 1, 1, 2);
    setNumber(cellOf(set, 0, 0, 0), 1);
    setNumber(cellOf(set, 0, 0, 1), 23);
    setNumber(cellOf(set, 1, 0, 0), 12);
    setNumber(cellOf(set, 1, 0, 1), 3);
    QCOMPARE(blockSignature(set.pagine[0]->blocchi[0]), blockSignature(set.pagine[1]->blocchi[0]));
    QCOMPARE(set.checkForEqualBlocks(), qint64(1));
}

void tst_EqualBlocks::signaturesOfBlocksWithoutCells()
{
    const Cartella withoutRows(1, 0, 3);
    QCOMPARE(blockSignature(withoutRows.pagine[0]->blocchi[0]), QString());
    const Cartella withoutCells(1, 2, 0);
    QCOMPARE(blockSignature(withoutCells.pagine[0]->blocchi[0]), QStringLiteral("\n\n"));
}

void tst_EqualBlocks::smallSetsAreNotChecked_data()
{
    QTest::addColumn<int>("pages");
    QTest::newRow("empty") << 0;
    QTest::newRow("one page") << 1;
}

void tst_EqualBlocks::smallSetsAreNotChecked()
{
    QFETCH(int, pages);
    Cartella set(static_cast<quint16>(pages), 2, 1, 1);
    const QSignalSpy progress(&set, &Cartella::checkForEqualBlocksStatus);
    QVector<QString> lines{QStringLiteral("before")};
    QString summary;
    QCOMPARE(set.checkForEqualBlocks(&lines, &summary), qint64(0));
    QCOMPARE(lines, QVector<QString>{QStringLiteral("before")});
    QCOMPARE(summary, QStringLiteral("La cartella e' vuota od ha solo una pagina.\n"
                                     "I blocchi di una pagina sono sempre diversi."));
    QCOMPARE(progress.count(), 0);
    QCOMPARE(set.checkForEqualBlocks(), qint64(0));
    QCOMPARE(set.equalBlockLines(10), QVector<QString>());
}

void tst_EqualBlocks::theShortTextIsAppendedToTheSummary()
{
    Cartella set;
    QString summary = QStringLiteral("before ");
    set.checkForEqualBlocks(nullptr, &summary);
    QCOMPARE(summary, QStringLiteral("before La cartella e' vuota od ha solo una pagina.\n"
                                     "I blocchi di una pagina sono sempre diversi."));
}

void tst_EqualBlocks::copiesOfAPage()
{
    Cartella set(2, 3, 2, 4);
    for (int b = 0; b < 3; ++b) {
        setNumber(cellOf(set, 0, b), 10U + static_cast<unsigned>(b));
        setNumber(cellOf(set, 1, b), 10U + static_cast<unsigned>(b));
    }
    QVector<QString> lines;
    QString summary;
    QCOMPARE(set.checkForEqualBlocks(&lines, &summary), qint64(3));
    QCOMPARE(lines, QVector<QString>({QStringLiteral("Pag 2 blocco 1 = Pag 1 blocco 1"),
                                      QStringLiteral("Pag 2 blocco 2 = Pag 1 blocco 2"),
                                      QStringLiteral("Pag 2 blocco 3 = Pag 1 blocco 3")}));
    QCOMPARE(summary, QStringLiteral("Blocchi verificati: 6\nConfronti tra blocchi: 9\nCelle verificate: 48\n"
                                     "Blocchi uguali: 3 (50.00%)"));
}

void tst_EqualBlocks::threeEqualPages()
{
    Cartella set(3, 1, 1, 1);
    QVector<QString> lines;
    QString summary;
    QCOMPARE(set.checkForEqualBlocks(&lines, &summary), qint64(3));
    QCOMPARE(lines, QVector<QString>({QStringLiteral("Pag 2 blocco 1 = Pag 1 blocco 1"),
                                      QStringLiteral("Pag 3 blocco 1 = Pag 1 blocco 1"),
                                      QStringLiteral("Pag 3 blocco 1 = Pag 2 blocco 1")}));
    QCOMPARE(summary, QStringLiteral("Blocchi verificati: 3\nConfronti tra blocchi: 3\nCelle verificate: 3\n"
                                     "Blocchi uguali: 3 (100.00%)"));
}

void tst_EqualBlocks::differentPagesHaveNoLines()
{
    Cartella set(10, 6, 1, 1);
    makeAllDifferent(set);
    QVector<QString> lines;
    QString summary;
    QCOMPARE(set.checkForEqualBlocks(&lines, &summary), qint64(0));
    QVERIFY(lines.isEmpty());
    // 6 x 6 x 10 x 9 / 2 comparisons
    QCOMPARE(summary, QStringLiteral("Blocchi verificati: 60\nConfronti tra blocchi: 1620\nCelle verificate: 60\n"
                                     "Blocchi uguali: 0 (0.00%)"));
}

void tst_EqualBlocks::fontsAndColoursDoNotCount()
{
    Cartella set(2, 1, 1, 2);
    for (int p = 0; p < 2; ++p) {
        setNumber(cellOf(set, p, 0, 0), 5);
        setText(cellOf(set, p, 0, 1), QStringLiteral("five"));
    }
    cellOf(set, 1, 0, 0).font = QFont(QStringLiteral("Courier"), 8);
    cellOf(set, 1, 0, 0).coloreTesto = Qt::red;
    cellOf(set, 1, 0, 1).coloreSfondo = Qt::blue;
    set.pagine[1]->blocchi[0].spessoreLineaEsterna = 9;
    set.pagine[1]->sfondo = Qt::yellow;
    QCOMPARE(set.checkForEqualBlocks(), qint64(1));
}

void tst_EqualBlocks::picturesOfTheSameBytesAreEqual()
{
    Cartella set(2, 1, 1, 1);
    setPicture(cellOf(set, 0, 0), QSize(4, 6), Qt::red);
    setPicture(cellOf(set, 1, 0), QSize(6, 4), Qt::blue);
    QCOMPARE(set.checkForEqualBlocks(), qint64(1));
    setPicture(cellOf(set, 1, 0), QSize(4, 7), Qt::red);
    QCOMPARE(set.checkForEqualBlocks(), qint64(0));
}

void tst_EqualBlocks::textsAreComparedByCase()
{
    Cartella set(2, 1, 1, 1);
    setText(cellOf(set, 0, 0), QStringLiteral("jolly"));
    setText(cellOf(set, 1, 0), QStringLiteral("Jolly"));
    QCOMPARE(set.checkForEqualBlocks(), qint64(0));
    setText(cellOf(set, 1, 0), QStringLiteral("jolly"));
    QCOMPARE(set.checkForEqualBlocks(), qint64(1));
}

void tst_EqualBlocks::blocksOfOnePageAreNotCompared()
{
    Cartella set(2, 3, 1, 1); // all six blocks are equal
    setNumber(cellOf(set, 0, 0), 1);
    QVector<QString> lines;
    QCOMPARE(set.checkForEqualBlocks(&lines), qint64(6));
    QCOMPARE(
        lines,
        QVector<QString>(
            {QStringLiteral("Pag 2 blocco 1 = Pag 1 blocco 2"), QStringLiteral("Pag 2 blocco 1 = Pag 1 blocco 3"),
             QStringLiteral("Pag 2 blocco 2 = Pag 1 blocco 2"), QStringLiteral("Pag 2 blocco 2 = Pag 1 blocco 3"),
             QStringLiteral("Pag 2 blocco 3 = Pag 1 blocco 2"), QStringLiteral("Pag 2 blocco 3 = Pag 1 blocco 3")}));
}

void tst_EqualBlocks::resultsAreAppended()
{
    Cartella set(2, 1, 1, 1);
    QVector<QString> lines{QStringLiteral("before")};
    set.checkForEqualBlocks(&lines);
    QCOMPARE(lines, QVector<QString>({QStringLiteral("before"), QStringLiteral("Pag 2 blocco 1 = Pag 1 blocco 1")}));
}

void tst_EqualBlocks::nothingAskedForIsNothingGiven()
{
    Cartella set(3, 2, 1, 1);
    QVector<QString> lines;
    QString summary;
    const qint64 equal = set.checkForEqualBlocks();
    QCOMPARE(equal, qint64(12));
    QCOMPARE(set.checkForEqualBlocks(&lines, nullptr), equal);
    QCOMPARE(set.checkForEqualBlocks(nullptr, &summary), equal);
    QCOMPARE(lines.size(), 12);
    QCOMPARE(summaryLine(summary, 3), QStringLiteral("Blocchi uguali: 12 (200.00%)"));
}

void tst_EqualBlocks::theSummaryReplacesTheFormerText()
{
    Cartella set(2, 1, 1, 1);
    QString summary = QStringLiteral("before");
    set.checkForEqualBlocks(nullptr, &summary);
    QVERIFY(summary.startsWith(QStringLiteral("Blocchi verificati: 2\n")));
}

void tst_EqualBlocks::percentagesAreOfSinglePrecision()
{
    Cartella thirds(3, 1, 1, 1);
    makeAllDifferent(thirds);
    setNumber(cellOf(thirds, 1, 0), 1);
    QString summary;
    thirds.checkForEqualBlocks(nullptr, &summary);
    QCOMPARE(inPercent(summary), QStringLiteral("(33.33%)"));

    // 237 x 236 / 2 x 49 = 1370334 equal pairs of 1659 blocks: 82600 percent exactly. The pairs times 100 are
    // 137033400, in single precision 137033408; that makes 82600.0048, in single precision 82600.0078.
    Cartella many(237, 7, 1, 1);
    QCOMPARE(many.checkForEqualBlocks(nullptr, &summary), qint64(1370334));
    QCOMPARE(inPercent(summary), QStringLiteral("(82600.01%)"));
}

void tst_EqualBlocks::setsWithoutBlocksSayThatOneComparisonWasMade()
{
    Cartella set;
    set.appendPage(new Pagina);
    set.appendPage(new Pagina);
    QString summary;
    QCOMPARE(set.checkForEqualBlocks(nullptr, &summary), qint64(0));
    QCOMPARE(summary, QStringLiteral("Blocchi verificati: 0\nConfronti tra blocchi: 1\nCelle verificate: 0\n"
                                     "Blocchi uguali: 0 (0.00%)"));
}

void tst_EqualBlocks::progressIsToldOncePerPage()
{
    Cartella set(3, 2, 1, 1);
    QStringList told;
    connect(&set, &Cartella::checkForEqualBlocksStatus, this, [&told](const QString &status) { told.append(status); });
    QVector<QString> lines;
    QString summary;
    set.checkForEqualBlocks(&lines, &summary);
    QCOMPARE(told, QStringList({QStringLiteral("Confronto pagina 1 di 3"), QStringLiteral("Confronto pagina 2 di 3"),
                                QStringLiteral("Confronto pagina 3 di 3")}));
}

void tst_EqualBlocks::linesAndCountersArePairwise_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("different"); // of the numbers that the blocks show
    QTest::newRow("all equal") << 12 << 1;
    QTest::newRow("two kinds") << 15 << 2;
    QTest::newRow("ten kinds") << 30 << 10;
    QTest::newRow("many kinds") << 40 << 500;
}

void tst_EqualBlocks::linesAndCountersArePairwise()
{
    QFETCH(int, pages);
    QFETCH(int, different);
    Cartella set;
    unsigned value = 12345;
    for (int p = 0; p < pages; ++p) {
        set.generateBlock(static_cast<U8>(1 + p % 5), 1, 1);
        for (int b = 0; b < set.pagine[p]->nBlocchi; ++b) {
            value = value * 1103515245U + 12345U;
            setNumber(cellOf(set, p, b), value / 65536U % static_cast<unsigned>(different));
        }
    }
    const PlainCheck plain(set);
    QVector<QString> lines;
    QString summary;
    QCOMPARE(set.checkForEqualBlocks(&lines, &summary), qint64(plain.lines.size()));
    QCOMPARE(lines, plain.lines);
    QCOMPARE(summaryLine(summary, 1), QStringLiteral("Confronti tra blocchi: %1").arg(plain.comparisons));
    QVERIFY(!lines.isEmpty());
}

void tst_EqualBlocks::theFirstLinesAlone_data()
{
    QTest::addColumn<int>("most");
    QTest::newRow("none") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("one") << 1;
    QTest::newRow("within a block") << 7;
    QTest::newRow("one less than all") << 65;
    QTest::newRow("all") << 66;
    QTest::newRow("more than all") << 1000;
}

void tst_EqualBlocks::theFirstLinesAlone()
{
    QFETCH(int, most);
    Cartella set(12, 1, 1, 1); // 66 pairs
    QVector<QString> all;
    QCOMPARE(set.checkForEqualBlocks(&all), qint64(66));
    QCOMPARE(set.equalBlockLines(most), all.mid(0, qMax(0, most)));
}

void tst_EqualBlocks::theFirstLinesComeWithoutProgress()
{
    Cartella set(3, 1, 1, 1);
    const QSignalSpy progress(&set, &Cartella::checkForEqualBlocksStatus);
    QCOMPARE(set.equalBlockLines(100).size(), 3);
    QCOMPARE(progress.count(), 0);
}

// Pair by pair this would be 77 thousand million comparisons, and the test would not end.
void tst_EqualBlocks::manyEqualBlocksAreCountedAtOnce()
{
    Cartella set(65535, 6, 1, 1);
    QString summary;
    QCOMPARE(set.checkForEqualBlocks(nullptr, &summary), Q_INT64_C(77305872420));
    QCOMPARE(summaryLine(summary, 1), QStringLiteral("Confronti tra blocchi: 77305872420"));
    QCOMPARE(set.equalBlockLines(1000).size(), 1000);
}

// So many that some must share a hash value.
void tst_EqualBlocks::manyDifferentBlocksAreToldApart()
{
    Cartella set(65535, 6, 1, 1);
    unsigned value = 1;
    for (Pagina *page : qAsConst(set.pagine)) {
        for (Blocco &block : *page) {
            value = value * 1103515245U + 12345U; // comes round only after all 32-bit values
            setText(block.righe[0].celle[0], QString::number(value, 36));
        }
    }
    QCOMPARE(set.checkForEqualBlocks(), qint64(0));
}

void tst_EqualBlocks::unknownCellTypesStopTheProgram()
{
    Cartella set(2, 1, 1, 1);
    qint32 unknown = 4;
    std::memcpy(&cellOf(set, 1, 0).tipo, &unknown, sizeof(unknown));
    QCOMPARE(fatalMessageOf([&set]() { set.checkForEqualBlocks(); }),
             QStringLiteral("Cartella::checkForEqualBlocks() - CELL_VALUE type ERROR!"));
}

QTEST_GUILESS_MAIN(tst_EqualBlocks)
#include "tst_EqualBlocks.moc"
