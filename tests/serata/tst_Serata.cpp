// SPDX-License-Identifier: MIT
#include "serata/Serata.h"

#include "generation/GUtils.h"
#include "serata/Evening.h"
#include "serata/MadeCards.h"
#include "serata/NuovaPartita.h"
#include "serata/Tabellone.h"
#include "support/FileFaults.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSpinBox>
#include <QtTest>

#include <numeric>

class tst_Serata final : public QObject
{
    Q_OBJECT

private slots:
    void theWindowHasTheIconOfTheProgram();
    void theBoardHasAllNumbersOfTheRange_data();
    void theBoardHasAllNumbersOfTheRange();
    void aClickCallsANumberAndASecondTakesItBack();
    void aDoubleClickCallsANumberOnce();
    void aTypedNumberIsCalledAndASecondTimeTakenBack();
    void theBoardIsUsedByKeys();
    void aDigitTypedOnTheBoardBeginsANumber();
    void aNumberThatNobodyHasChangesNothing_data();
    void aNumberThatNobodyHasChangesNothing();
    void theWindowsHaveTheIconOfTheProgram();
    void theLastNumbersAreLargeAndInOrder();
    void longNumbersLeaveTheWindowAsItIs();
    void drawingTakesThePlaceThatTheGeneratorGives();
    void drawingEndsWithTheLastNumber();
    void aCardIsShownWithItsNumbersAndPrizes();
    void theCardShownFollowsTheCalls();
    void aScannedCardIsTakenInEitherField();
    void aScannedCardIsTakenFromEveryFocus_data();
    void aScannedCardIsTakenFromEveryFocus();
    void aKeyHeldDownIsOneKey_data();
    void aKeyHeldDownIsOneKey();
    void aCardThatDoesNotExistChangesNothing_data();
    void aCardThatDoesNotExistChangesNothing();
    void theListsFollowEveryCall();
    void anEntryOfAListShowsItsCard();
    void aListKeepsItsCurrentCard();
    void longListsAreGivenInParts();
    void aNewGameForgetsTheCalls();
    void aNewGameThatIsCancelledChangesNothing();
    void aNewGameThatCannotBeSavedChangesNothing();
    void theRangeOfANewGameIsNeverUpsideDown();
    void theScreenIsFilledAndLeft();
    void aCallThatCannotBeSavedIsNotShown();
    void whatHappensToTheSetChangesNothing();

    void boardAndListsAreSoundModels();
    void everythingHasANameForScreenReaders();
    void calledNumbersAreReadableInAnyPalette_data();
    void calledNumbersAreReadableInAnyPalette();
    void theEveningIsPlayedByKeysAlone();
};

void tst_Serata::theWindowHasTheIconOfTheProgram()
{
    Evening e;
    QVERIFY(e.openSet());
    QVERIFY(!e.window->windowIcon().pixmap(32, 32).isNull());
}

void tst_Serata::theBoardHasAllNumbersOfTheRange_data()
{
    QTest::addColumn<quint32>("lowest");
    QTest::addColumn<quint32>("highest");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("firstRow");
    QTest::newRow("tombola") << 1U << 90U << 9 << QStringLiteral("1 2 3 4 5 6 7 8 9 10");
    QTest::newRow("from 0") << 0U << 99U << 10 << QStringLiteral("0 1 2 3 4 5 6 7 8 9");
    QTest::newRow("American") << 1U << 75U << 8 << QStringLiteral("1 2 3 4 5 6 7 8 9 10");
    QTest::newRow("in the middle of a row") << 15U << 23U << 2 << QStringLiteral("- - - - 15 16 17 18 19 20");
    QTest::newRow("one number") << 10U << 10U << 1 << QStringLiteral("- - - - - - - - - 10");
    QTest::newRow("the widest") << 0U << 999999U << 100000 << QStringLiteral("0 1 2 3 4 5 6 7 8 9");
}

void tst_Serata::theBoardHasAllNumbersOfTheRange()
{
    QFETCH(quint32, lowest);
    QFETCH(quint32, highest);
    QFETCH(int, rows);
    QFETCH(QString, firstRow);
    Partita partita({});
    partita.begin({lowest, highest});
    TabelloneModel model;
    model.setPartita(&partita);
    QCOMPARE(model.rowCount(), rows);
    QStringList shown;
    for (int column = 0; column < model.columnCount(); ++column) {
        const QVariant number = model.index(0, column).data();
        shown << (number.isValid() ? number.toString() : QStringLiteral("-"));
    }
    QCOMPARE(shown.join(QLatin1Char(' ')), firstRow);
    QCOMPARE(model.numberAt(model.index(rows - 1, int((highest + 9) % 10))).value_or(0),
             lowest == 0 ? highest - 1 : highest);
}

void tst_Serata::aClickCallsANumberAndASecondTakesItBack()
{
    Evening e;
    QVERIFY(e.openSet());
    e.click(34);
    QVERIFY(e.isMarked(34));
    QCOMPARE(e.saved(), (Numbers{34}));
    QCOMPARE(e.status(), QStringLiteral("Chiamato il 34."));
    e.click(90);
    e.click(34);
    QVERIFY(!e.isMarked(34));
    QVERIFY(e.isMarked(90));
    QCOMPARE(e.saved(), (Numbers{90}));
    QCOMPARE(e.status(), QStringLiteral("Tolto il 34."));
}

void tst_Serata::aDoubleClickCallsANumberOnce()
{
    Evening e;
    QVERIFY(e.openSet());
    const QPoint centre = e.board()->visualRect(e.place(34)).center();
    QTest::mouseClick(e.board()->viewport(), Qt::LeftButton, {}, centre);
    QTest::mouseDClick(e.board()->viewport(), Qt::LeftButton, {}, centre);
    QTest::mouseRelease(e.board()->viewport(), Qt::LeftButton, {}, centre);
    QCOMPARE(e.saved(), (Numbers{34}));
}

void tst_Serata::aTypedNumberIsCalledAndASecondTimeTakenBack()
{
    Evening e;
    QVERIFY(e.openSet());
    QVERIFY(e.find<QLineEdit>("numero_edit")->hasFocus());
    e.type("numero_edit", QStringLiteral(" 34 "));
    QCOMPARE(e.saved(), (Numbers{34}));
    QVERIFY(e.isMarked(34));
    QCOMPARE(e.find<QLineEdit>("numero_edit")->text(), QString());
    e.call(34);
    QCOMPARE(e.saved(), Numbers{});
    QVERIFY(!e.isMarked(34));
}

void tst_Serata::theBoardIsUsedByKeys()
{
    Evening e;
    QVERIFY(e.openSet());
    e.board()->setFocus();
    e.board()->setCurrentIndex(e.place(1));
    QTest::keyClick(e.board(), Qt::Key_Down);
    QTest::keyClick(e.board(), Qt::Key_Right);
    QTest::keyClick(e.board(), Qt::Key_Space);
    QCOMPARE(e.saved(), (Numbers{12}));
    QTest::keyClick(e.board(), Qt::Key_Right);
    QTest::keyClick(e.board(), Qt::Key_Return);
    QCOMPARE(e.saved(), (Numbers{12, 13}));
    QTest::keyClick(e.board(), Qt::Key_Enter);
    QCOMPARE(e.saved(), (Numbers{12}));
    QTest::keyClick(e.board(), Qt::Key_Tab);
    QVERIFY(!e.board()->hasFocus());
}

void tst_Serata::aDigitTypedOnTheBoardBeginsANumber()
{
    Evening e;
    QVERIFY(e.openSet());
    e.board()->setFocus();
    auto *edit = e.find<QLineEdit>("numero_edit");
    QTest::keyClick(e.board(), Qt::Key_X);
    QVERIFY(e.board()->hasFocus());
    QCOMPARE(edit->text(), QString());
    QTest::keyClick(e.board(), Qt::Key_3);
    QVERIFY(edit->hasFocus());
    QTest::keyClick(edit, Qt::Key_4);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(e.saved(), (Numbers{34}));
}

void tst_Serata::aNumberThatNobodyHasChangesNothing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    const QString outside = QStringLiteral("Il numero %1 non è in gioco: i numeri vanno da 1 a 90!");
    const QString other = QStringLiteral("Scrivere un numero da 1 a 90!");
    QTest::newRow("below") << QStringLiteral("0") << outside.arg(0);
    QTest::newRow("above") << QStringLiteral("91") << outside.arg(91);
    QTest::newRow("far above") << QStringLiteral("4294967295") << outside.arg(4294967295U);
    QTest::newRow("beyond all numbers") << QStringLiteral("99999999999999999999") << other;
    QTest::newRow("negative") << QStringLiteral("-5") << other;
    QTest::newRow("a word") << QStringLiteral("cinque") << other;
    QTest::newRow("nothing") << QString() << other;
}

void tst_Serata::aNumberThatNobodyHasChangesNothing()
{
    QFETCH(QString, typed);
    QFETCH(QString, message);
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray before = e.folder.read(journal);
    e.type("numero_edit", typed);
    QCOMPARE(e.status(), message);
    QCOMPARE(e.folder.read(journal), before);
    QCOMPARE(e.text("ultimo_label"), QStringLiteral("7"));
}

void tst_Serata::theWindowsHaveTheIconOfTheProgram()
{
    Evening e;
    QVERIFY(e.openSet());
    QVERIFY(!e.window->windowIcon().availableSizes().isEmpty());
    const NuovaPartita dialog({1, 90}, 0);
    QVERIFY(!dialog.windowIcon().availableSizes().isEmpty());
}

void tst_Serata::theLastNumbersAreLargeAndInOrder()
{
    Evening e;
    QVERIFY(e.openSet());
    QCOMPARE(e.text("ultimo_label"), QString());
    QCOMPARE(e.text("precedenti_label"), QString());
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 90"));
    for (const quint32 number : {10U, 20U, 30U, 40U, 50U, 60U, 70U}) {
        e.call(number);
    }
    QCOMPARE(e.text("ultimo_label"), QStringLiteral("70"));
    QCOMPARE(e.text("precedenti_label"), QStringLiteral("60  50  40  30  20"));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 7 di 90"));
    e.call(70);
    QCOMPARE(e.text("ultimo_label"), QStringLiteral("60"));

    e.window->resize(1024, 700);
    const int inWindow = e.find<QLabel>("ultimo_label")->font().pixelSize();
    QVERIFY2(inWindow >= 120, qPrintable(QString::number(inWindow)));
    QVERIFY(e.find<QLabel>("precedenti_label")->font().pixelSize() >= 40);
    e.window->resize(1920, 1080);
    QVERIFY(e.find<QLabel>("ultimo_label")->font().pixelSize() > inWindow);
}

void tst_Serata::longNumbersLeaveTheWindowAsItIs()
{
    Evening e;
    QVERIFY(e.openSet(Cartella(), {0, 999999}));
    e.window->resize(1024, 700);
    for (quint32 number = 999990; number < 999999; ++number) {
        e.call(number);
    }
    QVERIFY2(e.window->minimumSizeHint().width() <= 1024,
             qPrintable(QString::number(e.window->minimumSizeHint().width())));
    QCOMPARE(e.window->width(), 1024);
}

void tst_Serata::drawingTakesThePlaceThatTheGeneratorGives()
{
    Evening e;
    QVERIFY(e.openSet());
    Numbers left(90);
    std::iota(left.begin(), left.end(), 1U);
    Numbers drawn;
    seedRandom(15);
    for (int i = 0; i < 30; ++i) {
        const auto place =
            left.begin() + int(GUtils::generate_X_different_numbers(1, 0, unsigned(left.size()) - 1).first());
        drawn.push_back(*place);
        left.erase(place);
    }
    seedRandom(15);
    for (int i = 0; i < 15; ++i) {
        e.press("estrai_button");
        e.trigger("actionEstrai");
    }
    QCOMPARE(e.saved(), drawn);
    QCOMPARE(e.text("ultimo_label"), QString::number(drawn.back()));
}

void tst_Serata::drawingEndsWithTheLastNumber()
{
    Evening e;
    QVERIFY(e.openSet());
    for (int i = 0; i < 90; ++i) {
        e.press("estrai_button");
    }
    QCOMPARE(e.saved().size(), size_t(90));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 90 di 90"));
    const QByteArray before = e.folder.read(journal);
    e.press("estrai_button");
    QCOMPARE(e.status(), QStringLiteral("Tutti i numeri sono stati chiamati!"));
    QCOMPARE(e.folder.read(journal), before);
}

void tst_Serata::aCardIsShownWithItsNumbersAndPrizes()
{
    Evening e;
    QVERIFY(e.openSet());
    QCOMPARE(e.text("esito_label"), QStringLiteral("Nessuna scheda"));
    QCOMPARE(e.card(), QString());
    e.call(12);
    e.call(50);
    e.call(2);
    e.check(QStringLiteral("1.1"));
    QCOMPARE(e.text("esito_label"), QStringLiteral("Scheda 1.1"));
    QCOMPARE(e.status(), QStringLiteral("Scheda 1.1."));
    QCOMPARE(e.card(), QStringLiteral("1 - 21 / 2* 12* jolly"));
    QCOMPARE(e.prizes(), QStringList(QStringLiteral("Ambo: chiamata 3, numero 2")));

    e.check(QStringLiteral("1,2"));
    QCOMPARE(e.card(), QStringLiteral("3 immagine 23 / - - 90"));
    QCOMPARE(e.prizes(), QStringList(QStringLiteral("Nessuna vincita")));

    e.find<QLineEdit>("scheda_edit")->setText(QStringLiteral("2.1"));
    e.press("controlla_button");
    QCOMPARE(e.card(), QStringLiteral("5 15 25 / 6 16 26"));
}

void tst_Serata::theCardShownFollowsTheCalls()
{
    Evening e;
    QVERIFY(e.openSet());
    e.check(QStringLiteral("1.1"));
    for (const quint32 number : {1U, 2U, 12U, 21U}) {
        e.call(number);
    }
    QCOMPARE(e.card(), QStringLiteral("1* - 21* / 2* 12* jolly"));
    QCOMPARE(e.prizes(), (QStringList{QStringLiteral("Ambo: chiamata 3, numero 12"),
                                      QStringLiteral("Tombola: chiamata 4, numero 21")}));
    e.call(21);
    QCOMPARE(e.card(), QStringLiteral("1* - 21 / 2* 12* jolly"));
    QCOMPARE(e.prizes(), (QStringList{QStringLiteral("Ambo: chiamata 3, numero 12")}));
}

void tst_Serata::aScannedCardIsTakenInEitherField()
{
    Evening e;
    QVERIFY(e.openSet());
    e.type("numero_edit", QStringLiteral("2.1"));
    QCOMPARE(e.text("esito_label"), QStringLiteral("Scheda 2.1"));
    QCOMPARE(e.saved(), Numbers{});
    QCOMPARE(e.find<QLineEdit>("numero_edit")->text(), QString());
    e.check(QStringLiteral("1.1"));
    QTest::keyClicks(e.find<QLineEdit>("scheda_edit"), QStringLiteral("2.2")); // the next scan replaces the last one
    QTest::keyClick(e.find<QLineEdit>("scheda_edit"), Qt::Key_Return);
    QCOMPARE(e.text("esito_label"), QStringLiteral("Scheda 2.2"));
}

void tst_Serata::aScannedCardIsTakenFromEveryFocus_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"numero_edit", "estrai_button", "scheda_edit", "controlla_button", "scheda_table",
                             "vincite_list", "tombole_view", "quasi_view", "tabellone"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_Serata::aScannedCardIsTakenFromEveryFocus()
{
    QFETCH(QString, name);
    Evening e;
    QVERIFY(e.openSet());
    for (const quint32 number : {1U, 21U, 11U, 3U, 23U}) {
        e.call(number);
    }
    e.check(QStringLiteral("1.1"));
    auto *widget = e.window->findChild<QWidget *>(name);
    widget->setFocus();
    QVERIFY(widget->hasFocus());
    if (auto *view = qobject_cast<QAbstractItemView *>(widget)) {
        view->setCurrentIndex(view->model()->index(0, 0));
    }
    for (const Qt::Key key : {Qt::Key_2, Qt::Key_Period, Qt::Key_1, Qt::Key_Return}) {
        QTest::keyClick(QApplication::focusWidget(), key);
    }
    QCOMPARE(e.text("esito_label"), QStringLiteral("Scheda 2.1"));
    QCOMPARE(e.saved(), (Numbers{1, 21, 11, 3, 23}));
}

void tst_Serata::aKeyHeldDownIsOneKey_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("drawing") << int(Qt::Key_F5);
    QTest::newRow("the whole screen") << int(Qt::Key_F11);
    QTest::newRow("a number of the board") << int(Qt::Key_Return);
}

void tst_Serata::aKeyHeldDownIsOneKey()
{
    QFETCH(int, key);
    Evening e;
    QVERIFY(e.openSet());
    e.board()->setFocus();
    e.board()->setCurrentIndex(e.place(7));
    QTest::keyClick(e.board(), Qt::Key(key));
    const Numbers once = e.saved();
    const bool whole = e.window->isFullScreen();
    QVERIFY(once.size() == 1 || whole);
    QTest::simulateEvent(e.board(), true, key, Qt::NoModifier, QString(), true);
    QCOMPARE(e.saved(), once);
    QCOMPARE(e.window->isFullScreen(), whole);
}

void tst_Serata::aCardThatDoesNotExistChangesNothing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    const QString missing = QStringLiteral("La scheda %1 non esiste!");
    const QString other = QStringLiteral("Scrivere la pagina e la scheda, per esempio 12.3!");
    QTest::newRow("no such card") << QStringLiteral("1.3") << missing.arg(QStringLiteral("1.3"));
    QTest::newRow("no such page") << QStringLiteral("003.1") << missing.arg(QStringLiteral("3.1"));
    QTest::newRow("a page alone") << QStringLiteral("1") << other;
    QTest::newRow("card 0") << QStringLiteral("1.0") << other;
    QTest::newRow("a word") << QStringLiteral("prima") << other;
    QTest::newRow("nothing") << QString() << other;
}

void tst_Serata::aCardThatDoesNotExistChangesNothing()
{
    QFETCH(QString, typed);
    QFETCH(QString, message);
    Evening e;
    QVERIFY(e.openSet());
    e.check(QStringLiteral("1.1"));
    const QByteArray before = e.folder.read(journal);
    e.check(typed);
    QCOMPARE(e.status(), message);
    QCOMPARE(e.text("esito_label"), QStringLiteral("Scheda 1.1"));
    QCOMPARE(e.card(), QStringLiteral("1 - 21 / 2 12 jolly"));
    QCOMPARE(e.folder.read(journal), before);
}

void tst_Serata::theListsFollowEveryCall()
{
    Evening e;
    QVERIFY(e.openSet());
    QCOMPARE(e.text("tombole_label"), QStringLiteral("Tombola: 0"));
    QCOMPARE(e.text("quasi_label"), QStringLiteral("In attesa di un numero: 0"));
    for (const quint32 number : {1U, 50U, 21U}) {
        e.call(number);
    }
    QCOMPARE(e.entries("quasi_view"), QStringList(QStringLiteral("2.2: manca il 11")));
    e.call(11);
    e.call(2);
    QCOMPARE(e.entries("tombole_view"), QStringList(QStringLiteral("2.2: chiamata 4")));
    QCOMPARE(e.entries("quasi_view"), QStringList(QStringLiteral("1.1: manca il 12")));
    QCOMPARE(e.text("tombole_label"), QStringLiteral("Tombola: 1"));
    QCOMPARE(e.text("quasi_label"), QStringLiteral("In attesa di un numero: 1"));
    e.call(21);
    QCOMPARE(e.entries("tombole_view"), QStringList());
    QCOMPARE(e.entries("quasi_view"), QStringList(QStringLiteral("2.2: manca il 21")));
}

void tst_Serata::anEntryOfAListShowsItsCard()
{
    Evening e;
    QVERIFY(e.openSet());
    for (const quint32 number : {1U, 21U, 11U, 3U, 23U}) {
        e.call(number);
    }
    auto *won = e.find<QListView>("tombole_view");
    won->setFocus();
    won->setCurrentIndex(won->model()->index(0, 0));
    QTest::keyClick(won, Qt::Key_Return);
    QCOMPARE(e.text("esito_label"), QStringLiteral("Scheda 2.2"));
    auto *nearly = e.find<QListView>("quasi_view");
    nearly->setFocus();
    nearly->setCurrentIndex(nearly->model()->index(0, 0));
    QTest::keyClick(nearly, Qt::Key_Return);
    QCOMPARE(e.text("esito_label"), QStringLiteral("Scheda 1.2"));
}

void tst_Serata::aListKeepsItsCurrentCard()
{
    Evening e;
    const Cartella many(400, 3, 1, 2);
    for (Pagina *pagina : many.pagine) {
        for (Blocco &blocco : *pagina) {
            blocco = blockOf(made({1, 1}, {QStringLiteral("7 8")}));
        }
    }
    many.pagine[0]->blocchi[0] = blockOf(made({1, 1}, {QStringLiteral("7 9")}));
    QVERIFY(e.openSet(many));
    e.call(7);
    auto *nearly = e.find<QListView>("quasi_view");
    nearly->model()->fetchMore(QModelIndex());
    nearly->setFocus();
    nearly->setCurrentIndex(nearly->model()->index(900, 0));
    QCOMPARE(nearly->currentIndex().data().toString(), QStringLiteral("301.1: manca il 8"));
    e.call(9); // the first card leaves the list
    QCOMPARE(nearly->currentIndex().row(), 899);
    QCOMPARE(nearly->currentIndex().data().toString(), QStringLiteral("301.1: manca il 8"));
    QTest::keyClick(nearly, Qt::Key_Return);
    QCOMPARE(e.text("esito_label"), QStringLiteral("Scheda 301.1"));
    e.call(8); // and so does this one
    QVERIFY(!nearly->currentIndex().isValid());
}

void tst_Serata::longListsAreGivenInParts()
{
    Evening e;
    const Cartella many(400, 3, 1, 1);
    for (Pagina *pagina : many.pagine) {
        for (Blocco &blocco : *pagina) {
            blocco = blockOf(made({1, 1}, {QStringLiteral("7")}));
        }
    }
    QVERIFY(e.openSet(many));
    QCOMPARE(e.text("quasi_label"), QStringLiteral("In attesa di un numero: 1200"));
    e.call(7);
    QCOMPARE(e.text("tombole_label"), QStringLiteral("Tombola: 1200"));
    auto *model = e.find<QListView>("tombole_view")->model();
    const int first = model->rowCount();
    QVERIFY(first < 1200);
    while (model->canFetchMore(QModelIndex())) {
        model->fetchMore(QModelIndex());
    }
    QCOMPARE(model->rowCount(), 1200);
    QCOMPARE(model->index(1199, 0).data().toString(), QStringLiteral("400.3: chiamata 1"));
    e.call(7);
    QCOMPARE(model->rowCount(), 0);
}

void tst_Serata::aNewGameForgetsTheCalls()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(5);
    e.call(90);
    e.check(QStringLiteral("2.1"));
    e.onNewGame([](QDialog *dialog) {
        QCOMPARE(dialog->findChild<QLabel *>(QStringLiteral("avviso_label"))->text(),
                 QStringLiteral("I numeri chiamati (2) saranno tolti tutti."));
        QCOMPARE(dialog->findChild<QSpinBox *>(QStringLiteral("da_spinBox"))->value(), 1);
        auto *to = dialog->findChild<QSpinBox *>(QStringLiteral("a_spinBox"));
        QCOMPARE(to->value(), 90);
        to->setValue(75);
        dialog->accept();
    });
    e.trigger("actionNuovaPartita");
    QCOMPARE(e.status(), QStringLiteral("Nuova partita, numeri da 1 a 75."));
    QCOMPARE(e.saved(), Numbers{});
    QCOMPARE(e.text("ultimo_label"), QString());
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 75"));
    QCOMPARE(e.board()->model()->rowCount(), 8);
    QVERIFY(!e.isMarked(5));
    QCOMPARE(e.card(), QStringLiteral("5 15 25 / 6 16 26"));
    e.call(76);
    QCOMPARE(e.status(), QStringLiteral("Il numero 76 non è in gioco: i numeri vanno da 1 a 75!"));
    QVERIFY(e.openAgain(*fourCards()));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 90")); // no call: a new evening
}

void tst_Serata::aNewGameThatIsCancelledChangesNothing()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(5);
    e.onNewGame([](QDialog *dialog) {
        dialog->findChild<QSpinBox *>(QStringLiteral("a_spinBox"))->setValue(75);
        dialog->reject();
    });
    e.trigger("actionNuovaPartita");
    QCOMPARE(e.saved(), (Numbers{5}));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 1 di 90"));
}

void tst_Serata::aNewGameThatCannotBeSavedChangesNothing()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(5);
    e.onNewGame([](QDialog *dialog) { dialog->accept(); });
    e.boxes.expectBox(title, QStringLiteral("La partita non si può cominciare."), QMessageBox::Ok,
                      [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    {
        const FileFaults faults(e.folder.path(QString()), FileFaults::Calls::Changes, 1,
                                FileFaults::Effect::LastingError);
        e.trigger("actionNuovaPartita");
    }
    QVERIFY(e.isMarked(5));
    QCOMPARE(e.saved(), (Numbers{5}));
}

void tst_Serata::theRangeOfANewGameIsNeverUpsideDown()
{
    Evening e;
    QVERIFY(e.openSet());
    e.onNewGame([](QDialog *dialog) {
        QVERIFY(!dialog->findChild<QLabel *>(QStringLiteral("avviso_label"))->isVisible());
        auto *from = dialog->findChild<QSpinBox *>(QStringLiteral("da_spinBox"));
        auto *to = dialog->findChild<QSpinBox *>(QStringLiteral("a_spinBox"));
        QCOMPARE(from->minimum(), 0);
        QCOMPARE(to->maximum(), 999999);
        from->setValue(200);
        QCOMPARE(to->value(), 200);
        to->setValue(100);
        QCOMPARE(to->value(), 200);
        dialog->accept();
    });
    e.trigger("actionNuovaPartita");
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 1"));
}

void tst_Serata::theScreenIsFilledAndLeft()
{
    Evening e;
    QVERIFY(e.openSet());
    QTest::keyClick(e.window.get(), Qt::Key_F11);
    QVERIFY(e.window->isFullScreen());
    QTest::keyClick(e.find<QLineEdit>("numero_edit"), Qt::Key_F11);
    QVERIFY(!e.window->isFullScreen());
    auto *command = e.find<QAction>("actionSchermoIntero");
    QVERIFY(!command->isChecked());
    e.window->showFullScreen(); // by other ways than the command
    QVERIFY(command->isChecked());
    e.window->showNormal();
    QVERIFY(!command->isChecked());
    QTest::keyClick(e.window.get(), Qt::Key_F11);
    QVERIFY(e.window->isFullScreen());
}

void tst_Serata::aCallThatCannotBeSavedIsNotShown()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.boxes.expectBox(title, QStringLiteral("La chiamata non si può salvare, nulla è cambiato."), QMessageBox::Ok,
                      [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    {
        const FileFaults faults(e.folder.path(QString()), FileFaults::Calls::Changes, 1,
                                FileFaults::Effect::LastingError);
        e.click(34);
    }
    QVERIFY(!e.isMarked(34));
    QCOMPARE(e.text("ultimo_label"), QStringLiteral("7"));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 1 di 90"));
    e.click(34);
    QVERIFY(e.isMarked(34));
    QCOMPARE(e.saved(), (Numbers{7, 34}));
}

void tst_Serata::whatHappensToTheSetChangesNothing()
{
    Evening e;
    auto set = fourCards();
    QVERIFY(e.openSet(*set));
    set->pagine[0]->blocchi[0].righe[0].celle[0].numero = 77;
    set->deletePage(1);
    set.reset();
    e.check(QStringLiteral("1.1"));
    QCOMPARE(e.card(), QStringLiteral("1 - 21 / 2 12 jolly"));
    e.check(QStringLiteral("2.2"));
    QCOMPARE(e.card(), QStringLiteral("1 11 21 / - jolly immagine"));
}

// While games begin, numbers are called and the lists grow.
void tst_Serata::boardAndListsAreSoundModels()
{
    Evening e;
    const Cartella many(400, 3, 1, 1);
    for (Pagina *pagina : many.pagine) {
        for (Blocco &blocco : *pagina) {
            blocco = blockOf(made({1, 1}, {QStringLiteral("7")}));
        }
    }
    QVERIFY(e.openSet(many));
    using Tester = QAbstractItemModelTester;
    const Tester board(e.board()->model(), Tester::FailureReportingMode::QtTest);
    const Tester tombole(e.find<QListView>("tombole_view")->model(), Tester::FailureReportingMode::QtTest);
    const Tester quasi(e.find<QListView>("quasi_view")->model(), Tester::FailureReportingMode::QtTest);
    e.call(7);
    auto *model = e.find<QListView>("tombole_view")->model();
    QCOMPARE(model->rowCount(), 1200); // the tester fetches all of them
    model->fetchMore(QModelIndex());
    model->fetchMore(model->index(0, 0)); // an entry has none of its own
    QVERIFY(!model->canFetchMore(model->index(0, 0)));
    QCOMPARE(model->rowCount(), 1200);
    e.onNewGame([](QDialog *dialog) { dialog->accept(); });
    e.trigger("actionNuovaPartita");
    QCOMPARE(e.board()->model()->rowCount(), 9);
    TabelloneModel empty;
    const Tester withoutAGame(&empty, Tester::FailureReportingMode::QtTest);
    QCOMPARE(empty.rowCount(), 0);
    QVERIFY(!empty.numberAt(e.board()->model()->index(0, 0)));
}

void tst_Serata::everythingHasANameForScreenReaders()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.call(2);
    e.check(QStringLiteral("1.1"));
    for (const char *name : {"numero_edit", "scheda_edit", "estrai_button", "controlla_button", "tabellone",
                             "scheda_table", "vincite_list", "tombole_view", "quasi_view", "ultimo_label"}) {
        auto *interface = QAccessible::queryAccessibleInterface(e.find<QWidget>(name));
        QVERIFY2(!interface->text(QAccessible::Name).isEmpty(), name);
    }
    QCOMPARE(e.place(7).data(Qt::AccessibleTextRole).toString(), QStringLiteral("7, chiamato"));
    QCOMPARE(e.place(8).data(Qt::AccessibleTextRole).toString(), QStringLiteral("8, non chiamato"));
    auto *board = QAccessible::queryAccessibleInterface(e.board());
    QCOMPARE(board->tableInterface()->cellAt(0, 6)->text(QAccessible::Name), QStringLiteral("7, chiamato"));
    auto *card = QAccessible::queryAccessibleInterface(e.find<QWidget>("scheda_table"));
    QCOMPARE(card->tableInterface()->cellAt(1, 0)->text(QAccessible::Name), QStringLiteral("2, chiamato"));
    QCOMPARE(card->tableInterface()->cellAt(1, 2)->text(QAccessible::Name), QStringLiteral("jolly"));
}

void tst_Serata::calledNumbersAreReadableInAnyPalette_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("dark") << QColor(25, 25, 25) << QColor(240, 240, 240);
}

void tst_Serata::calledNumbersAreReadableInAnyPalette()
{
    QFETCH(QColor, base);
    QFETCH(QColor, text);
    Evening e;
    QVERIFY(e.openSet());
    e.call(8);
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    e.board()->setPalette(palette);
    const QImage board = e.board()->viewport()->grab().toImage();
    const auto shares = [&board, &base, &text](const QRect &cell) {
        int ground = 0;
        int ink = 0;
        for (int y = cell.top() + 4; y < cell.bottom() - 4; ++y) {
            for (int x = cell.left() + 4; x < cell.right() - 4; ++x) {
                ground += board.pixelColor(x, y) == base ? 1 : 0;
                ink += board.pixelColor(x, y) == text ? 1 : 0;
            }
        }
        return std::make_pair(ground, ink);
    };
    const auto [ground, ink] = shares(e.board()->visualRect(e.place(9)));
    QVERIFY(ink > 10 && ground > 3 * ink);
    const auto [inkOfCalled, groundOfCalled] = shares(e.board()->visualRect(e.place(8)));
    QVERIFY(inkOfCalled > 10 && groundOfCalled > inkOfCalled);
}

void tst_Serata::theEveningIsPlayedByKeysAlone()
{
    Evening e;
    QVERIFY(e.openSet());
    const auto key = [](Qt::Key code) { QTest::keyClick(QApplication::focusWidget(), code); };
    key(Qt::Key_1);
    key(Qt::Key_Return);
    key(Qt::Key_F3);
    QVERIFY(e.find<QLineEdit>("scheda_edit")->hasFocus());
    key(Qt::Key_2);
    key(Qt::Key_Period);
    key(Qt::Key_2);
    key(Qt::Key_Return);
    QCOMPARE(e.card(), QStringLiteral("1* 11 21 / - jolly immagine"));
    key(Qt::Key_F2);
    QVERIFY(e.find<QLineEdit>("numero_edit")->hasFocus());
    key(Qt::Key_F5);
    QCOMPARE(e.saved().size(), size_t(2));

    QSet<QWidget *> visited;
    for (int i = 0; i < 12; ++i) {
        visited.insert(QApplication::focusWidget());
        key(Qt::Key_Tab);
    }
    for (const char *name : {"numero_edit", "estrai_button", "scheda_edit", "controlla_button", "scheda_table",
                             "vincite_list", "tombole_view", "quasi_view", "tabellone"}) {
        QVERIFY2(visited.contains(e.find<QWidget>(name)), name);
    }
}

QTEST_MAIN(tst_Serata)
#include "tst_Serata.moc"
