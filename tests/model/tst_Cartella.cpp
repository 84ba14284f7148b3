// SPDX-License-Identifier: MIT
#include "model/Cartella.h"

#include "support/FatalMessage.h"
#include "support/LogCapture.h"

#include <QTest>

#include <memory>
#include <type_traits>

namespace {
const QStringList noWarnings;

// A page of blocks of `rows` rows each, of `cells` cells each; owned by the caller.
std::unique_ptr<Pagina> takenPage(U8 blocks, U8 rows, U8 cells)
{
    Cartella set(blocks, rows, cells);
    set.pagineEsterne = 1;
    return std::unique_ptr<Pagina>(set.pagine.first());
}

void resizeRow(Riga &row, U8 cells)
{
    row.nCelle = cells;
    row.celle = std::make_unique<Cella[]>(cells);
}

// Two pages: rows of 3 cells but for one of 7 in the second block of the first page, one of 5 in the second page.
void makeUneven(Cartella &set)
{
    set.generateBlock(2, 3, 3);
    set.generateBlock(1, 3, 3);
    resizeRow(set.pagine[0]->blocchi[1].righe[2], 7);
    resizeRow(set.pagine[1]->blocchi[0].righe[0], 5);
}
} // namespace

class tst_Cartella final : public QObject
{
    Q_OBJECT

private slots:
    void aNewSetIsEmptyWithItsDefaults();
    void theTypeValuesAreFixed();
    void aNewPageHasItsDefaults();
    void allCellsShareOneFont();
    void thePartsOfAPageAreWalkedInOrder();
    void thePartsOfAConstPageAreConst();
    void aRecordWithoutPartsIsWalkedWithoutAStep();
    void equalPagesAreMadeInOneGo();
    void onePageIsMadeInOneGo();
    void aSetHasItsDefaultsHoweverItIsMade();
    void zeroBlocksAreRefused();
    void aSetOfPagesWithoutBlocksIsEmpty();
    void zeroRowsOrCellsGiveEmptyArrays();
    void the255OfEachAreNotTooMany();
    void pagesOfDifferentShapes();
    void aFailingShapeIsSkipped();
    void vectorsOfDifferentLengthsAreRefused();
    void theFirstLengthBindsLaterCalls();
    void aShorterListOfBlocksIsRefused();
    void aLongerListOfBlocksIsReadUpToTheFirstLength();
    void pagesAreHandedOver();
    void aRefusedPageEndsTheHandingOver();
    void sizesTakeTheWidestRow();
    void sizesOfAnEmptySetAreZero();
    void pagesBeyondTheCountAreRefusedWithAWarning();
    void blocksBeyondTheCountAreRefusedWithAWarning();
    void anIndexEqualToTheCountGivesZero();
    void rowsOfThePageAreFoundInTheirBlock_data();
    void rowsOfThePageAreFoundInTheirBlock();
    void blocksOfDifferentRowsAreCounted();
    void rowsBeyondThePageAreRefused();
    void aPageWithoutBlocksHasNoRows();
    void rowsOfNoPageAreRefused();
    void cellTypesHaveNames();
    void anUnknownCellTypeStopsTheProgram();
    void appendedPagesComeLast();
    void insertedPagesComeBeforeTheIndex();
    void insertingBeyondTheEndAppends();
    void prependedPagesComeFirst();
    void noPageIsRefused();
    void deletingTakesThePageOut();
    void deletingBeyondTheEndIsRefused();
    void externalPagesOutliveTheSet();
};

void tst_Cartella::aNewSetIsEmptyWithItsDefaults()
{
    const Cartella set;
    QVERIFY(set.pagine.isEmpty());
    QCOMPARE(set.getNumPages(), 0);
    QCOMPARE(set.pagineEsterne, U8(0));
    QCOMPARE(set.margineSuperiore, 3.0);
    QCOMPARE(set.margineInferiore, 3.0);
    QCOMPARE(set.margineSinistro, 2.0);
    QCOMPARE(set.margineDestro, 2.0);
    QCOMPARE(set.formato, 0);
    QVERIFY(set.parent() == nullptr);
}

void tst_Cartella::theTypeValuesAreFixed()
{
    QCOMPARE(int(CELL_NUMERO), 0);
    QCOMPARE(int(CELL_TESTO), 1);
    QCOMPARE(int(CELL_IMMAGINE), 2);
    QCOMPARE(int(CELL_VUOTA), 3);
}

void tst_Cartella::aNewPageHasItsDefaults()
{
    Cartella set;
    QVERIFY(set.generateBlock(2, 3, 4));
    QCOMPARE(set.getNumPages(), 1);
    const Pagina &page = *set.pagine[0];
    QCOMPARE(page.nBlocchi, U8(2));
    QCOMPARE(page.sfondo, QColor(Qt::white));
    QCOMPARE(page.spazioBlocchi, 1.2F);
    for (const Blocco &block : page) {
        QCOMPARE(block.nRighe, U8(3));
        QCOMPARE(block.spessoreLineaEsterna, 1);
        QCOMPARE(block.spessoreLineaInterna, 0);
        QCOMPARE(block.coloreLineaEsterna, QColor(Qt::black));
        QCOMPARE(block.coloreLineaInterna, QColor(Qt::black));
        for (const Riga &row : block) {
            QCOMPARE(row.nCelle, U8(4));
            for (const Cella &cell : row) {
                QCOMPARE(cell.tipo, CELL_VUOTA);
                QVERIFY(cell.testo.isEmpty());
                QVERIFY(cell.immagine.isNull());
                QCOMPARE(cell.font.family(), QStringLiteral("Arial"));
                QCOMPARE(cell.font.pointSize(), 30);
                QCOMPARE(cell.font.weight(), int(QFont::Normal));
                QVERIFY(!cell.font.italic());
                QCOMPARE(cell.coloreTesto, QColor(Qt::black));
                QCOMPARE(cell.coloreSfondo, QColor(Qt::white));
            }
        }
    }
}

void tst_Cartella::allCellsShareOneFont()
{
    const Cartella set(1, 1, 2);
    const Riga &row = set.pagine[0]->blocchi[0].righe[0];
    QVERIFY(row.celle[0].font.isCopyOf(row.celle[1].font));
    QVERIFY(row.celle[0].font.isCopyOf(defaultCellFont()));
}

void tst_Cartella::thePartsOfAPageAreWalkedInOrder()
{
    const Cartella set(2, 3, 4);
    Pagina &page = *set.pagine[0];
    resizeRow(page.blocchi[0].righe[1], 6);
    QVector<const Cella *> walked;
    for (Blocco &block : page) {
        for (Riga &row : block) {
            for (Cella &cell : row) {
                walked.append(&cell);
            }
        }
    }
    QCOMPARE(walked.size(), 2 * 3 * 4 + 2);
    QCOMPARE(walked.first(), &page.blocchi[0].righe[0].celle[0]);
    QCOMPARE(walked[4 + 5], &page.blocchi[0].righe[1].celle[5]);
    QCOMPARE(walked[4 + 6], &page.blocchi[0].righe[2].celle[0]);
    QCOMPARE(walked.last(), &page.blocchi[1].righe[2].celle[3]);
}

void tst_Cartella::thePartsOfAConstPageAreConst()
{
    const Cartella set(2, 3, 4);
    const Pagina &page = *set.pagine[0];
    QVERIFY((std::is_same_v<decltype(*begin(page)), const Blocco &>));
    QVERIFY((std::is_same_v<decltype(*begin(*begin(page))), const Riga &>));
    QVERIFY((std::is_same_v<decltype(*begin(*begin(*begin(page)))), const Cella &>));
    QCOMPARE(end(page) - begin(page), 2);
    QCOMPARE(end(*begin(page)) - begin(*begin(page)), 3);
    QCOMPARE(end(*begin(*begin(page))) - begin(*begin(*begin(page))), 4);
}

void tst_Cartella::aRecordWithoutPartsIsWalkedWithoutAStep()
{
    Pagina page;
    Blocco block;
    Riga row;
    QCOMPARE(begin(page), end(page));
    QCOMPARE(begin(block), end(block));
    QCOMPARE(begin(row), end(row));
}

void tst_Cartella::equalPagesAreMadeInOneGo()
{
    const Cartella set(300, 2, 3, 4);
    QCOMPARE(set.getNumPages(), 300);
    for (const Pagina *page : set.pagine) {
        QCOMPARE(page->nBlocchi, U8(2));
        QCOMPARE(page->blocchi[1].nRighe, U8(3));
        QCOMPARE(page->blocchi[1].righe[2].nCelle, U8(4));
    }
}

void tst_Cartella::onePageIsMadeInOneGo()
{
    const Cartella set(U8(2), U8(3), U8(4));
    QCOMPARE(set.getNumPages(), 1);
    QCOMPARE(set.pagine[0]->nBlocchi, U8(2));
    QCOMPARE(set.pagine[0]->blocchi[0].nRighe, U8(3));
    QCOMPARE(set.pagine[0]->blocchi[0].righe[0].nCelle, U8(4));
}

void tst_Cartella::aSetHasItsDefaultsHoweverItIsMade()
{
    const Cartella equalPages(2, 1, 1, 1);
    const Cartella onePage(U8(1), U8(1), U8(1));
    const Cartella differentPages(QVector<U8>{1, 2}, QVector<U8>{3, 4}, QVector<U8>{5, 6});
    for (const Cartella *set : {&equalPages, &onePage, &differentPages}) {
        QCOMPARE(set->pagineEsterne, U8(0));
        QCOMPARE(set->margineSuperiore, 3.0);
        QCOMPARE(set->margineInferiore, 3.0);
        QCOMPARE(set->margineSinistro, 2.0);
        QCOMPARE(set->margineDestro, 2.0);
        QCOMPARE(set->formato, 0);
    }
}

void tst_Cartella::zeroBlocksAreRefused()
{
    Cartella set;
    const LogCapture log;
    QVERIFY(!set.generateBlock(0, 3, 9));
    QCOMPARE(log.warnings(), QStringList(QStringLiteral("Cartella::generateBlock(): 0 block given to generate!")));
    QCOMPARE(set.getNumPages(), 0);
}

void tst_Cartella::aSetOfPagesWithoutBlocksIsEmpty()
{
    const LogCapture log;
    const Cartella set(2, 0, 3, 9);
    QCOMPARE(set.getNumPages(), 0);
    QCOMPARE(log.warnings().size(), 2);
}

void tst_Cartella::zeroRowsOrCellsGiveEmptyArrays()
{
    Cartella set;
    QVERIFY(set.generateBlock(1, 0, 9));
    QVERIFY(set.generateBlock(1, 3, 0));
    QCOMPARE(set.pagine[0]->blocchi[0].nRighe, U8(0));
    QCOMPARE(set.pagine[1]->blocchi[0].nRighe, U8(3));
    QCOMPARE(set.pagine[1]->blocchi[0].righe[2].nCelle, U8(0));
    QCOMPARE(set.getMaxColSize(), U8(0));
}

void tst_Cartella::the255OfEachAreNotTooMany()
{
    const Cartella set(255, 255, 2);
    QCOMPARE(set.pagine[0]->blocchi[254].righe[254].celle[1].tipo, CELL_VUOTA);
    const Cartella wide(1, 1, 255);
    QCOMPARE(wide.getMaxColSize(), U8(255));
}

void tst_Cartella::pagesOfDifferentShapes()
{
    // The length of the first call in the life of the program binds; all tests here that succeed use 2.
    Cartella set;
    QVERIFY(set.generateBlocks({1, 2}, {3, 4}, {5, 6}));
    QCOMPARE(set.getNumPages(), 2);
    QCOMPARE(set.pagine[0]->nBlocchi, U8(1));
    QCOMPARE(set.pagine[0]->blocchi[0].nRighe, U8(3));
    QCOMPARE(set.getMaxPageColSize(0), U8(5));
    QCOMPARE(set.pagine[1]->nBlocchi, U8(2));
    QCOMPARE(set.pagine[1]->blocchi[1].nRighe, U8(4));
    QCOMPARE(set.getMaxPageColSize(1), U8(6));

    const Cartella constructed(QVector<U8>{1, 2}, QVector<U8>{3, 4}, QVector<U8>{5, 6});
    QCOMPARE(constructed.getNumPages(), 2);
    QCOMPARE(constructed.getMaxPageColSize(1), U8(6));
}

void tst_Cartella::aFailingShapeIsSkipped()
{
    Cartella set;
    const LogCapture log;
    QVERIFY(set.generateBlocks({0, 2}, {3, 4}, {5, 6}));
    QCOMPARE(log.warnings(), QStringList({QStringLiteral("Cartella::generateBlock(): 0 block given to generate!"),
                                          QStringLiteral("Cartella::generateBlocks(): generate failed at block 0!")}));
    QCOMPARE(set.getNumPages(), 1);
    QCOMPARE(set.pagine[0]->nBlocchi, U8(2));
}

void tst_Cartella::vectorsOfDifferentLengthsAreRefused()
{
    Cartella set;
    QVERIFY(set.generateBlocks({1, 1}, {1, 1}, {1, 1}));
    const QString warning = QStringLiteral("Cartella::Cartella(multiple different blocks): array of different sizes.");
    {
        const LogCapture log;
        QVERIFY(!set.generateBlocks({1, 1}, {1}, {1, 1}));
        QVERIFY(!set.generateBlocks({1, 1}, {1, 1}, {1, 1, 1}));
        QCOMPARE(log.warnings(), QStringList({warning, warning}));
    }
    QCOMPARE(set.getNumPages(), 2);
}

void tst_Cartella::theFirstLengthBindsLaterCalls()
{
    Cartella set;
    QVERIFY(set.generateBlocks({1, 1}, {1, 1}, {1, 1}));
    const LogCapture log;
    QVERIFY(!set.generateBlocks({1, 1, 1}, {1, 1, 1}, {1, 1, 1}));
    QCOMPARE(log.warnings(),
             QStringList(QStringLiteral("Cartella::Cartella(multiple different blocks): array of different sizes.")));
    QCOMPARE(set.getNumPages(), 2);
}

void tst_Cartella::aShorterListOfBlocksIsRefused()
{
    Cartella set;
    QVERIFY(set.generateBlocks({1, 1}, {1, 1}, {1, 1}));
    const LogCapture log;
    QVERIFY(!set.generateBlocks({1}, {1, 1}, {1, 1}));
    QCOMPARE(log.warnings().size(), 1);
    QCOMPARE(set.getNumPages(), 2);
}

void tst_Cartella::aLongerListOfBlocksIsReadUpToTheFirstLength()
{
    Cartella set;
    QVERIFY(set.generateBlocks({1, 1}, {1, 1}, {1, 1}));
    const LogCapture log;
    QVERIFY(set.generateBlocks({3, 4, 5}, {1, 1}, {1, 1}));
    QCOMPARE(log.warnings(), noWarnings);
    QCOMPARE(set.getNumPages(), 4);
    QCOMPARE(set.pagine[3]->nBlocchi, U8(4));
}

void tst_Cartella::pagesAreHandedOver()
{
    Cartella set(1, 1, 1);
    const Pagina *own = set.pagine.first();
    QVector<Pagina *> given;
    {
        Cartella temporary(2, 3, 3, 9);
        given = temporary.pagine;
        QVERIFY(!handOverPages(temporary, set));
    }
    QCOMPARE(set.getNumPages(), 3);
    QCOMPARE(set.pagine[0], own);
    QCOMPARE(set.pagine.mid(1), given);
    QCOMPARE(set.pagineEsterne, U8(0));
    QCOMPARE(set.pagine[2]->blocchi[2].righe[2].nCelle, U8(9)); // it outlived the temporary set
}

void tst_Cartella::aRefusedPageEndsTheHandingOver()
{
    Cartella set;
    Cartella temporary(3, 1, 1, 1);
    const QVector<Pagina *> given = temporary.pagine;
    temporary.pagine.insert(1, nullptr);
    QCOMPARE(handOverPages(temporary, set).value_or(-1), 1);
    QCOMPARE(set.pagine, given.mid(0, 1));
    QCOMPARE(temporary.pagine, QVector<Pagina *>({nullptr, given[1], given[2]}));
    QCOMPARE(temporary.pagineEsterne, U8(0)); // each set deletes its own
}

void tst_Cartella::sizesTakeTheWidestRow()
{
    Cartella set;
    makeUneven(set);
    QCOMPARE(set.getMaxColSize(), U8(7));
    QCOMPARE(set.getMaxPageColSize(0), U8(7));
    QCOMPARE(set.getMaxPageColSize(1), U8(5));
    QCOMPARE(set.getMaxBlockColSize(0, 0), U8(3));
    QCOMPARE(set.getMaxBlockColSize(0, 1), U8(7));
    QCOMPARE(set.getMaxBlockColSize(1, 0), U8(5));
}

void tst_Cartella::sizesOfAnEmptySetAreZero()
{
    const Cartella set;
    const LogCapture log;
    QCOMPARE(set.getMaxColSize(), U8(0));
    QCOMPARE(log.warnings(), noWarnings);
}

void tst_Cartella::pagesBeyondTheCountAreRefusedWithAWarning()
{
    const Cartella set(2, 1, 1, 4);
    const LogCapture log;
    QCOMPARE(set.getMaxPageColSize(3), U8(0));
    QCOMPARE(set.getMaxBlockColSize(3, 0), U8(0));
    QCOMPARE(log.warnings(),
             QStringList({QStringLiteral("\nCartella::getMaxPageColSize(): requested page out of range!\n"),
                          QStringLiteral("\nCartella::getMaxBlockColSize(): requested page out of range!\n")}));
}

void tst_Cartella::blocksBeyondTheCountAreRefusedWithAWarning()
{
    const Cartella set(1, 2, 1, 4);
    const LogCapture log;
    QCOMPARE(set.getMaxBlockColSize(0, 3), U8(0));
    QCOMPARE(log.warnings(),
             QStringList(QStringLiteral("\nCartella::getMaxBlockColSize(): requested block out of range!\n")));
}

void tst_Cartella::anIndexEqualToTheCountGivesZero()
{
    const Cartella set(2, 2, 1, 4);
    const LogCapture log;
    QCOMPARE(set.getMaxPageColSize(2), U8(0));
    QCOMPARE(set.getMaxBlockColSize(2, 0), U8(0));
    QCOMPARE(set.getMaxBlockColSize(1, 2), U8(0));
    QCOMPARE(log.warnings(), noWarnings);
}

void tst_Cartella::rowsOfThePageAreFoundInTheirBlock_data()
{
    QTest::addColumn<int>("absRow");
    QTest::addColumn<int>("block");
    QTest::addColumn<int>("relRow");
    QTest::newRow("first row") << 0 << 0 << 0;
    QTest::newRow("last row of the first block") << 2 << 0 << 2;
    QTest::newRow("first row of the second block") << 3 << 1 << 0;
    QTest::newRow("middle of the second block") << 4 << 1 << 1;
    QTest::newRow("last row of the page") << 8 << 2 << 2;
}

void tst_Cartella::rowsOfThePageAreFoundInTheirBlock()
{
    QFETCH(int, absRow);
    QFETCH(int, block);
    QFETCH(int, relRow);
    const Cartella set(3, 3, 2);
    U8 foundBlock = 77;
    U8 foundRow = 77;
    QCOMPARE(set.fromPage_Abs2Rel_BlockNum(0, absRow, foundBlock, foundRow), 1);
    QCOMPARE(int(foundBlock), block);
    QCOMPARE(int(foundRow), relRow);
}

void tst_Cartella::blocksOfDifferentRowsAreCounted()
{
    Cartella set(3, 2, 1);
    Blocco &middle = set.pagine[0]->blocchi[1];
    middle.nRighe = 0;
    middle.righe = std::make_unique<Riga[]>(0);
    U8 block = 77;
    U8 row = 77;
    QCOMPARE(set.fromPage_Abs2Rel_BlockNum(0, 2, block, row), 1);
    QCOMPARE(block, U8(2));
    QCOMPARE(row, U8(0));
}

void tst_Cartella::rowsBeyondThePageAreRefused()
{
    const Cartella set(3, 3, 2);
    U8 block = 77;
    U8 row = 78;
    const LogCapture log;
    QCOMPARE(set.fromPage_Abs2Rel_BlockNum(0, 9, block, row), -1);
    QCOMPARE(log.warnings(),
             QStringList(QStringLiteral("Cartella::fromPage_Abs2Rel_BlockNum: Absolute rows number is greater than "
                                        "pagina's block number!")));
    QCOMPARE(block, U8(77));
    QCOMPARE(row, U8(78));
}

void tst_Cartella::aPageWithoutBlocksHasNoRows()
{
    Cartella set;
    set.appendPage(new Pagina);
    U8 block = 77;
    U8 row = 78;
    const LogCapture log;
    QCOMPARE(set.fromPage_Abs2Rel_BlockNum(0, 0, block, row), -1);
    QCOMPARE(log.warnings(), QStringList(QStringLiteral("Cartella::fromPage_Abs2Rel_BlockNum: Pagina hasn't blocks!")));
    QCOMPARE(block, U8(77));
    QCOMPARE(row, U8(78));
}

void tst_Cartella::rowsOfNoPageAreRefused()
{
    const Cartella set(1, 3, 2);
    U8 block = 77;
    U8 row = 78;
    QCOMPARE(set.fromPage_Abs2Rel_BlockNum(1, 0, block, row), -1);
    QCOMPARE(set.fromPage_Abs2Rel_BlockNum(2, 0, block, row), -1);
    QCOMPARE(set.fromPage_Abs2Rel_BlockNum(0, -1, block, row), -1);
    QCOMPARE(block, U8(77));
    QCOMPARE(row, U8(78));
}

void tst_Cartella::cellTypesHaveNames()
{
    const Cartella set;
    QCOMPARE(set.cellType2String(CELL_NUMERO), QStringLiteral("numero"));
    QCOMPARE(set.cellType2String(CELL_TESTO), QStringLiteral("testo"));
    QCOMPARE(set.cellType2String(CELL_IMMAGINE), QStringLiteral("immagine"));
    QCOMPARE(set.cellType2String(CELL_VUOTA), QStringLiteral("vuota"));
}

void tst_Cartella::anUnknownCellTypeStopsTheProgram()
{
    const Cartella set;
    QCOMPARE(fatalMessageOf([&set]() { Q_UNUSED(set.cellType2String(static_cast<CELL_VALUE>(4))) }),
             QStringLiteral("Cartella::cellType2String - CELL_VALUE type unknown ERROR!"));
}

void tst_Cartella::appendedPagesComeLast()
{
    Cartella set(2, 1, 1, 1);
    Pagina *page = takenPage(1, 2, 3).release();
    QVERIFY(set.appendPage(page));
    QCOMPARE(set.getNumPages(), 3);
    QCOMPARE(set.pagine[2], page);
}

void tst_Cartella::insertedPagesComeBeforeTheIndex()
{
    Cartella set(2, 1, 1, 1);
    const QVector<Pagina *> before = set.pagine;
    Pagina *page = takenPage(1, 2, 3).release();
    QVERIFY(set.insertPage(page, 1));
    QCOMPARE(set.pagine, QVector<Pagina *>({before[0], page, before[1]}));
}

void tst_Cartella::insertingBeyondTheEndAppends()
{
    Cartella set(2, 1, 1, 1);
    Pagina *atTheEnd = takenPage(1, 2, 3).release();
    Pagina *farBeyond = takenPage(1, 2, 3).release();
    QVERIFY(set.insertPage(atTheEnd, 2));
    QVERIFY(set.insertPage(farBeyond, 65535));
    QCOMPARE(set.getNumPages(), 4);
    QCOMPARE(set.pagine[2], atTheEnd);
    QCOMPARE(set.pagine[3], farBeyond);
}

void tst_Cartella::prependedPagesComeFirst()
{
    Cartella set(2, 1, 1, 1);
    Pagina *page = takenPage(1, 2, 3).release();
    QVERIFY(set.prependPage(page));
    QCOMPARE(set.getNumPages(), 3);
    QCOMPARE(set.pagine[0], page);
}

void tst_Cartella::noPageIsRefused()
{
    Cartella set;
    QVERIFY(!set.appendPage(nullptr));
    QVERIFY(!set.insertPage(nullptr, 0));
    QVERIFY(!set.prependPage(nullptr));
    QCOMPARE(set.getNumPages(), 0);
}

void tst_Cartella::deletingTakesThePageOut()
{
    Cartella set(3, 1, 1, 1);
    const QVector<Pagina *> before = set.pagine;
    QVERIFY(set.deletePage(1));
    QCOMPARE(set.pagine, QVector<Pagina *>({before[0], before[2]}));
}

void tst_Cartella::deletingBeyondTheEndIsRefused()
{
    Cartella set(2, 1, 1, 1);
    const QVector<Pagina *> before = set.pagine;
    QVERIFY(!set.deletePage(3));
    QVERIFY(!set.deletePage(2));
    QCOMPARE(set.pagine, before);
}

void tst_Cartella::externalPagesOutliveTheSet()
{
    // The sanitizer run would tell of a page released twice, or of one never released.
    const std::unique_ptr<Pagina> page = takenPage(2, 3, 4);
    QCOMPARE(page->blocchi[1].righe[2].nCelle, U8(4));
}

QTEST_GUILESS_MAIN(tst_Cartella)
#include "tst_Cartella.moc"
