// SPDX-License-Identifier: MIT
#include "GeneratedPages.h"

#include <QAction>
#include <QCheckBox>

namespace {
const QString refusal = QStringLiteral("Problemi di impostazione parametri: non posso proseguire!");

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
    void anUnreadableDefaultImageIsToldOncePerGeneration();
    void theMemoryWarningHasNoAsDefault();
    void failedPagesAreToldInOneBoxWhenWanted();
    void noSummaryComesWhenNoOtherPageFailed();
    void aSetThatDoesNotFitTheMemoryIsAskedAbout();
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

QTEST_MAIN(tst_MainWindowGeneration)
#include "tst_MainWindowGeneration.moc"
