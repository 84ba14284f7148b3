// SPDX-License-Identifier: MIT
#include "serata/Premi.h"

#include "serata/MadeCards.h"

#include <QMap>
#include <QTest>

namespace {
// A usual card of three rows of five numbers.
Scheda usualCard()
{
    return made({1, 1}, {QStringLiteral("1 - 20 - 40 - 60 - 80"), QStringLiteral("2 - 22 - 42 - 62 - 82"),
                         QStringLiteral("3 - 23 - 43 - 63 - 83")});
}

// What the card has won once these numbers were called, as "Ambo 2, Terno 5": each prize with its call.
QString won(const Scheda &scheda, const QVector<quint32> &calls)
{
    const auto vincite = vinciteOf(scheda, [&calls](quint32 numero) { return calls.indexOf(numero) + 1; });
    QStringList texts;
    for (const Vincita &vincita : vincite) {
        texts << QStringLiteral("%1 %2").arg(premioText(vincita.premio)).arg(vincita.chiamata);
    }
    return texts.join(QStringLiteral(", "));
}
} // namespace

class tst_Premi final : public QObject
{
    Q_OBJECT

private slots:
    void theBestRowCounts_data();
    void theBestRowCounts();
    void allNumbersAreATombola();
    void aRowLongerThanFiveHasItsCinquinaWithTheFifth();
    void aCardOfFewNumbersWinsWithThem();
    void aNumberThatStandsTwiceCountsOnce();
    void onlyNumbersCount();
    void prizesDifferByKindAndCall();
    void aCardWithoutNumbersWinsNothing();
};

void tst_Premi::theBestRowCounts_data()
{
    QTest::addColumn<QVector<quint32>>("calls");
    QTest::addColumn<QString>("prizes");
    using Calls = QVector<quint32>;
    QTest::newRow("no call") << Calls{} << QString();
    QTest::newRow("one number in a row") << Calls{1} << QString();
    QTest::newRow("one number in each row") << Calls{1, 2, 3} << QString();
    QTest::newRow("numbers of other cards") << Calls{5, 6, 7, 8, 9} << QString();
    QTest::newRow("two in a row") << Calls{1, 5, 20} << QStringLiteral("Ambo 3");
    QTest::newRow("in whatever order") << Calls{20, 5, 1} << QStringLiteral("Ambo 3");
    QTest::newRow("two in two rows, the earlier") << Calls{1, 2, 22, 20} << QStringLiteral("Ambo 3");
    QTest::newRow("three in a row") << Calls{1, 20, 40} << QStringLiteral("Ambo 2, Terno 3");
    QTest::newRow("from different rows") << Calls{1, 2, 22, 20, 40} << QStringLiteral("Ambo 3, Terno 5");
    QTest::newRow("four in a row") << Calls{3, 23, 9, 43, 63} << QStringLiteral("Ambo 2, Terno 4, Quaterna 5");
    QTest::newRow("a whole row") << Calls{2, 22, 42, 62, 82}
                                 << QStringLiteral("Ambo 2, Terno 3, Quaterna 4, Cinquina 5");
    QTest::newRow("a whole row and a part")
        << Calls{2, 22, 42, 62, 82, 1, 20, 40, 60} << QStringLiteral("Ambo 2, Terno 3, Quaterna 4, Cinquina 5");
    QTest::newRow("two whole rows") << Calls{2, 22, 42, 62, 82, 1, 20, 40, 60, 7, 80}
                                    << QStringLiteral("Ambo 2, Terno 3, Quaterna 4, Cinquina 5, Due cinquine 11");
}

void tst_Premi::theBestRowCounts()
{
    QFETCH(QVector<quint32>, calls);
    QFETCH(QString, prizes);
    QCOMPARE(won(usualCard(), calls), prizes);
}

void tst_Premi::allNumbersAreATombola()
{
    const QVector<quint32> calls{1, 20, 40, 60, 80, 2, 22, 42, 62, 82, 90, 3, 23, 43, 63};
    QCOMPARE(won(usualCard(), calls), QStringLiteral("Ambo 2, Terno 3, Quaterna 4, Cinquina 5, Due cinquine 10"));
    QCOMPARE(won(usualCard(), calls + QVector<quint32>{83}),
             QStringLiteral("Ambo 2, Terno 3, Quaterna 4, Cinquina 5, Due cinquine 10, Tombola 16"));
    QCOMPARE(won(usualCard(), calls + QVector<quint32>{83, 84, 85}),
             QStringLiteral("Ambo 2, Terno 3, Quaterna 4, Cinquina 5, Due cinquine 10, Tombola 16"));
}

void tst_Premi::aRowLongerThanFiveHasItsCinquinaWithTheFifth()
{
    QCOMPARE(won(made({1, 1}, {QStringLiteral("1 2 3 4 5 6 7")}), {7, 6, 5, 4, 3, 2}),
             QStringLiteral("Ambo 2, Terno 3, Quaterna 4, Cinquina 5"));
}

void tst_Premi::aCardOfFewNumbersWinsWithThem()
{
    QCOMPARE(won(made({1, 1}, {QStringLiteral("1 2"), QStringLiteral("3")}), {2, 1}), QStringLiteral("Ambo 2"));
    QCOMPARE(won(made({1, 1}, {QStringLiteral("1 2"), QStringLiteral("3")}), {2, 1, 3}),
             QStringLiteral("Ambo 2, Tombola 3"));
    QCOMPARE(won(made({1, 1}, {QStringLiteral("9")}), {9}), QStringLiteral("Tombola 1"));
}

void tst_Premi::aNumberThatStandsTwiceCountsOnce()
{
    QCOMPARE(won(made({1, 1}, {QStringLiteral("7 7 8")}), {7}), QString());
    QCOMPARE(won(made({1, 1}, {QStringLiteral("7 7 8"), QStringLiteral("8 7")}), {7, 8}),
             QStringLiteral("Ambo 2, Tombola 2"));
}

void tst_Premi::onlyNumbersCount()
{
    Scheda scheda = made({1, 1}, {QStringLiteral("1 jolly * - 2")});
    scheda.righe[0][1].testo = QStringLiteral("3");
    QCOMPARE(won(scheda, {3, 1, 2}), QStringLiteral("Ambo 3, Tombola 3"));
}

void tst_Premi::prizesDifferByKindAndCall()
{
    const Vincita ambo{Premio::Ambo, 3};
    QVERIFY(ambo == (Vincita{Premio::Ambo, 3}));
    QVERIFY(!(ambo == Vincita{Premio::Ambo, 4}));
    QVERIFY(!(ambo == Vincita{Premio::Terno, 3}));
}

void tst_Premi::aCardWithoutNumbersWinsNothing()
{
    QCOMPARE(won(made({1, 1}, {QStringLiteral("- jolly *")}), {0, 1, 2}), QString());
    QCOMPARE(won(made({1, 1}, {}), {0, 1, 2}), QString());
}

QTEST_GUILESS_MAIN(tst_Premi)
#include "tst_Premi.moc"
