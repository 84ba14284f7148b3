// SPDX-License-Identifier: MIT
// Every shortcut of every window, pressed; those of a message window and of the manual are pressed in their own
// tests.
#include "mainwindow/PagePreview.h"
#include "mainwindow/PageWindow.h"
#include "manuale/Manuale.h"
#include "msgarea/MsgArea.h"
#include "personale/EditPersonale.h"
#include "serata/Serata.h"
#include "settings/FormatSelection.h"
#include "settings/Options.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>

namespace {
const QString saveCaption = QStringLiteral("Salva le cartelle su file");
const QString editorTitle = QStringLiteral("Quintra - Mappatura manuale");

void press(QWidget *window, int key, Qt::KeyboardModifiers modifiers)
{
    QApplication::setActiveWindow(window);
    QTest::keyClick(window, static_cast<Qt::Key>(key), modifiers);
}

void pressCtrl(QWidget *window, int key)
{
    press(window, key, Qt::ControlModifier);
}

// The shortcuts of a window that could be pressed, without those of greyed commands.
QStringList shortcutsOf(const QWidget &window)
{
    QStringList found;
    for (const QAction *action : window.findChildren<QAction *>()) {
        if (action->isEnabled() && !action->shortcut().isEmpty()) {
            found << action->shortcut().toString();
        }
    }
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
        const bool inADialog = button->window() != &window;
        if (!inADialog && button->isEnabled() && !button->shortcut().isEmpty()) {
            found << button->shortcut().toString();
        }
    }
    found.sort();
    return found;
}

// A main window with one generated page.
class GeneratedWindow final
{
public:
    GeneratedWindow() { page.window->generate(false); }

    QWidget *window() const { return page.window.get(); }
    template<class Child>
    QPointer<Child> child() const
    {
        return page.window->findChild<Child *>();
    }

    PageWindow page;
};

// A manual mapping editor of one page, opened by a main window.
class OpenEditor final
{
public:
    OpenEditor()
    {
        page.find<QCheckBox>("MappaManuale")->setChecked(true);
        page.window->generate(false);
        window = page.window->findChild<EditPersonale *>();
    }

    PageWindow page;
    QPointer<EditPersonale> window;
};
} // namespace

class tst_Shortcuts final : public QObject
{
    Q_OBJECT

private slots:
    void noWindowHasOthers();

    void ctrlNMakesANewSet();
    void ctrlShiftNAppendsPages();
    void ctrlPPrints();
    void ctrlBComparesBlocks();
    void ctrlCommaOpensTheOptions();
    void ctrlShiftPOpensThePreview();
    void f1OpensTheManual();
    void ctrlQAsksToLeave();

    void ctrlOOpensAMapping();
    void ctrlSSavesAMapping();
    void ctrlGCreatesThePages();
    void ctrlQAsksToCloseTheEditor();
};

void tst_Shortcuts::noWindowHasOthers()
{
    OpenEditor editor;
    QCOMPARE(shortcutsOf(*editor.window),
             (QStringList{QStringLiteral("Ctrl+G"), QStringLiteral("Ctrl+O"), QStringLiteral("Ctrl+Q"),
                          QStringLiteral("Ctrl+S"), QStringLiteral("F1")}));
    delete editor.window;
    QStringList ofTheMainWindow = shortcutsOf(*editor.page.window);
    ofTheMainWindow.removeOne(QStringLiteral("Ctrl+O")); // commands that do nothing
    ofTheMainWindow.removeOne(QStringLiteral("Ctrl+S"));
    QCOMPARE(ofTheMainWindow,
             (QStringList{QStringLiteral("Ctrl+,"), QStringLiteral("Ctrl+B"), QStringLiteral("Ctrl+N"),
                          QStringLiteral("Ctrl+P"), QStringLiteral("Ctrl+Q"), QStringLiteral("Ctrl+Shift+N"),
                          QStringLiteral("Ctrl+Shift+P"), QStringLiteral("F1")}));
    for (const bool fileMode : {false, true}) {
        QCOMPARE(shortcutsOf(MsgArea(nullptr, fileMode)),
                 (QStringList{QStringLiteral("Ctrl+Q"), QStringLiteral("Ctrl+S")}));
    }
    QCOMPARE(shortcutsOf(Manuale()), (QStringList{QStringLiteral("Alt+Up"), QStringLiteral("Ctrl+F")}));
    QCOMPARE(shortcutsOf(Serata()), (QStringList{QStringLiteral("Ctrl+N"), QStringLiteral("Ctrl+O"),
                                                 QStringLiteral("Ctrl+W"), QStringLiteral("F1"), QStringLiteral("F11"),
                                                 QStringLiteral("F2"), QStringLiteral("F3"), QStringLiteral("F5")}));
    QCOMPARE(shortcutsOf(Options(nullptr)), QStringList());
    QCOMPARE(shortcutsOf(FormatSelection(nullptr)), QStringList());
}

void tst_Shortcuts::ctrlNMakesANewSet()
{
    const PageWindow page;
    pressCtrl(page.window.get(), Qt::Key_N);
    QCOMPARE(page.set()->getNumPages(), 1);
}

void tst_Shortcuts::ctrlShiftNAppendsPages()
{
    const GeneratedWindow t;
    press(t.window(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_COMPARE(t.page.set()->getNumPages(), 2);
}

void tst_Shortcuts::ctrlPPrints()
{
    GeneratedWindow t;
    t.page.boxes.expectFileDialog(saveCaption, QDir::current().filePath(QStringLiteral("cards.pdf")));
    pressCtrl(t.window(), Qt::Key_P);
    QTRY_COMPARE(t.page.boxes.answered(), 1);
    QVERIFY(QFile::exists(QStringLiteral("cards.pdf")));
}

void tst_Shortcuts::ctrlBComparesBlocks()
{
    PageWindow page;
    page.boxes.expectBox(QStringLiteral("Quintra - Cartella classica"),
                         QStringLiteral("Verifica blocchi uguali:\nPagine cartella non ancora generate.\nImpossibile "
                                        "procedere alla verifica!"),
                         QMessageBox::Ok);
    pressCtrl(page.window.get(), Qt::Key_B);
}

void tst_Shortcuts::ctrlCommaOpensTheOptions()
{
    const PageWindow page;
    pressCtrl(page.window.get(), Qt::Key_Comma);
    QVERIFY(qobject_cast<Options *>(QApplication::activeModalWidget()) != nullptr);
}

void tst_Shortcuts::ctrlShiftPOpensThePreview()
{
    const PageWindow page;
    press(page.window.get(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    const auto *preview = page.window->findChild<PagePreview *>();
    QVERIFY(preview != nullptr && preview->isVisible());
}

void tst_Shortcuts::f1OpensTheManual()
{
    const GeneratedWindow t;
    QVERIFY(QDir::current().mkpath(QStringLiteral("manual")));
    QFile page(QStringLiteral("manual/manual_it.html"));
    QVERIFY(page.open(QIODevice::WriteOnly) && page.write("<p>Manuale</p>") > 0);
    page.close();
    press(t.window(), Qt::Key_F1, Qt::NoModifier);
    const auto manual = t.child<Manuale>();
    QVERIFY(manual != nullptr && manual->isVisible());
}

void tst_Shortcuts::ctrlQAsksToLeave()
{
    PageWindow page;
    page.boxes.expectBox(QStringLiteral("Quintra"), QStringLiteral("Sei sicuro di voler uscire?"), QMessageBox::No);
    pressCtrl(page.window.get(), Qt::Key_Q);
}

void tst_Shortcuts::ctrlOOpensAMapping()
{
    OpenEditor t;
    t.page.boxes.expectBox(
        QStringLiteral("Quintra"),
        QStringLiteral("Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?"),
        QMessageBox::No);
    pressCtrl(t.window, Qt::Key_O);
}

void tst_Shortcuts::ctrlSSavesAMapping()
{
    OpenEditor t;
    t.page.boxes.expectFileDialog(saveCaption, QDir::current().filePath(QStringLiteral("scheme.QcF")));
    pressCtrl(t.window, Qt::Key_S);
    QVERIFY(QFile::exists(QStringLiteral("scheme.QcF")));
}

void tst_Shortcuts::ctrlGCreatesThePages()
{
    OpenEditor t;
    t.page.boxes.expectBox(editorTitle, QStringLiteral("Pagine create e aggiunte alla cartella principale!"),
                           QMessageBox::Ok);
    pressCtrl(t.window, Qt::Key_G);
    QCOMPARE(t.page.set()->getNumPages(), 1);
}

void tst_Shortcuts::ctrlQAsksToCloseTheEditor()
{
    OpenEditor t;
    t.page.boxes.expectBox(editorTitle, QStringLiteral("Sei sicuro di voler chiudere?"), QMessageBox::No);
    pressCtrl(t.window, Qt::Key_Q);
}

QTEST_MAIN(tst_Shortcuts)
#include "tst_Shortcuts.moc"
