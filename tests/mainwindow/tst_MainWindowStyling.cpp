// SPDX-License-Identifier: MIT
#include "PageWindow.h"

#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QScopeGuard>
#include <QScrollBar>

namespace {
const QString emptySet = QStringLiteral("La cartella è vuota!");
const QString nothingSelected = QStringLiteral("Nessun elemento selezionato!");
const QString cellTextDone = QStringLiteral("Modifica colore testo cella applicata.");
const QString cellBackgroundDone = QStringLiteral("Modifica colore sfondo cella applicata.");
const QString blockDone = QStringLiteral("Modifica colore sfondo blocchi applicata.");
const QString fontDone = QStringLiteral("Font impostato correttamente.");
const QColor white = Qt::white;
const QColor black = Qt::black;
const QColor green = Qt::green;
const QColor red = Qt::red;

void expectSkippedCells(PageWindow &w)
{
    w.boxes.expectBox(QStringLiteral("Attenzione"),
                      QStringLiteral("Errore: Le pagine hanno dimensioni diverse.\nAlcune celle sono state omesse!"),
                      QMessageBox::Ok, QMessageBox::Warning);
}

// Whether every field of the pages that a colour command could touch is as new.
bool untouched(const PageWindow &w)
{
    for (Pagina *page : w.set()->pagine) {
        if (page->sfondo != white) {
            return false;
        }
        for (int row = 0; row < tableRowCount(*page); ++row) {
            for (int column = 0; cellAt(*page, row, column) != nullptr; ++column) {
                const Cella &cell = *cellAt(*page, row, column);
                if (cell.coloreSfondo != white || cell.coloreTesto != black) {
                    return false;
                }
            }
        }
        for (size_t b = 0; b < page->nBlocchi; ++b) {
            if (page->blocchi[b].coloreLineaEsterna != black || page->blocchi[b].coloreLineaInterna != black) {
                return false;
            }
        }
    }
    return true;
}
} // namespace

class tst_MainWindowStyling final : public QObject
{
    Q_OBJECT

private slots:
    void withoutPagesEveryCommandSaysSo_data();
    void withoutPagesEveryCommandSaysSo();
    void cellColoursNeedASelection_data();
    void cellColoursNeedASelection();

    void thePageShownIsColoured();
    void allPagesAreColoured();
    void theSelectedBlockIsColoured();
    void theBlockIsColouredOnAllPages();
    void allBlocksAreColoured();
    void withoutABlockNothingIsColoured();
    void severalCellsOfABlockStandForIt();
    void blockLinesKeepTheirColour();
    void selectedCellsAreColoured();
    void theSameCellsOfAllPagesAreColoured();
    void missingCellsAreToldOnce();
    void fillersAreSkipped();

    void aColourReachesOnlyTheCommandThatAsked();
    void aColourReachesOnlyOneCommandAfterACancel();
    void aButtonPressedTwiceColoursOnce();
    void anotherColourWithoutAskingReachesNobody();
    void aPageDeletedWhileThePickerIsOpenIsNotColoured();
    void theOnlyPageDeletedWhileThePickerIsOpen();
    void thePickerBlocksTheWindowButNotTheProgram();
    void recolouringNeverAsksAboutCells();
    void recolouringForgetsTheSelection();
    void recolouringWithoutAPageShownIsSafe();

    void theSpacingReachesThePageShown();
    void theSpacingReachesAllPages();
    void commandsWithoutEffectSayNothing();
    void idleCommandsSayThatTheyHaveNoEffect();

    void thePickerSaysWhatItColours_data();
    void thePickerSaysWhatItColours();
    void aNewSizeAloneChangesNoWeight();
    void theFontReachesTheSelection();
    void theFontReachesAllPages();
    void theFontSkipsMissingCells();
    void theFontCancelledChangesNothing();
    void theFontWithoutSelectionIsOnlyRemembered();
    void theCellSwitchShowsTheCurrentFont();
    void theCellSwitchTakenBackShowsTheCellAgain();
    void theBlockSwitchDisablesTheLineWidths();

    void recolouringKeepsWhatIsSeenAndWhereTheKeyboardIs();
    void coloursOfLinesSayThatTheyHaveNoEffect();
};

void tst_MainWindowStyling::withoutPagesEveryCommandSaysSo_data()
{
    QTest::addColumn<QByteArray>("button");
    for (const char *button :
         {"colorapaginasfondo", "colorabloccosfondo", "colorabloccolineaesterna", "colorabloccolineainterna",
          "coloracellatesto", "coloracellasfondo", "pagina_applica", "blocco_applica", "cella_applica"}) {
        QTest::newRow(button) << QByteArray(button);
    }
}

void tst_MainWindowStyling::withoutPagesEveryCommandSaysSo()
{
    QFETCH(QByteArray, button);
    PageWindow w;
    w.press(button.constData());
    QCOMPARE(w.status(), emptySet);
    QVERIFY(!w.picker()->isVisible());
}

void tst_MainWindowStyling::cellColoursNeedASelection_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("text") << QByteArray("coloracellatesto");
    QTest::newRow("background") << QByteArray("coloracellasfondo");
    QTest::newRow("block background, which needs a block") << QByteArray("colorabloccosfondo");
}

void tst_MainWindowStyling::cellColoursNeedASelection()
{
    QFETCH(QByteArray, button);
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.press(button.constData());
    QCOMPARE(w.status(), nothingSelected);
    QVERIFY(!w.picker()->isVisible());
}

void tst_MainWindowStyling::thePageShownIsColoured()
{
    PageWindow w;
    w.showPages(3, {1, 2, 2});
    w.pageNumber()->setValue(2);
    w.press("colorapaginasfondo");
    w.choose(green);
    QCOMPARE(w.page(0)->sfondo, white);
    QCOMPARE(w.page(1)->sfondo, green);
    QCOMPARE(w.page(2)->sfondo, white);
    QCOMPARE(w.table()->palette().color(QPalette::Base), green);
}

void tst_MainWindowStyling::allPagesAreColoured()
{
    PageWindow w;
    w.showPages(3, {1, 2, 2});
    w.check("applica_tutte_pagine_checkBox");
    w.press("colorapaginasfondo");
    w.choose(green);
    for (int page = 0; page < 3; ++page) {
        QCOMPARE(w.page(page)->sfondo, green);
    }
}

void tst_MainWindowStyling::theSelectedBlockIsColoured()
{
    PageWindow w;
    w.showPages(2, {3, 2, 2});
    w.select(3, 1);
    w.press("colorabloccosfondo");
    w.choose(green);
    for (int row = 0; row < 6; ++row) {
        const bool inBlock = row == 2 || row == 3;
        QCOMPARE(w.cell(0, row, 0).coloreSfondo, inBlock ? green : white);
        QCOMPARE(w.cell(0, row, 1).coloreSfondo, inBlock ? green : white);
        QCOMPARE(w.item(row, 1)->background().color(), inBlock ? green : white);
        QCOMPARE(w.cell(1, row, 1).coloreSfondo, white);
    }
    QCOMPARE(w.status(), blockDone);
}

void tst_MainWindowStyling::theBlockIsColouredOnAllPages()
{
    PageWindow w;
    w.showPages({{3, 2, 2}, {2, 1, 3}, {1, 2, 2}});
    w.check("applica_tutte_pagine_checkBox");
    w.select(3, 1);
    w.press("colorabloccosfondo");
    w.choose(green);
    QCOMPARE(w.cell(0, 2, 0).coloreSfondo, green);
    QCOMPARE(w.cell(0, 1, 0).coloreSfondo, white);
    QCOMPARE(w.cell(1, 1, 2).coloreSfondo, green);
    QCOMPARE(w.cell(1, 0, 0).coloreSfondo, white);
    QCOMPARE(w.cell(2, 0, 0).coloreSfondo, white); // has one block only
    QCOMPARE(w.status(), blockDone);
}

void tst_MainWindowStyling::allBlocksAreColoured()
{
    PageWindow w;
    w.showPages(2, {3, 2, 2});
    w.check("applica_tutti_blocchi_checkBox"); // no block needs to be selected
    w.press("colorabloccosfondo");
    w.choose(green);
    for (int row = 0; row < 6; ++row) {
        QCOMPARE(w.cell(0, row, 1).coloreSfondo, green);
        QCOMPARE(w.cell(1, row, 1).coloreSfondo, white);
    }
    w.check("applica_tutte_pagine_checkBox");
    w.press("colorabloccosfondo");
    w.choose(red);
    QCOMPARE(w.cell(0, 0, 0).coloreSfondo, red);
    QCOMPARE(w.cell(1, 5, 1).coloreSfondo, red);
}

void tst_MainWindowStyling::withoutABlockNothingIsColoured()
{
    PageWindow w;
    w.showPages({{3, 2, 2}});
    w.window->coloraBloccoSfondo(green);
    QCOMPARE(w.status(), nothingSelected);
    w.window->coloraCellaTesto(green);
    QCOMPARE(w.status(), nothingSelected);
    QVERIFY(untouched(w));

    w.select(0, 0);
    w.select(2, 0); // two blocks are no block
    w.window->coloraBloccoSfondo(green);
    QCOMPARE(w.status(), nothingSelected);
    QVERIFY(untouched(w));
}

void tst_MainWindowStyling::severalCellsOfABlockStandForIt()
{
    PageWindow w;
    w.showPages({{3, 2, 2}});
    w.select(2, 0);
    w.select(3, 1);
    w.press("colorabloccosfondo");
    w.choose(green);
    QCOMPARE(w.cell(0, 2, 1).coloreSfondo, green);
    QCOMPARE(w.cell(0, 3, 0).coloreSfondo, green);
    QCOMPARE(w.cell(0, 4, 0).coloreSfondo, white);
}

void tst_MainWindowStyling::blockLinesKeepTheirColour()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.select(0, 0);
    const QTableWidget *before = w.table();
    w.press("colorabloccolineaesterna");
    w.choose(green);
    w.press("colorabloccolineainterna");
    w.choose(green);
    QVERIFY(untouched(w));
    QCOMPARE(w.table(), before);
    QVERIFY(w.item(0, 0)->isSelected());
}

void tst_MainWindowStyling::selectedCellsAreColoured()
{
    PageWindow w;
    w.showPages(2, {2, 2, 2});
    w.select(0, 1);
    w.select(3, 0);
    w.press("coloracellatesto");
    w.choose(red);
    QCOMPARE(w.status(), cellTextDone);
    QCOMPARE(w.cell(0, 0, 1).coloreTesto, red);
    QCOMPARE(w.cell(0, 3, 0).coloreTesto, red);
    QCOMPARE(w.item(3, 0)->foreground().color(), red);
    QCOMPARE(w.cell(0, 0, 0).coloreTesto, black);
    QCOMPARE(w.cell(0, 0, 1).coloreSfondo, white);
    QCOMPARE(w.cell(1, 0, 1).coloreTesto, black);

    w.select(1, 1);
    w.press("coloracellasfondo");
    w.choose(green);
    QCOMPARE(w.status(), cellBackgroundDone);
    QCOMPARE(w.cell(0, 1, 1).coloreSfondo, green);
    QCOMPARE(w.cell(0, 1, 1).coloreTesto, black);
    QCOMPARE(w.item(1, 1)->background().color(), green);
    QCOMPARE(w.cell(0, 0, 1).coloreSfondo, white);
}

void tst_MainWindowStyling::theSameCellsOfAllPagesAreColoured()
{
    PageWindow w;
    w.showPages({{2, 2, 2}, {4, 1, 2}});
    w.check("applica_tutte_celle");
    w.select(3, 1);
    w.press("coloracellasfondo");
    w.choose(green);
    QCOMPARE(w.cell(0, 3, 1).coloreSfondo, green);
    QCOMPARE(w.cell(1, 3, 1).coloreSfondo, green);
    QCOMPARE(w.cell(1, 2, 1).coloreSfondo, white);
    QCOMPARE(w.status(), cellBackgroundDone);
}

void tst_MainWindowStyling::missingCellsAreToldOnce()
{
    PageWindow w;
    w.showPages({{2, 2, 3}, {1, 2, 3}, {2, 2, 2}});
    w.check("applica_tutte_celle");
    for (int row = 0; row < 4; ++row) {
        w.select(row, 2);
        w.select(row, 0);
    }
    expectSkippedCells(w);
    w.press("coloracellatesto");
    w.choose(green);
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(w.cell(0, row, 2).coloreTesto, green);
        QCOMPARE(w.cell(2, row, 0).coloreTesto, green);
    }
    QCOMPARE(w.cell(1, 1, 2).coloreTesto, green);
    QCOMPARE(w.status(), cellTextDone);
}

void tst_MainWindowStyling::fillersAreSkipped()
{
    PageWindow w;
    w.showPages({{1, 2, 3}, {1, 2, 3}});
    w.shorten(0, 1, 1);
    w.window->loadPagina(0);
    w.check("applica_tutte_celle");
    w.select(1, 0);
    w.select(1, 2); // a filler here, a cell on the other page
    w.press("coloracellasfondo");
    w.choose(green);
    QCOMPARE(w.cell(0, 1, 0).coloreSfondo, green);
    QCOMPARE(w.cell(1, 1, 0).coloreSfondo, green);
    QCOMPARE(w.cell(1, 1, 2).coloreSfondo, white);
    QCOMPARE(w.item(1, 2)->background().color(), QColor(Qt::lightGray));
}

void tst_MainWindowStyling::aColourReachesOnlyTheCommandThatAsked()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.press("colorapaginasfondo");
    w.choose(green);
    w.select(0, 0);
    w.press("coloracellatesto");
    w.choose(red);
    QCOMPARE(w.page(0)->sfondo, green);
    QCOMPARE(w.cell(0, 0, 0).coloreTesto, red);
    QCOMPARE(w.cell(0, 0, 0).coloreSfondo, white);
}

void tst_MainWindowStyling::aColourReachesOnlyOneCommandAfterACancel()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.select(0, 0);
    for (const char *cancelled : {"colorapaginasfondo", "colorabloccosfondo", "colorabloccolineaesterna",
                                  "colorabloccolineainterna", "coloracellasfondo"}) {
        w.press(cancelled);
        QVERIFY(w.picker()->isVisible());
        w.picker()->reject();
    }
    w.press("coloracellatesto");
    w.choose(red);
    QCOMPARE(w.cell(0, 0, 0).coloreTesto, red);
    w.cell(0, 0, 0).coloreTesto = black;
    QVERIFY(untouched(w));
}

void tst_MainWindowStyling::aButtonPressedTwiceColoursOnce()
{
    PageWindow w;
    w.showPages({{2, 2, 2}, {1, 1, 1}});
    w.check("applica_tutte_celle");
    w.select(3, 1);
    w.press("coloracellasfondo");
    w.window->on_coloracellasfondo_clicked();
    expectSkippedCells(w); // once
    w.choose(green);
    QCOMPARE(w.cell(0, 3, 1).coloreSfondo, green);
    QCOMPARE(w.status(), cellBackgroundDone);
}

void tst_MainWindowStyling::anotherColourWithoutAskingReachesNobody()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.select(0, 0);
    w.press("coloracellatesto");
    w.choose(black);
    w.select(0, 0);
    emit w.picker()->colorSelected(green);
    QVERIFY(untouched(w));
}

void tst_MainWindowStyling::aPageDeletedWhileThePickerIsOpenIsNotColoured()
{
    PageWindow w;
    w.showPages({{2, 2, 2}, {3, 3, 3}});
    w.pageNumber()->setValue(2);
    w.select(8, 2);
    w.press("coloracellasfondo");
    w.window->on_pagina_elimina_clicked();
    w.choose(green);
    QCOMPARE(w.status(), nothingSelected);
    QVERIFY(untouched(w));

    w.press("colorapaginasfondo");
    w.choose(green);
    QCOMPARE(w.page(0)->sfondo, green);
}

void tst_MainWindowStyling::theOnlyPageDeletedWhileThePickerIsOpen()
{
    PageWindow w;
    for (const char *button : {"colorapaginasfondo", "colorabloccosfondo", "coloracellatesto", "coloracellasfondo"}) {
        w.showPages({{2, 2, 2}});
        w.select(3, 1);
        w.press(button);
        w.window->on_pagina_elimina_clicked();
        w.choose(green);
        QCOMPARE(w.status(), emptySet);
        QCOMPARE(w.table()->rowCount(), 0);
    }
}

void tst_MainWindowStyling::thePickerBlocksTheWindowButNotTheProgram()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.press("colorapaginasfondo"); // returns at once
    QVERIFY(w.picker()->isVisible());
    QCOMPARE(w.picker()->windowModality(), Qt::ApplicationModal);
    QCOMPARE(QApplication::activeModalWidget(), w.picker());
    w.picker()->reject();
    QVERIFY(!w.picker()->isVisible());
    QVERIFY(untouched(w));
}

void tst_MainWindowStyling::recolouringNeverAsksAboutCells()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.cell(0, 0, 0).tipo = CELL_TESTO;
    w.cell(0, 0, 0).testo = QStringLiteral("ciao");
    w.window->loadPagina(0);
    quint32 number = 0;
    for (const char *button : {"colorapaginasfondo", "colorabloccosfondo", "colorabloccolineaesterna",
                               "colorabloccolineainterna", "coloracellatesto", "coloracellasfondo"}) {
        w.select(0, 0);
        w.press(button);
        w.choose(green);
        w.item(1, 1)->setText(QString::number(++number)); // edits work again
        QCOMPARE(w.cell(0, 1, 1).numero, number);
    }
    w.window->coloraCellaTesto(green); // refused
    w.item(1, 1)->setText(QStringLiteral("99"));
    QCOMPARE(w.cell(0, 1, 1).numero, 99U);
    QCOMPARE(w.cell(0, 0, 0).testo, QStringLiteral("ciao"));
}

void tst_MainWindowStyling::recolouringForgetsTheSelection()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.select(0, 0);
    w.press("coloracellatesto");
    w.choose(green);
    QCOMPARE(w.text("cella_label"), QStringLiteral("Nessuna selezione"));
    QVERIFY(w.table()->selectedItems().isEmpty());
    QVERIFY(!w.enabled("seleziona_font_button"));
}

void tst_MainWindowStyling::recolouringWithoutAPageShownIsSafe()
{
    PageWindow w;
    w.set()->generateBlock(1, 1, 1); // not generated by the window: the page number stays 0
    w.press("colorapaginasfondo");
    w.choose(green);
    QVERIFY(untouched(w)); // no page is shown
    w.check("applica_tutte_pagine_checkBox");
    w.press("colorapaginasfondo");
    w.choose(green);
    QCOMPARE(w.page(0)->sfondo, green);
    w.check("applica_tutti_blocchi_checkBox");
    w.press("colorabloccosfondo");
    w.choose(red);
    QCOMPARE(w.cell(0, 0, 0).coloreSfondo, red);
    QCOMPARE(w.table()->rowCount(), 0);
}

void tst_MainWindowStyling::theSpacingReachesThePageShown()
{
    PageWindow w;
    w.showPages(3, {1, 1, 1});
    w.pageNumber()->setValue(2);
    QCOMPARE(w.find<QSpinBox>("spazio_blocchi_spin")->minimum(), 0);
    QCOMPARE(w.find<QSpinBox>("spazio_blocchi_spin")->maximum(), 99);
    w.find<QSpinBox>("spazio_blocchi_spin")->setValue(17);
    QCOMPARE(w.page(1)->spazioBlocchi, 1.2F);
    w.press("pagina_applica");
    QCOMPARE(w.page(0)->spazioBlocchi, 1.2F);
    QCOMPARE(w.page(1)->spazioBlocchi, 17.0F);
    QCOMPARE(w.page(2)->spazioBlocchi, 1.2F);
    QCOMPARE(w.status(), QStringLiteral("Modifica applicata."));
}

void tst_MainWindowStyling::theSpacingReachesAllPages()
{
    PageWindow w;
    w.showPages(3, {1, 1, 1});
    w.check("applica_tutte_pagine_checkBox");
    w.find<QSpinBox>("spazio_blocchi_spin")->setValue(0);
    w.press("pagina_applica");
    for (int page = 0; page < 3; ++page) {
        QCOMPARE(w.page(page)->spazioBlocchi, 0.0F);
    }
}

void tst_MainWindowStyling::commandsWithoutEffectSayNothing()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.select(0, 0);
    const StatusLog log(w);
    w.press("blocco_applica");
    w.press("cella_applica");
    QCOMPARE(log.messages(), QStringList());
    QVERIFY(untouched(w));
}

void tst_MainWindowStyling::idleCommandsSayThatTheyHaveNoEffect()
{
    PageWindow w;
    for (const char *idle : {"blocco_applica", "cella_applica", "colorabloccolineaesterna", "colorabloccolineainterna",
                             "dimlineaext_spin", "dimlineaint_spin"}) {
        QVERIFY2(w.find<QWidget>(idle)->toolTip().contains(QStringLiteral("non ha ancora effetto")), idle);
    }
}

void tst_MainWindowStyling::thePickerSaysWhatItColours_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("colorapaginasfondo") << QStringLiteral("Colore di sfondo della pagina");
    QTest::newRow("colorabloccosfondo") << QStringLiteral("Colore di sfondo delle celle del blocco");
    QTest::newRow("colorabloccolineaesterna")
        << QStringLiteral("Colore della linea esterna del blocco (non ha ancora effetto)");
    QTest::newRow("colorabloccolineainterna")
        << QStringLiteral("Colore delle linee interne del blocco (non ha ancora effetto)");
    QTest::newRow("coloracellatesto") << QStringLiteral("Colore del testo delle celle selezionate");
    QTest::newRow("coloracellasfondo") << QStringLiteral("Colore di sfondo delle celle selezionate");
}

void tst_MainWindowStyling::thePickerSaysWhatItColours()
{
    QFETCH(QString, title);
    PageWindow w;
    w.showPages(1, {1, 1, 1});
    w.select(0, 0);
    w.press(QTest::currentDataTag());
    QVERIFY(w.picker()->isVisible());
    QCOMPARE(w.picker()->windowTitle(), title);
    w.picker()->reject();
}

// DejaVu Sans, drawn here in place of the first family, calls its regular style "Book".
void tst_MainWindowStyling::aNewSizeAloneChangesNoWeight()
{
    const QString missing = QStringLiteral("Arial");
    const QString drawn = QStringLiteral("DejaVu Sans");
    QVERIFY(QFontDatabase().families().contains(drawn));
    QFont::insertSubstitution(missing, drawn);
    const auto asBefore = qScopeGuard([missing]() { QFont::removeSubstitutions(missing); });

    PageWindow w;
    w.showPages(1, {1, 1, 2});
    w.select(0, 0);
    w.boxes.expectFontDialog([](QFontDialog *dialog) {
        QLineEdit *size = nullptr;
        for (QLineEdit *edit : dialog->findChildren<QLineEdit *>()) {
            size = edit->text() == QLatin1String("30") ? edit : size;
        }
        QVERIFY(size != nullptr);
        size->setText(QStringLiteral("31"));
    });
    w.press("seleziona_font_button");
    const QFont chosen = w.cell(0, 0, 0).font;
    QCOMPARE(chosen.pointSize(), 31);
    QCOMPARE(chosen.family(), drawn);
    QCOMPARE(chosen.styleName(), QStringLiteral("Book"));
    QCOMPARE(QFontInfo(chosen).weight(), int(QFont::Normal));
    QVERIFY(!QFontInfo(chosen).italic());
}

void tst_MainWindowStyling::theFontReachesTheSelection()
{
    PageWindow w;
    w.showPages(2, {2, 2, 2});
    w.select(0, 0);
    w.select(3, 1);
    const QFont serif(QStringLiteral("Liberation Serif"), 18);
    w.boxes.expectFontDialog(serif);
    w.press("seleziona_font_button");
    QCOMPARE(w.cell(0, 0, 0).font.family(), serif.family());
    QCOMPARE(w.cell(0, 3, 1).font.pointSize(), 18);
    QCOMPARE(w.cell(0, 0, 1).font, defaultCellFont());
    QCOMPARE(w.cell(1, 0, 0).font, defaultCellFont());
    QCOMPARE(w.text("font_info"), QStringLiteral("Liberation Serif 18"));
    QCOMPARE(w.status(), fontDone);
    QVERIFY(w.item(3, 1)->isSelected());
}

void tst_MainWindowStyling::theFontReachesAllPages()
{
    PageWindow w;
    w.showPages(3, {2, 2, 2});
    w.check("applica_tutte_celle");
    w.select(3, 1);
    w.boxes.expectFontDialog(QFont(QStringLiteral("Liberation Serif"), 18));
    w.press("seleziona_font_button");
    for (int page = 0; page < 3; ++page) {
        QCOMPARE(w.cell(page, 3, 1).font.pointSize(), 18);
        QCOMPARE(w.cell(page, 0, 0).font.pointSize(), 30);
    }
}

void tst_MainWindowStyling::theFontSkipsMissingCells()
{
    PageWindow w;
    w.showPages({{2, 2, 2}, {1, 1, 2}, {1, 1, 1}});
    w.check("applica_tutte_celle");
    w.table()->selectAll();
    w.boxes.expectFontDialog(QFont(QStringLiteral("Liberation Serif"), 18));
    expectSkippedCells(w);
    w.press("seleziona_font_button");
    QCOMPARE(w.cell(0, 3, 1).font.pointSize(), 18);
    QCOMPARE(w.cell(1, 0, 1).font.pointSize(), 18);
    QCOMPARE(w.cell(2, 0, 0).font.pointSize(), 18);
    QCOMPARE(w.status(), fontDone);
}

void tst_MainWindowStyling::theFontCancelledChangesNothing()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    w.select(0, 0);
    const QString before = w.status();
    w.boxes.expectFontDialogCancelled();
    w.press("seleziona_font_button");
    QCOMPARE(w.cell(0, 0, 0).font, defaultCellFont());
    QCOMPARE(w.text("font_info"), QStringLiteral("Arial 30"));
    QCOMPARE(w.status(), before);
}

void tst_MainWindowStyling::theFontWithoutSelectionIsOnlyRemembered()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.check("applica_tutte_celle");
    w.boxes.expectFontDialog(QFont(QStringLiteral("Liberation Serif"), 18));
    w.press("seleziona_font_button");
    QCOMPARE(w.cell(0, 0, 0).font, defaultCellFont());
    QCOMPARE(w.text("font_info"), QStringLiteral("Liberation Serif 18"));
    QCOMPARE(w.status(), fontDone);
}

void tst_MainWindowStyling::theCellSwitchShowsTheCurrentFont()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    QVERIFY(!w.enabled("seleziona_font_button"));
    w.check("applica_tutte_celle");
    QVERIFY(w.enabled("seleziona_font_button"));
    QCOMPARE(w.text("font_info"), QStringLiteral("Arial 30"));
    QCOMPARE(w.find<QLabel>("font_info")->font().pointSize(), 30);
    w.check("applica_tutte_celle");
    QVERIFY(!w.enabled("seleziona_font_button"));
    QCOMPARE(w.text("font_info"), QString());
}

void tst_MainWindowStyling::theCellSwitchTakenBackShowsTheCellAgain()
{
    PageWindow w;
    w.showPages({{1, 1, 2}});
    w.cell(0, 0, 1).font = QFont(QStringLiteral("Liberation Serif"), 18);
    w.select(0, 1);
    w.check("applica_tutte_celle");
    QCOMPARE(w.text("font_info"), QStringLiteral("Arial 30"));
    w.check("applica_tutte_celle");
    QCOMPARE(w.text("font_info"), QStringLiteral("Liberation Serif 18"));
    QVERIFY(w.enabled("seleziona_font_button"));
}

void tst_MainWindowStyling::theBlockSwitchDisablesTheLineWidths()
{
    PageWindow w;
    w.showPages({{2, 2, 2}});
    for (int click = 0; click < 2; ++click) {
        w.find<QWidget>("dimlineaext_spin")->setEnabled(true);
        w.find<QWidget>("dimlineaint_spin")->setEnabled(true);
        w.check("applica_tutti_blocchi_checkBox");
        QVERIFY(!w.enabled("dimlineaext_spin"));
        QVERIFY(!w.enabled("dimlineaint_spin"));
    }
}

void tst_MainWindowStyling::recolouringKeepsWhatIsSeenAndWhereTheKeyboardIs()
{
    PageWindow page;
    page.window->resize(800, 500);
    page.showPages(1, {40, 3, 40});
    QVERIFY(QTest::qWaitForWindowActive(page.window.get()));
    page.table()->setFocus();
    page.table()->setCurrentCell(70, 30);
    page.table()->scrollToItem(page.item(70, 30), QAbstractItemView::PositionAtCenter);
    const int down = page.table()->verticalScrollBar()->value();
    const int right = page.table()->horizontalScrollBar()->value();
    QVERIFY(down > 0 && right > 0);
    page.press("colorapaginasfondo");
    page.choose(Qt::yellow);
    QCOMPARE(page.table()->verticalScrollBar()->value(), down);
    QCOMPARE(page.table()->horizontalScrollBar()->value(), right);
    QCOMPARE(page.table()->currentRow(), 70);
    QCOMPARE(page.table()->currentColumn(), 30);
    QVERIFY(page.table()->selectedItems().isEmpty());
    QCOMPARE(page.text("cella_label"), QStringLiteral("Nessuna selezione"));
}

void tst_MainWindowStyling::coloursOfLinesSayThatTheyHaveNoEffect()
{
    const PageWindow page;
    page.press("butt_aggiungi_pagine");
    for (const char *button : {"colorabloccolineaesterna", "colorabloccolineainterna"}) {
        page.press(button);
        QCOMPARE(page.status(), QStringLiteral("Il colore delle linee non ha ancora effetto!"));
        page.picker()->reject();
    }
}

QTEST_MAIN(tst_MainWindowStyling)
#include "tst_MainWindowStyling.moc"
