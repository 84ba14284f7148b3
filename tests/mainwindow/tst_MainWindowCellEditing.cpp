// SPDX-License-Identifier: MIT
#include "PageWindow.h"

#include "generation/DefaultCell.h"
#include "support/LogCapture.h"
#include "support/MemoryLimit.h"

#include <QFileDialog>
#include <QWindow>

namespace {
const QString title = QStringLiteral("Quintra - Modifica valori");
const QString asText = QStringLiteral("Vuoi impostare il valore come STRINGA?");
const QString asEmpty = QStringLiteral("Vuoi impostare il valore come CELLA VUOTA?");
const QString asImage = QStringLiteral("Cella impostata come IMMAGINE.\nIl percorso dell'immagine deve essere scelto "
                                       "tramite il pannello a lato.");
const QString imageBox = QStringLiteral("Selezione immagine cella");
const QString changeIt = QStringLiteral("L'immagine per la cella selezionata è quella visibile. La si vuole Cambiare?");
const QString goOn = QStringLiteral("L'immagine per la cella selezionata è quella visisbile. Proseguire?");
const QString openCaption = QStringLiteral("Apre un'immagine da inserire nella cella");
const QString oneItemOnly =
    QStringLiteral("MainWindow::on_buttSelezionaImmagine_clicked() REQUIRE ONLY ONE ITEM SELECTED!!!");
const QString imageCellOnly =
    QStringLiteral("MainWindow::on_buttSelezionaImmagine_clicked() REQUIRE A CELL-IMAGE TYPE!!!");
const QString missingPicture = QStringLiteral("L'immagine di base non può essere letta.");
const QString noFile = QStringLiteral("MainWindow::on_buttSelezionaImmagine_clicked(): Image file null or empty");

void answerQuestions(PageWindow &w, bool text, bool empty)
{
    w.boxes.expectBox(title, asText, text ? QMessageBox::Yes : QMessageBox::No, QMessageBox::Question);
    if (!text) {
        w.boxes.expectBox(title, asEmpty, empty ? QMessageBox::Yes : QMessageBox::No, QMessageBox::Question);
        if (!empty) {
            w.boxes.expectBox(title, asImage, QMessageBox::Ok, QMessageBox::Information);
        }
    }
}

void expectImageQuestion(PageWindow &w, const QString &question, QMessageBox::StandardButton answer, const QSize &icon)
{
    w.boxes.expectBox(title, imageBox, answer, [=](QMessageBox *box) {
        QCOMPARE(box->informativeText(), question);
        QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box->defaultButton(), box->button(QMessageBox::Yes));
        QCOMPARE(box->iconPixmap().size(), icon);
    });
}

// One page with an image cell without picture at 0,0, selected.
void showImageCell(PageWindow &w)
{
    w.showPages({{1, 1, 2}});
    w.cell(0, 0, 0).tipo = CELL_IMMAGINE;
    w.window->loadPagina(0);
    w.select(0, 0);
}

// A key, pressed in the table.
void press(PageWindow &w, Qt::Key key)
{
    QApplication::setActiveWindow(w.window.get());
    w.table()->setFocus();
    QTest::keyClick(w.table(), key);
}

// The user types a text and, instead of ending the line, clicks elsewhere in the window: the button is released over
// the question that comes.
void pressDuringEditing(PageWindow &w, const QPoint &place)
{
    w.table()->editItem(w.item(0, 0));
    auto *editor = w.table()->viewport()->findChild<QLineEdit *>();
    editor->setFocus();
    QTest::keyClicks(editor, QStringLiteral("ciao"));
    QWindow *handle = w.window->windowHandle();
    w.boxes.expectBox(title, asText, QMessageBox::Yes, [handle, place](QMessageBox *) {
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, place);
    });
    QCursor::setPos(w.window->mapToGlobal(place));
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, place);
}

QImage picture(const QSize &size, const QColor &colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}
} // namespace

class tst_MainWindowCellEditing final : public QObject
{
    Q_OBJECT

private slots:
    void aNumberIsTakenAtOnce_data();
    void aNumberIsTakenAtOnce();
    void anythingElseIsAskedAbout_data();
    void anythingElseIsAskedAbout();
    void yesMakesAText();
    void anEmptyTextShowsTheDefaultText();
    void noThenYesMakesAnEmptyCell();
    void threeNoMakeAnImageCell();
    void closingTheQuestionsIsNo();
    void typedZerosStayInTheTable();
    void theCellIsFoundBlockByBlock();
    void thePanelFollowsTheEditedCell();
    void withoutAPageAnEditIsAnError();
    void anItemOfNoTableIsAProblem();
    void aFillerIsNoCell();
    void theGuardIsDownAfterEveryEdit();
    void aPageLoadedDuringAQuestionIsSafe();
    void aPageLoadedDuringAQuestionWithinAnotherIsSafe();
    void anEditorThatIsLeftTwiceStaysWhileItIsAskedAbout();
    void aPageLoadedDuringAQuestionShowsTheEdit();
    void aPageDeletedDuringAQuestionIsNotWritten_data();
    void aPageDeletedDuringAQuestionIsNotWritten();
    void aSetReplacedDuringAQuestionIsNotWritten();
    void anotherPageDeletedDuringAQuestionKeepsTheEdit();
    void coloursGivenDuringAQuestionStay();
    void aPageDeletedDuringTheChoiceOfAPictureIsNotWritten();
    void aPictureChosenForAPageNoLongerShownIsItsOwn();
    void cellsClearedWhileThePageTurnsAreThoseSelected();
    void withoutAPageNothingIsCleared();
    void aCellThatIsNoPictureAnyMoreGetsNone();
    void aClickThatEndsTheEditingStepsOnePage();
    void aClickThatEndsTheEditingPressesAButton();

    void anImageIsChosen();
    void anImageThatFindsNoMemoryIsTold();
    void aMissingPictureIsToldUntilThereIsOne();
    void aMissingPictureIsToldUntilTheCellIsAnother();
    void theKindOfFilesIsRemembered();
    void aPresentImageIsAskedAbout();
    void noKeepsThePresentImage();
    void noAtTheEndChangesNothing();
    void noFileChangesNothing();
    void anUnreadableFileGivesAnEmptyImage();
    void aLargePictureIsShownSmall();
    void anImageNeedsOneItem();
    void anImageNeedsAnImageCell();
    void aFillerTakesNoImage();
    void deletingSeveralCellsAsksOnce();
    void backspaceMakesCellsTexts();
    void deletingNothingOrFillersAsksNothing();
    void aPageDeletedWhileItsCellsAreDeletedIsNotWritten();
    void theKeyboardStaysInTheCellAfterItsQuestion();
};

void tst_MainWindowCellEditing::aNumberIsTakenAtOnce_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<unsigned>("number");

    QTest::newRow("two digits") << QStringLiteral("42") << 42U;
    QTest::newRow("zero") << QStringLiteral("0") << 0U;
    QTest::newRow("beyond the range") << QStringLiteral("999999") << 999999U;
}

void tst_MainWindowCellEditing::aNumberIsTakenAtOnce()
{
    QFETCH(QString, typed);
    PageWindow w;
    w.showPages({{1, 2, 2}});
    w.cell(0, 1, 1).tipo = CELL_TESTO;
    w.type(1, 1, typed);
    QCOMPARE(w.cell(0, 1, 1).tipo, CELL_NUMERO);
    QTEST(w.cell(0, 1, 1).numero, "number");
    QCOMPARE(w.item(1, 1)->text(), typed);
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_VUOTA);
}

void tst_MainWindowCellEditing::anythingElseIsAskedAbout_data()
{
    QTest::addColumn<QString>("typed");

    QTest::newRow("letter behind") << QStringLiteral("12a");
    QTest::newRow("seven digits") << QStringLiteral("1234567");
    QTest::newRow("plus") << QStringLiteral("+5");
    QTest::newRow("minus") << QStringLiteral("-5");
    QTest::newRow("blank before") << QStringLiteral(" 5");
    QTest::newRow("nothing") << QString();
}

void tst_MainWindowCellEditing::anythingElseIsAskedAbout()
{
    QFETCH(QString, typed);
    PageWindow w;
    w.showPages({{1, 1, 1}});
    w.cell(0, 0, 0).tipo = CELL_NUMERO;
    w.cell(0, 0, 0).numero = 8;
    w.window->loadPagina(0);
    answerQuestions(w, true, false);
    w.type(0, 0, typed);
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_TESTO);
    QCOMPARE(w.cell(0, 0, 0).testo, typed);
}

void tst_MainWindowCellEditing::yesMakesAText()
{
    PageWindow w;
    w.showPages({{1, 1, 1}});
    answerQuestions(w, true, false);
    w.type(0, 0, QStringLiteral("ciao"));
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_TESTO);
    QCOMPARE(w.cell(0, 0, 0).testo, QStringLiteral("ciao"));
    QCOMPARE(w.item(0, 0)->text(), QStringLiteral("ciao"));
}

void tst_MainWindowCellEditing::anEmptyTextShowsTheDefaultText()
{
    PageWindow w;
    w.config.defaultCellText = QStringLiteral("Jolly!");
    w.showPages({{1, 1, 1}});
    w.cell(0, 0, 0).tipo = CELL_TESTO;
    w.cell(0, 0, 0).testo = QStringLiteral("via");
    w.window->loadPagina(0);
    answerQuestions(w, true, false);
    w.type(0, 0, QString());
    QCOMPARE(w.cell(0, 0, 0).testo, QString());
    QCOMPARE(w.item(0, 0)->text(), QStringLiteral("Jolly!"));
}

void tst_MainWindowCellEditing::noThenYesMakesAnEmptyCell()
{
    PageWindow w;
    w.showPages({{1, 1, 1}});
    w.cell(0, 0, 0).tipo = CELL_NUMERO;
    answerQuestions(w, false, true);
    w.type(0, 0, QStringLiteral("via"));
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_VUOTA);
    QCOMPARE(w.item(0, 0)->text(), QString());
}

void tst_MainWindowCellEditing::threeNoMakeAnImageCell()
{
    PageWindow w;
    w.showPages({{1, 1, 1}});
    answerQuestions(w, false, false);
    w.type(0, 0, QStringLiteral("foto"));
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_IMMAGINE);
    QCOMPARE(w.cell(0, 0, 0).immagine.size(), QSize(8, 6));
    QCOMPARE(w.cell(0, 0, 0).immagine.cacheKey(), DefaultCell::image().cacheKey()); // shared
    QCOMPARE(w.item(0, 0)->text(), QStringLiteral("IMG"));
}

void tst_MainWindowCellEditing::closingTheQuestionsIsNo()
{
    PageWindow w;
    w.showPages({{1, 1, 1}});
    w.boxes.expectBox(title, asText, QMessageBox::Escape);
    w.boxes.expectBox(title, asEmpty, QMessageBox::Escape);
    w.boxes.expectBox(title, asImage, QMessageBox::Escape);
    w.type(0, 0, QStringLiteral("foto"));
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_IMMAGINE);
}

void tst_MainWindowCellEditing::typedZerosStayInTheTable()
{
    PageWindow w;
    w.showPages({{1, 1, 1}});
    w.cell(0, 0, 0).tipo = CELL_NUMERO;
    w.type(0, 0, QStringLiteral("007"));
    QCOMPARE(w.cell(0, 0, 0).numero, 7U);
    QCOMPARE(w.item(0, 0)->text(), QStringLiteral("007"));
    w.window->loadPagina(0);
    QCOMPARE(w.item(0, 0)->text(), QStringLiteral("7"));
}

void tst_MainWindowCellEditing::theCellIsFoundBlockByBlock()
{
    PageWindow w;
    w.showPages(2, {2, 3, 4});
    w.page(1)->blocchi[0].nRighe = 1;
    w.pageNumber()->setValue(2);
    w.type(1, 3, QStringLiteral("5"));
    QCOMPARE(w.page(1)->blocchi[1].righe[0].celle[3].numero, 5U);
    QCOMPARE(w.page(1)->blocchi[1].righe[0].celle[3].tipo, CELL_NUMERO);
    QCOMPARE(w.cell(0, 1, 3).tipo, CELL_VUOTA);
}

void tst_MainWindowCellEditing::thePanelFollowsTheEditedCell()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.select(0, 0);
    QCOMPARE(w.text("cella_type"), QStringLiteral("(vuota)"));
    w.type(0, 0, QStringLiteral("5"));
    QCOMPARE(w.text("cella_type"), QStringLiteral("(numero)"));
    answerQuestions(w, false, false);
    w.type(0, 0, QStringLiteral("foto"));
    QCOMPARE(w.text("cella_type"), QStringLiteral("(immagine)"));
    QVERIFY(w.enabled("buttSelezionaImmagine"));

    w.item(0, 1)->setText(QStringLiteral("6")); // not the selected one
    QCOMPARE(w.cell(0, 0, 1).numero, 6U);
    QCOMPARE(w.text("cella_type"), QStringLiteral("(immagine)"));
}

void tst_MainWindowCellEditing::withoutAPageAnEditIsAnError()
{
    PageWindow w;
    QTableWidgetItem item(QStringLiteral("5"));
    w.boxes.expectBox(title, QStringLiteral("Errore durante la modifica del valore nella tabella."), QMessageBox::Ok,
                      QMessageBox::Critical);
    w.window->tableItemChanged(&item);
}

void tst_MainWindowCellEditing::anItemOfNoTableIsAProblem()
{
    PageWindow w;
    w.showPages({{1, 1, 1}});
    QTableWidgetItem item(QStringLiteral("5"));
    w.boxes.expectBox(title, QStringLiteral("Problema durante la modifica del valore nella tabella."), QMessageBox::Ok,
                      QMessageBox::Warning);
    w.window->tableItemChanged(&item);
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_VUOTA);
}

void tst_MainWindowCellEditing::aFillerIsNoCell()
{
    PageWindow w;
    w.showPages({{1, 2, 3}});
    w.shorten(0, 1, 1);
    w.window->loadPagina(0);
    w.item(1, 2)->setText(QStringLiteral("foto"));
    QCOMPARE(w.cell(0, 1, 0).tipo, CELL_VUOTA);
}

void tst_MainWindowCellEditing::theGuardIsDownAfterEveryEdit()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    answerQuestions(w, false, true);
    w.type(0, 0, QStringLiteral("via"));
    w.type(0, 0, QStringLiteral("3"));
    QCOMPARE(w.cell(0, 0, 0).numero, 3U);
}

void tst_MainWindowCellEditing::aPageLoadedDuringAQuestionIsSafe()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.boxes.expectBox(title, asText, QMessageBox::Yes, [&w](QMessageBox *) { w.window->loadPagina(0); });
    w.type(0, 0, QStringLiteral("ciao"));
    QCOMPARE(w.cell(0, 0, 0).testo, QStringLiteral("ciao"));
    QTest::qWait(1);
    QCOMPARE(w.window->findChildren<QTableWidget *>().size(), 1);
    w.type(0, 0, QStringLiteral("5"));
    QCOMPARE(w.cell(0, 0, 0).numero, 5U);
}

void tst_MainWindowCellEditing::aPageLoadedDuringAQuestionWithinAnotherIsSafe()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    const QPointer<QTableWidget> asked = w.table();
    w.boxes.expectBox(title, asText, QMessageBox::No,
                      [&w](QMessageBox *) { w.item(0, 1)->setText(QStringLiteral("due")); });
    w.boxes.expectBox(title, asText, QMessageBox::Yes, [&w](QMessageBox *) { w.window->loadPagina(0); });
    w.boxes.expectBox(title, asEmpty, QMessageBox::Yes, [&asked](QMessageBox *) {
        QVERIFY(!asked.isNull()); // one of its signals is still being handled
    });
    w.type(0, 0, QStringLiteral("via"));
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_VUOTA);
    QCOMPARE(w.cell(0, 0, 1).testo, QStringLiteral("due"));
    QTRY_VERIFY(asked.isNull());
}

// The return key takes effect by an event, which comes after the loss of the focus here.
void tst_MainWindowCellEditing::anEditorThatIsLeftTwiceStaysWhileItIsAskedAbout()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    QApplication::setActiveWindow(w.window.get());
    w.table()->editItem(w.item(0, 0));
    const QPointer<QLineEdit> editor = w.table()->viewport()->findChild<QLineEdit *>();
    editor->setFocus();
    QTest::keyClicks(editor, QStringLiteral("ciao"));
    w.boxes.expectBox(title, asText, QMessageBox::No);
    w.boxes.expectBox(title, asEmpty, QMessageBox::Yes, [&editor](QMessageBox *) { QVERIFY(!editor.isNull()); });
    QTest::keyClick(editor, Qt::Key_Return);
    w.pageNumber()->setFocus();
    QCOMPARE(w.boxes.answered(), 2);
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_VUOTA);
    QTRY_VERIFY(editor.isNull());
}

void tst_MainWindowCellEditing::aPageLoadedDuringAQuestionShowsTheEdit()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.boxes.expectBox(title, asText, QMessageBox::Yes, [&w](QMessageBox *) { w.window->loadPagina(0); });
    w.type(0, 0, QStringLiteral("ciao"));
    QCOMPARE(w.item(0, 0)->text(), QStringLiteral("ciao"));
}

void tst_MainWindowCellEditing::aPageDeletedDuringAQuestionIsNotWritten_data()
{
    QTest::addColumn<bool>("text");
    QTest::addColumn<bool>("empty");
    QTest::newRow("text") << true << false;
    QTest::newRow("empty") << false << true;
    QTest::newRow("picture") << false << false;
}

void tst_MainWindowCellEditing::aPageDeletedDuringAQuestionIsNotWritten()
{
    QFETCH(const bool, text);
    QFETCH(const bool, empty);
    PageWindow w;
    w.showPages(2, {1, 1, 2});
    w.boxes.expectBox(title, asText, text ? QMessageBox::Yes : QMessageBox::No,
                      [&w](QMessageBox *) { w.find<QPushButton>("pagina_elimina")->click(); });
    if (!text) {
        w.boxes.expectBox(title, asEmpty, empty ? QMessageBox::Yes : QMessageBox::No);
        if (!empty) {
            w.boxes.expectBox(title, asImage, QMessageBox::Ok);
        }
    }
    w.type(0, 0, QStringLiteral("abc"));
    QCOMPARE(w.set()->getNumPages(), 1);
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_VUOTA);
    QCOMPARE(w.item(0, 0)->text(), QString());
}

void tst_MainWindowCellEditing::aSetReplacedDuringAQuestionIsNotWritten()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.boxes.expectBox(title, asText, QMessageBox::Yes, [&w](QMessageBox *) { QVERIFY(w.window->generate(false)); });
    w.type(0, 0, QStringLiteral("abc"));
    QCOMPARE(w.set()->getNumPages(), 1);
    QVERIFY(w.cell(0, 0, 0).tipo != CELL_TESTO);
    QCOMPARE(w.cell(0, 0, 0).testo, QString());
}

void tst_MainWindowCellEditing::anotherPageDeletedDuringAQuestionKeepsTheEdit()
{
    PageWindow w;
    w.showPages(3, {1, 1, 2});
    w.boxes.expectBox(title, asText, QMessageBox::Yes, [&w](QMessageBox *) {
        w.pageNumber()->setValue(3);
        w.find<QPushButton>("pagina_elimina")->click();
    });
    w.type(0, 0, QStringLiteral("abc"));
    QCOMPARE(w.set()->getNumPages(), 2);
    QCOMPARE(w.cell(0, 0, 0).testo, QStringLiteral("abc"));
    QCOMPARE(w.cell(1, 0, 0).testo, QString());
}

void tst_MainWindowCellEditing::coloursGivenDuringAQuestionStay()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.boxes.expectBox(title, asText, QMessageBox::Yes, [&w](QMessageBox *) { w.cell(0, 0, 0).coloreSfondo = Qt::red; });
    w.type(0, 0, QStringLiteral("abc"));
    QCOMPARE(w.cell(0, 0, 0).testo, QStringLiteral("abc"));
    QCOMPARE(w.cell(0, 0, 0).coloreSfondo, QColor(Qt::red));
}

void tst_MainWindowCellEditing::aPageDeletedDuringTheChoiceOfAPictureIsNotWritten()
{
    PageWindow w;
    w.showPages(2, {1, 1, 2});
    w.cell(0, 0, 0).tipo = CELL_IMMAGINE;
    w.window->loadPagina(0);
    w.select(0, 0);
    w.boxes.expectFileDialog(openCaption, QDir::currentPath() + QStringLiteral("/default.png"),
                             [&w](QWidget *) { w.find<QPushButton>("pagina_elimina")->click(); });
    w.boxes.expectBox(title, imageBox, QMessageBox::Yes);
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.set()->getNumPages(), 1);
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
}

void tst_MainWindowCellEditing::aPictureChosenForAPageNoLongerShownIsItsOwn()
{
    PageWindow w;
    w.showPages(2, {1, 1, 2});
    w.cell(0, 0, 0).tipo = CELL_IMMAGINE;
    w.window->loadPagina(0);
    w.select(0, 0);
    w.boxes.expectFileDialog(openCaption, QDir::currentPath() + QStringLiteral("/default.png"),
                             [&w](QWidget *) { w.pageNumber()->setValue(2); });
    w.boxes.expectBox(title, imageBox, QMessageBox::Yes);
    w.press("buttSelezionaImmagine");
    QVERIFY(!w.cell(0, 0, 0).immagine.isNull());
    QCOMPARE(w.cell(1, 0, 0).tipo, CELL_VUOTA);
    QCOMPARE(w.item(0, 0)->text(), QString());
    QCOMPARE(w.status(), QStringLiteral("Immagine impostata correttamente."));
}

void tst_MainWindowCellEditing::cellsClearedWhileThePageTurnsAreThoseSelected()
{
    PageWindow w;
    w.showPages(2, {1, 1, 2});
    w.cell(0, 0, 0).tipo = CELL_NUMERO;
    w.cell(1, 0, 0).tipo = CELL_NUMERO;
    w.window->loadPagina(0);
    w.select(0, 0);
    w.table()->setFocus();
    w.boxes.expectBox(title, asText, QMessageBox::No, [&w](QMessageBox *) { w.pageNumber()->setValue(2); });
    w.boxes.expectBox(title, asEmpty, QMessageBox::Yes);
    QTest::keyClick(w.table(), Qt::Key_Delete);
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_VUOTA);
    QCOMPARE(w.cell(1, 0, 0).tipo, CELL_NUMERO);
}

void tst_MainWindowCellEditing::withoutAPageNothingIsCleared()
{
    PageWindow w;
    w.table()->setFocus();
    QTest::keyClick(w.table(), Qt::Key_Delete);
    QCOMPARE(w.boxes.problems(), QStringList());
    QCOMPARE(w.set()->getNumPages(), 0);
}

void tst_MainWindowCellEditing::aCellThatIsNoPictureAnyMoreGetsNone()
{
    PageWindow w;
    showImageCell(w);
    w.boxes.expectFileDialog(openCaption, QDir::currentPath() + QStringLiteral("/default.png"),
                             [&w](QWidget *) { w.cell(0, 0, 0).tipo = CELL_NUMERO; });
    w.boxes.expectBox(title, imageBox, QMessageBox::Yes);
    w.press("buttSelezionaImmagine");
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
}

void tst_MainWindowCellEditing::aClickThatEndsTheEditingStepsOnePage()
{
    PageWindow w;
    w.showPages(9, {1, 1, 2});
    QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
    const QSpinBox *number = w.pageNumber();
    const QPoint arrowUp(number->width() - 4, 4);
    pressDuringEditing(w, number->mapTo(w.window.get(), arrowUp));
    QTest::qWait(1200); // long enough for a pressed arrow to repeat
    QCOMPARE(number->value(), 2);
    QCOMPARE(w.cell(0, 0, 0).testo, QStringLiteral("ciao"));
}

void tst_MainWindowCellEditing::aClickThatEndsTheEditingPressesAButton()
{
    PageWindow w;
    w.showPages(3, {1, 1, 2});
    QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
    const auto *button = w.find<QPushButton>("pagina_elimina");
    pressDuringEditing(w, button->mapTo(w.window.get(), button->rect().center()));
    QTRY_COMPARE(w.set()->getNumPages(), 2);
    QVERIFY(!button->isDown());
}

void tst_MainWindowCellEditing::anImageIsChosen()
{
    PageWindow w;
    showImageCell(w);
    const QString path = QDir::current().absoluteFilePath(QStringLiteral("foto.png"));
    QVERIFY(picture(QSize(20, 10), Qt::blue).save(path));
    w.boxes.expectFileDialog(openCaption, path, [](QWidget *widget) {
        const auto *dialog = qobject_cast<QFileDialog *>(widget);
        QCOMPARE(dialog->directory().canonicalPath(), QDir::current().canonicalPath());
        QCOMPARE(dialog->nameFilters(), QStringList({QStringLiteral("JPEG (*.jpg *.jpeg)"),
                                                     QStringLiteral("TIFF (*.tif)"), QStringLiteral("PNG (*.png)"),
                                                     QStringLiteral("GIF (*.gif)"), QStringLiteral("BITMAP (*.bmp)")}));
    });
    expectImageQuestion(w, goOn, QMessageBox::Yes, QSize(20, 10));
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.cell(0, 0, 0).immagine.size(), QSize(20, 10));
    QCOMPARE(w.cell(0, 0, 0).immagine.pixelColor(3, 3), QColor(Qt::blue));
    QCOMPARE(w.status(), QStringLiteral("Immagine impostata correttamente."));
}

void tst_MainWindowCellEditing::anImageThatFindsNoMemoryIsTold()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    PageWindow w;
    showImageCell(w);
    const QString path = QDir::current().filePath(QStringLiteral("large.png"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("P6\n10000 10000\n255\n" + QByteArray(1000, 'x')); // 400 MB
    file.close();
    const QString before = w.status();
    std::unique_ptr<MemoryLimit> limit;
    w.boxes.expectFileDialog(openCaption, path,
                             [&limit](QWidget *) { limit = std::make_unique<MemoryLimit>(16 << 20); });
    w.boxes.expectBox(title, QStringLiteral("La memoria libera non è bastata: nulla è cambiato."), QMessageBox::Ok,
                      QMessageBox::Warning);
    w.press("buttSelezionaImmagine");
    limit.reset();
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
    QCOMPARE(w.status(), before);
}

void tst_MainWindowCellEditing::aMissingPictureIsToldUntilThereIsOne()
{
    PageWindow w;
    showImageCell(w);
    QCOMPARE(w.item(0, 0)->toolTip(), missingPicture);
    w.boxes.expectFileDialog(openCaption, QDir::currentPath() + QStringLiteral("/default.png"));
    w.boxes.expectBox(title, imageBox, QMessageBox::Yes);
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.item(0, 0)->toolTip(), QString());
    QCOMPARE(w.item(0, 0)->text(), QStringLiteral("IMG"));
    QCOMPARE(w.status(), QStringLiteral("Immagine impostata correttamente."));
}

void tst_MainWindowCellEditing::aMissingPictureIsToldUntilTheCellIsAnother()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    globalConfig->defaultCellImage = QStringLiteral("missing.png");
    answerQuestions(w, false, false);
    w.type(0, 0, QStringLiteral("abc"));
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_IMMAGINE);
    QCOMPARE(w.item(0, 0)->toolTip(), missingPicture);
    w.type(0, 0, QStringLiteral("7"));
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_NUMERO);
    QCOMPARE(w.item(0, 0)->toolTip(), QString());
}

void tst_MainWindowCellEditing::theKindOfFilesIsRemembered()
{
    PageWindow w;
    showImageCell(w);
    const QString path = QDir::current().absoluteFilePath(QStringLiteral("default.png"));
    const QString kind = QStringLiteral("PNG (*.png)");
    w.boxes.expectFileDialog(openCaption, path, [kind](QWidget *widget) {
        auto *dialog = qobject_cast<QFileDialog *>(widget);
        QCOMPARE(dialog->selectedNameFilter(), QStringLiteral("JPEG (*.jpg *.jpeg)"));
        dialog->selectNameFilter(kind);
    });
    expectImageQuestion(w, goOn, QMessageBox::No, QSize(8, 6));
    w.press("buttSelezionaImmagine");
    w.boxes.expectFileDialog(openCaption, QString(), [kind](QWidget *widget) {
        QCOMPARE(qobject_cast<QFileDialog *>(widget)->selectedNameFilter(), kind);
    });
    w.press("buttSelezionaImmagine");
}

void tst_MainWindowCellEditing::aPresentImageIsAskedAbout()
{
    PageWindow w;
    showImageCell(w);
    w.cell(0, 0, 0).immagine = picture(QSize(30, 30), Qt::green);
    const QString path = QDir::current().absoluteFilePath(QStringLiteral("foto.png"));
    QVERIFY(picture(QSize(20, 10), Qt::blue).save(path));
    expectImageQuestion(w, changeIt, QMessageBox::Yes, QSize(30, 30));
    w.boxes.expectFileDialog(openCaption, path);
    expectImageQuestion(w, goOn, QMessageBox::Yes, QSize(20, 10));
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.cell(0, 0, 0).immagine.size(), QSize(20, 10));
}

void tst_MainWindowCellEditing::noKeepsThePresentImage()
{
    PageWindow w;
    showImageCell(w);
    w.cell(0, 0, 0).immagine = picture(QSize(30, 30), Qt::green);
    const QString before = w.status();
    expectImageQuestion(w, changeIt, QMessageBox::No, QSize(30, 30));
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.cell(0, 0, 0).immagine.size(), QSize(30, 30));
    QCOMPARE(w.status(), before);
}

void tst_MainWindowCellEditing::noAtTheEndChangesNothing()
{
    PageWindow w;
    showImageCell(w);
    const QString before = w.status();
    w.boxes.expectFileDialog(openCaption, QDir::current().absoluteFilePath(QStringLiteral("default.png")));
    expectImageQuestion(w, goOn, QMessageBox::No, QSize(8, 6));
    w.press("buttSelezionaImmagine");
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
    QCOMPARE(w.status(), before);
}

void tst_MainWindowCellEditing::noFileChangesNothing()
{
    PageWindow w;
    showImageCell(w);
    w.boxes.expectFileDialog(openCaption, QString());
    const LogCapture log;
    w.press("buttSelezionaImmagine");
    QCOMPARE(log.warnings().filter(QStringLiteral("MainWindow::")), QStringList{noFile});
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
}

void tst_MainWindowCellEditing::anUnreadableFileGivesAnEmptyImage()
{
    PageWindow w;
    showImageCell(w);
    w.cell(0, 0, 0).immagine = picture(QSize(30, 30), Qt::green);
    QFile file(QDir::current().absoluteFilePath(QStringLiteral("rotto.png")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    expectImageQuestion(w, changeIt, QMessageBox::Yes, QSize(30, 30));
    w.boxes.expectFileDialog(openCaption, file.fileName());
    expectImageQuestion(w, goOn, QMessageBox::Yes, QSize(0, 0));
    w.press("buttSelezionaImmagine");
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_IMMAGINE);
    QCOMPARE(w.status(), QStringLiteral("Immagine impostata correttamente."));
}

void tst_MainWindowCellEditing::aLargePictureIsShownSmall()
{
    PageWindow w;
    showImageCell(w);
    w.cell(0, 0, 0).immagine = picture(QSize(4000, 1000), Qt::green);
    expectImageQuestion(w, changeIt, QMessageBox::No, QSize(256, 64));
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.cell(0, 0, 0).immagine.size(), QSize(4000, 1000));
}

void tst_MainWindowCellEditing::anImageNeedsOneItem()
{
    PageWindow w;
    showImageCell(w);
    w.select(0, 1);
    {
        const LogCapture log;
        w.window->on_buttSelezionaImmagine_clicked();
        QCOMPARE(log.warnings(), QStringList{oneItemOnly});
    }
    w.table()->clearSelection();
    const LogCapture log;
    w.window->on_buttSelezionaImmagine_clicked();
    QCOMPARE(log.warnings(), QStringList{oneItemOnly});
}

void tst_MainWindowCellEditing::anImageNeedsAnImageCell()
{
    PageWindow w;
    showImageCell(w);
    w.table()->clearSelection();
    w.select(0, 1);
    const LogCapture log;
    w.window->on_buttSelezionaImmagine_clicked();
    QCOMPARE(log.warnings(), QStringList{imageCellOnly});
}

void tst_MainWindowCellEditing::aFillerTakesNoImage()
{
    PageWindow w;
    w.showPages({{1, 2, 3}});
    w.shorten(0, 1, 1);
    w.window->loadPagina(0);
    w.select(1, 2);
    const LogCapture log;
    w.window->on_buttSelezionaImmagine_clicked();
    QCOMPARE(log.warnings(), QStringList{imageCellOnly});
}

void tst_MainWindowCellEditing::deletingSeveralCellsAsksOnce()
{
    PageWindow w;
    w.showPages({{1, 2, 3}});
    w.shorten(0, 1, 1);
    w.window->loadPagina(0);
    w.cell(0, 0, 0).tipo = CELL_NUMERO;
    w.table()->selectAll();
    answerQuestions(w, false, false);
    press(w, Qt::Key_Delete);
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(w.cell(0, 0, column).tipo, CELL_IMMAGINE);
        QCOMPARE(w.item(0, column)->text(), QStringLiteral("IMG"));
    }
    QCOMPARE(w.cell(0, 1, 0).tipo, CELL_IMMAGINE);
    QCOMPARE(w.item(1, 1)->text(), QStringLiteral("X"));
}

void tst_MainWindowCellEditing::backspaceMakesCellsTexts()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.table()->selectAll();
    answerQuestions(w, true, false);
    press(w, Qt::Key_Backspace);
    QCOMPARE(w.cell(0, 0, 1).tipo, CELL_TESTO);
    QCOMPARE(w.item(0, 1)->text(), QStringLiteral("TXT"));
}

void tst_MainWindowCellEditing::deletingNothingOrFillersAsksNothing()
{
    PageWindow w;
    w.showPages({{1, 2, 2}});
    w.shorten(0, 1, 1);
    w.window->loadPagina(0);
    press(w, Qt::Key_Delete);
    w.select(1, 1);
    press(w, Qt::Key_Delete);
    QCOMPARE(w.item(1, 1)->text(), QStringLiteral("X"));
}

void tst_MainWindowCellEditing::aPageDeletedWhileItsCellsAreDeletedIsNotWritten()
{
    PageWindow w;
    w.showPages(2, {1, 1, 2});
    w.table()->selectAll();
    w.boxes.expectBox(title, asText, QMessageBox::Yes,
                      [&w](QMessageBox *) { w.find<QPushButton>("pagina_elimina")->click(); });
    press(w, Qt::Key_Delete);
    QCOMPARE(w.set()->getNumPages(), 1);
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_VUOTA);
}

void tst_MainWindowCellEditing::theKeyboardStaysInTheCellAfterItsQuestion()
{
    PageWindow w;
    w.showPages({{1, 2, 2}});
    QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
    w.table()->setFocus();
    w.table()->setCurrentCell(1, 1);
    answerQuestions(w, true, false);
    w.type(1, 1, QStringLiteral("ciao"));
    QTRY_COMPARE(w.window->focusWidget(), static_cast<QWidget *>(w.table()));
    QCOMPARE(w.table()->currentRow(), 1);
    QCOMPARE(w.table()->currentColumn(), 1);
}

QTEST_MAIN(tst_MainWindowCellEditing)
#include "tst_MainWindowCellEditing.moc"
