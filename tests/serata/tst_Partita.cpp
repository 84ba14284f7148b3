// SPDX-License-Identifier: MIT
#include "serata/Partita.h"

#include "generation/GUtils.h"
#include "generation/GeneraCartellaClassica.h"
#include "serata/MadeCards.h"

#include <QSet>
#include <QTest>

#include <algorithm>

namespace {
using Numbers = std::vector<quint32>;

// Three cards, the last one without numbers.
std::vector<Scheda> fewCards()
{
    return {made({1, 1}, {QStringLiteral("5 - 7")}), made({1, 2}, {QStringLiteral("7 jolly"), QStringLiteral("9 8")}),
            made({3, 1}, {QStringLiteral("* -")})};
}

bool isCalled(const Partita &partita, quint32 numero)
{
    const Numbers &calls = partita.chiamate();
    return std::find(calls.begin(), calls.end(), numero) != calls.end();
}

// How many numbers of a card were not called, counted anew.
size_t missing(const Partita &partita, const Scheda &scheda)
{
    const Numbers numbers = numbersOf(scheda);
    return size_t(std::count_if(numbers.begin(), numbers.end(),
                                [&partita](quint32 number) { return !isCalled(partita, number); }));
}

// The cards that miss so many numbers, counted anew.
Numbers cardsMissing(const Partita &partita, size_t count)
{
    Numbers found;
    for (size_t i = 0; i < partita.schede().size(); ++i) {
        if (missing(partita, partita.schede()[i]) == count) {
            found.push_back(quint32(i));
        }
    }
    return found;
}
} // namespace

class tst_Partita final : public QObject
{
    Q_OBJECT

private slots:
    void theRangeIsThatOfTheCards();
    void rangesDifferByEitherEnd();
    void theUsualNumbersAreThoseOfTombola_data();
    void theUsualNumbersAreThoseOfTombola();
    void theMemoryOfAGameGrowsWithItsCells();
    void cardsAreFoundByTheirPosition();
    void aCallHasItsTurn();
    void aNumberTakenBackMovesTheTurnsOfTheLaterOnes();
    void theNumbersNotCalledAreTheOthersOfTheRange();
    void aNumberOutsideTheRangeHasNoTurn();
    void theListsFollowEveryCall();
    void theListsAgreeWithACountAnew();
    void manyCallsAtOnceAreLikeOneByOne();
    void aCardTellsWhichNumberItMisses();
    void aNewGameBeginsWithoutCalls();
    void theRangeOfAGameMayBeWiderThanTheCards();
    void prizesAreThoseOfTheCalls();
    void aDrawTakesThePlaceThatTheGeneratorGives();
    void everyNumberCanBeDrawn();
};

void tst_Partita::theRangeIsThatOfTheCards()
{
    QVERIFY(rangeOf(fewCards()) == (Intervallo{5, 9}));
    QVERIFY(rangeOf({}) == (Intervallo{1, 90}));
    QVERIFY(rangeOf({made({1, 1}, {QStringLiteral("jolly")})}) == (Intervallo{1, 90}));
    QVERIFY(rangeOf({made({1, 1}, {QStringLiteral("0 999999")})}) == (Intervallo{0, 999999}));
    QVERIFY(united({5, 9}, {1, 7}) == (Intervallo{1, 9}));
    QVERIFY(united({1, 7}, {5, 9}) == (Intervallo{1, 9}));
    QVERIFY(Partita(fewCards()).numeri() == (Intervallo{5, 9}));
}

void tst_Partita::theUsualNumbersAreThoseOfTombola_data()
{
    QTest::addColumn<quint32>("lowest");
    QTest::addColumn<quint32>("highest");
    QTest::addColumn<QString>("usual");
    QTest::newRow("a small set") << 3U << 88U << QStringLiteral("1-90");
    QTest::newRow("all of them") << 1U << 90U << QStringLiteral("1-90");
    QTest::newRow("from 0") << 0U << 89U << QStringLiteral("0-90");
    QTest::newRow("one more") << 3U << 91U << QStringLiteral("3-91");
    QTest::newRow("high ones") << 100U << 999U << QStringLiteral("100-999");
}

void tst_Partita::theUsualNumbersAreThoseOfTombola()
{
    QFETCH(quint32, lowest);
    QFETCH(quint32, highest);
    QFETCH(QString, usual);
    const Intervallo numeri = withUsualNumbers({lowest, highest});
    QCOMPARE(QStringLiteral("%1-%2").arg(numeri.da).arg(numeri.a), usual);
}

void tst_Partita::theMemoryOfAGameGrowsWithItsCells()
{
    const double empty = bytesToPlay(Cartella());
    QCOMPARE(empty, 0.0);
    const double page = bytesToPlay(Cartella(1, 6, 3, 9));
    QVERIFY(page >= 6 * 3 * 9 * double(sizeof(Casella)));
    QVERIFY(page <= 6 * 3 * 9 * double(sizeof(Casella)) * 4);
    QCOMPARE(bytesToPlay(Cartella(50, 6, 3, 9)), 50 * page);
    QVERIFY(bytesToPlay(Cartella(1, 6, 3, 10)) > page);
    QVERIFY(bytesToPlay(Cartella(1, 6, 3, 0)) < page);
}

void tst_Partita::rangesDifferByEitherEnd()
{
    QVERIFY(!(Intervallo{1, 90} == Intervallo{1, 89}));
    QVERIFY(!(Intervallo{1, 90} == Intervallo{2, 90}));
}

void tst_Partita::cardsAreFoundByTheirPosition()
{
    const Partita partita(fewCards());
    QCOMPARE(partita.find({1, 1}).value_or(99), size_t(0));
    QCOMPARE(partita.find({1, 2}).value_or(99), size_t(1));
    QCOMPARE(partita.find({3, 1}).value_or(99), size_t(2));
    for (const Posizione nowhere : {Posizione{0, 1}, {1, 3}, {2, 1}, {3, 2}, {65535, 255}}) {
        QVERIFY(!partita.find(nowhere).has_value());
    }
    QVERIFY(!Partita({}).find({1, 1}).has_value());
}

void tst_Partita::aCallHasItsTurn()
{
    Partita partita(fewCards());
    partita.toggle(9);
    partita.toggle(6); // on no card
    QCOMPARE(partita.chiamate(), (Numbers{9, 6}));
    QCOMPARE(partita.turnOf(9), 1);
    QCOMPARE(partita.turnOf(6), 2);
    QCOMPARE(partita.turnOf(5), 0);
}

void tst_Partita::aNumberTakenBackMovesTheTurnsOfTheLaterOnes()
{
    Partita partita(fewCards());
    partita.callAll({9, 6, 5});
    partita.toggle(6);
    QCOMPARE(partita.chiamate(), (Numbers{9, 5}));
    QCOMPARE(partita.turnOf(9), 1);
    QCOMPARE(partita.turnOf(6), 0);
    QCOMPARE(partita.turnOf(5), 2);
    partita.toggle(6);
    QCOMPARE(partita.turnOf(6), 3);
}

void tst_Partita::theNumbersNotCalledAreTheOthersOfTheRange()
{
    Partita partita(fewCards());
    QCOMPARE(partita.notCalled(), (Numbers{5, 6, 7, 8, 9}));
    partita.callAll({9, 6});
    QCOMPARE(partita.notCalled(), (Numbers{5, 7, 8}));
    partita.callAll({5, 7, 8});
    QCOMPARE(partita.notCalled(), Numbers{});
}

void tst_Partita::aNumberOutsideTheRangeHasNoTurn()
{
    const Partita partita(fewCards());
    QCOMPARE(partita.turnOf(4), 0);
    QCOMPARE(partita.turnOf(10), 0);
    QCOMPARE(partita.turnOf(4294967295U), 0);
    QVERIFY(contains(partita.numeri(), 5));
    QVERIFY(contains(partita.numeri(), 9));
    QVERIFY(!contains(partita.numeri(), 4));
    QVERIFY(!contains(partita.numeri(), 10));
}

void tst_Partita::theListsFollowEveryCall()
{
    Partita partita(fewCards());
    QCOMPARE(partita.tombole(), Numbers{});
    QCOMPARE(partita.quasiTombole(), Numbers{});
    partita.toggle(7);
    QCOMPARE(partita.quasiTombole(), (Numbers{0}));
    partita.toggle(5);
    QCOMPARE(partita.tombole(), (Numbers{0}));
    QCOMPARE(partita.quasiTombole(), Numbers{});
    partita.toggle(8);
    QCOMPARE(partita.quasiTombole(), (Numbers{1}));
    partita.toggle(9);
    QCOMPARE(partita.tombole(), (Numbers{0, 1})); // never the card without numbers
    QCOMPARE(partita.quasiTombole(), Numbers{});
    partita.toggle(7);
    QCOMPARE(partita.tombole(), Numbers{});
    QCOMPARE(partita.quasiTombole(), (Numbers{0, 1}));
}

void tst_Partita::theListsAgreeWithACountAnew()
{
    constexpr U16 pages = 30;
    Cartella set(pages, 6, 3, 9);
    GeneraCartellaClassica generatore;
    for (Pagina *pagina : set.pagine) {
        QVERIFY(generatore.generate(pagina, 9, 5, 0, 0, 1, 90));
    }
    Partita partita(schedeOf(set));
    QVERIFY(partita.numeri() == (Intervallo{1, 90}));
    seedRandom(15);
    for (int call = 0; call < 90; ++call) {
        partita.toggle(drawOneOf(partita.notCalled()));
        if (call % 10 == 0) {
            partita.toggle(partita.chiamate()[size_t(call) / 2]);
            partita.toggle(drawOneOf(partita.notCalled()));
        }
        QCOMPARE(partita.tombole(), cardsMissing(partita, 0));
        QCOMPARE(partita.quasiTombole(), cardsMissing(partita, 1));
    }
    QCOMPARE(partita.tombole().size(), size_t(180));
}

void tst_Partita::manyCallsAtOnceAreLikeOneByOne()
{
    Partita atOnce(fewCards());
    atOnce.callAll({8, 7, 5});
    Partita oneByOne(fewCards());
    for (const quint32 number : {8U, 7U, 5U}) {
        oneByOne.toggle(number);
    }
    QCOMPARE(atOnce.chiamate(), oneByOne.chiamate());
    QCOMPARE(atOnce.tombole(), (Numbers{0}));
    QCOMPARE(oneByOne.tombole(), (Numbers{0}));
    QCOMPARE(atOnce.quasiTombole(), (Numbers{1}));
    QCOMPARE(oneByOne.quasiTombole(), (Numbers{1}));
}

void tst_Partita::aCardTellsWhichNumberItMisses()
{
    Partita partita(fewCards());
    partita.callAll({7, 8});
    QCOMPARE(partita.missingNumber(0), 5U);
    QCOMPARE(partita.missingNumber(1), 9U);
}

void tst_Partita::aNewGameBeginsWithoutCalls()
{
    Partita partita(fewCards());
    partita.callAll({7, 5});
    partita.begin({1, 90});
    QVERIFY(partita.numeri() == (Intervallo{1, 90}));
    QCOMPARE(partita.chiamate(), Numbers{});
    QCOMPARE(partita.turnOf(7), 0);
    QCOMPARE(partita.tombole(), Numbers{});
    QCOMPARE(partita.notCalled().size(), size_t(90));
    partita.callAll({7, 5});
    QCOMPARE(partita.tombole(), (Numbers{0}));
}

void tst_Partita::theRangeOfAGameMayBeWiderThanTheCards()
{
    Partita partita(fewCards());
    partita.begin({0, 999999});
    partita.toggle(0);
    partita.toggle(999999);
    QCOMPARE(partita.turnOf(0), 1);
    QCOMPARE(partita.turnOf(999999), 2);
    QCOMPARE(partita.notCalled().size(), size_t(999998));
    partita.toggle(999999);
    QCOMPARE(partita.turnOf(999999), 0);
}

void tst_Partita::prizesAreThoseOfTheCalls()
{
    Partita partita(fewCards());
    partita.callAll({8, 6, 9, 7});
    QVERIFY((partita.vincite(1) == std::vector<Vincita>{{Premio::Ambo, 3}, {Premio::Tombola, 4}}));
    QVERIFY(partita.vincite(0).empty());
}

void tst_Partita::aDrawTakesThePlaceThatTheGeneratorGives()
{
    const Numbers numbers{2, 3, 5, 7, 11, 13};
    for (unsigned seed = 0; seed < 20; ++seed) {
        seedRandom(seed);
        const unsigned place = GUtils::generate_X_different_numbers(1, 0, 5).first();
        const int next = nextRandom();
        seedRandom(seed);
        QCOMPARE(drawOneOf(numbers), numbers[place]);
        QCOMPARE(nextRandom(), next); // nothing else was drawn
    }
}

void tst_Partita::everyNumberCanBeDrawn()
{
    QCOMPARE(drawOneOf({41}), 41U);
    QSet<quint32> drawn;
    seedRandom(1);
    for (int i = 0; i < 200; ++i) {
        drawn.insert(drawOneOf({4, 5, 6}));
    }
    QCOMPARE(drawn, (QSet<quint32>{4, 5, 6}));
}

QTEST_GUILESS_MAIN(tst_Partita)
#include "tst_Partita.moc"
