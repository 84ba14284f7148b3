// SPDX-License-Identifier: MIT
#include "PageWindow.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace {
const QString windowTitle = QStringLiteral("Quintra - Cartella classica");
const QString outOfRange = QStringLiteral("La cartella non contiene la pagina da visualizzare (fuori range)!");
const QString nothingSelected = QStringLiteral("Nessuna selezione");
const QString several = QStringLiteral("Selezione multipla");

// The number shown at the top left tells which page is shown.
void numberPages(const PageWindow &w)
{
    for (int page = 0; page < w.set()->getNumPages(); ++page) {
        w.cell(page, 0, 0).tipo = CELL_NUMERO;
        w.cell(page, 0, 0).numero = static_cast<quint32>(page + 1);
    }
    w.window->loadPagina(0);
}
} // namespace

class tst_MainWindowPageTable final : public QObject
{
    Q_OBJECT

private slots:
    void aPageIsShownRowByRow();
    void thePageIsShownInItsColours();
    void theHeadersAreSetUp();
    void shorterRowsEndInGreyItemsThatCannotBeEdited();
    void anEmptyTextShowsTheConfiguredText();
    void aTextTooLongForItsCellIsReadInItsToolTip();
    void loadingEmptiesTheSelectionPanels();
    void aPageBeyondTheSetIsRefused();
    void theTableTakesTheRoomOfTheOldOne();
    void theGridStaysAsItIs();

    void withoutASetThePageNumberStaysZero();
    void aPageNumberOutsideTheSetIsClamped_data();
    void aPageNumberOutsideTheSetIsClamped();
    void thePageAlreadyShownIsNotLoadedAgain();
    void theWaitCursorIsShownWhileAPageIsLoaded();

    void deletingAPageShowsTheOneBefore_data();
    void deletingAPageShowsTheOneBefore();
    void deletingTheOnlyPageEmptiesTheTable();
    void deletingWithoutPagesIsTold();
    void deletingIsRefusedWhenNoPageIsShown();
    void everyPageCanBeDeleted();
    void aPageAddedAfterTheLastDeletionCanBeShown();

    void aSelectedCellIsDescribed();
    void aCellOfALaterBlockIsCountedInItsBlock();
    void onlyAnImageCellOffersAnImage();
    void theFontIsShownInItself();
    void aHugeFontLeavesThePanelAsItIs();
    void aSelectedFillerIsNoCell();
    void severalCellsOfOneBlockAreDescribed();
    void severalBlocksAreNoBlock();
    void theBlockColoursComeBack();
    void theSelectionTakenBackIsDescribed();
    void theScopeSwitchKeepsTheFontWithoutSelection();
    void cellsAreSelectedByMouse();
    void aKeyboardCanLeaveTheTable();
};

void tst_MainWindowPageTable::aPageIsShownRowByRow()
{
    PageWindow w;
    w.showPages({{2, 3, 4}});
    w.cell(0, 4, 2).tipo = CELL_NUMERO;
    w.cell(0, 4, 2).numero = 77;
    w.cell(0, 0, 1).tipo = CELL_IMMAGINE;
    w.cell(0, 0, 1).coloreSfondo = Qt::yellow;
    w.cell(0, 0, 1).coloreTesto = Qt::blue;
    w.window->loadPagina(0);

    QCOMPARE(w.table()->rowCount(), 6);
    QCOMPARE(w.table()->columnCount(), 4);
    QCOMPARE(w.item(4, 2)->text(), QStringLiteral("77"));
    QCOMPARE(w.item(0, 1)->text(), QStringLiteral("IMG"));
    QCOMPARE(w.item(0, 1)->background().color(), QColor(Qt::yellow));
    QCOMPARE(w.item(0, 1)->foreground().color(), QColor(Qt::blue));
    QCOMPARE(w.item(5, 3)->text(), QString());
    QCOMPARE(w.item(5, 3)->textAlignment(), static_cast<int>(Qt::AlignCenter));
    QCOMPARE(w.item(5, 3)->font(), QTableWidgetItem().font()); // the font of the cell is not applied
    QVERIFY(w.table()->isVisible());
}

void tst_MainWindowPageTable::thePageIsShownInItsColours()
{
    PageWindow w;
    w.showPages({{1, 2, 2}});
    w.page(0)->sfondo = Qt::darkBlue;
    w.window->loadPagina(0);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(w.table()->palette().color(group, QPalette::Base), QColor(Qt::darkBlue));
        QCOMPARE(w.table()->palette().color(group, QPalette::Text), QColor(Qt::white));
    }
}

void tst_MainWindowPageTable::theHeadersAreSetUp()
{
    PageWindow w;
    w.showPages({{1, 2, 2}});
    for (const QHeaderView *header : {w.table()->horizontalHeader(), w.table()->verticalHeader()}) {
        QVERIFY(header->isVisible());
        QVERIFY(header->cascadingSectionResizes());
        QVERIFY(!header->isSortIndicatorShown());
        QVERIFY(!header->stretchLastSection());
    }
    QCOMPARE(w.table()->horizontalHeader()->defaultSectionSize(), 70);
    QCOMPARE(w.table()->horizontalHeader()->minimumSectionSize(), 30);
    QCOMPARE(w.table()->columnWidth(0), 70);
}

void tst_MainWindowPageTable::shorterRowsEndInGreyItemsThatCannotBeEdited()
{
    PageWindow w;
    w.showPages({{1, 3, 9}});
    w.shorten(0, 2, 7);
    w.window->loadPagina(0);

    QCOMPARE(w.table()->columnCount(), 9);
    for (const int column : {7, 8}) {
        QCOMPARE(w.item(2, column)->text(), QStringLiteral("X"));
        QCOMPARE(w.item(2, column)->background().color(), QColor(Qt::lightGray));
        QVERIFY(!w.item(2, column)->flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(w.item(2, column)->flags().testFlag(Qt::ItemIsSelectable));
    }
    QVERIFY(w.item(2, 6)->flags().testFlag(Qt::ItemIsEditable));
}

void tst_MainWindowPageTable::anEmptyTextShowsTheConfiguredText()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.config.defaultCellText = QStringLiteral("Jolly!");
    w.cell(0, 0, 0).tipo = CELL_TESTO;
    w.cell(0, 0, 1).tipo = CELL_TESTO;
    w.cell(0, 0, 1).testo = QStringLiteral("ciao");
    w.window->loadPagina(0);
    QCOMPARE(w.item(0, 0)->text(), QStringLiteral("Jolly!"));
    QCOMPARE(w.item(0, 1)->text(), QStringLiteral("ciao"));
}

void tst_MainWindowPageTable::aTextTooLongForItsCellIsReadInItsToolTip()
{
    PageWindow w;
    w.showPages(1, {1, 1, 2});
    const QString tooLong = QStringLiteral("Tombola & <tombolini> della sagra");
    const auto tipOf = [&w](int column) {
        const QPoint place = w.table()->visualItemRect(w.item(0, column)).center();
        QHelpEvent asked(QEvent::ToolTip, place, w.table()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(w.table()->viewport(), &asked);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    };
    w.cell(0, 0, 0).tipo = CELL_TESTO;
    w.cell(0, 0, 0).testo = tooLong;
    w.cell(0, 0, 1).tipo = CELL_NUMERO;
    w.cell(0, 0, 1).numero = 90;
    w.window->loadPagina(0);
    QCOMPARE(tipOf(1), QString());
    QCOMPARE(tipOf(0), tooLong);
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible()); // it takes its time
    w.table()->setColumnWidth(0, 600);
    QCOMPARE(tipOf(0), QString());
}

void tst_MainWindowPageTable::loadingEmptiesTheSelectionPanels()
{
    PageWindow w;
    w.showPages({{3, 2, 2}});
    w.cell(0, 5, 1).tipo = CELL_IMMAGINE;
    w.check("applica_tutte_celle");
    w.select(5, 1);
    w.find<QWidget>("dimlineaext_spin")->setEnabled(true);
    w.find<QWidget>("dimlineaint_spin")->setEnabled(true);
    w.window->loadPagina(0);

    QCOMPARE(w.shown("blocco_totn"), 3);
    QCOMPARE(w.shown("blocco_n"), 0);
    QCOMPARE(w.shown("cella_riga"), 0);
    QCOMPARE(w.shown("cella_colonna"), 0);
    QCOMPARE(w.text("cella_label"), nothingSelected);
    QCOMPARE(w.text("blocco_label"), nothingSelected);
    QCOMPARE(w.text("cella_type"), QString());
    QCOMPARE(w.text("font_info"), QString());
    QVERIFY(!w.enabled("seleziona_font_button"));
    QVERIFY(!w.enabled("dimlineaext_spin"));
    QVERIFY(!w.enabled("dimlineaint_spin"));
    QVERIFY(!w.enabled("buttSelezionaImmagine"));
}

void tst_MainWindowPageTable::aPageBeyondTheSetIsRefused()
{
    PageWindow w;
    w.showPages(2, {1, 2, 3});
    w.select(0, 0);
    const QTableWidget *before = w.table();
    w.boxes.expectBox(windowTitle, outOfRange, QMessageBox::Ok, QMessageBox::Warning);
    w.boxes.expectBox(windowTitle, outOfRange, QMessageBox::Ok, QMessageBox::Warning);
    w.window->loadPagina(3);
    w.window->loadPagina(2);
    QCOMPARE(w.table(), before);
    QCOMPARE(w.shown("cella_riga"), 1);
}

void tst_MainWindowPageTable::theTableTakesTheRoomOfTheOldOne()
{
    PageWindow w;
    w.showPages(2, {6, 3, 9});
    QTest::qWait(1);
    const QRect room = w.table()->geometry();
    QVERIFY(room.width() > 100);
    w.pageNumber()->setValue(2);
    QTest::qWait(1);
    QCOMPARE(w.table()->geometry(), room);
    QCOMPARE(w.window->findChildren<QTableWidget *>().size(), 1);
}

void tst_MainWindowPageTable::theGridStaysAsItIs()
{
    PageWindow w;
    const auto *grid = w.find<QGridLayout>("gridLayout");
    w.showPages(3, {1, 2, 2});
    for (const int number : {2, 3, 1}) {
        w.pageNumber()->setValue(number);
    }
    w.press("pagina_elimina");
    w.press("pagina_elimina"); // leaves the table of a single page
    QCOMPARE(grid->rowCount(), 1);
    QCOMPARE(grid->columnCount(), 1);
}

void tst_MainWindowPageTable::withoutASetThePageNumberStaysZero()
{
    PageWindow w;
    const StatusLog log(w);
    w.find<QPushButton>("seleziona_font_button")->setEnabled(true);
    w.pageNumber()->setValue(5);
    QCOMPARE(w.pageNumber()->value(), 0);
    QCOMPARE(log.messages(), QStringList{QStringLiteral("Cartella vuota!")});
    QVERIFY(!w.enabled("seleziona_font_button"));
    QCOMPARE(w.pageNumber()->minimum(), 0);
    QCOMPARE(w.pageNumber()->maximum(), 65535);
}

void tst_MainWindowPageTable::aPageNumberOutsideTheSetIsClamped_data()
{
    QTest::addColumn<int>("typed");
    QTest::addColumn<int>("number");

    QTest::newRow("zero") << 0 << 1;
    QTest::newRow("one beyond") << 4 << 3;
    QTest::newRow("far beyond") << 65535 << 3;
    QTest::newRow("inside") << 3 << 3;
}

void tst_MainWindowPageTable::aPageNumberOutsideTheSetIsClamped()
{
    QFETCH(int, typed);
    QFETCH(int, number);
    PageWindow w;
    w.showPages(3, {1, 1, 1});
    numberPages(w);
    w.pageNumber()->setValue(2);
    w.pageNumber()->setValue(typed);
    QCOMPARE(w.pageNumber()->value(), number);
    QCOMPARE(w.item(0, 0)->text(), QString::number(number));
}

void tst_MainWindowPageTable::thePageAlreadyShownIsNotLoadedAgain()
{
    PageWindow w;
    w.showPages(3, {1, 1, 1});
    w.pageNumber()->setValue(3);
    const QTableWidget *before = w.table();
    w.pageNumber()->setValue(9);
    QCOMPARE(w.pageNumber()->value(), 3);
    QCOMPARE(w.table(), before);
    w.pageNumber()->setValue(2);
    QCOMPARE(w.window->findChildren<QTableWidget *>().size(), 1);
}

void tst_MainWindowPageTable::theWaitCursorIsShownWhileAPageIsLoaded()
{
    PageWindow w;
    w.showPages(2, {1, 1, 1});
    Qt::CursorShape loading = Qt::ArrowCursor;
    connect(w.table(), &QObject::destroyed, this, [&]() { loading = w.window->cursor().shape(); });
    w.pageNumber()->setValue(2);
    QCOMPARE(loading, Qt::WaitCursor);
    QCOMPARE(w.window->cursor().shape(), Qt::ArrowCursor);
}

void tst_MainWindowPageTable::deletingAPageShowsTheOneBefore_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("deleted");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("content");

    QTest::newRow("first of three") << 3 << 1 << 1 << QStringLiteral("2");
    QTest::newRow("second of three") << 3 << 2 << 1 << QStringLiteral("1");
    QTest::newRow("last of three") << 3 << 3 << 2 << QStringLiteral("2");
    QTest::newRow("first of two") << 2 << 1 << 1 << QStringLiteral("2");
    QTest::newRow("last of two") << 2 << 2 << 1 << QStringLiteral("1");
}

void tst_MainWindowPageTable::deletingAPageShowsTheOneBefore()
{
    QFETCH(int, pages);
    QFETCH(int, deleted);
    QFETCH(int, number);
    PageWindow w;
    w.showPages(pages, {1, 1, 1});
    numberPages(w);
    w.pageNumber()->setValue(deleted);
    w.press("pagina_elimina");

    QCOMPARE(w.set()->getNumPages(), pages - 1);
    QCOMPARE(w.shown("pagine_lcdNumber"), pages - 1);
    QCOMPARE(w.pageNumber()->value(), number);
    QTEST(w.item(0, 0)->text(), "content");
    QCOMPARE(w.status(), QStringLiteral("Pagina eliminata correttamente."));
    QCOMPARE(w.window->findChildren<QTableWidget *>().size(), 1);
}

void tst_MainWindowPageTable::deletingTheOnlyPageEmptiesTheTable()
{
    PageWindow w;
    w.showPages({{2, 1, 1}});
    w.select(1, 0);
    const StatusLog log(w);
    w.press("pagina_elimina");

    QCOMPARE(log.messages(),
             QStringList({QStringLiteral("Cartella vuota!"), QStringLiteral("Pagina eliminata correttamente.")}));
    QCOMPARE(w.table()->rowCount(), 0);
    QCOMPARE(w.table()->columnCount(), 0);
    QVERIFY(w.table()->isVisible());
    QCOMPARE(w.pageNumber()->value(), 0);
    QCOMPARE(w.shown("pagine_lcdNumber"), 0);
    QCOMPARE(w.shown("blocco_totn"), 0);
    QCOMPARE(w.shown("blocco_n"), 0);
    QCOMPARE(w.text("cella_label"), nothingSelected);
    QVERIFY(!w.enabled("seleziona_font_button"));
}

void tst_MainWindowPageTable::deletingWithoutPagesIsTold()
{
    PageWindow w;
    w.press("pagina_elimina");
    QCOMPARE(w.status(), QStringLiteral("La cartella è vuota!"));
}

void tst_MainWindowPageTable::deletingIsRefusedWhenNoPageIsShown()
{
    PageWindow w;
    w.set()->generateBlock(1, 1, 1); // not generated by the window: the page number stays 0
    w.boxes.expectBox(windowTitle, QStringLiteral("Problema nell'eliminazione della pagina!\nPagina non eliminata."),
                      QMessageBox::Ok, QMessageBox::Warning);
    w.press("pagina_elimina");
    QCOMPARE(w.set()->getNumPages(), 1);
}

void tst_MainWindowPageTable::everyPageCanBeDeleted()
{
    PageWindow w;
    w.showPages(5, {2, 2, 2});
    w.pageNumber()->setValue(3);
    for (int left = 4; left >= 0; --left) {
        w.press("pagina_elimina");
        QCOMPARE(w.set()->getNumPages(), left);
        QCOMPARE(w.table()->rowCount(), left > 0 ? 4 : 0);
    }
    w.press("pagina_elimina");
    QCOMPARE(w.status(), QStringLiteral("La cartella è vuota!"));
}

void tst_MainWindowPageTable::aPageAddedAfterTheLastDeletionCanBeShown()
{
    PageWindow w;
    w.showPages({{1, 1, 1}});
    w.press("pagina_elimina");
    w.set()->generateBlock(1, 2, 2);
    w.set()->generateBlock(1, 3, 3);
    w.pageNumber()->setValue(2);
    QCOMPARE(w.table()->rowCount(), 3);
    w.pageNumber()->setValue(1);
    QCOMPARE(w.table()->rowCount(), 2);
}

void tst_MainWindowPageTable::aSelectedCellIsDescribed()
{
    PageWindow w;
    w.showPages({{2, 3, 4}});
    w.cell(0, 2, 3).tipo = CELL_NUMERO;
    w.select(2, 3);
    QCOMPARE(w.shown("cella_riga"), 3);
    QCOMPARE(w.shown("cella_colonna"), 4);
    QCOMPARE(w.shown("blocco_n"), 1);
    QCOMPARE(w.text("cella_type"), QStringLiteral("(numero)"));
    QCOMPARE(w.text("font_info"), QStringLiteral("Arial 30"));
    QCOMPARE(w.text("cella_label"), QStringLiteral("Cella selezionata"));
    QCOMPARE(w.text("blocco_label"), QStringLiteral("Blocco selezionato"));
    QVERIFY(w.enabled("seleziona_font_button"));
    QVERIFY(!w.enabled("dimlineaext_spin"));
    QVERIFY(!w.enabled("dimlineaint_spin"));
    QVERIFY(w.enabled("colorabloccosfondo"));
}

void tst_MainWindowPageTable::aCellOfALaterBlockIsCountedInItsBlock()
{
    PageWindow w;
    w.showPages({{3, 3, 3}});
    Blocco &first = w.page(0)->blocchi[0]; // now of one row only: the other blocks move up
    first.nRighe = 1;
    w.window->loadPagina(0);
    w.select(1, 0);
    QCOMPARE(w.shown("blocco_n"), 2);
    QCOMPARE(w.shown("cella_riga"), 1);
    w.table()->clearSelection();
    w.select(6, 2);
    QCOMPARE(w.shown("blocco_n"), 3);
    QCOMPARE(w.shown("cella_riga"), 3);
    QCOMPARE(w.shown("cella_colonna"), 3);
}

void tst_MainWindowPageTable::onlyAnImageCellOffersAnImage()
{
    PageWindow w;
    w.showPages({{1, 1, 4}});
    const QStringList names{QStringLiteral("(numero)"), QStringLiteral("(testo)"), QStringLiteral("(immagine)"),
                            QStringLiteral("(vuota)")};
    for (int type = CELL_NUMERO; type <= CELL_VUOTA; ++type) {
        w.cell(0, 0, type).tipo = static_cast<CELL_VALUE>(type);
    }
    for (int type = CELL_NUMERO; type <= CELL_VUOTA; ++type) {
        w.table()->clearSelection();
        w.select(0, type);
        QCOMPARE(w.text("cella_type"), names[type]);
        QCOMPARE(w.enabled("buttSelezionaImmagine"), type == CELL_IMMAGINE);
    }
    w.select(0, CELL_IMMAGINE); // two cells now
    QVERIFY(!w.enabled("buttSelezionaImmagine"));
}

void tst_MainWindowPageTable::theFontIsShownInItself()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.cell(0, 0, 1).font = QFont(QStringLiteral("Liberation Serif"), 14);
    w.select(0, 1);
    QCOMPARE(w.text("font_info"), QStringLiteral("Liberation Serif 14"));
    QCOMPARE(w.find<QLabel>("font_info")->font().family(), QStringLiteral("Liberation Serif"));
    QCOMPARE(w.find<QLabel>("font_info")->font().pointSize(), 14);
    w.select(0, 0);
    QCOMPARE(w.text("font_info"), several);
    QCOMPARE(w.find<QLabel>("font_info")->font(), w.find<QLabel>("cella_type")->font());
}

void tst_MainWindowPageTable::aHugeFontLeavesThePanelAsItIs()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.select(0, 0);
    const auto *group = w.find<QWidget>("cellaGroupBox");
    QTRY_COMPARE(group->height(), group->sizeHint().height());
    const QSize panel = group->size();
    w.cell(0, 0, 1).font = QFont(QStringLiteral("Liberation Serif"), 400);
    w.table()->clearSelection();
    w.select(0, 1);
    QTest::qWait(50);
    QCOMPARE(group->size(), panel);
    QCOMPARE(w.find<QLabel>("font_info")->toolTip(), QStringLiteral("Liberation Serif 400"));
}

void tst_MainWindowPageTable::aSelectedFillerIsNoCell()
{
    PageWindow w;
    w.showPages({{2, 2, 3}});
    w.shorten(0, 3, 1);
    w.window->loadPagina(0);
    w.select(3, 2);
    QCOMPARE(w.shown("blocco_n"), 2);
    QCOMPARE(w.shown("cella_riga"), 2);
    QCOMPARE(w.shown("cella_colonna"), 3);
    QCOMPARE(w.text("cella_type"), QString());
    QCOMPARE(w.text("font_info"), QString());
    QCOMPARE(w.text("cella_label"), QStringLiteral("Cella mancante"));
    QVERIFY(!w.enabled("buttSelezionaImmagine"));
}

void tst_MainWindowPageTable::severalCellsOfOneBlockAreDescribed()
{
    PageWindow w;
    w.showPages({{3, 2, 3}});
    w.select(2, 0);
    w.select(3, 2);
    QCOMPARE(w.shown("cella_riga"), 0);
    QCOMPARE(w.shown("cella_colonna"), 0);
    QCOMPARE(w.text("cella_label"), several);
    QCOMPARE(w.text("font_info"), several);
    QCOMPARE(w.text("cella_type"), QStringLiteral("(2)"));
    QCOMPARE(w.shown("blocco_n"), 2);
    QVERIFY(w.enabled("seleziona_font_button"));
    QVERIFY(w.enabled("colorabloccosfondo"));
    QVERIFY(w.enabled("colorabloccolineaesterna"));
    QVERIFY(w.enabled("colorabloccolineainterna"));
}

void tst_MainWindowPageTable::severalBlocksAreNoBlock()
{
    PageWindow w;
    w.showPages({{3, 2, 3}});
    w.select(2, 0);
    w.select(1, 0);
    QCOMPARE(w.shown("blocco_n"), 0);
    QCOMPARE(w.text("blocco_label"), several);
    QCOMPARE(w.text("cella_type"), QStringLiteral("(2)"));
    QVERIFY(!w.enabled("colorabloccosfondo"));
    QVERIFY(!w.enabled("colorabloccolineaesterna"));
    QVERIFY(!w.enabled("colorabloccolineainterna"));
    QVERIFY(w.enabled("coloracellasfondo"));
}

void tst_MainWindowPageTable::theBlockColoursComeBack()
{
    PageWindow w;
    w.showPages(2, {3, 2, 3});
    w.table()->selectAll();
    QVERIFY(!w.enabled("colorabloccosfondo"));
    w.table()->clearSelection();
    QVERIFY(w.enabled("colorabloccosfondo"));
    w.table()->selectAll();
    w.table()->setCurrentCell(1, 1);
    QVERIFY(w.enabled("colorabloccosfondo"));
    w.table()->selectAll();
    QVERIFY(!w.enabled("colorabloccolineaesterna"));
    w.pageNumber()->setValue(2);
    QVERIFY(w.enabled("colorabloccolineaesterna"));
}

void tst_MainWindowPageTable::theSelectionTakenBackIsDescribed()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.cell(0, 1, 1).tipo = CELL_IMMAGINE;
    w.select(1, 1);
    QVERIFY(w.enabled("buttSelezionaImmagine"));
    w.table()->clearSelection();
    QVERIFY(!w.enabled("buttSelezionaImmagine"));
    QCOMPARE(w.shown("cella_riga"), 0);
    QCOMPARE(w.shown("cella_colonna"), 0);
    QCOMPARE(w.shown("blocco_n"), 0);
    QCOMPARE(w.text("cella_label"), nothingSelected);
    QCOMPARE(w.text("blocco_label"), nothingSelected);
    QCOMPARE(w.text("cella_type"), QString());
    QCOMPARE(w.text("font_info"), QString());
    QVERIFY(!w.enabled("seleziona_font_button"));
}

void tst_MainWindowPageTable::theScopeSwitchKeepsTheFontWithoutSelection()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.select(1, 1);
    w.check("applica_tutte_celle");
    w.table()->clearSelection();
    QVERIFY(w.enabled("seleziona_font_button"));
    QCOMPARE(w.text("font_info"), QStringLiteral("Arial 30"));
}

void tst_MainWindowPageTable::cellsAreSelectedByMouse()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    QTest::qWait(1);
    QTest::mouseClick(w.table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      w.table()->visualItemRect(w.item(2, 1)).center());
    QCOMPARE(w.shown("blocco_n"), 2);
    QCOMPARE(w.shown("cella_riga"), 1);
    QCOMPARE(w.shown("cella_colonna"), 2);
}

void tst_MainWindowPageTable::aKeyboardCanLeaveTheTable()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
    w.find<QWidget>("pagina_elimina")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), w.table());
    QTest::keyClick(w.table(), Qt::Key_Tab);
    QVERIFY(QApplication::focusWidget() != w.table());
}

QTEST_MAIN(tst_MainWindowPageTable)
#include "tst_MainWindowPageTable.moc"
