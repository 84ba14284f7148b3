// SPDX-License-Identifier: MIT
#include "mainwindow/ParameterRules.h"
#include "model/Cartella.h"

#include <QtTest>

#include <limits>

namespace {
const QString noMessage;

// 6 blocks of 3 rows of 9 cells, 5 of them drawn from 1 to 90: every number once.
CardParameters classic()
{
    return CardParameters();
}

CardParameters ofCells(int pages, int blocks, int rows, int columns)
{
    CardParameters p;
    p.pages = pages;
    p.blocks = blocks;
    p.rows = rows;
    p.columns = columns;
    p.manual = true;
    return p;
}
} // namespace

class tst_ParameterRules final : public QObject
{
    Q_OBJECT

private slots:
    void theClassicCardIsCorrect();
    void aPageNeedsANumberForEachFilledCell_data();
    void aPageNeedsANumberForEachFilledCell();
    void theCountsOfARowAreCheckedInOrder_data();
    void theCountsOfARowAreCheckedInOrder();
    void filledCellsAreComparedWithoutOverflow();
    void aPageFilledByHandHasNoLayoutRules();
    void appendedPagesAreLimited_data();
    void appendedPagesAreLimited();
    void theLayoutIsCheckedBeforeThePageCount();
    void manyCellsAreAWarning_data();
    void manyCellsAreAWarning();
    void cellsThatDoNotFit32BitsAreAWarningToo();
    void whatNewMakesIsCountedWithoutOverflow();
    void bytesRequestedAreAtLeastThoseOfTheRecords();
};

void tst_ParameterRules::theClassicCardIsCorrect()
{
    const auto result = ParameterRules::check(classic(), {});
    QCOMPARE(int(result.verdict), 1);
    QCOMPARE(result.message, noMessage);
}

void tst_ParameterRules::aPageNeedsANumberForEachFilledCell_data()
{
    QTest::addColumn<int>("drawn");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("message");
    const QString problem = QStringLiteral("Non posso creare %1 celle piene con solo %2 numeri.");
    QTest::newRow("as many numbers as cells") << 5 << 1 << 90 << QString();
    QTest::newRow("one number too few") << 5 << 2 << 90 << problem.arg(90).arg(89);
    QTest::newRow("one drawn cell too many") << 6 << 1 << 90 << problem.arg(108).arg(90);
    QTest::newRow("range from zero") << 5 << 0 << 89 << QString();
    QTest::newRow("one number only") << 5 << 7 << 7 << problem.arg(90).arg(1);
    QTest::newRow("nothing drawn needs no number") << 0 << 7 << 7 << QString();
    QTest::newRow("empty range") << 5 << 91 << 90 << problem.arg(90).arg(0);
    QTest::newRow("negative range") << 0 << 93 << 90 << problem.arg(0).arg(-2);
}

void tst_ParameterRules::aPageNeedsANumberForEachFilledCell()
{
    QFETCH(int, drawn);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(QString, message);
    CardParameters p = classic();
    p.drawn = drawn;
    p.minimum = minimum;
    p.maximum = maximum;
    const auto result = ParameterRules::check(p, {});
    QCOMPARE(int(result.verdict), message.isEmpty() ? 1 : -1);
    QCOMPARE(result.message, message);
}

void tst_ParameterRules::theCountsOfARowAreCheckedInOrder_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("drawn");
    QTest::addColumn<int>("jolly");
    QTest::addColumn<int>("scritte");
    QTest::addColumn<QString>("message");
    const QString none;
    QTest::newRow("jolly as columns") << 5 << 5 << 5 << 0 << none;
    QTest::newRow("jolly beyond columns")
        << 5 << 5 << 6 << 0 << QStringLiteral("Non posso inserire 6 jolly in sole 5 colonne.");
    QTest::newRow("scritte as columns") << 5 << 5 << 0 << 5 << none;
    QTest::newRow("scritte beyond columns")
        << 5 << 5 << 0 << 6 << QStringLiteral("Non posso inserire 6 scritte in sole 5 colonne.");
    QTest::newRow("both beyond columns, jolly first")
        << 5 << 5 << 7 << 6 << QStringLiteral("Non posso inserire 7 jolly in sole 5 colonne.");
    QTest::newRow("together as columns") << 5 << 5 << 3 << 2 << none;
    QTest::newRow("together beyond columns")
        << 5 << 5 << 3 << 3 << QStringLiteral("Non posso inserire 6 scritte e immagini in sole 5 colonne.");
    QTest::newRow("jolly as drawn") << 9 << 4 << 4 << 0 << none;
    QTest::newRow("jolly beyond drawn") << 9 << 4 << 5 << 0
                                        << QStringLiteral("Non posso inserire 5 jolly con sole 4 estrazioni.");
    QTest::newRow("scritte as drawn") << 9 << 4 << 0 << 4 << none;
    QTest::newRow("scritte beyond drawn")
        << 9 << 4 << 0 << 5 << QStringLiteral("Non posso inserire 5 scritte con sole 4 estrazioni.");
    QTest::newRow("jolly before scritte")
        << 11 << 4 << 5 << 6 << QStringLiteral("Non posso inserire 5 jolly con sole 4 estrazioni.");
    QTest::newRow("together as drawn") << 9 << 5 << 3 << 2 << none;
    QTest::newRow("together beyond drawn")
        << 9 << 5 << 3 << 3 << QStringLiteral("Non posso inserire 6 scritte e immagini con sole 5 estrazioni.");
    QTest::newRow("drawn as columns") << 5 << 5 << 0 << 0 << none;
    QTest::newRow("drawn beyond columns")
        << 4 << 5 << 0 << 0 << QStringLiteral("Non posso inserire 5 numeri in sole 4 colonne.");
    QTest::newRow("together in columns, then drawn beyond columns")
        << 4 << 5 << 2 << 2 << QStringLiteral("Non posso inserire 5 numeri in sole 4 colonne.");
    QTest::newRow("numbers before all others")
        << 4 << 6 << 5 << 5 << QStringLiteral("Non posso creare 108 celle piene con solo 90 numeri.");
}

void tst_ParameterRules::theCountsOfARowAreCheckedInOrder()
{
    QFETCH(int, columns);
    QFETCH(int, drawn);
    QFETCH(int, jolly);
    QFETCH(int, scritte);
    QFETCH(QString, message);
    CardParameters p = classic();
    p.columns = columns;
    p.drawn = drawn;
    p.jolly = jolly;
    p.scritte = scritte;
    const auto result = ParameterRules::check(p, {});
    QCOMPARE(result.message, message);
    QCOMPARE(int(result.verdict), message.isEmpty() ? 1 : -1);
}

void tst_ParameterRules::filledCellsAreComparedWithoutOverflow()
{
    CardParameters p = classic();
    p.blocks = 65536;
    p.rows = 65536;
    p.drawn = 1; // 2^32: 0 in 32 bits
    const auto result = ParameterRules::check(p, {});
    QCOMPARE(int(result.verdict), -1);
    QCOMPARE(result.message, QStringLiteral("Non posso creare 4294967296 celle piene con solo 90 numeri."));
}

void tst_ParameterRules::aPageFilledByHandHasNoLayoutRules()
{
    CardParameters p = classic();
    p.drawn = 99;
    p.jolly = 99;
    p.scritte = 99;
    QCOMPARE(int(ParameterRules::check(p, {}).verdict), -1);
    p.manual = true;
    QCOMPARE(int(ParameterRules::check(p, {}).verdict), 1);
}

void tst_ParameterRules::appendedPagesAreLimited_data()
{
    QTest::addColumn<int>("kept");
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("verdict");
    QTest::newRow("a new set of all pages") << 0 << 65535 << 1;
    QTest::newRow("up to the limit") << 65534 << 1 << 1;
    QTest::newRow("one beyond the limit") << 65535 << 1 << -1;
    QTest::newRow("far beyond the limit") << 65535 << 65535 << -1;
}

void tst_ParameterRules::appendedPagesAreLimited()
{
    QFETCH(int, kept);
    QFETCH(int, pages);
    QFETCH(int, verdict);
    CardSetSize present;
    present.pagesToKeep = kept;
    const auto result = ParameterRules::check(ofCells(pages, 1, 1, 1), present);
    QCOMPARE(int(result.verdict), verdict);
    QCOMPARE(result.message,
             verdict == 1 ? QString()
                          : QStringLiteral("Le pagine totali richieste (%1)\neccedono il massimo consentito (65535).")
                                .arg(kept + pages));
}

void tst_ParameterRules::theLayoutIsCheckedBeforeThePageCount()
{
    CardParameters p = classic();
    p.drawn = 6;
    CardSetSize present;
    present.pagesToKeep = 65535;
    QCOMPARE(ParameterRules::check(p, present).message,
             QStringLiteral("Non posso creare 108 celle piene con solo 90 numeri."));
}

void tst_ParameterRules::manyCellsAreAWarning_data()
{
    QTest::addColumn<quint64>("inMemory");
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("verdict");
    QTest::newRow("exactly the limit") << quint64(0) << 50000 << 20 << 1;
    QTest::newRow("the limit with those in memory") << quint64(9000000) << 5000 << 20 << 1;
    QTest::newRow("one beyond with those in memory") << quint64(9999981) << 1 << 2 << 0;
    QTest::newRow("one cell in memory too many") << quint64(1) << 50000 << 20 << 0;
    QTest::newRow("far beyond") << quint64(0) << 65535 << 99 << 0;
}

void tst_ParameterRules::manyCellsAreAWarning()
{
    QFETCH(quint64, inMemory);
    QFETCH(int, pages);
    QFETCH(int, columns);
    QFETCH(int, verdict);
    const CardParameters p = ofCells(pages, 2, 5, columns);
    CardSetSize present;
    present.cellsInMemory = inMemory;
    const auto result = ParameterRules::check(p, present);
    QCOMPARE(int(result.verdict), verdict);
    const QString warning = QStringLiteral("Si sconsiglia di proseguire per le seguenti ragioni:\n"
                                           "%1 -> caselle totali richieste.\n"
                                           "%2 -> caselle totali in memoria.\n"
                                           "10000000 -> caselle massime gestibili.\n"
                                           "(eventuale crash del programma)");
    QCOMPARE(result.message, verdict == 1 ? QString() : warning.arg(pages * 10 * columns).arg(inMemory));
}

void tst_ParameterRules::cellsThatDoNotFit32BitsAreAWarningToo()
{
    // 2^32 exactly: nothing at all where 32 bits are counted.
    const CardParameters p = ofCells(65536, 64, 32, 32);
    QCOMPARE(ParameterRules::cellsRequested(p), quint64(std::numeric_limits<quint32>::max()) + 1);
    const auto result = ParameterRules::check(ofCells(65535, 99, 99, 99), {});
    QCOMPARE(int(result.verdict), 0);
    QVERIFY2(result.message.contains(QStringLiteral("\n63588544965 -> caselle totali richieste.\n")),
             qPrintable(result.message));
}

void tst_ParameterRules::whatNewMakesIsCountedWithoutOverflow()
{
    CardParameters p;
    p.pages = 65535;
    p.blocks = 99;
    QCOMPARE(ParameterRules::outcome(p), QStringLiteral("Nuova: 65535 pagine × 99 blocchi = 6487965 blocchi"));
    p.manual = true;
    QCOMPARE(ParameterRules::outcome(p), QStringLiteral("Nuova: si apre l'editor della mappatura manuale"));
}

void tst_ParameterRules::bytesRequestedAreAtLeastThoseOfTheRecords()
{
    CardParameters p;
    p.pages = 10;
    const double cells = 10.0 * 6 * 3 * 9;
    QVERIFY(ParameterRules::bytesRequested(p) > cells * sizeof(Cella));
    QVERIFY(ParameterRules::bytesRequested(p) < cells * sizeof(Cella) * 1.5);
    const double once = ParameterRules::bytesRequested(p);
    p.pages = 20;
    QCOMPARE(ParameterRules::bytesRequested(p), once * 2);
}

QTEST_GUILESS_MAIN(tst_ParameterRules)
#include "tst_ParameterRules.moc"
