// SPDX-License-Identifier: MIT
#include "GeneratedPages.h"

#include "personale/EditPersonale.h"
#include "personale/PersonaleChkBox.h"
#include "support/MemoryLimit.h"

#include <QCheckBox>
#include <QScrollArea>
#include <QWindow>

namespace {
const QString editorTitle = QStringLiteral("Quintra - Mappatura manuale");

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

class tst_MainWindowMappaManuale final : public QObject
{
    Q_OBJECT

private slots:
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
    void anEditorThatDoesNotFitTheMemoryIsAskedAbout();
    void anEditorThatFindsNoMemoryIsTold();
};

void tst_MainWindowMappaManuale::byHandTheEditorOpensWithoutValidation()
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

void tst_MainWindowMappaManuale::theEditorGetsTheRangeOfNumbers()
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
void tst_MainWindowMappaManuale::newOpensTheEditorToo()
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

void tst_MainWindowMappaManuale::theMainWindowTakesNoInputWhileTheEditorIsOpen()
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

void tst_MainWindowMappaManuale::closingTheEditorWithoutPagesChangesNothing()
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

void tst_MainWindowMappaManuale::closingTheEditorWithoutPagesLeavesTheViewOfASet()
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

void tst_MainWindowMappaManuale::pagesMadeByHandBecomeTheCardSet()
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

void tst_MainWindowMappaManuale::pagesMadeByHandFollowThePageShown()
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

void tst_MainWindowMappaManuale::pagesAreAppendedToThoseMadeByHand()
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

void tst_MainWindowMappaManuale::pagesMadeByHandAreShownAfterAllWereDeleted()
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

void tst_MainWindowMappaManuale::theWindowMayGoWhileTheEditorIsOpen()
{
    PageWindow page;
    const QPointer<EditPersonale> editor = openEditor(page);
    page.window.reset();
    QVERIFY(editor.isNull());
}

// No input leads there, for the editor is modal; a caller may.
void tst_MainWindowMappaManuale::anOpenEditorMakesItsPagesForTheNewCardSet()
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

void tst_MainWindowMappaManuale::anEditorThatDoesNotFitTheMemoryIsAskedAbout()
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

void tst_MainWindowMappaManuale::anEditorThatFindsNoMemoryIsTold()
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

QTEST_MAIN(tst_MainWindowMappaManuale)
#include "tst_MainWindowMappaManuale.moc"
