// SPDX-License-Identifier: MIT
#include "output/PaperSheet.h"

#include "model/Cartella.h"

#include <QPageLayout>
#include <QtTest>

class tst_PaperSheet final : public QObject
{
    Q_OBJECT

private slots:
    void paperAndMarginsAreThoseOfTheSet();
    void aFormatThatIsNoneIsA4();
    void pagesWithoutRoomAreThoseWhoseBlocksHaveNoHeight();
};

void tst_PaperSheet::paperAndMarginsAreThoseOfTheSet()
{
    Cartella set;
    set.formato = 8;
    const QPageLayout layout = pageLayoutOf(set);
    QCOMPARE(layout.pageSize().id(), QPageSize::A3);
    QCOMPARE(layout.margins(QPageLayout::Millimeter), QMarginsF(2, 3, 2, 3));
    const Sheet sheet = sheetOf(layout, 254, set);
    QVERIFY(qAbs(sheet.pixels.width() - 2970) < 3); // formats are whole points of 1/72 inch
    QVERIFY(qAbs(sheet.pixels.height() - 4200) < 3);
    QCOMPARE(sheet.leftMm, 2.0);
    QCOMPARE(sheet.topMm, 3.0);
}

void tst_PaperSheet::aFormatThatIsNoneIsA4()
{
    Cartella set;
    set.formato = 30;
    QCOMPARE(pageLayoutOf(set).pageSize().id(), QPageSize::A4);
}

void tst_PaperSheet::pagesWithoutRoomAreThoseWhoseBlocksHaveNoHeight()
{
    Cartella set(3, 6, 3, 9);
    QCOMPARE(pagesWithoutRoom(set, 96), QVector<int>());
    // 297 mm, less three margins of 3 mm, for six blocks: 48 mm each, their spacing included.
    set.pagine[1]->spazioBlocchi = 47.0F;
    QCOMPARE(pagesWithoutRoom(set, 96), QVector<int>());
    set.pagine[1]->spazioBlocchi = 49.0F;
    set.pagine[2]->spazioBlocchi = 60.0F;
    QCOMPARE(pagesWithoutRoom(set, 96), (QVector<int>{1, 2}));
    set.formato = 7; // twice as large
    QCOMPARE(pagesWithoutRoom(set, 96), QVector<int>());
}

QTEST_GUILESS_MAIN(tst_PaperSheet)
#include "tst_PaperSheet.moc"
