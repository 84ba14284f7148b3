// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"
#include "personale/GeneraCartellaPersonale.h"
#include "support/LogCapture.h"

#include <QSet>
#include <QTest>

#include <algorithm>

namespace {
PaginaPersonale schema(U8 rows, U8 columns)
{
    PaginaPersonale page;
    page.nRighe = rows;
    page.nColonne = columns;
    page.chk = std::make_unique<PersonaleChkBox[]>(static_cast<size_t>(rows * columns));
    for (int i = 0; i < rows * columns; ++i) {
        page.chk[static_cast<size_t>(i)].setPosition(static_cast<U8>(i / columns), static_cast<U8>(i % columns));
    }
    return page;
}

PersonaleChkBox &box(PaginaPersonale &page, int row, int column)
{
    return page.chk[static_cast<size_t>(row * page.nColonne + column)];
}

void tick(PaginaPersonale &page, int row, int column, CELL_VALUE tipo = CELL_NUMERO)
{
    box(page, row, column).setTipo(tipo);
    box(page, row, column).setChecked(true);
}

// The first `count` cells of a column become ticked number cells.
void tickColumn(PaginaPersonale &page, int column, int count)
{
    for (int row = 0; row < count; ++row) {
        tick(page, row, column);
    }
}

const Cella &cell(const Pagina &page, int row, int column)
{
    return page.blocchi[0].righe[static_cast<size_t>(row)].celle[static_cast<size_t>(column)];
}

QVector<unsigned> columnNumbers(const Pagina &page, int column)
{
    QVector<unsigned> numbers;
    for (int row = 0; row < page.blocchi[0].nRighe; ++row) {
        if (cell(page, row, column).tipo == CELL_NUMERO) {
            numbers.append(cell(page, row, column).numero);
        }
    }
    return numbers;
}

// Fills one page of the schema, column by column.
struct Filled
{
    Filled(PaginaPersonale &page, int nmin, int nmax)
        : cartella(1, page.nRighe, page.nColonne)
    {
        GeneraCartellaPersonale generatore;
        result = generatore.riempiPerColonne(cartella.pagine[0], page, nmin, nmax, errore);
    }
    const Pagina &pagina() const { return *cartella.pagine[0]; }

    Cartella cartella;
    QString errore;
    bool result = false;
};

QString columnMessage(int wanted, int number, int first, int last, int size)
{
    return QStringLiteral(
               "Genera per colonne:\nImpossibile generare %1 numeri sulla colonna n^ %2\nLa colonna vorrebbe "
               "%1 numeri diversi tra %3 e %4\nma cio' risulta impossibile in quanto il range e' composto "
               "da %5 numeri.")
        .arg(wanted)
        .arg(number)
        .arg(first)
        .arg(last)
        .arg(size);
}
} // namespace

class tst_GeneraCartellaPersonale final : public QObject
{
    Q_OBJECT

private slots:
    void noPagesAreAnError();
    void pagesOfOneBlockAreAppended();
    void pagesOfDifferentSizesKeepTheirOrder();
    void theFlagOfEachPageChoosesItsFilling();
    void aFailingPageEndsTheCreationAndThePagesStay();

    void wholePageNumbersAreDistinctAndInRange();
    void wholePageNumbersAreUsedFromTheEndOfTheDraw();
    void untickedCellsStayEmpty();
    void tickedCellsGetTheirType();
    void aPageWithoutNumbersIsAWarning();
    void anImpossibleWholePageGetsZeros();

    void classicColumnsHoldTheirTens();
    void classicColumnsMayBeFull();
    void aClassicColumnCannotHoldMoreThanItsRange_data();
    void aClassicColumnCannotHoldMoreThanItsRange();
    void otherRangesAreSplitEvenly_data();
    void otherRangesAreSplitEvenly();
    void theLastColumnIsCheckedAgainstTheStepFirst();
    void theLastColumnIsCheckedAgainstItsFinalSizeToo();
    void aMiddleColumnOfAnEvenSplitCanFail();
    void columnNumbersAreUsedFromTheEndOfTheDraw();
    void aColumnWithoutNumbersGetsItsTypes();
    void aPageWithoutColumnsIsFilledAtOnce();

    void theColumnMessageOfNoColumn();
    void thePageMessageKeepsItsPlaceholder();
};

void tst_GeneraCartellaPersonale::noPagesAreAnError()
{
    GeneraCartellaPersonale generatore;
    std::vector<PaginaPersonale> pages;
    Cartella cartella;
    QString errore = QStringLiteral("before ");
    QVERIFY(!generatore.generaPagine(0, pages, &cartella, 1, 90, errore));
    QCOMPARE(errore, QStringLiteral("before Nessuna pagina da generare!"));
    QCOMPARE(cartella.getNumPages(), 0);
}

void tst_GeneraCartellaPersonale::pagesOfOneBlockAreAppended()
{
    std::vector<PaginaPersonale> pages;
    for (int i = 0; i < 3; ++i) {
        pages.push_back(schema(2, 3));
        tick(pages.back(), 1, i);
    }
    Cartella cartella(2, 4, 5, 6);
    Pagina *before = cartella.pagine[0];
    QString errore;
    GeneraCartellaPersonale generatore;
    QVERIFY(generatore.generaPagine(3, pages, &cartella, 1, 90, errore));
    QCOMPARE(errore, QString());
    QCOMPARE(cartella.getNumPages(), 5);
    QCOMPARE(cartella.pagine[0], before);
    QCOMPARE(cartella.pagine[1]->nBlocchi, U8(4));
    QCOMPARE(cartella.pagineEsterne, U8(0));
    for (int i = 0; i < 3; ++i) {
        const Pagina &page = *cartella.pagine[2 + i];
        QCOMPARE(page.nBlocchi, U8(1));
        QCOMPARE(page.blocchi[0].nRighe, U8(2));
        QCOMPARE(page.blocchi[0].righe[1].nCelle, U8(3));
        for (int column = 0; column < 3; ++column) {
            QCOMPARE(cell(page, 1, column).tipo, column == i ? CELL_NUMERO : CELL_VUOTA);
        }
    }
}

void tst_GeneraCartellaPersonale::pagesOfDifferentSizesKeepTheirOrder()
{
    std::vector<PaginaPersonale> pages;
    const QList<QSize> sizes{{3, 2}, {3, 2}, {2, 3}, {3, 2}, {3, 4}, {3, 4}};
    for (const QSize &size : sizes) {
        pages.push_back(schema(static_cast<U8>(size.height()), static_cast<U8>(size.width())));
        tick(pages.back(), 0, static_cast<int>(pages.size()) % size.width());
    }
    Cartella cartella;
    QString errore;
    GeneraCartellaPersonale generatore;
    QVERIFY(generatore.generaPagine(6, pages, &cartella, 1, 90, errore));
    QCOMPARE(cartella.getNumPages(), 6);
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(int(cartella.pagine[i]->blocchi[0].nRighe), sizes[i].height());
        QCOMPARE(int(cartella.getMaxPageColSize(static_cast<quint16>(i))), sizes[i].width());
        QCOMPARE(cell(*cartella.pagine[i], 0, (i + 1) % sizes[i].width()).tipo, CELL_NUMERO);
    }
}

void tst_GeneraCartellaPersonale::theFlagOfEachPageChoosesItsFilling()
{
    std::vector<PaginaPersonale> pages;
    for (int i = 0; i < 2; ++i) {
        pages.push_back(schema(9, 9));
        tickColumn(pages.back(), 0, 9);
    }
    pages[1].ordinaPerColonne = 1;
    Cartella cartella;
    QString errore;
    seedRandom(7);
    GeneraCartellaPersonale generatore;
    QVERIFY(generatore.generaPagine(2, pages, &cartella, 1, 90, errore));
    const QVector<unsigned> whole = columnNumbers(*cartella.pagine[0], 0);
    QVERIFY(*std::max_element(whole.begin(), whole.end()) > 9);
    QVector<unsigned> byColumn = columnNumbers(*cartella.pagine[1], 0);
    std::sort(byColumn.begin(), byColumn.end());
    QCOMPARE(byColumn, (QVector<unsigned>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

void tst_GeneraCartellaPersonale::aFailingPageEndsTheCreationAndThePagesStay()
{
    std::vector<PaginaPersonale> pages;
    for (int i = 0; i < 3; ++i) {
        pages.push_back(schema(10, 9));
        tick(pages.back(), 0, 1);
        pages.back().ordinaPerColonne = 1;
    }
    tickColumn(pages[1], 0, 10);
    pages.push_back(schema(1, 1));
    Cartella cartella;
    QString errore;
    GeneraCartellaPersonale generatore;
    QVERIFY(!generatore.generaPagine(4, pages, &cartella, 1, 90, errore));
    QCOMPARE(errore, columnMessage(10, 1, 1, 9, 9));
    QCOMPARE(cartella.getNumPages(), 3); // the whole run was added, the page of another size was not
    QCOMPARE(cell(*cartella.pagine[0], 0, 1).tipo, CELL_NUMERO);
    QCOMPARE(cell(*cartella.pagine[1], 0, 1).tipo, CELL_VUOTA);
    QCOMPARE(cell(*cartella.pagine[2], 0, 1).tipo, CELL_VUOTA);
}

void tst_GeneraCartellaPersonale::wholePageNumbersAreDistinctAndInRange()
{
    PaginaPersonale page = schema(3, 9);
    for (int column = 0; column < 9; ++column) {
        tickColumn(page, column, 3);
    }
    Cartella cartella(1, 3, 9);
    QString errore;
    GeneraCartellaPersonale generatore;
    QVERIFY(generatore.riempiPagina(cartella.pagine[0], page, 64, 90, errore));
    QCOMPARE(errore, QString());
    QSet<unsigned> numbers;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 9; ++column) {
            const Cella &filled = cell(*cartella.pagine[0], row, column);
            QCOMPARE(filled.tipo, CELL_NUMERO);
            QVERIFY(filled.numero >= 64 && filled.numero <= 90);
            QCOMPARE(box(page, row, column).text(), QString::number(filled.numero));
            numbers.insert(filled.numero);
        }
    }
    QCOMPARE(numbers.size(), 27);
}

void tst_GeneraCartellaPersonale::wholePageNumbersAreUsedFromTheEndOfTheDraw()
{
    PaginaPersonale page = schema(2, 2);
    tick(page, 0, 1);
    tick(page, 1, 0);
    tick(page, 1, 1);
    Cartella cartella(1, 2, 2);
    QString errore;
    seedRandom(5);
    const QVector<unsigned> drawn = GUtils::generate_X_different_numbers(3, 1, 90);
    seedRandom(5);
    GeneraCartellaPersonale generatore;
    QVERIFY(generatore.riempiPagina(cartella.pagine[0], page, 1, 90, errore));
    QCOMPARE(cell(*cartella.pagine[0], 0, 1).numero, drawn[2]);
    QCOMPARE(cell(*cartella.pagine[0], 1, 0).numero, drawn[1]);
    QCOMPARE(cell(*cartella.pagine[0], 1, 1).numero, drawn[0]);
}

void tst_GeneraCartellaPersonale::untickedCellsStayEmpty()
{
    PaginaPersonale page = schema(1, 3);
    tick(page, 0, 0);
    box(page, 0, 1).setTipo(CELL_NUMERO);
    box(page, 0, 2).setTipo(CELL_TESTO);
    Cartella cartella(1, 1, 3);
    QString errore;
    GeneraCartellaPersonale generatore;
    QVERIFY(generatore.riempiPagina(cartella.pagine[0], page, 1, 90, errore));
    QCOMPARE(cell(*cartella.pagine[0], 0, 1).tipo, CELL_VUOTA);
    QCOMPARE(cell(*cartella.pagine[0], 0, 2).tipo, CELL_VUOTA);
    QCOMPARE(box(page, 0, 1).text(), QString());

    Filled byColumn(page, 1, 90);
    QVERIFY(byColumn.result);
    QCOMPARE(cell(byColumn.pagina(), 0, 0).tipo, CELL_NUMERO);
    QCOMPARE(cell(byColumn.pagina(), 0, 1).tipo, CELL_VUOTA);
    QCOMPARE(cell(byColumn.pagina(), 0, 2).tipo, CELL_VUOTA);
}

void tst_GeneraCartellaPersonale::tickedCellsGetTheirType()
{
    PaginaPersonale page = schema(1, 4);
    tick(page, 0, 0, CELL_NUMERO);
    tick(page, 0, 1, CELL_TESTO);
    tick(page, 0, 2, CELL_IMMAGINE);
    tick(page, 0, 3, CELL_VUOTA);
    Cartella cartella(1, 1, 4);
    QString errore;
    GeneraCartellaPersonale generatore;
    QVERIFY(generatore.riempiPagina(cartella.pagine[0], page, 1, 90, errore));
    Filled byColumn(page, 1, 90);
    for (const Pagina *filled : {cartella.pagine[0], byColumn.cartella.pagine[0]}) {
        QCOMPARE(cell(*filled, 0, 0).tipo, CELL_NUMERO);
        QCOMPARE(cell(*filled, 0, 1).tipo, CELL_TESTO);
        QCOMPARE(cell(*filled, 0, 2).tipo, CELL_IMMAGINE);
        QCOMPARE(cell(*filled, 0, 3).tipo, CELL_VUOTA);
    }
    QCOMPARE(box(page, 0, 1).text(), QString());
}

void tst_GeneraCartellaPersonale::aPageWithoutNumbersIsAWarning()
{
    std::vector<PaginaPersonale> pages;
    pages.push_back(schema(1, 2));
    tick(pages[0], 0, 0, CELL_TESTO);
    tick(pages[0], 0, 1, CELL_IMMAGINE);
    pages.push_back(schema(0, 2));
    Cartella cartella;
    QString errore;
    GeneraCartellaPersonale generatore;
    LogCapture log; // drawing no numbers is noted there
    QVERIFY(generatore.generaPagine(2, pages, &cartella, 1, 90, errore));
    QCOMPARE(errore, QStringLiteral("Nessun numero generato!Nessun numero generato!"));
    QCOMPARE(cell(*cartella.pagine[0], 0, 0).tipo, CELL_TESTO);
    QCOMPARE(cell(*cartella.pagine[0], 0, 1).tipo, CELL_IMMAGINE);
    QCOMPARE(log.warnings().size(), 2);
}

void tst_GeneraCartellaPersonale::anImpossibleWholePageGetsZeros()
{
    PaginaPersonale page = schema(1, 4);
    for (int column = 0; column < 4; ++column) {
        tick(page, 0, column);
    }
    Cartella cartella(1, 1, 4);
    QString errore;
    GeneraCartellaPersonale generatore;
    LogCapture log;
    QVERIFY(generatore.riempiPagina(cartella.pagine[0], page, 1, 3, errore));
    QCOMPARE(errore, QString());
    QCOMPARE(log.warnings().size(), 1);
    for (int column = 0; column < 4; ++column) {
        QCOMPARE(cell(*cartella.pagine[0], 0, column).tipo, CELL_NUMERO);
        QCOMPARE(cell(*cartella.pagine[0], 0, column).numero, 0U);
        QCOMPARE(box(page, 0, column).text(), QStringLiteral("0"));
    }
}

void tst_GeneraCartellaPersonale::classicColumnsHoldTheirTens()
{
    for (unsigned seed = 0; seed < 20; ++seed) {
        PaginaPersonale page = schema(9, 9);
        for (int column = 0; column < 9; ++column) {
            tickColumn(page, column, 9);
        }
        seedRandom(seed);
        Filled filled(page, 1, 90);
        QVERIFY2(filled.result, qPrintable(filled.errore));
        QSet<unsigned> all;
        for (int column = 0; column < 9; ++column) {
            const unsigned first = column == 0 ? 1U : 10U * static_cast<unsigned>(column);
            const unsigned last = column == 8 ? 90U : 10U * static_cast<unsigned>(column) + 9U;
            const QVector<unsigned> numbers = columnNumbers(filled.pagina(), column);
            QCOMPARE(numbers.size(), 9);
            for (int row = 0; row < 9; ++row) {
                QVERIFY(numbers[row] >= first && numbers[row] <= last);
                QCOMPARE(box(page, row, column).text(), QString::number(numbers[row]));
                all.insert(numbers[row]);
            }
        }
        QCOMPARE(all.size(), 81);
    }
}

void tst_GeneraCartellaPersonale::classicColumnsMayBeFull()
{
    PaginaPersonale page = schema(11, 9);
    tickColumn(page, 0, 9);
    for (int column = 1; column < 8; ++column) {
        tickColumn(page, column, 10);
    }
    tickColumn(page, 8, 11);
    Filled filled(page, 1, 90);
    QVERIFY2(filled.result, qPrintable(filled.errore));
    QVector<unsigned> last = columnNumbers(filled.pagina(), 8);
    std::sort(last.begin(), last.end());
    QCOMPARE(last, (QVector<unsigned>{80, 81, 82, 83, 84, 85, 86, 87, 88, 89, 90}));
}

void tst_GeneraCartellaPersonale::aClassicColumnCannotHoldMoreThanItsRange_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<QString>("message");
    QTest::newRow("first") << 0 << 10 << columnMessage(10, 1, 1, 9, 9);
    QTest::newRow("second") << 1 << 11 << columnMessage(11, 2, 10, 19, 10);
    QTest::newRow("eighth") << 7 << 12 << columnMessage(12, 8, 70, 79, 10);
    QTest::newRow("last") << 8 << 12 << columnMessage(12, 9, 80, 90, 11);
}

void tst_GeneraCartellaPersonale::aClassicColumnCannotHoldMoreThanItsRange()
{
    QFETCH(int, column);
    QFETCH(int, wanted);
    QFETCH(QString, message);
    PaginaPersonale page = schema(12, 9);
    tickColumn(page, column, wanted);
    Filled filled(page, 1, 90);
    QVERIFY(!filled.result);
    QCOMPARE(filled.errore, message);
    QCOMPARE(cell(filled.pagina(), 0, column).tipo, CELL_VUOTA);
}

void tst_GeneraCartellaPersonale::otherRangesAreSplitEvenly_data()
{
    using Ranges = QVector<QPair<int, int>>;
    QTest::addColumn<int>("nmin");
    QTest::addColumn<int>("nmax");
    QTest::addColumn<Ranges>("ranges");
    QTest::newRow("1 to 89 on 9, narrower last")
        << 1 << 89 << Ranges{{1, 10}, {11, 20}, {21, 30}, {31, 40}, {41, 50}, {51, 60}, {61, 70}, {71, 80}, {81, 89}};
    QTest::newRow("0 to 90 on 9, not classic")
        << 0 << 90 << Ranges{{0, 9}, {10, 19}, {20, 29}, {30, 39}, {40, 49}, {50, 59}, {60, 69}, {70, 79}, {80, 90}};
    QTest::newRow("1 to 100 on 10, classic for the classic generator alone")
        << 1 << 100
        << Ranges{{1, 10}, {11, 20}, {21, 30}, {31, 40}, {41, 50}, {51, 60}, {61, 70}, {71, 80}, {81, 90}, {91, 100}};
    QTest::newRow("1 to 90 on 5") << 1 << 90 << Ranges{{1, 18}, {19, 36}, {37, 54}, {55, 72}, {73, 90}};
    QTest::newRow("half rounds up: 10 numbers on 4") << 1 << 10 << Ranges{{1, 3}, {4, 6}, {7, 9}, {10, 10}};
    QTest::newRow("one column") << 5 << 8 << Ranges{{5, 8}};
}

// A column's whole range is drawn when it wants as many numbers, so the range itself is seen.
void tst_GeneraCartellaPersonale::otherRangesAreSplitEvenly()
{
    QFETCH(int, nmin);
    QFETCH(int, nmax);
    using Ranges = QVector<QPair<int, int>>;
    QFETCH(Ranges, ranges);
    const int step = ranges[0].second - ranges[0].first + 1;
    PaginaPersonale page = schema(static_cast<U8>(step), static_cast<U8>(ranges.size()));
    for (int column = 0; column < ranges.size(); ++column) {
        tickColumn(page, column, qMin(step, ranges[column].second - ranges[column].first + 1));
    }
    Filled filled(page, nmin, nmax);
    QVERIFY2(filled.result, qPrintable(filled.errore));
    for (int column = 0; column < ranges.size(); ++column) {
        QVector<unsigned> numbers = columnNumbers(filled.pagina(), column);
        std::sort(numbers.begin(), numbers.end());
        QVERIFY(int(numbers.first()) >= ranges[column].first);
        QVERIFY(int(numbers.last()) <= ranges[column].second);
        const int size = ranges[column].second - ranges[column].first + 1;
        if (numbers.size() == size) { // but for a last column wider than the others
            QCOMPARE(int(numbers.first()), ranges[column].first);
            QCOMPARE(int(numbers.last()), ranges[column].second);
        }
    }
}

void tst_GeneraCartellaPersonale::theLastColumnIsCheckedAgainstTheStepFirst()
{
    PaginaPersonale two = schema(3, 5);
    QSet<unsigned> seen;
    tickColumn(two, 4, 2);
    for (unsigned seed = 0; seed < 60; ++seed) {
        seedRandom(seed);
        Filled filled(two, 1, 12);
        QVERIFY(filled.result);
        for (const unsigned number : columnNumbers(filled.pagina(), 4)) {
            seen.insert(number);
        }
    }
    QCOMPARE(seen, (QSet<unsigned>{9, 10, 11, 12})); // its final range

    tickColumn(two, 4, 3);
    Filled three(two, 1, 12);
    QVERIFY(!three.result);
    QCOMPARE(three.errore, columnMessage(3, 5, 9, 10, 2));
}

void tst_GeneraCartellaPersonale::theLastColumnIsCheckedAgainstItsFinalSizeToo()
{
    PaginaPersonale page = schema(3, 4);
    tickColumn(page, 3, 2);
    Filled filled(page, 1, 10);
    QVERIFY(!filled.result);
    QCOMPARE(filled.errore, columnMessage(2, 4, 10, 10, 1));

    // So narrow that it lies behind the range: it fails without wanting any number.
    PaginaPersonale wide = schema(1, 20);
    Filled behind(wide, 1, 30);
    QVERIFY(!behind.result);
    QCOMPARE(behind.errore, columnMessage(0, 20, 39, 30, -8));
}

void tst_GeneraCartellaPersonale::aMiddleColumnOfAnEvenSplitCanFail()
{
    PaginaPersonale page = schema(3, 5);
    tickColumn(page, 0, 2);
    tickColumn(page, 2, 3);
    tickColumn(page, 3, 3);
    Filled filled(page, 1, 12);
    QVERIFY(!filled.result);
    QCOMPARE(filled.errore, columnMessage(3, 3, 5, 6, 2));

    tickColumn(page, 0, 3);
    Filled first(page, 1, 12);
    QCOMPARE(first.errore, columnMessage(3, 1, 1, 2, 2));
}

void tst_GeneraCartellaPersonale::columnNumbersAreUsedFromTheEndOfTheDraw()
{
    PaginaPersonale page = schema(4, 9);
    tick(page, 0, 3);
    tick(page, 1, 3, CELL_TESTO);
    tick(page, 2, 3);
    tick(page, 3, 3);
    seedRandom(11);
    const QVector<unsigned> drawn = GUtils::generate_X_different_numbers(3, 30, 39);
    seedRandom(11);
    Filled filled(page, 1, 90);
    QVERIFY(filled.result);
    QCOMPARE(cell(filled.pagina(), 0, 3).numero, drawn[2]);
    QCOMPARE(cell(filled.pagina(), 1, 3).tipo, CELL_TESTO);
    QCOMPARE(cell(filled.pagina(), 2, 3).numero, drawn[1]);
    QCOMPARE(cell(filled.pagina(), 3, 3).numero, drawn[0]);
}

void tst_GeneraCartellaPersonale::aColumnWithoutNumbersGetsItsTypes()
{
    PaginaPersonale page = schema(2, 9);
    tick(page, 0, 2, CELL_TESTO);
    tick(page, 1, 2, CELL_IMMAGINE);
    LogCapture log;
    Filled filled(page, 1, 90);
    QVERIFY(filled.result);
    QCOMPARE(filled.errore, QString());
    QCOMPARE(cell(filled.pagina(), 0, 2).tipo, CELL_TESTO);
    QCOMPARE(cell(filled.pagina(), 1, 2).tipo, CELL_IMMAGINE);
    QCOMPARE(log.warnings(), QStringList()); // nothing was drawn
}

void tst_GeneraCartellaPersonale::aPageWithoutColumnsIsFilledAtOnce()
{
    PaginaPersonale page = schema(30, 0);
    Filled filled(page, 1, 90);
    QVERIFY(filled.result);
    QCOMPARE(filled.errore, QString());
}

void tst_GeneraCartellaPersonale::theColumnMessageOfNoColumn()
{
    const GeneraCartellaPersonale generatore;
    QCOMPARE(generatore.messaggioColonna(-1, {}, {}, 9), QStringLiteral("?"));
    QCOMPARE(generatore.messaggioColonna(1, {0, 12}, {{1, 9}, {10, 19}}, 10), columnMessage(12, 2, 10, 19, 10));
}

void tst_GeneraCartellaPersonale::thePageMessageKeepsItsPlaceholder()
{
    const GeneraCartellaPersonale generatore;
    LogCapture log; // the argument has no place
    QCOMPARE(generatore.messaggioPagina(4),
             QStringLiteral("Generazione numeri:\nErrore durante l'aggiunta della pagina %i."));
}

QTEST_MAIN(tst_GeneraCartellaPersonale)
#include "tst_GeneraCartellaPersonale.moc"
