// SPDX-License-Identifier: MIT
#include "output/PdfGeometry.h"

#include <QtTest>

#include <cmath>

namespace {
// A sheet of ten pixels per millimetre across and twenty down; every margin differs.
Sheet sheet()
{
    return {QRect(0, 0, 2000, 6000), 200.0, 300.0, 10.0, 15.0, 20.0, 25.0};
}
} // namespace

class tst_PdfGeometry final : public QObject
{
    Q_OBJECT

private slots:
    void millimetresAreConvertedSeparatelyPerAxis();
    void leftMarginCountsTwiceAndBlocksEndAtTheRightMargin();
    void topMarginCountsTwiceInTheBlockHeight();
    void blocksFollowOneAnotherWithTheSpacingBetween();
    void rowsAndCellsDivideTheBlockEvenly();
    void rowsOfOneBlockMayHaveDifferentCellCounts();
    void valuesAreSinglePrecision();
    void sheetsThatDoNotStartAtZeroKeepTheirOrigin();
    void nothingIsDividedByZero();
};

void tst_PdfGeometry::millimetresAreConvertedSeparatelyPerAxis()
{
    const DocumentLayout document = documentLayout(sheet());
    QCOMPARE(document.pixelsPerMmX, 10.0F);
    QCOMPARE(document.pixelsPerMmY, 20.0F);
    QCOMPARE(document.left, 100.0F);
    QCOMPARE(document.right, 200.0F);
    QCOMPARE(document.top, 300.0F);
    QCOMPARE(document.bottom, 500.0F);
    QCOMPARE(document.sheet, QRectF(0, 0, 2000, 6000));
}

void tst_PdfGeometry::leftMarginCountsTwiceAndBlocksEndAtTheRightMargin()
{
    const DocumentLayout document = documentLayout(sheet());
    QCOMPARE(document.blockWidth, 2000.0F - 2 * 100.0F - 200.0F);
    // Counted from the origin, which lies at the left margin.
    QCOMPARE(document.left + document.blockWidth, 2000.0F - 100.0F - 200.0F);
}

void tst_PdfGeometry::topMarginCountsTwiceInTheBlockHeight()
{
    const PageLayout page = pageLayout(documentLayout(sheet()), 4, 1.5F);
    QCOMPARE(page.spacing, 30.0F);
    QCOMPARE(page.blockHeight, (6000.0F - 2 * 300.0F - 500.0F) / 4 - 30.0F);
    QCOMPARE(page.left, 100.0F);
    QCOMPARE(page.top, 300.0F);
}

void tst_PdfGeometry::blocksFollowOneAnotherWithTheSpacingBetween()
{
    const PageLayout page = pageLayout(documentLayout(sheet()), 4, 1.5F);
    for (int b = 0; b < 4; ++b) {
        const BlockLayout block = blockLayout(page, b, 3);
        QCOMPARE(block.rect(), QRectF(100, 300 + b * 1225, 1600, 1195));
    }
}

void tst_PdfGeometry::rowsAndCellsDivideTheBlockEvenly()
{
    const BlockLayout block = {100.0F, 300.0F, 900.0F, 600.0F, 3};
    const RowLayout row = rowLayout(block, 2, 9);
    QCOMPARE(row.top, 700.0F);
    QCOMPARE(row.height, 200.0F);
    QCOMPARE(row.cellRect(0), QRectF(100, 700, 100, 200));
    QCOMPARE(row.cellRect(8), QRectF(900, 700, 100, 200));
}

void tst_PdfGeometry::rowsOfOneBlockMayHaveDifferentCellCounts()
{
    const BlockLayout block = {0.0F, 0.0F, 900.0F, 600.0F, 2};
    QCOMPARE(rowLayout(block, 0, 3).cellRect(1), QRectF(300, 0, 300, 300));
    QCOMPARE(rowLayout(block, 1, 4).cellRect(1), QRectF(225, 300, 225, 300));
}

void tst_PdfGeometry::valuesAreSinglePrecision()
{
    Sheet thirds = sheet();
    thirds.pixels = QRect(0, 0, 826, 1169);
    thirds.widthMm = 210.0;
    const DocumentLayout document = documentLayout(thirds);
    QCOMPARE(static_cast<double>(document.pixelsPerMmX), static_cast<double>(static_cast<float>(826 / 210.0)));
    const RowLayout row = rowLayout({0.1F, 0.0F, 1.0F, 1.0F, 1}, 0, 3);
    const float third = 1.0F / 3.0F;
    QVERIFY(row.cellRect(2).x() == static_cast<double>(0.1F + 2.0F * third));
}

void tst_PdfGeometry::sheetsThatDoNotStartAtZeroKeepTheirOrigin()
{
    Sheet shifted = sheet();
    shifted.pixels.translate(-7, -9);
    const DocumentLayout document = documentLayout(shifted);
    QCOMPARE(document.sheet, QRectF(-7, -9, 2000, 6000));
    QCOMPARE(document.blockWidth, 1600.0F + 0.0F);
}

void tst_PdfGeometry::nothingIsDividedByZero()
{
    const DocumentLayout none = documentLayout({});
    QVERIFY(std::isfinite(none.blockWidth));
    const PageLayout page = pageLayout(documentLayout(sheet()), 0, 1.0F);
    QVERIFY(std::isfinite(page.blockHeight));
    const RowLayout row = rowLayout(blockLayout(page, 0, 0), 0, 0);
    QVERIFY(std::isfinite(row.height));
    QVERIFY(std::isfinite(row.cellWidth));
}

QTEST_GUILESS_MAIN(tst_PdfGeometry)
#include "tst_PdfGeometry.moc"
