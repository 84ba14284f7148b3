// SPDX-License-Identifier: MIT
#include "mainwindow/PageTable.h"

#include "model/Positions.h"
#include "support/FatalMessage.h"
#include "support/RaggedPage.h"

#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

namespace {
constexpr int noCell = -1;
} // namespace

class tst_PageTable final : public QObject
{
    Q_OBJECT

private slots:
    void theTextShownDependsOnTheType();
    void aTextCellWithoutTextShowsTheDefaultText();
    void anUnknownTypeStopsTheProgram();
    void onlyDecimalDigitsAreANumber_data();
    void onlyDecimalDigitsAreANumber();
    void itemsShowTextColoursAndAlignmentOfTheirCells();
    void itemsOfEqualLookDoNotShareChanges();
    void aMissingPictureIsToldInTheToolTip();
    void shorterRowsAreFilledUpWithGreyItems();
    void aPageWithoutRowsGivesAnEmptyTable();
    void nothingIsToldWhileTheTableIsFilled();
};

void tst_PageTable::theTextShownDependsOnTheType()
{
    Cella cell;
    cell.numero = 42;
    cell.testo = QStringLiteral("ciao");
    const QString standard = QStringLiteral("Jolly");
    QCOMPARE(cellText(cell, standard), QString());
    cell.tipo = CELL_NUMERO;
    QCOMPARE(cellText(cell, standard), QStringLiteral("42"));
    cell.tipo = CELL_TESTO;
    QCOMPARE(cellText(cell, standard), QStringLiteral("ciao"));
    cell.tipo = CELL_IMMAGINE;
    QCOMPARE(cellText(cell, standard), QStringLiteral("IMG"));
    cell.tipo = CELL_NUMERO;
    cell.numero = 4294967295U;
    QCOMPARE(cellText(cell, standard), QStringLiteral("4294967295"));
}

void tst_PageTable::aTextCellWithoutTextShowsTheDefaultText()
{
    Cella cell;
    cell.tipo = CELL_TESTO;
    QCOMPARE(cellText(cell, QStringLiteral("Jolly")), QStringLiteral("Jolly"));
    cell.testo = QStringLiteral(" ");
    QCOMPARE(cellText(cell, QStringLiteral("Jolly")), QStringLiteral(" "));
}

void tst_PageTable::anUnknownTypeStopsTheProgram()
{
    const QString text = fatalMessageOf([]() {
        Cella cell;
        cell.tipo = static_cast<CELL_VALUE>(4);
        (void)cellText(cell, QString());
    });
    QCOMPARE(text, QStringLiteral("MainWindow::loadPagina() - CELL_VALUE type unknown ERROR!"));
}

void tst_PageTable::onlyDecimalDigitsAreANumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");

    QTest::newRow("one digit") << QStringLiteral("0") << 0;
    QTest::newRow("two digits") << QStringLiteral("42") << 42;
    QTest::newRow("six digits") << QStringLiteral("999999") << 999999;
    QTest::newRow("leading zeros") << QStringLiteral("000007") << 7;
    QTest::newRow("seven digits") << QStringLiteral("1000000") << noCell;
    QTest::newRow("seven digits with zeros") << QStringLiteral("0000007") << noCell;
    QTest::newRow("empty") << QString() << noCell;
    QTest::newRow("letter behind") << QStringLiteral("12a") << noCell;
    QTest::newRow("plus") << QStringLiteral("+5") << noCell;
    QTest::newRow("minus") << QStringLiteral("-5") << noCell;
    QTest::newRow("minus zero") << QStringLiteral("-0") << noCell;
    QTest::newRow("blank before") << QStringLiteral(" 5") << noCell;
    QTest::newRow("blank behind") << QStringLiteral("5 ") << noCell;
    QTest::newRow("blank alone") << QStringLiteral(" ") << noCell;
    QTest::newRow("hexadecimal") << QStringLiteral("0x1F") << noCell;
    QTest::newRow("fraction") << QStringLiteral("1.5") << noCell;
    QTest::newRow("thousands") << QStringLiteral("1,000") << noCell;
    QTest::newRow("digits of another script") << QString(QChar(0x0664)) << noCell;
}

void tst_PageTable::onlyDecimalDigitsAreANumber()
{
    QFETCH(QString, text);
    const auto number = typedNumber(text);
    QTEST(number ? static_cast<int>(*number) : noCell, "number");
}

void tst_PageTable::itemsShowTextColoursAndAlignmentOfTheirCells()
{
    const auto page = pageOfBlocks({1, 1});
    Cella *cell = cellAt(*page, 1, 1);
    cell->tipo = CELL_NUMERO;
    cell->numero = 90;
    cell->coloreSfondo = Qt::yellow;
    cell->coloreTesto = Qt::red;
    QTableWidget table;
    fillTable(&table, *page, 3, QString());

    QCOMPARE(table.rowCount(), 2);
    QCOMPARE(table.columnCount(), 3);
    QCOMPARE(table.item(1, 1)->text(), QStringLiteral("90"));
    QCOMPARE(table.item(1, 1)->background().color(), QColor(Qt::yellow));
    QCOMPARE(table.item(1, 1)->foreground().color(), QColor(Qt::red));
    for (const int column : {0, 2}) {
        QCOMPARE(table.item(1, column)->text(), QString());
        QCOMPARE(table.item(1, column)->background().color(), QColor(Qt::white));
        QCOMPARE(table.item(1, column)->foreground().color(), QColor(Qt::black));
    }
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(table.item(1, column)->textAlignment(), static_cast<int>(Qt::AlignCenter));
        QVERIFY(table.item(1, column)->flags().testFlag(Qt::ItemIsEditable));
    }
}

void tst_PageTable::itemsOfEqualLookDoNotShareChanges()
{
    const auto page = pageOfBlocks({1});
    QTableWidget table;
    fillTable(&table, *page, 3, QString());
    table.item(0, 0)->setText(QStringLiteral("7"));
    table.item(0, 0)->setBackground(QColor(Qt::green));
    QCOMPARE(table.item(0, 1)->text(), QString());
    QCOMPARE(table.item(0, 1)->background().color(), QColor(Qt::white));
}

void tst_PageTable::aMissingPictureIsToldInTheToolTip()
{
    const auto page = pageOfBlocks({1});
    cellAt(*page, 0, 0)->tipo = CELL_IMMAGINE;
    cellAt(*page, 0, 1)->tipo = CELL_IMMAGINE;
    cellAt(*page, 0, 1)->immagine = QImage(2, 2, QImage::Format_RGB32);
    cellAt(*page, 0, 2)->tipo = CELL_NUMERO;
    QTableWidget table;
    fillTable(&table, *page, 4, QString());
    QCOMPARE(table.item(0, 0)->text(), QStringLiteral("IMG"));
    QCOMPARE(table.item(0, 0)->toolTip(), QStringLiteral("L'immagine di base non può essere letta."));
    for (const int column : {1, 2, 3}) {
        QCOMPARE(table.item(0, column)->toolTip(), QString());
    }
}

void tst_PageTable::shorterRowsAreFilledUpWithGreyItems()
{
    const auto page = pageOfBlocks({3});
    shortenRow(page->blocchi[0].righe[2], 1);
    QTableWidget table;
    fillTable(&table, *page, 3, QString());

    QVERIFY(table.item(2, 0)->flags().testFlag(Qt::ItemIsEditable));
    for (const int column : {1, 2}) {
        const QTableWidgetItem *filler = table.item(2, column);
        QCOMPARE(filler->text(), QStringLiteral("X"));
        QCOMPARE(filler->background().color(), QColor(Qt::lightGray));
        QCOMPARE(filler->textAlignment(), static_cast<int>(Qt::AlignCenter));
        QVERIFY(!filler->flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(filler->flags().testFlag(Qt::ItemIsSelectable));
    }
}

void tst_PageTable::aPageWithoutRowsGivesAnEmptyTable()
{
    QTableWidget table;
    fillTable(&table, *pageOfBlocks({0, 0}), 0, QString());
    QCOMPARE(table.rowCount(), 0);
    QCOMPARE(table.columnCount(), 0);
}

void tst_PageTable::nothingIsToldWhileTheTableIsFilled()
{
    QTableWidget table;
    const QSignalSpy itemChanges(&table, &QTableWidget::itemChanged);
    const QSignalSpy dataChanges(table.model(), &QAbstractItemModel::dataChanged);
    fillTable(&table, *pageOfBlocks({3, 3}), 3, QString());
    QCOMPARE(itemChanges.count(), 0);
    QCOMPARE(dataChanges.count(), 0);
    table.item(0, 0)->setText(QStringLiteral("1"));
    QCOMPARE(itemChanges.count(), 1);
}

QTEST_MAIN(tst_PageTable)
#include "tst_PageTable.moc"
