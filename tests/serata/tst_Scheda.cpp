// SPDX-License-Identifier: MIT
#include "serata/Scheda.h"

#include "serata/MadeCards.h"

#include <QTest>

namespace {
using Numbers = std::vector<quint32>;
} // namespace

class tst_Scheda final : public QObject
{
    Q_OBJECT

private slots:
    void theCardsOfASetAreItsBlocksInOrder();
    void aCardHoldsWhatItsBlockShows();
    void cellsDifferByTypeNumberAndText();
    void whatACellHeldBeforeIsNotPartOfTheCard();
    void aCopyDoesNotFollowTheSet();
    void theNumbersOfARowAreDifferentAndAscending();
    void theNumbersOfACardAreThoseOfAllRows();
    void aPositionIsWrittenWithADot();
    void aPositionIsRead_data();
    void aPositionIsRead();
    void otherTextsAreNoPosition_data();
    void otherTextsAreNoPosition();
};

void tst_Scheda::theCardsOfASetAreItsBlocksInOrder()
{
    Cartella set;
    QVERIFY(schedeOf(set).empty());
    set.generateBlock(2, 3, 9);
    set.generateBlock(1, 1, 4);
    const std::vector<Scheda> schede = schedeOf(set);
    QCOMPARE(schede.size(), size_t(3));
    QVERIFY((schede[0].posizione == Posizione{1, 1}));
    QVERIFY((schede[1].posizione == Posizione{1, 2}));
    QVERIFY((schede[2].posizione == Posizione{2, 1}));
    QCOMPARE(schede[1].righe.size(), size_t(3));
    QCOMPARE(schede[1].righe[2].size(), size_t(9));
    QCOMPARE(schede[2].righe.size(), size_t(1));
    QCOMPARE(schede[2].righe[0].size(), size_t(4));
}

void tst_Scheda::aCardHoldsWhatItsBlockShows()
{
    const Scheda wanted = made({1, 1}, {QStringLiteral("5 - 90"), QStringLiteral("* jolly 0")});
    Cartella set(1, 2, 3);
    Blocco &block = set.pagine[0]->blocchi[0];
    block = blockOf(wanted);
    QVERIFY(schedaOf(block, {1, 1}) == wanted);
    QVERIFY(!(schedaOf(block, {1, 2}) == wanted));
    block.righe[1].celle[1].testo = QStringLiteral("Jolly");
    QVERIFY(!(schedaOf(block, {1, 1}) == wanted));
}

void tst_Scheda::cellsDifferByTypeNumberAndText()
{
    const Casella number{CELL_NUMERO, 5, QString()};
    QVERIFY(number == (Casella{CELL_NUMERO, 5, QString()}));
    QVERIFY(!(number == Casella{CELL_NUMERO, 6, QString()}));
    QVERIFY(!(number == Casella{CELL_VUOTA, 5, QString()}));
    QVERIFY(!(number == Casella{CELL_NUMERO, 5, QStringLiteral("5")}));
}

void tst_Scheda::whatACellHeldBeforeIsNotPartOfTheCard()
{
    Cartella set(1, 1, 3);
    Cella *cell = set.pagine[0]->blocchi[0].righe[0].celle.get();
    for (const CELL_VALUE type : {CELL_VUOTA, CELL_TESTO, CELL_NUMERO}) {
        cell->tipo = type;
        cell->numero = 7;
        cell->testo = QStringLiteral("was");
        ++cell;
    }
    QVERIFY(schedeOf(set)[0] == made({1, 1}, {QStringLiteral("- was 7")}));
}

void tst_Scheda::aCopyDoesNotFollowTheSet()
{
    Cartella set(1, 1, 1);
    set.pagine[0]->blocchi[0] = blockOf(made({1, 1}, {QStringLiteral("8")}));
    const std::vector<Scheda> copy = schedeOf(set);
    set.pagine[0]->blocchi[0].righe[0].celle[0].numero = 9;
    set.deletePage(0);
    QCOMPARE(copy[0].righe[0][0].numero, 8U);
}

void tst_Scheda::theNumbersOfARowAreDifferentAndAscending()
{
    const Scheda scheda = made({1, 1}, {QStringLiteral("70 3 - * 3 text 12"), QString()});
    QCOMPARE(numbersOf(scheda.righe[0]), (Numbers{3, 12, 70}));
    QCOMPARE(numbersOf(scheda.righe[1]), Numbers{});
}

void tst_Scheda::theNumbersOfACardAreThoseOfAllRows()
{
    QCOMPARE(numbersOf(made({1, 1}, {QStringLiteral("70 3"), QStringLiteral("3 - 1")})), (Numbers{1, 3, 70}));
    QCOMPARE(numbersOf(made({1, 1}, {QStringLiteral("- *")})), Numbers{});
}

void tst_Scheda::aPositionIsWrittenWithADot()
{
    QCOMPARE(positionText({12, 3}), QStringLiteral("12.3"));
    QCOMPARE(positionText({65535, 255}), QStringLiteral("65535.255"));
}

void tst_Scheda::aPositionIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("block");
    QTest::newRow("as printed") << QStringLiteral("12.3") << 12 << 3;
    QTest::newRow("the comma of a numeric keypad") << QStringLiteral("12,3") << 12 << 3;
    QTest::newRow("blanks around") << QStringLiteral(" 12.3\r") << 12 << 3;
    QTest::newRow("leading zeros") << QStringLiteral("0012.03") << 12 << 3;
    QTest::newRow("the last one") << QStringLiteral("65535.255") << 65535 << 255;
}

void tst_Scheda::aPositionIsRead()
{
    QFETCH(QString, text);
    QFETCH(int, page);
    QFETCH(int, block);
    const auto position = parsePosition(text);
    QVERIFY(position.has_value());
    QCOMPARE(int(position->pagina), page);
    QCOMPARE(int(position->blocco), block);
}

void tst_Scheda::otherTextsAreNoPosition_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", ".", "12", "12.", ".3", "0.1", "1.0", "65536.1", "1.256", "1.2.3", "1 2", "-1.2",
                             "a.b", "12.3x", "4294967297.1", "99999999999999999999.1"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_Scheda::otherTextsAreNoPosition()
{
    QFETCH(QString, text);
    QVERIFY(!parsePosition(text).has_value());
}

QTEST_GUILESS_MAIN(tst_Scheda)
#include "tst_Scheda.moc"
