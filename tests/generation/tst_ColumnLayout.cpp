// SPDX-License-Identifier: MIT
#include "generation/ColumnLayout.h"

#include "generation/GUtils.h"

#include <QTest>

#include <algorithm>
#include <numeric>

using Bounds = QVector<QPair<int, int>>;
using Capacities = QVector<int>;

namespace {
Bounds boundsOf(int columns, int nMin, int nMax)
{
    Bounds bounds;
    for (const ColumnRange &range : columnRanges(columns, nMin, nMax)) {
        bounds.append({range.first, range.last});
    }
    return bounds;
}

LayoutRules rulesFor(int rows, int filledPerRow, const Capacities &capacities)
{
    return {rows, filledPerRow, std::vector<qint64>(capacities.begin(), capacities.end())};
}

int filledInRow(const CellLayout &layout, const LayoutRules &rules, int row)
{
    int filled = 0;
    for (int column = 0; column < rules.columns(); ++column) {
        filled += layout.isFilled(row, column) ? 1 : 0;
    }
    return filled;
}

int filledInColumn(const CellLayout &layout, const LayoutRules &rules, int column)
{
    int filled = 0;
    for (int row = 0; row < rules.rows; ++row) {
        filled += layout.isFilled(row, column) ? 1 : 0;
    }
    return filled;
}

bool keepsRules(const CellLayout &layout, const LayoutRules &rules)
{
    for (int row = 0; row < rules.rows; ++row) {
        if (filledInRow(layout, rules, row) != rules.filledPerRow) {
            return false;
        }
    }
    for (int column = 0; column < rules.columns(); ++column) {
        if (filledInColumn(layout, rules, column) > rules.capacity[static_cast<size_t>(column)]) {
            return false;
        }
    }
    return true;
}

// All layouts of a small page, tried one by one.
bool someLayoutKeepsRules(const LayoutRules &rules)
{
    const int cells = rules.rows * rules.columns();
    for (unsigned filled = 0; filled < (1U << cells); ++filled) {
        CellLayout layout(rules.rows, rules.columns());
        for (int cell = 0; cell < cells; ++cell) {
            layout.setFilled(cell / rules.columns(), cell % rules.columns(), ((filled >> cell) & 1U) != 0);
        }
        if (keepsRules(layout, rules)) {
            return true;
        }
    }
    return false;
}

// Calls `check` with all rules of pages of up to 3 rows of 3 columns, with up to 4 numbers per column.
template<typename Check>
void forAllSmallRules(Check check)
{
    for (int rows = 1; rows <= 3; ++rows) {
        for (int perRow = 0; perRow <= 4; ++perRow) {
            for (int code = 0; code < 125; ++code) {
                check(rulesFor(rows, perRow, {code % 5, code / 5 % 5, code / 25}));
            }
        }
    }
}

// How many numbers a successful search takes from the generator; -1 for more than any search here.
int randomCallsOfSearch(const LayoutRules &rules, unsigned seed, int maxPasses)
{
    constexpr int most = 1000;
    seedRandom(seed);
    if (!searchLayout(rules, maxPasses)) {
        return -1;
    }
    const int next = nextRandom();
    seedRandom(seed);
    for (int calls = 0; calls < most; ++calls) {
        if (nextRandom() == next) {
            return calls;
        }
    }
    return -1;
}

// So tight that one pass hardly ever repairs a drawing.
LayoutRules tightRules()
{
    return rulesFor(21, 26, Capacities(78, 7));
}
} // namespace

class tst_ColumnLayout final : public QObject
{
    Q_OBJECT

private slots:
    void rangesOfTheColumns_data();
    void rangesOfTheColumns();
    void onlyNineColumnsOfOneToNinetyAreClassic();
    void rangesCoverAllNumbersInOrder_data();
    void rangesCoverAllNumbersInOrder();
    void capacityCountsBothBounds();
    void existenceAgreesWithTryingAll();
    void theFirstColumnTooSmallForTenFullRows();
    void constructionSucceedsWheneverALayoutExists();
    void constructionKeepsLargeTightRules();
    void constructedLayoutsDiffer();
    void searchKeepsTheRules();
    void searchGivesUpAfterItsDrawings();
    void passesAreCountedPerDrawing();
    void withoutSuccessTheLayoutIsConstructed();
    void withoutALayoutNoRandomCallIsMade();
    void fullRowsEnd();
};

void tst_ColumnLayout::rangesOfTheColumns_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("nMin");
    QTest::addColumn<int>("nMax");
    QTest::addColumn<Bounds>("bounds");
    QTest::newRow("9 of 1 to 90") << 9 << 1 << 90 << Bounds{{1, 9},   {10, 19}, {20, 29}, {30, 39}, {40, 49},
                                                            {50, 59}, {60, 69}, {70, 79}, {80, 90}};
    QTest::newRow("10 of 1 to 100") << 10 << 1 << 100 << Bounds{{1, 9},   {10, 19}, {20, 29}, {30, 39}, {40, 49},
                                                                {50, 59}, {60, 69}, {70, 79}, {80, 89}, {90, 100}};
    QTest::newRow("5 of 1 to 50") << 5 << 1 << 50 << Bounds{{1, 10}, {11, 20}, {21, 30}, {31, 40}, {41, 50}};
    QTest::newRow("4 of 1 to 10") << 4 << 1 << 10 << Bounds{{1, 2}, {3, 5}, {6, 7}, {8, 10}};
    QTest::newRow("9 of 0 to 89") << 9 << 0 << 89 << Bounds{{0, 9},   {10, 19}, {20, 29}, {30, 39}, {40, 49},
                                                            {50, 59}, {60, 69}, {70, 79}, {80, 89}};
    QTest::newRow("9 of 1 to 91") << 9 << 1 << 91 << Bounds{{1, 10},  {11, 20}, {21, 30}, {31, 40}, {41, 50},
                                                            {51, 60}, {61, 70}, {71, 80}, {81, 91}};
    QTest::newRow("10 of 1 to 90") << 10 << 1 << 90 << Bounds{{1, 9},   {10, 18}, {19, 27}, {28, 36}, {37, 45},
                                                              {46, 54}, {55, 63}, {64, 72}, {73, 81}, {82, 90}};
    QTest::newRow("one column") << 1 << 3 << 7 << Bounds{{3, 7}};
    QTest::newRow("fewer numbers than columns") << 3 << 1 << 2 << Bounds{{1, 0}, {1, 1}, {2, 2}};
    QTest::newRow("the widest") << 2 << 0 << 2147483647 << Bounds{{0, 1073741823}, {1073741824, 2147483647}};
}

void tst_ColumnLayout::rangesOfTheColumns()
{
    QFETCH(int, columns);
    QFETCH(int, nMin);
    QFETCH(int, nMax);
    QTEST(boundsOf(columns, nMin, nMax), "bounds");
}

void tst_ColumnLayout::onlyNineColumnsOfOneToNinetyAreClassic()
{
    QVERIFY(isClassic(9, 1, 90));
    QVERIFY(!isClassic(8, 1, 90));
    QVERIFY(!isClassic(10, 1, 100));
    QVERIFY(!isClassic(9, 0, 90));
    QVERIFY(!isClassic(9, 1, 89));
}

void tst_ColumnLayout::rangesCoverAllNumbersInOrder_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("nMin");
    QTest::addColumn<int>("nMax");
    QTest::newRow("9 of 1 to 90") << 9 << 1 << 90;
    QTest::newRow("10 of 1 to 100") << 10 << 1 << 100;
    QTest::newRow("7 of 3 to 52") << 7 << 3 << 52;
    QTest::newRow("99 of 0 to 999999") << 99 << 0 << 999999;
    QTest::newRow("255 of 0 to 99") << 255 << 0 << 99;
}

void tst_ColumnLayout::rangesCoverAllNumbersInOrder()
{
    QFETCH(int, columns);
    QFETCH(int, nMin);
    QFETCH(int, nMax);
    const auto ranges = columnRanges(columns, nMin, nMax);
    QCOMPARE(int(ranges.size()), columns);
    int next = nMin;
    for (const ColumnRange &range : ranges) {
        QCOMPARE(range.first, next);
        QVERIFY(range.capacity() >= 0);
        next = range.last + 1;
    }
    QCOMPARE(next, nMax + 1);
}

void tst_ColumnLayout::capacityCountsBothBounds()
{
    QCOMPARE((ColumnRange{1, 9}).capacity(), qint64(9));
    QCOMPARE((ColumnRange{5, 4}).capacity(), qint64(0));
    QCOMPARE((ColumnRange{0, 2147483647}).capacity(), Q_INT64_C(2147483648));
}

void tst_ColumnLayout::existenceAgreesWithTryingAll()
{
    int existing = 0;
    int missing = 0;
    forAllSmallRules([&](const LayoutRules &rules) {
        const bool exists = someLayoutKeepsRules(rules);
        QCOMPARE(layoutExists(rules), exists);
        ++(exists ? existing : missing);
    });
    QVERIFY(existing > 100);
    QVERIFY(missing > 100);
}

void tst_ColumnLayout::theFirstColumnTooSmallForTenFullRows()
{
    const Capacities tens{9, 10, 10, 10, 10, 10, 10, 10, 11};
    QVERIFY(!layoutExists(rulesFor(10, 9, tens)));
    QVERIFY(layoutExists(rulesFor(9, 9, tens)));
    QVERIFY(layoutExists(rulesFor(10, 8, tens)));
}

void tst_ColumnLayout::constructionSucceedsWheneverALayoutExists()
{
    seedRandom(1);
    forAllSmallRules([](const LayoutRules &rules) {
        if (layoutExists(rules)) {
            QVERIFY(keepsRules(constructLayout(rules), rules));
        }
    });
}

void tst_ColumnLayout::constructionKeepsLargeTightRules()
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        seedRandom(seed);
        QVERIFY(keepsRules(constructLayout(tightRules()), tightRules()));
        const auto uneven = rulesFor(18, 5, {9, 10, 10, 10, 10, 10, 10, 10, 11});
        QVERIFY(keepsRules(constructLayout(uneven), uneven));
        const auto oneColumnInAllRows = rulesFor(40, 2, {40, 1, 1, 38});
        QVERIFY(keepsRules(constructLayout(oneColumnInAllRows), oneColumnInAllRows));
    }
}

void tst_ColumnLayout::constructedLayoutsDiffer()
{
    const auto rules = rulesFor(18, 5, {9, 10, 10, 10, 10, 10, 10, 10, 11});
    seedRandom(1);
    const CellLayout first = constructLayout(rules);
    const CellLayout second = constructLayout(rules);
    int differences = 0;
    for (int row = 0; row < rules.rows; ++row) {
        for (int column = 0; column < rules.columns(); ++column) {
            differences += first.isFilled(row, column) != second.isFilled(row, column) ? 1 : 0;
        }
    }
    QVERIFY(differences > 10);
}

void tst_ColumnLayout::searchKeepsTheRules()
{
    const auto rules = rulesFor(18, 5, {9, 10, 10, 10, 10, 10, 10, 10, 11});
    for (unsigned seed = 1; seed <= 50; ++seed) {
        seedRandom(seed);
        const auto found = searchLayout(rules, 1000);
        QVERIFY(found.has_value());
        QVERIFY(keepsRules(*found, rules));
    }
}

void tst_ColumnLayout::searchGivesUpAfterItsDrawings()
{
    seedRandom(1);
    QVERIFY(layoutExists(tightRules()));
    QVERIFY(!searchLayout(tightRules(), 1).has_value());
    seedRandom(1);
    QVERIFY(!searchLayout(tightRules(), -5).has_value());
    seedRandom(1);
    QVERIFY(searchLayout(tightRules(), 1000).has_value());
}

// Three rows of three columns, two cells each: drawing costs 6 calls, moving a cell one.
void tst_ColumnLayout::passesAreCountedPerDrawing()
{
    const auto rules = rulesFor(3, 2, {2, 2, 2});
    QCOMPARE(randomCallsOfSearch(rules, 38, 1), 6 + 2); // one pass moves two cells
    QCOMPARE(randomCallsOfSearch(rules, 14, 2), 6 + 2); // each of two passes moves one
    // Without the second pass the rows are drawn again.
    QVERIFY(randomCallsOfSearch(rules, 14, 1) >= 6 + 1 + 6);
}

void tst_ColumnLayout::withoutSuccessTheLayoutIsConstructed()
{
    seedRandom(1);
    const auto found = findLayout(tightRules(), 1);
    QVERIFY(found.has_value());
    QVERIFY(keepsRules(*found, tightRules()));
}

void tst_ColumnLayout::withoutALayoutNoRandomCallIsMade()
{
    seedRandom(6);
    const int first = nextRandom();
    seedRandom(6);
    QVERIFY(!findLayout(rulesFor(10, 9, {9, 10, 10, 10, 10, 10, 10, 10, 11}), 1000).has_value());
    QVERIFY(!findLayout(rulesFor(2, 4, {9, 9, 9}), 1000).has_value());
    QCOMPARE(nextRandom(), first);
}

void tst_ColumnLayout::fullRowsEnd()
{
    const auto rules = rulesFor(9, 9, {9, 10, 10, 10, 10, 10, 10, 10, 11});
    const auto found = findLayout(rules, 1000);
    QVERIFY(found.has_value());
    QVERIFY(keepsRules(*found, rules));
}

QTEST_GUILESS_MAIN(tst_ColumnLayout)
#include "tst_ColumnLayout.moc"
