// SPDX-License-Identifier: MIT
#include "output/BlockLayers.h"

#include "output/PageLayers.h"
#include "output/SampleSets.h"
#include "output/TextShapes.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

using SampleSets::block;
using SampleSets::cell;
using SampleSets::setNumber;
using SampleSets::setPicture;
using SampleSets::setText;

namespace {
constexpr BlockLayout roomy = {5.0F, 5.0F, 300.0F, 200.0F, 2};

using Change = std::function<void(Cartella &)>;
} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Neighbours)

class tst_BlockLayers final : public QObject
{
    Q_OBJECT

private slots:
    void layeredWhereTheOrderCannotBeSeen_data();
    void layeredWhereTheOrderCannotBeSeen();
    void notLayeredWhereTheOrderCouldBeSeen_data();
    void notLayeredWhereTheOrderCouldBeSeen();
    void notLayeredWithoutRoom();
    void linesOfNeighboursMayMeet_data();
    void linesOfNeighboursMayMeet();
    void allPartsOfABlockAreAdded();

private:
    static std::unique_ptr<Cartella> twoByTwo();
    static bool isLayered(Cartella &set, const BlockLayout &layout);
};

std::unique_ptr<Cartella> tst_BlockLayers::twoByTwo()
{
    auto set = SampleSets::singleBlock(2, 2);
    setNumber(cell(*set, 0, 0), 1);
    setNumber(cell(*set, 0, 1), 22);
    setNumber(cell(*set, 1, 0), 90);
    return set;
}

bool tst_BlockLayers::isLayered(Cartella &set, const BlockLayout &layout)
{
    QImage page(400, 300, QImage::Format_RGB32);
    QPainter painter(&page);
    TextShapes shapes(&painter);
    return mayBeLayered(block(set), layout, shapes);
}

void tst_BlockLayers::layeredWhereTheOrderCannotBeSeen_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("numbers") << Change([](Cartella &) {});
    QTest::newRow("text") << Change([](Cartella &set) { setText(cell(set, 0, 0), QStringLiteral("TXT")); });
    QTest::newRow("no text") << Change([](Cartella &set) { setText(cell(set, 0, 0), QString()); });
    QTest::newRow("picture") << Change([](Cartella &set) { setPicture(cell(set, 0, 0), QImage()); });
    QTest::newRow("backgrounds") << Change([](Cartella &set) {
        cell(set, 0, 0).coloreSfondo = Qt::yellow;
        cell(set, 1, 1).coloreSfondo = QColor(0, 0, 255, 99);
    });
    QTest::newRow("as many colors as cells") << Change([](Cartella &set) { cell(set, 0, 0).coloreTesto = Qt::red; });
    QTest::newRow("thick separators") << Change([](Cartella &set) { block(set).spessoreLineaInterna = 100; });
    QTest::newRow("no cells") << Change([](Cartella &set) { block(set).nRighe = 0; });
}

void tst_BlockLayers::layeredWhereTheOrderCannotBeSeen()
{
    QFETCH(Change, change);
    const auto set = twoByTwo();
    change(*set);
    QVERIFY(isLayered(*set, roomy));
}

void tst_BlockLayers::notLayeredWhereTheOrderCouldBeSeen_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("translucent separators")
        << Change([](Cartella &set) { block(set).coloreLineaInterna = QColor(0, 0, 0, 254); });
    QTest::newRow("separators thicker than a row")
        << Change([](Cartella &set) { block(set).spessoreLineaInterna = 101; });
    QTest::newRow("impossible line width") << Change([](Cartella &set) { block(set).spessoreLineaInterna = -1; });
    QTest::newRow("number wider than its cell") << Change([](Cartella &set) { setNumber(cell(set, 0, 0), 123456789); });
    QTest::newRow("text wider than its cell")
        << Change([](Cartella &set) { setText(cell(set, 0, 0), QStringLiteral("un testo lungo")); });
    QTest::newRow("text of two lines") << Change(
        [](Cartella &set) { setText(cell(set, 0, 0), QStringLiteral("a\nb")); });
    QTest::newRow("underlined") << Change([](Cartella &set) { cell(set, 0, 0).font.setUnderline(true); });
    QTest::newRow("unknown type") << Change([](Cartella &set) { cell(set, 1, 1).tipo = static_cast<CELL_VALUE>(4); });
}

void tst_BlockLayers::notLayeredWhereTheOrderCouldBeSeen()
{
    QFETCH(Change, change);
    const auto set = twoByTwo();
    change(*set);
    QVERIFY(!isLayered(*set, roomy));
}

void tst_BlockLayers::notLayeredWithoutRoom()
{
    const auto set = SampleSets::singleBlock(2, 2);
    QVERIFY(isLayered(*set, roomy));
    QVERIFY(!isLayered(*set, {5.0F, 5.0F, 300.0F, -200.0F, 2}));
    QVERIFY(!isLayered(*set, {5.0F, 5.0F, -300.0F, 200.0F, 2}));
    setNumber(cell(*set, 0, 0), 1);
    QVERIFY(!isLayered(*set, {5.0F, 5.0F, 0.0F, 0.0F, 2}));
}

void tst_BlockLayers::linesOfNeighboursMayMeet_data()
{
    QTest::addColumn<int>("outline");
    QTest::addColumn<int>("neighboursOutline");
    QTest::addColumn<int>("neighboursSeparators");
    QTest::addColumn<float>("spacing");
    QTest::addColumn<Neighbours>("neighbours");
    QTest::newRow("thinnest lines") << 0 << 0 << 0 << 1.0F << Neighbours::Apart;
    QTest::newRow("touching") << 0 << 0 << 0 << 0.0F << Neighbours::LinesReachCells;
    QTest::newRow("overlapping") << 0 << 0 << 0 << -3.0F << Neighbours::LinesReachCells;
    QTest::newRow("usual lines") << 1 << 1 << 0 << 2.0F << Neighbours::Apart;
    QTest::newRow("room for thick outlines") << 5 << 10 << 0 << 8.5F << Neighbours::Apart;
    QTest::newRow("room for one of them") << 5 << 10 << 0 << 8.4F << Neighbours::LinesMeet;
    QTest::newRow("just room for one of them") << 5 << 10 << 0 << 6.0F << Neighbours::LinesMeet;
    QTest::newRow("room for none of them") << 5 << 10 << 0 << 5.9F << Neighbours::LinesReachCells;
    QTest::newRow("room for thick separators") << 5 << 1 << 10 << 8.5F << Neighbours::Apart;
    QTest::newRow("no room for thick separators") << 5 << 1 << 10 << 5.9F << Neighbours::LinesReachCells;
}

void tst_BlockLayers::linesOfNeighboursMayMeet()
{
    QFETCH(int, outline);
    QFETCH(int, neighboursOutline);
    QFETCH(int, neighboursSeparators);
    QFETCH(float, spacing);
    Blocco block;
    block.spessoreLineaEsterna = outline;
    Blocco neighbour;
    neighbour.spessoreLineaEsterna = neighboursOutline;
    neighbour.spessoreLineaInterna = neighboursSeparators;
    QTEST(neighboursAt(spacing, block, neighbour), "neighbours");
    QTEST(neighboursAt(spacing, neighbour, block), "neighbours");
}

void tst_BlockLayers::allPartsOfABlockAreAdded()
{
    const auto set = twoByTwo();
    Blocco &only = block(*set);
    only.coloreLineaInterna = Qt::green;
    only.spessoreLineaInterna = 4;
    only.coloreLineaEsterna = Qt::blue;
    only.spessoreLineaEsterna = 4;
    cell(*set, 0, 1).coloreSfondo = Qt::yellow;
    QImage red(2, 2, QImage::Format_RGB32);
    red.fill(Qt::red);
    setPicture(cell(*set, 1, 1), red);
    QImage page(400, 300, QImage::Format_RGB32);
    page.fill(Qt::white);
    {
        QPainter painter(&page);
        TextShapes shapes(&painter);
        PageLayers layers;
        addBlock(layers, only, roomy, Qt::white, shapes);
        layers.paint(painter);
    }
    QCOMPARE(page.pixelColor(10, 10), QColor(Qt::white));   // a cell of the page's color
    QCOMPARE(page.pixelColor(160, 10), QColor(Qt::yellow)); // a background
    QCOMPARE(page.pixelColor(230, 155), QColor(Qt::red));   // a picture
    QCOMPARE(page.pixelColor(155, 50), QColor(Qt::green));  // separators of both rows and of the cells
    QCOMPARE(page.pixelColor(155, 150), QColor(Qt::green));
    QCOMPARE(page.pixelColor(50, 105), QColor(Qt::green));
    QCOMPARE(page.pixelColor(5, 50), QColor(Qt::blue)); // outline
    QCOMPARE(page.pixelColor(305, 204), QColor(Qt::blue));
    const QImage number = page.copy(20, 20, 120, 70);
    QImage blank(number.size(), number.format());
    blank.fill(Qt::white);
    QVERIFY(number != blank);
}

QTEST_MAIN(tst_BlockLayers)
#include "tst_BlockLayers.moc"
