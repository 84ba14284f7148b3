// SPDX-License-Identifier: MIT
#include "model/Positions.h"

#include "support/RaggedPage.h"

#include <QTest>

namespace {
constexpr int noCell = -1;
} // namespace

class tst_Positions final : public QObject
{
    Q_OBJECT

private slots:
    void rowsAreCountedBlockByBlock_data();
    void rowsAreCountedBlockByBlock();
    void aRowOutsideThePageHasNoPosition();
    void theTableHasTheRowsOfAllBlocks();
    void aCellIsFoundThroughItsBlock();
    void noCellBeyondARow();
};

void tst_Positions::rowsAreCountedBlockByBlock_data()
{
    QTest::addColumn<int>("tableRow");
    QTest::addColumn<int>("block");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("firstRow");

    QTest::newRow("first of all") << 0 << 0 << 0 << 0;
    QTest::newRow("last of the first block") << 1 << 0 << 1 << 0;
    QTest::newRow("first after an empty block") << 2 << 2 << 0 << 2;
    QTest::newRow("middle of the last block") << 4 << 2 << 2 << 2;
    QTest::newRow("last of all") << 5 << 2 << 3 << 2;
}

void tst_Positions::rowsAreCountedBlockByBlock()
{
    QFETCH(int, tableRow);
    const auto page = pageOfBlocks({2, 0, 4});
    const auto position = rowPosition(*page, tableRow);
    QVERIFY(position.has_value());
    QTEST(position->block, "block");
    QTEST(position->row, "row");
    QTEST(position->firstRow, "firstRow");
}

void tst_Positions::aRowOutsideThePageHasNoPosition()
{
    const auto page = pageOfBlocks({2, 4});
    QVERIFY(!rowPosition(*page, -1).has_value());
    QVERIFY(!rowPosition(*page, 6).has_value());
    QVERIFY(!rowPosition(Pagina(), 0).has_value());
}

void tst_Positions::theTableHasTheRowsOfAllBlocks()
{
    QCOMPARE(tableRowCount(*pageOfBlocks({2, 0, 4})), 6);
    QCOMPARE(tableRowCount(*pageOfBlocks(QVector<U8>(255, 255))), 255 * 255);
    QCOMPARE(tableRowCount(Pagina()), 0);
}

void tst_Positions::aCellIsFoundThroughItsBlock()
{
    const auto page = pageOfBlocks({2, 4});
    QCOMPARE(cellAt(*page, 0, 0), &page->blocchi[0].righe[0].celle[0]);
    QCOMPARE(cellAt(*page, 1, 2), &page->blocchi[0].righe[1].celle[2]);
    QCOMPARE(cellAt(*page, 5, 1), &page->blocchi[1].righe[3].celle[1]);
}

void tst_Positions::noCellBeyondARow()
{
    const auto page = pageOfBlocks({2, 4});
    shortenRow(page->blocchi[1].righe[0], 2);
    QVERIFY(cellAt(*page, 2, 1) != nullptr);
    QCOMPARE(cellAt(*page, 2, 2), nullptr);
    QCOMPARE(cellAt(*page, 0, 3), nullptr);
    QCOMPARE(cellAt(*page, 0, noCell), nullptr);
    QCOMPARE(cellAt(*page, 6, 0), nullptr);
    QCOMPARE(cellAt(*page, noCell, 0), nullptr);
}

QTEST_GUILESS_MAIN(tst_Positions)
#include "tst_Positions.moc"
