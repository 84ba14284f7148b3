// SPDX-License-Identifier: MIT
#include "mainwindow/PageWindow.h"
#include "personale/EditPersonale.h"
#include "personale/PersonaleChkBox.h"
#include "support/FatalMessage.h"
#include "support/MemoryLimit.h"

#include <QAction>
#include <QCheckBox>
#include <QScrollArea>
#include <QWindow>

#include <algorithm>
#include <numeric>

namespace {
const QString boxTitle = QStringLiteral("Quintra - Cartella classica");
const QString editorTitle = QStringLiteral("Quintra - Mappatura manuale");
const QString newQuestion = QStringLiteral("Sei sicuro di voler cancellare la cartella e crearne una nuova?");
const QString refusal = QStringLiteral("Problemi di impostazione parametri: non posso proseguire!");
const QString cancelled = QStringLiteral("Creazione annullata.");

void set(const PageWindow &page, const char *name, int value)
{
    page.find<QSpinBox>(QByteArray("box_classica_").append(name).constData())->setValue(value);
}

// A page that keeps every rule and yet cannot be filled: nine numbers in the first column for ten rows.
void setImpossibleCard(const PageWindow &page)
{
    set(page, "numeroblocchi", 1);
    set(page, "numerorighexblocco", 10);
    set(page, "numeroestrazionixriga", 9);
}

QAction *compare(const PageWindow &page)
{
    return page.window->findChild<QAction *>(QStringLiteral("actionConfronta_blocchi"));
}

void chooseNew(const PageWindow &page)
{
    page.window->findChild<QAction *>(QStringLiteral("actionCrea"))->trigger();
}

QVector<quint32> numbersOf(const Pagina &page)
{
    QVector<quint32> numbers;
    for (size_t b = 0; b < page.nBlocchi; ++b) {
        for (size_t r = 0; r < page.blocchi[b].nRighe; ++r) {
            const Riga &row = page.blocchi[b].righe[r];
            for (size_t c = 0; c < row.nCelle; ++c) {
                if (row.celle[c].tipo == CELL_NUMERO) {
                    numbers.append(row.celle[c].numero);
                }
            }
        }
    }
    return numbers;
}

QVector<quint32> oneToNinety()
{
    QVector<quint32> numbers(90);
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

QVector<quint32> sorted(QVector<quint32> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

// Opens the editor with "Aggiungi pagine".
EditPersonale *openEditor(const PageWindow &page)
{
    if (!page.find<QCheckBox>("MappaManuale")->isChecked()) {
        page.check("MappaManuale");
    }
    page.press("butt_aggiungi_pagine");
    return page.window->findChild<EditPersonale *>();
}

void createPages(PageWindow &page, EditPersonale *editor)
{
    page.boxes.expectBox(editorTitle, QStringLiteral("Pagine create e aggiunte alla cartella principale!"),
                         QMessageBox::Ok);
    editor->on_creapagineButton_clicked();
}

// Closes the editor and waits until it is gone.
void closeEditor(PageWindow &page, EditPersonale *editor)
{
    const QPointer<EditPersonale> open = editor;
    page.boxes.expectBox(editorTitle, QStringLiteral("Sei sicuro di voler chiudere?"), QMessageBox::Yes);
    editor->close();
    QTRY_VERIFY(open.isNull());
}
} // namespace

class tst_MainWindowGeneration final : public QObject
{
    Q_OBJECT

private slots:
    void theFirstPagesMakeACardSetWithoutAsking();
    void newMakesTheSameAtFirstWithoutAsking();
    void newAsksBeforeACardSetIsDiscarded_data();
    void newAsksBeforeACardSetIsDiscarded();
    void newReplacesTheCardSetAndShowsItsFirstPage();
    void aNewFirstPageIsShownThoughItsNumberStaysTheSame();
    void appendedPagesAloneAreFilled();
    void appendingKeepsThePageShown();
    void appendingToAnEmptiedSetShowsTheFirstPage();
    void aNewCardSetSendsItsStatusToTheWindow();
    void rulesThatAreBrokenRefuse();
    void theKeyboardStaysOnTheButton();
    void aRefusedNewKeepsTheCardSet();
    void tooManyPagesAreNotAppended();
    void theMemoryWarningAsks();
    void cellsThatDoNotFit32BitsAreNeverMadeUnasked();
    void cellsInMemoryStartAgainWithANewSet();
    void everyPageThatFailsIsReported();
    void failuresOfAppendedPagesAreCountedOverTheSet();
    void nothingDrawnMakesEmptyPages();
    void noSecondRunStartsFromABox();
    void theWaitCursorIsShownWhilePagesAreMade();
    void byHandTheEditorOpensWithoutValidation();
    void theEditorGetsTheRangeOfNumbers();
    void newOpensTheEditorToo();
    void theMainWindowTakesNoInputWhileTheEditorIsOpen();
    void closingTheEditorWithoutPagesChangesNothing();
    void closingTheEditorWithoutPagesLeavesTheViewOfASet();
    void pagesMadeByHandBecomeTheCardSet();
    void pagesMadeByHandFollowThePageShown();
    void pagesAreAppendedToThoseMadeByHand();
    void pagesMadeByHandAreShownAfterAllWereDeleted();
    void theWindowMayGoWhileTheEditorIsOpen();
    void anOpenEditorMakesItsPagesForTheNewCardSet();
    void anUnreadableDefaultImageIsToldOncePerGeneration();
    void theMemoryWarningHasNoAsDefault();
    void failedPagesAreToldInOneBoxWhenWanted();
    void noSummaryComesWhenNoOtherPageFailed();
    void aSetThatDoesNotFitTheMemoryIsAskedAbout();
    void anEditorThatDoesNotFitTheMemoryIsAskedAbout();
    void anEditorThatFindsNoMemoryIsTold();
};

void tst_MainWindowGeneration::theFirstPagesMakeACardSetWithoutAsking()
{
    const PageWindow page;
    set(page, "numeropagine", 3);
    const StatusLog log(page);
    page.press("butt_aggiungi_pagine");

    QCOMPARE(page.set()->getNumPages(), 3);
    for (const Pagina *made : qAsConst(page.set()->pagine)) {
        QCOMPARE(made->nBlocchi, U8(6));
        QCOMPARE(made->blocchi[5].nRighe, U8(3));
        QCOMPARE(made->blocchi[5].righe[2].nCelle, U8(9));
        QCOMPARE(sorted(numbersOf(*made)), oneToNinety());
    }
    QCOMPARE(log.messages(), QStringList({QStringLiteral("Sto cancellando la precedente cartella..."),
                                          QStringLiteral("Sto creando una cartella di 3 pagine, 6 blocchi 3X9..."),
                                          QStringLiteral("Cartella di 3 pagine, 6 blocchi 3X9 generata")}));
    QCOMPARE(page.window->statusBar()->styleSheet(), QStringLiteral("color: black"));
    QCOMPARE(page.shown("pagine_lcdNumber"), 3);
    QCOMPARE(page.pageNumber()->value(), 1);
    QCOMPARE(page.table()->rowCount(), 18);
    QCOMPARE(page.table()->columnCount(), 9);
}

void tst_MainWindowGeneration::newMakesTheSameAtFirstWithoutAsking()
{
    const PageWindow page;
    set(page, "numeropagine", 2);
    chooseNew(page);
    QCOMPARE(page.set()->getNumPages(), 2);
    QCOMPARE(sorted(numbersOf(*page.page(1))), oneToNinety());
    QCOMPARE(page.status(), QStringLiteral("Cartella di 2 pagine, 6 blocchi 3X9 generata"));
    QCOMPARE(page.pageNumber()->value(), 1);
    QCOMPARE(page.table()->rowCount(), 18);
}

void tst_MainWindowGeneration::newAsksBeforeACardSetIsDiscarded_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("No") << int(QMessageBox::No);
    QTest::newRow("box closed") << int(QMessageBox::Escape);
}

void tst_MainWindowGeneration::newAsksBeforeACardSetIsDiscarded()
{
    QFETCH(int, answer);
    PageWindow page;
    set(page, "numeropagine", 3);
    page.press("butt_aggiungi_pagine");
    page.pageNumber()->setValue(2);
    const Cartella *before = page.set();
    const auto pages = page.set()->pagine;
    const auto *table = page.table();
    const StatusLog log(page);
    page.boxes.expectBox(boxTitle, newQuestion, static_cast<QMessageBox::StandardButton>(answer),
                         QMessageBox::Question);
    chooseNew(page);
    QCOMPARE(page.set(), before);
    QCOMPARE(page.set()->pagine, pages);
    QCOMPARE(page.pageNumber()->value(), 2);
    QCOMPARE(page.table(), table);
    QCOMPARE(log.messages(), QStringList());
}

void tst_MainWindowGeneration::newReplacesTheCardSetAndShowsItsFirstPage()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.pageNumber()->value(), 1);
    const QPointer<Cartella> before = page.set();
    set(page, "numeroblocchi", 2);
    set(page, "numerocolonne", 7);
    page.boxes.expectBox(boxTitle, newQuestion, QMessageBox::Yes, QMessageBox::Question);
    chooseNew(page);
    QVERIFY(before.isNull());
    QCOMPARE(page.set()->getNumPages(), 1);
    QCOMPARE(page.shown("pagine_lcdNumber"), 1);
    QCOMPARE(page.pageNumber()->value(), 1);
    QCOMPARE(page.table()->rowCount(), 6);
    QCOMPARE(page.table()->columnCount(), 7);
}

void tst_MainWindowGeneration::aNewFirstPageIsShownThoughItsNumberStaysTheSame()
{
    const PageWindow page;
    QVERIFY(page.window->generate(false));
    QCOMPARE(page.pageNumber()->value(), 1);
    set(page, "numeroblocchi", 2);
    QVERIFY(page.window->generate(false));
    QCOMPARE(page.pageNumber()->value(), 1);
    QCOMPARE(page.table()->rowCount(), 6);
}

void tst_MainWindowGeneration::appendedPagesAloneAreFilled()
{
    const PageWindow page;
    set(page, "numeropagine", 20);
    page.press("butt_aggiungi_pagine");
    QVector<QVector<quint32>> numbers;
    for (const Pagina *made : qAsConst(page.set()->pagine)) {
        numbers.append(numbersOf(*made));
    }
    const auto pages = page.set()->pagine;
    set(page, "numeropagine", 10);
    page.press("butt_aggiungi_pagine");

    QCOMPARE(page.set()->getNumPages(), 30);
    QCOMPARE(page.shown("pagine_lcdNumber"), 30);
    QCOMPARE(page.set()->pagine.mid(0, 20), pages);
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(numbersOf(*page.page(i)), numbers[i]);
    }
    for (int i = 20; i < 30; ++i) {
        QCOMPARE(sorted(numbersOf(*page.page(i))), oneToNinety());
    }
    QCOMPARE(page.status(), QStringLiteral("Cartella di 10 pagine, 6 blocchi 3X9 generata"));
}

void tst_MainWindowGeneration::appendingToAnEmptiedSetShowsTheFirstPage()
{
    PageWindow page;
    chooseNew(page);
    page.press("pagina_elimina");
    QCOMPARE(page.set()->getNumPages(), 0);
    QCOMPARE(page.pageNumber()->value(), 0);

    set(page, "numeropagine", 3);
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.shown("pagine_lcdNumber"), 3);
    QCOMPARE(page.pageNumber()->value(), 1);
    QCOMPARE(page.table()->rowCount(), 18);
}

void tst_MainWindowGeneration::appendingKeepsThePageShown()
{
    const PageWindow page;
    set(page, "numeropagine", 3);
    page.press("butt_aggiungi_pagine");
    page.pageNumber()->setValue(2);
    const auto *table = page.table();
    set(page, "numeropagine", 2);
    const StatusLog log(page);
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.pageNumber()->value(), 2);
    QCOMPARE(page.table(), table);
    QCOMPARE(log.messages(), QStringList(QStringLiteral("Cartella di 2 pagine, 6 blocchi 3X9 generata")));
}

void tst_MainWindowGeneration::aNewCardSetSendsItsStatusToTheWindow()
{
    const PageWindow page;
    emit page.set()->checkForEqualBlocksStatus(QStringLiteral("prima"));
    QCOMPARE(page.status(), QStringLiteral("prima"));
    page.press("butt_aggiungi_pagine");
    emit page.set()->checkForEqualBlocksStatus(QStringLiteral("dopo!"));
    QCOMPARE(page.status(), QStringLiteral("dopo!"));
}

void tst_MainWindowGeneration::rulesThatAreBrokenRefuse()
{
    PageWindow page;
    const Cartella *before = page.set();
    set(page, "numeroestrazionixriga", 6);
    page.boxes.expectBox(boxTitle, refusal, QMessageBox::Ok, [](const QMessageBox *box) {
        QCOMPARE(box->icon(), QMessageBox::Warning);
        QCOMPARE(box->standardButtons(), QMessageBox::Ok);
        QCOMPARE(box->informativeText(), QStringLiteral("Non posso creare 108 celle piene con solo 90 numeri."));
    });
    QVERIFY(!page.window->generate(false));
    QCOMPARE(page.status(), cancelled);
    QCOMPARE(page.set(), before);
    QCOMPARE(page.set()->getNumPages(), 0);

    // Still nothing is generated: the next click creates, and "Nuova" does not ask.
    set(page, "numeroestrazionixriga", 5);
    chooseNew(page);
    QCOMPARE(page.set()->getNumPages(), 1);
}

void tst_MainWindowGeneration::aRefusedNewKeepsTheCardSet()
{
    PageWindow page;
    set(page, "numeropagine", 3);
    page.press("butt_aggiungi_pagine");
    page.pageNumber()->setValue(3);
    const auto pages = page.set()->pagine;
    set(page, "numeroestrazionixriga", 6);
    page.boxes.expectBox(boxTitle, newQuestion, QMessageBox::Yes);
    page.boxes.expectBox(boxTitle, refusal, QMessageBox::Ok);
    chooseNew(page);
    QCOMPARE(page.set()->pagine, pages);
    QCOMPARE(page.status(), cancelled);
    QCOMPARE(page.pageNumber()->value(), 1); // 0 was asked for
}

void tst_MainWindowGeneration::tooManyPagesAreNotAppended()
{
    PageWindow page;
    page.showPages(1, {1, 1, 1});
    while (page.set()->getNumPages() < 65535) {
        page.set()->generateBlock(1, 1, 1);
    }
    page.boxes.expectBox(boxTitle, refusal, QMessageBox::Ok, [&](const QMessageBox *) {
        QCOMPARE(page.find<QLabel>("label_settingstatus")->toolTip(),
                 QStringLiteral("Le pagine totali richieste (65536)\neccedono il massimo consentito (65535)."));
    });
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 65535);
    QCOMPARE(page.status(), cancelled);
}

void tst_MainWindowGeneration::theMemoryWarningAsks()
{
    PageWindow page;
    set(page, "numeroblocchi", 1);
    set(page, "numerorighexblocco", 1);
    set(page, "numerocolonne", 10);
    page.press("butt_aggiungi_pagine"); // 10 cells
    // Large pages come and go; their cells stay counted.
    set(page, "numeroestrazionixriga", 0);
    set(page, "numeroblocchi", 99);
    set(page, "numerorighexblocco", 99);
    set(page, "numerocolonne", 99);
    for (int i = 0; i < 10; ++i) {
        page.press("butt_aggiungi_pagine");
        QVERIFY(page.set()->deletePage(1));
    }
    // 9703000 cells by now.
    set(page, "numeroblocchi", 99);
    set(page, "numerorighexblocco", 30);
    set(page, "numerocolonne", 99);
    page.press("butt_aggiungi_pagine"); // 294030 more
    QCOMPARE(page.set()->getNumPages(), 2);

    set(page, "numeroblocchi", 1);
    set(page, "numeropagine", 2);
    const QString question = QStringLiteral("Si sconsiglia di proseguire per le seguenti ragioni:\n"
                                            "5940 -> caselle totali richieste.\n"
                                            "9997030 -> caselle totali in memoria.\n"
                                            "10000000 -> caselle massime gestibili.\n"
                                            "(eventuale crash del programma)\n\nVuoi proseguire comunque?");
    for (int i = 0; i < 2; ++i) { // declined twice, the counter is the same
        page.boxes.expectBox(boxTitle, question, QMessageBox::No, QMessageBox::Question);
        page.press("butt_aggiungi_pagine");
        QCOMPARE(page.set()->getNumPages(), 2);
        QCOMPARE(page.status(), cancelled);
    }
    page.boxes.expectBox(boxTitle, question, QMessageBox::Yes, QMessageBox::Question);
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 4);
}

void tst_MainWindowGeneration::cellsThatDoNotFit32BitsAreNeverMadeUnasked()
{
    PageWindow page;
    set(page, "numeroestrazionixriga", 0);
    set(page, "numeroblocchi", 99);
    set(page, "numerorighexblocco", 99);
    set(page, "numerocolonne", 99);
    set(page, "numeropagine", 4427); // 4295513673 cells: 546377 in 32 bits
    page.boxes.expectBox(boxTitle,
                         QStringLiteral("Si sconsiglia di proseguire per le seguenti ragioni:\n"
                                        "4295513673 -> caselle totali richieste.\n"
                                        "0 -> caselle totali in memoria.\n"
                                        "10000000 -> caselle massime gestibili.\n"
                                        "(eventuale crash del programma)\n\nVuoi proseguire comunque?"),
                         QMessageBox::No, QMessageBox::Question);
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 0);
}

void tst_MainWindowGeneration::cellsInMemoryStartAgainWithANewSet()
{
    PageWindow page;
    const auto cellsInMemory = [&]() {
        set(page, "numeropagine", 65535);
        QString message;
        page.window->checkParameters(&message, false);
        set(page, "numeropagine", 1);
        return message.section(QLatin1Char('\n'), 2, 2);
    };
    page.press("butt_aggiungi_pagine");
    page.press("butt_aggiungi_pagine");
    QCOMPARE(cellsInMemory(), QStringLiteral("324 -> caselle totali in memoria."));
    page.press("pagina_elimina"); // is not subtracted
    QCOMPARE(cellsInMemory(), QStringLiteral("324 -> caselle totali in memoria."));
    page.boxes.expectBox(boxTitle, newQuestion, QMessageBox::Yes);
    chooseNew(page);
    QCOMPARE(cellsInMemory(), QStringLiteral("162 -> caselle totali in memoria."));
}

void tst_MainWindowGeneration::everyPageThatFailsIsReported()
{
    PageWindow page;
    setImpossibleCard(page);
    set(page, "numeropagine", 2);
    for (int i = 0; i < 2; ++i) {
        page.boxes.expectBox(
            boxTitle, QStringLiteral("Generazione numeri:\nErrore durante la generazione della pagina %1.").arg(i),
            QMessageBox::Ok, QMessageBox::Critical);
    }
    QVERIFY(page.window->generate(false));
    QCOMPARE(page.set()->getNumPages(), 2);
    QCOMPARE(page.shown("pagine_lcdNumber"), 2);
    QCOMPARE(page.status(), QStringLiteral("Cartella di 2 pagine, 1 blocchi 10X9 generata"));
    QCOMPARE(page.window->cursor().shape(), Qt::ArrowCursor);
}

void tst_MainWindowGeneration::failuresOfAppendedPagesAreCountedOverTheSet()
{
    PageWindow page;
    set(page, "numeropagine", 4);
    page.press("butt_aggiungi_pagine");
    setImpossibleCard(page);
    set(page, "numeropagine", 1);
    page.boxes.expectBox(boxTitle, QStringLiteral("Generazione numeri:\nErrore durante la generazione della pagina 4."),
                         QMessageBox::Ok, QMessageBox::Critical);
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 5);
}

void tst_MainWindowGeneration::nothingDrawnMakesEmptyPages()
{
    const PageWindow page;
    set(page, "numeroestrazionixriga", 0);
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 1);
    for (int row = 0; row < 18; ++row) {
        for (int column = 0; column < 9; ++column) {
            QCOMPARE(page.cell(0, row, column).tipo, CELL_VUOTA);
        }
    }
    const auto *status = page.find<QLabel>("label_settingstatus");
    QCOMPARE(status->toolTip(), QStringLiteral("Sono state create solo pagine vuote!"));
    QCOMPARE(status->pixmap(Qt::ReturnByValue).toImage(),
             QPixmap(QStringLiteral(":/Images/resources/img/warning.png")).toImage());
}

void tst_MainWindowGeneration::noSecondRunStartsFromABox()
{
    PageWindow page;
    const auto disabled = [&](const QMessageBox *) {
        QVERIFY(!compare(page)->isEnabled());
        QVERIFY(!page.enabled("butt_aggiungi_pagine"));
    };
    const auto enabled = [&]() { return compare(page)->isEnabled() && page.enabled("butt_aggiungi_pagine"); };

    set(page, "numeroestrazionixriga", 6);
    page.boxes.expectBox(boxTitle, refusal, QMessageBox::Ok, disabled);
    page.press("butt_aggiungi_pagine");
    QVERIFY(enabled());
    page.boxes.expectBox(boxTitle, refusal, QMessageBox::Ok, disabled);
    chooseNew(page);
    QVERIFY(enabled());

    setImpossibleCard(page);
    page.boxes.expectBox(boxTitle, QStringLiteral("Generazione numeri:\nErrore durante la generazione della pagina 0."),
                         QMessageBox::Ok, disabled);
    page.press("butt_aggiungi_pagine");
    QVERIFY(enabled());
}

void tst_MainWindowGeneration::theKeyboardStaysOnTheButton()
{
    const PageWindow page;
    QVERIFY(QTest::qWaitForWindowActive(page.window.get()));
    auto *button = page.find<QPushButton>("butt_aggiungi_pagine");
    button->setFocus();
    for (int pages = 1; pages <= 2; ++pages) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(page.set()->getNumPages(), pages);
        QCOMPARE(QApplication::focusWidget(), button);
    }
    page.pageNumber()->setFocus();
    QVERIFY(page.window->generate(false));
    QCOMPARE(QApplication::focusWidget(), page.pageNumber());
}

void tst_MainWindowGeneration::theWaitCursorIsShownWhilePagesAreMade()
{
    PageWindow page;
    setImpossibleCard(page);
    page.boxes.expectBox(boxTitle, QStringLiteral("Generazione numeri:\nErrore durante la generazione della pagina 0."),
                         QMessageBox::Ok, [&](const QMessageBox *box) {
                             QCOMPARE(page.window->cursor().shape(), Qt::WaitCursor);
                             QCOMPARE(box->cursor().shape(), Qt::ArrowCursor);
                         });
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.window->cursor().shape(), Qt::ArrowCursor);
}

void tst_MainWindowGeneration::byHandTheEditorOpensWithoutValidation()
{
    PageWindow page;
    set(page, "numeropagine", 2);
    page.check("MappaManuale");
    set(page, "numerominimo", 20);
    set(page, "numeromassimo", 20);
    const StatusLog log(page);
    QVERIFY(page.window->generate(false));
    QCOMPARE(log.messages(),
             QStringList({QStringLiteral("Sto creando l'ambiente per la mappatura manuale, attendere..."),
                          QStringLiteral("Ambiente per la mappatura manuale creato.")}));
    auto *editor = page.window->findChild<EditPersonale *>();
    QVERIFY(editor != nullptr);
    QVERIFY(editor->isVisible());
    QCOMPARE(editor->windowModality(), Qt::ApplicationModal);
    QCOMPARE(editor->findChildren<PersonaleChkBox *>().size(), 18 * 9); // those of the page on display
    QCOMPARE(editor->findChild<QLCDNumber *>(QStringLiteral("pageNumDisplay"))->intValue(), 2);
    QCOMPARE(page.window->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(page.set()->getNumPages(), 0);

    createPages(page, editor);
    closeEditor(page, editor);
}

void tst_MainWindowGeneration::theEditorGetsTheRangeOfNumbers()
{
    PageWindow page;
    page.check("MappaManuale");
    set(page, "numerominimo", 20);
    set(page, "numeromassimo", 20);
    EditPersonale *editor = openEditor(page);
    for (PersonaleChkBox *cell : editor->findChildren<PersonaleChkBox *>().mid(0, 2)) {
        cell->setTipo(CELL_NUMERO);
        cell->click();
    }
    const auto *verdict = editor->findChild<QLabel *>(QStringLiteral("status_label"));
    QCOMPARE(verdict->toolTip(), QStringLiteral("I numeri da generare (2) sono maggiori di quelli disponibili (1)."));
    editor->findChild<PersonaleChkBox *>()->click();
    createPages(page, editor);
    QCOMPARE(numbersOf(*page.page(0)), QVector<quint32>{20});
    closeEditor(page, editor);
}

// The pages of the set stay: those made by hand are always appended.
void tst_MainWindowGeneration::newOpensTheEditorToo()
{
    PageWindow page;
    set(page, "numeropagine", 2);
    page.press("butt_aggiungi_pagine");
    page.pageNumber()->setValue(2);
    page.check("MappaManuale");
    page.boxes.expectBox(boxTitle, newQuestion, QMessageBox::Yes);
    chooseNew(page);
    auto *editor = page.window->findChild<EditPersonale *>();
    QVERIFY(editor != nullptr);
    QCOMPARE(page.set()->getNumPages(), 2);
    QCOMPARE(page.pageNumber()->value(), 1);
    createPages(page, editor);
    closeEditor(page, editor);
    QCOMPARE(page.set()->getNumPages(), 4);
    QCOMPARE(page.pageNumber()->value(), 2);
}

void tst_MainWindowGeneration::theMainWindowTakesNoInputWhileTheEditorIsOpen()
{
    PageWindow page;
    auto *mapping = page.find<QCheckBox>("MappaManuale");
    const auto click = [&]() {
        page.find<QScrollArea>("parametriScrollArea")->ensureWidgetVisible(mapping);
        // Through the window system, as the mouse does: modality is kept there.
        const QPoint inside(mapping->height() / 2, mapping->height() / 2);
        QTest::mouseClick(page.window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          mapping->mapTo(page.window.get(), inside));
    };
    QVERIFY(QTest::qWaitForWindowExposed(page.window.get()));
    click();
    QVERIFY(mapping->isChecked());
    EditPersonale *editor = openEditor(page);
    QVERIFY(page.window->isVisible());
    click();
    QVERIFY(mapping->isChecked());
    closeEditor(page, editor);
    click();
    QVERIFY(!mapping->isChecked());
}

void tst_MainWindowGeneration::closingTheEditorWithoutPagesChangesNothing()
{
    PageWindow page;
    EditPersonale *editor = openEditor(page);
    closeEditor(page, editor);
    QCOMPARE(page.set()->getNumPages(), 0);
    QCOMPARE(page.pageNumber()->value(), 0);
    QCOMPARE(page.status(), QStringLiteral("Ambiente per la mappatura manuale creato."));
    // Nothing is generated yet.
    page.boxes.expectBox(boxTitle, QStringLiteral("La cartella non contiene pagine!"), QMessageBox::Ok);
    page.press("butt_stampa");
}

void tst_MainWindowGeneration::closingTheEditorWithoutPagesLeavesTheViewOfASet()
{
    PageWindow page;
    set(page, "numeropagine", 3);
    page.press("butt_aggiungi_pagine");
    page.pageNumber()->setValue(2);
    EditPersonale *editor = openEditor(page);
    closeEditor(page, editor);
    QCOMPARE(page.set()->getNumPages(), 3);
    QCOMPARE(page.pageNumber()->value(), 2);
}

void tst_MainWindowGeneration::pagesMadeByHandBecomeTheCardSet()
{
    PageWindow page;
    set(page, "numeropagine", 2);
    EditPersonale *editor = openEditor(page);
    auto *cell = editor->findChild<PersonaleChkBox *>();
    cell->setTipo(CELL_NUMERO);
    cell->click();
    createPages(page, editor);
    QCOMPARE(page.set()->getNumPages(), 2);
    QCOMPARE(page.shown("pagine_lcdNumber"), 0); // until the editor is done
    closeEditor(page, editor);
    QCOMPARE(page.shown("pagine_lcdNumber"), 2);
    QCOMPARE(page.pageNumber()->value(), 1);
    QCOMPARE(page.table()->rowCount(), 18);
    QCOMPARE(page.table()->columnCount(), 9);
    QCOMPARE(numbersOf(*page.page(0)).size(), 1);
    page.boxes.expectBox(boxTitle, newQuestion, QMessageBox::No); // generated by now
    chooseNew(page);
}

void tst_MainWindowGeneration::pagesMadeByHandFollowThePageShown()
{
    PageWindow page;
    set(page, "numeropagine", 3);
    page.press("butt_aggiungi_pagine");
    page.pageNumber()->setValue(3);
    set(page, "numeropagine", 2);
    EditPersonale *editor = openEditor(page);
    createPages(page, editor);
    closeEditor(page, editor);
    QCOMPARE(page.set()->getNumPages(), 5);
    QCOMPARE(page.shown("pagine_lcdNumber"), 5);
    QCOMPARE(page.pageNumber()->value(), 4);
    QCOMPARE(page.shown("blocco_totn"), 1);
}

void tst_MainWindowGeneration::pagesAreAppendedToThoseMadeByHand()
{
    PageWindow page;
    EditPersonale *editor = openEditor(page);
    createPages(page, editor);
    closeEditor(page, editor);
    const Pagina *byHand = page.page(0);
    page.check("MappaManuale");
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 2);
    QCOMPARE(page.page(0), byHand);
    QCOMPARE(numbersOf(*byHand), QVector<quint32>());
    QCOMPARE(sorted(numbersOf(*page.page(1))), oneToNinety());
    QCOMPARE(page.pageNumber()->value(), 1);
}

void tst_MainWindowGeneration::pagesMadeByHandAreShownAfterAllWereDeleted()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    page.press("pagina_elimina");
    set(page, "numeropagine", 3);
    EditPersonale *editor = openEditor(page);
    createPages(page, editor);
    closeEditor(page, editor);
    QCOMPARE(page.set()->getNumPages(), 3);
    QCOMPARE(page.pageNumber()->value(), 1);
    QCOMPARE(page.table()->rowCount(), 18);
}

void tst_MainWindowGeneration::theWindowMayGoWhileTheEditorIsOpen()
{
    PageWindow page;
    const QPointer<EditPersonale> editor = openEditor(page);
    page.window.reset();
    QVERIFY(editor.isNull());
}

// No input leads there, for the editor is modal; a caller may.
void tst_MainWindowGeneration::anOpenEditorMakesItsPagesForTheNewCardSet()
{
    PageWindow page;
    set(page, "numeropagine", 3);
    page.press("butt_aggiungi_pagine");
    set(page, "numeropagine", 2);
    EditPersonale *const first = openEditor(page);
    EditPersonale *const second = [&page, first]() {
        page.window->generate(true);
        const auto editors = page.window->findChildren<EditPersonale *>();
        return editors.first() == first ? editors.last() : editors.first();
    }();
    QVERIFY(second != first);
    page.check("MappaManuale");
    set(page, "numeropagine", 1);
    QVERIFY(page.window->generate(false));
    first->on_checkboxRClicked(0, 0); // asks the set for a name
    createPages(page, second);
    QCOMPARE(page.set()->getNumPages(), 3);
    closeEditor(page, second);
    QCOMPARE(page.shown("pagine_lcdNumber"), 3);
    QCOMPARE(page.pageNumber()->value(), 2);
    createPages(page, first);
    closeEditor(page, first);
    QCOMPARE(page.shown("pagine_lcdNumber"), 5);
}

void tst_MainWindowGeneration::anUnreadableDefaultImageIsToldOncePerGeneration()
{
    PageWindow page;
    const QString missing = QDir::current().filePath(QStringLiteral("manca.png"));
    globalConfig->defaultCellImage = missing;
    const QString text =
        QStringLiteral("L'immagine di base non può essere letta:\n%1\n\nLe celle con immagine resteranno "
                       "vuote in stampa.")
            .arg(missing);
    page.press("butt_aggiungi_pagine"); // without pictures nothing is said
    set(page, "numerojollyxriga", 1);
    set(page, "numeropagine", 3);
    page.boxes.expectBox(boxTitle, text, QMessageBox::Ok, QMessageBox::Warning);
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 4);
    page.boxes.expectBox(boxTitle, newQuestion, QMessageBox::Yes);
    page.boxes.expectBox(boxTitle, text, QMessageBox::Ok, [&page](QMessageBox *) {
        QCOMPARE(page.pageNumber()->value(), 1);
        QVERIFY(page.enabled("butt_aggiungi_pagine"));
    });
    chooseNew(page);
}

void tst_MainWindowGeneration::theMemoryWarningHasNoAsDefault()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    set(page, "numeropagine", 65000);
    page.boxes.expectBox(
        boxTitle,
        QStringLiteral("Si sconsiglia di proseguire per le seguenti ragioni:\n10530000 -> caselle totali "
                       "richieste.\n162 -> caselle totali in memoria.\n10000000 -> caselle massime "
                       "gestibili.\n(eventuale crash del programma)\n\nVuoi proseguire comunque?"),
        QMessageBox::No, [](QMessageBox *box) {
            QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
            QCOMPARE(box->informativeText(), QStringLiteral("Pagine non stampate dopo l'ultima modifica: 1."));
        });
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 1);
}

void tst_MainWindowGeneration::failedPagesAreToldInOneBoxWhenWanted()
{
    PageWindow page;
    setImpossibleCard(page);
    set(page, "numeropagine", 4);
    const auto text = [](int failed) {
        return QStringLiteral("Generazione numeri:\nErrore durante la generazione della pagina %1.").arg(failed);
    };
    page.boxes.expectBox(boxTitle, text(0), QMessageBox::Ok,
                         [](QMessageBox *box) { QVERIFY(!box->checkBox()->isChecked()); });
    page.boxes.expectBox(boxTitle, text(1), QMessageBox::Ok, [](QMessageBox *box) {
        QCOMPARE(box->checkBox()->text(), QStringLiteral("Riassumi le altre in un solo messaggio"));
        QVERIFY(!box->checkBox()->isChecked());
        box->checkBox()->click();
    });
    page.boxes.expectBox(boxTitle,
                         QStringLiteral("Generazione numeri:\nAltre pagine non generate (contate da 1): 3, 4"),
                         QMessageBox::Ok, QMessageBox::Critical);
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 4);
}

void tst_MainWindowGeneration::noSummaryComesWhenNoOtherPageFailed()
{
    PageWindow page;
    setImpossibleCard(page);
    page.boxes.expectBox(boxTitle, QStringLiteral("Generazione numeri:\nErrore durante la generazione della pagina 0."),
                         QMessageBox::Ok, [](QMessageBox *box) { box->checkBox()->click(); });
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 1);
}

void tst_MainWindowGeneration::aSetThatDoesNotFitTheMemoryIsAskedAbout()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    const Pagina *before = page.page(0);
    set(page, "numeromassimo", 999999);
    set(page, "numeropagine", 65535);
    set(page, "numeroblocchi", 99);
    set(page, "numerorighexblocco", 99);
    set(page, "numerocolonne", 99);
    const auto isMemoryQuestion = [](QMessageBox *box) {
        QVERIFY(box->text().startsWith(
            QStringLiteral("La memoria libera potrebbe non bastare, e il programma chiudersi.\nMB necessari: ")));
        QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
    };
    page.boxes.expectBox(boxTitle, QMessageBox::Yes, [](QMessageBox *box) {
        QVERIFY(box->text().startsWith(QStringLiteral("Si sconsiglia di proseguire")));
    });
    page.boxes.expectBox(boxTitle, QMessageBox::No, isMemoryQuestion);
    QVERIFY(!page.window->generate(false));
    QCOMPARE(page.status(), cancelled);
    QCOMPARE(page.set()->getNumPages(), 1);
    QCOMPARE(page.page(0), before);
}

void tst_MainWindowGeneration::anEditorThatDoesNotFitTheMemoryIsAskedAbout()
{
    PageWindow page;
    page.check("MappaManuale");
    set(page, "numeropagine", 65535);
    set(page, "numerorighexblocco", 99);
    set(page, "numerocolonne", 99);
    page.boxes.expectBox(boxTitle, QMessageBox::No, [](QMessageBox *box) {
        QVERIFY(box->text().startsWith(QStringLiteral("La memoria libera potrebbe non bastare")));
    });
    QVERIFY(!page.window->generate(false));
    QCOMPARE(page.status(), cancelled);
    QVERIFY(page.window->findChild<EditPersonale *>() == nullptr);
}

void tst_MainWindowGeneration::anEditorThatFindsNoMemoryIsTold()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    const Pagina *before = page.page(0);
    page.check("MappaManuale");
    set(page, "numeropagine", 1000);
    set(page, "numerorighexblocco", 20);
    page.boxes.expectBox(boxTitle, QMessageBox::Yes, [](QMessageBox *box) {
        QVERIFY(box->text().startsWith(QStringLiteral("La memoria libera potrebbe non bastare")));
    });
    page.boxes.expectBox(boxTitle, QStringLiteral("La memoria libera non è bastata: nulla è cambiato."),
                         QMessageBox::Ok, QMessageBox::Warning);
    {
        const MemoryLimit limit(48 << 20);
        QVERIFY(!page.window->generate(false));
    }
    QCOMPARE(page.status(), cancelled);
    QVERIFY(page.window->findChild<EditPersonale *>() == nullptr);
    QCOMPARE(page.window->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(page.set()->getNumPages(), 1);
    QCOMPARE(page.page(0), before);
}

QTEST_MAIN(tst_MainWindowGeneration)
#include "tst_MainWindowGeneration.moc"
