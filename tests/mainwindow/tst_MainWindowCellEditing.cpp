// SPDX-License-Identifier: MIT
#include "PageWindow.h"

#include "generation/DefaultCell.h"

#include <QWindow>

namespace {
const QString title = QStringLiteral("Quintra - Modifica valori");
const QString asText = QStringLiteral("Vuoi impostare il valore come STRINGA?");
const QString asEmpty = QStringLiteral("Vuoi impostare il valore come CELLA VUOTA?");
const QString asImage = QStringLiteral("Cella impostata come IMMAGINE.\nIl percorso dell'immagine deve essere scelto "
                                       "tramite il pannello a lato.");
const QString missingPicture = QStringLiteral("L'immagine di base non può essere letta.");

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
    void cellsClearedWhileThePageTurnsAreThoseSelected();
    void withoutAPageNothingIsCleared();
    void aClickThatEndsTheEditingStepsOnePage();
    void aClickThatEndsTheEditingPressesAButton();
    void aMissingPictureIsToldUntilTheCellIsAnother();

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
