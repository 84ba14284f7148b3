// SPDX-License-Identifier: MIT
// What only a window manager and the mouse of a real screen can show.
#include "mainwindow/PageWindow.h"
#include "personale/EditPersonale.h"

#include <QCheckBox>
#include <QProcess>
#include <QScreen>

namespace {
// Nobody presses two buttons within the time that a window manager needs to carry out a request.
void settle()
{
    constexpr int milliseconds = 250;
    QTest::qWait(milliseconds);
}

// The mouse of the screen, not an event of the toolkit: it reaches whatever window lies there.
void clickOnScreen(const QPoint &place)
{
    const QStringList words = {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
                               QStringLiteral("click"), QString::number(Qt::LeftButton)};
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), words), 0);
    settle();
}

QPoint middleOnScreen(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}
} // namespace

class tst_Desktop final : public QObject
{
    Q_OBJECT

private slots:
    void theMainWindowFillsTheScreen();
    void theWelcomeIsRedWhenTheWindowIsSeen();
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
    QCOMPARE(page.boxes.problems(), QStringList());
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
