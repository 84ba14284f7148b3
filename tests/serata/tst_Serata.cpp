// SPDX-License-Identifier: MIT
#include "serata/Serata.h"

#include "generation/GUtils.h"
#include "msgarea/MsgArea.h"
#include "serata/CaselleDelegate.h"
#include "serata/MadeCards.h"
#include "serata/NuovaPartita.h"
#include "serata/Registro.h"
#include "serata/SharedCalls.h"
#include "serata/Tabellone.h"
#include "settings/Config.h"
#include "support/BoxScript.h"
#include "support/FileFaults.h"
#include "support/OrdinaryUser.h"
#include "support/ScratchFolder.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

#include <cerrno>
#include <cstdio>
#include <functional>
#include <numeric>
#include <sys/stat.h>

namespace {
using Numbers = std::vector<quint32>;
const QString evening = QStringLiteral("Serata in corso.csv");
const QString journal = QStringLiteral("Serata in corso.csv.chiamate");
const QString title = QStringLiteral("Quintra - Serata");

// Two pages of two cards of two rows.
std::unique_ptr<Cartella> fourCards()
{
    auto set = std::make_unique<Cartella>(quint16(2), U8(2), U8(2), U8(3));
    const QStringList rows = {QStringLiteral("1 - 21"),  QStringLiteral("2 12 jolly"), QStringLiteral("3 * 23"),
                              QStringLiteral("- - 90"),  QStringLiteral("5 15 25"),    QStringLiteral("6 16 26"),
                              QStringLiteral("1 11 21"), QStringLiteral("- jolly *")};
    int row = 0;
    for (Pagina *pagina : set->pagine) {
        for (Blocco &blocco : *pagina) {
            blocco = blockOf(made({1, 1}, rows.mid(row, 2)));
            row += 2;
        }
    }
    return set;
}

// A window of an evening in a folder of its own, which is also the save folder.
class Evening final
{
public:
    Evening()
        : config((folder.writePicture(QStringLiteral("default.png"), QSize(8, 6), Qt::red), qApp))
    {
        config.defaultSaveDir = folder.path(QString());
        seedRandom(1);
    }
    ~Evening()
    {
        window.reset();
        QCOMPARE(boxes.problems(), QStringList());
    }
    Q_DISABLE_COPY_MOVE(Evening)

    bool openSet(const Cartella &set, Intervallo numbers = {1, 90})
    {
        window = std::make_unique<Serata>();
        const bool opened = window->openSet(set, numbers);
        window->show();
        return opened && QTest::qWaitForWindowActive(window.get());
    }
    bool openSet() { return openSet(*fourCards()); }
    // Another window on the same folder, after the first one is gone.
    bool openAgain(const Cartella &set)
    {
        window.reset();
        return openSet(set);
    }

    template<class Widget>
    Widget *find(const char *name) const
    {
        auto *found = window->findChild<Widget *>(QString::fromLatin1(name));
        if (found == nullptr) {
            qFatal("no widget %s", name);
        }
        return found;
    }
    void press(const char *button) const { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }
    void trigger(const char *action) const { find<QAction>(action)->trigger(); }
    void type(const char *edit, const QString &text) const
    {
        auto *line = find<QLineEdit>(edit);
        line->clear();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
    }
    void call(quint32 number) const { type("numero_edit", QString::number(number)); }
    void check(const QString &card) const { type("scheda_edit", card); }

    // What to do with the dialog of a new game, which comes next.
    static void onNewGame(const std::function<void(QDialog *)> &use)
    {
        QTimer::singleShot(0, [use]() {
            auto *dialog = qobject_cast<NuovaPartita *>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Quintra - Nuova partita"));
            use(dialog);
        });
    }

    Tabellone *board() const { return find<Tabellone>("tabellone"); }
    QModelIndex place(quint32 number) const
    {
        const auto *model = board()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 0; column < model->columnCount(); ++column) {
                const QModelIndex index = model->index(row, column);
                if (index.data().isValid() && index.data().toUInt() == number) {
                    return index;
                }
            }
        }
        return QModelIndex();
    }
    void click(quint32 number) const
    {
        QTest::mouseClick(board()->viewport(), Qt::LeftButton, {}, board()->visualRect(place(number)).center());
    }
    bool isMarked(quint32 number) const { return place(number).data(CaselleDelegate::CalledRole).toBool(); }

    QString text(const char *label) const { return find<QLabel>(label)->text(); }
    QString status() const { return window->statusBar()->currentMessage(); }
    QStringList prizes() const
    {
        QStringList lines;
        const auto *list = find<QListWidget>("vincite_list");
        for (int i = 0; i < list->count(); ++i) {
            lines << list->item(i)->text();
        }
        return lines;
    }
    QStringList entries(const char *view) const
    {
        QStringList lines;
        const auto *model = find<QListView>(view)->model();
        for (int i = 0; i < model->rowCount(); ++i) {
            lines << model->index(i, 0).data().toString();
        }
        return lines;
    }
    // The card shown, as "1* - 21 / 2 12* jolly": called numbers have a star.
    QString card() const
    {
        const auto *table = find<QTableWidget>("scheda_table");
        QStringList rows;
        for (int r = 0; r < table->rowCount(); ++r) {
            QStringList cells;
            for (int c = 0; c < table->columnCount(); ++c) {
                const QTableWidgetItem *item = table->item(r, c);
                const bool called = item->data(CaselleDelegate::CalledRole).toBool();
                cells << (item->text().isEmpty() ? QStringLiteral("-") : item->text()) +
                             (called ? QStringLiteral("*") : QString());
            }
            rows << cells.join(QLatin1Char(' '));
        }
        return rows.join(QStringLiteral(" / "));
    }
    Numbers saved(const QString &fileName = journal) const { return Diario::read(folder.path(fileName)).chiamate; }
    QStringList files() const { return QDir().entryList({QStringLiteral("*.csv*")}, QDir::Files, QDir::Name); }

    ScratchFolder folder;
    CurrentConfig config;
    BoxScript boxes;
    std::unique_ptr<Serata> window;
};
} // namespace

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

    void theEveningOfASetIsSavedInTheSaveFolder();
    void theEveningGoesOnWhereItWas();
    void callsThatCannotBeReadAreToldOf();
    void aJournalThatCannotBeReadIsLeftAlone_data();
    void aJournalThatCannotBeReadIsLeftAlone();
    void aJournalWithoutAGameIsPutAside_data();
    void aJournalWithoutAGameIsPutAside();
    void theRegisterOfTheEveningIsThereAgain_data();
    void theRegisterOfTheEveningIsThereAgain();
    void withoutItsRegisterNoEveningGoesOn();
    void aSetThatDoesNotFitTheMemoryIsAskedAbout();
    void theRangeIsThatOfTheParametersAndOfTheCards();
    void anEveningOfOtherCardsGoesOnIfWanted();
    void anEveningOfOtherCardsIsPutAsideIfNotWanted();
    void anEveningThatCannotBePutAsideIsLeftAlone();
    void anEveningOfOtherCardsIsLeftAloneWithoutAnAnswer();
    void anEveningThatIsPlayedElsewhereIsNotPutAside();
    void withoutASetTheLastEveningGoesOn();
    void withoutASetAndAnEveningTheBoardIsThere();
    void aFolderThatTakesNothingIsReplacedByAnother();
    void withoutAFolderNoWindowOpens();
    void withoutARegisterNoWindowOpens();
    void boxesStandBeforeWindowsThatAreShown();
    void anEveningIsOpenInOneWindowOfTheComputer();
    void theWindowThatIsOpenIsShownAgain();

    void aRegisterIsOpened();
    void itStaysOpenWhileItAsks();
    void theEveningOfARegisterIsBesideIt();
    void aRegisterWithOddLinesIsUsedAsFarAsItGoes();
    void aRegisterWithoutCardsIsRefused();
    void aRegisterThatCannotBeReadIsRefused();
    void aRegisterThatIsNoFileIsRefused_data();
    void aRegisterThatIsNoFileIsRefused();
    void aRegisterIsUsedAsFarAsItCanBeRead();
    void theReportOfARegisterStandsBeforeItsWindow();
    void theRegisterThatIsOpenStaysOpen();
    void aChangedRegisterAsksAboutItsCalls();

    void callsOfARegisterThatCannotBePutAsideStay();
    void boardAndListsAreSoundModels();
    void everythingHasANameForScreenReaders();
    void calledNumbersAreReadableInAnyPalette_data();
    void calledNumbersAreReadableInAnyPalette();
    void theEveningIsPlayedByKeysAlone();
    void killedAtAnyMomentTheEveningGoesOn();
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

void tst_Serata::theEveningOfASetIsSavedInTheSaveFolder()
{
    Evening e;
    const auto set = fourCards();
    QVERIFY(e.openSet(*set));
    QCOMPARE(e.files(), (QStringList{evening, journal}));
    QFile file(evening);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(Registro::read(file).schede == schedeOf(*set));
    QCOMPARE(e.status(), QStringLiteral("Schede: 4. Numeri da 1 a 90. Chiamati: 0."));
}

void tst_Serata::theEveningGoesOnWhereItWas()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.call(1);
    e.call(7);
    e.call(21);
    QVERIFY(e.openAgain(*fourCards()));
    QCOMPARE(e.text("ultimo_label"), QStringLiteral("21"));
    QCOMPARE(e.text("precedenti_label"), QStringLiteral("1"));
    QVERIFY(e.isMarked(1) && e.isMarked(21) && !e.isMarked(7));
    QCOMPARE(e.entries("quasi_view"), QStringList(QStringLiteral("2.2: manca il 11")));
    QCOMPARE(e.status(), QStringLiteral("Schede: 4. Numeri da 1 a 90. Chiamati: 2."));
    e.call(11);
    QCOMPARE(e.saved(), (Numbers{1, 21, 11}));
}

void tst_Serata::callsThatCannotBeReadAreToldOf()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.folder.write(journal, e.folder.read(journal) + "+8\nx\n+8\n+9");
    QVERIFY(e.openAgain(*fourCards()));
    QCOMPARE(e.status(), QStringLiteral("Righe illeggibili nel file delle chiamate: 2!"));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 2 di 90"));
    QVERIFY(e.isMarked(7) && e.isMarked(8) && !e.isMarked(9));
}

void tst_Serata::aJournalThatCannotBeReadIsLeftAlone_data()
{
    QTest::addColumn<bool>("ofARegister");
    QTest::newRow("of a set") << false;
    QTest::newRow("of a register") << true;
}

void tst_Serata::aJournalThatCannotBeReadIsLeftAlone()
{
    QFETCH(bool, ofARegister);
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray calls = e.folder.read(journal);
    e.window = std::make_unique<Serata>();
    e.boxes.expectBox(title, QStringLiteral("Il file delle chiamate non si può leggere."), QMessageBox::Ok,
                      [](QMessageBox *box) { QCOMPARE(box->informativeText(), QStringLiteral("Input/output error")); });
    {
        const FileFaults faults(e.folder.path(journal), FileFaults::Calls::Reads, 1, FileFaults::Effect::Error);
        QVERIFY(
            !(ofARegister ? e.window->openRegister(e.folder.path(evening)) : e.window->openSet(*fourCards(), {1, 90})));
    }
    QCOMPARE(e.folder.read(journal), calls);
    QCOMPARE(e.files(), (QStringList{evening, journal}));
    QVERIFY(e.openAgain(*fourCards()));
    QVERIFY(e.isMarked(7));
}

void tst_Serata::aJournalWithoutAGameIsPutAside_data()
{
    aJournalThatCannotBeReadIsLeftAlone_data();
}

void tst_Serata::aJournalWithoutAGameIsPutAside()
{
    QFETCH(bool, ofARegister);
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.window = std::make_unique<Serata>();
    const QByteArray calls = e.folder.read(journal).replace("numeri 1", "numeri l");
    e.folder.write(journal, calls);
    e.boxes.expectBox(title, QMessageBox::Ok, [](QMessageBox *box) {
        const QStringList lines = box->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.first(), QStringLiteral("Le chiamate di prima sono illeggibili e sono state messe da parte:"));
        QVERIFY(QFile::exists(lines.last()));
    });
    QVERIFY(ofARegister ? e.window->openRegister(e.folder.path(evening)) : e.window->openSet(*fourCards(), {1, 90}));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 90"));
    const QStringList aside = QDir().entryList({QStringLiteral("Serata in corso 20*.csv.chiamate")}, QDir::Files);
    QCOMPARE(aside.size(), 1);
    QCOMPARE(e.folder.read(aside.first()), calls);
}

void tst_Serata::theRegisterOfTheEveningIsThereAgain_data()
{
    QTest::addColumn<QByteArray>("content"); // null: it was deleted
    QTest::newRow("deleted") << QByteArray();
    QTest::newRow("emptied") << QByteArray("");
    QTest::newRow("changed") << QByteArray("1;1;|;77\n");
}

void tst_Serata::theRegisterOfTheEveningIsThereAgain()
{
    QFETCH(QByteArray, content);
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray cards = e.folder.read(evening);
    if (content.isNull()) {
        QVERIFY(QFile::remove(evening));
    } else {
        e.folder.write(evening, content);
    }
    QVERIFY(e.openAgain(*fourCards()));
    QVERIFY(e.isMarked(7));
    QCOMPARE(e.folder.read(evening), cards);
}

void tst_Serata::withoutItsRegisterNoEveningGoesOn()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.window = std::make_unique<Serata>();
    QVERIFY(QFile::remove(evening));
    e.boxes.expectBox(title, QStringLiteral("La serata non può continuare."), QMessageBox::Ok,
                      [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    {
        const FileFaults faults(e.folder.path(QString()), FileFaults::Calls::Changes, 1,
                                FileFaults::Effect::LastingError);
        QVERIFY(!e.window->openSet(*fourCards(), {1, 90}));
    }
    QCOMPARE(e.saved(), (Numbers{7}));
}

void tst_Serata::aSetThatDoesNotFitTheMemoryIsAskedAbout()
{
    Evening e;
    Cartella set(1, 255, 255, 1);
    for (Blocco &blocco : *set.pagine[0]) {
        for (Riga &riga : blocco) {
            riga.nCelle = 255; // which nobody looks at
        }
    }
    set.pagine.fill(set.pagine[0], 3000);
    e.window = std::make_unique<Serata>();
    e.boxes.expectBox(title, QMessageBox::No, [](QMessageBox *box) {
        QVERIFY(box->text().startsWith(QStringLiteral("La memoria libera potrebbe non bastare")));
    });
    QVERIFY(!e.window->openSet(set, {1, 90}));
    QCOMPARE(e.files(), QStringList());
    set.pagine.resize(1);
}

void tst_Serata::theRangeIsThatOfTheParametersAndOfTheCards()
{
    Evening e;
    e.window = std::make_unique<Serata>();
    QVERIFY(e.window->openSet(*fourCards(), {10, 50}));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 90"));
    e.window = std::make_unique<Serata>();
    QVERIFY(e.window->openSet(*fourCards(), {0, 100}));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 101"));
    e.window = std::make_unique<Serata>();
    QVERIFY(e.window->openSet(Cartella(), {1, 75}));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 75"));
    e.window.reset();
    QWidget parent;
    Serata::open(&parent, Cartella(), 75, 1); // parameters that contradict each other
    QCOMPARE(parent.findChild<QLabel *>(QStringLiteral("chiamate_label"))->text(),
             QStringLiteral("Numeri chiamati: 0 di 75"));
}

void tst_Serata::anEveningOfOtherCardsGoesOnIfWanted()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const Cartella other(1, 1, 3, 9);
    e.boxes.expectBox(title,
                      QStringLiteral("In %1 c'è una serata con altre schede (numeri chiamati: 1).\n\nContinuare "
                                     "quella? Con No ne comincia una nuova, e quella viene messa da parte.")
                          .arg(e.folder.path(journal)),
                      QMessageBox::Yes);
    QVERIFY(e.openAgain(other));
    QVERIFY(e.isMarked(7));
    e.check(QStringLiteral("2.2"));
    QCOMPARE(e.card(), QStringLiteral("1 11 21 / - jolly immagine"));
    QCOMPARE(e.files(), (QStringList{evening, journal}));
}

void tst_Serata::anEveningOfOtherCardsIsPutAsideIfNotWanted()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray cards = e.folder.read(evening);
    const QByteArray calls = e.folder.read(journal);
    const Cartella other(1, 1, 3, 9);
    e.boxes.expectBox(title,
                      QStringLiteral("In %1 c'è una serata con altre schede (numeri chiamati: 1).\n\nContinuare "
                                     "quella? Con No ne comincia una nuova, e quella viene messa da parte.")
                          .arg(e.folder.path(journal)),
                      QMessageBox::No);
    QVERIFY(e.openAgain(other));
    QVERIFY(!e.isMarked(7));
    QCOMPARE(e.saved(), Numbers{});
    const QStringList files = e.files();
    QCOMPARE(files.size(), 4);
    QCOMPARE(e.folder.read(files[0]), cards);
    QCOMPARE(e.folder.read(files[1]), calls);
    QCOMPARE(files.mid(2), (QStringList{evening, journal}));
    QVERIFY(e.window->openRegister(e.folder.path(files[0])));
    QVERIFY(e.isMarked(7));
}

void tst_Serata::anEveningThatCannotBePutAsideIsLeftAlone()
{
    Evening e;
    const OrdinaryUser user(e.folder);
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray calls = e.folder.read(journal);
    const QString folder = e.folder.path(QString());
    e.boxes.expectBox(title, QMessageBox::No, [&](QMessageBox *) {
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    });
    e.boxes.expectBox(title, QStringLiteral("La serata di prima non si può mettere da parte."), QMessageBox::Ok,
                      QMessageBox::Critical);
    const bool opened = e.openAgain(Cartella(1, 1, 3, 9));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(!opened);
    QCOMPARE(e.folder.read(journal), calls);
    QCOMPARE(e.files(), (QStringList{evening, journal}));
}

void tst_Serata::anEveningOfOtherCardsIsLeftAloneWithoutAnAnswer()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray calls = e.folder.read(journal);
    const Cartella other(1, 1, 3, 9);
    e.boxes.expectBox(title,
                      QStringLiteral("In %1 c'è una serata con altre schede (numeri chiamati: 1).\n\nContinuare "
                                     "quella? Con No ne comincia una nuova, e quella viene messa da parte.")
                          .arg(e.folder.path(journal)),
                      QMessageBox::Escape);
    QVERIFY(!e.openAgain(other));
    QCOMPARE(e.folder.read(journal), calls);
    QCOMPARE(e.files(), (QStringList{evening, journal}));
}

void tst_Serata::anEveningThatIsPlayedElsewhereIsNotPutAside()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.boxes.expectBox(title, QMessageBox::No, [](QMessageBox *) {});
    e.boxes.expectBox(title, QStringLiteral("La serata di prima non si può mettere da parte."), QMessageBox::Ok,
                      [](QMessageBox *box) {
                          QCOMPARE(box->informativeText(),
                                   QStringLiteral("La serata è già aperta in un'altra finestra."));
                      });
    Serata other;
    QVERIFY(!other.openSet(Cartella(1, 1, 3, 9), {1, 90}));
    QCOMPARE(e.files(), (QStringList{evening, journal}));
    e.call(8);
    QCOMPARE(e.saved(), (Numbers{7, 8}));
}

void tst_Serata::withoutASetTheLastEveningGoesOn()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    QVERIFY(e.openAgain(Cartella()));
    QVERIFY(e.isMarked(7));
    e.check(QStringLiteral("2.1"));
    QCOMPARE(e.card(), QStringLiteral("5 15 25 / 6 16 26"));
}

void tst_Serata::withoutASetAndAnEveningTheBoardIsThere()
{
    Evening e;
    QVERIFY(e.openSet(Cartella()));
    e.call(7);
    QVERIFY(e.isMarked(7));
    e.check(QStringLiteral("1.1"));
    QCOMPARE(e.status(), QStringLiteral("La scheda 1.1 non esiste!"));
    QVERIFY(e.openAgain(Cartella()));
    QVERIFY(e.isMarked(7));
}

void tst_Serata::aFolderThatTakesNothingIsReplacedByAnother()
{
    Evening e;
    const QString missing = e.folder.path(QStringLiteral("missing"));
    e.config.defaultSaveDir = missing;
    e.boxes.expectBox(title, QStringLiteral("La serata non si può salvare in %1.").arg(missing), QMessageBox::Ok,
                      [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    e.boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), e.folder.path(QString()));
    QVERIFY(e.openSet());
    QCOMPARE(e.files(), (QStringList{evening, journal}));
    QCOMPARE(QDir(e.config.defaultSaveDir), QDir(e.folder.path(QString())));
}

void tst_Serata::withoutAFolderNoWindowOpens()
{
    Evening e;
    e.config.defaultSaveDir = e.folder.path(QStringLiteral("missing"));
    e.boxes.expectBox(title, QStringLiteral("La serata non si può salvare in %1.").arg(e.config.defaultSaveDir),
                      QMessageBox::Ok);
    e.boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), QString());
    QWidget parent;
    Serata::open(&parent, *fourCards(), 1, 90);
    QVERIFY(parent.findChild<Serata *>() == nullptr);
}

void tst_Serata::withoutARegisterNoWindowOpens()
{
    Evening e;
    QVERIFY(QDir().mkdir(e.folder.path(evening)));
    e.boxes.expectBox(title, QStringLiteral("La serata non si può salvare in %1.").arg(e.config.defaultSaveDir),
                      QMessageBox::Ok, [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    e.boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), QString());
    QVERIFY(!e.openSet());
    QVERIFY(QFileInfo(e.folder.path(evening)).isDir());
}

void tst_Serata::boxesStandBeforeWindowsThatAreShown()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.window.reset();
    QWidget parent;
    const auto standsBefore = [](const QWidget *window) {
        return [window](QMessageBox *box) { QCOMPARE(box->parentWidget(), window); };
    };
    e.boxes.expectBox(title, QMessageBox::Escape, standsBefore(&parent)); // about the other cards
    Serata::open(&parent, Cartella(1, 1, 3, 9), 1, 90);
    e.config.defaultSaveDir = e.folder.path(QStringLiteral("missing"));
    e.boxes.expectBox(title, QMessageBox::Ok, standsBefore(&parent)); // nothing can be saved
    e.boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), QString(),
                             [&parent](QWidget *dialog) { QCOMPARE(dialog->parentWidget(), &parent); });
    Serata::open(&parent, *fourCards(), 1, 90);
    e.config.defaultSaveDir = e.folder.path(QString());
    Serata::open(&parent, *fourCards(), 1, 90);
    auto *window = parent.findChild<Serata *>();
    e.boxes.expectBox(title, QMessageBox::Ok, standsBefore(window)); // it is shown now
    QVERIFY(!window->openRegister(QStringLiteral("missing.csv")));
}

void tst_Serata::anEveningIsOpenInOneWindowOfTheComputer()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray cards = e.folder.read(evening);
    e.boxes.expectBox(title, QStringLiteral("La serata non può continuare."), QMessageBox::Ok, [](QMessageBox *box) {
        QCOMPARE(box->informativeText(), QStringLiteral("La serata è già aperta in un'altra finestra."));
    });
    QWidget parent;
    Serata::open(&parent, *fourCards(), 1, 90);
    QVERIFY(parent.findChild<Serata *>() == nullptr);

    e.call(7); // now it has no calls, but is still in use
    e.boxes.expectBox(title, QStringLiteral("La serata non si può salvare in %1.").arg(e.config.defaultSaveDir),
                      QMessageBox::Ok);
    e.boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), QString());
    Serata::open(&parent, Cartella(1, 1, 1), 1, 90);
    QVERIFY(parent.findChild<Serata *>() == nullptr);
    QCOMPARE(e.folder.read(evening), cards);
    e.call(8);
    QCOMPARE(e.saved(), (Numbers{8}));
}

void tst_Serata::theWindowThatIsOpenIsShownAgain()
{
    Evening e;
    QWidget parent;
    Serata::open(&parent, *fourCards(), 1, 90);
    QPointer<Serata> window = parent.findChild<Serata *>();
    QVERIFY(window != nullptr && window->isVisible());
    window->hide();
    Serata::open(&parent, Cartella(1, 1, 1), 1, 90);
    QCOMPARE(parent.findChildren<Serata *>().size(), 1);
    QVERIFY(window->isVisible());
    window->close();
    QTRY_VERIFY(window.isNull());
}

void tst_Serata::aRegisterIsOpened()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.check(QStringLiteral("2.2"));
    e.folder.write(QStringLiteral("natale.csv"), "3;1;|;7;\"a\"\n12;3;|;100;200\n");
    e.boxes.expectFileDialog(QStringLiteral("Apre un registro"), e.folder.path(QStringLiteral("natale.csv")));
    e.trigger("actionApriRegistro");
    QCOMPARE(e.status(), QStringLiteral("Schede: 2. Numeri da 7 a 200. Chiamati: 0."));
    QVERIFY(!e.isMarked(7));
    QCOMPARE(e.text("esito_label"), QStringLiteral("Nessuna scheda"));
    QCOMPARE(e.card(), QString());
    e.check(QStringLiteral("12.3"));
    QCOMPARE(e.card(), QStringLiteral("100 200"));
    e.boxes.expectFileDialog(QStringLiteral("Apre un registro"), QString());
    e.trigger("actionApriRegistro");
    QCOMPARE(e.card(), QStringLiteral("100 200"));
}

void tst_Serata::itStaysOpenWhileItAsks()
{
    Evening e;
    QVERIFY(e.openSet());
    e.boxes.expectFileDialog(QStringLiteral("Apre un registro"), QString(), [&e](QWidget *) {
        e.window->close();
        QVERIFY(e.window->isVisible());
    });
    e.trigger("actionApriRegistro");
    e.window->close();
    QVERIFY(!e.window->isVisible());
}

void tst_Serata::theEveningOfARegisterIsBesideIt()
{
    Evening e;
    QVERIFY(e.openSet());
    QDir().mkdir(QStringLiteral("natale"));
    e.folder.write(QStringLiteral("natale/cards.csv"), "1;1;|;7;9\n");
    QVERIFY(e.window->openRegister(e.folder.path(QStringLiteral("natale/cards.csv"))));
    e.call(7);
    QCOMPARE(e.saved(QStringLiteral("natale/cards.csv.chiamate")), (Numbers{7}));
    QCOMPARE(e.saved(), Numbers{});
    QVERIFY(e.openAgain(*fourCards()));
    QVERIFY(e.window->openRegister(e.folder.path(QStringLiteral("natale/cards.csv"))));
    QVERIFY(e.isMarked(7));
    QCOMPARE(e.entries("quasi_view"), QStringList(QStringLiteral("1.1: manca il 9")));
}

void tst_Serata::aRegisterWithOddLinesIsUsedAsFarAsItGoes()
{
    Evening e;
    QVERIFY(e.openSet());
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7\n1;2;|;x\n1;3;|;9\n1;4;|;1");
    QVERIFY(e.window->openRegister(e.folder.path(QStringLiteral("natale.csv"))));
    QCOMPARE(e.status(), QStringLiteral("Schede: 2. Numeri da 1 a 90. Chiamati: 0."));
    auto *report = e.window->findChild<MsgArea *>();
    QVERIFY(report != nullptr && report->isVisible());
    QCOMPARE(report->findChild<QTextEdit *>(QStringLiteral("textEdit"))->toPlainText(),
             QStringLiteral("Queste righe del registro non sono schede e sono state saltate:\n"
                            "Riga 2: una cella non è né un numero, né un testo tra virgolette, né la parola immagine.\n"
                            "Riga 4: testo troncato (file incompleto)."));
    report->close();
    e.check(QStringLiteral("1.3"));
    QCOMPARE(e.card(), QStringLiteral("9"));
}

void tst_Serata::aRegisterWithoutCardsIsRefused()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.folder.write(QStringLiteral("natale.csv"), "%PDF-1.4\n");
    e.boxes.expectBox(title, QStringLiteral("Il registro non contiene schede."), QMessageBox::Ok, [](QMessageBox *box) {
        QCOMPARE(box->informativeText(),
                 QStringLiteral("Queste righe del registro non sono schede e sono state saltate:\n"
                                "Riga 1: all'inizio non vi sono numeri validi di pagina e di scheda."));
    });
    QVERIFY(!e.window->openRegister(e.folder.path(QStringLiteral("natale.csv"))));
    QVERIFY(e.isMarked(7));
    QCOMPARE(e.files(), (QStringList{evening, journal, QStringLiteral("natale.csv")}));
}

void tst_Serata::aRegisterThatCannotBeReadIsRefused()
{
    Evening e;
    QVERIFY(e.openSet());
    e.boxes.expectBox(title, QStringLiteral("Il registro non si può leggere."), QMessageBox::Ok,
                      [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    QVERIFY(!e.window->openRegister(e.folder.path(QStringLiteral("missing.csv"))));
    e.call(7);
    QCOMPARE(e.saved(), (Numbers{7}));

    const QString folder = e.folder.path(QStringLiteral("closed"));
    const OrdinaryUser user(e.folder);
    e.folder.write(QStringLiteral("closed/natale.csv"), "1;1;|;7\n");
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    e.boxes.expectBox(title, QStringLiteral("La serata non si può salvare accanto al registro."), QMessageBox::Ok);
    QVERIFY(!e.window->openRegister(folder + QStringLiteral("/natale.csv")));
    QVERIFY(e.isMarked(7));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_Serata::aRegisterThatIsNoFileIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a pipe") << QStringLiteral("pipe");
    QTest::newRow("a device without end") << QStringLiteral("/dev/zero");
}

void tst_Serata::aRegisterThatIsNoFileIsRefused()
{
    QFETCH(QString, path);
    Evening e;
    QCOMPARE(mkfifo("pipe", S_IRUSR | S_IWUSR), 0);
    QVERIFY(e.openSet());
    e.boxes.expectBox(title, QStringLiteral("Il registro non si può leggere."), QMessageBox::Ok,
                      [](QMessageBox *box) { QCOMPARE(box->informativeText(), QStringLiteral("Non è un file.")); });
    QVERIFY(!e.window->openRegister(path));
    e.call(7);
    QCOMPARE(e.saved(), (Numbers{7}));
}

void tst_Serata::aRegisterIsUsedAsFarAsItCanBeRead()
{
    Evening e;
    QVERIFY(e.openSet());
    const Cartella many(200, 6, 3, 9); // more than one read
    const QString path = e.folder.path(QStringLiteral("natale.csv"));
    QString reason;
    QVERIFY(Registro::save(path, many, reason));
    const auto open = [&e, &path](int call) {
        const FileFaults faults(path, FileFaults::Calls::Reads, call, FileFaults::Effect::Error);
        return e.window->openRegister(path);
    };
    const auto ioError = [](QMessageBox *box) {
        QCOMPARE(box->informativeText(), QStringLiteral("Input/output error"));
    };
    e.boxes.expectBox(title, QStringLiteral("Il registro non si può leggere."), QMessageBox::Ok, ioError);
    QVERIFY(!open(1));
    e.boxes.expectBox(title, QMessageBox::Ok, [&ioError](QMessageBox *box) {
        QVERIFY(box->text().startsWith(QStringLiteral("Il registro non si può leggere fino in fondo. Schede lette: ")));
        ioError(box);
    });
    QVERIFY(open(2));
    QVERIFY(e.status().startsWith(QStringLiteral("Schede: ")));
    QVERIFY(!e.status().startsWith(QStringLiteral("Schede: 1200.")));
}

void tst_Serata::theReportOfARegisterStandsBeforeItsWindow()
{
    Evening e;
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7\nx\n");
    e.window = std::make_unique<Serata>();
    QVERIFY(e.window->openRegister(e.folder.path(QStringLiteral("natale.csv"))));
    QVERIFY(e.window->isVisible());
    QVERIFY(e.window->findChild<MsgArea *>()->isVisible());
}

void tst_Serata::theRegisterThatIsOpenStaysOpen()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.boxes.expectFileDialog(QStringLiteral("Apre un registro"), e.folder.path(evening));
    e.trigger("actionApriRegistro");
    QCOMPARE(e.status(), QStringLiteral("Questo registro è già aperto."));
    e.call(8);
    QCOMPARE(e.saved(), (Numbers{7, 8}));
}

void tst_Serata::aChangedRegisterAsksAboutItsCalls()
{
    Evening e;
    QVERIFY(e.openSet());
    const QString path = e.folder.path(QStringLiteral("natale.csv"));
    const QString question = QStringLiteral("In %1.chiamate c'è una serata con altre schede (numeri chiamati: 1).\n\n"
                                            "Continuare quella? Con No ne comincia una nuova, e quella viene messa "
                                            "da parte.")
                                 .arg(path);
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7;9\n");
    QVERIFY(e.window->openRegister(path));
    e.call(7);
    QVERIFY(e.openAgain(*fourCards()));
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7;8\n");

    e.boxes.expectBox(title, question, QMessageBox::Cancel);
    QVERIFY(!e.window->openRegister(path));
    QCOMPARE(e.status(), QStringLiteral("Schede: 4. Numeri da 1 a 90. Chiamati: 0."));

    e.boxes.expectBox(title, question, QMessageBox::Yes);
    QVERIFY(e.window->openRegister(path));
    QCOMPARE(e.entries("quasi_view"), QStringList(QStringLiteral("1.1: manca il 8")));

    QVERIFY(e.openAgain(*fourCards()));
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7;10\n");
    e.boxes.expectBox(title, question, QMessageBox::No);
    QVERIFY(e.window->openRegister(path));
    QVERIFY(!e.isMarked(7));
    QCOMPARE(e.files().filter(QStringLiteral("natale 2")).size(), 1); // the calls, with the time
    QCOMPARE(e.folder.read(QStringLiteral("natale.csv")), QByteArray("1;1;|;7;10\n"));
}

void tst_Serata::callsOfARegisterThatCannotBePutAsideStay()
{
    Evening e;
    const OrdinaryUser user(e.folder);
    QVERIFY(e.openSet());
    const QString path = e.folder.path(QStringLiteral("natale.csv"));
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7;9\n");
    e.folder.write(QStringLiteral("natale.csv.chiamate"), "schede 1\nnumeri 1 90\n+7\n");
    const QString folder = e.folder.path(QString());
    e.boxes.expectBox(title, QMessageBox::No, [&](QMessageBox *) {
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    });
    e.boxes.expectBox(title, QStringLiteral("La serata di prima non si può mettere da parte."), QMessageBox::Ok,
                      QMessageBox::Critical);
    const bool opened = e.window->openRegister(path);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(!opened);
    QCOMPARE(e.folder.read(QStringLiteral("natale.csv.chiamate")), QByteArray("schede 1\nnumeri 1 90\n+7\n"));
    QCOMPARE(e.status(), QStringLiteral("Schede: 4. Numeri da 1 a 90. Chiamati: 0."));
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

// The program itself, with its window, killed while numbers are drawn: what was shown is still called.
void tst_Serata::killedAtAnyMomentTheEveningGoesOn()
{
    Evening e;
    Numbers shown;
    int kills = 0;
    for (int life = 1; e.saved().size() < 90; ++life) { // each shows one number at least
        QProcess player;
        player.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--play")});
        QVERIFY(player.waitForReadyRead());
        QTest::qSleep(life);
        player.kill();
        player.waitForFinished();
        QList<QByteArray> lines = player.readAllStandardOutput().split('\n');
        lines.removeLast();
        for (const QByteArray &line : qAsConst(lines)) {
            shown.push_back(line.toUInt());
        }
        kills += player.exitStatus() == QProcess::CrashExit ? 1 : 0;
        const Numbers found = e.saved();
        QVERIFY(containsInOrder(found, shown)); // some numbers reached the disk and no eye
        QVERIFY(found.size() <= shown.size() + size_t(kills));
    }
    QVERIFY(kills > 0);
    QVERIFY(e.openSet());
    QCOMPARE(e.text("ultimo_label").toUInt(), e.saved().back());
}

namespace {
// The child of the last test: draws in the current folder and writes what the window shows.
int play()
{
    CurrentConfig config(qApp);
    config.defaultSaveDir = QDir::currentPath();
    seedRandom(unsigned(QCoreApplication::applicationPid()));
    Serata window;
    if (!window.openSet(*fourCards(), {1, 90})) {
        return 1;
    }
    window.show();
    auto *button = window.findChild<QPushButton *>(QStringLiteral("estrai_button"));
    const auto *last = window.findChild<QLabel *>(QStringLiteral("ultimo_label"));
    const auto *calls = window.findChild<QLabel *>(QStringLiteral("chiamate_label"));
    while (calls->text() != QLatin1String("Numeri chiamati: 90 di 90")) {
        QTest::mouseClick(button, Qt::LeftButton);
        std::printf("%s\n", qPrintable(last->text()));
        std::fflush(stdout);
    }
    return 0;
}
} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    if (application.arguments().contains(QStringLiteral("--play"))) {
        return play();
    }
    tst_Serata test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Serata.moc"
