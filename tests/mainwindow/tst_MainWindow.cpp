// SPDX-License-Identifier: MIT
#include "mainwindow/PageWindow.h"
#include "msgarea/MsgArea.h"
#include "settings/Options.h"
#include "settings/Product.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QGridLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QStatusTipEvent>
#include <QTextEdit>
#include <QToolTip>

namespace {
const QString leaveQuestion = QStringLiteral("Sei sicuro di voler uscire?");

QString styleOf(const PageWindow &page)
{
    return page.window->statusBar()->styleSheet();
}

QString shownText(const MsgArea &window)
{
    return window.findChild<QTextEdit *>()->toPlainText();
}

QAction *action(const PageWindow &page, const char *name)
{
    auto *found = page.window->findChild<QAction *>(QString::fromLatin1(name));
    if (found == nullptr) {
        qFatal("no action %s", name);
    }
    return found;
}

QList<Options *> openOptions()
{
    QList<Options *> open;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *options = qobject_cast<Options *>(window)) {
            open.append(options);
        }
    }
    return open;
}
} // namespace

class tst_MainWindow final : public QObject
{
    Q_OBJECT

private slots:
    void whatLeavingLosesIsOneLine();
    void theWindowOpensMaximisedWithNameAndRelease();
    void theSlotsKeepTheirOrder();
    void theWelcomeIsRedFromTheFirstMoment();
    void theCardSetIsEmptyAtFirst();
    void theCurrentFontTheTableAndThePickerAreReady();
    void theMenusHoldTheirCommands_data();
    void theMenusHoldTheirCommands();
    void commandsWithoutEffectAreGreyed();
    void aGreyedCommandTellsWhyInTheMenu();
    void theNumberOfPagesHasTheFocusAtFirst();
    void everyInputHasALabelOrTextAndAToolTip();
    void theLastCharacterColoursTheStatus_data();
    void theLastCharacterColoursTheStatus();
    void aClearedStatusIsBlack();
    void aMessageIsPaintedWhileTheEventLoopStands();
    void menusDoNotReplaceAMessage();
    void thePaperFormatsAreTheSelectableOnes();
    void openSaveAndClearChangeNothing();
    void theInformationNamesTheProgram();
    void optionsAreANewDialogEveryTime();
    void openOptionsGoWithTheWindow();
    void refusingToLeaveKeepsEverything_data();
    void refusingToLeaveKeepsEverything();
    void leavingIsToldOnce();
    void exitAsksToo();
    void theWindowMayGoWhileACellIsEdited();
};

void tst_MainWindow::theWindowOpensMaximisedWithNameAndRelease()
{
    const PageWindow page;
    QCOMPARE(page.window->windowTitle(), QStringLiteral("Quintra v0.704"));
    QVERIFY(page.window->isMaximized());
    QVERIFY(page.window->isVisible());
    QVERIFY(!page.window->windowIcon().isNull());
}

void tst_MainWindow::theSlotsKeepTheirOrder()
{
    const QByteArrayList expected{"done",
                                  "updateStatusBar",
                                  "setStatusBarStyle",
                                  "on_pagina_corrente_spinBox_valueChanged",
                                  "tableItemChanged",
                                  "tableItemSelectionChanged",
                                  "on_applica_tutte_celle_clicked",
                                  "on_applica_tutti_blocchi_checkBox_clicked",
                                  "on_pagina_applica_clicked",
                                  "on_seleziona_font_button_clicked",
                                  "on_pagina_formato_currentIndexChanged",
                                  "on_box_classica_numeropagine_valueChanged",
                                  "on_box_classica_numeroblocchi_valueChanged",
                                  "on_box_classica_numerorighexblocco_valueChanged",
                                  "on_box_classica_numeroestrazionixriga_valueChanged",
                                  "on_box_classica_numerojollyxriga_valueChanged",
                                  "on_box_classica_numeroscrittexriga_valueChanged",
                                  "on_box_classica_numerocolonne_valueChanged",
                                  "on_box_classica_numerominimo_valueChanged",
                                  "on_box_classica_numeromassimo_valueChanged",
                                  "on_butt_stampa_clicked",
                                  "on_actionConfronta_blocchi_triggered",
                                  "on_butt_aggiungi_pagine_clicked",
                                  "on_actionCrea_triggered",
                                  "on_actionEsci_triggered",
                                  "on_MappaManuale_toggled",
                                  "generatePersDone",
                                  "on_buttSelezionaImmagine_clicked",
                                  "on_pagina_elimina_clicked",
                                  "on_actionOpzioni_triggered",
                                  "on_colorapaginasfondo_clicked",
                                  "coloraPaginaSfondo",
                                  "on_colorabloccolineaesterna_clicked",
                                  "coloraBloccoLineaEsterna",
                                  "on_colorabloccolineainterna_clicked",
                                  "coloraBloccoLineaInterna",
                                  "on_colorabloccosfondo_clicked",
                                  "coloraBloccoSfondo",
                                  "on_coloracellatesto_clicked",
                                  "coloraCellaTesto",
                                  "on_coloracellasfondo_clicked",
                                  "coloraCellaSfondo",
                                  "on_blocco_applica_clicked",
                                  "on_cella_applica_clicked",
                                  "on_actionOpen_triggered",
                                  "on_actionSave_triggered",
                                  "on_actionInformazioni_triggered"};
    const QMetaObject &meta = MainWindow::staticMetaObject;
    QByteArrayList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        names.append(meta.method(i).name());
    }
    QCOMPARE(names, expected);
}

void tst_MainWindow::theWelcomeIsRedFromTheFirstMoment()
{
    const PageWindow page;
    QCOMPARE(page.status(), QStringLiteral("Welcome to Quintra 0.704!"));
    QCOMPARE(styleOf(page), QStringLiteral("color: #FF0000"));
}

void tst_MainWindow::theCardSetIsEmptyAtFirst()
{
    const PageWindow page;
    QCOMPARE(page.set()->getNumPages(), 0);
    QCOMPARE(page.set()->formato, 0);
    QCOMPARE(page.shown("pagine_lcdNumber"), 0);
    QCOMPARE(page.pageNumber()->value(), 0);
    QVERIFY(!page.enabled("buttSelezionaImmagine"));
    QCOMPARE(page.table()->rowCount(), 0);
}

void tst_MainWindow::theCurrentFontTheTableAndThePickerAreReady()
{
    PageWindow page;
    auto *layout = page.window->findChild<QGridLayout *>(QStringLiteral("gridLayout"));
    QCOMPARE(page.table()->parentWidget(), page.window->centralWidget());
    QVERIFY(layout->indexOf(page.table()) >= 0);
    QCOMPARE(layout->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QVERIFY(page.table()->isVisible());

    QVERIFY(page.picker() != nullptr);
    QVERIFY(!page.picker()->isVisible());
    QCOMPARE(page.picker()->windowModality(), Qt::ApplicationModal);

    page.showPages(1, {1, 1, 1});
    page.check("applica_tutte_celle");
    QCOMPARE(page.text("font_info"), QStringLiteral("Arial 30"));
    const QFont font = page.find<QLabel>("font_info")->font();
    QCOMPARE(font.weight(), int(QFont::Normal));
    QVERIFY(!font.italic());
}

void tst_MainWindow::theMenusHoldTheirCommands_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("actionClear") << QStringLiteral("Pulisci");
    QTest::newRow("actionOpen") << QStringLiteral("Apri");
    QTest::newRow("actionSave") << QStringLiteral("Salva");
    QTest::newRow("actionCrea") << QStringLiteral("Nuova");
    QTest::newRow("actionEsci") << QStringLiteral("Esci");
    QTest::newRow("actionConfronta_blocchi") << QStringLiteral("Confronta blocchi");
    QTest::newRow("actionOpzioni") << QStringLiteral("Opzioni");
    QTest::newRow("actionInformazioni") << QStringLiteral("Informazioni");
}

void tst_MainWindow::theMenusHoldTheirCommands()
{
    QFETCH(QString, text);
    const PageWindow page;
    const QAction *command = action(page, QTest::currentDataTag());
    QCOMPARE(command->text(), text);
    QVERIFY(!command->toolTip().isEmpty() && command->toolTip() != text);
    int menus = 0;
    for (const QAction *top : page.window->menuBar()->actions()) {
        QVERIFY(top->menu()->toolTipsVisible());
        menus += top->menu()->actions().contains(const_cast<QAction *>(command)) ? 1 : 0;
    }
    QCOMPARE(menus, 1);
}

// Mappings are opened and saved by the editor, and there is nothing to clear.
void tst_MainWindow::commandsWithoutEffectAreGreyed()
{
    const PageWindow page;
    for (const QAction *command : page.window->findChildren<QAction *>()) {
        const bool dead =
            QStringList({QStringLiteral("actionOpen"), QStringLiteral("actionSave"), QStringLiteral("actionClear")})
                .contains(command->objectName());
        if (command->objectName().startsWith(QLatin1String("action"))) {
            QCOMPARE(command->isEnabled(), !dead);
        }
    }
    QVERIFY(action(page, "actionOpen")->toolTip().contains(QStringLiteral("editor della mappatura manuale")));
    QVERIFY(action(page, "actionSave")->toolTip().contains(QStringLiteral("editor della mappatura manuale")));
}

void tst_MainWindow::aGreyedCommandTellsWhyInTheMenu()
{
    const PageWindow page;
    auto *menu = page.find<QMenu>("menuFile");
    menu->popup(page.window->mapToGlobal(QPoint(0, 0)));
    QVERIFY(QTest::qWaitForWindowExposed(menu));
    const QPoint place = menu->actionGeometry(const_cast<QAction *>(action(page, "actionOpen"))).center();
    QHelpEvent asked(QEvent::ToolTip, place, menu->mapToGlobal(place));
    QApplication::sendEvent(menu, &asked);
    QCOMPARE(QToolTip::text(), action(page, "actionOpen")->toolTip());
    QToolTip::hideText();
    menu->close();
}

void tst_MainWindow::theNumberOfPagesHasTheFocusAtFirst()
{
    const PageWindow page;
    QApplication::setActiveWindow(page.window.get());
    auto *pages = page.find<QSpinBox>("box_classica_numeropagine");
    QTRY_COMPARE(QApplication::focusWidget(), pages);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("50"));
    QCOMPARE(pages->value(), 50);
}

void tst_MainWindow::everyInputHasALabelOrTextAndAToolTip()
{
    const PageWindow page;
    QList<QWidget *> labelled;
    for (const QLabel *label : page.window->findChildren<QLabel *>()) {
        labelled.append(label->buddy());
    }
    int inputs = 0;
    for (QWidget *input : page.window->findChildren<QWidget *>()) {
        const auto *button = qobject_cast<QAbstractButton *>(input);
        const bool box =
            qobject_cast<QAbstractSpinBox *>(input) != nullptr || qobject_cast<QComboBox *>(input) != nullptr;
        if (input->window() != page.window.get() || input->focusPolicy() == Qt::NoFocus ||
            input->objectName().startsWith(QLatin1String("qt_")) || (button == nullptr && !box)) {
            continue;
        }
        ++inputs;
        QVERIFY2(!input->toolTip().isEmpty(), qPrintable(input->objectName()));
        QVERIFY2(box ? labelled.contains(input) : !button->text().isEmpty(), qPrintable(input->objectName()));
    }
    QVERIFY(inputs > 25);
}

void tst_MainWindow::theLastCharacterColoursTheStatus_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("style");
    const QString black = QStringLiteral("color: black");
    QTest::newRow("error") << QStringLiteral("La cartella!") << QStringLiteral("color: #FF0000");
    QTest::newRow("confirmation") << QStringLiteral("Fatto.") << QStringLiteral("color: #00FF00");
    QTest::newRow("question") << QStringLiteral("Vuoi?") << QStringLiteral("color: #0000FF");
    QTest::newRow("dots") << QStringLiteral("Sto creando...") << QStringLiteral("color: #00FF00");
    QTest::newRow("letter") << QStringLiteral("generata") << black;
    QTest::newRow("blank after the sign") << QStringLiteral("Errore! ") << black;
    QTest::newRow("sign inside") << QStringLiteral("Come? Cosi") << black;
    QTest::newRow("empty") << QString() << black;
}

void tst_MainWindow::theLastCharacterColoursTheStatus()
{
    QFETCH(QString, message);
    QFETCH(QString, style);
    const PageWindow page;
    page.window->updateStatusBar(message);
    QCOMPARE(page.status(), message);
    QCOMPARE(styleOf(page), style);
}

void tst_MainWindow::aClearedStatusIsBlack()
{
    const PageWindow page;
    page.window->updateStatusBar(QStringLiteral("Errore!"));
    page.window->statusBar()->clearMessage();
    QCOMPARE(styleOf(page), QStringLiteral("color: black"));
}

void tst_MainWindow::aMessageIsPaintedWhileTheEventLoopStands()
{
    const PageWindow page;
    QVERIFY(QTest::qWaitForWindowExposed(page.window.get()));
    class Paints final : public QObject
    {
    public:
        int count = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } paints;
    page.window->statusBar()->installEventFilter(&paints);
    page.window->updateStatusBar(QStringLiteral("uno"));
    QVERIFY(paints.count >= 1);
    const int before = paints.count;
    page.window->updateStatusBar(QStringLiteral("due!"));
    QVERIFY(paints.count > before);
}

void tst_MainWindow::menusDoNotReplaceAMessage()
{
    const PageWindow page;
    page.window->updateStatusBar(QStringLiteral("Fatto."));
    action(page, "actionCrea")->setStatusTip(QStringLiteral("Un suggerimento"));
    action(page, "actionCrea")->hover();
    QCOMPARE(page.status(), QStringLiteral("Fatto."));
    for (const QString &tip : {QStringLiteral("Un suggerimento"), QString()}) {
        QStatusTipEvent hovered(tip);
        QApplication::sendEvent(page.window.get(), &hovered);
        QCOMPARE(page.status(), QStringLiteral("Fatto."));
    }
}

void tst_MainWindow::thePaperFormatsAreTheSelectableOnes()
{
    const PageWindow page;
    const auto *formats = page.find<QComboBox>("pagina_formato");
    QCOMPARE(formats->count(), 29);
    QCOMPARE(formats->currentIndex(), 0);
    QCOMPARE(formats->itemText(0), QStringLiteral("A4 (210x297mm)"));
    QCOMPARE(formats->itemText(28), QStringLiteral("Ledger (432x279mm)"));
    for (int i = 0; i < formats->count(); ++i) {
        QCOMPARE(formats->itemData(i).toInt(), i);
    }
}

void tst_MainWindow::openSaveAndClearChangeNothing()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    const Cartella *set = page.set();
    const Pagina *first = page.page(0);
    page.window->updateStatusBar(QStringLiteral("Fatto."));
    for (const char *name : {"actionOpen", "actionSave", "actionClear"}) {
        action(page, name)->trigger();
    }
    QCOMPARE(page.set(), set);
    QCOMPARE(page.page(0), first);
    QCOMPARE(page.status(), QStringLiteral("Fatto."));
}

void tst_MainWindow::theInformationNamesTheProgram()
{
    const PageWindow page;
    action(page, "actionInformazioni")->trigger();
    QPointer<MsgArea> about = page.window->findChild<MsgArea *>();
    QVERIFY(about != nullptr);
    QVERIFY(about->isVisible());
    QCOMPARE(about->windowModality(), Qt::WindowModal);
    QCOMPARE(about->windowTitle(), QStringLiteral("Quintra - Informazioni"));
    const QString text = shownText(*about);
    QVERIFY2(text.contains(QStringLiteral("Quintra\n0.704\n")), qPrintable(text));
    QVERIFY(text.contains(QStringLiteral("Generatore di cartelle per la Quintra.\nAdvanced Bingo cards generator.")));
    QVERIFY(about->findChild<QTextEdit *>()->isReadOnly());
    about->close();
    QTRY_VERIFY(about.isNull()); // it does not gather behind the window
}

void tst_MainWindow::optionsAreANewDialogEveryTime()
{
    const PageWindow page;
    action(page, "actionOpzioni")->trigger();
    action(page, "actionOpzioni")->trigger();
    const QList<Options *> open = openOptions();
    QCOMPARE(open.size(), 2);
    for (Options *options : open) {
        QVERIFY(options->isVisible());
        QVERIFY(options->parent() == nullptr);
        options->reject();
    }
    QTRY_VERIFY(openOptions().isEmpty());
}

void tst_MainWindow::openOptionsGoWithTheWindow()
{
    PageWindow page;
    action(page, "actionOpzioni")->trigger();
    action(page, "actionOpzioni")->trigger();
    action(page, "actionInformazioni")->trigger();
    page.window.reset();
    QVERIFY(openOptions().isEmpty());
}

void tst_MainWindow::refusingToLeaveKeepsEverything_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("No") << int(QMessageBox::No);
    QTest::newRow("box closed") << int(QMessageBox::Escape);
}

void tst_MainWindow::refusingToLeaveKeepsEverything()
{
    QFETCH(int, answer);
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    const Cartella *set = page.set();
    const Pagina *first = page.page(0);
    const QSignalSpy done(page.window.get(), &MainWindow::done);
    page.boxes.expectBox(QStringLiteral("Quintra"), leaveQuestion, static_cast<QMessageBox::StandardButton>(answer),
                         QMessageBox::Question);
    QVERIFY(!page.window->close());
    QVERIFY(page.window->isVisible());
    QCOMPARE(done.count(), 0);
    QCOMPARE(page.set(), set);
    QCOMPARE(page.page(0), first);
    QCOMPARE(page.set()->getNumPages(), 1);
}

void tst_MainWindow::leavingIsToldOnce()
{
    PageWindow page;
    const QSignalSpy done(page.window.get(), &MainWindow::done);
    page.boxes.expectBox(QStringLiteral("Quintra"), leaveQuestion, QMessageBox::Yes, [](const QMessageBox *box) {
        QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
    });
    QVERIFY(page.window->close());
    QVERIFY(!page.window->isVisible());
    QCOMPARE(done.count(), 1);
    QVERIFY(page.window->close());
    QCOMPARE(done.count(), 1);
}

void tst_MainWindow::exitAsksToo()
{
    PageWindow page;
    page.boxes.expectBox(QStringLiteral("Quintra"), leaveQuestion, QMessageBox::No);
    action(page, "actionEsci")->trigger();
    QVERIFY(page.window->isVisible());
    page.boxes.expectBox(QStringLiteral("Quintra"), leaveQuestion, QMessageBox::Yes);
    action(page, "actionEsci")->trigger();
    QVERIFY(!page.window->isVisible());
}

// The cell loses the focus when the window is half gone already.
void tst_MainWindow::theWindowMayGoWhileACellIsEdited()
{
    PageWindow page;
    page.showPages(1, {1, 3, 9});
    QApplication::setActiveWindow(page.window.get());
    page.table()->setFocus();
    page.table()->editItem(page.item(0, 0));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("12"));
    const QPointer<MainWindow> window = page.window.get();
    page.window.reset();
    QVERIFY(window.isNull());
}

void tst_MainWindow::whatLeavingLosesIsOneLine()
{
    PageWindow page;
    page.window->generate(false);
    page.boxes.expectBox(QStringLiteral("Quintra"), leaveQuestion, QMessageBox::No, [](QMessageBox *box) {
        const auto *loss = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"));
        QVERIFY(loss != nullptr);
        QVERIFY(loss->height() < 2 * loss->fontMetrics().height());
        QVERIFY(loss->width() >= loss->fontMetrics().horizontalAdvance(box->informativeText()));
    });
    page.window->close();
}

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
