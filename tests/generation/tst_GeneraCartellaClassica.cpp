// SPDX-License-Identifier: MIT
#include "generation/GeneraCartellaClassica.h"

#include "generation/DefaultCell.h"
#include "generation/GUtils.h"
#include "settings/Config.h"
#include "support/LogCapture.h"
#include "support/ScratchFolder.h"

#include <QCoreApplication>
#include <QSet>
#include <QTest>

#include <map>
#include <memory>
#include <random>
#include <set>
#include <vector>

namespace {
// What a page is filled with.
struct Shape
{
    U8 blocks;
    U8 rowsPerBlock;
    U8 columns;
    U8 drawn;
    U8 images;
    U8 texts;
    int nMin;
    int nMax;

    int rows() const { return blocks * rowsPerBlock; }
};

bool fill(Cartella &set, const Shape &shape)
{
    GeneraCartellaClassica generator;
    return generator.generate(set.pagine.last(), shape.columns, shape.drawn, shape.images, shape.texts, shape.nMin,
                              shape.nMax);
}

// One text per row of the page: numbers, "I", "S" and "-".
QStringList rowsOf(const Pagina &page)
{
    QStringList rows;
    for (const Blocco &block : page) {
        for (const Riga &row : block) {
            QStringList cells;
            for (const Cella &cell : row) {
                cells.append(cell.tipo == CELL_NUMERO     ? QString::number(cell.numero)
                             : cell.tipo == CELL_IMMAGINE ? QStringLiteral("I")
                             : cell.tipo == CELL_TESTO    ? QStringLiteral("S")
                                                          : QStringLiteral("-"));
            }
            rows.append(cells.join(QLatin1Char(' ')));
        }
    }
    return rows;
}

// A second generator of pages, written on its own: sets of columns per row, its own draw, its own random numbers. Only
// for shapes whose first drawing can be repaired within 1000 passes.
class Reference
{
public:
    Reference(const Shape &shape, unsigned seed)
        : m_shape(shape)
        , m_random(seed)
    {
    }

    QStringList page()
    {
        makeRanges();
        std::vector<std::set<int>> filled(static_cast<size_t>(m_shape.rows()));
        for (auto &row : filled) {
            for (const int column : draw(m_shape.drawn, 0, m_shape.columns - 1)) {
                row.insert(column);
            }
        }
        while (!fits(filled)) {
            repair(filled);
        }
        return written(numbered(filled));
    }

    int next() { return static_cast<int>(m_random()); }

private:
    using Cells = std::map<int, QString>; // of one row, by column
    using Rows = std::vector<std::set<int>>;

    void makeRanges()
    {
        const int n = m_shape.nMax - m_shape.nMin + 1;
        const bool byTens = m_shape.nMin == 1 && ((m_shape.columns == 9 && m_shape.nMax == 90) ||
                                                  (m_shape.columns == 10 && m_shape.nMax == 100));
        for (int c = 0; c < m_shape.columns; ++c) {
            const bool last = c + 1 == m_shape.columns;
            if (byTens) {
                m_low.push_back(c == 0 ? 1 : c * 10);
                m_high.push_back(last ? m_shape.nMax : c * 10 + 9);
            } else {
                m_low.push_back(c * n / m_shape.columns + m_shape.nMin);
                m_high.push_back(last ? m_shape.nMax : (n + c * n) / m_shape.columns + m_shape.nMin - 1);
            }
        }
    }

    std::vector<int> draw(int count, int low, int high)
    {
        std::vector<int> pool;
        for (int i = low; i <= high; ++i) {
            pool.push_back(i);
        }
        std::vector<int> drawn;
        while (count-- > 0) {
            auto chosen = pool.begin() + static_cast<long>(static_cast<size_t>(next()) % pool.size());
            drawn.push_back(*chosen);
            *chosen = pool.back();
            pool.pop_back();
        }
        return drawn;
    }

    int excess(const Rows &filled, int column) const
    {
        int count = 0;
        for (const auto &row : filled) {
            count += static_cast<int>(row.count(column));
        }
        const auto c = static_cast<size_t>(column);
        return count - (m_high[c] - m_low[c] + 1);
    }

    bool fits(const Rows &filled) const
    {
        for (int c = 0; c < m_shape.columns; ++c) {
            if (excess(filled, c) > 0) {
                return false;
            }
        }
        return true;
    }

    void repair(Rows &filled)
    {
        for (int c = 0; c < m_shape.columns; ++c) {
            while (excess(filled, c) > 0) {
                auto &row = filled[static_cast<size_t>(next() % m_shape.rows())];
                if (row.count(c) == 0) {
                    continue;
                }
                int target = c + 1;
                while (target < m_shape.columns && row.count(target) != 0) {
                    ++target;
                }
                if (target == m_shape.columns) {
                    target = 0;
                    while (row.count(target) != 0) {
                        ++target;
                    }
                }
                row.erase(c);
                row.insert(target);
            }
        }
    }

    std::vector<Cells> numbered(const Rows &filled)
    {
        std::vector<Cells> rows(filled.size());
        for (int c = 0; c < m_shape.columns; ++c) {
            const int low = m_low[static_cast<size_t>(c)];
            const int high = m_high[static_cast<size_t>(c)];
            const std::vector<int> order = draw(high - low + 1, low, high);
            auto number = order.begin();
            for (size_t r = 0; r < filled.size(); ++r) {
                if (filled[r].count(c) != 0) {
                    rows[r][c] = QString::number(*number++);
                }
            }
        }
        place(rows, m_shape.images, QStringLiteral("I"));
        place(rows, m_shape.texts, QStringLiteral("S"));
        return rows;
    }

    void place(std::vector<Cells> &rows, int count, const QString &mark)
    {
        for (Cells &row : rows) {
            int left = count;
            while (left > 0) {
                const auto cell = row.find(next() % m_shape.columns);
                if (cell != row.end() && cell->second[0].isDigit()) {
                    cell->second = mark;
                    --left;
                }
            }
        }
    }

    QStringList written(const std::vector<Cells> &rows) const
    {
        QStringList texts;
        for (const Cells &row : rows) {
            QStringList cells;
            for (int c = 0; c < m_shape.columns; ++c) {
                cells.append(row.count(c) != 0 ? row.at(c) : QStringLiteral("-"));
            }
            texts.append(cells.join(QLatin1Char(' ')));
        }
        return texts;
    }

    Shape m_shape;
    std::minstd_rand m_random; // what the toolkit seeds and draws from
    std::vector<int> m_low;
    std::vector<int> m_high;
};

// A page whose cells carry all sorts of things.
void decorate(Pagina &page)
{
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::green);
    for (Blocco &block : page) {
        for (Riga &row : block) {
            for (Cella &cell : row) {
                cell.tipo = CELL_TESTO;
                cell.testo = QStringLiteral("old");
                cell.numero = 77;
                cell.immagine = picture;
                cell.font = QFont(QStringLiteral("Courier"), 8);
                cell.coloreTesto = Qt::red;
                cell.coloreSfondo = Qt::blue;
            }
        }
    }
}

bool isDecorated(const Pagina &page)
{
    for (const Blocco &block : page) {
        for (const Riga &row : block) {
            for (const Cella &cell : row) {
                if (cell.tipo != CELL_TESTO || cell.testo != QStringLiteral("old") || cell.numero != 77 ||
                    cell.immagine.width() != 3 || cell.font.pointSize() != 8 || cell.coloreTesto != Qt::red ||
                    cell.coloreSfondo != Qt::blue) {
                    return false;
                }
            }
        }
    }
    return true;
}
} // namespace

Q_DECLARE_METATYPE(Shape)

class tst_GeneraCartellaClassica final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void aThousandPassesAreTheDefault();
    void aPageWorkedOutByHand();
    void pagesMatchASecondImplementation_data();
    void pagesMatchASecondImplementation();
    void oneSeedGivesOnePage();
    void columnsHoldOnlyTheirNumbers_data();
    void columnsHoldOnlyTheirNumbers();
    void sixCardsHoldEveryNumberOnce();
    void everyRowHasItsFilledCells();
    void jollyCellsReplaceNumbers();
    void jollyCellsShowTheDefaults();
    void allFilledCellsMayBeJolly();
    void cellsGetTheirDefaultLook();
    void whatACellShowedBeforeStaysUnseen();
    void tooFewNumbersAreRefused();
    void aColumnTooSmallForFullRowsIsRefusedAtOnce();
    void impossibleRequestsAreRefused_data();
    void impossibleRequestsAreRefused();
    void irregularPagesAreRefused();
    void noPageIsRefused();
    void aPageWithoutBlocksIsRefused();
    void anOrderOfNumbersThatRunsOutIsRefused();
    void withoutRepairTheLayoutIsConstructed();
    void theWidestRangeIsFilled();
    void theLargestPageEnds();
    void pagesWithoutRowsOrDrawnCellsAreFilled();

private:
    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<CurrentConfig> m_config;
};

void tst_GeneraCartellaClassica::initTestCase()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_folder->writePicture(QStringLiteral("jolly.png"), QSize(7, 5), Qt::red);
    m_config = std::make_unique<CurrentConfig>(QCoreApplication::instance());
    globalConfig->defaultCellText = QStringLiteral("Jolly!");
    globalConfig->defaultCellImage = m_folder->path(QStringLiteral("jolly.png"));
}

void tst_GeneraCartellaClassica::cleanupTestCase()
{
    m_config.reset();
    m_folder.reset();
}

void tst_GeneraCartellaClassica::aThousandPassesAreTheDefault()
{
    QCOMPARE(GeneraCartellaClassica().maxTentativi, 1000);
}

// 1 block of 3 rows of 3 columns, 2 drawn, 1 image, 1 to 6: columns 1-2, 3-4, 5-6, each with room for 2 cells.
void tst_GeneraCartellaClassica::aPageWorkedOutByHand()
{
    const std::vector<int> raw{675794,     408997469,  899659228, 1036285154, 1184079163, 1408012268, 450244725,
                               1228612835, 1461762733, 878695164, 544749547,  1815609369, 324733282,  717115969,
                               616033606,  352135217,  585993802, 1999701705, 358553052,  1143661919};
    seedRandom(14);
    for (const int expected : raw) {
        QCOMPARE(nextRandom(), expected);
    }
    const int afterThePage = nextRandom();

    // Columns of the rows, two calls each, of the pool 0 1 2:
    //   row 0: 675794 mod 3 = 2 -> 2, left 0 1; 408997469 mod 2 = 1 -> 1
    //   row 1: 899659228 mod 3 = 1 -> 1, left 0 2; 1036285154 mod 2 = 0 -> 0
    //   row 2: 1184079163 mod 3 = 1 -> 1, left 0 2; 1408012268 mod 2 = 0 -> 0
    // Filled are 1 2 / 0 1 / 0 1; the columns have 2, 3, 1 cells.
    // Column 1 has one too many: 450244725 mod 3 = 0, row 0; column 2 is filled there, so the cell goes to column 0.
    // Column 0 now has 3 and waits for the second pass: 1228612835 mod 3 = 2, row 2; column 1 is filled, 2 is free.
    // Filled are 0 2 / 0 1 / 1 2; the columns have 2 cells each.
    // Numbers, two calls per column:
    //   column 0: 1461762733 mod 2 = 1 -> 2; 878695164 mod 1 = 0 -> 1
    //   column 1: 544749547 mod 2 = 1 -> 4; 1815609369 mod 1 = 0 -> 3
    //   column 2: 324733282 mod 2 = 0 -> 5; 717115969 mod 1 = 0 -> 6
    // The rows are 2 - 5 / 1 4 - / - 3 6.
    // Images: row 0: 616033606 mod 3 = 1, empty, 352135217 mod 3 = 2; row 1: 585993802 mod 3 = 1;
    // row 2: 1999701705 mod 3 = 0, empty, 358553052 mod 3 = 0, empty, 1143661919 mod 3 = 2.
    Cartella set(1, 3, 3);
    seedRandom(14);
    QVERIFY(fill(set, {1, 3, 3, 2, 1, 0, 1, 6}));
    QCOMPARE(rowsOf(*set.pagine[0]),
             QStringList({QStringLiteral("2 - I"), QStringLiteral("1 I -"), QStringLiteral("- 3 I")}));

    QCOMPARE(nextRandom(), afterThePage);
}

void tst_GeneraCartellaClassica::pagesMatchASecondImplementation_data()
{
    QTest::addColumn<Shape>("shape");
    QTest::newRow("six cards") << Shape{6, 3, 9, 5, 0, 0, 1, 90};
    QTest::newRow("six cards with jolly cells") << Shape{6, 3, 9, 5, 1, 1, 1, 90};
    QTest::newRow("three cards") << Shape{3, 3, 9, 5, 2, 0, 1, 90};
    QTest::newRow("ten columns") << Shape{6, 3, 10, 5, 0, 3, 1, 100};
    QTest::newRow("five by five") << Shape{2, 5, 5, 5, 1, 0, 1, 75};
    QTest::newRow("tight") << Shape{4, 4, 7, 6, 0, 0, 5, 100};
    QTest::newRow("fewer numbers than columns") << Shape{1, 3, 20, 2, 0, 1, 0, 9};
    QTest::newRow("one column") << Shape{2, 4, 1, 1, 0, 0, 10, 20};
    QTest::newRow("wide") << Shape{3, 20, 99, 60, 5, 5, 0, 9999};
    QTest::newRow("large") << Shape{30, 9, 40, 30, 3, 3, 1, 8100};
}

void tst_GeneraCartellaClassica::pagesMatchASecondImplementation()
{
    QFETCH(Shape, shape);
    for (unsigned seed = 1; seed <= 40; ++seed) {
        Cartella set(shape.blocks, shape.rowsPerBlock, shape.columns);
        const QByteArray which = QByteArrayLiteral("seed ") + QByteArray::number(seed);
        Reference reference(shape, seed);
        const QStringList expected = reference.page();
        seedRandom(seed);
        bool filled = false;
        {
            const LogCapture log; // columns without numbers write warnings
            filled = fill(set, shape);
        }
        QVERIFY2(filled, which.constData());
        QVERIFY2(rowsOf(*set.pagine[0]) == expected, which.constData());
        QVERIFY2(nextRandom() == reference.next(), which.constData());
    }
}

void tst_GeneraCartellaClassica::oneSeedGivesOnePage()
{
    Cartella set(2, 6, 3, 9);
    GeneraCartellaClassica generator;
    for (Pagina *page : qAsConst(set.pagine)) {
        seedRandom(77);
        QVERIFY(generator.generate(page, 9, 5, 1, 1, 1, 90));
    }
    QCOMPARE(rowsOf(*set.pagine[0]), rowsOf(*set.pagine[1]));
    QVERIFY(generator.generate(set.pagine[1], 9, 5, 1, 1, 1, 90));
    QVERIFY(rowsOf(*set.pagine[0]) != rowsOf(*set.pagine[1]));
}

void tst_GeneraCartellaClassica::columnsHoldOnlyTheirNumbers_data()
{
    QTest::addColumn<Shape>("shape");
    QTest::addColumn<QVector<int>>("firsts"); // of the columns, then one beyond the last number
    QTest::newRow("9 of 1 to 90") << Shape{6, 3, 9, 5, 0, 0, 1, 90}
                                  << QVector<int>{1, 10, 20, 30, 40, 50, 60, 70, 80, 91};
    QTest::newRow("10 of 1 to 100") << Shape{6, 3, 10, 5, 0, 0, 1, 100}
                                    << QVector<int>{1, 10, 20, 30, 40, 50, 60, 70, 80, 90, 101};
    QTest::newRow("5 of 1 to 50") << Shape{2, 5, 5, 5, 0, 0, 1, 50} << QVector<int>{1, 11, 21, 31, 41, 51};
    QTest::newRow("4 of 1 to 10") << Shape{1, 3, 4, 3, 0, 0, 1, 10} << QVector<int>{1, 3, 6, 8, 11};
}

void tst_GeneraCartellaClassica::columnsHoldOnlyTheirNumbers()
{
    QFETCH(Shape, shape);
    QFETCH(QVector<int>, firsts);
    for (unsigned seed = 1; seed <= 20; ++seed) {
        Cartella set(shape.blocks, shape.rowsPerBlock, shape.columns);
        seedRandom(seed);
        QVERIFY(fill(set, shape));
        QSet<quint32> seen;
        for (const Blocco &block : *set.pagine[0]) {
            for (const Riga &row : block) {
                for (int c = 0; c < shape.columns; ++c) {
                    const Cella &cell = row.celle[size_t(c)];
                    if (cell.tipo == CELL_NUMERO) {
                        QVERIFY(cell.numero >= static_cast<quint32>(firsts[c]));
                        QVERIFY(cell.numero < static_cast<quint32>(firsts[c + 1]));
                        QVERIFY(!seen.contains(cell.numero));
                        seen.insert(cell.numero);
                    }
                }
            }
        }
        QCOMPARE(seen.size(), shape.rows() * shape.drawn);
    }
}

void tst_GeneraCartellaClassica::sixCardsHoldEveryNumberOnce()
{
    Cartella set(6, 3, 9);
    QVERIFY(fill(set, {6, 3, 9, 5, 0, 0, 1, 90}));
    QStringList numbers = rowsOf(*set.pagine[0]).join(QLatin1Char(' ')).split(QLatin1Char(' '));
    numbers.removeAll(QStringLiteral("-"));
    for (int number = 1; number <= 90; ++number) {
        QCOMPARE(numbers.count(QString::number(number)), 1);
    }
}

void tst_GeneraCartellaClassica::everyRowHasItsFilledCells()
{
    Cartella set(3, 3, 9);
    QVERIFY(fill(set, {3, 3, 9, 5, 0, 0, 1, 90}));
    const QStringList rows = rowsOf(*set.pagine[0]);
    QCOMPARE(rows.size(), 9);
    for (const QString &row : rows) {
        QCOMPARE(row.count(QLatin1Char('-')), 4);
    }
}

void tst_GeneraCartellaClassica::jollyCellsReplaceNumbers()
{
    Cartella set(3, 3, 9);
    QVERIFY(fill(set, {3, 3, 9, 5, 1, 1, 1, 90}));
    for (const QString &row : rowsOf(*set.pagine[0])) {
        QCOMPARE(row.count(QLatin1Char('I')), 1);
        QCOMPARE(row.count(QLatin1Char('S')), 1);
        QCOMPARE(row.count(QLatin1Char('-')), 4);
        QCOMPARE(row.split(QLatin1Char(' ')).size(), 9);
    }
}

void tst_GeneraCartellaClassica::jollyCellsShowTheDefaults()
{
    Cartella set(2, 1, 1, 2);
    GeneraCartellaClassica generator;
    for (Pagina *page : qAsConst(set.pagine)) {
        QVERIFY(generator.generate(page, 2, 2, 1, 1, 1, 2));
        const Riga &row = page->blocchi[0].righe[0];
        const Cella &image = row.celle[row.celle[0].tipo == CELL_IMMAGINE ? 0 : 1];
        const Cella &text = row.celle[row.celle[0].tipo == CELL_IMMAGINE ? 1 : 0];
        QCOMPARE(image.tipo, CELL_IMMAGINE);
        QCOMPARE(image.immagine.size(), QSize(7, 5));
        QCOMPARE(image.immagine.cacheKey(), DefaultCell::image().cacheKey());
        QCOMPARE(text.tipo, CELL_TESTO);
        QCOMPARE(text.testo, QStringLiteral("Jolly!"));
    }
}

void tst_GeneraCartellaClassica::allFilledCellsMayBeJolly()
{
    Cartella set(1, 2, 4);
    QVERIFY(fill(set, {1, 2, 4, 3, 1, 2, 1, 20}));
    for (const QString &row : rowsOf(*set.pagine[0])) {
        QCOMPARE(row.count(QLatin1Char('I')), 1);
        QCOMPARE(row.count(QLatin1Char('S')), 2);
        QCOMPARE(row.count(QLatin1Char('-')), 1);
    }
}

void tst_GeneraCartellaClassica::cellsGetTheirDefaultLook()
{
    Cartella set(1, 3, 9);
    decorate(*set.pagine[0]);
    QVERIFY(fill(set, {1, 3, 9, 5, 1, 1, 1, 90}));
    for (const Riga &row : set.pagine[0]->blocchi[0]) {
        for (const Cella &cell : row) {
            QVERIFY(cell.font.isCopyOf(defaultCellFont()));
            QCOMPARE(cell.coloreTesto, QColor(Qt::black));
            QCOMPARE(cell.coloreSfondo, QColor(Qt::white));
        }
    }
}

void tst_GeneraCartellaClassica::whatACellShowedBeforeStaysUnseen()
{
    Cartella set(1, 3, 9);
    decorate(*set.pagine[0]);
    QVERIFY(fill(set, {1, 3, 9, 5, 1, 1, 1, 90}));
    for (const Riga &row : set.pagine[0]->blocchi[0]) {
        for (const Cella &cell : row) {
            QCOMPARE(cell.testo == QStringLiteral("old"), cell.tipo != CELL_TESTO);
            QCOMPARE(cell.immagine.width() == 3, cell.tipo != CELL_IMMAGINE);
            QVERIFY(cell.tipo == CELL_NUMERO || cell.numero == 77);
        }
    }
}

void tst_GeneraCartellaClassica::tooFewNumbersAreRefused()
{
    Cartella set(7, 3, 9);
    decorate(*set.pagine[0]);
    const LogCapture log;
    QVERIFY(!fill(set, {7, 3, 9, 5, 0, 0, 1, 90}));
    QCOMPARE(log.warnings(), QStringList(QString()));
    QVERIFY(isDecorated(*set.pagine[0]));
}

void tst_GeneraCartellaClassica::aColumnTooSmallForFullRowsIsRefusedAtOnce()
{
    Cartella set(1, 10, 9);
    decorate(*set.pagine[0]);
    seedRandom(1);
    const int first = nextRandom();
    seedRandom(1);
    const LogCapture log;
    QVERIFY(!fill(set, {1, 10, 9, 9, 0, 0, 1, 90}));
    QVERIFY(isDecorated(*set.pagine[0]));
    QCOMPARE(nextRandom(), first);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().startsWith(QStringLiteral("GeneraCartellaClassica::generate()")));
}

void tst_GeneraCartellaClassica::impossibleRequestsAreRefused_data()
{
    QTest::addColumn<Shape>("shape");
    QTest::newRow("more images than drawn cells") << Shape{1, 3, 9, 5, 6, 0, 1, 90};
    QTest::newRow("more texts than drawn cells") << Shape{1, 3, 9, 5, 0, 6, 1, 90};
    QTest::newRow("more images and texts than drawn cells") << Shape{1, 3, 9, 5, 3, 3, 1, 90};
    QTest::newRow("255 of both") << Shape{1, 3, 9, 5, 255, 255, 1, 90};
    QTest::newRow("more drawn than columns") << Shape{1, 3, 9, 10, 0, 0, 1, 90};
    QTest::newRow("no columns") << Shape{1, 3, 0, 0, 0, 0, 1, 90};
    QTest::newRow("no columns but drawn cells") << Shape{1, 3, 0, 5, 0, 0, 1, 90};
    QTest::newRow("negative numbers") << Shape{1, 3, 9, 5, 0, 0, -50, 90};
    QTest::newRow("bounds exchanged") << Shape{1, 3, 9, 5, 0, 0, 90, 1};
    QTest::newRow("bounds exchanged, nothing drawn") << Shape{1, 3, 9, 0, 0, 0, 90, 1};
}

void tst_GeneraCartellaClassica::impossibleRequestsAreRefused()
{
    QFETCH(Shape, shape);
    Cartella set(shape.blocks, shape.rowsPerBlock, shape.columns);
    decorate(*set.pagine[0]);
    const LogCapture log;
    QVERIFY(!fill(set, shape));
    QVERIFY(isDecorated(*set.pagine[0]));
    QCOMPARE(log.warnings().size(), 1);
}

void tst_GeneraCartellaClassica::irregularPagesAreRefused()
{
    const LogCapture log;
    {
        Cartella set(1, 3, 8); // fewer cells than asked for
        QVERIFY(!fill(set, {1, 3, 9, 5, 0, 0, 1, 90}));
    }
    {
        Cartella set(2, 3, 9);
        set.pagine[0]->blocchi[1].righe[2].nCelle = 5;
        QVERIFY(!fill(set, {2, 3, 9, 5, 0, 0, 1, 90}));
    }
    {
        Cartella set(2, 3, 9);
        set.pagine[0]->blocchi[1].nRighe = 2;
        QVERIFY(!fill(set, {2, 3, 9, 5, 0, 0, 1, 90}));
    }
    QCOMPARE(log.warnings().size(), 3);
}

void tst_GeneraCartellaClassica::noPageIsRefused()
{
    const LogCapture log;
    QVERIFY(!GeneraCartellaClassica().generate(nullptr, 9, 5, 0, 0, 1, 90));
    QCOMPARE(log.warnings().size(), 1);
}

void tst_GeneraCartellaClassica::aPageWithoutBlocksIsRefused()
{
    Pagina page;
    const LogCapture log;
    QVERIFY(!GeneraCartellaClassica().generate(&page, 9, 5, 0, 0, 1, 90));
    QCOMPARE(log.warnings().size(), 1);
}

// One column with one number more than a draw can count: the only way to be left without numbers.
void tst_GeneraCartellaClassica::anOrderOfNumbersThatRunsOutIsRefused()
{
    Cartella set(1, 1, 1);
    decorate(*set.pagine[0]);
    const LogCapture log;
    QVERIFY(!fill(set, {1, 1, 1, 1, 0, 0, 0, 2147483647}));
    QVERIFY(isDecorated(*set.pagine[0]));
    QCOMPARE(log.warnings().last(),
             QStringLiteral("GeneraCartellaClassica::generate() Index ( 0 ) out of range ( 2147483648 )"));
}

// One pass does not repair this page in any drawing; a layout exists all the same.
void tst_GeneraCartellaClassica::withoutRepairTheLayoutIsConstructed()
{
    Cartella set(3, 7, 78);
    GeneraCartellaClassica generator;
    generator.maxTentativi = 1;
    seedRandom(1);
    QVERIFY(generator.generate(set.pagine[0], 78, 26, 0, 0, 1, 546));
    QSet<QString> numbers;
    for (const QString &row : rowsOf(*set.pagine[0])) {
        const QStringList cells = row.split(QLatin1Char(' '));
        QCOMPARE(cells.count(QStringLiteral("-")), 52);
        for (int c = 0; c < 78; ++c) {
            if (cells[c] != QStringLiteral("-")) {
                QCOMPARE((cells[c].toInt() - 1) / 7, c);
                numbers.insert(cells[c]);
            }
        }
    }
    QCOMPARE(numbers.size(), 546);
}

void tst_GeneraCartellaClassica::theWidestRangeIsFilled()
{
    Cartella set(1, 3, 2);
    QVERIFY(fill(set, {1, 3, 2, 2, 0, 0, 0, 999999}));
    const QStringList rows = rowsOf(*set.pagine[0]);
    QCOMPARE(rows.join(QLatin1Char(' ')).count(QLatin1Char('-')), 0);
}

void tst_GeneraCartellaClassica::theLargestPageEnds()
{
    Cartella set(99, 9, 99);
    QVERIFY(fill(set, {99, 9, 99, 99, 0, 0, 0, 999999}));
    QCOMPARE(rowsOf(*set.pagine[0]).join(QLatin1Char(' ')).count(QLatin1Char('-')), 0);
}

void tst_GeneraCartellaClassica::pagesWithoutRowsOrDrawnCellsAreFilled()
{
    const LogCapture log;
    Cartella withoutRows(2, 0, 9);
    QVERIFY(fill(withoutRows, {2, 0, 9, 5, 0, 0, 1, 90}));
    Cartella nothingDrawn(1, 2, 3);
    decorate(*nothingDrawn.pagine[0]);
    QVERIFY(fill(nothingDrawn, {1, 2, 3, 0, 0, 0, 1, 90}));
    QCOMPARE(rowsOf(*nothingDrawn.pagine[0]), QStringList({QStringLiteral("- - -"), QStringLiteral("- - -")}));
}

QTEST_GUILESS_MAIN(tst_GeneraCartellaClassica)
#include "tst_GeneraCartellaClassica.moc"
