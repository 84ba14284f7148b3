// SPDX-License-Identifier: MIT
#include "EditorUnderTest.h"
#include "model/Positions.h"
#include "msgarea/MsgArea.h"

#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>

namespace {
// Collects the cursors that a window shows one after the other. A main window tells of each more than once.
class CursorLog final : public QObject
{
public:
    explicit CursorLog(QWidget *window)
        : m_window(window)
    {
        window->installEventFilter(this);
    }
    const QVector<int> &shapes() const { return m_shapes; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::CursorChange &&
            m_window->cursor().shape() != m_shapes.value(m_shapes.size() - 1, -1)) {
            m_shapes << m_window->cursor().shape();
        }
        return false;
    }

private:
    QWidget *m_window; // not owned
    QVector<int> m_shapes;
};

// Appends pages of one empty cell.
void growTo(Cartella &set, int pages)
{
    while (set.getNumPages() < pages) {
        QVERIFY(set.generateBlock(1, 1, 1));
    }
}
} // namespace

class tst_EditPersonale final : public QObject
{
    Q_OBJECT

private slots:
    void withoutAMainWindowItOpensAndCloses();
    void theWindowOpensOnPageOne();
    void withoutPagesTheWindowClosesAtOnce();
    void theWindowThatOpenedItTakesNoInput();
    void theTextsOfTheForm_data();
    void theTextsOfTheForm();
    void theMenuHoldsItsCommands();
    void everyInputHasAToolTip();

    void switchingShowsThePage();
    void theWaitCursorIsShownWhileThePageIsSwitched();
    void pageNumbersBeyondTheLastAreClamped();
    void theColumnFlagBelongsToThePage();
    void boxesOutOfDisplayHaveNoParent();

    void creatingAddsThePagesAndShowsTheNumbers();
    void theMenuCreatesToo();
    void aFailedCreationTellsWhy();
    void aSetThatWouldGrowTooLargeIsRefused_data();
    void aSetThatWouldGrowTooLargeIsRefused();
    void theLargestSetIsReached();
    void warningsOfASuccessAreNotShown();
    void anImpossibleOtherPageGetsZeros();

    void decliningToCloseKeepsTheWindow();
    void closingReportsAndDeletesTheWindow();
    void theWindowStaysOpenWhileItAsks();
    void theMainWindowFollowsTheActivation();
    void theMainWindowFollowsTheWindowState();
    void theMainWindowIsBackAfterClosing();
    void aMaximizedMainWindowComesBackMaximized();
    void otherChangesAreAccepted();
    void theMainWindowMayGoFirst();

    void eighteenRowsOfNineFitWithoutScrolling();
    void largerPagesScrollToTheFocusedCell();
    void openingAndClosingFiftyTimes();
    void textAndImageCellsGetTheDefaultTextAndImage();
};

void tst_EditPersonale::theWindowOpensOnPageOne()
{
    EditorUnderTest t(3, 9, 4);
    QCOMPARE(t.editor->windowTitle(), QStringLiteral("Quintra v0.704 - MAPPATURA MANUALE"));
    QVERIFY(t.editor->isVisible());
    QVERIFY(t.editor->isWindow());
    QCOMPARE(t.editor->parentWidget(), &t.mainWindow);
    QCOMPARE(t.spin("pageNumSpinBox")->value(), 1);
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 4);
    QCOMPARE(t.grid()->count(), 27);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 9; ++column) {
            const PersonaleChkBox *box = t.box(row, column);
            QVERIFY(box != nullptr);
            QVERIFY(box->isVisible());
            QCOMPARE(int(box->riga), row);
            QCOMPARE(int(box->colonna), column);
            QCOMPARE(box->toolTip(), QStringLiteral("%1,%2").arg(row + 1).arg(column + 1));
            QCOMPARE(box->tipo, CELL_VUOTA);
            QVERIFY(!box->isChecked());
        }
    }
    QCOMPARE(t.verdict(), QStringLiteral("Impostazioni corrette"));
    QCOMPARE(t.picture(), QStringLiteral("ok"));
    QVERIFY(t.canCreate());
    for (const char *name : {"pageNumSpinBox", "impostaDAspinBox", "impostaAspinBox"}) {
        QCOMPARE(t.spin(name)->minimum(), 1);
        QCOMPARE(t.spin(name)->maximum(), 65535);
    }
}

void tst_EditPersonale::withoutPagesTheWindowClosesAtOnce()
{
    BoxScript boxes;
    boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"), QStringLiteral("Non vi sono pagine da creare!"),
                    QMessageBox::Ok, QMessageBox::Warning);
    QWidget mainWindow;
    mainWindow.show();
    Cartella cartella;
    const QPointer<EditPersonale> editor = new EditPersonale(&mainWindow, &cartella, 3, 9, 0, 1, 90, 0);
    QVERIFY(!editor.isNull());
    QSignalSpy done(editor, &EditPersonale::done);
    QVERIFY(!editor->isVisible());
    editor->close(); // still no question
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(editor.isNull());
    QCOMPARE(done.size(), 0);
    QVERIFY(!mainWindow.isMinimized());
}

void tst_EditPersonale::theWindowThatOpenedItTakesNoInput()
{
    QWidget mainWindow;
    QCheckBox control(&mainWindow);
    mainWindow.resize(200, 100);
    control.setGeometry(mainWindow.rect());
    mainWindow.show();
    QVERIFY(QTest::qWaitForWindowExposed(&mainWindow));
    QTest::mouseClick(mainWindow.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(9, 50));
    QVERIFY(control.isChecked()); // so far it does

    Cartella cartella;
    EditPersonale editor(&mainWindow, &cartella, 3, 9, 1, 1, 90, 0);
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QCOMPARE(QApplication::activeModalWidget(), &editor);
    QTest::mouseClick(mainWindow.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(9, 50));
    QTest::keyClick(mainWindow.windowHandle(), Qt::Key_Space);
    QVERIFY(control.isChecked());
}

void tst_EditPersonale::theTextsOfTheForm_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const QList<QPair<const char *, const char *>> texts{
        {"checkBox_ordinaNumxColonne", "Ordina numeri sulle colonne"},
        {"selezione_tutte_ckbox", "Tutte"},
        {"riempiButton", "Riempi"},
        {"svuotaButton", "Svuota"},
        {"invertiButton", "Inverti"},
        {"num_radioButton", "Numero"},
        {"txt_radioButton", "Testo"},
        {"img_radioButton", "Immagine"},
        {"setNumTxtImgButton", "Imposta selezionate"},
        {"impostasuttute_checkBox", "tutte"},
        {"impostaschemacorrenteButton", "Copia"},
        {"row_label", "Riga"},
        {"col_label", "Colonna"},
        {"row_from_label", "da"},
        {"row_to_label", "a"},
        {"impostaDAlabel", "da pag."},
        {"impostaAlabel", "a"},
    };
    for (const auto &entry : texts) {
        QTest::newRow(entry.first) << QString(QLatin1String(entry.first)) << QString(QLatin1String(entry.second));
    }
}

void tst_EditPersonale::theTextsOfTheForm()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    EditorUnderTest t;
    const auto *widget = t.editor->findChild<QWidget *>(name);
    QVERIFY(widget != nullptr);
    QCOMPARE(widget->property("text").toString(), text);
}

void tst_EditPersonale::theMenuHoldsItsCommands()
{
    EditorUnderTest t;
    const auto *menu = t.find<QMenu>("menuFile");
    QCOMPARE(menu->title(), QStringLiteral("File"));
    QStringList names;
    for (const QAction *action : menu->actions()) {
        if (!action->isSeparator()) {
            names << action->objectName();
        }
    }
    QCOMPARE(names,
             (QStringList{QStringLiteral("actionNuovo"), QStringLiteral("actionOpen"), QStringLiteral("actionSave"),
                          QStringLiteral("actionCreaPagine"), QStringLiteral("actionEsci")}));
    const QString saveTip = t.find<QAction>("actionSave")->toolTip();
    QVERIFY(saveTip.contains(QStringLiteral("255")));
    QVERIFY(saveTip.contains(QStringLiteral("colonne")));
    QVERIFY(menu->toolTipsVisible());
    QCOMPARE(t.find<QAction>("actionOpen")->shortcut(), QKeySequence(QKeySequence::Open));
    QCOMPARE(t.find<QAction>("actionSave")->shortcut(), QKeySequence(QKeySequence::Save));
}

void tst_EditPersonale::everyInputHasAToolTip()
{
    EditorUnderTest t;
    for (const QWidget *widget : t.editor->findChildren<QWidget *>()) {
        const bool input = qobject_cast<const QAbstractButton *>(widget) != nullptr ||
                           qobject_cast<const QSpinBox *>(widget) != nullptr;
        if (input && !widget->objectName().startsWith(QLatin1String("qt_"))) {
            QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(widget->objectName()));
        }
    }
    const QString tip = t.button("setNumTxtImgButton")->toolTip();
    QCOMPARE(tip, QStringLiteral("<p>Imposta il tipo delle celle selezionate sopra!</p><p>Per cambiare le singole "
                                 "celle usare il tasto destro del mouse su di esse.</p>"));
}

void tst_EditPersonale::switchingShowsThePage()
{
    EditorUnderTest t(1, 3, 3);
    t.tick(0, 0, CELL_NUMERO);
    QPointer<PersonaleChkBox> first = t.box(0, 0);
    t.showPage(2);
    QCOMPARE(t.drawn(), QStringLiteral("ooo"));
    QVERIFY(t.box(0, 0) != first);
    QVERIFY(t.box(0, 2)->isVisible());
    QVERIFY(!first->isVisible());
    t.tick(0, 2, CELL_TESTO);
    t.showPage(1);
    QCOMPARE(t.box(0, 0), first.data());
    QVERIFY(first->isVisible());
    QCOMPARE(t.drawn(), QStringLiteral("Noo"));
    t.showPage(2);
    QCOMPARE(t.drawn(), QStringLiteral("ooS"));
    QCOMPARE(t.grid()->count(), 3);
    QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
}

void tst_EditPersonale::theWaitCursorIsShownWhileThePageIsSwitched()
{
    EditorUnderTest t(1, 1, 2);
    const CursorLog log(t.editor);
    t.showPage(2);
    QCOMPARE(log.shapes(), (QVector<int>{Qt::WaitCursor, Qt::ArrowCursor}));
    t.showPage(9); // still the second page
    QCOMPARE(log.shapes().size(), 2);
}

void tst_EditPersonale::pageNumbersBeyondTheLastAreClamped()
{
    EditorUnderTest t(1, 2, 3);
    t.showPage(3);
    t.tick(0, 0, CELL_NUMERO);
    t.showPage(1);
    t.showPage(65535);
    QCOMPARE(t.spin("pageNumSpinBox")->value(), 3);
    QCOMPARE(t.drawn(), QStringLiteral("No"));
}

void tst_EditPersonale::theColumnFlagBelongsToThePage()
{
    EditorUnderTest t(1, 2, 3);
    const auto *flag = t.button("checkBox_ordinaNumxColonne");
    t.showPage(2);
    t.click("checkBox_ordinaNumxColonne");
    QVERIFY(flag->isChecked());
    t.showPage(1);
    QVERIFY(!flag->isChecked());
    t.showPage(2);
    QVERIFY(flag->isChecked());
    t.click("checkBox_ordinaNumxColonne");
    t.showPage(3);
    t.showPage(2);
    QVERIFY(!flag->isChecked());
}

void tst_EditPersonale::boxesOutOfDisplayHaveNoParent()
{
    EditorUnderTest t(1, 2, 2);
    const PersonaleChkBox *box = t.box(0, 0);
    QVERIFY(box->parentWidget() != nullptr);
    t.showPage(2);
    QVERIFY(box->parentWidget() == nullptr);
    QVERIFY(box->isHidden());
    QCOMPARE(QGuiApplication::topLevelWindows().size(), 2); // none of the boxes became one
}

void tst_EditPersonale::creatingAddsThePagesAndShowsTheNumbers()
{
    EditorUnderTest t(2, 3, 3);
    t.tick(0, 1, CELL_NUMERO);
    t.tick(1, 2, CELL_TESTO);
    t.copyTo(1, 3);
    QSignalSpy done(t.editor, &EditPersonale::done);
    t.expectCreated();
    t.click("creapagineButton");
    QCOMPARE(t.cartella.getNumPages(), 3);
    for (const Pagina *page : t.cartella.pagine) {
        const Cella &number = page->blocchi[0].righe[0].celle[1];
        QCOMPARE(number.tipo, CELL_NUMERO);
        QVERIFY(number.numero >= 1 && number.numero <= 90);
        QCOMPARE(page->blocchi[0].righe[1].celle[2].tipo, CELL_TESTO);
    }
    QCOMPARE(t.box(0, 1)->text(), QString::number(t.cartella.pagine[0]->blocchi[0].righe[0].celle[1].numero));
    QCOMPARE(t.box(1, 2)->text(), QString());
    t.showPage(3);
    QCOMPARE(t.box(0, 1)->text(), QString::number(t.cartella.pagine[2]->blocchi[0].righe[0].celle[1].numero));
    QCOMPARE(done.size(), 0);
    QVERIFY(t.editor->isVisible());
}

void tst_EditPersonale::theMenuCreatesToo()
{
    EditorUnderTest t(1, 2, 1);
    t.tick(0, 0, CELL_NUMERO);
    for (int times = 1; times <= 2; ++times) {
        t.expectCreated();
        t.trigger("actionCreaPagine");
        QCOMPARE(t.cartella.getNumPages(), times);
    }
}

void tst_EditPersonale::aFailedCreationTellsWhy()
{
    EditorUnderTest t(10, 9, 1, 1, 90);
    t.select(1, 10, 1, 1);
    t.click("setNumTxtImgButton");
    t.click("riempiButton");
    t.click("checkBox_ordinaNumxColonne");
    t.boxes.expectBox(
        QStringLiteral("Quintra - Mappatura manuale"),
        QStringLiteral(
            "Errore durante la creazione delle pagine!\n\nGenera per colonne:\nImpossibile generare 10 numeri "
            "sulla colonna n^ 1\nLa colonna vorrebbe 10 numeri diversi tra 1 e 9\nma cio' risulta "
            "impossibile in quanto il range e' composto da 9 numeri."),
        QMessageBox::Ok, QMessageBox::Warning);
    t.click("creapagineButton");
    QCOMPARE(t.cartella.getNumPages(), 1); // added before the failure
}

void tst_EditPersonale::aSetThatWouldGrowTooLargeIsRefused_data()
{
    QTest::addColumn<int>("present");
    QTest::addColumn<QString>("total");
    QTest::newRow("by one") << 65533 << QStringLiteral("65536");
    QTest::newRow("a full set") << 65535 << QStringLiteral("65538");
}

void tst_EditPersonale::aSetThatWouldGrowTooLargeIsRefused()
{
    QFETCH(int, present);
    QFETCH(QString, total);
    EditorUnderTest t(1, 1, 3);
    growTo(t.cartella, present);
    t.boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"),
                      QStringLiteral("Errore durante la creazione delle pagine!\n\nLe pagine totali richieste "
                                     "(%1)\neccedono il massimo consentito (65535).")
                          .arg(total),
                      QMessageBox::Ok, QMessageBox::Warning);
    t.click("creapagineButton");
    QCOMPARE(t.cartella.getNumPages(), present); // not one was added
    QVERIFY(t.canCreate());
}

void tst_EditPersonale::theLargestSetIsReached()
{
    EditorUnderTest t(1, 1, 3);
    growTo(t.cartella, 65532);
    t.expectCreated();
    t.trigger("actionCreaPagine");
    QCOMPARE(t.cartella.getNumPages(), 65535);
}

void tst_EditPersonale::warningsOfASuccessAreNotShown()
{
    EditorUnderTest t(1, 2, 1);
    t.tick(0, 0, CELL_TESTO);
    t.expectCreated();
    t.click("creapagineButton");
}

// Only the page on display is checked before the creation.
void tst_EditPersonale::anImpossibleOtherPageGetsZeros()
{
    EditorUnderTest t(1, 3, 2, 1, 2);
    t.selectAll(true);
    t.click("setNumTxtImgButton");
    t.click("riempiButton");
    t.showPage(2);
    t.click("setNumTxtImgButton");
    QVERIFY(t.canCreate());
    t.expectCreated();
    t.click("creapagineButton");
    t.showPage(1);
    QCOMPARE(t.box(0, 0)->text(), QStringLiteral("0"));
    QCOMPARE(t.cartella.pagine[0]->blocchi[0].righe[0].celle[2].numero, 0U);
}

void tst_EditPersonale::decliningToCloseKeepsTheWindow()
{
    EditorUnderTest t;
    QSignalSpy done(t.editor, &EditPersonale::done);
    t.boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"), QStringLiteral("Sei sicuro di voler chiudere?"),
                      QMessageBox::No, [](QMessageBox *box) {
                          QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
                          QVERIFY(box->defaultButton() == box->button(QMessageBox::No));
                      });
    t.trigger("actionEsci");
    QVERIFY(t.editor->isVisible());
    t.expectCloseQuestion(QMessageBox::Escape);
    t.editor->close();
    QVERIFY(t.editor->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!t.editor.isNull());
    QCOMPARE(done.size(), 0);
}

void tst_EditPersonale::closingReportsAndDeletesTheWindow()
{
    EditorUnderTest t;
    QSignalSpy done(t.editor, &EditPersonale::done);
    t.expectCloseQuestion(QMessageBox::Yes);
    t.trigger("actionEsci");
    QCOMPARE(done.size(), 1);
    QVERIFY(!t.editor->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(t.editor.isNull());
    QCOMPARE(done.size(), 1);
}

// Its reports, which it takes along, may be asking, too.
void tst_EditPersonale::theWindowStaysOpenWhileItAsks()
{
    EditorUnderTest t;
    const auto closes = [&t](QWidget *) {
        t.editor->close(); // without a question
        QVERIFY(t.editor->isVisible());
    };
    t.boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"),
                      QStringLiteral("Pagine create e aggiunte alla cartella principale!"), QMessageBox::Ok, closes);
    t.trigger("actionCreaPagine");
    t.expectSave(t.folder.path(QStringLiteral("a.QcF")));
    t.trigger("actionSave");
    t.boxes.expectFileDialog(QStringLiteral("Salva su file"), QString(), closes);
    t.editor->findChild<MsgArea *>()->findChild<QAction *>(QStringLiteral("actionSalva"))->trigger();
    QVERIFY(t.editor->isVisible());
}

void tst_EditPersonale::theMainWindowFollowsTheActivation()
{
    EditorUnderTest t;
    QWidget other;
    other.show();
    QApplication::setActiveWindow(t.editor);
    QVERIFY(!t.mainWindow.isMinimized());
    QApplication::setActiveWindow(&other);
    QVERIFY(t.mainWindow.isMinimized());
    QApplication::setActiveWindow(t.editor);
    QVERIFY(!t.mainWindow.isMinimized());
    QVERIFY(!t.mainWindow.isMaximized());
    QVERIFY(t.mainWindow.isVisible());
}

void tst_EditPersonale::theMainWindowFollowsTheWindowState()
{
    EditorUnderTest t;
    QApplication::setActiveWindow(t.editor);
    t.editor->showMinimized();
    QVERIFY(t.mainWindow.isMinimized());
    t.editor->showNormal();
    QVERIFY(!t.mainWindow.isMinimized());
    t.editor->showMaximized();
    QVERIFY(!t.mainWindow.isMinimized());
    QVERIFY(!t.mainWindow.isMaximized());
}

void tst_EditPersonale::theMainWindowIsBackAfterClosing()
{
    EditorUnderTest t;
    QApplication::setActiveWindow(t.editor);
    t.mainWindow.showMinimized(); // as while the question is asked
    t.expectCloseQuestion(QMessageBox::Yes);
    t.editor->close();
    QVERIFY(!t.mainWindow.isMinimized());
    QApplication::setActiveWindow(nullptr);
    QCoreApplication::processEvents();
    QVERIFY(!t.mainWindow.isMinimized());
}

void tst_EditPersonale::aMaximizedMainWindowComesBackMaximized()
{
    QWidget mainWindow;
    mainWindow.showMaximized();
    Cartella cartella;
    EditPersonale editor(&mainWindow, &cartella, 1, 1, 1, 1, 90, 0);
    editor.showMinimized();
    QVERIFY(mainWindow.isMinimized());
    editor.showNormal();
    QVERIFY(!mainWindow.isMinimized());
    QVERIFY(mainWindow.isMaximized());
}

void tst_EditPersonale::otherChangesAreAccepted()
{
    EditorUnderTest t;
    for (const QEvent::Type type : {QEvent::PaletteChange, QEvent::StyleChange, QEvent::LanguageChange,
                                    QEvent::FontChange, QEvent::EnabledChange}) {
        QEvent event(type);
        event.ignore();
        QCoreApplication::sendEvent(t.editor, &event);
        QVERIFY(event.isAccepted());
        QVERIFY(!t.mainWindow.isMinimized());
    }
    t.editor->setPalette(QPalette(Qt::darkGray));
    t.editor->setEnabled(false);
    t.editor->setEnabled(true);
}

void tst_EditPersonale::theMainWindowMayGoFirst()
{
    Cartella cartella;
    auto mainWindow = std::make_unique<QWidget>();
    mainWindow->show();
    const QPointer<EditPersonale> editor = new EditPersonale(mainWindow.get(), &cartella, 2, 2, 2, 1, 90, 0);
    QApplication::setActiveWindow(editor);
    mainWindow.reset();
    QVERIFY(editor.isNull());

    EditPersonale alone(nullptr, &cartella, 2, 2, 2, 1, 90, 0); // nothing to follow it
    QApplication::setActiveWindow(&alone);
    QApplication::setActiveWindow(nullptr);
    QVERIFY(alone.isVisible());
}

void tst_EditPersonale::eighteenRowsOfNineFitWithoutScrolling()
{
    EditorUnderTest t(18, 9);
    t.editor->resize(1024, 676); // of 1024 x 700, without a title bar
    QCoreApplication::processEvents();
    const auto *area = t.find<QScrollArea>("boxesScrollArea");
    QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(area->verticalScrollBar()->maximum(), 0);
    const auto *tools = t.find<QWidget>("toolsWidget");
    QVERIFY(tools->width() >= tools->minimumSizeHint().width());
    QVERIFY(tools->height() >= tools->minimumSizeHint().height());
}

void tst_EditPersonale::largerPagesScrollToTheFocusedCell()
{
    EditorUnderTest t(60, 40);
    t.editor->resize(1024, 676);
    QCoreApplication::processEvents();
    QApplication::setActiveWindow(t.editor);
    const auto *area = t.find<QScrollArea>("boxesScrollArea");
    QVERIFY(area->horizontalScrollBar()->maximum() > 0);
    QVERIFY(area->verticalScrollBar()->maximum() > 0);
    t.box(0, 0)->setFocus();
    for (int i = 0; i < 50; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    }
    QCOMPARE(QApplication::focusWidget(), t.box(50, 0));
    QVERIFY(area->verticalScrollBar()->value() > 0);
    const QPoint corner = t.box(50, 0)->mapTo(area->viewport(), QPoint(0, 0));
    QVERIFY(area->viewport()->rect().contains(corner));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(t.box(50, 0)->isChecked());
}

// In every state: any page on display, after opening a file and copying, closed or deleted, events still waiting.
void tst_EditPersonale::openingAndClosingFiftyTimes()
{
    for (int round = 0; round < 50; ++round) {
        EditorUnderTest t(3, 5, 4);
        t.tick(1, 1, CELL_NUMERO);
        t.showPage(1 + round % 4);
        if (round % 3 == 0) {
            t.open(round % 2 == 0 ? "!Nn\n#NNNooo\n" : "\n");
        }
        if (round % 3 == 1) {
            t.copyTo(1, 4);
        }
        if (round % 5 == 0 && t.grid()->count() > 0) {
            t.showPage(2);
        }
        if (round % 2 == 0) {
            t.expectCloseQuestion(QMessageBox::Yes);
            t.editor->close();
        }
        if (round % 4 < 2) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
}

void tst_EditPersonale::textAndImageCellsGetTheDefaultTextAndImage()
{
    EditorUnderTest t(1, 3, 1);
    t.folder.writePicture(QStringLiteral("default.png"), QSize(5, 4), Qt::red);
    t.tick(0, 0, CELL_TESTO);
    t.tick(0, 1, CELL_IMMAGINE);
    t.expectCreated();
    t.click("creapagineButton");
    t.button("checkBox_ordinaNumxColonne")->click();
    t.expectCreated();
    t.click("creapagineButton");
    QCOMPARE(t.cartella.getNumPages(), 2);
    for (const Pagina *page : t.cartella.pagine) {
        QCOMPARE(cellAt(*page, 0, 0)->testo, QStringLiteral("TXT"));
        QCOMPARE(cellAt(*page, 0, 1)->immagine.size(), QSize(5, 4));
        QCOMPARE(cellAt(*page, 0, 2)->testo, QString());
    }
}

void tst_EditPersonale::withoutAMainWindowItOpensAndCloses()
{
    const ScratchFolder folder;
    const CurrentConfig config(qApp);
    Cartella set;
    BoxScript boxes;
    const QPointer<EditPersonale> editor = new EditPersonale(nullptr, &set, 1, 2, 1, 1, 90, 0);
    const QSignalSpy done(editor, &EditPersonale::done);
    QVERIFY(editor->isVisible());
    boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"), QStringLiteral("Sei sicuro di voler chiudere?"),
                    QMessageBox::Yes);
    editor->close();
    QCOMPARE(boxes.problems(), QStringList());
    QCOMPARE(done.size(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(editor.isNull());
}

QTEST_MAIN(tst_EditPersonale)
#include "tst_EditPersonale.moc"
