// SPDX-License-Identifier: MIT
#include "mainwindow/Selezione.h"

#include <QtTest>

namespace {
// Two blocks of two rows: three cells wide, but two in the last row of all.
void makePage(Cartella &set)
{
    set.generateBlock(2, 2, 3);
    set.pagine[0]->blocchi[1].righe[1].nCelle = 2;
}

struct Expected
{
    Selezione::Kind kind = Selezione::Nothing;
    int block = -1;
    int row = -1;
    int column = -1;
};
} // namespace

Q_DECLARE_METATYPE(Expected)
Q_DECLARE_METATYPE(TablePosition)

class tst_Selezione final : public QObject
{
    Q_OBJECT

private slots:
    void aSelectionIsDescribed_data();
    void aSelectionIsDescribed();
    void nothingIsSelectedByDefault();
};

void tst_Selezione::aSelectionIsDescribed_data()
{
    using Places = QVector<TablePosition>;
    QTest::addColumn<Places>("places");
    QTest::addColumn<Expected>("expected");

    QTest::newRow("nothing") << Places{} << Expected{Selezione::Nothing};
    QTest::newRow("first cell") << Places{{0, 0}} << Expected{Selezione::OneCell, 0, 0, 0};
    QTest::newRow("last cell of a block") << Places{{1, 2}} << Expected{Selezione::OneCell, 0, 1, 2};
    QTest::newRow("cell of the next block") << Places{{2, 0}} << Expected{Selezione::OneCell, 1, 0, 0};
    QTest::newRow("last cell") << Places{{3, 1}} << Expected{Selezione::OneCell, 1, 1, 1};
    QTest::newRow("filler") << Places{{3, 2}} << Expected{Selezione::Filler, 1, 1, 2};
    QTest::newRow("several of a row") << Places{{1, 0}, {1, 2}} << Expected{Selezione::Several, 0};
    QTest::newRow("a whole block") << Places{{2, 0}, {2, 1}, {2, 2}, {3, 0}, {3, 1}, {3, 2}}
                                   << Expected{Selezione::Several, 1};
    QTest::newRow("several blocks") << Places{{1, 0}, {2, 0}} << Expected{Selezione::Several};
    QTest::newRow("several blocks, upwards") << Places{{2, 0}, {1, 0}} << Expected{Selezione::Several};
    QTest::newRow("row of another page") << Places{{4, 0}} << Expected{Selezione::Nothing};
}

void tst_Selezione::aSelectionIsDescribed()
{
    QFETCH(QVector<TablePosition>, places);
    QFETCH(Expected, expected);
    Cartella set;
    makePage(set);
    const Selezione selection = selectionOf(*set.pagine[0], places);
    QCOMPARE(selection.kind, expected.kind);
    QCOMPARE(selection.places, expected.kind == Selezione::Nothing ? 0 : places.size());
    QCOMPARE(selection.block, expected.block);
    QCOMPARE(selection.row, expected.row);
    QCOMPARE(selection.column, expected.column);
    const Cella *cell =
        expected.kind == Selezione::OneCell
            ? &set.pagine[0]->blocchi[size_t(expected.block)].righe[size_t(expected.row)].celle[size_t(expected.column)]
            : nullptr;
    QCOMPARE(static_cast<const Cella *>(selection.cell), cell);
}

void tst_Selezione::nothingIsSelectedByDefault()
{
    const Selezione selection;
    QCOMPARE(selection.kind, Selezione::Nothing);
    QCOMPARE(selection.places, 0);
    QCOMPARE(selection.block, -1);
    QCOMPARE(selection.row, -1);
    QCOMPARE(selection.column, -1);
    QVERIFY(selection.cell == nullptr);
}

QTEST_APPLESS_MAIN(tst_Selezione)
#include "tst_Selezione.moc"
