// SPDX-License-Identifier: MIT
// What only a window manager and the mouse of a real screen can show.
#include "mainwindow/PageWindow.h"
#include "msgarea/MsgArea.h"
#include "personale/EditPersonale.h"
#include "settings/Options.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QProcess>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace {
// Nobody presses two buttons within the time that a window manager needs to carry out a request.
void settle()
{
    constexpr int milliseconds = 250;
    QTest::qWait(milliseconds);
}

// The mouse and the keyboard of the screen, not events of the toolkit: they reach whatever window lies there.
void onScreen(const QStringList &words)
{
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), words), 0);
    settle();
}

void pressButtonOnScreen(const QPoint &place, int button)
{
    onScreen({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
              QStringLiteral("click"), QString::number(button)});
}

void clickOnScreen(const QPoint &place)
{
    constexpr int left = 1;
    pressButtonOnScreen(place, left);
}

// One notch of the wheel towards the user.
void turnWheelOnScreen(const QPoint &place)
{
    constexpr int wheelDown = 5;
    pressButtonOnScreen(place, wheelDown);
}

QPoint middleOnScreen(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

// So low that its side panes scroll.
void showLow(QWidget *window)
{
    const QSize low(1024, 400);
    window->showNormal();
    window->move(0, 0);
    window->resize(low);
    QVERIFY(QTest::qWaitForWindowActive(window));
    settle();
}

Options *openOptions()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *options = qobject_cast<Options *>(window)) {
            return options;
        }
    }
    return nullptr;
}

int valueOf(const QWidget *input)
{
    const auto *box = qobject_cast<const QSpinBox *>(input);
    return box != nullptr ? box->value() : qobject_cast<const QComboBox *>(input)->currentIndex();
}
} // namespace

class tst_Desktop final : public QObject
{
    Q_OBJECT

private slots:
    void theMainWindowFillsTheScreen();
    void theWelcomeIsRedWhenTheWindowIsSeen();
    void theNumberOfPagesIsTypedAtOnce();
    void escapeClosesTheInformation();
    void theOptionsStayInFrontOfTheMainWindow();
    void theWheelScrollsThePaneUnderItsInputs_data();
    void theWheelScrollsThePaneUnderItsInputs();
    void theWheelChangesTheInputThatHasTheFocus();
    void theWheelScrollsThePaneOfTheEditor();
    void theMainWindowTakesNoInputWhileTheEditorIsOpen();
    void theMainWindowStepsAsideWithTheEditor();

private:
    static EditPersonale *openEditor(const PageWindow &page);
    static void closeEditor(PageWindow &page, EditPersonale *editor);
};

EditPersonale *tst_Desktop::openEditor(const PageWindow &page)
{
    page.find<QCheckBox>("MappaManuale")->setChecked(true);
    page.window->generate(false);
    auto *editor = page.window->findChild<EditPersonale *>();
    const bool active = editor != nullptr && QTest::qWaitForWindowActive(editor);
    settle();
    return active ? editor : nullptr;
}

void tst_Desktop::closeEditor(PageWindow &page, EditPersonale *editor)
{
    const QPointer<EditPersonale> open = editor;
    page.boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"), QStringLiteral("Sei sicuro di voler chiudere?"),
                         QMessageBox::Yes, [](QMessageBox *) { settle(); });
    editor->close();
    QTRY_VERIFY(open.isNull());
    settle();
}

void tst_Desktop::theMainWindowFillsTheScreen()
{
    const PageWindow page;
    QVERIFY(QTest::qWaitForWindowActive(page.window.get()));
    QVERIFY(page.window->isMaximized());
    const QRect screen = page.window->screen()->availableGeometry();
    QTRY_COMPARE(page.window->frameGeometry().width(), screen.width());
    QTRY_COMPARE(page.window->frameGeometry().height(), screen.height());
}

void tst_Desktop::theWelcomeIsRedWhenTheWindowIsSeen()
{
    const PageWindow page;
    QVERIFY(QTest::qWaitForWindowExposed(page.window.get()));
    const QImage bar = page.window->statusBar()->grab().toImage();
    int red = 0;
    for (int y = 0; y < bar.height(); ++y) {
        for (int x = 0; x < bar.width(); ++x) {
            red += bar.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
        }
    }
    QVERIFY(red > 50);
}

void tst_Desktop::theNumberOfPagesIsTypedAtOnce()
{
    const PageWindow page;
    QVERIFY(QTest::qWaitForWindowActive(page.window.get()));
    settle();
    onScreen({QStringLiteral("type"), QStringLiteral("50")});
    QCOMPARE(page.find<QSpinBox>("box_classica_numeropagine")->value(), 50);
}

void tst_Desktop::escapeClosesTheInformation()
{
    const PageWindow page;
    QVERIFY(QTest::qWaitForWindowActive(page.window.get()));
    page.find<QAction>("actionInformazioni")->trigger();
    const QPointer<MsgArea> information = page.window->findChild<MsgArea *>();
    QVERIFY(QTest::qWaitForWindowActive(information));
    settle();
    onScreen({QStringLiteral("key"), QStringLiteral("Escape")});
    QTRY_VERIFY(information.isNull());
    QVERIFY(page.window->isVisible());
}

void tst_Desktop::theOptionsStayInFrontOfTheMainWindow()
{
    const PageWindow page;
    QVERIFY(QTest::qWaitForWindowActive(page.window.get()));
    page.find<QAction>("actionOpzioni")->trigger();
    const QPointer<Options> options = openOptions();
    QVERIFY(QTest::qWaitForWindowActive(options));
    options->move(0, 0);
    auto *all = page.find<QCheckBox>("applica_tutte_pagine_checkBox");
    QTRY_VERIFY(!options->frameGeometry().contains(middleOnScreen(all)));
    for (const bool checked : {true, false}) {
        clickOnScreen(middleOnScreen(all)); // the main window takes input
        QCOMPARE(all->isChecked(), checked);
    }
    auto *button = options->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel);
    clickOnScreen(middleOnScreen(button)); // and hides nothing of the dialog
    QTRY_VERIFY(options.isNull());
}

void tst_Desktop::theWheelScrollsThePaneUnderItsInputs_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("pane");
    QTest::newRow("spin box") << QStringLiteral("box_classica_numerorighexblocco")
                              << QStringLiteral("parametriScrollArea");
    QTest::newRow("combo box") << QStringLiteral("pagina_formato") << QStringLiteral("stileScrollArea");
}

void tst_Desktop::theWheelScrollsThePaneUnderItsInputs()
{
    QFETCH(QString, input);
    QFETCH(QString, pane);
    const PageWindow page;
    showLow(page.window.get());
    const auto *widget = page.find<QWidget>(qPrintable(input));
    const int before = valueOf(widget);
    turnWheelOnScreen(middleOnScreen(widget));
    QTRY_VERIFY(page.find<QScrollArea>(qPrintable(pane))->verticalScrollBar()->value() > 0);
    QCOMPARE(valueOf(widget), before);
    QVERIFY(!widget->hasFocus());
}

void tst_Desktop::theWheelChangesTheInputThatHasTheFocus()
{
    const PageWindow page;
    showLow(page.window.get());
    auto *pages = page.find<QSpinBox>("box_classica_numeropagine");
    pages->setValue(50);
    QVERIFY(pages->hasFocus());
    turnWheelOnScreen(middleOnScreen(pages));
    QTRY_COMPARE(pages->value(), 49);
    QCOMPARE(page.find<QScrollArea>("parametriScrollArea")->verticalScrollBar()->value(), 0);
}

void tst_Desktop::theWheelScrollsThePaneOfTheEditor()
{
    PageWindow page;
    EditPersonale *editor = openEditor(page);
    QVERIFY(editor != nullptr);
    showLow(editor);
    auto *rows = editor->findChild<QSpinBox *>(QStringLiteral("row_from_spinBox"));
    rows->setValue(2);
    turnWheelOnScreen(middleOnScreen(rows));
    QTRY_VERIFY(editor->findChild<QScrollArea *>(QStringLiteral("toolsScrollArea"))->verticalScrollBar()->value() > 0);
    QCOMPARE(rows->value(), 2);
    closeEditor(page, editor);
}

void tst_Desktop::theMainWindowTakesNoInputWhileTheEditorIsOpen()
{
    PageWindow page;
    QVERIFY(QTest::qWaitForWindowActive(page.window.get()));
    const auto *box = page.find<QCheckBox>("applica_tutte_pagine_checkBox");
    clickOnScreen(middleOnScreen(box));
    QVERIFY(box->isChecked()); // the click does reach the window

    EditPersonale *editor = openEditor(page);
    QVERIFY(editor != nullptr);
    editor->resize(editor->minimumSizeHint());
    editor->move(0, 0);
    QTRY_VERIFY(!editor->frameGeometry().contains(middleOnScreen(box)));
    clickOnScreen(middleOnScreen(box));
    QVERIFY(box->isChecked());
    closeEditor(page, editor);

    QVERIFY(QTest::qWaitForWindowActive(page.window.get()));
    clickOnScreen(middleOnScreen(box));
    QVERIFY(!box->isChecked());
}

void tst_Desktop::theMainWindowStepsAsideWithTheEditor()
{
    PageWindow page;
    QVERIFY(QTest::qWaitForWindowActive(page.window.get()));
    EditPersonale *editor = openEditor(page);
    QVERIFY(editor != nullptr);
    QVERIFY(page.window->isMaximized() && !page.window->isMinimized());

    editor->showMinimized();
    QTRY_VERIFY(page.window->isMinimized());
    settle();
    editor->showNormal();
    editor->activateWindow();
    QTRY_VERIFY(!page.window->isMinimized());
    QVERIFY(page.window->isMaximized());
    settle();

    closeEditor(page, editor);
    QTRY_VERIFY(page.window->isMaximized() && !page.window->isMinimized());
}

QTEST_MAIN(tst_Desktop)
#include "tst_Desktop.moc"
