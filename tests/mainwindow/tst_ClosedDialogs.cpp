// SPDX-License-Identifier: MIT
// A dialog or menu that was just closed is no longer on the screen when long work begins.
#include "mainwindow/PageWindow.h"
#include "personale/EditPersonale.h"
#include "serata/Serata.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>

namespace {
// What is left of a closed dialog is painted over only when the display has told of it, which is after the dialog has
// returned. A timer stands for the display; the wait cursor tells that the work begins.
class ClosedDialogs final : public QObject
{
    Q_OBJECT

public:
    ClosedDialogs() { qApp->installEventFilter(this); }

    void verifyGoneBeforeTheWork() const
    {
        QVERIFY(m_closed);
        QVERIFY(m_worked);
        QVERIFY(!m_seenDuringWork);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *window = qobject_cast<QWidget *>(watched);
        if (window == nullptr || !window->isWindow()) {
            return false;
        }
        if (event->type() == QEvent::Hide && (window->inherits("QDialog") || window->inherits("QMenu"))) {
            m_closed = true;
            m_seen = true;
            QTimer::singleShot(0, this, [this]() { m_seen = false; });
        }
        if (event->type() == QEvent::CursorChange && window->cursor().shape() == Qt::WaitCursor) {
            m_worked = m_worked || m_closed;
            m_seenDuringWork = m_seenDuringWork || m_seen;
        }
        return false;
    }

private:
    bool m_closed = false;
    bool m_worked = false;
    bool m_seen = false;
    bool m_seenDuringWork = false;
};

// By the mouse, as an entry that has no shortcut is.
void chooseFromMenu(const QWidget *window, const char *menu, const char *action)
{
    auto *opened = window->findChild<QMenu *>(QLatin1String(menu));
    opened->popup(QPoint());
    const QRect entry = opened->actionGeometry(window->findChild<QAction *>(QLatin1String(action)));
    QTest::mouseClick(opened, Qt::LeftButton, Qt::NoModifier, entry.center());
}

const QString classic = QStringLiteral("Quintra - Cartella classica");
const QString newSet = QStringLiteral("Sei sicuro di voler cancellare la cartella e crearne una nuova?");

// An editor opened by the main window.
EditPersonale *openEditor(const PageWindow &page)
{
    page.find<QCheckBox>("MappaManuale")->setChecked(true);
    page.press("butt_aggiungi_pagine");
    return page.window->findChild<EditPersonale *>();
}

QAction *actionOf(const EditPersonale *editor, const char *name)
{
    return editor->findChild<QAction *>(QLatin1String(name));
}

void expectMapping(PageWindow &page, const QString &caption)
{
    page.boxes.expectFileDialog(caption, QDir::current().filePath(QStringLiteral("mappa.QcF")));
}

void expectOpening(PageWindow &page)
{
    page.boxes.expectBox(
        QStringLiteral("Quintra"),
        QStringLiteral("Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?"),
        QMessageBox::Yes);
    expectMapping(page, QStringLiteral("Apre un file di cartelle"));
}
} // namespace

class tst_ClosedDialogs final : public QObject
{
    Q_OBJECT

private slots:
    void theQuestionAboutANewSet();
    void theQuestionBeforeTheEditor();
    void theFileDialogOfThePrint();
    void theWarningOfThePrint();
    void theFileDialogOfTheRegister();
    void theFileDialogOfThePicture();
    void theQuestionAboutDeletedCells();
    void theColourPicker();
    void theFontDialog();
    void theMenuOfTheComparison();
    void theResultOfTheComparison();
    void theMenuOfTheEvening();
    void theFileDialogOfTheEvening();
    void theFileDialogOfASavedMapping();
    void theFileDialogOfAnOpenedMapping();
    void theQuestionAboutTheCopy();
    void theMenuOfTheCreatedPages();
};

void tst_ClosedDialogs::theQuestionAboutANewSet()
{
    PageWindow page;
    page.showPages(1, {1, 1, 2});
    const ClosedDialogs closed;
    page.boxes.expectBox(classic, newSet, QMessageBox::Yes);
    page.find<QAction>("actionCrea")->trigger();
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theQuestionBeforeTheEditor()
{
    PageWindow page;
    page.showPages(1, {1, 1, 2});
    page.find<QCheckBox>("MappaManuale")->setChecked(true);
    const ClosedDialogs closed;
    page.boxes.expectBox(classic, newSet, QMessageBox::Yes);
    page.find<QAction>("actionCrea")->trigger();
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theFileDialogOfThePrint()
{
    PageWindow page;
    page.showPages(1, {1, 1, 2});
    const ClosedDialogs closed;
    page.boxes.expectFileDialog(QStringLiteral("Salva le cartelle su file"),
                                QDir::current().filePath(QStringLiteral("cartelle.pdf")));
    page.press("butt_stampa");
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theWarningOfThePrint()
{
    PageWindow page;
    page.showPages(1, {6, 3, 9});
    page.page(0)->spazioBlocchi = 60;
    const ClosedDialogs closed;
    page.boxes.expectFileDialog(QStringLiteral("Salva le cartelle su file"),
                                QDir::current().filePath(QStringLiteral("cartelle.pdf")));
    page.boxes.expectBox(classic, QMessageBox::Ok, [](QMessageBox *) {});
    page.press("butt_stampa");
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theFileDialogOfTheRegister()
{
    PageWindow page;
    page.showPages(1, {1, 1, 2});
    const ClosedDialogs closed;
    page.boxes.expectFileDialog(QStringLiteral("Salva il registro su file"),
                                QDir::current().filePath(QStringLiteral("schede.csv")));
    page.find<QAction>("actionSalvaRegistro")->trigger();
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theFileDialogOfThePicture()
{
    PageWindow page;
    page.showPages(1, {1, 1, 2});
    page.cell(0, 0, 0).tipo = CELL_IMMAGINE;
    page.select(0, 0);
    const ClosedDialogs closed;
    page.boxes.expectFileDialog(QStringLiteral("Apre un'immagine da inserire nella cella"),
                                QDir::current().filePath(QStringLiteral("default.png")));
    page.boxes.expectBox(QStringLiteral("Quintra - Modifica valori"), QMessageBox::Yes, [](QMessageBox *) {});
    page.press("buttSelezionaImmagine");
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theQuestionAboutDeletedCells()
{
    PageWindow page;
    page.showPages(1, {1, 1, 2});
    page.window->activateWindow();
    page.table()->setFocus();
    page.table()->selectAll();
    const ClosedDialogs closed;
    page.boxes.expectBox(QStringLiteral("Quintra - Modifica valori"), QMessageBox::Yes, [](QMessageBox *) {});
    QTest::keyClick(page.table(), Qt::Key_Delete);
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theColourPicker()
{
    PageWindow page;
    page.showPages(1, {1, 1, 2});
    const ClosedDialogs closed;
    page.press("colorapaginasfondo");
    page.choose(Qt::yellow);
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theFontDialog()
{
    PageWindow page;
    page.showPages(1, {1, 1, 2});
    page.select(0, 0);
    const ClosedDialogs closed;
    page.boxes.expectFontDialog(QFont(QStringLiteral("Arial"), 12));
    page.press("seleziona_font_button");
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theMenuOfTheComparison()
{
    PageWindow page;
    page.showPages(1, {1, 1, 2});
    const ClosedDialogs closed;
    page.boxes.expectBox(classic, QMessageBox::Ok, [](QMessageBox *) {});
    chooseFromMenu(page.window.get(), "menuStrumenti", "actionConfronta_blocchi");
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theResultOfTheComparison()
{
    PageWindow page;
    page.showPages(2, {1, 1, 2}); // two equal blocks
    const ClosedDialogs closed;
    page.boxes.expectBox(classic, QMessageBox::Yes, [](QMessageBox *) {});
    page.find<QAction>("actionConfronta_blocchi")->trigger();
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theMenuOfTheEvening()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    const ClosedDialogs closed;
    chooseFromMenu(page.window.get(), "menuStrumenti", "actionSerata");
    QVERIFY(page.window->findChild<Serata *>() != nullptr);
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theFileDialogOfTheEvening()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    page.find<QAction>("actionSerata")->trigger();
    QFile cards(QStringLiteral("natale.csv"));
    QVERIFY(cards.open(QIODevice::WriteOnly) && cards.write("3;1;|;7;8\n") > 0);
    cards.close();
    const ClosedDialogs closed;
    page.boxes.expectFileDialog(QStringLiteral("Apre un registro"), QDir::current().filePath(cards.fileName()));
    page.window->findChild<Serata *>()->findChild<QAction *>(QStringLiteral("actionApriRegistro"))->trigger();
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theFileDialogOfASavedMapping()
{
    PageWindow page;
    const EditPersonale *editor = openEditor(page);
    const ClosedDialogs closed;
    expectMapping(page, QStringLiteral("Salva le cartelle su file"));
    actionOf(editor, "actionSave")->trigger();
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theFileDialogOfAnOpenedMapping()
{
    PageWindow page;
    const EditPersonale *editor = openEditor(page);
    expectMapping(page, QStringLiteral("Salva le cartelle su file"));
    actionOf(editor, "actionSave")->trigger();
    const ClosedDialogs closed;
    expectOpening(page);
    actionOf(editor, "actionOpen")->trigger();
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theQuestionAboutTheCopy()
{
    PageWindow page;
    const EditPersonale *editor = openEditor(page);
    const ClosedDialogs closed;
    page.boxes.expectBox(
        QStringLiteral("Quintra"),
        QStringLiteral("Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?"),
        QMessageBox::Yes);
    editor->findChild<QPushButton *>(QStringLiteral("impostaschemacorrenteButton"))->click();
    closed.verifyGoneBeforeTheWork();
}

void tst_ClosedDialogs::theMenuOfTheCreatedPages()
{
    PageWindow page;
    const EditPersonale *editor = openEditor(page);
    const ClosedDialogs closed;
    page.boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"), QMessageBox::Ok, [](QMessageBox *) {});
    chooseFromMenu(editor, "menuFile", "actionCreaPagine");
    closed.verifyGoneBeforeTheWork();
}

QTEST_MAIN(tst_ClosedDialogs)
#include "tst_ClosedDialogs.moc"
