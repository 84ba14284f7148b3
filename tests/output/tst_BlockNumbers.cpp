// SPDX-License-Identifier: MIT
#include "output/BlockNumbers.h"

#include "output/NumberShapes.h"
#include "output/SampleSets.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

using SampleSets::block;
using SampleSets::cell;
using SampleSets::setNumber;

namespace {
constexpr BlockLayout roomy = {5.0F, 5.0F, 300.0F, 200.0F, 2};

using Change = std::function<void(Cartella &)>;
} // namespace

Q_DECLARE_METATYPE(Change)

class tst_BlockNumbers final : public QObject
{
    Q_OBJECT

private slots:
    void numbersComeRowByRowInTheirColors()
    {
        const auto set = twoByTwo();
        cell(*set, 1, 0).coloreTesto = Qt::red;
        const auto numbers = gathered(*set, roomy);
        QVERIFY(numbers.has_value());
        QCOMPARE(numbers->size(), 3);
        QCOMPARE(numbers->at(0).color, QColor(Qt::black));
        QCOMPARE(numbers->at(2).color, QColor(Qt::red));
        QVERIFY(QRectF(5, 5, 150, 100).contains(numbers->at(0).corner));
        QVERIFY(QRectF(155, 5, 150, 100).contains(numbers->at(1).corner));
        QVERIFY(QRectF(5, 105, 150, 100).contains(numbers->at(2).corner));
    }

    void blockOfEmptyCellsHasNoNumbers()
    {
        const auto set = SampleSets::singleBlock(2, 2);
        const auto numbers = gathered(*set, roomy);
        QVERIFY(numbers.has_value());
        QVERIFY(numbers->isEmpty());
    }

    void refusedWhereTheOrderCouldBeSeen_data()
    {
        QTest::addColumn<Change>("change");
        QTest::newRow("text cell") << Change([](Cartella &set) { SampleSets::setText(cell(set, 0, 0), {}); });
        QTest::newRow("image cell") << Change([](Cartella &set) { SampleSets::setPicture(cell(set, 0, 0), {}); });
        QTest::newRow("background of a number")
            << Change([](Cartella &set) { cell(set, 0, 0).coloreSfondo = Qt::yellow; });
        QTest::newRow("background of an empty cell")
            << Change([](Cartella &set) { cell(set, 1, 1).coloreSfondo = Qt::yellow; });
        QTest::newRow("translucent separators")
            << Change([](Cartella &set) { block(set).coloreLineaInterna = QColor(0, 0, 0, 254); });
        QTest::newRow("separators reach the digits")
            << Change([](Cartella &set) { block(set).spessoreLineaInterna = 90; });
        QTest::newRow("impossible line width") << Change([](Cartella &set) { block(set).spessoreLineaInterna = -1; });
        QTest::newRow("number wider than its cell")
            << Change([](Cartella &set) { setNumber(cell(set, 0, 0), 123456789); });
        QTest::newRow("underlined") << Change([](Cartella &set) { cell(set, 0, 0).font.setUnderline(true); });
    }

    void refusedWhereTheOrderCouldBeSeen()
    {
        QFETCH(Change, change);
        const auto set = twoByTwo();
        QVERIFY(gathered(*set, roomy).has_value());
        change(*set);
        QVERIFY(!gathered(*set, roomy).has_value());
    }

    void refusedInABlockWithoutRoom()
    {
        const auto set = twoByTwo();
        QVERIFY(!gathered(*set, {5.0F, 5.0F, 300.0F, -200.0F, 2}).has_value());
        QVERIFY(!gathered(*set, {5.0F, 5.0F, 0.0F, 0.0F, 2}).has_value());
    }

private:
    static std::unique_ptr<Cartella> twoByTwo()
    {
        auto set = SampleSets::singleBlock(2, 2);
        setNumber(cell(*set, 0, 0), 1);
        setNumber(cell(*set, 0, 1), 22);
        setNumber(cell(*set, 1, 0), 90);
        return set;
    }

    static std::optional<QVector<PlacedNumber>> gathered(Cartella &set, const BlockLayout &layout)
    {
        QImage page(400, 300, QImage::Format_RGB32);
        QPainter painter(&page);
        NumberShapes shapes(&painter);
        return numbersApartFromLines(block(set), layout, set.pagine.first()->sfondo, shapes);
    }
};

QTEST_MAIN(tst_BlockNumbers)
#include "tst_BlockNumbers.moc"
