// SPDX-License-Identifier: MIT
#include "mainwindow/CellStyling.h"

#include <QtTest>

namespace {
bool isGreen(Pagina *page, int tableRow, int column)
{
    return cellAt(*page, tableRow, column)->coloreSfondo == QColor(Qt::green);
}

int greenCells(Pagina *page)
{
    int green = 0;
    for (int row = 0; row < tableRowCount(*page); ++row) {
        for (int column = 0; cellAt(*page, row, column) != nullptr; ++column) {
            green += isGreen(page, row, column) ? 1 : 0;
        }
    }
    return green;
}

void makeGreen(Cella &cell)
{
    cell.coloreSfondo = Qt::green;
}
} // namespace

class tst_CellStyling final : public QObject
{
    Q_OBJECT

private slots:
    void thePageShownAloneIsReached();
    void allPagesAreReached();
    void aPageThatIsNotThereIsNotReached();
    void aBlockIsColouredOnEveryPageGiven();
    void allBlocksAreColoured();
    void aPageWithoutTheBlockIsLeftAsItIs();
    void onlyTheCellsOfThePageShownChange();
    void theSamePlacesOfAllPagesChange();
    void aPlaceThatAnotherPageLacksIsSkippedAndTold();
    void aFillerIsSkippedOnAllPages();
    void withoutAPageShownNothingChanges();
};

void tst_CellStyling::thePageShownAloneIsReached()
{
    const Cartella set(3, 1, 1, 1);
    QCOMPARE(reachedPages(set.pagine, 0, false), QVector<Pagina *>{set.pagine[0]});
    QCOMPARE(reachedPages(set.pagine, 2, false), QVector<Pagina *>{set.pagine[2]});
}

void tst_CellStyling::allPagesAreReached()
{
    const Cartella set(3, 1, 1, 1);
    QCOMPARE(reachedPages(set.pagine, 1, true), set.pagine);
}

void tst_CellStyling::aPageThatIsNotThereIsNotReached()
{
    const Cartella set(3, 1, 1, 1);
    QCOMPARE(reachedPages(set.pagine, -1, false), QVector<Pagina *>());
    QCOMPARE(reachedPages(set.pagine, 3, false), QVector<Pagina *>());
    QCOMPARE(reachedPages({}, 0, false), QVector<Pagina *>());
    QCOMPARE(reachedPages({}, 0, true), QVector<Pagina *>());
}

void tst_CellStyling::aBlockIsColouredOnEveryPageGiven()
{
    const Cartella set(2, 3, 2, 4);
    colourBlocks(set.pagine, 1, false, Qt::green);
    for (Pagina *page : set.pagine) {
        QCOMPARE(greenCells(page), 8);
        QVERIFY(isGreen(page, 2, 0));
        QVERIFY(isGreen(page, 3, 3));
    }
}

void tst_CellStyling::allBlocksAreColoured()
{
    const Cartella set(2, 3, 2, 4);
    colourBlocks({set.pagine[1]}, -1, true, Qt::green);
    QCOMPARE(greenCells(set.pagine[0]), 0);
    QCOMPARE(greenCells(set.pagine[1]), 24);
}

void tst_CellStyling::aPageWithoutTheBlockIsLeftAsItIs()
{
    Cartella set(3, 2, 2);
    set.generateBlock(1, 2, 2);
    colourBlocks(set.pagine, 2, false, Qt::green);
    QCOMPARE(greenCells(set.pagine[0]), 4);
    QCOMPARE(greenCells(set.pagine[1]), 0);
}

void tst_CellStyling::onlyTheCellsOfThePageShownChange()
{
    const Cartella set(3, 2, 3, 4);
    QVERIFY(changeCells(set.pagine, 1, {{0, 0}, {5, 3}}, false, makeGreen));
    QCOMPARE(greenCells(set.pagine[0]), 0);
    QCOMPARE(greenCells(set.pagine[1]), 2);
    QCOMPARE(greenCells(set.pagine[2]), 0);
    QVERIFY(isGreen(set.pagine[1], 0, 0));
    QVERIFY(isGreen(set.pagine[1], 5, 3));
}

void tst_CellStyling::theSamePlacesOfAllPagesChange()
{
    const Cartella set(3, 2, 3, 4);
    QVERIFY(changeCells(set.pagine, 1, {{4, 2}}, true, makeGreen));
    for (Pagina *page : set.pagine) {
        QCOMPARE(greenCells(page), 1);
        QVERIFY(isGreen(page, 4, 2));
    }
}

void tst_CellStyling::aPlaceThatAnotherPageLacksIsSkippedAndTold()
{
    Cartella set(2, 3, 4);
    set.generateBlock(1, 3, 2); // neither row 5 nor column 3
    QVERIFY(!changeCells(set.pagine, 0, {{1, 1}, {1, 3}, {5, 0}}, true, makeGreen));
    QCOMPARE(greenCells(set.pagine[0]), 3);
    QCOMPARE(greenCells(set.pagine[1]), 1);
    QVERIFY(isGreen(set.pagine[1], 1, 1));
    QVERIFY(changeCells(set.pagine, 0, {{1, 1}, {1, 3}, {5, 0}}, false, makeGreen));
}

void tst_CellStyling::aFillerIsSkippedOnAllPages()
{
    Cartella set(1, 3, 2);
    set.generateBlock(1, 3, 4);
    QVERIFY(changeCells(set.pagine, 0, {{0, 3}, {0, 1}, {7, 0}, {-1, 0}}, true, makeGreen));
    QCOMPARE(greenCells(set.pagine[0]), 1);
    QCOMPARE(greenCells(set.pagine[1]), 1);
}

void tst_CellStyling::withoutAPageShownNothingChanges()
{
    const Cartella set(2, 1, 1, 1);
    QVERIFY(changeCells(set.pagine, -1, {{0, 0}}, true, makeGreen));
    QVERIFY(changeCells(set.pagine, 2, {{0, 0}}, true, makeGreen));
    QCOMPARE(greenCells(set.pagine[0]) + greenCells(set.pagine[1]), 0);
}

QTEST_GUILESS_MAIN(tst_CellStyling)
#include "tst_CellStyling.moc"
